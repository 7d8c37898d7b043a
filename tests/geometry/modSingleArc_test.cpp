#include "geometry/modSingleArc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

const double Tan30 = std::sqrt(1.0 / 3);

// ---- placing

struct PlaceRow {
  const char* Name;
  double Hook, BackAngle, StartAngle, EndAngle;
  friend void PrintTo(const PlaceRow& row, std::ostream* out) { *out << row.Name; }
};
class SingleArc : public testing::TestWithParam<PlaceRow> {};

TEST_P(SingleArc, TouchesTheFaceAndTurnsIntoTheBack) {
  Workbench bench;
  bench.Saw.ToothStyle = SquareBack;
  bench.Saw.HookAngle = GetParam().Hook;
  bench.Saw.GulletInfo.BackAngle = GetParam().BackAngle;
  bench.Saw.GulletInfo.Radius = 0.5;
  bench.Saw.GulletInfo.Radius1 = 0.9;
  bench.Tooth.DropLine.End = {1, 4};
  PlaceSingleArc(bench.Work);
  const ToothArc& arc = bench.Tooth.GulletArc;
  const double hook = GetParam().Hook * Pi / 180;
  EXPECT_TRUE(Near(arc.Center(), {1 + 0.5 * std::cos(hook), 4 - 0.5 * std::sin(hook)}, 1e-12));
  EXPECT_EQ(arc.Radius, 0.5);
  EXPECT_NEAR(arc.StartAngle, GetParam().StartAngle, 1e-12);
  EXPECT_NEAR(arc.EndAngle, GetParam().EndAngle, 1e-12);
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, ToothArc{}));
}

INSTANTIATE_TEST_SUITE_P(Angles, SingleArc,
                         testing::Values(PlaceRow{"Upright", 0, 0, 180, 360},
                                         PlaceRow{"Usual", 10, 20, 170, 330},
                                         PlaceRow{"LeaningBack", -10, 20, 190, 350},
                                         PlaceRow{"BackPastTheHorizontal", 10, -20, 170, 10},
                                         PlaceRow{"HookPastHalfATurn", 200, 0, 340, 160},
                                         PlaceRow{"ReducedOnceOnly", 0, -400, 180, 400}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(SingleArc, IsOfTheFirstRadiusOnAFrostTooth) {
  Workbench bench;
  bench.Saw.ToothStyle = FrostTooth;
  bench.Saw.GulletInfo.Radius = 0.5;
  bench.Saw.GulletInfo.Radius1 = 0.75;
  bench.Tooth.DropLine.End = {1, 4};
  PlaceSingleArc(bench.Work);
  EXPECT_TRUE(Same(bench.Tooth.GulletArc, {1.75, 4, 0.75, 180, 360}));
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, bench.Tooth.GulletArc));
}

TEST(SingleArc, NotesHowDeepItLies) {
  Workbench bench;
  bench.Saw.ToothStyle = RoundBack;
  bench.Saw.Width = 5;
  bench.Saw.TipClear = 0.25;
  bench.Saw.GulletInfo.Radius = 0.5;
  bench.Tooth.DropLine.End = {0, 4.25};
  PlaceSingleArcAndDepth(bench.Work);
  EXPECT_EQ(bench.Tooth.ArcDepth, 1);
}

// ---- the smallest depth

struct DepthRow {
  const char* Name;
  Flag Seat;
  double Hook, Want;
  friend void PrintTo(const DepthRow& row, std::ostream* out) { *out << row.Name; }
};
class SmallestDepth : public testing::TestWithParam<DepthRow> {};

TEST_P(SmallestDepth, IsLessWithASeat) {
  Workbench bench;
  bench.Saw.Width = 5;
  bench.Saw.TipClear = 0.25;
  bench.Saw.HookAngle = GetParam().Hook;
  bench.Saw.SeatInfo.State = GetParam().Seat;
  bench.Saw.GulletInfo.Radius = 0.4;
  bench.Tooth.GulletArc = {0.5, 4.25, 0.4, 180, 360};
  EXPECT_NEAR(SingleArcMinimumDepth(bench.Work), GetParam().Want, 1e-12);
  EXPECT_NEAR(SingleArcDepth(bench.Work), 0.9, 1e-12);
}

// The arc's centre lies 0.5 below the tip: with its radius of 0.4 a depth of 0.9.
INSTANTIATE_TEST_SUITE_P(Teeth, SmallestDepth,
                         testing::Values(DepthRow{"NoSeat", False, 10, 0.9},
                                         DepthRow{"NoSeatLeaningBack", False, -10, 0.9},
                                         DepthRow{"Seat", True, 10, 0.9 - 0.38},
                                         DepthRow{"SeatOnAnUprightFace", True, 0, 0.9 - 0.38},
                                         DepthRow{"SeatLeaningBack", True, -10, 0.9 - 0.19},
                                         DepthRow{"SeatLeaningBackByFive", True, -5, 0.9 - 0.38},
                                         DepthRow{"SeatLeaningBackALittle", True, -1, 0.9 - 1.9}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- going to the depth wanted

/// Tip at 4.9, seat's end at (0.05, 4.7), arc of 0.5 on (0.55, 4.7): as deep as 0.7.
Workbench& UprightTooth(Workbench& bench, Flag seat) {
  bench.Saw.ToothStyle = SquareBack;
  bench.Saw.Width = 4.9;
  bench.Saw.SeatInfo.State = seat;
  bench.Saw.GulletInfo.Radius = 0.5;
  bench.Tooth.FaceLine = {{0, 4.9}, {0, 4.7}};
  bench.Tooth.SeatLine = {{0, 4.7}, {0.05, 4.7}};
  bench.Tooth.DropLine = {{0.05, 4.7}, {0.05, 4.7}};
  bench.Tooth.GulletArc = {0.55, 4.7, 0.5, 180, 360};
  return bench;
}

TEST(ApplySingleArcDepth, LengthensTheFaceBelowASeat) {
  Workbench bench;
  UprightTooth(bench, True).Saw.GulletInfo.Depth = 1;
  ApplySingleArcDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.55, 4.4}, 1e-12)) << "straight down without a hook";
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{0.05, 4.7}, {0.05, 4.4}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {{0, 4.7}, {0.05, 4.7}}, 0));
  EXPECT_TRUE(Near(bench.Tooth.FaceLine, {{0, 4.9}, {0, 4.7}}, 0));
  EXPECT_EQ(bench.Tooth.GulletArc.StartAngle, 180);
}

TEST(ApplySingleArcDepth, LengthensTheFaceItselfWithoutASeat) {
  Workbench bench;
  UprightTooth(bench, False).Saw.GulletInfo.Depth = 1;
  ApplySingleArcDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.55, 4.4}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.FaceLine, {{0, 4.9}, {0, 4.4}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {{0, 4.4}, {0, 4.4}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{0, 4.4}, {0, 4.4}}, 1e-12));
}

TEST(ApplySingleArcDepth, KeepsTheFaceOnTheHookLine) {
  Workbench bench;
  UprightTooth(bench, True);
  bench.Saw.HookAngle = 30;
  bench.Saw.GulletInfo.Depth = 1;
  ApplySingleArcDepth(bench.Work);
  constexpr double run = 0.1732;  // 0.3 * tan 30, cut to five places
  ASSERT_NEAR(run, 0.3 * Tan30, 1e-5);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.55 - run, 4.4}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine.End, {0.05 - run, 4.4}, 1e-12));
}

TEST(ApplySingleArcDepth, LeavesATightGulletAlone) {
  Workbench bench;
  UprightTooth(bench, True).Saw.GulletInfo.Depth = 4.9 - 4.7 + 0.5;
  ApplySingleArcDepth(bench.Work);
  EXPECT_TRUE(Same(bench.Tooth.GulletArc, {0.55, 4.7, 0.5, 180, 360}));
}

// 0.3 up: the circle through (0.05, 4.7) has its centre 0.3 above and 0.4 right of it.
TEST(ApplySingleArcDepth, RaisesTheArcThroughTheSeatsEndForAShallowGullet) {
  Workbench bench;
  UprightTooth(bench, True).Saw.GulletInfo.Depth = 0.4;
  ApplySingleArcDepth(bench.Work);
  const ToothArc& arc = bench.Tooth.GulletArc;
  EXPECT_TRUE(Near(arc.Center(), {0.45, 5}, 1e-12));
  EXPECT_NEAR(arc.StartAngle, 216.86989, 1e-9);
  EXPECT_EQ(arc.EndAngle, 360);
  EXPECT_EQ(arc.Radius, 0.5);
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{0.05, 4.7}, {0.05, 4.7}}, 0));
  EXPECT_EQ(bench.Saw.GulletInfo.Depth, 0.4) << "the measure stays as typed";
}

TEST(ApplySingleArcDepth, CountsAMissedSeatAsNoWayAsideWhenTheArcIsRaisedTooFar) {
  Workbench bench;
  UprightTooth(bench, True).Saw.GulletInfo.Depth = 0.1;
  ApplySingleArcDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.05, 5.3}, 1e-12)) << "no root: w is 0";
}

}  // namespace
}  // namespace tarnwick
