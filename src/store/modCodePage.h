#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// The texts of a design hold one byte a character, in the code page Windows-1252 on every platform.
///
/// @return the bytes of a UTF-8 text; nullopt when a character has no place in the code page, or the text is
///         no UTF-8
[[nodiscard]] std::optional<std::string> CodePageText(std::string_view utf8);

/// The same for a text that is taken as it was typed: "?" stands for a character that has no place.
[[nodiscard]] std::string NearestCodePageText(std::string_view utf8);

/// The bytes of a design's text as UTF-8; "?" stands for the five that mean nothing, and for control bytes.
[[nodiscard]] std::string Utf8OfCodePage(std::string_view bytes);

}  // namespace tarnwick
