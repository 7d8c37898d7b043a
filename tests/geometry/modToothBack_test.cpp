#include "geometry/modToothBack.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/Pieces.h"
#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

const PlaneKit Kit(5);

// ---- the limit of the back angle

struct LimitRow {
  const char* Name;
  double Pitch;
  ToothArc LastArc;
  double Want;
  friend void PrintTo(const LimitRow& row, std::ostream* out) { *out << row.Name; }
};
class BackAngleLimitOf : public testing::TestWithParam<LimitRow> {};

TEST_P(BackAngleLimitOf, IsTheTangentFromTheNextTip) {
  Workbench bench;
  bench.Saw.HookAngle = 10;
  bench.Saw.Pitch = GetParam().Pitch;
  bench.Tooth.FaceLine.Start = {0, 4.9};
  EXPECT_NEAR(BackAngleLimit(bench.Work, GetParam().LastArc), GetParam().Want, 1e-9);
}

// Usual: the next tip is seen at 18.43494 degrees and 1.58113 away, the tangent 1.49999 long, the arc under
// 18.43506 degrees: 80 - (18.43506 * 1.01 + 18.43494) = 42.94564.
INSTANTIATE_TEST_SUITE_P(Arcs, BackAngleLimitOf,
                         testing::Values(LimitRow{"Usual", 2, {0.5, 4.4, 0.5, 0, 0}, 42.94564},
                                         LimitRow{"ArcAboveTheTips", 2, {0.5, 5.4, 0.5, 0, 0}, 79.81552},
                                         LimitRow{"TipWithinTheArc", 0.2, {0.5, 4.4, 0.9, 0, 0}, -40.96375}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- the back line

TEST(PlaceBackLine, IsTangentToTheArcAndLong) {
  Workbench bench;
  bench.Saw.HookAngle = 10;
  bench.Saw.GulletInfo.BackAngle = 20;
  bench.Saw.GulletInfo.Depth = 0.7;
  PlaceBackLine(bench.Work, {1, 4, 0.5, 0, 0}, 0.6);
  const double length = 0.6 + 0.7 + 30 * 0.014;
  const Point start{1 + 0.5 * std::sqrt(0.75), 3.75};
  EXPECT_TRUE(
      Near(bench.Tooth.BackLine, {start, {start.X + length / 2, start.Y + length * std::sqrt(0.75)}}, 1e-12));
}

TEST(PlaceBackLine, StandsUprightWithoutAngles) {
  Workbench bench;
  bench.Saw.GulletInfo.Depth = 0.75;
  PlaceBackLine(bench.Work, {1, 4, 0.5, 0, 0}, 0.5);
  EXPECT_TRUE(Near(bench.Tooth.BackLine, {{1.5, 4}, {1.5, 5.25}}, 1e-12));
}

// ---- the top line

TEST(PlaceTopLine, FallsBackFromTheNextTipToTheBack) {
  Workbench bench;
  bench.Saw.ToothStyle = SquareBack;
  bench.Saw.NumTeeth = 100;
  bench.Saw.Pitch = 2;
  bench.Saw.ClearAngle = 10;
  bench.Tooth.Style = SquareBack;
  bench.Tooth.FaceLine = {{0, 5}, {0, 4.5}};
  bench.Tooth.BackLine = {{1, 4}, {1, 6}};
  PlaceTopLine(bench.Work);
  const Point corner{1, 5 - std::tan(10 * Pi / 180)};
  EXPECT_TRUE(Near(bench.Tooth.TopLine, {corner, {2, 5}}, 2e-4));
  EXPECT_EQ(bench.Tooth.TopLine.End, (Point{2, 5}));
  EXPECT_TRUE(Near(bench.Tooth.BackLine, {{1, 4}, corner}, 2e-4));
  EXPECT_EQ(bench.Tooth.BackLine.End, bench.Tooth.TopLine.Start) << "a sharp corner is one point";
  EXPECT_GT(bench.Saw.GulletInfo.Area, 0) << "the gullet area goes with it";
  EXPECT_EQ(bench.Tooth.Area, bench.Saw.GulletInfo.Area);
}

class BandWithoutTeeth : public testing::TestWithParam<int> {};

TEST_P(BandWithoutTeeth, GetsNoTopLine) {
  Workbench bench;
  bench.Saw.ToothStyle = SquareBack;
  bench.Saw.NumTeeth = static_cast<std::int16_t>(GetParam());
  bench.Saw.Pitch = 2;
  bench.Tooth.BackLine = {{1, 4}, {1, 6}};
  bench.Saw.GulletInfo.Area = 0.25;
  PlaceTopLine(bench.Work);
  EXPECT_TRUE(Same(bench.Tooth.TopLine, ToothLine{}));
  EXPECT_TRUE(Same(bench.Tooth.BackLine, {{1, 4}, {1, 6}}));
  EXPECT_EQ(bench.Saw.GulletInfo.Area, 0.25);
}

INSTANTIATE_TEST_SUITE_P(Counts, BandWithoutTeeth, testing::Values(0, -1));

// ---- the fillet

/// An upright back an inch long at X = 1 and a level top at Y = 5.
ToothProfile Corner(double radius) {
  ToothProfile tooth;
  tooth.Style = RoundBack;
  tooth.BackLine = {{1, 4}, {1, 5}};
  tooth.TopLine = {{1, 5}, {4, 5}};
  tooth.BackArc.Radius = radius;
  return tooth;
}

TEST(FitBackRadius, MakesASharpCornerOfRadiusZero) {
  ToothProfile tooth = Corner(0);
  FitBackRadius(tooth, Kit);
  EXPECT_TRUE(Near(tooth.BackLine.End, {1, 5}, 1e-4));
  EXPECT_TRUE(Near(tooth.TopLine.Start, {1, 5}, 1e-4));
  EXPECT_EQ(tooth.BackArc.Radius, 0);
}

TEST(FitBackRadius, RoundsTheCornerFromTopToBack) {
  ToothProfile tooth = Corner(0.1);
  FitBackRadius(tooth, Kit);
  EXPECT_TRUE(Near(tooth.BackArc.Center(), {1.1, 4.9}, 1e-4));
  EXPECT_EQ(tooth.BackArc.Radius, 0.1);
  EXPECT_EQ(tooth.BackArc.StartAngle, 90) << "from the tangent of the top";
  EXPECT_EQ(tooth.BackArc.EndAngle, 180) << "to the tangent of the back";
  EXPECT_TRUE(Near(tooth.BackLine, {{1, 4}, {1, 4.9}}, 1e-4));
  EXPECT_TRUE(Near(tooth.TopLine, {{1.1, 5}, {4, 5}}, 1e-4));
}

TEST(FitBackRadius, ChangesNothingElse) {
  ToothProfile tooth = test::FullTooth();
  tooth.BackLine = Corner(0).BackLine;
  tooth.TopLine = Corner(0).TopLine;
  tooth.BackArc.Radius = 0.1;
  const ToothProfile before = tooth;
  FitBackRadius(tooth, Kit);
  test::ForEachPiece(before, tooth, [](const std::string& name, const auto& was, const auto& is) {
    const bool fitted = name == "BackArc" || name == "BackLine" || name == "TopLine";
    EXPECT_EQ(Same(was, is), !fitted) << name;
  });
  EXPECT_EQ(tooth.BackLine.Start, before.BackLine.Start);
  EXPECT_EQ(tooth.TopLine.End, before.TopLine.End);
}

// The fillet must end above the start of the back, which is an inch below the top: with steps of 0.025 from
// 1.51 the first that does is 0.985.
TEST(FitBackRadius, ShortensARadiusThatRunsPastTheBackByAFortieth) {
  ToothProfile tooth = Corner(1.51);
  FitBackRadius(tooth, Kit);
  EXPECT_NEAR(tooth.BackArc.Radius, 1.51 - 21 * 0.025, 1e-9);
  EXPECT_TRUE(Near(tooth.BackLine.End, {1, 4.015}, 1e-3));
  EXPECT_TRUE(Near(tooth.TopLine.Start, {1.985, 5}, 1e-3));
}

// A back that ends below the top and right of its end: the lines pass each other only with a radius under
// 0.2. From 0.55 by tenths: 0.15.
TEST(FitBackRadius, ShortensARadiusWhoseLinesDoNotMeetByATenth) {
  ToothProfile tooth;
  tooth.BackLine = {{1, 2}, {1, 2.5}};
  tooth.TopLine = {{1, 5}, {1.2, 5}};
  tooth.BackArc.Radius = 0.55;
  FitBackRadius(tooth, Kit);
  EXPECT_NEAR(tooth.BackArc.Radius, 0.15, 1e-9);
  EXPECT_TRUE(Near(tooth.BackArc.Center(), {1.15, 4.85}, 1e-3));
}

TEST(FitBackRadius, EndsAtZeroAndLeavesLinesThatNeverMeet) {
  ToothProfile tooth;
  tooth.BackLine = {{1, 2}, {1, 2.5}};
  tooth.TopLine = {{0.5, 5}, {0.9, 5}};
  tooth.BackArc.Radius = 0.25;
  FitBackRadius(tooth, Kit);
  EXPECT_EQ(tooth.BackArc.Radius, 0);
  EXPECT_TRUE(Same(tooth.BackLine, {{1, 2}, {1, 2.5}}));
  EXPECT_TRUE(Same(tooth.TopLine, {{0.5, 5}, {0.9, 5}}));
}

}  // namespace
}  // namespace tarnwick
