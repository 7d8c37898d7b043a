#include "geometry/modTrig.h"

#include <cmath>

#include "model/modCircular.h"

namespace tarnwick {
namespace {

double Degrees(double radians) { return (radians * 180) / Pi; }

/// Runs a helper's formula: a failed argument is handed on, the formula's own failure gives 0.
template <class Formula, class... Arguments>
Checked Helper(Formula formula, Arguments... arguments) {
  Checked failed = 0;
  ((failed = failed.Ok() ? arguments : failed), ...);
  if (!failed.Ok()) return failed;
  return Checked(formula(arguments.OrZero()...)).OrZero();
}

}  // namespace

Checked Opposite(Checked hyp, Checked angle) {
  return Helper([](double h, double a) { return h * Sine(Radians(a)); }, hyp, angle);
}

Checked Adjacent(Checked hyp, Checked angle) {
  return Helper([](double h, double a) { return h * Cosine(Radians(a)); }, hyp, angle);
}

Checked TanSide(Checked adj, Checked angle) {
  return Helper([](double side, double a) { return side * Tangent(Radians(a)); }, adj, angle);
}

Checked Hypotenuse(Checked a, Checked b) {
  return Helper([](double p, double q) { return Root(p * p + q * q); }, a, b);
}

Checked Leg(Checked hyp, Checked a) {
  return Helper([](double h, double p) { return Root(h * h - p * p); }, hyp, a);
}

Checked AngleFromLegs(Checked opp, Checked adj) {
  return Helper(
      [](double o, double a) {
        const Checked tangent = Quotient(o, a);
        return tangent.Ok() ? Checked(Degrees(Arctangent(tangent.OrZero()))) : tangent;
      },
      opp, adj);
}

Checked AngleFromSides(Checked a, Checked b, Checked c) {
  return Helper(
      [](double p, double q, double r) -> Checked {
        // Statements of their own: a side of 0 leaves k at 0, and so gives a right angle.
        const double k = Quotient(q * q + r * r - p * p, 2 * q * r).OrZero();
        const Checked tangent = Quotient(-k, Root(1 - k * k));
        if (!tangent.Ok()) return tangent;
        return Degrees(Arctangent(tangent.OrZero()) + 2 * Arctangent(1.0));
      },
      a, b, c);
}

void Place(Point& target, Checked x, Checked y) {
  Let(target.X) = x;
  Let(target.Y) = y;
}

void Shift(Point& target, Checked dx, Checked dy) { Place(target, target.X + dx, target.Y + dy); }

double ReduceOnce(double angle) {
  if (angle > 360) return angle - 360;
  return angle < 0 ? angle + 360 : angle;
}

void PolarPoint(Point from, Point& out, Checked dist, Checked angle) {
  if (!dist.Ok() || !angle.Ok()) return;
  const double a = angle.OrZero();
  if (a == 360) {
    Place(out, from.X + dist, from.Y);
  } else if (a > 270) {
    const double b = 360 - a;
    Place(out, from.X + Adjacent(dist, b), from.Y - Opposite(dist, b));
  } else if (a == 270) {
    Place(out, from.X, from.Y - dist);
  } else if (a > 180) {
    const double b = a - 180;
    Place(out, from.X - Adjacent(dist, b), from.Y - Opposite(dist, b));
  } else if (a == 180) {
    Place(out, from.X - dist, from.Y);
  } else if (a > 90) {
    const double b = 180 - a;
    Place(out, from.X - Adjacent(dist, b), from.Y + Opposite(dist, b));
  } else if (a == 90) {
    Place(out, from.X, from.Y + dist);
  } else if (a > 0) {
    Place(out, from.X + Adjacent(dist, a), from.Y + Opposite(dist, a));
  } else if (a == 0) {
    Place(out, from.X + dist, from.Y);
  }
}

void ReduceAngles(ToothArc& arc) {
  arc.StartAngle = ReduceOnce(arc.StartAngle);
  arc.EndAngle = ReduceOnce(arc.EndAngle);
}

double Sweep(const ToothArc& arc) {
  if (arc.EndAngle < arc.StartAngle) return 360 - arc.StartAngle + arc.EndAngle;
  return arc.EndAngle - arc.StartAngle;
}

Point StartOf(const ToothArc& arc) {
  Point start;
  PolarPoint(arc.Center(), start, arc.Radius, arc.StartAngle);
  return start;
}

Point EndOf(const ToothArc& arc) {
  Point end;
  PolarPoint(arc.Center(), end, arc.Radius, arc.EndAngle);
  return end;
}

double PlaneKit::Distance(Point p, Point q) const {
  return RoundTo(Hypotenuse(std::abs(p.X - q.X), std::abs(p.Y - q.Y)).OrZero());
}

double PlaneKit::Direction(Point from, Point to) const {
  const double dx = to.X - from.X;
  const double dy = to.Y - from.Y;
  if (dx == 0 && dy > 0) return 90;
  if (dx == 0 && dy < 0) return 270;
  if (dy == 0 && dx > 0) return 0;
  if (dy == 0 && dx < 0) return 180;

  const double a =
      RoundTo(AngleFromLegs(RoundTo(Checked(std::abs(dy))), RoundTo(Checked(std::abs(dx))))).OrZero();
  if (dx > 0 && dy > 0) return RoundTo(a);
  if (dx > 0 && dy < 0) return RoundTo(360 - a);
  if (dx < 0 && dy > 0) return RoundTo(180 - a);
  if (dx < 0 && dy < 0) return RoundTo(180 + a);
  return 0;  // the two points coincide
}

double PlaneKit::DirectionFromCenter(Point center, [[maybe_unused]] double radius, Point point) const {
  return Direction(center, point);
}

double PlaneKit::NormalizeAngle(double angle) const {
  if (angle > 360) {
    const double turns = std::nearbyint((angle - 180) / 360);  // ties to the even one
    angle = RoundTo(angle - 360 * turns);
    if (angle == 360) angle = 0;
  }
  if (angle < 0) {
    angle = std::fmod(angle, 360.0);  // as many turns as needed, at once; exact
    if (angle < 0) angle += 360;
  }
  return angle + 0.0;  // never -0
}

void PlaneKit::RoundPoint(Point& p) const { p = {RoundTo(p.X), RoundTo(p.Y)}; }

Point PlaneKit::RotatePoint(Point in, double angle) const {
  constexpr Point origin;
  Point out;
  PolarPoint(origin, out, Distance(origin, in), NormalizeAngle(Direction(origin, in) + angle));
  return out;
}

ToothLine PlaneKit::RotateLine(ToothLine in, double angle) const {
  ToothLine out{RotatePoint(in.Start, angle), RotatePoint(in.End, angle)};
  RoundPoint(out.Start);
  RoundPoint(out.End);
  return out;
}

ToothArc PlaneKit::RotateArc(ToothArc in, double angle) const {
  Point center = RotatePoint(in.Center(), angle);
  RoundPoint(center);
  return {center.X, center.Y, in.Radius, NormalizeAngle(in.StartAngle + angle),
          NormalizeAngle(in.EndAngle + angle)};
}

ToothLine PlaneKit::OffsetLine(ToothLine in, double dist) const {
  const double direction = Direction(in.Start, in.End);
  ToothLine level = RotateLine(in, 360 - direction);  // now along +X
  Shift(level.Start, 0, -dist);
  Shift(level.End, 0, -dist);
  return RotateLine(level, direction);
}

double PlaneKit::RadiusFromArea(double area) const {
  constexpr int finePlaces = 15;
  return RoundTo(Root(tarnwick::RoundTo(Quotient(area, Pi).OrZero(), finePlaces)).OrZero());
}

double PlaneKit::Circumference(double d) const { return RoundTo(Checked(d * Pi)).OrZero(); }

double PlaneKit::TriangleArea(Point a, Point b, Point c) const {
  // Set the base a to c on the X axis and take the height from b.
  const double turn = ReduceOnce(360 - Direction(a, c));
  for (Point* p : {&a, &b, &c}) {
    *p = RotatePoint(*p, turn);
    RoundPoint(*p);
  }
  return RoundTo(Checked(((b.Y - c.Y) * (a.X - c.X)) * 0.5)).OrZero();
}

double PlaneKit::QuadArea(Point a, Point b, Point c, Point d) const {
  return Checked(TriangleArea(a, b, c) + TriangleArea(a, c, d)).OrZero();
}

double PlaneKit::SegmentArea(Point start, Point end, double radius, double sweep) const {
  constexpr double radiansPerDegree = 0.01745;
  const double r = RoundTo(Checked(radius)).OrZero();
  const double turn = RoundTo(Checked(sweep)).OrZero();
  const double chord = Distance(end, start);
  const double arc = RoundTo(Checked(r * turn * radiansPerDegree)).OrZero();
  // A chord longer than the diameter has no root: it counts as 0, and the rise is then the radius.
  const double rise = RoundTo(r - 0.5 * Root(4 * r * r - chord * chord).OrZero());
  return RoundTo(Checked(((r * arc) - ((r - rise) * chord)) * 0.5)).OrZero();
}

namespace {

/// From the end of one line to the end of another, as the last test found it.
struct EndGap {
  double Dx{}, Dy{};
};

/// Pushes the end of `b` on until it has passed line `a`, in Y first, then in X. False when the lines run
/// apart.
bool PushPast(const ToothLine& a, ToothLine& b, EndGap& gap) {
  constexpr int mostRounds = 11;
  constexpr double overshoot = 1.01;
  const double slopeA = Quotient(a.Start.Y - a.End.Y, a.End.X - a.Start.X).OrZero();
  const double slopeB = Quotient(b.End.Y - b.Start.Y, b.End.X - b.Start.X).OrZero();
  const double leanB = Quotient(b.End.X - b.Start.X, b.End.Y - b.Start.Y).OrZero();
  for (int round = 0; round < mostRounds; ++round) {
    Let(gap.Dy) = b.End.Y - a.End.Y;
    Let(gap.Dx) = a.End.X - b.End.X;
    const double past = Checked(gap.Dy - gap.Dx * slopeA).OrZero();
    if (past <= 0 && gap.Dx <= 0) return false;
    if (past < 0) {
      const double step = std::abs(past) * overshoot;
      Shift(b.End, step * leanB, step);
    } else if (gap.Dx < 0) {
      const double step = -std::abs(gap.Dx) * overshoot;
      Shift(b.End, step, step * slopeB);
    } else {
      break;
    }
  }
  return true;
}

}  // namespace

bool PlaneKit::MeetLines(ToothLine& a, double angleA, ToothLine& b, double angleB) const {
  EndGap gap;
  if (!PushPast(a, b, gap)) return false;
  if (angleA == 180) {
    const double lean = std::abs(angleB - 270);
    const Checked back = TanSide(b.End.Y - a.End.Y, lean) + std::abs(a.End.X - b.End.X);
    Place(a.Start, a.End.X - back, a.End.Y);
  } else {
    // Law of sines in the triangle of the two ends and the meeting point.
    const double base = Hypotenuse(gap.Dy, gap.Dx).OrZero();
    const double atA = Checked(AngleFromLegs(gap.Dy, gap.Dx) - (180 - angleA)).OrZero();
    const double atMeeting = std::abs(angleB - angleA);
    const double atB = 180 - (atA + atMeeting);
    const double along = Quotient(Opposite(base, atB), Sine(Radians(atMeeting))).OrZero();
    const double lean = 180 - angleA;
    Place(a.Start, a.End.X - Adjacent(along, lean), a.End.Y + Opposite(along, lean));
  }
  b.End = a.Start;
  return true;
}

}  // namespace tarnwick
