#pragma once

#include "entry/Questions.h"
#include "model/modBandSaw.h"

namespace tarnwick {

/// Leads the user through a new tooth: the measures that its style needs, one dialog after the other, and a
/// starting value for what is declined and cannot be done without. It ends with `ContainsInfo.Teeth` set;
/// the teeth themselves are the calculation's business.
///
/// @return whether the series ran to its end. A band without style, length, width, teeth or hook angle is
///         none: declining one of these empties the whole record, the unit system included, and nothing more
///         is asked. The caller brings the units back.
[[nodiscard]] bool StepByStepInput(BandSaw& saw, const Questions& questions);

/// Makes `saw` the empty record, every byte zero.
void ClearBandSaw(BandSaw& saw);

}  // namespace tarnwick
