// A plausible tooth is one connected line from its tip to the next, and a band of such teeth a closed figure:
// pieces that follow each other lie no further apart than their roundings. Where the rules of a style break
// the line themselves, the gap is named here, with its size.

#include "support/Outline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "geometry/modOneTooth.h"
#include "geometry/modPitch.h"
#include "geometry/modTooth.h"
#include "geometry/modToothMoves.h"
#include "support/CollectedMessages.h"
#include "support/RandomDesigns.h"
#include "variable/modVariable.h"

namespace tarnwick {
namespace {

using test::Dice;
using test::Gap;
using test::Step;
using test::WidestGap;

// Ten units of the last place: a piece has been rounded up to five times on its way into the drawing, and so
// has its neighbour.
double RoundingAt(int places) { return 10 * std::pow(10.0, -places); }

ToothProfile ToothOf(BandSaw saw, int places = 5) {
  const PlaneKit kit(places);
  saw.Pitch = PitchFromLength(kit, saw.Length, saw.NumTeeth);
  ToothProfile tooth;
  test::CollectedMessages say;
  ToothWork work{saw, tooth, kit, say};
  CalculateTooth(work);
  EXPECT_TRUE(say.Shown.empty());
  return tooth;
}

Gap GapOfBand(BandSaw saw, std::int16_t direction = 1, std::int16_t places = 5) {
  CalculationSettings settings;
  settings.TeethDirection = direction;
  settings.DecimalPlaces = places;
  test::CollectedMessages say;
  const EntityList list = CalculateSaw(saw, settings, say);
  EXPECT_TRUE(say.Shown.empty());
  return WidestGapAround(test::StepsOf(list, RoundingAt(places) / 2));
}

// ---- the property

struct OutlineRow {
  std::int16_t Style;
  std::int16_t Places;
};
class Outline : public testing::TestWithParam<OutlineRow> {
 protected:
  static constexpr int Designs = 250;
  [[nodiscard]] bool IsFrost() const { return GetParam().Style == FrostTooth; }
  [[nodiscard]] double Rounded() const { return RoundingAt(GetParam().Places); }

  /// The bands of a style that are closed figures: a Frost band that is turned around or over loses its
  /// notches, and one with the single arc keeps a copy of it beyond the cut of an overlap.
  void AddOptions(Dice& dice, BandSaw& saw, std::int16_t& direction) const {
    if (!IsFrost() && dice.Chance(0.3)) saw.BothEdges = True;
    if (!IsFrost() && dice.Chance(0.4)) direction = RightToLeft;
    if (dice.Chance(0.3) && !(IsFrost() && saw.GulletInfo.Radius2 == 0)) {
      saw.DesignInfo.JoinStyle = OverlapJoin;
      saw.GeneralInfo.PlateThick = dice.Between(0.03, 0.05);
    }
  }
};

TEST_P(Outline, OfAToothLeadsFromItsTipToTheNext) {
  Dice dice(101);
  for (int i = 0; i < Designs && !HasFailure(); ++i) {
    const BandSaw saw = test::PlausibleDesign(dice, GetParam().Style);
    const std::vector<Step> walk = test::WalkOf(ToothOf(saw, GetParam().Places));
    ASSERT_GE(walk.size(), 3U) << "design " << i;
    const Gap gap = WidestGap(walk);
    EXPECT_LE(gap.Size, Rounded()) << "design " << i << ", " << gap.Where;
    EXPECT_LE(test::Length(walk.front().From, {0, saw.Width - saw.TipClear}), Rounded()) << i;
    const Point next{saw.Length * 12 / saw.NumTeeth, saw.Width - saw.TipClear};
    EXPECT_LE(test::Length(walk.back().To, next), Rounded()) << i;
  }
}

TEST_P(Outline, OfABandIsClosed) {
  Dice dice(202);
  for (int i = 0; i < Designs && !HasFailure(); ++i) {
    BandSaw saw = test::PlausibleDesign(dice, GetParam().Style);
    std::int16_t direction = 1;
    AddOptions(dice, saw, direction);
    const Gap gap = GapOfBand(saw, direction, GetParam().Places);
    EXPECT_LE(gap.Size, Rounded()) << "design " << i << ", " << gap.Where;
  }
}

TEST_P(Outline, OfAVariableBandIsClosed) {
  Dice dice(303);
  for (int i = 0; i < Designs && !HasFailure(); ++i) {
    BandSaw saw = test::PlausibleDesign(dice, GetParam().Style);
    const bool oneFrostArc = IsFrost() && saw.GulletInfo.Radius2 == 0;  // see below
    test::MakeVariable(dice, saw, dice.Whole(3, 7), !oneFrostArc && dice.Chance(0.5) ? True : False);
    std::int16_t direction = 1;
    AddOptions(dice, saw, direction);
    const Gap gap = GapOfBand(saw, direction, GetParam().Places);
    EXPECT_LE(gap.Size, Rounded()) << "design " << i << ", " << gap.Where;
  }
}

std::vector<OutlineRow> EveryStyleCoarseAndFine() {
  std::vector<OutlineRow> rows;
  for (const std::int16_t style : test::AllStyles) {
    rows.push_back({style, 5});
    rows.push_back({style, 9});
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Styles, Outline, testing::ValuesIn(EveryStyleCoarseAndFine()), [](const auto& row) {
  return "Style" + std::to_string(row.param.Style) + "Places" + std::to_string(row.param.Places);
});

// ---- gaps that are meant

BandSaw Design(std::int16_t style) {
  BandSaw saw;
  saw.ToothStyle = style;
  saw.Length = 2;
  saw.NumTeeth = 12;
  saw.Width = 5;
  saw.HookAngle = 20;
  saw.ClearAngle = 12;
  saw.GulletInfo.BackAngle = 15;
  saw.GulletInfo.Depth = 0.75;
  return saw;
}

BandSaw FrostDesign() {
  BandSaw saw = Design(FrostTooth);
  saw.GulletInfo.Radius = saw.GulletInfo.Radius1 = 0.25;
  saw.GulletInfo.FrostRadius = 0.05;
  saw.GulletInfo.FrostHeight = 0.15;
  saw.GulletInfo.FrostWidth = 0.125;
  saw.GulletInfo.FrostAngle = 25;
  return saw;
}

// An end cut through the floor moves the floor's first point on the last tooth too: what lies behind the join
// stays, and what lies before it goes.
TEST(GapOfTheOutline, LiesBeforeACutThroughTheFloorOfTheLastTooth) {
  BandSaw saw = Design(OShape);
  saw.GulletInfo.Radius1 = 0.25;
  saw.GulletInfo.Width = 1.4;
  test::CollectedMessages say;
  const EntityList list = CalculateSaw(saw, {}, say);
  const double half = 1;  // of the pitch, from the tip to the cut
  const ToothProfile tooth = ToothOf(saw);
  ASSERT_LT(tooth.BottomLine.Start.X, half);
  ASSERT_GT(tooth.BottomLine.End.X, half);
  double rightmost = 0;
  for (const Step& step : test::StepsOf(list, 5e-5))
    rightmost = std::max({rightmost, step.From.X, step.To.X});
  EXPECT_NEAR(rightmost - list.Header.MaxX, tooth.BottomLine.End.X - half, 1e-4)
      << "the floor beyond the join is left";
  EXPECT_GE(GapOfBand(saw).Size, half - tooth.BottomLine.Start.X - 1e-4) << "and the one before it is gone";
}

// The cut tries no first arc in this style. Where an overlap brings it there, both join point and tooth stay
// as they were: the point at the height of the tips, the tooth whole.
TEST(GapOfTheOutline, LiesAtAnOverlapCutThroughTheFirstArc) {
  BandSaw saw = Design(FlatBottom);
  saw.NumTeeth = 24;
  saw.GulletInfo.Depth = 0.4;
  saw.GulletInfo.Radius1 = saw.GulletInfo.Radius2 = 0.15;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.GeneralInfo.PlateThick = 0.09;  // the cut comes 0.5125 back from the middle, half an inch from the tip
  test::CollectedMessages say;
  BandSaw whole = saw;
  const EntityList list = CalculateSaw(whole, {}, say);
  const auto& tip = std::get<LineEntity>(list.Entities.front());
  EXPECT_NEAR(tip.Corner1Y, 5, 5e-5) << "the first tooth has kept its tip";
  EXPECT_NEAR(tip.Corner1X, 0.0125, 5e-5);
  EXPECT_NEAR(GapOfBand(saw).Size, 0.0125, 1e-4) << "from the tip to the end of the band beside it";
}

// Turning around, and over, leaves the notches out: each tooth lacks the way from the end of its face to the
// start of the drop line behind the notch.
TEST(GapOfTheOutline, LiesAtEveryNotchOfATurnedFrostBand) {
  const BandSaw saw = FrostDesign();
  const ToothProfile tooth = ToothOf(saw);
  const double notch = test::Length(tooth.SeatLine.End, tooth.DropLine.Start);
  EXPECT_GT(notch, 0.1);
  ToothProfile turned, turnedOver;
  MirrorToothX(PlaneKit(5), tooth, turned);
  MirrorToothY(PlaneKit(5), tooth, turnedOver);
  for (const ToothProfile& mirrored : {turned, turnedOver}) {
    EXPECT_NEAR(test::Length(mirrored.SeatLine.End, mirrored.DropLine.Start), notch, 1e-4);
    for (const Step& step : test::WalkOf(mirrored)) EXPECT_FALSE(step.Name.starts_with("Frost")) << step.Name;
  }
  EXPECT_LE(GapOfBand(saw).Size, 1e-4);
  EXPECT_GT(GapOfBand(saw, RightToLeft).Size, 0.1);
  BandSaw twoEdges = saw;
  twoEdges.BothEdges = True;
  EXPECT_GT(GapOfBand(twoEdges).Size, 0.1);
}

// A segment's picture has no notches either.
TEST(GapOfTheOutline, LiesAtEveryNotchOfAFrostSegment) {
  BandSaw saw = FrostDesign();
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {2, 2, 2};
  const auto notchArcs = [&](const EntityList& list) {
    return std::count_if(list.Entities.begin(), list.Entities.end(), [&](const Entity& entity) {
      const auto* arc = std::get_if<ArcEntity>(&entity);
      return arc != nullptr && arc->Radius == saw.GulletInfo.FrostRadius;
    });
  };
  test::CollectedMessages say;
  BandSaw band = saw, segment = saw;
  EXPECT_EQ(notchArcs(CalculateSaw(band, {}, say)), 12) << "of all teeth but the first, which is cut";
  EXPECT_EQ(notchArcs(CalculateSegment(segment, {}, say)), 0);
}

// The one arc of a Frost tooth stands twice, as base arc and as first arc. The end cut trims the one and
// leaves the other, which reaches out over the end of the band.
TEST(GapOfTheOutline, HasTheUncutCopyOfAFrostArcBesideIt) {
  BandSaw saw = FrostDesign();
  saw.GulletInfo.Depth = 0.6;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.GeneralInfo.PlateThick = 0.15;  // 0.8125: the left cut comes down into the gullet
  test::CollectedMessages say;
  const EntityList list = CalculateSaw(saw, {}, say);
  ASSERT_GE(list.Entities.size(), 2U);
  const auto& copy = std::get<ArcEntity>(list.Entities[0]);
  const auto& cut = std::get<ArcEntity>(list.Entities[1]);
  EXPECT_EQ(copy.CenterX, cut.CenterX);
  EXPECT_EQ(copy.EndAngle, cut.EndAngle);
  EXPECT_LT(copy.StartAngle, cut.StartAngle);
  const ToothArc arc{copy.CenterX, copy.CenterY, copy.Radius, copy.StartAngle, copy.EndAngle};
  EXPECT_LT(StartOf(arc).X, -0.05) << "left of the band's end";
}

// A variable depth shapes a finished Frost tooth again to the depth it has. The rounding makes it a trifle
// too deep: the one arc is then raised by that trifle, and starts in the notch, as if it were shallow, while
// the back stays where it was.
TEST(GapOfTheOutline, OpensInAVariableFrostToothOfOneArc) {
  double widest = 0;
  for (int i = 0; i < 20; ++i) {
    BandSaw saw = FrostDesign();
    saw.GulletInfo.Depth = 0.9 + i * 0.001234567;
    saw.GeneralInfo.VariablePitch = True;
    saw.GeneralInfo.NumVariables = 3;
    saw.GeneralInfo.VarPitch = {2, 2, 2};
    EXPECT_LE(GapOfBand(saw).Size, 1e-4) << "closed with one depth for all";
    saw.GeneralInfo.VariableDepth = True;
    saw.GeneralInfo.VarDepth = {0.9, 0.9, 0.9};
    widest = std::max(widest, GapOfBand(saw).Size);
  }
  EXPECT_GT(widest, 0.1);
  EXPECT_LT(widest, 0.9) << "as deep as the gullet at most";
}

// The back clears a tip that is an average pitch off. Where the next one stands nearer, the back may pass
// below it: the two never meet, and keep their ends.
TEST(GapOfTheOutline, OpensBehindAShortPitchWhoseTipTheBackPasses) {
  BandSaw saw = Design(RoundBack);
  saw.GulletInfo.Radius = 0.3;
  saw.GulletInfo.BackAngle = 60;  // held to what clears the tip
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {2, 2, 2};
  EXPECT_LE(GapOfBand(saw).Size, 1e-4);
  saw.GeneralInfo.VarPitch = {1.5, 2.25, 2.25};
  const PlaneKit kit(5);
  test::CollectedMessages say;
  const BandTeeth teeth = LayOutVariableBand(kit, saw, ToothOf(saw), {}, say);
  const Gap gap = WidestGap(test::WalkOf(teeth.Tooth(1)));
  EXPECT_EQ(gap.Where, "BackLine to TopLine");
  EXPECT_NEAR(gap.Size, 0.5, 1e-4) << "the top has moved with its tip, the back has not";
  EXPECT_LE(WidestGap(test::WalkOf(teeth.Tooth(2))).Size, 1e-4) << "a long pitch opens nothing";
}

// A tooth that leans back by a degree may be five radii shallower than its arc lies: the circle then misses
// the seat it should pass through.
TEST(GapOfTheOutline, LiesAtASeatThatARaisedArcMisses) {
  BandSaw saw = Design(SquareBack);
  saw.HookAngle = -1;
  saw.SeatInfo = {True, 0.05, 0.1};
  saw.GulletInfo.Radius = 0.3;
  saw.GulletInfo.Depth = 0.05;
  const ToothProfile tooth = ToothOf(saw);
  const Gap gap = WidestGap(test::WalkOf(tooth));
  EXPECT_EQ(gap.Where, "SeatLine to GulletArc");
  const double away = test::Length(tooth.SeatLine.End, tooth.GulletArc.Center());
  EXPECT_NEAR(gap.Size, away - 0.3, 1e-4) << "what the radius lacks";
  EXPECT_GT(gap.Size, 0.01);
}

}  // namespace
}  // namespace tarnwick
