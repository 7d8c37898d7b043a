#include "model/modCharacters.h"

#include <algorithm>

namespace tarnwick {

std::size_t CharacterSize(std::string_view utf8) {
  if (utf8.empty()) return 0;
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t size = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (utf8.size() < size) return 1;
  const std::string_view rest = utf8.substr(1, size - 1);
  const bool whole = std::all_of(rest.begin(), rest.end(),
                                 [](char c) { return (static_cast<unsigned char>(c) & 0xC0u) == 0x80; });
  return whole ? size : 1;
}

std::string_view FirstCharacters(std::string_view utf8, std::size_t most) {
  std::size_t size = 0;
  for (std::size_t i = 0; i < most && size < utf8.size(); ++i) size += CharacterSize(utf8.substr(size));
  return utf8.substr(0, size);
}

}  // namespace tarnwick
