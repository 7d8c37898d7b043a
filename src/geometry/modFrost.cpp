#include "geometry/modFrost.h"

#include <cmath>

#include "geometry/modArcChain.h"
#include "geometry/modCrossing.h"
#include "geometry/modHandler.h"
#include "geometry/modSingleArc.h"
#include "geometry/modToothBack.h"
#include "geometry/modToothDepth.h"

namespace tarnwick {
namespace {

void BoundNotch(BandSaw& saw) {
  constexpr double clearOfArc = 0.01;
  BandSaw::Gullet& gullet = saw.GulletInfo;
  if (gullet.FrostHeight == 0) gullet.FrostHeight = Need(gullet.Radius + gullet.Radius + saw.SeatInfo.Height);
  const double least = Need(gullet.FrostRadius + clearOfArc);
  if (gullet.Width > 0 && gullet.FrostWidth > gullet.Width) {
    gullet.FrostWidth = gullet.Width;
  } else if (least > gullet.FrostWidth) {
    gullet.FrostWidth = least;
  }
}

/// The face above the notch, and the arc that touches it.
void PlaceNotchArc(ToothWork& work) {
  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  const double h = work.Hook(), r = gullet.FrostRadius;
  ToothLine& face = work.Tooth.FrostFaceLine;
  ToothArc& arc = work.Tooth.FrostArc;
  arc.Radius = r;
  face.Start = work.Tooth.DropLine.Start;
  const double l = Need(gullet.FrostHeight - work.Saw.SeatInfo.Height - r);
  face.End.X = Need(face.Start.X - Opposite(l, h));
  face.End.Y = Need(face.Start.Y - Adjacent(l, h));
  if (face.End.Y > face.Start.Y) {
    gullet.FrostHeight = Need(gullet.FrostHeight + work.Kit.Distance(face.Start, face.End));
    face.End = face.Start;
  }
  arc.CenterX = Need(face.End.X + Adjacent(r, h));
  arc.CenterY = Need(face.End.Y - Opposite(r, h));
  arc.StartAngle = Need(180 - h);
  arc.EndAngle = Need(gullet.FrostAngle + 270);
}

/// The floor, long enough to pass the face that resumes behind the notch, and that face through the notch's
/// width.
void PlaceNotchFloor(ToothWork& work) {
  const BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  const double h = work.Hook(), r = gullet.FrostRadius;
  const Point center = work.Tooth.FrostArc.Center();
  ToothLine& floor = work.Tooth.FrostBottomLine;
  ToothLine& drop = work.Tooth.DropLine;
  PolarPoint(center, floor.Start, r, Need(gullet.FrostAngle + 270));
  const double m = Need(r + r + gullet.FrostWidth);
  floor.End.X = Need(floor.Start.X + Adjacent(m, gullet.FrostAngle));
  floor.End.Y = Need(floor.Start.Y + Opposite(m, gullet.FrostAngle));

  Point foot;
  PolarPoint(center, foot, r, Need(270 - h));
  const double across = Need(gullet.FrostWidth - r);
  drop.End.X = Need(foot.X + Adjacent(across, h));
  drop.End.Y = Need(foot.Y - Opposite(across, h));
  drop.Start.X = Need(drop.End.X + Opposite(gullet.FrostHeight, h));
  drop.Start.Y = Need(drop.End.Y + Adjacent(gullet.FrostHeight, h));

  // Where floor and face meet is taken whether or not they did.
  ToothLine floorCopy = floor, faceCopy = drop;
  work.Kit.MeetLines(floorCopy, gullet.FrostAngle, faceCopy, Need(270 - h));
  floor.End = drop.Start = drop.End = faceCopy.End;
}

/// The floor has turned back: the arc then ends where the face behind the notch meets it, and there is no
/// floor.
void LeaveOutFloor(ToothWork& work) {
  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  const Rounding& round = work.Kit.RoundTo;
  const double h = work.Hook(), r = gullet.FrostRadius;
  ToothArc& arc = work.Tooth.FrostArc;
  const double across = Need(gullet.FrostWidth - r);
  ToothLine face;
  face.Start.X = Need(round(arc.CenterX + Adjacent(across, h)));
  face.Start.Y = Need(round(arc.CenterY - Opposite(across, h)));
  face.End.X = Need(round(face.Start.X - Opposite(r, h)));
  face.End.Y = Need(round(face.Start.Y - Adjacent(r, h)));

  Point met;  // stays at (0, 0) when the face misses the arc
  LineMeetsArc(work.Kit, face, arc, met);
  met = {round(met.X), round(met.Y)};
  work.Tooth.DropLine.Start = met;
  arc.EndAngle = round(work.Kit.DirectionFromCenter(arc.Center(), r, met));
  work.Tooth.FrostBottomLine.End = work.Tooth.FrostBottomLine.Start;
  gullet.FrostAngle = Need(round(Checked(arc.EndAngle - 270)));
}

void PlaceFrostNotch(ToothWork& work) {
  PlaceOrReport(work.Say, [&work] {
    BoundNotch(work.Saw);
    PlaceNotchArc(work);
    PlaceNotchFloor(work);
    const ToothLine& floor = work.Tooth.FrostBottomLine;
    if (floor.End.X < floor.Start.X) LeaveOutFloor(work);
    ReduceAngles(work.Tooth.FrostArc);
  });
}

void LowerFrostChain(ToothWork& work, double depth) {
  ToothProfile& tooth = work.Tooth;
  const double run = TanSide(depth, work.Hook()).OrZero();
  LowerArcs(depth, run, {&tooth.FirstArc, &tooth.SecondArc, &tooth.ThirdArc});
  Shift(tooth.DropLine.End, -run, -depth);
  if (!work.HasSeat()) tooth.SeatLine = {tooth.FaceLine.End, tooth.FaceLine.End};
}

}  // namespace

void PlaceFrostGullet(ToothWork& work) {
  PlaceFrostNotch(work);
  const BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  if (gullet.Radius3 > 0) {
    PlaceTripleRadius(work);
  } else if (gullet.Radius2 > 0) {
    PlaceDoubleRadius(work);
  } else {
    PlaceSingleArc(work);
  }
}

double FrostDepth(const ToothWork& work) {
  const ToothProfile& tooth = work.Tooth;
  if (tooth.ThirdArc.Radius > 0) return DepthOfArc(work, tooth.ThirdArc);
  if (tooth.SecondArc.Radius > 0) return DepthOfArc(work, tooth.SecondArc);
  return DepthOfArc(work, tooth.FirstArc);
}

void ApplyFrostDepth(ToothWork& work) {
  const ToothProfile& tooth = work.Tooth;
  const bool chain = tooth.ThirdArc.Radius > 0 || tooth.SecondArc.Radius > 0;
  const double depth = chain ? FrostDepth(work) : SingleArcDepth(work);
  const double missing = Checked(work.Saw.GulletInfo.Depth - depth).OrZero();
  if (missing > 0) LowerFrostChain(work, missing);
  if (missing < 0 && tooth.SecondArc.Radius == 0) RaiseFrostArc(work.Tooth, std::abs(missing));
}

void RaiseFrostArc(ToothProfile& tooth, double rise) {
  tooth.GulletArc = tooth.FirstArc;
  ToothArc& arc = tooth.GulletArc;
  ToothLine& drop = tooth.DropLine;
  const double before = AngleFromLegs(drop.End.Y - arc.CenterY, arc.CenterX - drop.End.X).OrZero();
  const RaisedArc raised = RaiseArcThrough(arc, drop.Start, rise);
  const double after = AngleFromLegs(raised.Height, raised.Reach).OrZero();
  drop.End = drop.Start;
  Let(arc.StartAngle) = arc.StartAngle + (before - after);
  tooth.FirstArc = arc;
}

const ToothArc& LastFrostArc(const ToothProfile& tooth) {
  for (const ToothArc* arc : {&tooth.ThirdArc, &tooth.SecondArc, &tooth.FirstArc}) {
    if (arc->Radius > 0) return *arc;
  }
  return tooth.GulletArc;
}

void PlaceFrostBack(ToothWork& work) {
  const BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  ToothProfile& tooth = work.Tooth;
  if (gullet.Radius3 > 0) {
    PlaceBackLine(work, tooth.ThirdArc, gullet.Radius3);
  } else if (gullet.Radius2 > 0) {
    PlaceBackLine(work, tooth.SecondArc, gullet.Radius2);
  } else {
    tooth.GulletArc = tooth.FirstArc;
    PlaceBackLine(work, tooth.GulletArc, gullet.Radius);
  }
}

}  // namespace tarnwick
