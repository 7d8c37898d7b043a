#pragma once

#include "entry/modParameter.h"
#include "model/modBandSaw.h"

namespace tarnwick {

/// What a value accepted in a box of an editor does to its neighbours and its own limits, ahead of the
/// calculation.
/// @param places  DecimalPlaces
void ApplyBoxRule(Parameter parameter, BandSaw& saw, int places);

/// The same for a value accepted by a click on a row of the information panel: the radii have no limits
/// there, and the number of teeth sets the pitch at once.
void ApplyRowRule(Parameter parameter, BandSaw& saw, int places);

/// Measures that a Frost tooth cannot do without, where the design has none: for a style just changed to it.
void FillFrostTooth(BandSaw& saw);

}  // namespace tarnwick
