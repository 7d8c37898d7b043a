#include "store/modCodePage.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {
namespace {

// Windows-1252 is Latin-1 but for these 32 places from 0x80 on; 0 where it has no character.
constexpr char32_t FromHex80[] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,       //
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

std::optional<char> ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto* const found = std::find(std::begin(FromHex80), std::end(FromHex80), character);
  if (character == 0 || found == std::end(FromHex80)) return std::nullopt;
  return static_cast<char>(0x80 + (found - std::begin(FromHex80)));
}

/// Takes the first character of a text that is not empty. Characters of four bytes count as no UTF-8: none of
/// them is in the code page.
std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
  const auto byte = [&utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const std::size_t size = byte(0) < 0x80 ? 1 : byte(0) < 0xE0 ? 2 : 3;
  if (utf8.size() < size || (size > 1 && (byte(0) < 0xC2 || byte(0) > 0xEF))) return std::nullopt;
  char32_t character = size == 1 ? byte(0) : size == 2 ? byte(0) & 0x1Fu : byte(0) & 0x0Fu;
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0u) != 0x80) return std::nullopt;
    character = character << 6 | (byte(i) & 0x3Fu);
  }
  if (size == 3 && character < 0x800) return std::nullopt;  // longer than it need be
  utf8.remove_prefix(size);
  return character;
}

}  // namespace

std::optional<std::string> CodePageText(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const std::optional<char32_t> character = TakeCharacter(utf8);
    const std::optional<char> byte = character ? ByteOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

}  // namespace tarnwick
