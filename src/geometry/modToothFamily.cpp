#include "geometry/modToothFamily.h"

#include "geometry/modSingleArc.h"
#include "geometry/modToothBack.h"

namespace tarnwick {
namespace {

using enum JoinElement;

bool NeedsRadius(const BandSaw::Gullet& gullet) { return gullet.Radius > 0; }

const ToothArc& LastIsGulletArc(const ToothProfile& tooth) { return tooth.GulletArc; }

void BackFromGulletArc(ToothWork& work) {
  PlaceBackLine(work, work.Tooth.GulletArc, work.Saw.GulletInfo.Radius);
}

constexpr JoinElement SquareBackJoin[] = {GulletArc, BackLine, TopLine};
constexpr JoinElement RoundBackJoin[] = {GulletArc, BackArc, BackLine, TopLine};

const ToothFamily SquareBackFamily{
    .IsComplete = NeedsRadius,
    .PlaceGullet = PlaceSingleArcAndDepth,
    .MinimumDepth = SingleArcMinimumDepth,
    .ApplyDepth = ApplySingleArcDepth,
    .LastArc = LastIsGulletArc,
    .PlaceBack = BackFromGulletArc,
    .RoundsBack = false,
    .AddedArea = SingleArcArea,
    .JoinOrder = SquareBackJoin,
};

const ToothFamily RoundBackFamily{
    .IsComplete = NeedsRadius,
    .PlaceGullet = PlaceSingleArcAndDepth,
    .MinimumDepth = SingleArcMinimumDepth,
    .ApplyDepth = ApplySingleArcDepth,
    .LastArc = LastIsGulletArc,
    .PlaceBack = BackFromGulletArc,
    .RoundsBack = true,
    .AddedArea = SingleArcArea,
    .JoinOrder = RoundBackJoin,
};

}  // namespace

const ToothFamily* FamilyOf(int toothStyle) {
  switch (toothStyle) {
    case SquareBack:
      return &SquareBackFamily;
    case RoundBack:
      return &RoundBackFamily;
    default:
      return nullptr;
  }
}

const ToothLine& FigureToBack(const ToothProfile& tooth) { return tooth.BackLine; }

}  // namespace tarnwick
