#pragma once

#include <string>
#include <system_error>

namespace tarnwick::test {

/// What a platform says when a folder is opened as if it were a file.
#ifdef _WIN32
inline constexpr std::errc FolderAsFile = std::errc::permission_denied;
#else
inline constexpr std::errc FolderAsFile = std::errc::is_a_directory;
#endif

/// The same in words.
inline std::string FolderAsFileText() { return std::make_error_code(FolderAsFile).message(); }

}  // namespace tarnwick::test
