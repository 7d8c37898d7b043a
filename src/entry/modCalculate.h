#pragma once

#include <string>
#include <string_view>

#include "platform/Messages.h"

namespace tarnwick {

/// Shown when a text is no equation.
inline constexpr std::string_view NotAnEquation = "Not a valid equation!";

/// The one road from typed text to a number: "12 3/4", "(10+2)/4", "12.5 in", "5 ft 6 in", "1,5*2".
///
/// Brackets, the four operators from left to right with "*" and "/" first, decimal points and commas, one
/// mixed fraction. Unit words are deleted, never converted: the number counts in the unit in which its box
/// shows it. Only feet and inches together are folded into one number of feet, at `decimalPlaces`.
///
/// There is no sign ahead of a factor: "2*-3" is 2 * nothing - 3, that is -3. A character that fits nowhere
/// ends the evaluation quietly: "2(3)" is 2. A text of blanks is 0. A quotient by zero stands as infinity or
/// NaN. Of a longer text the first 80 characters count. All of this is meant.
///
/// @param text   UTF-8; comes back with commas as points and without its unit words
/// @param value  the number; left alone when the text is refused
/// @return whether the text is an equation; when it is not, `messages` has shown so
[[nodiscard]] bool EvaluateEquation(std::string& text, double& value, int decimalPlaces, Messages& messages);

/// `text` with a point in place of each comma, up to 21 of them.
[[nodiscard]] std::string CommaToPoint(std::string_view text);

}  // namespace tarnwick
