#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace tarnwick {

/// Port: where settings outlive the program, each user's own. Named values, all texts, in the sections of an
/// application: the per-user registry below Software\, or a file for each section.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// Whether the section is there and can be read.
  [[nodiscard]] virtual bool KeyExists(std::string_view application, std::string_view section) = 0;

  /// Makes the section, and what it lies in, unless it is there.
  [[nodiscard]] virtual std::error_code CreateKey(std::string_view application, std::string_view section) = 0;

  /// The text of a value; empty when there is none.
  [[nodiscard]] virtual std::string GetValue(std::string_view application, std::string_view section,
                                             std::string_view name) = 0;

  /// Takes a value in, in place of what its name held.
  [[nodiscard]] virtual std::error_code SetValue(std::string_view application, std::string_view section,
                                                 std::string_view name, std::string_view value) = 0;

  /// Puts the values taken in to rest, all together or none. A store that has done so already does nothing.
  [[nodiscard]] virtual std::error_code Finish(std::string_view application, std::string_view section) = 0;
};

}  // namespace tarnwick
