#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

// Narrow Style: the single gullet arc and no back; the top comes down from the next tip as a tangent to the
// arc. The clearance angle is a result.

/// After the depth: ends the arc where the tangent touches it, lays the top, works out the area and the
/// clearance angle.
void CloseNarrow(ToothWork& work);

[[nodiscard]] double AddNarrowFigures(const ToothWork& work, double area);

}  // namespace tarnwick
