#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// Inches as a mixed fraction, down to 1/64: "1  3/16", "1/2", "2", "0". What is finer stays decimal: ".3",
/// "1 .3".
///
/// @param text  decimal text
[[nodiscard]] std::string DecimalToFraction(std::string_view text);

}  // namespace tarnwick
