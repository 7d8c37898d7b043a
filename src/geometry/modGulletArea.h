#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

/// Turn of an arc from its start to its end, degrees.
[[nodiscard]] double Sweep(const ToothArc& arc);

/// The gullet area of a finished outline, by adding figures; into GulletInfo.Area, the tooth's Area, and, for
/// the part below the seat that works, GulletInfo.AreaBelowTip (at least three tenths of the whole).
///
/// It is worked out before a back radius rounds the corner, and is not changed by that.
void GulletArea(ToothWork& work);

}  // namespace tarnwick
