#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

// O Shape: one arc down to the foot of its circle, a level floor, and no back; the top falls straight from
// the next tip to the end of the floor. The clearance angle is a result.

/// The arc, from the face to the foot of its circle; its radius holds to half the pitch.
void PlaceOShape(ToothWork& work);

[[nodiscard]] double FirstArcDepth(const ToothWork& work);
void ApplyOShapeDepth(ToothWork& work);

/// After the depth: floor, top, area and clearance angle. The gullet width, measured from the circle's left
/// side, is at least 1.1 radii, and only a width above that is held to eight tenths of the pitch.
void CloseOShape(ToothWork& work);

[[nodiscard]] double AddOShapeFigures(const ToothWork& work, double area);

}  // namespace tarnwick
