#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace tarnwick {

/// Whether `path` names an existing file of any kind (a folder is none).
[[nodiscard]] bool FileExists(const std::filesystem::path& path);

/// Puts `bytes` into a file of their own: an existing regular file is deleted first, then the file is made,
/// written and closed. Nothing but a regular file is ever deleted; a device or a pipe is written into. There
/// is no temporary file and no backup: after a failure there is no file, or what could be written of it.
/// @return the first failure, the platform's own number and words; nothing when all bytes are out, the last
/// flush included
[[nodiscard]] std::error_code WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace tarnwick
