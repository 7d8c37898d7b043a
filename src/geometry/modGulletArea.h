#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

/// Area between `arc` and a chord that is taken from `start` to `end`, whatever the arc's own ends are.
[[nodiscard]] double AreaAt(const ToothWork& work, const ToothArc& arc, Point start, Point end);

/// The gullet area of a finished outline, by adding figures: between face and back, and those of the style.
/// In², unrounded.
[[nodiscard]] double OutlineArea(const ToothWork& work);

/// OutlineArea into GulletInfo.Area and the tooth's Area, and, for the part below the seat that works,
/// GulletInfo.AreaBelowTip (at least three tenths of the whole).
///
/// It is worked out before a back radius rounds the corner, and is not changed by that.
void GulletArea(ToothWork& work);

}  // namespace tarnwick
