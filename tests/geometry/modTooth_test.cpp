#include "geometry/modTooth.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "geometry/modOneTooth.h"
#include "support/Designs.h"
#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;
using test::Near;
using test::PlainDesign;
using test::Same;
using test::Workbench;

EntityList Calculate(BandSaw& saw, const CalculationSettings& settings = {}) {
  CollectedMessages say;
  EntityList list = CalculateSaw(saw, settings, say);
  EXPECT_TRUE(say.Shown.empty()) << "a calculation of these styles says nothing";
  return list;
}

// ---- pitch and teeth

struct PitchRow {
  const char* Name;
  double Length, Pitch;
  std::int16_t NumTeeth;
  double WantPitch;
  std::int16_t WantTeeth;
  friend void PrintTo(const PitchRow& row, std::ostream* out) { *out << row.Name; }
};
class PitchAndTeeth : public testing::TestWithParam<PitchRow> {};

// They are brought up to date even if the radius is missing and nothing is drawn.
TEST_P(PitchAndTeeth, FollowTheLengthOfTheBand) {
  const PitchRow& row = GetParam();
  for (const double radius : {0.0, 0.3}) {
    SCOPED_TRACE(radius);
    BandSaw saw = PlainDesign();
    saw.GulletInfo.Radius = radius;
    saw.Length = row.Length;
    saw.Pitch = row.Pitch;
    saw.NumTeeth = row.NumTeeth;
    Calculate(saw);
    EXPECT_EQ(saw.Pitch, row.WantPitch);
    EXPECT_EQ(saw.NumTeeth, row.WantTeeth);
  }
}

INSTANTIATE_TEST_SUITE_P(Bands, PitchAndTeeth,
                         testing::Values(PitchRow{"FromTheCount", 20, 0, 120, 2, 120},
                                         PitchRow{"ATypedPitchGivesWayToTheNearest", 20, 1.75, 0, 1.75182,
                                                  137},
                                         PitchRow{"ATypedPitchOutdoesTheCount", 20, 1.75, 120, 1.75182, 137},
                                         PitchRow{"HalfAToothIsAWholeOne", 21, 24, 0, 22.90909, 11},
                                         PitchRow{"LessThanHalfIsNone", 20.9, 24, 0, 25.08, 10},
                                         PitchRow{"NeitherOfThem", 20, 0, 0, 0, 0},
                                         PitchRow{"NegativePitchWithoutTeeth", 20, -1, 0, 0, 0},
                                         PitchRow{"NegativePitchWithTeeth", 20, -1, 100, 2.4, 100},
                                         PitchRow{"PitchLongerThanTheBand", 1, 100, 7, 0, 0},
                                         PitchRow{"MoreTeethThanCanBeCounted", 1000, 0.01, 4, 3000, 4}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- is the design complete

TEST(CalculateSaw, DrawsNothingWithoutTheRadius) {
  BandSaw saw = PlainDesign();
  saw.GulletInfo.Radius = 0;
  saw.GulletInfo.FaceLength = 0.5;
  saw.GulletInfo.BackRadius = -1;
  saw.Width = 0;
  const BandSaw before = saw;
  const EntityList list = Calculate(saw);
  EXPECT_EQ(list.Count(), 0u);
  EXPECT_EQ(list.Header.MaxX, 0);
  EXPECT_EQ(saw.GulletInfo.FaceLength, 0);
  EXPECT_EQ(saw.ContainsInfo.Teeth, False);
  EXPECT_EQ(saw.Pitch, 2);
  BandSaw rest = saw;
  rest.Pitch = before.Pitch;
  EXPECT_TRUE(SameSaw(rest, before)) << "nothing else has changed";
}

struct CompleteRow {
  const char* Name;
  std::int16_t Style;
  double BandSaw::Gullet::*Needed;
  friend void PrintTo(const CompleteRow& row, std::ostream* out) { *out << row.Name; }
};
class RadiusThatAStyleNeeds : public testing::TestWithParam<CompleteRow> {};

TEST_P(RadiusThatAStyleNeeds, IsMissedWhenItIsNotAboveZero) {
  BandSaw saw = PlainDesign(GetParam().Style);
  saw.GulletInfo.Radius1 = 0.2;
  saw.GulletInfo.Radius2 = 0.3;
  saw.GulletInfo.Radius3 = 0.3;
  BandSaw complete = saw;
  CollectedMessages say;
  EXPECT_GT(CalculateSaw(complete, {}, say).Count(), 0u);
  for (const double missing : {0.0, -0.1}) {
    BandSaw incomplete = saw;
    incomplete.GulletInfo.*GetParam().Needed = missing;
    EXPECT_EQ(Calculate(incomplete).Count(), 0u);
    EXPECT_EQ(incomplete.ContainsInfo.Teeth, False);
  }
}

using Gullet = BandSaw::Gullet;
INSTANTIATE_TEST_SUITE_P(Styles, RadiusThatAStyleNeeds,
                         testing::Values(CompleteRow{"SquareBack", SquareBack, &Gullet::Radius},
                                         CompleteRow{"RoundBack", RoundBack, &Gullet::Radius},
                                         CompleteRow{"NarrowStyle", NarrowStyle, &Gullet::Radius},
                                         CompleteRow{"UnknownStyle", 11, &Gullet::Radius},
                                         CompleteRow{"DoubleRadiusFirst", DoubleRadius, &Gullet::Radius1},
                                         CompleteRow{"DoubleRadiusSecond", DoubleRadius, &Gullet::Radius2},
                                         CompleteRow{"TripleRadiusFirst", TripleRadius, &Gullet::Radius1},
                                         CompleteRow{"TripleRadiusSecond", TripleRadius, &Gullet::Radius2},
                                         CompleteRow{"TripleRadiusThird", TripleRadius, &Gullet::Radius3},
                                         CompleteRow{"FlatBottomFirst", FlatBottom, &Gullet::Radius1},
                                         CompleteRow{"FlatBottomSecond", FlatBottom, &Gullet::Radius2},
                                         CompleteRow{"OShape", OShape, &Gullet::Radius1},
                                         CompleteRow{"FrostTooth", FrostTooth, &Gullet::Radius1}),
                         [](const auto& row) { return std::string(row.param.Name); });

class StyleThatCannotBeVariable : public testing::TestWithParam<int> {};

TEST_P(StyleThatCannotBeVariable, LosesItsSegment) {
  BandSaw saw = PlainDesign(static_cast<std::int16_t>(GetParam()));
  saw.GulletInfo.Radius1 = 0.3;
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {2, 1.9, 2.1};
  saw.DesignInfo.SegmentLength = 6;
  saw.DesignInfo.VarPattern = 2;
  CollectedMessages say;
  EXPECT_GT(CalculateSaw(saw, {}, say).Count(), 0u);
  EXPECT_EQ(saw.GeneralInfo.VariablePitch, False);
  EXPECT_EQ(saw.GeneralInfo.NumVariables, 0);
  EXPECT_EQ(saw.GeneralInfo.VarPitch, SegmentMeasures{});
  EXPECT_EQ(saw.DesignInfo.SegmentLength, 0);
  EXPECT_EQ(saw.DesignInfo.VarPattern, 0);
}

INSTANTIATE_TEST_SUITE_P(Styles, StyleThatCannotBeVariable, testing::Values(NarrowStyle, OShape));

TEST(CalculateSaw, LeavesTheTeethFlagOfAnIncompleteDesign) {
  BandSaw saw = PlainDesign();
  saw.GulletInfo.Radius = -0.5;
  saw.ContainsInfo.Teeth = True;
  EXPECT_EQ(Calculate(saw).Count(), 0u);
  EXPECT_EQ(saw.ContainsInfo.Teeth, True);
}

TEST(CalculateSaw, CorrectsNothingOfABandWithANegativeNumberOfTeeth) {
  BandSaw saw = PlainDesign();
  saw.NumTeeth = -5;
  saw.Width = 0;
  saw.GulletInfo.Depth = 0;
  EXPECT_EQ(Calculate(saw).Count(), 0u);
  EXPECT_EQ(saw.Width, 0);
  EXPECT_EQ(saw.GulletInfo.Depth, 0);
  EXPECT_EQ(saw.GulletInfo.Radius, 0.3);
  EXPECT_EQ(saw.ContainsInfo.Teeth, False);
}

TEST(CalculateSaw, BuildsAToothOfABandWithoutTeeth) {
  BandSaw saw = PlainDesign();
  saw.NumTeeth = 0;
  Calculate(saw);
  EXPECT_EQ(saw.Pitch, 0);
  EXPECT_EQ(saw.ContainsInfo.Teeth, True) << "a complete tooth of a pitch of 0";
  EXPECT_EQ(saw.GulletInfo.Radius, 0) << "half the pitch at most";
}

// ---- styles without a tooth

class StyleWithoutATooth : public testing::TestWithParam<int> {};

TEST_P(StyleWithoutATooth, GetsFaceAndArcUncutAndNoFigures) {
  BandSaw saw = PlainDesign(static_cast<std::int16_t>(GetParam()));
  saw.GulletInfo.BackRadius = -1;
  saw.GulletInfo.FaceLength = 0.5;
  const EntityList list = Calculate(saw);
  EXPECT_EQ(list.Count(), 121u * 2 + 3) << "a face and an arc of each tooth, and the outline";
  EXPECT_EQ(saw.ToothStyle, GetParam());
  EXPECT_EQ(saw.ContainsInfo.Teeth, False);
  EXPECT_EQ(saw.GulletInfo.FaceLength, 0);
  EXPECT_EQ(saw.GulletInfo.MinDepth, 0);
  EXPECT_EQ(saw.GulletInfo.Area, 0);
  EXPECT_EQ(saw.GulletInfo.BackRadius, -1);
  EXPECT_EQ(saw.GulletInfo.Sharpangle, 80) << "the angle that is left is worked out all the same";
}

INSTANTIATE_TEST_SUITE_P(Numbers, StyleWithoutATooth, testing::Values(0, 3, 10, -1, 32767));

TEST(StyleWithoutATooth, NeedsTheRadiusToo) {
  BandSaw saw = PlainDesign(3);
  saw.GulletInfo.Radius = 0;
  EXPECT_EQ(Calculate(saw).Count(), 0u);
}

// ---- width of the band

struct WidthRow {
  const char* Name;
  double Width, Depth, Radius, Radius2, Want;
  friend void PrintTo(const WidthRow& row, std::ostream* out) { *out << row.Name; }
};
class WidthOfTheBand : public testing::TestWithParam<WidthRow> {};

TEST_P(WidthOfTheBand, HoldsTheGullet) {
  BandSaw saw = PlainDesign();
  saw.Width = GetParam().Width;
  saw.GulletInfo.Depth = GetParam().Depth;
  saw.GulletInfo.Radius = GetParam().Radius;
  saw.GulletInfo.Radius2 = GetParam().Radius2;
  Calculate(saw);
  EXPECT_DOUBLE_EQ(saw.Width, GetParam().Want);
}

INSTANTIATE_TEST_SUITE_P(Bands, WidthOfTheBand,
                         testing::Values(WidthRow{"AsTyped", 5, 0.7, 0.3, 0, 5},
                                         WidthRow{"ThreeDepths", 0, 0.7, 0.3, 0.4, 2.1},
                                         WidthRow{"ThreeDepthsForANegativeWidth", -4, 0.7, 0.3, 0.4, 2.1},
                                         WidthRow{"SixRadii", 0, 0, 0.3, 0.4, 1.8},
                                         WidthRow{"SixRadiiOfANegativeDepth", 0, -1, 0.3, 0.4, 1.8},
                                         WidthRow{"WidenedForTheDepth", 0.75, 0.7, 0.3, 0, 0.77},
                                         WidthRow{"WideEnough", 0.78, 0.7, 0.3, 0, 0.78}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- limits of the radii

TEST(ClampRadii, KeepsThemBelowTheirShareOfThePitch) {
  BandSaw saw;
  saw.Pitch = 1.111119;
  saw.GulletInfo.Radius = 2;
  saw.GulletInfo.Radius1 = 2;
  saw.GulletInfo.Radius2 = 2;
  saw.GulletInfo.Radius3 = 2;
  saw.GulletInfo.Width = 2;
  ClampRadii(saw, PlaneKit(5));
  EXPECT_EQ(saw.GulletInfo.Radius, 0.55555) << "half of it, rounded";
  EXPECT_EQ(saw.GulletInfo.Radius2, 0.83333) << "three quarters, rounded";
  EXPECT_EQ(saw.GulletInfo.Width, 1.111119 * 0.9) << "nine tenths, as they stand";
  EXPECT_EQ(saw.GulletInfo.Radius1, 2);
  EXPECT_EQ(saw.GulletInfo.Radius3, 2);
}

TEST(ClampRadii, LeavesWhatIsWithin) {
  BandSaw saw;
  saw.Pitch = 2;
  saw.GulletInfo.Radius = 0.123456789;
  saw.GulletInfo.Radius2 = 1.5;
  saw.GulletInfo.Width = 1.8;
  ClampRadii(saw, PlaneKit(5));
  EXPECT_EQ(saw.GulletInfo.Radius, 0.123456789);
  EXPECT_EQ(saw.GulletInfo.Radius2, 1.5);
  EXPECT_EQ(saw.GulletInfo.Width, 1.8);
}

TEST(CalculateSaw, CutsALargeRadiusDownBeforeAnything) {
  BandSaw saw = PlainDesign();
  saw.GulletInfo.Radius = 7;
  Calculate(saw);
  EXPECT_EQ(saw.GulletInfo.Radius, 1);
}

// ---- one tooth

BandSaw ToothOfTwoInches(std::int16_t style = SquareBack) {
  BandSaw saw = PlainDesign(style);
  saw.Pitch = 2;
  return saw;
}

// Without a hook: face straight down 0.4 from the tip; the arc of 0.3 beside its end, to 340 degrees; the
// back from there at 70 degrees, until it meets the top that falls from the next tip at 10.
TEST(CalculateTooth, GivesTheSquareToothOfItsMeasures) {
  Workbench bench(ToothOfTwoInches());
  CalculateTooth(bench.Work);
  const ToothProfile& tooth = bench.Tooth;
  const Point corner{0.680136, 4.767272};
  EXPECT_TRUE(Near(tooth.FaceLine, {{0, 5}, {0, 4.6}}, 2e-5));
  EXPECT_TRUE(Near(tooth.SeatLine, {{0, 4.6}, {0, 4.6}}, 2e-5));
  EXPECT_TRUE(Near(tooth.DropLine, {{0, 4.6}, {0, 4.6}}, 2e-5));
  EXPECT_TRUE(Near(tooth.GulletArc.Center(), {0.3, 4.6}, 2e-5));
  EXPECT_EQ(tooth.GulletArc.Radius, 0.3);
  EXPECT_EQ(tooth.GulletArc.StartAngle, 180);
  EXPECT_EQ(tooth.GulletArc.EndAngle, 340);
  EXPECT_TRUE(Near(tooth.BackLine, {{0.581908, 4.497394}, corner}, 1e-4));
  EXPECT_TRUE(Near(tooth.TopLine, {corner, {2, 5}}, 1e-4));
  EXPECT_TRUE(Same(tooth.FirstArc, ToothArc{}));
  EXPECT_TRUE(Same(tooth.BottomLine, ToothLine{}));
  EXPECT_EQ(tooth.BackArc.Radius, 0);
  EXPECT_EQ(tooth.Style, SquareBack);
  EXPECT_EQ(bench.Saw.GulletInfo.Depth, 0.7);
  EXPECT_NEAR(bench.Saw.GulletInfo.MinDepth, 0.325, 1e-12);
  EXPECT_NEAR(bench.Saw.GulletInfo.FaceLength, 0.4, 2e-5);
  EXPECT_EQ(bench.Saw.GulletInfo.Sharpangle, 80);
  EXPECT_EQ(bench.Saw.GulletInfo.BackAngle, 20);
  EXPECT_EQ(bench.Saw.ContainsInfo.Teeth, True);
}

TEST(CalculateTooth, MovesTheArcStraightDownWithoutAHook) {
  Workbench shallow(ToothOfTwoInches()), deep(ToothOfTwoInches());
  deep.Saw.GulletInfo.Depth = 0.9;
  CalculateTooth(shallow.Work);
  CalculateTooth(deep.Work);
  EXPECT_EQ(deep.Tooth.GulletArc.CenterX, shallow.Tooth.GulletArc.CenterX);
  EXPECT_NEAR(deep.Tooth.GulletArc.CenterY, shallow.Tooth.GulletArc.CenterY - 0.2, 2e-5);
}

TEST(CalculateTooth, RaisesADepthBelowTheSmallest) {
  Workbench bench(ToothOfTwoInches());
  bench.Saw.GulletInfo.Depth = 0.1;
  CalculateTooth(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.Depth, 0.325, 1e-12);
  EXPECT_EQ(bench.Saw.GulletInfo.Depth, bench.Saw.GulletInfo.MinDepth);
}

TEST(CalculateTooth, RaisesTheArcOfAShallowGulletWithASeatAndKeepsTheDepthTyped) {
  Workbench bench(ToothOfTwoInches());
  bench.Saw.Width = 4.9;
  bench.Saw.SeatInfo = {True, 0.05, 0.2};
  bench.Saw.GulletInfo.Radius = 0.5;
  bench.Saw.GulletInfo.Depth = 0.4;
  CalculateTooth(bench.Work);
  EXPECT_EQ(bench.Saw.GulletInfo.Depth, 0.4);
  EXPECT_NEAR(bench.Saw.GulletInfo.MinDepth, 0.7 - 0.475, 1e-12);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.45, 5}, 2e-5));
  EXPECT_NEAR(bench.Tooth.GulletArc.StartAngle, 216.86989, 2e-5);
}

TEST(CalculateTooth, CountsFaceAndDropToTheFaceLength) {
  Workbench bench(ToothOfTwoInches());
  bench.Saw.SeatInfo = {True, 0.05, 0.2};
  CalculateTooth(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.FaceLength, 0.4, 2e-5) << "0.2 above the seat, 0.2 below";
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{0.05, 4.8}, {0.05, 4.6}}, 2e-5));
}

// The next tip is seen from the arc at 13.24052 degrees, 1.74642 away; the tangent's angle is 9.8912.
TEST(CalculateTooth, LowersABackAngleThatDoesNotClearTheNextTip) {
  Workbench bench(ToothOfTwoInches());
  bench.Saw.GulletInfo.BackAngle = 80;
  CalculateTooth(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.BackAngle, 90 - (9.8912 * 1.01 + 13.24052), 1e-3);
  EXPECT_NEAR(bench.Tooth.GulletArc.EndAngle, 360 - bench.Saw.GulletInfo.BackAngle, 2e-5)
      << "the arc was laid again with the angle that it can have";
  EXPECT_EQ(bench.Saw.ContainsInfo.Teeth, True);
}

// ---- the back radius

TEST(CalculateTooth, RoundsTheBackOfARoundBackTooth) {
  Workbench bench(ToothOfTwoInches(RoundBack));
  bench.Saw.GulletInfo.BackRadius = 0.1;
  CalculateTooth(bench.Work);
  const ToothArc& fillet = bench.Tooth.BackArc;
  EXPECT_EQ(bench.Saw.GulletInfo.BackRadius, 0.1);
  EXPECT_EQ(fillet.Radius, 0.1);
  EXPECT_NEAR(fillet.StartAngle, 100, 0.02) << "square to the top";
  EXPECT_NEAR(fillet.EndAngle, 160, 0.02) << "square to the back";
}

TEST(CalculateTooth, SetsANegativeBackRadiusToZero) {
  Workbench bench(ToothOfTwoInches(RoundBack));
  bench.Saw.GulletInfo.BackRadius = -1;
  CalculateTooth(bench.Work);
  EXPECT_EQ(bench.Saw.GulletInfo.BackRadius, 0);
  EXPECT_EQ(bench.Tooth.BackArc.Radius, 0);
  EXPECT_EQ(bench.Saw.ContainsInfo.Teeth, True);
}

// The back is 0.2872 long between arc and corner, which stands open by 120 degrees: the fillet reaches down
// it by r * tan(30), so no radius over 0.4974 fits.
TEST(CalculateTooth, ShortensABackRadiusByFortiethsUntilItFits) {
  Workbench bench(ToothOfTwoInches(RoundBack));
  bench.Saw.GulletInfo.BackRadius = 0.58;
  CalculateTooth(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.BackRadius, 0.48, 1e-9);
  EXPECT_EQ(bench.Tooth.BackArc.Radius, RoundTo(bench.Saw.GulletInfo.BackRadius, 5));
}

TEST(CalculateTooth, HasNoBackRadiusOnASquareBack) {
  for (const double radius : {0.1, -1.0}) {
    Workbench bench(ToothOfTwoInches(SquareBack));
    bench.Saw.GulletInfo.BackRadius = radius;
    CalculateTooth(bench.Work);
    EXPECT_EQ(bench.Saw.GulletInfo.BackRadius, radius) << "the measure stays for another style";
    EXPECT_EQ(bench.Tooth.BackArc.Radius, 0);
  }
}

TEST(CalculateTooth, DoesNotChangeTheAreaByTheBackRadius) {
  Workbench sharp(ToothOfTwoInches(RoundBack)), round(ToothOfTwoInches(RoundBack));
  round.Saw.GulletInfo.BackRadius = 0.3;
  CalculateTooth(sharp.Work);
  CalculateTooth(round.Work);
  EXPECT_GT(sharp.Saw.GulletInfo.Area, 0);
  EXPECT_EQ(round.Saw.GulletInfo.Area, sharp.Saw.GulletInfo.Area);
}

// ---- the whole band

TEST(CalculateSaw, IsAsLongAsItsTeeth) {
  BandSaw saw = PlainDesign();
  const EntityList list = Calculate(saw);
  EXPECT_NEAR(list.Header.MaxX, 240, 1e-4);
  EXPECT_EQ(list.Header.MaxY, 5);
  EXPECT_NEAR(list.Header.ViewCenterX, 120, 1e-4);
  EXPECT_EQ(list.Header.ViewCenterY, 2.5);
}

TEST(CalculateSaw, LapsAnOverlapByTenPlatesAndAnEighth) {
  BandSaw saw = PlainDesign();
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.GeneralInfo.PlateThick = 0.05;
  const EntityList list = Calculate(saw);
  EXPECT_NEAR(list.Header.MaxX, 240.625, 1e-4);
  int dotted = 0;
  for (const Entity& entity : list.Entities)
    if (const auto* line = std::get_if<LineEntity>(&entity)) dotted += line->IsDotted ? 1 : 0;
  EXPECT_EQ(dotted, 2);
}

TEST(CalculateSaw, GivesTheSameWhenItIsCalculatedAgain) {
  BandSaw saw = PlainDesign(RoundBack);
  saw.GulletInfo.BackRadius = 0.1;
  Calculate(saw);
  const BandSaw once = saw;
  Calculate(saw);
  EXPECT_TRUE(SameSaw(once, saw));
}

TEST(CalculateSaw, LeavesNothingOfAListThatIsUsedAgain) {
  test::CollectedMessages say;
  BandSaw band = PlainDesign();
  const EntityList fresh = CalculateSaw(band, {}, say);
  EntityList used;
  used.Header.MaxX = 7;
  used.Entities.assign(5000, CircleEntity{});
  used.Repetitions = {{0, 1, 5000}};
  used.Lost = 3;
  used = CalculateSaw(band, {}, say, std::move(used));
  EXPECT_EQ(used.Count(), fresh.Count());
  EXPECT_EQ(used.Header.MaxX, fresh.Header.MaxX);
  ASSERT_EQ(used.Repetitions.size(), 1U);
  EXPECT_EQ(used.Repetitions[0].Size, fresh.Repetitions.at(0).Size);
  EXPECT_EQ(used.Repetitions[0].Times, 119U) << "all teeth but the two that the join cuts";

  band.GulletInfo.Radius = 0;
  used = CalculateSaw(band, {}, say, std::move(used));
  EXPECT_EQ(used.Count(), 0U);
  EXPECT_EQ(used.Header.MaxX, 0);
}

}  // namespace
}  // namespace tarnwick
