#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// What a dialog for a file opens on.
struct FileQuestion {
  std::string Filter;          // "Words (*.ext)|*.ext", one pair or several
  std::string Folder;          // with its trailing separator
  std::string Name;            // that stands in the box; empty: none
  bool WarnBeforeReplacing{};  // of saving: ask when the file chosen exists
};

/// Port: the desktop's dialogs for files.
class FileDialogs {
 public:
  virtual ~FileDialogs() = default;

  /// The full path of the file chosen, UTF-8; nullopt when the user cancels. Nothing is added to a typed
  /// name.
  virtual std::optional<std::string> AskOpen(const FileQuestion& question) = 0;
  virtual std::optional<std::string> AskSave(const FileQuestion& question) = 0;
};

}  // namespace tarnwick
