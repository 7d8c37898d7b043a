#include "geometry/modGulletArea.h"

#include "geometry/modSingleArc.h"
#include "geometry/modToothFamily.h"

namespace tarnwick {
namespace {

/// The side that closes the figure toward the back; teeth without a back close with the top.
const ToothLine& SideToBack(const ToothWork& work) {
  const ToothFamily* family = FamilyOf(work.Saw.ToothStyle);
  return family != nullptr && family->Back == nullptr ? work.Tooth.TopLine : work.Tooth.BackLine;
}

/// The triangle at the foot of the face: below the seat, or, without one, below the middle of the face.
double FootOfFace(const ToothWork& work) {
  const ToothProfile& tooth = work.Tooth;
  const PlaneKit& kit = work.Kit;
  if (work.HasSeat()) return kit.TriangleArea(tooth.DropLine.Start, tooth.DropLine.End, tooth.BackLine.Start);

  const double half = kit.Distance(tooth.FaceLine.Start, tooth.FaceLine.End) * 0.5;
  Point middle = tooth.FaceLine.End;
  Shift(middle, kit.RoundTo(Opposite(half, work.Hook())), kit.RoundTo(Adjacent(half, work.Hook())));
  return kit.TriangleArea(middle, tooth.FaceLine.End, SideToBack(work).Start);
}

}  // namespace

double AreaAt(const ToothWork& work, const ToothArc& arc, Point start, Point end) {
  return work.Kit.SegmentArea(start, end, arc.Radius, Sweep(arc));
}

double OutlineArea(const ToothWork& work) {
  const ToothLine side = SideToBack(work);
  const double big = work.Kit.QuadArea(work.Tip(), work.Tooth.DropLine.End, side.Start, side.End);
  const ToothFamily* family = FamilyOf(work.Saw.ToothStyle);
  return Checked(family != nullptr ? family->AddFigures(work, big) : AddSingleArcFigure(work, big)).OrZero();
}

void GulletArea(ToothWork& work) {
  constexpr double leastShareBelowTip = 0.3;
  constexpr double shareBelowTip = 1.1;
  const ToothLine side = SideToBack(work);
  const double upper = work.Kit.QuadArea(work.Tip(), work.Tooth.SeatLine.End, side.Start, side.End);
  const double corner = FootOfFace(work);

  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  gullet.Area = OutlineArea(work);
  Let(gullet.AreaBelowTip) = work.Kit.RoundTo(Checked((gullet.Area - upper + corner) * shareBelowTip));
  work.Tooth.Area = gullet.Area;
  if (gullet.Area * leastShareBelowTip > gullet.AreaBelowTip) {
    gullet.AreaBelowTip = gullet.Area * leastShareBelowTip;
  }
}

}  // namespace tarnwick
