#include "geometry/modToothFamily.h"

#include "geometry/modArcChain.h"
#include "geometry/modFlatBottom.h"
#include "geometry/modFrost.h"
#include "geometry/modNarrow.h"
#include "geometry/modOShape.h"
#include "geometry/modSetDepth.h"
#include "geometry/modSingleArc.h"
#include "geometry/modToothBack.h"

namespace tarnwick {
namespace {

using enum JoinElement;

bool NeedsRadius(const BandSaw::Gullet& g) { return g.Radius > 0; }
bool NeedsFirst(const BandSaw::Gullet& g) { return g.Radius1 > 0; }
bool NeedsTwo(const BandSaw::Gullet& g) { return g.Radius1 > 0 && g.Radius2 > 0; }
bool NeedsThree(const BandSaw::Gullet& g) { return NeedsTwo(g) && g.Radius3 > 0; }

const ToothArc& LastIsGulletArc(const ToothProfile& tooth) { return tooth.GulletArc; }
const ToothArc& LastIsSecondArc(const ToothProfile& tooth) { return tooth.SecondArc; }
const ToothArc& LastIsThirdArc(const ToothProfile& tooth) { return tooth.ThirdArc; }

void FromGulletArc(ToothWork& work) { PlaceBackLine(work, work.Tooth.GulletArc, work.Saw.GulletInfo.Radius); }
void FromSecondArc(ToothWork& work) {
  PlaceBackLine(work, work.Tooth.SecondArc, work.Saw.GulletInfo.Radius2);
}
void FromThirdArc(ToothWork& work) { PlaceBackLine(work, work.Tooth.ThirdArc, work.Saw.GulletInfo.Radius3); }

constexpr ToothBack SharpFromGullet{LastIsGulletArc, FromGulletArc, false};
constexpr ToothBack FromGullet{LastIsGulletArc, FromGulletArc, true};
constexpr ToothBack FromSecond{LastIsSecondArc, FromSecondArc, true};
constexpr ToothBack FromThird{LastIsThirdArc, FromThirdArc, true};
constexpr ToothBack FromFrost{LastFrostArc, PlaceFrostBack, true};
constexpr const ToothBack* NoBack = nullptr;

constexpr JoinElement JoinSquare[] = {GulletArc, BackLine, TopLine};
constexpr JoinElement JoinRound[] = {GulletArc, BackArc, BackLine, TopLine};
constexpr JoinElement JoinDouble[] = {SecondArc, BackArc, BackLine, TopLine};
constexpr JoinElement JoinTriple[] = {SecondArc, ThirdArc, BackArc, BackLine, TopLine};
constexpr JoinElement JoinFlat[] = {BottomLine, SecondArc, BackArc, BackLine, TopLine};
constexpr JoinElement JoinNarrow[] = {GulletArc, TopLine};
constexpr JoinElement JoinOShape[] = {FirstArc, BottomLine, TopLine};
constexpr JoinElement JoinFrost[] = {GulletArc, ThirdArc, SecondArc, FirstArc, BackArc, BackLine, TopLine};

// One row a style, in the order of the members of ToothFamily. clang-format off keeps a row in two lines.
// clang-format off
constexpr ToothFamily SquareBackTooth{
    NeedsRadius, PlaceSingleArcAndDepth, SingleArcMinimumDepth, ApplySingleArcDepth,
    SetSingleArcDepth,  &SharpFromGullet, nullptr,     AddSingleArcFigure,     JoinSquare};
constexpr ToothFamily RoundBackTooth{
    NeedsRadius, PlaceSingleArcAndDepth, SingleArcMinimumDepth, ApplySingleArcDepth,
    SetSingleArcDepth,  &FromGullet,      nullptr,     AddSingleArcFigure,     JoinRound};
constexpr ToothFamily DoubleRadiusTooth{
    NeedsTwo,    PlaceDoubleRadius,      SecondArcDepth,        ApplyDoubleRadiusDepth,
    SetSecondArcDepth,  &FromSecond,      nullptr,     AddDoubleRadiusFigures, JoinDouble};
constexpr ToothFamily TripleRadiusTooth{
    NeedsThree,  PlaceTripleRadius,      ThirdArcDepth,         ApplyTripleRadiusDepth,
    SetThirdArcDepth,   &FromThird,       nullptr,     AddTripleRadiusFigures, JoinTriple};
constexpr ToothFamily FlatBottomTooth{
    NeedsTwo,    PlaceFlatBottom,        SecondArcDepth,        ApplyFlatBottomDepth,
    SetFlatBottomDepth, &FromSecond,      nullptr,     AddFlatBottomFigures,   JoinFlat};
constexpr ToothFamily NarrowTooth{
    NeedsRadius, PlaceSingleArcAndDepth, SingleArcMinimumDepth, ApplySingleArcDepth,
    SetSingleArcDepth,  NoBack,           CloseNarrow, AddNarrowFigures,       JoinNarrow};
constexpr ToothFamily OShapeTooth{
    NeedsFirst,  PlaceOShape,            FirstArcDepth,         ApplyOShapeDepth,
    SetSingleArcDepth,  NoBack,           CloseOShape, AddOShapeFigures,       JoinOShape};
constexpr ToothFamily FrostToothFamily{
    NeedsFirst,  PlaceFrostGullet,       FrostDepth,            ApplyFrostDepth,
    SetFrostDepth,      &FromFrost,       nullptr,     AddSingleArcFigure,     JoinFrost};
// clang-format on

}  // namespace

const ToothFamily* FamilyOf(int toothStyle) {
  switch (toothStyle) {
    case SquareBack:
      return &SquareBackTooth;
    case RoundBack:
      return &RoundBackTooth;
    case DoubleRadius:
      return &DoubleRadiusTooth;
    case TripleRadius:
      return &TripleRadiusTooth;
    case FlatBottom:
      return &FlatBottomTooth;
    case NarrowStyle:
      return &NarrowTooth;
    case OShape:
      return &OShapeTooth;
    case FrostTooth:
      return &FrostToothFamily;
    default:
      return nullptr;
  }
}

}  // namespace tarnwick
