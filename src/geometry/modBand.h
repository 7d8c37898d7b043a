#pragma once

#include "geometry/modBandTeeth.h"
#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "model/modSettings.h"

namespace tarnwick {

/// The whole band from its one calculated tooth: NumTeeth + 1 teeth a pitch apart, the ends cut at the join,
/// turned around for right to left teeth, and doubled for teeth on both edges. The last tooth closes the
/// loop. `kit` has to outlive it.
[[nodiscard]] BandTeeth LayOutBand(const PlaneKit& kit, const BandSaw& saw, ToothProfile first,
                                   const CalculationSettings& settings);

/// How many teeth a band has whose first edge ends with the tooth `last`.
[[nodiscard]] std::size_t TeethOnAllEdges(int last, bool bothEdges);

/// Turns the band around: all teeth up to `last` mirrored in reversed order, and moved back so that the left
/// end is at X = 0.
void MirrorBandX(BandTeeth& teeth, int last);

/// Teeth on the other edge too: the teeth up to `last`, which are all there are, turned over in the same
/// strip, follow them.
void AddOtherEdge(BandTeeth& teeth, int last);

/// The drawing of a laid out band: the pieces of each tooth that exist, in the order of the cutting, and then
/// the outline of the band, with the ends of an overlap dotted. A list that is no longer needed can be handed
/// in: its memory serves again.
[[nodiscard]] EntityList BuildBandEntities(const PlaneKit& kit, const BandSaw& saw, const BandTeeth& teeth,
                                           EntityList list = {});

}  // namespace tarnwick
