#pragma once

#include <filesystem>

namespace tarnwick {

// Folders of the user in which programs keep what is their own, each program in one named for it. They need
// not exist. Empty: there is none, and nothing can be kept.

/// For settings, where these are files: XDG_CONFIG_HOME, else .config in the home folder.
[[nodiscard]] std::filesystem::path UserSettingsFolder();

/// For what is of use on this computer alone: XDG_STATE_HOME, else .local/state in the home folder; on
/// Windows the local application data.
[[nodiscard]] std::filesystem::path UserStateFolder();

}  // namespace tarnwick
