#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// The counts of teeth that a segment of a variable pitch band can have.
inline constexpr int LeastSegmentTeeth = 3;
inline constexpr int MostSegmentTeeth = 7;

/// Values of `DesignInfo.VarPattern`: which preset the pitches of a segment were taken from.
enum PatternNumber : int { NoPattern = 0, LeftToRightPattern = 1, RightToLeftPattern = 2, MixedPattern = 3 };
inline constexpr int Patterns = 4;

/// "None", "Left to Right:", "Right to Left", "Mixed": the colon is meant. Empty for any other number.
[[nodiscard]] std::string_view PatternName(int pattern);

/// The share of a segment's length that each of its teeth takes by a preset; together they are 1. Empty for
/// NoPattern, and for a count that no segment has.
[[nodiscard]] std::span<const double> SharesOf(int pattern, int teeth);

/// What there is to choose from for the teeth in a segment: "None", and an entry such as "3 Teeth" for each
/// count that divides the teeth of the band evenly. A band without teeth has "None" alone.
[[nodiscard]] std::vector<std::string> SegmentEntries(int numTeeth);

}  // namespace tarnwick
