#pragma once

#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "model/modSettings.h"

namespace tarnwick {

class Messages;

/// From the measures of a design to the drawing of its whole band.
///
/// It changes `saw` in place: it derives `Pitch`, `NumTeeth` and `Width`, corrects what cannot be cut,
/// silently, and fills in the derived fields; the user sees the corrected values afterwards. The returned
/// list is empty when the style's measures are not all there: `Pitch`, `NumTeeth` and `FaceLength` are
/// brought up to date all the same. A negative `NumTeeth` gives an empty list too, and nothing is touched
/// then. Narrow and O teeth cannot be variable: their variable pitch data are reset, which a window has to
/// show. Nothing fails: a statement that cannot be worked out is skipped. The few routines that report do so
/// on `messages`.
///
/// A list that is no longer needed can be handed in: its memory serves again.
[[nodiscard]] EntityList CalculateSaw(BandSaw& saw, const CalculationSettings& settings, Messages& messages,
                                      EntityList list = {});

/// One segment of a variable pitch band and one tooth more, for its picture on its own; no outline.
[[nodiscard]] EntityList CalculateSegment(BandSaw& saw, const CalculationSettings& settings,
                                          Messages& messages);

}  // namespace tarnwick
