#pragma once

#include "geometry/modTrig.h"

namespace tarnwick {

// Where a line meets a piece of the outline. The line is taken from its Start through its End and beyond;
// both tests look back from its End. Nearly every difference, distance and angle is rounded on the way, as
// the headers of the kit explain.

/// Whether `line` crosses `arc` within its sweep; `out` then holds the crossing. In one case, an arc that
/// starts behind the near crossing and ends just at the far one, the answer is true and `out` keeps what it
/// held.
bool LineMeetsArc(const PlaneKit& kit, const ToothLine& line, const ToothArc& arc, Point& out);

/// Whether `line` passes between the two ends of `segment`; `out` then holds the crossing.
bool LineMeetsSegment(const PlaneKit& kit, const ToothLine& line, const ToothLine& segment, Point& out);

}  // namespace tarnwick
