#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

// Gullets that are a chain of tangent arcs from the face into the back: Double Radius and Triple Radius. The
// Frost tooth hangs the same chains below its notch. The routines correct the radii against each other, and
// the gullet width against them, in the record.

/// A small arc at the face and a large one that leads into the back. The second may be turned about the first
/// to hit the width.
void PlaceDoubleRadius(ToothWork& work);

/// A small arc, a large one and a third that leads into the back: the triangle of their three centres gives
/// the large one's place.
void PlaceTripleRadius(ToothWork& work);

/// Depth below the tip of an arc of the chain: tip height - CenterY + its radius.
[[nodiscard]] double DepthOfArc(const ToothWork& work, const ToothArc& arc);

// The rows of the two styles in the table of families.
[[nodiscard]] double SecondArcDepth(const ToothWork& work);
[[nodiscard]] double ThirdArcDepth(const ToothWork& work);
void ApplyDoubleRadiusDepth(ToothWork& work);
void ApplyTripleRadiusDepth(ToothWork& work);
[[nodiscard]] double AddDoubleRadiusFigures(const ToothWork& work, double area);
[[nodiscard]] double AddTripleRadiusFigures(const ToothWork& work, double area);

}  // namespace tarnwick
