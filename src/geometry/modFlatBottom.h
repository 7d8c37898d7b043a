#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

// Flat Bottom: a straight floor between two arcs, sloping down toward the back by the bottom angle.

/// Places both arcs and the floor; corrects radii, bottom angle and gullet width in the record.
void PlaceFlatBottom(ToothWork& work);

/// Lowers arcs and floor to the depth asked for.
void ApplyFlatBottomDepth(ToothWork& work);

/// The chord of the second arc's figure runs from the end of the first arc, over the flat: longer than the
/// arc's own, and meant.
[[nodiscard]] double AddFlatBottomFigures(const ToothWork& work, double area);

}  // namespace tarnwick
