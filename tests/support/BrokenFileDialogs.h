#pragma once

#include <optional>
#include <string>
#include <system_error>

#include "platform/FileDialogs.h"

namespace tarnwick::test {

/// A desktop whose file dialogs do not come up.
class BrokenFileDialogs final : public FileDialogs {
 public:
  std::optional<std::string> AskOpen(const FileQuestion&) override { throw std::system_error(Why); }
  std::optional<std::string> AskSave(const FileQuestion&) override { throw std::system_error(Why); }

  const std::error_code Why = std::make_error_code(std::errc::io_error);

  /// What a command tells of it.
  [[nodiscard]] std::string Told(const std::string& procedure) const {
    return "Error Number: " + std::to_string(Why.value()) + "\n" + Why.message() + "\nSub Program " +
           procedure;
  }
};

}  // namespace tarnwick::test
