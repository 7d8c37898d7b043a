#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

/// Calculates one tooth to a consistent shape: places its pieces, corrects the measures in the record against
/// each other, and starts over as long as a correction asks for it, at most 1001 times. The heart of the
/// calculation.
///
/// A style number without a tooth gets face and single arc and its sharpness angle and nothing else;
/// ContainsInfo.Teeth stays as it is then.
void CalculateTooth(ToothWork& work);

/// The upper bounds of the radii and the gullet width against the pitch.
void ClampRadii(BandSaw& saw, const PlaneKit& kit);

}  // namespace tarnwick
