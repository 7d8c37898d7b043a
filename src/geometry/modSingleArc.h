#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

// The simplest gullet, one arc: Square Back and Round Back; Narrow Style and the last resort of the Frost
// tooth share pieces of it.

/// The gullet arc: its circle touches the face at the end of DropLine, on the inner side, and turns from the
/// face into the back. Radius is GulletInfo.Radius; the Frost tooth takes Radius1 and gets the arc as its
/// first arc too.
void PlaceSingleArc(ToothWork& work);

/// The same, and how deep the arc then lies below the tip goes into ArcDepth.
void PlaceSingleArcAndDepth(ToothWork& work);

/// Depth of the single arc below the tip as it lies now: tip height - CenterY + radius. It counts one radius
/// from the centre.
[[nodiscard]] double SingleArcDepth(const ToothWork& work);

/// The same, but a seat takes most of a radius away: with a seat the arc may start higher.
[[nodiscard]] double SingleArcMinimumDepth(const ToothWork& work);

/// Brings the arc to GulletInfo.Depth: down the face, or, when the gullet is shallower than its radius asks,
/// up and sideways so that its circle still goes through the seat's end.
void ApplySingleArcDepth(ToothWork& work);

[[nodiscard]] double AddSingleArcFigure(const ToothWork& work, double area);

}  // namespace tarnwick
