#include "model/modZoom.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

double Cos(double degrees) { return std::cos(degrees * Pi / 180); }
double Sin(double degrees) { return std::sin(degrees * Pi / 180); }

// ---- the polar table

struct PolarRow {
  double Angle, X, Y;  // of radius 1
  friend void PrintTo(const PolarRow& row, std::ostream* out) { *out << row.Angle << " degrees"; }
};
class PolarTable : public testing::TestWithParam<PolarRow> {};

TEST_P(PolarTable, GivesTheComponentsOfARadius) {
  const auto& [angle, x, y] = GetParam();
  EXPECT_NEAR(PolarX(2.5, angle), 2.5 * x, 1e-12);
  EXPECT_NEAR(PolarY(2.5, angle), 2.5 * y, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(Axes, PolarTable,
                         testing::Values(PolarRow{0, 1, 0}, PolarRow{90, 0, 1}, PolarRow{180, -1, 0},
                                         PolarRow{270, 0, -1}, PolarRow{360, 1, 0}));
INSTANTIATE_TEST_SUITE_P(Quadrants, PolarTable,
                         testing::Values(PolarRow{1, Cos(1), Sin(1)}, PolarRow{30, Cos(30), 0.5},
                                         PolarRow{89, Cos(89), Sin(89)}, PolarRow{91, -Cos(89), Sin(89)},
                                         PolarRow{150, -Cos(30), 0.5}, PolarRow{179, -Cos(1), Sin(1)},
                                         PolarRow{181, -Cos(1), -Sin(1)}, PolarRow{210, -Cos(30), -0.5},
                                         PolarRow{269, -Cos(89), -Sin(89)}, PolarRow{271, Cos(89), -Sin(89)},
                                         PolarRow{330, Cos(30), -0.5}, PolarRow{359, Cos(1), -Sin(1)}));
// Between the quadrants and outside the circle lies nothing.
INSTANTIATE_TEST_SUITE_P(Gaps, PolarTable,
                         testing::Values(PolarRow{0.5, 0, 0}, PolarRow{0.999999, 0, 0}, PolarRow{89.5, 0, 0},
                                         PolarRow{89.00001, 0, 0}, PolarRow{90.5, 0, 0},
                                         PolarRow{179.5, 0, 0}, PolarRow{180.00001, 0, 0},
                                         PolarRow{269.9, 0, 0}, PolarRow{270.5, 0, 0}, PolarRow{359.5, 0, 0},
                                         PolarRow{-1, 0, 0}, PolarRow{-90, 0, 0}, PolarRow{360.5, 0, 0},
                                         PolarRow{370, 0, 0}));

TEST(PolarTable, IsExactOnTheAxes) {
  EXPECT_EQ(PolarX(2, 90), 0);
  EXPECT_EQ(PolarY(2, 180), 0);
  EXPECT_EQ(PolarX(2, 270), 0);
  EXPECT_EQ(PolarY(2, 360), 0);
}

// ---- the box around a drawing

// A box always contains these; the rounding rule takes a unit from the lower edge.
constexpr double SeedMinY = -0.999999;
constexpr double SeedMaxY = 1;

struct BoxRow {
  const char* Name;
  std::vector<Entity> Drawing;
  double MinX, MaxX, MinY, MaxY;
  friend void PrintTo(const BoxRow& row, std::ostream* out) { *out << row.Name; }
};
class DrawingBox : public testing::TestWithParam<BoxRow> {};

TEST_P(DrawingBox, ContainsTheDrawing) {
  const BoxRow& row = GetParam();
  EntityList list;
  list.Entities = row.Drawing;
  const Extents box = ComputeExtents(list);
  EXPECT_DOUBLE_EQ(box.MinX, row.MinX);
  EXPECT_DOUBLE_EQ(box.MaxX, row.MaxX);
  EXPECT_DOUBLE_EQ(box.MinY, row.MinY);
  EXPECT_DOUBLE_EQ(box.MaxY, row.MaxY);
  EXPECT_EQ(box.CenterX, RoundTo((box.MinX + box.MaxX) * 0.5, 6));
  EXPECT_EQ(box.CenterY, RoundTo((box.MinY + box.MaxY) * 0.5, 6));
}

std::string NameOf(const testing::TestParamInfo<BoxRow>& row) { return row.param.Name; }

INSTANTIATE_TEST_SUITE_P(
    Lines, DrawingBox,
    testing::Values(BoxRow{"None", {}, 0, 0, SeedMinY, SeedMaxY},
                    BoxRow{"InsideTheSeeds", {LineEntity{1, 1, 5, 0.5}}, 0, 5, SeedMinY, SeedMaxY},
                    BoxRow{"ToTheLeftAndDown", {LineEntity{-2, 0, 3, -4}}, -1.999999, 3, -3.999999, SeedMaxY},
                    BoxRow{"EndBeforeStart", {LineEntity{7, 8, 2, 0}}, 0, 7, SeedMinY, 8},
                    BoxRow{"EndOutside", {LineEntity{0, 0, 7.5, 2.25}}, 0, 7.5, SeedMinY, 2.25},
                    BoxRow{"Several", {LineEntity{0, 0, 3, 3}, LineEntity{9, 1, 2, 0}}, 0, 9, SeedMinY, 3},
                    BoxRow{"RoundedToSixPlaces",
                           {LineEntity{0, 0, 1.23456789, 2.00000099}},
                           0,
                           1.234567,
                           SeedMinY,
                           2.000001}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Circles, DrawingBox,
    testing::Values(BoxRow{"AllRound", {CircleEntity{1, 2, 3}}, -1.999999, 4, SeedMinY, 5},
                    BoxRow{"Below", {CircleEntity{4, -2, 3}}, 0, 7, -4.999999, SeedMaxY}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    WhatIsNotMeasured, DrawingBox,
    testing::Values(BoxRow{"Text", {TextEntity{50, 60, 2, 0, {}}}, 0, 0, SeedMinY, SeedMaxY},
                    BoxRow{"Solid", {SolidEntity{50, 60, -50, -60, 70, 80, 1, 1}}, 0, 0, SeedMinY, SeedMaxY}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Arcs, DrawingBox,
    testing::Values(
        BoxRow{"AcrossZero", {ArcEntity{0, 0, 2, 350, 10}}, 0, 2, SeedMinY, SeedMaxY},
        BoxRow{"AcrossHalfATurn", {ArcEntity{0, 0, 2, 170, 190}}, -1.999999, 0, SeedMinY, SeedMaxY},
        BoxRow{"AcrossTheBottom", {ArcEntity{0, 0, 2, 260, 280}}, -0.347296, 0.347296, -1.999999, SeedMaxY},
        BoxRow{"HalfBelow", {ArcEntity{3, 0, 2, 180, 360}}, 0, 5, -1.999999, SeedMaxY},
        BoxRow{"WithinAQuadrant", {ArcEntity{0, 0, 3, 30, 60}}, 0, 2.598076, SeedMinY, 2.598076},
        BoxRow{"EndsOnTheLastOfTheQuadrant", {ArcEntity{0, 0, 3, 30, 89}}, 0, 2.598076, SeedMinY, 2.999543}),
    NameOf);

// The top of a circle counts only when its bottom lies above the box. Meant.
INSTANTIATE_TEST_SUITE_P(
    ArcsAcrossTheTop, DrawingBox,
    testing::Values(
        BoxRow{"LowOnesAreCut", {ArcEntity{0, 0, 2, 45, 135}}, -1.414213, 1.414213, SeedMinY, SeedMaxY},
        BoxRow{"HighOnesCount", {ArcEntity{0, 5, 2, 45, 135}}, -1.414213, 1.414213, SeedMinY, 7},
        BoxRow{"TheBottomMustLieAbove", {ArcEntity{0, 3, 2, 45, 135}}, -1.414213, 1.414213, SeedMinY, 1}),
    NameOf);

// An end in a gap of the polar table counts with the arc's centre.
INSTANTIATE_TEST_SUITE_P(
    ArcsThatEndInAGap, DrawingBox,
    testing::Values(BoxRow{"EndNearTheTop", {ArcEntity{0, 0, 3, 0, 89.5}}, 0, 3, SeedMinY, SeedMaxY},
                    BoxRow{"StartNearZero", {ArcEntity{4, 2, 3, 0.5, 60}}, 0, 5.5, SeedMinY, 4.598076},
                    BoxRow{"AnglesAreNotReduced", {ArcEntity{0, 0, 5, 370, 380}}, 0, 0, SeedMinY, SeedMaxY},
                    BoxRow{"OneOfThemIs", {ArcEntity{0, 0, 5, 370, 20}}, 0, 4.698463, SeedMinY, 1.7101}),
    NameOf);

TEST(DrawingBox, IsRoundedBeforeItsMiddleIsTaken) {
  EntityList list;
  list.Entities.push_back(LineEntity{0, 0, 1.0000019, 0});
  EXPECT_EQ(ComputeExtents(list).CenterX, 0.5);  // (0 + 1.000001) / 2, cut to six places
}

TEST(DrawingBox, HasItsMiddleOnTheOriginWhenThereIsNothing) {
  const Extents box = ComputeExtents(EntityList{});
  EXPECT_EQ(box.CenterX, 0);
  EXPECT_EQ(box.CenterY, 0);
}

}  // namespace
}  // namespace tarnwick
