#pragma once

#include <string>
#include <string_view>

#include "platform/Messages.h"
#include "platform/SettingsStore.h"

namespace tarnwick {

inline constexpr std::string_view ApplicationKey = "Tarnwick";
inline constexpr std::string_view SettingsSection = "Settings";

/// One section of the settings store, and the messages of what fails in it.
class Registry {
 public:
  Registry(SettingsStore& store, std::string_view section) : store_(store), section_(section) {}

  [[nodiscard]] bool KeyExists() const { return store_.KeyExists(ApplicationKey, section_); }

  /// The text of a value, 255 characters at most; empty when there is none.
  [[nodiscard]] std::string GetValue(std::string_view name) const;

  /// A failure shows its number, each time; the caller goes on.
  /// @return whether the value was taken
  bool SetValue(std::string_view name, std::string_view value, Messages& messages) const;

  /// To be called after the last value; see SettingsStore::Finish. Failures as above.
  bool Finish(Messages& messages) const;

 private:
  SettingsStore& store_;
  std::string_view section_;
};

}  // namespace tarnwick
