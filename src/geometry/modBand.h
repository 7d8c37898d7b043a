#pragma once

#include "geometry/modToothWork.h"
#include "model/modEntity.h"
#include "model/modSettings.h"

namespace tarnwick {

/// The whole band from its one calculated tooth, teeth[0]: NumTeeth + 1 teeth a pitch apart, the ends cut at
/// the join, turned around for right to left teeth, and doubled for teeth on both edges. The last tooth
/// closes the loop.
void LayOutBand(const PlaneKit& kit, const BandSaw& saw, Teeth& teeth, const CalculationSettings& settings);

/// Turns the band around: all teeth up to `last` mirrored in reversed order, and moved back so that the left
/// end is at X = 0.
void MirrorBandX(const PlaneKit& kit, Teeth& teeth, int last);

/// Teeth on the other edge too: the teeth up to `last`, turned over in the same strip, follow them in the
/// array.
void AddOtherEdge(const PlaneKit& kit, Teeth& teeth, int last);

/// The drawing of a laid out band: the pieces of each tooth that exist, in the order of the cutting, and then
/// the outline of the band, with the ends of an overlap dotted.
[[nodiscard]] EntityList BuildBandEntities(const PlaneKit& kit, const BandSaw& saw, const Teeth& teeth);

}  // namespace tarnwick
