#pragma once

#include "model/modEntity.h"

namespace tarnwick {

/// The box around a drawing, in inches, and its middle.
struct Extents {
  double MinY{}, MinX{}, MaxY{}, MaxX{};
  double CenterX{}, CenterY{};
};

/// Measures lines, arcs and circles; texts and solids do not widen the box.
///
/// The box always contains X = 0 and Y from -1 to 1, so that an empty drawing has a box too. All six numbers
/// are rounded to 6 places by the one rounding rule, whatever DecimalPlaces says; so an untouched lower edge
/// reads -0.999999.
[[nodiscard]] Extents ComputeExtents(const EntityList& list);

/// The two components of a radius at an angle of 0 to 360 degrees, worked out quadrant by quadrant.
///
/// Whole degrees bound the quadrants: an angle between 0 and 1, 89 and 90, 90 and 91 ... or outside 0 to 360
/// gives 0. The gaps are meant: an arc end there counts with its centre, and the box can be a hair small.
[[nodiscard]] double PolarX(double radius, double angle);
[[nodiscard]] double PolarY(double radius, double angle);

}  // namespace tarnwick
