#include "geometry/modGulletArea.h"

#include "geometry/modToothFamily.h"

namespace tarnwick {
namespace {

/// The triangle at the foot of the face: below the seat, or, without one, below the middle of the face.
double FootOfFace(const ToothWork& work) {
  const ToothProfile& tooth = work.Tooth;
  const PlaneKit& kit = work.Kit;
  if (work.HasSeat()) return kit.TriangleArea(tooth.DropLine.Start, tooth.DropLine.End, tooth.BackLine.Start);

  const double half = kit.Distance(tooth.FaceLine.Start, tooth.FaceLine.End) * 0.5;
  Point middle = tooth.FaceLine.End;
  Shift(middle, kit.RoundTo(Opposite(half, work.Hook())), kit.RoundTo(Adjacent(half, work.Hook())));
  return kit.TriangleArea(middle, tooth.FaceLine.End, FigureToBack(tooth).Start);
}

}  // namespace

double Sweep(const ToothArc& arc) {
  if (arc.EndAngle < arc.StartAngle) return 360 - arc.StartAngle + arc.EndAngle;
  return arc.EndAngle - arc.StartAngle;
}

void GulletArea(ToothWork& work) {
  constexpr double leastShareBelowTip = 0.3;
  constexpr double shareBelowTip = 1.1;
  const ToothProfile& tooth = work.Tooth;
  const ToothLine back = FigureToBack(tooth);
  const double big = work.Kit.QuadArea(work.Tip(), tooth.DropLine.End, back.Start, back.End);
  const double upper = work.Kit.QuadArea(work.Tip(), tooth.SeatLine.End, back.Start, back.End);
  const double corner = FootOfFace(work);

  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  Let(gullet.Area) = big + FamilyOf(work.Saw.ToothStyle)->AddedArea(work);
  Let(gullet.AreaBelowTip) = work.Kit.RoundTo(Checked((gullet.Area - upper + corner) * shareBelowTip));
  work.Tooth.Area = gullet.Area;
  if (gullet.Area * leastShareBelowTip > gullet.AreaBelowTip) {
    Let(gullet.AreaBelowTip) = gullet.Area * leastShareBelowTip;
  }
}

}  // namespace tarnwick
