#include "geometry/modToothFace.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Workbench;

const double Cos30 = std::sqrt(0.75);

TEST(PlaceFace, PutsTheTipBelowTheWidthOfTheBand) {
  Workbench bench;
  bench.Saw.Width = 5;
  PlaceFace(bench.Work);
  EXPECT_EQ(bench.Tooth.FaceLine.Start, (Point{0, 5}));
  bench.Saw.TipClear = 0.125;
  PlaceFace(bench.Work);
  EXPECT_EQ(bench.Tooth.FaceLine.Start, (Point{0, 4.875}));
}

TEST(PlaceFace, StepsBackSquareToTheFaceForASeat) {
  Workbench bench;
  bench.Saw.Width = 5;
  bench.Saw.HookAngle = 30;
  bench.Saw.SeatInfo = {True, 0.05, 0.2};
  PlaceFace(bench.Work);
  const Point top{-0.1, 5 - 0.2 * Cos30};
  const Point end{top.X + 0.05 * Cos30, top.Y - 0.025};
  EXPECT_TRUE(Near(bench.Tooth.FaceLine, {{0, 5}, top}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {top, end}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {end, end}, 1e-12));
}

TEST(PlaceFace, LeansBackWithANegativeHook) {
  Workbench bench;
  bench.Saw.Width = 5;
  bench.Saw.HookAngle = -30;
  bench.Saw.SeatInfo = {True, 0.05, 0.2};
  PlaceFace(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.FaceLine.End, {0.1, 5 - 0.2 * Cos30}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SeatLine.End, {0.1 + 0.05 * Cos30, 5 - 0.2 * Cos30 + 0.025}, 1e-12));
}

struct StubRow {
  const char* Name;
  std::int16_t Style;
  double Radius, Want;
  friend void PrintTo(const StubRow& row, std::ostream* out) { *out << row.Name; }
};
class FaceWithoutASeat : public testing::TestWithParam<StubRow> {};

TEST_P(FaceWithoutASeat, IsAStubOnly) {
  Workbench bench;
  bench.Saw.ToothStyle = GetParam().Style;
  bench.Saw.Width = 5;
  bench.Saw.HookAngle = 30;
  bench.Saw.SeatInfo = {False, 0.05, 0.2};
  bench.Saw.GulletInfo.Radius = GetParam().Radius;
  bench.Saw.GulletInfo.Radius1 = 0.7;
  PlaceFace(bench.Work);
  const double stub = GetParam().Want;
  const Point end{-stub / 2, 5 - stub * Cos30};
  EXPECT_TRUE(Near(bench.Tooth.FaceLine.End, end, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {end, end}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {end, end}, 1e-12));
}

INSTANTIATE_TEST_SUITE_P(
    Radii, FaceWithoutASeat,
    testing::Values(StubRow{"ATwelfthOfTheRadius", SquareBack, 0.6, 0.05},
                    StubRow{"NoRadius", SquareBack, 0, 0.1}, StubRow{"NegativeRadius", RoundBack, -0.6, 0.1},
                    StubRow{"StyleOfOtherRadii", DoubleRadius, 0, 0.1},
                    StubRow{"StyleOfOtherRadiiWithARadiusLeft", DoubleRadius, 0.6, 0.05}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(PlaceFace, TakesAnyFlagThatIsNotZeroForASeat) {
  Workbench bench;
  bench.Saw.Width = 5;
  bench.Saw.SeatInfo = {1, 0.05, 0.2};
  PlaceFace(bench.Work);
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {{0, 4.8}, {0.05, 4.8}}, 1e-12));
}

}  // namespace
}  // namespace tarnwick
