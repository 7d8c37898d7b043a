#pragma once

#include <span>

namespace tarnwick {

/// What one tooth of a segment may have of pitch, inches.
struct PitchLimits {
  double Least{}, Most{};
};

/// Passes after which a segment counts as one that cannot balance.
inline constexpr int BalancePasses = 101;

/// Makes the last tooth of a segment take up what the others leave of its length. What the last one cannot
/// take within its limits goes to one of the others: the largest gives, the smallest takes, the first of them
/// where several are equal; it stops at the limit itself, and the rest is spread in a further pass.
///
/// Nothing is rounded and there is no tolerance. A segment that cannot balance ends with the last tooth at
/// its limit, and its teeth are then not as long as it is.
///
/// @param pitches      the teeth of the segment, inches; fewer than two are left alone
/// @param segmentSize  inches
/// @return how many passes it took, at most BalancePasses
int BalanceSegment(std::span<double> pitches, double segmentSize, PitchLimits limits);

}  // namespace tarnwick
