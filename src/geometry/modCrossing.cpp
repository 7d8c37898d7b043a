#include "geometry/modCrossing.h"

#include <cmath>

namespace tarnwick {
namespace {

double RoundedGap(const PlaneKit& kit, double p, double q) {
  return kit.RoundTo(Checked(std::abs(p - q))).OrZero();
}

/// Lean of the way between two points from the vertical: 0 to 90.
double Lean(const PlaneKit& kit, Point p, Point q) {
  return kit.RoundTo(AngleFromLegs(RoundedGap(kit, p.X, q.X), RoundedGap(kit, p.Y, q.Y))).OrZero();
}

/// Slope of the way back up from `end` to `start`, measured as 90 plus or minus its lean: above 90 when it
/// leans to the left.
double SlopeFromVertical(const PlaneKit& kit, Point start, Point end) {
  if (end.X > start.X) return kit.RoundTo(90 + Lean(kit, start, end));
  if (end.X < start.X) return kit.RoundTo(90 - Lean(kit, start, end));
  return 90;
}

/// The point `length` back from `end` along a line of slope `lineAngle`. `trim` is applied to each offset.
template <class Trim>
Point BackAlong(Point end, double lineAngle, double lean, Checked length, Trim trim) {
  Point placed = end;
  Let(placed.Y) = end.Y + trim(Adjacent(length, lean));
  if (lineAngle > 90) Let(placed.X) = end.X - trim(Opposite(length, lean));
  if (lineAngle < 90) Let(placed.X) = end.X + trim(Opposite(length, lean));
  return placed;
}

/// The end of the line, moved out below the circle when it lies inside it.
Point EndOutside(const PlaneKit& kit, Point end, const ToothArc& arc, double lineAngle, double lean) {
  if (!(kit.Distance(end, arc.Center()) < arc.Radius)) return end;
  const double twice = 2 * arc.Radius;
  Point moved = end;
  Let(moved.Y) = end.Y - Adjacent(twice, lean);
  if (lineAngle > 90) Let(moved.X) = end.X + Opposite(twice, lean);
  if (lineAngle < 90) Let(moved.X) = end.X - Opposite(twice, lean);
  return moved;
}

/// The two points in which the endless line meets the whole circle, with their angles on it.
struct Candidates {
  Point Near, Far;
  double AngleNear{}, AngleFar{};
};

Candidates CrossCircle(const PlaneKit& kit, Point end, const ToothArc& arc, double lineAngle,
                       double centerAngle, double lean) {
  const Rounding& round = kit.RoundTo;
  const double dist = kit.Distance(end, arc.Center());
  const double gap = round(std::abs(centerAngle - lineAngle));
  const double offset = round(Opposite(dist, gap)).OrZero();  // of the centre from the line
  const double along = round(Adjacent(dist, gap)).OrZero();
  const double half = round(Leg(arc.Radius, offset)).OrZero();  // half the chord
  const double tilt = round(AngleFromLegs(offset, half)).OrZero();

  const auto rounded = [&round](Checked component) { return round(component); };
  const double farLength = along + half;
  Candidates found;
  if (centerAngle == lineAngle) {
    found.Near = end;
    found.Far = end;
    Let(found.Far.Y) = end.Y + round(Checked(farLength));
    found.AngleNear = lineAngle;
    found.AngleFar = round(lineAngle + 180);
  } else {
    const double turn = centerAngle > lineAngle ? tilt : -tilt;
    found.Near = BackAlong(end, lineAngle, lean, RoundedGap(kit, half, along), rounded);
    found.Far = BackAlong(end, lineAngle, lean, farLength, rounded);
    found.AngleNear = round(lineAngle - turn);
    found.AngleFar = round(lineAngle + 180 + turn);
  }
  found.AngleNear = kit.NormalizeAngle(found.AngleNear);
  found.AngleFar = kit.NormalizeAngle(found.AngleFar);
  return found;
}

/// Chooses the candidate that lies on the arc's sweep. The order of the tests decides at the seams; it is
/// meant as it stands.
bool ChooseOnSweep(const Candidates& found, double start, double end, Point& out) {
  const auto take = [&out](Point p) {
    out = p;
    return true;
  };
  if (start > found.AngleFar) {
    if (end < found.AngleNear) return false;
    if (end > found.AngleFar) return end < start && take(found.Near);
    return take(found.Far);
  }
  if (start < found.AngleNear) {
    if (end < found.AngleNear) return end < start && take(found.Near);
    return take(end > found.AngleFar ? found.Near : found.Far);
  }
  if (end > found.AngleFar || end < start) return take(found.Near);
  return !(end < found.AngleFar);  // just at the far crossing: met, and `out` keeps what it held
}

}  // namespace

bool LineMeetsArc(const PlaneKit& kit, const ToothLine& line, const ToothArc& arc, Point& out) {
  const Rounding& round = kit.RoundTo;
  const double lineAngle = SlopeFromVertical(kit, line.Start, line.End);
  const double lean = RoundedGap(kit, lineAngle, 90);
  const Point end = EndOutside(kit, line.End, arc, lineAngle, lean);

  const double dist = kit.Distance(end, arc.Center());
  const double spread = round(AngleFromLegs(arc.Radius, Leg(dist, arc.Radius))).OrZero();
  const double centerAngle = SlopeFromVertical(kit, arc.Center(), end);
  if (lineAngle <= round(centerAngle - spread) || lineAngle >= round(centerAngle + spread)) return false;

  const Candidates found = CrossCircle(kit, end, arc, lineAngle, centerAngle, lean);
  return ChooseOnSweep(found, arc.StartAngle, arc.EndAngle, out);
}

namespace {

/// Slope of a segment whichever way it runs, 0 to 180. A level one counts as 0, an upright one as 90.
double SegmentSlope(const PlaneKit& kit, const ToothLine& segment) {
  const Point from = segment.Start, to = segment.End;
  if (from.X == to.X) return 90;
  if (from.Y == to.Y) return 0;
  const double a =
      kit.RoundTo(AngleFromLegs(RoundedGap(kit, from.Y, to.Y), RoundedGap(kit, from.X, to.X))).OrZero();
  const bool rising = (from.X > to.X) == (from.Y > to.Y);
  return rising ? a : kit.RoundTo(180 - a);
}

}  // namespace

bool LineMeetsSegment(const PlaneKit& kit, const ToothLine& line, const ToothLine& segment, Point& out) {
  const Rounding& round = kit.RoundTo;
  const double segAngle = SegmentSlope(kit, segment);
  const double lineAngle = SlopeFromVertical(kit, line.Start, line.End);

  const double sightOfStart = SlopeFromVertical(kit, segment.Start, line.End);
  const double sightOfEnd = SlopeFromVertical(kit, segment.End, line.End);
  const bool startIsHigh = sightOfStart > sightOfEnd;  // of two equal ones the End counts as high
  const double high = startIsHigh ? sightOfStart : sightOfEnd;
  const double low = startIsHigh ? sightOfEnd : sightOfStart;
  const double distHigh = kit.Distance(line.End, startIsHigh ? segment.Start : segment.End);
  if (lineAngle >= high || lineAngle <= low) return false;

  const double n = round(high - lineAngle);
  const double foot = round(Opposite(distHigh, n)).OrZero();
  double along = round(Adjacent(distHigh, n)).OrZero();
  const double m = round(lineAngle - segAngle);
  if (m > 90) Let(along) = round(along - TanSide(foot, round(m - 90)));
  if (m < 90) Let(along) = round(along + TanSide(foot, round(90 - m)));

  const auto asItIs = [](Checked component) { return component; };
  out = BackAlong(line.End, lineAngle, RoundedGap(kit, lineAngle, 90), along, asItIs);
  return true;
}

}  // namespace tarnwick
