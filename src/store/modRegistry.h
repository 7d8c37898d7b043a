#pragma once

#ifdef _WIN32

#include "platform/SettingsStore.h"

namespace tarnwick {

/// The per-user registry: sections lie at Software\application\section, each value is a text.
class WindowsRegistry final : public SettingsStore {
 public:
  bool KeyExists(std::string_view application, std::string_view section) override;
  std::error_code CreateKey(std::string_view application, std::string_view section) override;
  std::string GetValue(std::string_view application, std::string_view section,
                       std::string_view name) override;
  std::error_code SetValue(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view value) override;
  std::error_code Finish(std::string_view application, std::string_view section) override;
};

}  // namespace tarnwick

#endif
