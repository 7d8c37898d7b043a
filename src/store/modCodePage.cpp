#include "store/modCodePage.h"

#include <algorithm>
#include <iterator>

#include "model/modCharacters.h"

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

char32_t CharacterOf(unsigned char byte) {
  constexpr unsigned char first = 0x80, last = 0x9F;
  const bool moved = byte >= first && byte <= last;
  const char32_t character = moved ? FromHex80[byte - first] : byte;
  return character < ' ' || character == 0x7F ? U'?' : character;
}

/// None of the code page's characters takes more than three bytes.
void AppendUtf8(std::string& utf8, char32_t character) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
  } else if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | character >> 6);
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    utf8 += static_cast<char>(0xE0 | character >> 12);
    utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  }
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

std::string NearestCodePageText(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const std::string_view character = utf8.substr(0, CharacterSize(utf8));
    bytes += CodePageText(character).value_or("?");
    utf8.remove_prefix(character.size());
  }
  return bytes;
}

std::string Utf8OfCodePage(std::string_view bytes) {
  std::string utf8;
  for (const char byte : bytes) AppendUtf8(utf8, CharacterOf(static_cast<unsigned char>(byte)));
  return utf8;
}

}  // namespace tarnwick
