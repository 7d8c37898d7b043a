#pragma once

#include "platform/FileDialogs.h"

namespace tarnwick {

/// The desktop's own file dialogs, or the toolkit's where it has none, above the window in use. Paths have
/// the platform's separators.
class QtFileDialogs final : public FileDialogs {
 public:
  std::optional<std::string> AskOpen(const FileQuestion& question) override;
  std::optional<std::string> AskSave(const FileQuestion& question) override;
};

}  // namespace tarnwick
