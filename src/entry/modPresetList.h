#pragma once

#include <string>
#include <vector>

#include "entry/modFormat.h"

namespace tarnwick {

/// The values that a dialog offers, made afresh for the unit system and the decimals in use: " 12 in",
/// "1  1/16 in", " 1 ft  3 in", "Square Back".
///
/// Entries hold the unit word, so that EvaluateEquation reads them. Steps add up on what is shown: with two
/// decimals steps of 0.005 grow as 0.01, 0.02, 0.03. That is meant. Lists that differ by system hold
/// different values, not the same ones converted.
///
/// @param number  1 to 27; 6 and any other number have no entries
[[nodiscard]] std::vector<std::string> ShowListValues(int number, const DisplayFormat& format);

}  // namespace tarnwick
