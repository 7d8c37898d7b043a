#include "geometry/modOneTooth.h"

#include "geometry/modSingleArc.h"
#include "geometry/modToothBack.h"
#include "geometry/modToothFace.h"
#include "geometry/modToothFamily.h"
#include "geometry/modToothMoves.h"

namespace tarnwick {
namespace {

void RaiseToMinimumDepth(ToothWork& work, const ToothFamily& family) {
  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  work.Tooth.Style = work.Saw.ToothStyle;
  gullet.MinDepth = family.MinimumDepth(work);
  if (gullet.MinDepth > gullet.Depth) gullet.Depth = gullet.MinDepth;
}

/// False when the back angle had to be lowered: the tooth is then built again with the new one.
bool BackAngleHolds(ToothWork& work, const ToothBack& back) {
  const double limit = BackAngleLimit(work, back.LastArc(work.Tooth));
  if (!(limit < work.Saw.GulletInfo.BackAngle)) return true;
  work.Saw.GulletInfo.BackAngle = limit;
  return false;
}

/// False when a negative radius had to be set to 0.
bool RoundBackCorner(ToothWork& work) {
  double& radius = work.Saw.GulletInfo.BackRadius;
  if (radius > 0) {
    work.Tooth.BackArc.Radius = radius;
    FitBackRadius(work.Tooth, work.Kit);
    radius = work.Tooth.BackArc.Radius;  // the fit may have made it smaller
  }
  if (!(radius < 0)) return true;
  radius = 0;
  return false;
}

/// One round. True when nothing asks for another.
bool PlaceTooth(ToothWork& work, const ToothFamily& family) {
  family.PlaceGullet(work);
  RaiseToMinimumDepth(work, family);
  family.ApplyDepth(work);
  if (family.Back == nullptr) {
    family.CloseWithoutBack(work);
    return true;
  }
  const bool angleHolds = BackAngleHolds(work, *family.Back);
  family.Back->Place(work);
  PlaceTopLine(work);
  return angleHolds && (!family.Back->TakesRadius || RoundBackCorner(work));
}

void NoteCompleteTooth(ToothWork& work) {
  const ToothProfile& tooth = work.Tooth;
  const double face = work.Kit.Distance(tooth.FaceLine.Start, tooth.FaceLine.End);
  const double drop = work.Kit.Distance(tooth.DropLine.Start, tooth.DropLine.End);
  Let(work.Saw.GulletInfo.FaceLength) = work.Kit.RoundTo(Checked(face + drop));
  work.Saw.ContainsInfo.Teeth = True;
}

}  // namespace

void ClampRadii(BandSaw& saw, const PlaneKit& kit) {
  BandSaw::Gullet& gullet = saw.GulletInfo;
  if (saw.Pitch * 0.5 < gullet.Radius) gullet.Radius = kit.RoundTo(saw.Pitch * 0.5);
  if (saw.Pitch * 0.75 < gullet.Radius2) gullet.Radius2 = kit.RoundTo(saw.Pitch * 0.75);
  if (saw.Pitch * 0.9 < gullet.Width) gullet.Width = saw.Pitch * 0.9;  // the width is not rounded
}

void CalculateTooth(ToothWork& work) {
  constexpr int mostRounds = 1001;
  ClampRadii(work.Saw, work.Kit);
  work.Tooth.BothEdges = work.Saw.BothEdges;

  const ToothFamily* family = FamilyOf(work.Saw.ToothStyle);
  bool last = false;
  for (int round = 0; round < mostRounds && !last; ++round) {
    PlaceFace(work);
    if (family == nullptr) {
      PlaceSingleArcAndDepth(work);
      break;
    }
    last = PlaceTooth(work, *family);
    if (last) NoteCompleteTooth(work);
  }

  Let(work.Saw.GulletInfo.Sharpangle) =
      work.Kit.RoundTo(Checked(90 - work.Saw.ClearAngle - work.Saw.HookAngle));
  RoundTooth(work.Kit, work.Tooth);
}

}  // namespace tarnwick
