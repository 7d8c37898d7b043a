#include "geometry/modFlatBottom.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

// ---- corrections

struct MeasureRow {
  const char* Name;
  double Pitch;
  double Radius1, Radius2, Width, BottomAngle;
  double Want1, Want2, WantWidth, WantAngle;
  friend void PrintTo(const MeasureRow& row, std::ostream* out) { *out << row.Name; }
};
class FlatBottomMeasures : public testing::TestWithParam<MeasureRow> {};

TEST_P(FlatBottomMeasures, AreBoundInTheRecord) {
  const MeasureRow& row = GetParam();
  Workbench bench;
  BandSaw::Gullet& gullet = bench.Saw.GulletInfo;
  bench.Saw.NumTeeth = 12;
  bench.Saw.Length = row.Pitch;
  bench.Saw.Pitch = 77;  // the limits go by length and count
  gullet.Radius1 = row.Radius1;
  gullet.Radius2 = row.Radius2;
  gullet.Width = row.Width;
  gullet.BottomAngle = row.BottomAngle;
  PlaceFlatBottom(bench.Work);
  EXPECT_DOUBLE_EQ(gullet.Radius1, row.Want1);
  EXPECT_DOUBLE_EQ(gullet.Radius2, row.Want2);
  EXPECT_DOUBLE_EQ(gullet.Width, row.WantWidth);
  EXPECT_EQ(gullet.BottomAngle, row.WantAngle);
  EXPECT_EQ(bench.Tooth.FirstArc.Radius, gullet.Radius1);
  EXPECT_EQ(bench.Tooth.SecondArc.Radius, gullet.Radius2);
  EXPECT_TRUE(bench.Say.Shown.empty());
}

// The width lies between r1 + r2 + 0.0625 and half the pitch, if that is more.
INSTANTIATE_TEST_SUITE_P(
    Measures, FlatBottomMeasures,
    testing::Values(MeasureRow{"TooSteep", 2, 0.25, 0.25, 0.75, 60, 0.25, 0.25, 0.75, 45},
                    MeasureRow{"Steepest", 2, 0.25, 0.25, 0.75, 45, 0.25, 0.25, 0.75, 45},
                    MeasureRow{"FallingForward", 2, 0.25, 0.25, 0.75, -5, 0.25, 0.25, 0.75, 0},
                    MeasureRow{"FirstAboveSecond", 2, 0.5, 0.25, 0.75, 0, 0.25, 0.25, 0.75, 0},
                    MeasureRow{"FirstTooSmall", 2, 0.01, 0.25, 0.75, 0, 0.03, 0.25, 0.75, 0},
                    MeasureRow{"SecondTooSmallBindsTheFirst", 2, 0.2, 0.05, 0.75, 0, 0.125, 0.125, 0.75, 0},
                    MeasureRow{"NoWidth", 2, 0.25, 0.25, 0, 0, 0.25, 0.25, 0.5625, 0},
                    MeasureRow{"WidthTooGreat", 2, 0.25, 0.25, 1.5, 0, 0.25, 0.25, 1, 0},
                    MeasureRow{"WidthAtHalfThePitch", 2, 0.25, 0.25, 1, 0, 0.25, 0.25, 1, 0},
                    MeasureRow{"PitchTooShortForTheRadii", 0.5, 0.25, 0.25, 1, 0, 0.25, 0.25, 0.5625, 0},
                    MeasureRow{"PitchTooShortAndNoWidth", 0.5, 0.25, 0.25, 0, 0, 0.25, 0.25, 0.5625, 0},
                    MeasureRow{"NoLength", 0, 0.25, 0.25, 1, 0, 0.25, 0.25, 0.5625, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(FlatBottomMeasures, CountABandWithoutTeethAsOneOfNoPitch) {
  Workbench bench;
  bench.Saw.Length = 2;
  bench.Saw.GulletInfo.Radius1 = bench.Saw.GulletInfo.Radius2 = 0.25;
  bench.Saw.GulletInfo.Width = 1;
  PlaceFlatBottom(bench.Work);
  EXPECT_EQ(bench.Saw.GulletInfo.Width, 0.5625);
  EXPECT_TRUE(bench.Say.Shown.empty()) << "the pitch fails softly";
}

// ---- placing

/// Radii of 0.25 and 0.5 and a quarter inch of floor, hung on (1, 4).
struct FlatBench : Workbench {
  FlatBench(double hook, double slope, double backAngle) {
    Saw.ToothStyle = FlatBottom;
    Saw.Length = 2;
    Saw.NumTeeth = 12;
    Saw.HookAngle = hook;
    Saw.GulletInfo.BackAngle = backAngle;
    Saw.GulletInfo.Radius1 = 0.25;
    Saw.GulletInfo.Radius2 = 0.5;
    Saw.GulletInfo.Width = 1;
    Saw.GulletInfo.BottomAngle = slope;
    Tooth.DropLine = {{1, 4.25}, {1, 4}};
  }
};

TEST(PlaceFlatBottom, LaysALevelFloorBetweenTheArcs) {
  FlatBench bench(0, 0, 20);
  PlaceFlatBottom(bench.Work);
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, {1.25, 4, 0.25, 180, 270}));
  EXPECT_TRUE(Near(bench.Tooth.BottomLine, {{1.25, 3.75}, {1.5, 3.75}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {1.5, 4.25}, 1e-12));
  EXPECT_EQ(bench.Tooth.SecondArc.StartAngle, 270);
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, 340);
}

TEST(PlaceFlatBottom, SlopesTheFloorDownTowardTheBack) {
  FlatBench bench(10, 30, 20);
  PlaceFlatBottom(bench.Work);
  const double h = 10 * Pi / 180, c30 = std::sqrt(0.75);
  const Point first{1 + 0.25 * std::cos(h), 4 - 0.25 * std::sin(h)};
  const Point start{first.X - 0.125, first.Y - 0.25 * c30};
  const Point end{start.X + 0.25 * c30, start.Y - 0.125};
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), first, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.BottomLine, {start, end}, 3e-5));
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {end.X + 0.25, end.Y + 0.5 * c30}, 4e-5));
  EXPECT_EQ(bench.Tooth.FirstArc.StartAngle, 170);
  EXPECT_EQ(bench.Tooth.FirstArc.EndAngle, 240);
  EXPECT_EQ(bench.Tooth.SecondArc.StartAngle, 240);
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, 330);
  for (const double rounded :
       {bench.Tooth.BottomLine.Start.X, bench.Tooth.BottomLine.Start.Y, bench.Tooth.BottomLine.End.X,
        bench.Tooth.BottomLine.End.Y, bench.Tooth.SecondArc.CenterX, bench.Tooth.SecondArc.CenterY}) {
    EXPECT_EQ(rounded, bench.Kit.RoundTo(rounded));
  }
}

TEST(PlaceFlatBottom, BringsAnglesBackOnce) {
  FlatBench bench(-40, 0, 20);
  PlaceFlatBottom(bench.Work);
  EXPECT_EQ(bench.Tooth.FirstArc.StartAngle, 220);
  EXPECT_EQ(bench.Tooth.SecondArc.EndAngle, 20);
}

// ---- depth

TEST(ApplyFlatBottomDepth, LowersTheFloorWithTheArcs) {
  FlatBench bench(0, 0, 20);
  bench.Saw.Width = 5;
  PlaceFlatBottom(bench.Work);
  bench.Saw.HookAngle = 45;
  bench.Saw.SeatInfo.State = True;
  bench.Saw.GulletInfo.Depth = 1.5;  // 0.25 below the second arc's 5 - 4.25 + 0.5
  ApplyFlatBottomDepth(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {1, 3.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SecondArc.Center(), {1.25, 4}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.BottomLine, {{1, 3.5}, {1.25, 3.5}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{1, 4.25}, {0.75, 3.75}}, 1e-12));
}

TEST(ApplyFlatBottomDepth, DoesNothingForAShallowerGullet) {
  FlatBench bench(0, 0, 20);
  bench.Saw.Width = 5;
  bench.Saw.GulletInfo.Depth = 1.2;
  PlaceFlatBottom(bench.Work);
  const ToothProfile before = bench.Tooth;
  ApplyFlatBottomDepth(bench.Work);
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, before.FirstArc));
  EXPECT_TRUE(Same(bench.Tooth.SecondArc, before.SecondArc));
  EXPECT_TRUE(Same(bench.Tooth.BottomLine, before.BottomLine));
}

// ---- area

// Under the first arc 0.017837; under the second, with the long chord over the floor of 0.901388,
// 0.098729 where its own would give 0.071350; between ends and floor 0.21875.
TEST(AddFlatBottomFigures, TakesTheSecondChordOverTheFloor) {
  FlatBench bench(0, 0, 0);
  PlaceFlatBottom(bench.Work);
  bench.Tooth.BackLine.Start = {2, 4.25};
  EXPECT_NEAR(AddFlatBottomFigures(bench.Work, 3), 3 + 0.017837 + 0.098729 + 0.21875, 1e-4);
}

// ---- failures

TEST(PlaceFlatBottom, StopsAtAFailureAndSaysSo) {
  FlatBench bench(0, 50, 20);
  bench.Saw.GulletInfo.Radius1 = bench.Saw.GulletInfo.Radius2 = 1e308;
  PlaceFlatBottom(bench.Work);
  EXPECT_EQ(bench.Say.Texts(), std::vector{std::string("Overflow\nError Number = 6")});
  EXPECT_EQ(bench.Saw.GulletInfo.BottomAngle, 45) << "what was corrected before stays";
  EXPECT_EQ(bench.Saw.GulletInfo.Width, 1);
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, {0, 0, 1e308, 0, 0}));
  EXPECT_TRUE(Same(bench.Tooth.SecondArc, {0, 0, 1e308, 0, 0}));
}

}  // namespace
}  // namespace tarnwick
