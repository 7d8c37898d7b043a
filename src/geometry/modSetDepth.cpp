#include "geometry/modSetDepth.h"

#include <initializer_list>

#include "geometry/modArcChain.h"
#include "geometry/modFrost.h"
#include "geometry/modToothDepth.h"
#include "geometry/modToothFamily.h"

namespace tarnwick {
namespace {

void MoveLine(ToothLine& line, double dx, double dy) {
  Shift(line.Start, dx, dy);
  Shift(line.End, dx, dy);
}

double MissingDepth(const ToothWork& work, const ToothArc& arc, double depth) {
  return Checked(depth - DepthOfArc(work, arc)).OrZero();
}

/// Gullet and back down along the hook line; `depth` below 0 moves them up.
void MoveGulletAndBack(ToothWork& work, double depth, std::initializer_list<ToothArc*> arcs) {
  const double run = TanSide(depth, work.Hook()).OrZero();
  LowerGullet(work, depth, run, arcs);
  MoveLine(work.Tooth.BackLine, -run, -depth);
}

/// With a seat, a gullet shallower than its arc: the circle slides up through the seat's end.
double SlideArcUp(ToothWork& work, double rise) {
  ToothArc& arc = work.Tooth.GulletArc;
  const Point seat = work.Tooth.SeatLine.End;
  const double slide = RaiseArcThrough(arc, seat, rise).Slide;
  work.Tooth.DropLine = {seat, seat};
  arc.StartAngle = work.Kit.Direction(arc.Center(), seat);
  return slide;
}

/// With a seat, still below the arc's own depth: the face under the seat gets shorter.
double ShortenDrop(ToothWork& work, double rise) {
  ToothArc& arc = work.Tooth.GulletArc;
  const double run = TanSide(rise, work.Hook()).OrZero();
  Let(arc.CenterX) = arc.CenterX + run;
  Let(arc.CenterY) = arc.CenterY + rise;
  work.Tooth.DropLine.Start = work.Tooth.SeatLine.End;
  PolarPoint(arc.Center(), work.Tooth.DropLine.End, arc.Radius, arc.StartAngle);
  return run;
}

}  // namespace

void SetSecondArcDepth(ToothWork& work, double depth) {
  ToothProfile& tooth = work.Tooth;
  MoveGulletAndBack(work, MissingDepth(work, tooth.SecondArc, depth), {&tooth.FirstArc, &tooth.SecondArc});
}

void SetThirdArcDepth(ToothWork& work, double depth) {
  ToothProfile& tooth = work.Tooth;
  MoveGulletAndBack(work, MissingDepth(work, tooth.ThirdArc, depth),
                    {&tooth.FirstArc, &tooth.SecondArc, &tooth.ThirdArc});
}

void SetFlatBottomDepth(ToothWork& work, double depth) {
  ToothProfile& tooth = work.Tooth;
  const double missing = MissingDepth(work, tooth.SecondArc, depth);
  const double run = TanSide(missing, work.Hook()).OrZero();
  MoveGulletAndBack(work, missing, {&tooth.FirstArc, &tooth.SecondArc});
  MoveLine(tooth.BottomLine, -run, -missing);
}

void SetSingleArcDepth(ToothWork& work, double depth) {
  ToothProfile& tooth = work.Tooth;
  const double missing = MissingDepth(work, tooth.GulletArc, depth);
  if (missing >= 0 || !work.HasSeat()) {
    MoveGulletAndBack(work, missing, {&tooth.GulletArc});
    return;
  }
  const double rise = -missing;
  const double run = depth < tooth.ArcDepth ? SlideArcUp(work, rise) : ShortenDrop(work, rise);
  MoveLine(tooth.BackLine, run, rise);
}

void SetFrostDepth(ToothWork& work, double) { ApplyFrostDepth(work); }

void SetToothDepth(ToothWork& work, double depth) {
  const ToothFamily* family = FamilyOf(work.Saw.ToothStyle);
  if (family != nullptr) {
    family->SetDepth(work, depth);
  } else {
    SetSingleArcDepth(work, depth);
  }
}

}  // namespace tarnwick
