#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

/// The face: from the tip down the hook angle, with the seat as a step square to it. A positive hook sends
/// the face toward -X as it falls: the tip leads.
///
/// Without a seat only a stub of the face is laid, GulletInfo.Radius / 12 long, or 0.1 where that radius is
/// not set, whatever the style: the depth lengthens it later.
void PlaceFace(ToothWork& work);

}  // namespace tarnwick
