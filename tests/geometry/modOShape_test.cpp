#include "geometry/modOShape.h"

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

// ---- the arc

struct ArcRow {
  const char* Name;
  double Pitch, Radius, Hook;
  double WantRadius, StartAngle;
  friend void PrintTo(const ArcRow& row, std::ostream* out) { *out << row.Name; }
};
class OShapeArc : public testing::TestWithParam<ArcRow> {};

TEST_P(OShapeArc, RunsFromTheFaceToTheFootOfItsCircle) {
  Workbench bench;
  bench.Saw.ToothStyle = OShape;
  bench.Saw.Pitch = GetParam().Pitch;
  bench.Saw.HookAngle = GetParam().Hook;
  bench.Saw.GulletInfo.Radius1 = GetParam().Radius;
  bench.Tooth.DropLine.End = {1, 4};
  PlaceOShape(bench.Work);
  const double r = GetParam().WantRadius, h = GetParam().Hook * Pi / 180;
  EXPECT_EQ(bench.Saw.GulletInfo.Radius1, r);
  EXPECT_EQ(bench.Tooth.FirstArc.Radius, r);
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {1 + r * std::cos(h), 4 - r * std::sin(h)}, 1e-12));
  EXPECT_EQ(bench.Tooth.FirstArc.StartAngle, GetParam().StartAngle);
  EXPECT_EQ(bench.Tooth.FirstArc.EndAngle, 270);
}

INSTANTIATE_TEST_SUITE_P(Arcs, OShapeArc,
                         testing::Values(ArcRow{"Upright", 2, 0.5, 0, 0.5, 180},
                                         ArcRow{"Hooked", 2, 0.5, 30, 0.5, 150},
                                         ArcRow{"LeaningBack", 2, 0.5, -30, 0.5, 210},
                                         ArcRow{"RadiusOverHalfThePitch", 1, 0.75, 0, 0.5, 180},
                                         ArcRow{"RadiusJustHalfThePitch", 1, 0.5, 0, 0.5, 180},
                                         ArcRow{"AngleBroughtBackOnce", 2, 0.5, 200, 0.5, 340}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- depth

Workbench& OTooth(Workbench& bench, Flag seat, double depth) {
  bench.Saw.ToothStyle = OShape;
  bench.Saw.Width = 5;
  bench.Saw.HookAngle = 45;
  bench.Saw.SeatInfo.State = seat;
  bench.Saw.GulletInfo.Depth = depth;
  bench.Tooth.FaceLine = {{0, 5}, {-0.5, 4.5}};
  bench.Tooth.SeatLine = {{-0.5, 4.5}, {-0.25, 4.25}};
  bench.Tooth.DropLine = {{-0.25, 4.25}, {-0.25, 4.25}};
  bench.Tooth.FirstArc = {0.5, 4, 0.5, 135, 270};
  return bench;
}

TEST(FirstArcDepth, CountsFromTheTipToTheTopOfTheCircle) {
  Workbench bench;
  EXPECT_DOUBLE_EQ(FirstArcDepth(OTooth(bench, True, 0).Work), 1.5);
}

TEST(ApplyOShapeDepth, LowersTheArcBelowASeat) {
  Workbench bench;
  ApplyOShapeDepth(OTooth(bench, True, 1.75).Work);
  EXPECT_TRUE(Near(bench.Tooth.FirstArc.Center(), {0.25, 3.75}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{-0.25, 4.25}, {-0.5, 4}}, 1e-12));
}

TEST(ApplyOShapeDepth, LengthensTheFaceWithoutASeat) {
  Workbench bench;
  ApplyOShapeDepth(OTooth(bench, False, 1.75).Work);
  EXPECT_TRUE(Near(bench.Tooth.FaceLine, {{0, 5}, {-0.75, 4.25}}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {{-0.75, 4.25}, {-0.75, 4.25}}, 1e-12));
}

TEST(ApplyOShapeDepth, DoesNothingForAShallowerGullet) {
  Workbench bench;
  ApplyOShapeDepth(OTooth(bench, True, 1.25).Work);
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, {0.5, 4, 0.5, 135, 270}));
}

// ---- floor and top

struct WidthRow {
  const char* Name;
  double Pitch, Radius, Width, Want;
  friend void PrintTo(const WidthRow& row, std::ostream* out) { *out << row.Name; }
};
class OShapeWidth : public testing::TestWithParam<WidthRow> {};

TEST_P(OShapeWidth, IsBoundInTheRecord) {
  Workbench bench;
  bench.Saw.ToothStyle = OShape;
  bench.Saw.Pitch = GetParam().Pitch;
  bench.Saw.GulletInfo.Radius1 = GetParam().Radius;
  bench.Saw.GulletInfo.Width = GetParam().Width;
  bench.Tooth.FirstArc = {1.5, 4, GetParam().Radius, 180, 270};
  CloseOShape(bench.Work);
  EXPECT_DOUBLE_EQ(bench.Saw.GulletInfo.Width, GetParam().Want);
  const double radius = GetParam().Radius;
  EXPECT_TRUE(
      Near(bench.Tooth.BottomLine, {{1.5, 4 - radius}, {1.5 - radius + GetParam().Want, 4 - radius}}, 1e-12));
}

INSTANTIATE_TEST_SUITE_P(
    Widths, OShapeWidth,
    testing::Values(WidthRow{"NotSet", 2, 0.5, 0, 0.55}, WidthRow{"TooSmall", 2, 0.5, 0.54, 0.55},
                    WidthRow{"AtTheLeast", 2, 0.5, 0.55, 0.55}, WidthRow{"Between", 2, 0.5, 1, 1},
                    WidthRow{"AtTheGreatest", 2, 0.5, 1.6, 1.6}, WidthRow{"TooGreat", 2, 0.5, 1.7, 1.6},
                    WidthRow{"LeastIsNotHeldToThePitch", 0.6, 0.5, 0.2, 0.55},
                    WidthRow{"GreatestIsNotHeldToTheRadius", 0.6, 0.5, 0.6, 0.48}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(CloseOShape, DropsTheTopStraightOntoTheFloor) {
  Workbench bench;
  bench.Saw.ToothStyle = OShape;
  bench.Saw.Pitch = 3;
  bench.Saw.ClearAngle = 12;
  bench.Saw.GulletInfo.Radius1 = 0.5;
  bench.Saw.GulletInfo.Width = 1;
  bench.Tooth.FaceLine = {{0, 5}, {1, 4}};
  bench.Tooth.DropLine = {{1, 4}, {1, 4}};
  bench.Tooth.FirstArc = {1.5, 4, 0.5, 180, 270};
  bench.Tooth.BackLine = {{1, 2}, {3, 4}};
  CloseOShape(bench.Work);
  EXPECT_TRUE(Same(bench.Tooth.BottomLine, {{1.5, 3.5}, {2, 3.5}}));
  EXPECT_TRUE(Same(bench.Tooth.TopLine, {{2, 3.5}, {3, 5}}));
  EXPECT_TRUE(Same(bench.Tooth.BackLine, ToothLine{}));
  EXPECT_NEAR(bench.Saw.ClearAngle, 56.30993, 1e-9) << "arctan 1.5, whatever was typed";
  EXPECT_GT(bench.Saw.GulletInfo.Area, 0);
  EXPECT_EQ(bench.Tooth.Area, bench.Saw.GulletInfo.Area);
}

// A quarter circle less its triangle, 0.071350, and the triangle from the face over the floor, 0.125.
TEST(AddOShapeFigures, FillsArcAndFloor) {
  Workbench bench;
  bench.Tooth.DropLine.End = {1, 4};
  bench.Tooth.FirstArc = {1.5, 4, 0.5, 180, 270};
  bench.Tooth.BottomLine = {{1.5, 3.5}, {2, 3.5}};
  bench.Tooth.TopLine.Start = {2, 3.5};
  EXPECT_NEAR(AddOShapeFigures(bench.Work, 3), 3.196350, 1e-4);
}

}  // namespace
}  // namespace tarnwick
