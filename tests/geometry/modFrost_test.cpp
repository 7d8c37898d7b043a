#include "geometry/modFrost.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "geometry/modGulletArea.h"
#include "support/Outline.h"
#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

/// A notch of 0.05 under a seat that ends on (0.1, 4.8), 0.2 below the tip; a single arc of a quarter inch.
struct FrostBench : Workbench {
  explicit FrostBench(double hook = 0) {
    Saw.ToothStyle = FrostTooth;
    Saw.Width = 5;
    Saw.HookAngle = hook;
    Saw.SeatInfo = {True, 0.1, 0.2};
    Saw.GulletInfo.BackAngle = 20;
    Saw.GulletInfo.Radius1 = 0.25;
    Saw.GulletInfo.FrostRadius = 0.05;
    Saw.GulletInfo.FrostHeight = 0.4;
    Saw.GulletInfo.FrostWidth = 0.15;
    Saw.GulletInfo.FrostAngle = 25;
    Tooth.FaceLine = {{0, 5}, {0, 4.8}};
    Tooth.SeatLine = {{0, 4.8}, {0.1, 4.8}};
    Tooth.DropLine = {{0.1, 4.8}, {0.1, 4.8}};
  }
};

TEST(NotchFace, HasNoLengthWhenTheHeightIsThatOfSeatAndRadius) {
  FrostBench bench;
  bench.Saw.GulletInfo.FrostHeight = bench.Saw.SeatInfo.Height + bench.Saw.GulletInfo.FrostRadius;
  PlaceFrostGullet(bench.Work);
  const ToothLine& face = bench.Tooth.FrostFaceLine;
  EXPECT_NEAR(face.Start.X, face.End.X, 1e-12);
  EXPECT_NEAR(face.Start.Y, face.End.Y, 1e-12);
  EXPECT_EQ(face.Start.X, 0.1);
  EXPECT_EQ(face.Start.Y, 4.8);
}

// ---- the notch's measures

struct MeasureRow {
  const char* Name;
  double Radius, SeatHeight, GulletWidth;
  double FrostHeight, FrostWidth;
  double WantHeight, WantWidth;
  friend void PrintTo(const MeasureRow& row, std::ostream* out) { *out << row.Name; }
};
class NotchMeasures : public testing::TestWithParam<MeasureRow> {};

TEST_P(NotchMeasures, AreBoundInTheRecord) {
  const MeasureRow& row = GetParam();
  FrostBench bench;
  BandSaw::Gullet& gullet = bench.Saw.GulletInfo;
  bench.Saw.SeatInfo.Height = row.SeatHeight;
  gullet.Radius = row.Radius;
  gullet.Width = row.GulletWidth;
  gullet.FrostHeight = row.FrostHeight;
  gullet.FrostWidth = row.FrostWidth;
  gullet.FrostAngle = 0;
  PlaceFrostGullet(bench.Work);
  EXPECT_NEAR(gullet.FrostHeight, row.WantHeight, 1e-12);
  EXPECT_NEAR(gullet.FrostWidth, row.WantWidth, 1e-12);
  EXPECT_EQ(gullet.FrostRadius, 0.05);
  EXPECT_TRUE(bench.Say.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Notches, NotchMeasures,
    testing::Values(MeasureRow{"HeightNotSet", 0.15, 0.2, 0, 0, 0.15, 0.5, 0.15},
                    MeasureRow{"HeightNotSetAndNoRadius", 0, 0.2, 0, 0, 0.15, 0.25, 0.15},
                    MeasureRow{"HeightOfSeatAndRadius", 0, 0.2, 0, 0.25, 0.15, 0.25, 0.15},
                    MeasureRow{"HeightTooSmallByFifteenHundredths", 0, 0.2, 0, 0.1, 0.15, 0.25, 0.15},
                    MeasureRow{"HeightWithin", 0.15, 0.2, 0, 0.4, 0.15, 0.4, 0.15},
                    MeasureRow{"WidthUnderTheRadius", 0, 0.2, 0, 0.4, 0.04, 0.4, 0.06},
                    MeasureRow{"WidthAtTheLeast", 0, 0.2, 0, 0.4, 0.06, 0.4, 0.06},
                    MeasureRow{"WidthOverTheGullets", 0, 0.2, 0.5, 0.4, 0.6, 0.4, 0.5},
                    MeasureRow{"WidthOverTheGulletsIsNotLiftedAgain", 0, 0.2, 0.02, 0.4, 0.04, 0.4, 0.02},
                    MeasureRow{"GulletWidthNotSet", 0, 0.2, 0, 0.4, 0.6, 0.4, 0.6}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(NotchMeasures, CountTheSeatsHeightWithoutASeatToo) {
  FrostBench bench;
  bench.Saw.SeatInfo.State = False;
  bench.Saw.GulletInfo.FrostHeight = 0;
  bench.Saw.GulletInfo.Radius = 0.25;
  PlaceFrostGullet(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.FrostHeight, 0.7, 1e-12);
}

// ---- the notch

// Face 0.4 - 0.2 - 0.05 long; the arc's foot 0.05 to the right of it at 25 degrees: (0.171131, 4.604685);
// the face goes on at 0.15 behind the first, which the floor meets at 0.078869 * tan 25 further up.
TEST(PlaceFrostGullet, CutsTheNotchUnderTheSeat) {
  FrostBench bench;
  PlaceFrostGullet(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.FrostFaceLine, {{0.1, 4.8}, {0.1, 4.65}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.FrostArc.Center(), {0.15, 4.65}, 1e-12));
  EXPECT_EQ(bench.Tooth.FrostArc.Radius, 0.05);
  EXPECT_EQ(bench.Tooth.FrostArc.StartAngle, 180);
  EXPECT_EQ(bench.Tooth.FrostArc.EndAngle, 295);
  const Point behind{0.25, 4.641462};
  EXPECT_TRUE(Near(bench.Tooth.FrostBottomLine, {{0.171131, 4.604685}, behind}, 1e-6));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {behind, behind}, 1e-6));
  EXPECT_EQ(bench.Tooth.DropLine.Start, bench.Tooth.FrostBottomLine.End);
  EXPECT_EQ(bench.Tooth.DropLine.End, bench.Tooth.FrostBottomLine.End);
  EXPECT_TRUE(Near(StartOf(bench.Tooth.FirstArc), behind, 1e-6)) << "the gullet hangs on the new face";
}

struct NotchRow {
  double Hook, Angle;
};
class Notch : public testing::TestWithParam<NotchRow> {};

TEST_P(Notch, EndsAtItsWidthBehindTheFaceAndIsConnected) {
  FrostBench bench(GetParam().Hook);
  bench.Saw.GulletInfo.FrostAngle = GetParam().Angle;
  PlaceFrostGullet(bench.Work);
  const ToothProfile& tooth = bench.Tooth;
  const double h = GetParam().Hook * Pi / 180;
  const Point seat{0.1, 4.8}, end = tooth.DropLine.Start;
  EXPECT_NEAR((end.X - seat.X) * std::cos(h) - (end.Y - seat.Y) * std::sin(h), 0.15, 1e-6)
      << "square to the face";
  EXPECT_TRUE(Near(StartOf(tooth.FrostArc), tooth.FrostFaceLine.End, 1e-12));
  EXPECT_TRUE(Near(EndOf(tooth.FrostArc), tooth.FrostBottomLine.Start, 1e-12));
  const ToothLine& floor = tooth.FrostBottomLine;
  const double slope = GetParam().Angle * Pi / 180;
  EXPECT_NEAR((floor.End.Y - floor.Start.Y) * std::cos(slope),
              (floor.End.X - floor.Start.X) * std::sin(slope), 1e-6);
  EXPECT_EQ(bench.Saw.GulletInfo.FrostAngle, GetParam().Angle);
}

INSTANTIATE_TEST_SUITE_P(Shapes, Notch,
                         testing::Values(NotchRow{0, 0}, NotchRow{0, 25}, NotchRow{0, 40}, NotchRow{20, 0},
                                         NotchRow{20, 25}, NotchRow{30, 35}, NotchRow{-10, 25}),
                         [](const auto& row) {
                           const int hook = static_cast<int>(row.param.Hook);
                           return "Hook" + std::string(hook < 0 ? "Minus" : "") +
                                  std::to_string(std::abs(hook)) + "Angle" +
                                  std::to_string(static_cast<int>(row.param.Angle));
                         });

// With a notch hardly wider than its arc the floor would run back. The face behind it, 0.01 right of the
// arc's centre, ends the arc sqrt(0.05² - 0.01²) below that, arcsin 0.2 = 11.537 degrees on.
TEST(PlaceFrostGullet, LeavesOutAFloorThatWouldRunBackward) {
  FrostBench bench;
  bench.Saw.GulletInfo.FrostWidth = 0.06;
  PlaceFrostGullet(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.DropLine.Start, {0.16, 4.601010}, 2e-5));
  EXPECT_NEAR(bench.Tooth.FrostArc.EndAngle, 281.537, 0.02);
  EXPECT_NEAR(bench.Saw.GulletInfo.FrostAngle, bench.Tooth.FrostArc.EndAngle - 270, 1e-4)
      << "the angle in the record is what the arc ends at";
  EXPECT_TRUE(Near(EndOf(bench.Tooth.FrostArc), bench.Tooth.DropLine.Start, 2e-5));
  EXPECT_EQ(bench.Tooth.FrostBottomLine.End, bench.Tooth.FrostBottomLine.Start);
}

// ---- the chain below it

TEST(PlaceFrostGullet, HangsTheChainOfItsRadiiOnTheNotch) {
  FrostBench single;
  PlaceFrostGullet(single.Work);
  EXPECT_EQ(single.Tooth.GulletArc.Radius, 0.25);
  EXPECT_TRUE(Same(single.Tooth.FirstArc, single.Tooth.GulletArc));
  EXPECT_EQ(single.Tooth.SecondArc.Radius, 0);

  FrostBench twofold;
  twofold.Saw.GulletInfo.Radius2 = 0.75;
  PlaceFrostGullet(twofold.Work);
  EXPECT_EQ(twofold.Tooth.SecondArc.Radius, 0.75);
  EXPECT_EQ(twofold.Tooth.ThirdArc.Radius, 0);
  EXPECT_EQ(twofold.Tooth.GulletArc.Radius, 0);

  FrostBench threefold;
  threefold.Saw.GulletInfo.Radius3 = 0.2;  // which asks for no second radius
  PlaceFrostGullet(threefold.Work);
  EXPECT_EQ(threefold.Tooth.SecondArc.Radius, 0.375);
  EXPECT_EQ(threefold.Tooth.ThirdArc.Radius, 0.2);
}

// ---- depth

TEST(FrostDepth, GoesByTheLastArcOfTheChain) {
  FrostBench bench;
  bench.Tooth.FirstArc = {1, 4, 0.25, 0, 0};
  EXPECT_DOUBLE_EQ(FrostDepth(bench.Work), 1.25);
  bench.Tooth.SecondArc = {1, 4.5, 0.5, 0, 0};
  EXPECT_DOUBLE_EQ(FrostDepth(bench.Work), 1);
  bench.Tooth.ThirdArc = {1, 4, 0.5, 0, 0};
  EXPECT_DOUBLE_EQ(FrostDepth(bench.Work), 1.5);
}

/// Chain of three, the last as deep as 1.25.
void LayChain(FrostBench& bench) {
  bench.Tooth.FirstArc = {0.5, 4, 0.25, 180, 200};
  bench.Tooth.SecondArc = {1, 4, 0.5, 200, 250};
  bench.Tooth.ThirdArc = {1.5, 4, 0.25, 250, 300};
  bench.Tooth.DropLine = {{0.25, 4.5}, {0.25, 4.25}};
}

class FrostSeat : public testing::TestWithParam<Flag> {};

TEST_P(FrostSeat, LowersChainAndDropWithASeatAndWithout) {
  FrostBench bench(45);
  bench.Saw.SeatInfo.State = GetParam();
  bench.Saw.GulletInfo.Depth = 1.5;
  LayChain(bench);
  ApplyFrostDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {0.25, 3.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {0.75, 3.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.ThirdArc.Center(), {1.25, 3.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{0.25, 4.5}, {0, 4}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.FaceLine, {{0, 5}, {0, 4.8}}, 0));
  const Point seatEnd = GetParam() == False ? Point{0, 4.8} : Point{0.1, 4.8};
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {{0, 4.8}, seatEnd}, 0)) << "a missing seat lies on the face's end";
}

INSTANTIATE_TEST_SUITE_P(Seats, FrostSeat, testing::Values(True, False));

TEST(ApplyFrostDepth, LeavesAChainThatLiesDeepEnough) {
  FrostBench bench(45);
  bench.Saw.GulletInfo.Depth = 1;
  LayChain(bench);
  const ToothProfile before = bench.Tooth;
  ApplyFrostDepth(bench.Work);
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, before.FirstArc));
  EXPECT_TRUE(Same(bench.Tooth.ThirdArc, before.ThirdArc));
  EXPECT_TRUE(Same(bench.Tooth.DropLine, before.DropLine));
}

/// An arc of half an inch on (1.5, 4), at the foot of a drop of 0.2.
void LaySingle(FrostBench& bench) {
  bench.Tooth.FirstArc = bench.Tooth.GulletArc = {1.5, 4, 0.5, 180, 340};
  bench.Tooth.DropLine = {{1, 4.2}, {1, 4}};
}

// Its depth goes by GulletInfo.Radius: 5 - 4 + 0.4.
TEST(ApplyFrostDepth, TakesThePlainRadiusForTheSingleArc) {
  FrostBench bench;
  LaySingle(bench);
  bench.Saw.GulletInfo.Radius = 0.4;
  bench.Saw.GulletInfo.Depth = 1.5;
  ApplyFrostDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {1.5, 3.9}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {1.5, 4}, 0)) << "the base arc follows with the back";
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{1, 4.2}, {1, 3.9}}, 1e-12));
}

// Half an inch up: 0.3 above the drop's start and 0.4 right of it; turned on by arctan(0.3 / 0.4).
TEST(ApplyFrostDepth, RaisesTheSingleArcIntoTheNotch) {
  FrostBench bench;
  LaySingle(bench);
  bench.Saw.GulletInfo.Radius = 0.5;
  bench.Saw.GulletInfo.Depth = 1;
  ApplyFrostDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {1.4, 4.5}, 1e-12));
  EXPECT_NEAR(bench.Tooth.GulletArc.StartAngle, 216.869898, 1e-6);
  EXPECT_EQ(bench.Tooth.GulletArc.EndAngle, 340);
  EXPECT_TRUE(Near(StartOf(bench.Tooth.GulletArc), {1, 4.2}, 1e-9));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{1, 4.2}, {1, 4.2}}, 0)) << "the face below the notch is gone";
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, bench.Tooth.GulletArc));
}

TEST(ApplyFrostDepth, CountsAMissedDropAsNoWayAsideWhenTheArcIsRaisedTooFar) {
  FrostBench bench;
  LaySingle(bench);
  bench.Saw.GulletInfo.Radius = 0.5;
  bench.Saw.GulletInfo.Depth = 0.5;
  ApplyFrostDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {1, 5}, 1e-12));
}

// ---- the back

TEST(LastFrostArc, IsTheLastThatWasPlaced) {
  ToothProfile tooth;
  EXPECT_EQ(&LastFrostArc(tooth), &tooth.GulletArc);
  tooth.FirstArc.Radius = 1;
  EXPECT_EQ(&LastFrostArc(tooth), &tooth.FirstArc);
  tooth.SecondArc.Radius = 1;
  EXPECT_EQ(&LastFrostArc(tooth), &tooth.SecondArc);
  tooth.ThirdArc.Radius = 1;
  EXPECT_EQ(&LastFrostArc(tooth), &tooth.ThirdArc);
}

struct BackRow {
  const char* Name;
  double Radius2, Radius3;
  Point Start;
  double Length;  // the measure of the arc, a depth of one and 20 * 0.014
  friend void PrintTo(const BackRow& row, std::ostream* out) { *out << row.Name; }
};
class FrostBack : public testing::TestWithParam<BackRow> {};

TEST_P(FrostBack, RisesFromTheArcThatTheRadiiCallFor) {
  FrostBench bench;
  bench.Saw.GulletInfo.Depth = 1;
  bench.Saw.GulletInfo.Radius = 0.1;
  bench.Saw.GulletInfo.Radius2 = GetParam().Radius2;
  bench.Saw.GulletInfo.Radius3 = GetParam().Radius3;
  bench.Saw.HookAngle = -20;  // with the back angle an upright back
  bench.Saw.GulletInfo.BackAngle = 20;
  bench.Tooth.FirstArc = {1, 4, 0.25, 200, 360};
  bench.Tooth.SecondArc = {2, 4, 0.5, 200, 360};
  bench.Tooth.ThirdArc = {3, 4, 0.75, 200, 360};
  PlaceFrostBack(bench.Work);
  const Point start = GetParam().Start;
  EXPECT_TRUE(Near(bench.Tooth.BackLine, {start, {start.X, start.Y + GetParam().Length}}, 1e-12));
  const bool single = GetParam().Radius2 == 0 && GetParam().Radius3 == 0;
  EXPECT_EQ(Same(bench.Tooth.GulletArc, bench.Tooth.FirstArc), single);
}

INSTANTIATE_TEST_SUITE_P(Chains, FrostBack,
                         testing::Values(BackRow{"Single", 0, 0, {1.25, 4}, 1.1},
                                         BackRow{"Double", 0.6, 0, {2.5, 4}, 1.6},
                                         BackRow{"Triple", 0.6, 0.8, {3.75, 4}, 1.8},
                                         BackRow{"TripleWithoutASecond", 0, 0.8, {3.75, 4}, 1.8}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- failures

TEST(PlaceFrostGullet, SaysThatTheNotchFailedAndGoesOnWithTheChain) {
  FrostBench bench;
  bench.Saw.GulletInfo.FrostRadius = 1e308;
  PlaceFrostGullet(bench.Work);
  EXPECT_EQ(bench.Say.Texts(), std::vector{std::string("Overflow\nError Number = 6")});
  EXPECT_EQ(bench.Tooth.FrostArc.Radius, 1e308) << "what was placed before stays";
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{0.1, 4.8}, {0.1, 4.8}}, 0));
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.35, 4.8}, 1e-12)) << "hung on the face as it was";
}

}  // namespace
}  // namespace tarnwick
