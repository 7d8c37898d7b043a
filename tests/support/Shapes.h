#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

#include "geometry/modToothProfile.h"

namespace tarnwick {

// How the pieces of an outline are shown when a test fails.
inline void PrintTo(const Point& p, std::ostream* out) { *out << '(' << p.X << ", " << p.Y << ')'; }
inline void PrintTo(const ToothLine& line, std::ostream* out) {
  *out << "line (" << line.Start.X << ", " << line.Start.Y << ") to (" << line.End.X << ", " << line.End.Y
       << ')';
}
inline void PrintTo(const ToothArc& arc, std::ostream* out) {
  *out << "arc (" << arc.CenterX << ", " << arc.CenterY << ") r " << arc.Radius << ", " << arc.StartAngle
       << " to " << arc.EndAngle;
}

}  // namespace tarnwick

namespace tarnwick::test {

inline bool Same(const ToothLine& a, const ToothLine& b) { return a.Start == b.Start && a.End == b.End; }
inline bool Same(const ToothArc& a, const ToothArc& b) {
  return a.Center() == b.Center() && a.Radius == b.Radius && a.StartAngle == b.StartAngle &&
         a.EndAngle == b.EndAngle;
}

inline testing::AssertionResult Near(Point got, Point want, double tolerance) {
  if (std::abs(got.X - want.X) <= tolerance && std::abs(got.Y - want.Y) <= tolerance)
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << testing::PrintToString(got) << " is not within " << tolerance
                                     << " of " << testing::PrintToString(want);
}

/// The same rounded coordinates, but for the last bit of a sum.
inline testing::AssertionResult At(Point got, Point want) { return Near(got, want, 1e-12); }

inline testing::AssertionResult Near(const ToothLine& got, const ToothLine& want, double tolerance) {
  if (const auto start = Near(got.Start, want.Start, tolerance); !start) return start;
  return Near(got.End, want.End, tolerance);
}

}  // namespace tarnwick::test
