#pragma once

#include <memory>

#include "platform/SettingsStore.h"

namespace tarnwick {

/// Where this platform keeps the settings of the user: the registry on Windows, files elsewhere. Nothing is
/// made before the first value is set.
[[nodiscard]] std::unique_ptr<SettingsStore> UserSettingsStore();

}  // namespace tarnwick
