#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

/// Reshapes a finished tooth to another gullet depth, in inches, the way its style does: the gullet moves
/// along the hook line, and the back with it. A tooth of a segment of different depths.
void SetToothDepth(ToothWork& work, double depth);

// The ways of the styles, by the arc that leads into the back.
void SetSingleArcDepth(ToothWork& work, double depth);
void SetSecondArcDepth(ToothWork& work, double depth);
void SetThirdArcDepth(ToothWork& work, double depth);
void SetFlatBottomDepth(ToothWork& work, double depth);
/// A Frost tooth goes by GulletInfo.Depth and not by the depth asked for, so that all teeth of such a segment
/// come out alike: meant.
void SetFrostDepth(ToothWork& work, double depth);

}  // namespace tarnwick
