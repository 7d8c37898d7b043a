#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnwick {

// Parts of a path, as texts. A folder always carries its trailing separator.

#ifdef _WIN32
inline constexpr char PathSeparator = '\\';
#else
inline constexpr char PathSeparator = '/';
#endif

/// The path that a text names, and the text of a path. Texts are UTF-8 on every platform, which the library's
/// own conversions are not.
[[nodiscard]] std::filesystem::path FilePath(std::string_view text);
[[nodiscard]] std::string PathText(const std::filesystem::path& path);

/// `path` with one trailing separator. Up to three surplus ones are dropped; of more, some stay.
[[nodiscard]] std::string AddBackslash(std::string_view path);

/// What lies behind the last separator, provided that a dot stands in it: a name without an extension, and a
/// path without a separator, give the empty text.
[[nodiscard]] std::string FileNameOf(std::string_view path);

/// What lies up to and including the last separator; empty when FileNameOf is.
[[nodiscard]] std::string FolderOf(std::string_view path);

}  // namespace tarnwick
