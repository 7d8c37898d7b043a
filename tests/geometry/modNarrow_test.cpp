#include "geometry/modNarrow.h"

#include <gtest/gtest.h>

#include <string>

#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

/// An arc of half an inch on (1, 4); the next tip lies at `way` from there.
struct NarrowBench : Workbench {
  explicit NarrowBench(Point way) {
    Saw.ToothStyle = NarrowStyle;
    Saw.Pitch = 2;
    Saw.ClearAngle = 12;
    Tooth.FaceLine = {{1 + way.X - 2, 4 + way.Y}, {0.5, 4.5}};
    Tooth.DropLine = {{0.5, 4.5}, {0.5, 4}};
    Tooth.GulletArc = {1, 4, 0.5, 180, 300};
    Tooth.BackLine = {{1, 2}, {3, 4}};
  }
};

struct TopRow {
  const char* Name;
  Point WayToTip;
  double EndAngle;
  Point Touch;  // from the centre
  double ClearAngle;
  friend void PrintTo(const TopRow& row, std::ostream* out) { *out << row.Name; }
};
class NarrowTop : public testing::TestWithParam<TopRow> {};

TEST_P(NarrowTop, IsTheTangentFromTheNextTip) {
  NarrowBench bench(GetParam().WayToTip);
  CloseNarrow(bench.Work);
  const Point touch{1 + GetParam().Touch.X, 4 + GetParam().Touch.Y};
  EXPECT_NEAR(bench.Tooth.GulletArc.EndAngle, GetParam().EndAngle, 1e-3);
  EXPECT_TRUE(Near(bench.Tooth.TopLine.Start, touch, 2e-5));
  EXPECT_TRUE(Near(bench.Tooth.TopLine.End, {1 + GetParam().WayToTip.X, 4 + GetParam().WayToTip.Y}, 1e-12));
  EXPECT_NEAR(bench.Saw.ClearAngle, GetParam().ClearAngle, 2e-3) << "a result, whatever was typed";
  EXPECT_TRUE(Same(bench.Tooth.BackLine, ToothLine{}));
  EXPECT_EQ(bench.Tooth.GulletArc.Center(), (Point{1, 4}));
  EXPECT_EQ(bench.Tooth.GulletArc.StartAngle, 180);
  for (const double rounded :
       {bench.Tooth.TopLine.Start.X, bench.Tooth.TopLine.Start.Y, bench.Saw.ClearAngle}) {
    EXPECT_EQ(rounded, bench.Kit.RoundTo(rounded));
  }
}

// A tip 1.3 away sees the half inch under arctan(0.5 / 1.2) = 22.619865 degrees.
INSTANTIATE_TEST_SUITE_P(
    Tips, NarrowTop,
    testing::Values(TopRow{"Above", {1.2, 0.5}, 315.239730, {0.3550296, -0.3520710}, 45.239730},
                    TopRow{"LevelWithTheCentre", {1.3, 0}, 292.619865, {0.1923077, -0.4615385}, 22.619865},
                    TopRow{"AtTheFootOfTheArc", {1.2, -0.5}, 270, {0, -0.5}, 0},
                    TopRow{"WithinTheArc", {0.3, 0}, 270, {0, -0.5}, 59.036243}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(CloseNarrow, WorksTheAreaOut) {
  NarrowBench bench({1.2, 0.5});
  CloseNarrow(bench.Work);
  EXPECT_GT(bench.Saw.GulletInfo.Area, 0);
  EXPECT_EQ(bench.Tooth.Area, bench.Saw.GulletInfo.Area);
}

// A quarter circle less its triangle: 0.5² / 2 * (pi / 2 - 1).
TEST(AddNarrowFigures, FillsTheArcUpToTheTop) {
  NarrowBench bench({1.2, -0.5});
  bench.Tooth.GulletArc.EndAngle = 270;
  bench.Tooth.TopLine.Start = {1, 3.5};
  EXPECT_NEAR(AddNarrowFigures(bench.Work, 3), 3.071350, 1e-4);
}

}  // namespace
}  // namespace tarnwick
