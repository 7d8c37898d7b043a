#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

// Frost Tooth: a notch in the face under the seat, a small arc and a short floor, below which the face
// resumes further back and a chain of arcs starts: the triple one with a third radius, the double one with a
// second, else the single arc.

/// The notch, and DropLine moved behind it; then the chain. Corrects the notch's measures in the record. A
/// floor that would run backward is left out, and FrostAngle is then what the arc ends at.
void PlaceFrostGullet(ToothWork& work);

[[nodiscard]] double FrostDepth(const ToothWork& work);

/// Lowers the chain to the depth asked for, or, with the single arc, raises it.
void ApplyFrostDepth(ToothWork& work);

/// The single arc raised by `rise`: the face below the notch is gone then, and the arc starts in the notch. A
/// copy of it stays the first arc.
void RaiseFrostArc(ToothProfile& tooth, double rise);

/// The arc that leads into the back, by what has been placed.
[[nodiscard]] const ToothArc& LastFrostArc(const ToothProfile& tooth);

/// The back, from the arc of the chain that the radii call for; the single arc becomes a copy of the first.
void PlaceFrostBack(ToothWork& work);

}  // namespace tarnwick
