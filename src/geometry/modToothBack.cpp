#include "geometry/modToothBack.h"

#include <algorithm>

#include "geometry/modGulletArea.h"

namespace tarnwick {
namespace {

/// From `from` further on by twice the way from `back` to it.
void LengthenTwice(Point& from, Point back) { Shift(from, 2 * (from.X - back.X), 2 * (from.Y - back.Y)); }

enum class Fit { Good, LinesMiss, RunsPastBack };

/// One try with the radius that the tooth holds; writes the tooth only when it fits.
Fit TryBackRadius(ToothProfile& tooth, const PlaneKit& kit) {
  const double radius = tooth.BackArc.Radius;
  const double backDir = kit.Direction(tooth.BackLine.Start, tooth.BackLine.End);
  const double topDir = kit.Direction(tooth.TopLine.Start, tooth.TopLine.End);

  // The centre lies where the two lines meet when each is moved a radius into the tooth.
  ToothLine top = kit.OffsetLine(tooth.TopLine, radius);
  ToothLine back = kit.OffsetLine(tooth.BackLine, radius);
  LengthenTwice(top.Start, top.End);
  LengthenTwice(back.End, back.Start);
  if (!kit.MeetLines(top, topDir, back, backDir)) return Fit::LinesMiss;

  const Point center = back.End;
  const double toStart = kit.Direction(center, tooth.BackLine.Start);
  const double startAngle = topDir + 90;  // from the top's tangent to the back's
  const double endAngle = backDir + 90;
  if (radius != 0 && !(endAngle < toStart)) return Fit::RunsPastBack;

  tooth.BackArc = {center.X, center.Y, radius, startAngle, endAngle};
  PolarPoint(center, tooth.BackLine.End, radius, endAngle);
  PolarPoint(center, tooth.TopLine.Start, radius, startAngle);
  return Fit::Good;
}

}  // namespace

Point NextTip(const ToothWork& work) {
  Point next = work.Tip();
  Let(next.X) = next.X + work.Saw.Pitch;
  return next;
}

void TakeClearanceFromTop(ToothWork& work) {
  const ToothLine& top = work.Tooth.TopLine;
  work.Saw.ClearAngle = work.Kit.RoundTo(work.Kit.Direction(top.Start, top.End));
}

double BackAngleLimit(const ToothWork& work, const ToothArc& lastArc) {
  constexpr double clearance = 1.01;
  const PlaneKit& kit = work.Kit;
  const Point next = NextTip(work);
  double sight = kit.RoundTo(kit.Direction(lastArc.Center(), next));
  if (sight > 180) sight -= 360;
  const double far = kit.RoundTo(kit.Distance(lastArc.Center(), next));
  const double tangent = kit.RoundTo(Leg(far, lastArc.Radius)).OrZero();
  const double spread = kit.RoundTo(AngleFromLegs(lastArc.Radius, tangent)).OrZero();
  return kit.RoundTo(Checked((90 - work.Hook()) - (spread * clearance + sight))).OrZero();
}

void PlaceBackLine(ToothWork& work, const ToothArc& arc, double radiusField) {
  constexpr double lengthPerDegree = 0.014;
  const BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  ToothLine& back = work.Tooth.BackLine;
  const double a = Checked(work.Hook() + gullet.BackAngle).OrZero();
  Place(back.Start, arc.CenterX + Adjacent(arc.Radius, a), arc.CenterY - Opposite(arc.Radius, a));
  const double length =
      Checked(radiusField + gullet.Depth + (gullet.BackAngle + work.Hook()) * lengthPerDegree).OrZero();
  Place(back.End, back.Start.X + Opposite(length, a), back.Start.Y + Adjacent(length, a));
}

void PlaceTopLine(ToothWork& work) {
  if (work.Saw.NumTeeth <= 0) return;
  ToothLine& top = work.Tooth.TopLine;
  top.End = NextTip(work);
  PolarPoint(top.End, top.Start, work.Saw.Pitch, 180 + work.Saw.ClearAngle);
  FitBackRadius(work.Tooth, work.Kit);
  GulletArea(work);
}

void FitBackRadius(ToothProfile& tooth, const PlaneKit& kit) {
  // Both steps and the number of rounds show in the radius that comes back.
  constexpr int mostRounds = 201;
  constexpr double stepWhereLinesMiss = 0.1;
  constexpr double stepWherePastBack = 0.025;
  for (int round = 0; round < mostRounds; ++round) {
    const Fit fit = TryBackRadius(tooth, kit);
    if (fit == Fit::Good) return;
    const double step = fit == Fit::LinesMiss ? stepWhereLinesMiss : stepWherePastBack;
    tooth.BackArc.Radius = std::max(tooth.BackArc.Radius - step, 0.0);
  }
}

}  // namespace tarnwick
