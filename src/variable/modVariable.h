#pragma once

#include "geometry/modBandTeeth.h"
#include "geometry/modToothWork.h"
#include "model/modEntity.h"
#include "model/modSettings.h"

namespace tarnwick {

// Bands that repeat a segment of 3 to 7 teeth of different pitch, and optionally of different gullet depth,
// so that the teeth do not strike at one frequency. The whole band is laid out from the one base tooth.

enum class VariablePitchAnswer { Allowed = 1, StyleNotAllowed = 2, TeethNotDivisible = 3 };

/// Whether a band of this style and count can be variable: not without a style nor with one that has no back,
/// and a count that 3, 4, 5, 6 or 7 divides.
[[nodiscard]] VariablePitchAnswer CanUseVariablePitch(int toothStyle, int numTeeth);

/// The whole band from its finished base tooth: in place of LayOutBand. `saw` gets the depths that were
/// accepted and the gullet area of each tooth of the segment. `kit` has to outlive the band.
///
/// Stops at a statement that fails, reports "Error in function CalculateVariableSaw  Error Number" with the
/// number, and leaves the teeth as they stand. NumVariables outside 3 to 7 is not tested: up to 9 it works.
[[nodiscard]] BandTeeth LayOutVariableBand(const PlaneKit& kit, BandSaw& saw, const ToothProfile& base,
                                           const CalculationSettings& settings, Messages& messages);

/// One segment and the start of the next: NumVariables + 2 teeth, cut at both ends. No second edge.
[[nodiscard]] BandTeeth LayOutVariableSegment(const PlaneKit& kit, BandSaw& saw, const ToothProfile& base,
                                              const CalculationSettings& settings, Messages& messages);

/// The drawing of a segment of `toothCount` teeth: pieces alone, no piece twice, no notch, no outline and no
/// header.
[[nodiscard]] EntityList BuildSegmentEntities(const PlaneKit& kit, const BandTeeth& teeth, int toothCount);

}  // namespace tarnwick
