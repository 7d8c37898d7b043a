#include "geometry/modSetDepth.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "geometry/modGulletArea.h"
#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

/// A tooth whose every arc lies as deep as one inch, under a hook of 45 degrees: a quarter deeper is a
/// quarter back.
struct DepthBench : Workbench {
  DepthBench(int style, Flag seat) {
    Saw.ToothStyle = static_cast<std::int16_t>(style);
    Saw.Width = 5.1;
    Saw.TipClear = 0.1;
    Saw.HookAngle = 45;
    Saw.SeatInfo.State = seat;
    Saw.GulletInfo.Radius = 0.5;
    Saw.GulletInfo.Depth = 1.25;
    Tooth.Style = Saw.ToothStyle;
    Tooth.FaceLine = {{0, 5}, {-0.25, 4.75}};
    Tooth.SeatLine = {{-0.25, 4.75}, {0, 4.5}};
    Tooth.DropLine = {{0, 4.5}, {-0.125, 4.375}};
    Tooth.FirstArc = {0.5, 4.5, 0.25, 135, 200};
    Tooth.SecondArc = {1, 4.5, 0.5, 200, 250};
    Tooth.ThirdArc = {1.5, 4.25, 0.25, 250, 300};
    Tooth.GulletArc = {0.5, 4.5, 0.5, 180, 300};
    Tooth.BottomLine = {{1, 4}, {1.25, 4}};
    Tooth.BackLine = {{2, 4}, {2.5, 4.5}};
    Tooth.TopLine = {{2.5, 4.5}, {3, 5}};
    if (seat == False) {
      Tooth.SeatLine = {Tooth.FaceLine.End, Tooth.FaceLine.End};
      Tooth.DropLine = Tooth.SeatLine;
    }
  }
};

bool Moved(const ToothLine& was, const ToothLine& is, double dx, double dy) {
  return Near(is, {{was.Start.X + dx, was.Start.Y + dy}, {was.End.X + dx, was.End.Y + dy}}, 1e-12);
}
bool Moved(const ToothArc& was, const ToothArc& is, double dx, double dy) {
  return Near(is.Center(), {was.CenterX + dx, was.CenterY + dy}, 1e-12) && is.Radius == was.Radius &&
         is.StartAngle == was.StartAngle && is.EndAngle == was.EndAngle;
}

// ---- chains

struct ChainRow {
  const char* Name;
  int Style;
  double First, Second, Third, Gullet, Floor;  // which of them move with the gullet: 1 or 0
  friend void PrintTo(const ChainRow& row, std::ostream* out) { *out << row.Name; }
};
class DepthOfAChain : public testing::TestWithParam<ChainRow> {};

TEST_P(DepthOfAChain, MovesAlongTheHookLineBothWays) {
  for (const Flag seat : {True, False}) {
    for (const double depth : {1.25, 0.75}) {
      SCOPED_TRACE((seat == False ? "no seat, depth " : "seat, depth ") + std::to_string(depth));
      if (GetParam().Style == SquareBack && depth < 1 && seat != False) continue;  // a case of its own
      DepthBench bench(GetParam().Style, seat);
      const ToothProfile before = bench.Tooth;
      SetToothDepth(bench.Work, depth);
      const ToothProfile& tooth = bench.Tooth;
      const double d = 1 - depth;  // up, and as much forward
      const auto part = [&](double moves) { return moves * d; };
      EXPECT_TRUE(Moved(before.FirstArc, tooth.FirstArc, part(GetParam().First), part(GetParam().First)));
      EXPECT_TRUE(Moved(before.SecondArc, tooth.SecondArc, part(GetParam().Second), part(GetParam().Second)));
      EXPECT_TRUE(Moved(before.ThirdArc, tooth.ThirdArc, part(GetParam().Third), part(GetParam().Third)));
      EXPECT_TRUE(Moved(before.GulletArc, tooth.GulletArc, part(GetParam().Gullet), part(GetParam().Gullet)));
      EXPECT_TRUE(Moved(before.BottomLine, tooth.BottomLine, part(GetParam().Floor), part(GetParam().Floor)));
      EXPECT_TRUE(Moved(before.BackLine, tooth.BackLine, d, d));
      EXPECT_TRUE(Same(before.TopLine, tooth.TopLine));
      if (seat != False) {
        EXPECT_TRUE(Same(before.FaceLine, tooth.FaceLine));
        EXPECT_TRUE(Same(before.SeatLine, tooth.SeatLine));
        EXPECT_TRUE(Near(tooth.DropLine, {{0, 4.5}, {-0.125 + d, 4.375 + d}}, 1e-12));
      } else {
        const Point end{-0.25 + d, 4.75 + d};
        EXPECT_TRUE(Near(tooth.FaceLine, {{0, 5}, end}, 1e-12));
        EXPECT_TRUE(Near(tooth.SeatLine, {end, end}, 1e-12));
        EXPECT_TRUE(Near(tooth.DropLine, {end, end}, 1e-12));
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, DepthOfAChain,
                         testing::Values(ChainRow{"DoubleRadius", 4, 1, 1, 0, 0, 0},
                                         ChainRow{"TripleRadius", 5, 1, 1, 1, 0, 0},
                                         ChainRow{"FlatBottom", 6, 1, 1, 0, 0, 1},
                                         ChainRow{"SquareBack", 1, 0, 0, 0, 1, 0}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(SetToothDepth, GoesByTheArcOfItsStyle) {
  DepthBench twofold(DoubleRadius, True);
  twofold.Tooth.SecondArc.CenterY = 4.25;  // as deep as 1.25
  SetToothDepth(twofold.Work, 1.25);
  EXPECT_EQ(twofold.Tooth.FirstArc.CenterY, 4.5);

  DepthBench threefold(TripleRadius, True);
  threefold.Tooth.ThirdArc.CenterY = 4;
  SetToothDepth(threefold.Work, 1.25);
  EXPECT_EQ(threefold.Tooth.FirstArc.CenterY, 4.5);
}

// ---- the single arc with a seat, shallower

// A quarter up: the circle then has its centre 0.25 above the seat's end, and sqrt(0.5² - 0.25²) right of it.
TEST(SetToothDepth, SlidesTheArcUpThroughTheSeatsEndAboveTheArcsOwnDepth) {
  DepthBench bench(RoundBack, True);
  bench.Tooth.ArcDepth = 0.8;
  SetToothDepth(bench.Work, 0.75);
  const double reach = std::sqrt(0.1875);
  const Point seat{0, 4.5};
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {reach, 4.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {seat, seat}, 0));
  EXPECT_NEAR(bench.Tooth.GulletArc.StartAngle, 210, 1e-3);
  EXPECT_TRUE(Near(StartOf(bench.Tooth.GulletArc), seat, 2e-5));
  EXPECT_TRUE(Moved({{2, 4}, {2.5, 4.5}}, bench.Tooth.BackLine, reach - 0.5, 0.25));
}

TEST(SetToothDepth, CountsAMissedSeatAsNoWayAside) {
  DepthBench bench(RoundBack, True);
  bench.Tooth.ArcDepth = 0.8;
  bench.Tooth.GulletArc.Radius = 0.2;  // as deep as 0.7
  SetToothDepth(bench.Work, 0.25);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0, 4.95}, 1e-12));
}

TEST(SetToothDepth, ShortensTheDropDownToTheArcsOwnDepth) {
  for (const double arcDepth : {0.75, 0.5}) {
    DepthBench bench(RoundBack, True);
    bench.Tooth.ArcDepth = arcDepth;
    bench.Tooth.DropLine.Start = {7, 7};
    SetToothDepth(bench.Work, 0.75);
    EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.75, 4.75}, 1e-12));
    EXPECT_EQ(bench.Tooth.GulletArc.StartAngle, 180);
    EXPECT_TRUE(Near(bench.Tooth.DropLine, {{0, 4.5}, {0.25, 4.75}}, 1e-12)) << "to the arc's start";
    EXPECT_TRUE(Moved({{2, 4}, {2.5, 4.5}}, bench.Tooth.BackLine, 0.25, 0.25));
  }
}

TEST(SetToothDepth, LeavesAToothOfThatDepth) {
  DepthBench bench(SquareBack, True);
  const ToothProfile before = bench.Tooth;
  SetToothDepth(bench.Work, 1);
  EXPECT_TRUE(Same(before.GulletArc, bench.Tooth.GulletArc));
  EXPECT_TRUE(Same(before.DropLine, bench.Tooth.DropLine));
  EXPECT_TRUE(Same(before.BackLine, bench.Tooth.BackLine));
}

TEST(SetToothDepth, CountsOtherNumbersAmongTheSingleArcs) {
  DepthBench bench(OShape, True);
  SetToothDepth(bench.Work, 1.25);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {0.25, 4.25}, 1e-12));
}

// ---- the Frost tooth

class FrostDepthAskedFor : public testing::TestWithParam<double> {};

// The design's depth is 1.25, a quarter below the third arc.
TEST_P(FrostDepthAskedFor, HasNoEffect) {
  for (const Flag seat : {True, False}) {
    DepthBench bench(FrostTooth, seat);
    const ToothProfile before = bench.Tooth;
    SetToothDepth(bench.Work, GetParam());
    EXPECT_TRUE(Moved(before.FirstArc, bench.Tooth.FirstArc, -0.25, -0.25));
    EXPECT_TRUE(Moved(before.SecondArc, bench.Tooth.SecondArc, -0.25, -0.25));
    EXPECT_TRUE(Moved(before.ThirdArc, bench.Tooth.ThirdArc, -0.25, -0.25));
    EXPECT_TRUE(Same(before.GulletArc, bench.Tooth.GulletArc));
    EXPECT_TRUE(Same(before.BackLine, bench.Tooth.BackLine));
    EXPECT_TRUE(Same(before.FaceLine, bench.Tooth.FaceLine));
    EXPECT_EQ(bench.Tooth.DropLine.Start, before.DropLine.Start);
    EXPECT_TRUE(
        Near(bench.Tooth.DropLine.End, {before.DropLine.End.X - 0.25, before.DropLine.End.Y - 0.25}, 1e-12));
    EXPECT_EQ(bench.Tooth.SeatLine.End, seat == False ? bench.Tooth.FaceLine.End : before.SeatLine.End);
  }
}

INSTANTIATE_TEST_SUITE_P(Depths, FrostDepthAskedFor, testing::Values(0.0, 0.5, 1.25, 3.0));

TEST(SetToothDepth, LeavesAFrostChainThatLiesDeepEnough) {
  DepthBench bench(FrostTooth, True);
  bench.Saw.GulletInfo.Depth = 0.75;
  const ToothProfile before = bench.Tooth;
  SetToothDepth(bench.Work, 0.75);
  EXPECT_TRUE(Same(before.FirstArc, bench.Tooth.FirstArc));
  EXPECT_TRUE(Same(before.DropLine, bench.Tooth.DropLine));
}

// Half an inch up: 0.3 above the drop's start and 0.4 right of it. Back and top stay where they were.
TEST(SetToothDepth, RaisesTheSingleFrostArc) {
  DepthBench bench(FrostTooth, True);
  bench.Tooth.SecondArc = bench.Tooth.ThirdArc = {};
  bench.Tooth.FirstArc = bench.Tooth.GulletArc = {1.5, 4, 0.5, 180, 340};
  bench.Tooth.DropLine = {{1, 4.2}, {1, 4}};
  bench.Saw.GulletInfo.Depth = 1;  // half an inch above its 5 - 4 + 0.5
  SetToothDepth(bench.Work, 2);
  EXPECT_TRUE(Near(bench.Tooth.GulletArc.Center(), {1.4, 4.5}, 1e-12));
  EXPECT_NEAR(bench.Tooth.GulletArc.StartAngle, 216.869898, 1e-6);
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, bench.Tooth.GulletArc));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{1, 4.2}, {1, 4.2}}, 0));
  EXPECT_TRUE(Same(bench.Tooth.BackLine, {{2, 4}, {2.5, 4.5}}));
}

}  // namespace
}  // namespace tarnwick
