#pragma once

#include "geometry/modToothProfile.h"
#include "model/modChecked.h"
#include "model/modDecim.h"

namespace tarnwick {

// The small geometry kit on which every outline stands.
//
// Angles are degrees, counter-clockwise from +X: 0 along +X, 90 along +Y (up), 180, 270. Normal values lie in
// 0 to 360.
//
// A helper fails softly: where its own arithmetic fails its result is 0 (so AngleFromLegs(y, 0) is 0, not 90,
// and Leg of a side longer than the hypotenuse is 0); callers lean on that. A number that had failed before
// it was handed in stays failed, and with it the caller's statement.

// Triangle helpers. None rounds.
[[nodiscard]] Checked Opposite(Checked hyp, Checked angle);     // hyp * sin(angle)
[[nodiscard]] Checked Adjacent(Checked hyp, Checked angle);     // hyp * cos(angle)
[[nodiscard]] Checked TanSide(Checked adj, Checked angle);      // adj * tan(angle)
[[nodiscard]] Checked Hypotenuse(Checked a, Checked b);         // sqrt(a² + b²)
[[nodiscard]] Checked Leg(Checked hyp, Checked a);              // sqrt(hyp² - a²)
[[nodiscard]] Checked AngleFromLegs(Checked opp, Checked adj);  // arctan(opp / adj), -90 to 90
[[nodiscard]] Checked AngleFromSides(Checked a, Checked b,
                                     Checked c);  // angle opposite side a, by the law of cosines

/// The point at `dist` from `from` along `angle`, into `out`. The axes are exact. An angle above 360 goes by
/// the fourth quadrant's rule and comes out right; a negative angle meets no case, and `out` keeps what it
/// held. No rounding.
void PolarPoint(Point from, Point& out, Checked dist, Checked angle);

/// Stores a point as two statements: a coordinate that fails keeps what it held.
void Place(Point& target, Checked x, Checked y);

/// Moves a point by (dx, dy), unrounded, as two statements.
void Shift(Point& target, Checked dx, Checked dy);

/// An angle above 360 loses 360 once, one below 0 gains it once. The outline routines reduce the angles of
/// their arcs in this simple way, on purpose not by PlaneKit::NormalizeAngle, which rounds.
[[nodiscard]] double ReduceOnce(double angle);
/// Both angles of an arc.
void ReduceAngles(ToothArc& arc);

/// Turn of an arc from its start to its end, degrees.
[[nodiscard]] double Sweep(const ToothArc& arc);
/// Its two ends; (0, 0) for an angle below 0, which has no direction here.
[[nodiscard]] Point StartOf(const ToothArc& arc);
[[nodiscard]] Point EndOf(const ToothArc& arc);

/// The rest of the kit rounds as it goes, at the places of the calculation, and carries them.
///
/// The rounding is deliberate: the outline routines compare coordinates for exact equality, and rounding is
/// what makes two computed ends meet.
class PlaneKit {
 public:
  explicit PlaneKit(int decimalPlaces) : RoundTo(decimalPlaces) {}

  /// The rounding rule at DecimalPlaces; used like a function.
  const Rounding RoundTo;

  [[nodiscard]] double Distance(Point p, Point q) const;

  /// Angle of the ray from `from` to `to`; 0 when the two coincide. A dx that rounds to 0 without being 0
  /// makes the division fail: the angle is then 360 or 180, a rounding trap that belongs to the behaviour.
  [[nodiscard]] double Direction(Point from, Point to) const;
  /// The same from an arc's centre. `radius` is not used.
  [[nodiscard]] double DirectionFromCenter(Point center, double radius, Point point) const;

  /// Brings an angle above 360 or below 0 into 0 to 360. One in 0 to 360, 360 itself included, stays as it
  /// is, unrounded.
  [[nodiscard]] double NormalizeAngle(double angle) const;

  // Turning about the origin, counter-clockwise.
  [[nodiscard]] Point RotatePoint(Point in, double angle) const;
  [[nodiscard]] ToothLine RotateLine(ToothLine in, double angle) const;  // coordinates rounded
  [[nodiscard]] ToothArc RotateArc(ToothArc in, double angle) const;     // centre rounded

  /// The line parallel to `in` at `dist` to its right.
  [[nodiscard]] ToothLine OffsetLine(ToothLine in, double dist) const;

  [[nodiscard]] double RadiusFromArea(double area) const;  // of a circle
  [[nodiscard]] double Circumference(double d) const;      // of a circle, by its diameter

  /// Area of a triangle with its sign: negative where a to c runs along +X with b above it. Callers add it
  /// with its sign.
  [[nodiscard]] double TriangleArea(Point a, Point b, Point c) const;
  [[nodiscard]] double QuadArea(Point a, Point b, Point c, Point d) const;
  /// Area between an arc and its chord, by the sagitta of an arc under a half turn. Degrees become radians by
  /// 0.01745 here, on purpose not by pi / 180: the area depends on it in the fifth place.
  [[nodiscard]] double SegmentArea(Point start, Point end, double radius, double sweep) const;

  /// Makes two lines meet that have been lengthened so that their ends passed each other: the meeting point
  /// goes into a.Start and b.End. `angleA`, `angleB`: directions of the lines. False when they do not pass:
  /// the ends stay, but for moves of b.End that were made while trying.
  bool MeetLines(ToothLine& a, double angleA, ToothLine& b, double angleB) const;

 private:
  void RoundPoint(Point& p) const;
};

}  // namespace tarnwick
