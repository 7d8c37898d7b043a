#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace tarnwick {

/// Whether `path` can be opened for reading. Any failure gives false, and so does a folder, or a pipe, which
/// would keep the caller waiting for its writer.
[[nodiscard]] bool FileExists(const std::filesystem::path& path) noexcept;

/// Bytes of a file, or why there are none.
struct FileBytes {
  std::error_code Error;  // of opening or reading; Bytes is empty then
  std::string Bytes;
};

/// Reads a file from its start, `most` bytes at most, so that an endless device or a huge file does no harm.
[[nodiscard]] FileBytes ReadFile(const std::filesystem::path& path, std::size_t most);

/// The same for a stream that is open already, from where it stands. It stays open.
[[nodiscard]] FileBytes ReadStream(std::FILE* stream, std::size_t most);

/// Where the bytes of a file are when its writing is done: on their way, or on the disk as far as the
/// platform can tell, so that a power cut finds them there.
enum class Rest { Any, OnDisk };

/// Puts `bytes` into the file `path`, in place of what it held.
///
/// An existing regular file is deleted first. Nothing else ever is: a device, a pipe or a link is written
/// into. There is no backup: after a failure no file is left.
/// @return the failure with the platform's own number and words; none when every byte has arrived
[[nodiscard]] std::error_code WriteWholeFile(const std::filesystem::path& path, std::string_view bytes,
                                             Rest rest = Rest::Any);

/// The same for a file that must never be half there: `bytes` are written beside it and take its place in one
/// step. After a failure the old file is as it was. A link is followed, and what it leads to replaced. What
/// is no file, a folder or a device, is refused.
[[nodiscard]] std::error_code ReplaceWholeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace tarnwick
