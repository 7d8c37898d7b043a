#include "geometry/modNarrow.h"

#include "geometry/modGulletArea.h"
#include "geometry/modToothBack.h"

namespace tarnwick {
namespace {

void PlaceNarrow(ToothWork& work) {
  const PlaneKit& kit = work.Kit;
  ToothArc& arc = work.Tooth.GulletArc;
  ToothLine& top = work.Tooth.TopLine;
  work.Tooth.BackLine = {};
  top.End = NextTip(work);

  const double sight = kit.RoundTo(kit.Direction(top.End, arc.Center()));
  const double far = kit.RoundTo(kit.Distance(arc.Center(), top.End));
  const double tangent = kit.RoundTo(Leg(far, arc.Radius)).OrZero();
  const double spread = kit.RoundTo(AngleFromLegs(arc.Radius, tangent)).OrZero();
  arc.EndAngle = ReduceOnce(sight + spread + 90);

  PolarPoint(arc.Center(), top.Start, arc.Radius, arc.EndAngle);
  Place(top.Start, kit.RoundTo(Checked(top.Start.X)), kit.RoundTo(Checked(top.Start.Y)));
  GulletArea(work);
}

}  // namespace

void CloseNarrow(ToothWork& work) {
  PlaceNarrow(work);
  TakeClearanceFromTop(work);
}

double AddNarrowFigures(const ToothWork& work, double area) {
  const ToothProfile& tooth = work.Tooth;
  return area + AreaAt(work, tooth.GulletArc, tooth.DropLine.End, tooth.TopLine.Start);
}

}  // namespace tarnwick
