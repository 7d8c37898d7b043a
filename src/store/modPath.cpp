#include "store/modPath.h"

#include <algorithm>
#include <cstddef>

namespace tarnwick {
namespace {

constexpr std::size_t MostTrailing = 4;  // as many separators as are looked at

/// Where the name begins behind the folder; 0 when the path does not split.
std::size_t NameStart(std::string_view path) {
  const std::size_t last = path.rfind(PathSeparator);
  if (last == std::string_view::npos || path.find('.', last) == std::string_view::npos) return 0;
  return last + 1;
}

}  // namespace

std::filesystem::path FilePath(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string AddBackslash(std::string_view path) {
  const auto other = std::find_if(path.rbegin(), path.rend(), [](char c) { return c != PathSeparator; });
  const auto trailing = static_cast<std::size_t>(other - path.rbegin());
  if (trailing == 0) return std::string(path) + PathSeparator;
  return std::string(path.substr(0, path.size() - std::min(trailing, MostTrailing) + 1));
}

std::string FileNameOf(std::string_view path) {
  const std::size_t start = NameStart(path);
  return start == 0 ? std::string() : std::string(path.substr(start));
}

std::string FolderOf(std::string_view path) { return std::string(path.substr(0, NameStart(path))); }

}  // namespace tarnwick
