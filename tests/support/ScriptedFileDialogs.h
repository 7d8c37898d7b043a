#pragma once

#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/FileDialogs.h"

namespace tarnwick::test {

/// Chooses the paths that lie ready, one a dialog; nullopt cancels. A dialog that nobody planned ends the
/// test.
class ScriptedFileDialogs final : public FileDialogs {
 public:
  std::optional<std::string> AskOpen(const FileQuestion& question) override {
    return Answer("open", question);
  }
  std::optional<std::string> AskSave(const FileQuestion& question) override {
    return Answer("save", question);
  }

  std::deque<std::optional<std::string>> Paths;
  std::vector<std::string> Modes;  // "open" or "save"
  std::vector<FileQuestion> Asked;

 private:
  std::optional<std::string> Answer(const char* mode, const FileQuestion& question) {
    Modes.emplace_back(mode);
    Asked.push_back(question);
    if (Paths.empty()) throw std::logic_error("nobody planned this " + Modes.back() + " dialog");
    const std::optional<std::string> path = Paths.front();
    Paths.pop_front();
    return path;
  }
};

}  // namespace tarnwick::test
