#include "geometry/modFlatBottom.h"

#include <algorithm>

#include "geometry/modArcChain.h"
#include "geometry/modGulletArea.h"
#include "geometry/modHandler.h"
#include "geometry/modPitch.h"
#include "geometry/modToothDepth.h"

namespace tarnwick {
namespace {

void BoundMeasures(ToothWork& work) {
  constexpr double smallestFirst = 0.03, smallestSecond = 0.125, steepest = 45, shortestFlat = 0.0625;
  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  if (gullet.Radius2 < smallestSecond) gullet.Radius2 = smallestSecond;
  if (gullet.Radius1 > gullet.Radius2) {
    gullet.Radius1 = gullet.Radius2;
  } else if (gullet.Radius1 < smallestFirst) {
    gullet.Radius1 = smallestFirst;
  }
  work.Tooth.FirstArc.Radius = gullet.Radius1;
  work.Tooth.SecondArc.Radius = gullet.Radius2;

  if (gullet.BottomAngle < 0) gullet.BottomAngle = 0;
  if (gullet.BottomAngle > steepest) gullet.BottomAngle = steepest;

  const double low = Need(gullet.Radius2 + gullet.Radius1 + shortestFlat);
  const double high = std::max(PitchFromLength(work.Kit, work.Saw.Length, work.Saw.NumTeeth) * 0.5, low);
  if (gullet.Width < low) {
    gullet.Width = low;
  } else if (gullet.Width > high) {
    gullet.Width = high;
  }
}

void LayFlatBottom(ToothWork& work) {
  BoundMeasures(work);
  const BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  const Rounding& round = work.Kit.RoundTo;
  const double h = work.Hook(), slope = gullet.BottomAngle;
  const double r1 = gullet.Radius1, r2 = gullet.Radius2;
  const Point drop = work.Tooth.DropLine.End;
  ToothArc& first = work.Tooth.FirstArc;
  ToothArc& second = work.Tooth.SecondArc;
  ToothLine& floor = work.Tooth.BottomLine;

  const double flat = Need(gullet.Width - r1 - r2);
  first.CenterX = Need(drop.X + Adjacent(r1, h));
  first.CenterY = Need(drop.Y - Opposite(r1, h));
  first.StartAngle = Need(180 - h);
  first.EndAngle = Need(270 - slope);

  PolarPoint(first.Center(), floor.Start, r1, first.EndAngle);
  floor.Start = {round(floor.Start.X), round(floor.Start.Y)};
  floor.End.X = Need(round(floor.Start.X + Adjacent(flat, slope)));
  floor.End.Y = Need(round(floor.Start.Y - Opposite(flat, slope)));

  second.CenterX = Need(round(Opposite(r2, slope) + floor.End.X));
  second.CenterY = Need(round(Adjacent(r2, slope) + floor.End.Y));
  second.StartAngle = first.EndAngle;
  second.EndAngle = Need(360 - h - gullet.BackAngle);
  ReduceAngles(first);
  ReduceAngles(second);
}

}  // namespace

void PlaceFlatBottom(ToothWork& work) {
  PlaceOrReport(work.Say, [&work] { LayFlatBottom(work); });
}

void ApplyFlatBottomDepth(ToothWork& work) {
  const double missing = Checked(work.Saw.GulletInfo.Depth - SecondArcDepth(work)).OrZero();
  if (!(missing > 0)) return;
  const double run = TanSide(missing, work.Hook()).OrZero();
  LowerGullet(work, missing, run, {&work.Tooth.FirstArc, &work.Tooth.SecondArc});
  Shift(work.Tooth.BottomLine.Start, -run, -missing);
  Shift(work.Tooth.BottomLine.End, -run, -missing);
}

double AddFlatBottomFigures(const ToothWork& work, double area) {
  const ToothProfile& tooth = work.Tooth;
  const Point drop = tooth.DropLine.End;
  const Point firstEnd = EndOf(tooth.FirstArc);
  area += AreaAt(work, tooth.FirstArc, drop, firstEnd);
  area += AreaAt(work, tooth.SecondArc, firstEnd, EndOf(tooth.SecondArc));
  return area + work.Kit.QuadArea(drop, tooth.BottomLine.Start, tooth.BottomLine.End, tooth.BackLine.Start);
}

}  // namespace tarnwick
