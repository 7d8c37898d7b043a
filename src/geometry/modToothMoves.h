#pragma once

#include "geometry/modTrig.h"

namespace tarnwick {

// Whole teeth, moved and turned over. Every coordinate, radius and angle is rounded on the way, so that the
// number of moves shows in the last place of negative numbers: none more, none less than the layout calls
// for.
//
// Style, BothEdges and JoinPoint are carried; ArcDepth and Area are not: `out` keeps what it held.

/// `in` moved by (dx, dy) into `out`, which may be the same tooth.
void TranslateTooth(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out, double dx, double dy);

/// The same along X alone, but the top line, both its ends, moves by `topDx` and the rest by `bodyDx`: it
/// stretches or shrinks to reach a next tooth that stands further off or nearer. JoinPoint is not carried.
void TranslateToothParts(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out, double topDx,
                         double bodyDx);

/// Left and right swapped: X becomes -X, and the sense of each arc is turned. The notch pieces of a Frost
/// tooth are left out, and `out` simply has none of them: a band turned around loses its notches. Meant.
void MirrorToothX(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out);
/// The same with top and bottom swapped.
void MirrorToothY(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out);

/// The angle as seen in a mirror that swaps left and right, 180 - a in 0 to 360; 90 and 270 stay.
[[nodiscard]] double MirrorAngleX(const PlaneKit& kit, double angle);
/// The same for top and bottom, 360 - a; 0, 180 and 360 stay.
[[nodiscard]] double MirrorAngleY(const PlaneKit& kit, double angle);

/// Rounds every coordinate, radius and angle of a tooth in place, but for the notch of a Frost tooth and the
/// join point.
void RoundTooth(const PlaneKit& kit, ToothProfile& tooth);

}  // namespace tarnwick
