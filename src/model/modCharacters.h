#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwick {

/// `text` without the blanks at both ends.
[[nodiscard]] constexpr std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Bytes of the character that `utf8` begins with; a broken character counts as one byte. 0 at the end.
[[nodiscard]] std::size_t CharacterSize(std::string_view utf8);

/// The beginning of `utf8`, `most` characters at most.
[[nodiscard]] std::string_view FirstCharacters(std::string_view utf8, std::size_t most);

}  // namespace tarnwick
