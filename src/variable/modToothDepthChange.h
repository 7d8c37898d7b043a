#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

/// Reshapes a finished tooth to another gullet depth, in inches: the gullet moves along the hook line, and
/// the back with it.
///
/// A Frost tooth goes by GulletInfo.Depth and not by the depth asked for, so that all teeth of such a segment
/// come out alike: meant.
void SetToothDepth(ToothWork& work, double depth);

}  // namespace tarnwick
