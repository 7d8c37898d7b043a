#include "geometry/modOShape.h"

#include "geometry/modArcChain.h"
#include "geometry/modGulletArea.h"
#include "geometry/modToothBack.h"
#include "geometry/modToothDepth.h"

namespace tarnwick {
namespace {

void BoundWidth(BandSaw& saw) {
  const double least = saw.GulletInfo.Radius1 * 1.1;
  const double most = saw.Pitch * 0.8;
  if (least >= saw.GulletInfo.Width) {
    Let(saw.GulletInfo.Width) = least;
  } else if (most < saw.GulletInfo.Width) {
    Let(saw.GulletInfo.Width) = most;
  }
}

void PlaceOBottom(ToothWork& work) {
  BoundWidth(work.Saw);
  const double r1 = work.Saw.GulletInfo.Radius1;
  const ToothArc& arc = work.Tooth.FirstArc;
  ToothLine& floor = work.Tooth.BottomLine;
  work.Tooth.BackLine = {};
  work.Tooth.TopLine.End = NextTip(work);
  Place(floor.Start, arc.CenterX, arc.CenterY - r1);
  Place(floor.End, arc.CenterX - r1 + work.Saw.GulletInfo.Width, floor.Start.Y);
  work.Tooth.TopLine.Start = floor.End;
  GulletArea(work);
}

}  // namespace

void PlaceOShape(ToothWork& work) {
  double& r1 = work.Saw.GulletInfo.Radius1;
  if (work.Saw.Pitch * 0.5 < r1) r1 = work.Saw.Pitch * 0.5;
  const Point drop = work.Tooth.DropLine.End;
  const double h = work.Hook();
  ToothArc& arc = work.Tooth.FirstArc;
  arc.Radius = r1;
  Let(arc.CenterX) = drop.X + Adjacent(r1, h);
  Let(arc.CenterY) = drop.Y - Opposite(r1, h);
  Let(arc.StartAngle) = ReduceOnce(180 - h);
  arc.EndAngle = 270;
}

double FirstArcDepth(const ToothWork& work) { return DepthOfArc(work, work.Tooth.FirstArc); }

void ApplyOShapeDepth(ToothWork& work) {
  const double missing = Checked(work.Saw.GulletInfo.Depth - FirstArcDepth(work)).OrZero();
  if (missing > 0) LowerGullet(work, missing, TanSide(missing, work.Hook()).OrZero(), {&work.Tooth.FirstArc});
}

void CloseOShape(ToothWork& work) {
  PlaceOBottom(work);
  TakeClearanceFromTop(work);
}

double AddOShapeFigures(const ToothWork& work, double area) {
  const ToothProfile& tooth = work.Tooth;
  const Point drop = tooth.DropLine.End;
  area += AreaAt(work, tooth.FirstArc, drop, EndOf(tooth.FirstArc));
  return area + work.Kit.TriangleArea(drop, tooth.BottomLine.Start, tooth.TopLine.Start);
}

}  // namespace tarnwick
