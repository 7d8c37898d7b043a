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

}  // namespace tarnwick
