#include "geometry/modSingleArc.h"

#include <cmath>

#include "geometry/modGulletArea.h"
#include "geometry/modToothDepth.h"

namespace tarnwick {
namespace {

/// Raises the arc. The face then runs into the circle at the seat's end instead of touching it.
void RaiseArc(ToothWork& work, double rise) {
  ToothArc& arc = work.Tooth.GulletArc;
  const Point seat = work.Tooth.SeatLine.End;
  RaiseArcThrough(arc, seat, rise);
  arc.StartAngle = work.Kit.DirectionFromCenter(arc.Center(), arc.Radius, seat);
}

}  // namespace

void PlaceSingleArc(ToothWork& work) {
  const BandSaw& saw = work.Saw;
  const Point drop = work.Tooth.DropLine.End;
  const double h = work.Hook();
  const bool frost = saw.ToothStyle == FrostTooth;

  ToothArc& arc = work.Tooth.GulletArc;
  arc.Radius = frost ? saw.GulletInfo.Radius1 : saw.GulletInfo.Radius;
  Let(arc.CenterX) = drop.X + Adjacent(arc.Radius, h);
  Let(arc.CenterY) = drop.Y - Opposite(arc.Radius, h);
  Let(arc.StartAngle) = ReduceOnce(180 - h);
  Let(arc.EndAngle) = ReduceOnce(360 - h - saw.GulletInfo.BackAngle);
  if (frost) work.Tooth.FirstArc = arc;
}

void PlaceSingleArcAndDepth(ToothWork& work) {
  PlaceSingleArc(work);
  Let(work.Tooth.ArcDepth) = SingleArcDepth(work);
}

double SingleArcDepth(const ToothWork& work) {
  return Checked(work.TipHeight() - work.Tooth.GulletArc.CenterY + work.Saw.GulletInfo.Radius).OrZero();
}

double SingleArcMinimumDepth(const ToothWork& work) {
  constexpr double shareOfRadius = 0.95;
  constexpr double degreesOfHook = 5;
  double depth = SingleArcDepth(work);
  if (work.HasSeat()) {
    const double seat = work.Tooth.GulletArc.Radius * shareOfRadius;
    const Checked reduction =
        work.Hook() >= 0 ? Checked(seat) : Quotient(seat, Magnitude(Quotient(work.Hook(), degreesOfHook)));
    Let(depth) = depth - reduction;
  }
  return depth;
}

void ApplySingleArcDepth(ToothWork& work) {
  const double missing = Checked(work.Saw.GulletInfo.Depth - SingleArcDepth(work)).OrZero();
  const double run = work.Kit.RoundTo(TanSide(missing, work.Hook())).OrZero();
  if (missing > 0) LowerGullet(work, missing, run, {&work.Tooth.GulletArc});
  if (missing < 0) RaiseArc(work, std::abs(missing));
}

double AddSingleArcFigure(const ToothWork& work, double area) {
  const ToothProfile& tooth = work.Tooth;
  return area + AreaAt(work, tooth.GulletArc, tooth.DropLine.End, tooth.BackLine.Start);
}

}  // namespace tarnwick
