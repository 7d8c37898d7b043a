#include "geometry/modTrig.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/Shapes.h"

namespace tarnwick {
namespace {

using test::At;
using test::Near;

const PlaneKit Kit(5);

// ---- triangles

TEST(Triangles, AreWorkedOutInDegreesAndNotRounded) {
  EXPECT_NEAR(Opposite(2, 30).OrZero(), 1, 1e-13);
  EXPECT_NEAR(Adjacent(2, 60).OrZero(), 1, 1e-13);
  EXPECT_NEAR(TanSide(3, 45).OrZero(), 3, 1e-13);
  EXPECT_EQ(Hypotenuse(3, 4).OrZero(), 5);
  EXPECT_EQ(Leg(5, 4).OrZero(), 3);
  EXPECT_NEAR(AngleFromLegs(1, 1).OrZero(), 45, 1e-12);
  EXPECT_NEAR(AngleFromLegs(-1, 1).OrZero(), -45, 1e-12);
  EXPECT_EQ(Hypotenuse(1, 1).OrZero(), std::sqrt(2.0));
  EXPECT_EQ(TanSide(1, 0).OrZero(), 0);
}

TEST(Triangles, UseAPiOfFifteenDigits) {
  EXPECT_EQ(Opposite(1, 180).OrZero(), std::sin(3.14159265358979));
  EXPECT_EQ(AngleFromLegs(1, 2).OrZero(), std::atan(0.5) * 180 / 3.14159265358979);
}

TEST(Triangles, AreZeroWhereThereIsNone) {
  EXPECT_EQ(Leg(3, 4).OrZero(), 0);
  EXPECT_TRUE(Leg(3, 4).Ok()) << "the failure stays within the helper";
  EXPECT_EQ(AngleFromLegs(1, 0).OrZero(), 0) << "not 90";
  EXPECT_TRUE(AngleFromLegs(1, 0).Ok());
}

TEST(Triangles, PassOnWhatHadFailedBefore) {
  const Checked failed = Quotient(1, 0);
  EXPECT_FALSE(Opposite(failed, 30).Ok());
  EXPECT_FALSE(Adjacent(1, failed).Ok());
  EXPECT_FALSE(Leg(failed, 1).Ok());
  EXPECT_FALSE(AngleFromLegs(1, failed).Ok());
}

struct SidesRow {
  const char* Name;
  double A, B, C, Want;
  friend void PrintTo(const SidesRow& row, std::ostream* out) { *out << row.Name; }
};
class AngleOfThreeSides : public testing::TestWithParam<SidesRow> {};

TEST_P(AngleOfThreeSides, LiesOppositeTheFirst) {
  const SidesRow& row = GetParam();
  EXPECT_NEAR(AngleFromSides(row.A, row.B, row.C).OrZero(), row.Want, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Triangles, AngleOfThreeSides,
    testing::Values(SidesRow{"Equilateral", 2, 2, 2, 60}, SidesRow{"RightAngle", 5, 3, 4, 90},
                    SidesRow{"SmallAngle", 3, 5, 4, 36.86989764584402},
                    SidesRow{"Obtuse", std::sqrt(3), 1, 1, 120}, SidesRow{"ASideOfZero", 1, 0, 2, 90},
                    SidesRow{"FlatTriangle", 2, 1, 1, 0}, SidesRow{"NoTriangle", 10, 1, 1, 0},
                    SidesRow{"NoTriangleEither", 1, 10, 1, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- distance and direction

TEST(Distance, IsRounded) {
  EXPECT_EQ(Kit.Distance({0, 0}, {3, 4}), 5);
  EXPECT_EQ(Kit.Distance({3, 4}, {0, 0}), 5);
  EXPECT_EQ(Kit.Distance({0, 0}, {1, 1}), 1.41421);
  EXPECT_EQ(PlaneKit(8).Distance({0, 0}, {1, 1}), 1.41421356);
  EXPECT_EQ(Kit.Distance({1, 1}, {1.000009, 1}), 0);
}

struct DirectionRow {
  const char* Name;
  Point From, To;
  double Want;
  friend void PrintTo(const DirectionRow& row, std::ostream* out) { *out << row.Name; }
};
class DirectionOfARay : public testing::TestWithParam<DirectionRow> {};

TEST_P(DirectionOfARay, RunsCounterClockwiseFromX) {
  const DirectionRow& row = GetParam();
  EXPECT_EQ(Kit.Direction(row.From, row.To), row.Want);
  EXPECT_EQ(Kit.DirectionFromCenter(row.From, 17, row.To), row.Want) << "the radius is not used";
}

INSTANTIATE_TEST_SUITE_P(Axes, DirectionOfARay,
                         testing::Values(DirectionRow{"ToItself", {2, 3}, {2, 3}, 0},
                                         DirectionRow{"Right", {0, 0}, {1, 0}, 0},
                                         DirectionRow{"Up", {2, 0}, {2, 1}, 90},
                                         DirectionRow{"Left", {3, 1}, {1, 1}, 180},
                                         DirectionRow{"Down", {2, 0}, {2, -1}, 270}),
                         [](const auto& row) { return std::string(row.param.Name); });

INSTANTIATE_TEST_SUITE_P(Quadrants, DirectionOfARay,
                         testing::Values(DirectionRow{"First", {0, 0}, {4, 3}, 36.86989},
                                         DirectionRow{"Second", {0, 0}, {-4, 3}, 143.13011},
                                         DirectionRow{"Third", {0, 0}, {-4, -3}, 216.86989},
                                         DirectionRow{"Fourth", {0, 0}, {4, -3}, 323.13011},
                                         DirectionRow{"DownAndRight", {0, 0}, {1, -1}, 315},
                                         DirectionRow{"FromElsewhere", {10, 10}, {9, 11}, 135}),
                         [](const auto& row) { return std::string(row.param.Name); });

// A run that is not 0 but rounds to it makes the slope's division fail.
INSTANTIATE_TEST_SUITE_P(RoundingTrap, DirectionOfARay,
                         testing::Values(DirectionRow{"UpAndBarelyRight", {0, 0}, {1e-7, 1}, 0},
                                         DirectionRow{"DownAndBarelyRight", {0, 0}, {1e-7, -1}, 360},
                                         DirectionRow{"UpAndBarelyLeft", {0, 0}, {-1e-7, 1}, 180},
                                         DirectionRow{"DownAndBarelyLeft", {0, 0}, {-1e-7, -1}, 180},
                                         DirectionRow{"RightAndBarelyUp", {0, 0}, {1, 1e-7}, 0},
                                         DirectionRow{"RightAndBarelyDown", {0, 0}, {1, -1e-7}, 360}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- points by angle and distance

struct PolarPointRow {
  const char* Name;
  double Angle;
  Point Want;  // from (1, 2), at distance 2
  friend void PrintTo(const PolarPointRow& row, std::ostream* out) { *out << row.Name; }
};
class PolarPointFromHere : public testing::TestWithParam<PolarPointRow> {};

TEST_P(PolarPointFromHere, LiesAtTheDistanceAlongTheAngle) {
  Point out{77, 88};
  PolarPoint({1, 2}, out, 2, GetParam().Angle);
  EXPECT_TRUE(Near(out, GetParam().Want, 1e-12));
}

INSTANTIATE_TEST_SUITE_P(Angles, PolarPointFromHere,
                         testing::Values(PolarPointRow{"First", 30, {1 + std::sqrt(3), 3}},
                                         PolarPointRow{"Second", 150, {1 - std::sqrt(3), 3}},
                                         PolarPointRow{"Third", 210, {1 - std::sqrt(3), 1}},
                                         PolarPointRow{"Fourth", 330, {1 + std::sqrt(3), 1}},
                                         PolarPointRow{"AboveAFullTurn", 390, {1 + std::sqrt(3), 3}},
                                         PolarPointRow{"FarAboveAFullTurn", 510, {1 - std::sqrt(3), 3}},
                                         PolarPointRow{
                                             "JustAboveZero", 1e-9, {3, 2 + 2e-9 * 3.14159265358979 / 180}}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(PolarPoint, IsExactOnTheAxes) {
  Point out;
  PolarPoint({1, 2}, out, 2, 0);
  EXPECT_EQ(out, (Point{3, 2}));
  PolarPoint({1, 2}, out, 2, 90);
  EXPECT_EQ(out, (Point{1, 4}));
  PolarPoint({1, 2}, out, 2, 180);
  EXPECT_EQ(out, (Point{-1, 2}));
  PolarPoint({1, 2}, out, 2, 270);
  EXPECT_EQ(out, (Point{1, 0}));
  PolarPoint({1, 2}, out, 2, 360);
  EXPECT_EQ(out, (Point{3, 2}));
}

TEST(PolarPoint, LeavesTheTargetAloneBelowZero) {
  Point out{77, 88};
  PolarPoint({1, 2}, out, 2, -10);
  EXPECT_EQ(out, (Point{77, 88}));
}

TEST(PolarPoint, MayWriteOverItsStart) {
  Point p{1, 2};
  PolarPoint(p, p, 2, 30);
  EXPECT_TRUE(Near(p, {1 + std::sqrt(3), 3}, 1e-12));
}

TEST(Place, StoresTheCoordinatesOneByOne) {
  Point p{7, 8};
  Place(p, Quotient(1, 0), 3);
  EXPECT_EQ(p, (Point{7, 3}));
  Place(p, 2, Quotient(1, 0));
  EXPECT_EQ(p, (Point{2, 3}));
}

// ---- angles

struct AngleRow {
  const char* Name;
  double Angle, Normalized, ReducedOnce;
  friend void PrintTo(const AngleRow& row, std::ostream* out) { *out << row.Name; }
};
class AngleOutsideTheCircle : public testing::TestWithParam<AngleRow> {};

TEST_P(AngleOutsideTheCircle, IsBroughtIntoIt) {
  const AngleRow& row = GetParam();
  EXPECT_DOUBLE_EQ(Kit.NormalizeAngle(row.Angle), row.Normalized);
  EXPECT_NEAR(ReduceOnce(row.Angle), row.ReducedOnce, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(
    Angles, AngleOutsideTheCircle,
    testing::Values(AngleRow{"Zero", 0, 0, 0},  //
                    AngleRow{"Inside", 123.4567891, 123.4567891, 123.4567891},
                    AngleRow{"FullTurnStays", 360, 360, 360},  //
                    AngleRow{"JustAbove", 361, 1, 1},          //
                    AngleRow{"HalfATurnMore", 540, 180, 180},  //
                    AngleRow{"TwoTurns", 720, 0, 360},         //
                    AngleRow{"TwoAndAHalf", 900, 180, 540},    //
                    AngleRow{"ThreeTurns", 1080, 0, 720},      //
                    AngleRow{"AboveIsRounded", 370.1234567, 10.12345, 10.1234567},
                    AngleRow{"BarelyAbove", 360.000001, 0, 0.000001}, AngleRow{"Below", -10, 350, 350},  //
                    AngleRow{"FullTurnBelow", -360, 0, 0},                                               //
                    AngleRow{"MoreThanAFullTurnBelow", -370, 350, -10},
                    AngleRow{"BelowIsNotRounded", -10.1234567, 349.8765433, 349.8765433}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- turning

TEST(RotatePoint, TurnsAboutTheOrigin) {
  EXPECT_EQ(Kit.RotatePoint({1, 0}, 90), (Point{0, 1}));
  EXPECT_EQ(Kit.RotatePoint({0, 2}, 90), (Point{-2, 0}));
  EXPECT_EQ(Kit.RotatePoint({0, 2}, 360), (Point{0, 2}));
  EXPECT_EQ(Kit.RotatePoint({0, 0}, 45), (Point{0, 0}));
  EXPECT_TRUE(Near(Kit.RotatePoint({3, 4}, 90), {-4, 3}, 1e-6));
  EXPECT_TRUE(Near(Kit.RotatePoint({1, 2}, -90), {2, -1}, 1e-5));
}

// (3, 4) lies at 5 and 53.1301 degrees; (-3.9999998..., 3.0000001...) is cut to (-3.99999, 3).
TEST(RotateLine, RoundsWhatItTurns) {
  const ToothLine turned = Kit.RotateLine({{3, 4}, {1, 0}}, 90);
  EXPECT_TRUE(At(turned.Start, {-3.99999, 3}));
  EXPECT_TRUE(At(turned.End, {0, 1}));
}

TEST(RotateArc, TurnsCentreAndAnglesAndKeepsTheRadius) {
  const ToothArc turned = Kit.RotateArc({3, 4, 0.123456789, 200, 300}, 90);
  EXPECT_TRUE(At(turned.Center(), {-3.99999, 3}));
  EXPECT_EQ(turned.Radius, 0.123456789);
  EXPECT_EQ(turned.StartAngle, 290);
  EXPECT_EQ(turned.EndAngle, 30);
}

struct OffsetRow {
  const char* Name;
  ToothLine Line;
  double Distance;
  ToothLine Want, Exact;
  friend void PrintTo(const OffsetRow& row, std::ostream* out) { *out << row.Name; }
};
class OffsetOfALine : public testing::TestWithParam<OffsetRow> {};

TEST_P(OffsetOfALine, LiesToItsRightAfterTwoRoundedTurns) {
  const OffsetRow& row = GetParam();
  const ToothLine out = Kit.OffsetLine(row.Line, row.Distance);
  EXPECT_TRUE(At(out.Start, row.Want.Start));
  EXPECT_TRUE(At(out.End, row.Want.End));
  EXPECT_TRUE(Near(out.Start, row.Exact.Start, 5e-5));
  EXPECT_TRUE(Near(out.End, row.Exact.End, 5e-5));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, OffsetOfALine,
    testing::Values(
        OffsetRow{"ToTheRight", {{0, 2}, {4, 2}}, 0.5, {{0, 1.5}, {3.99998, 1.49998}}, {{0, 1.5}, {4, 1.5}}},
        OffsetRow{
            "ToTheLeft", {{4, 2}, {0, 2}}, 0.5, {{3.99998, 2.49998}, {0, 2.49999}}, {{4, 2.5}, {0, 2.5}}},
        OffsetRow{"Up", {{1, 0}, {1, 4}}, 0.25, {{1.24999, 0}, {1.24998, 3.99998}}, {{1.25, 0}, {1.25, 4}}},
        OffsetRow{"Slanting",
                  {{1, 1}, {4, 5}},
                  1,
                  {{1.79998, 0.39999}, {4.79998, 4.39999}},
                  {{1.8, 0.4}, {4.8, 4.4}}}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- circles

TEST(Circle, HasACircumferenceAndARadiusOfItsArea) {
  EXPECT_EQ(Kit.Circumference(1), 3.14159);
  EXPECT_EQ(Kit.Circumference(24), 75.39822);
  EXPECT_EQ(Kit.Circumference(0), 0);
  EXPECT_EQ(Kit.RadiusFromArea(3.14159265358979), 1);
  EXPECT_EQ(Kit.RadiusFromArea(2), 0.79788);
  EXPECT_EQ(Kit.RadiusFromArea(0), 0);
  EXPECT_EQ(Kit.RadiusFromArea(-1), 0) << "no root";
}

// ---- areas

struct TriangleRow {
  const char* Name;
  Point A, B, C;
  double Want;
  friend void PrintTo(const TriangleRow& row, std::ostream* out) { *out << row.Name; }
};
class AreaOfATriangle : public testing::TestWithParam<TriangleRow> {};

TEST_P(AreaOfATriangle, HasTheSignOfItsSides) {
  const TriangleRow& row = GetParam();
  EXPECT_EQ(Kit.TriangleArea(row.A, row.B, row.C), row.Want);
}

// The exact areas are -6, 6, 5.5, ...; the turn and the rounding of negatives take their units.
INSTANTIATE_TEST_SUITE_P(Triangles, AreaOfATriangle,
                         testing::Values(TriangleRow{"ApexAboveTheBase", {0, 0}, {2, 3}, {4, 0}, -5.99997},
                                         TriangleRow{"ApexBelowTheBase", {4, 0}, {2, 3}, {0, 0}, 5.99996},
                                         TriangleRow{"Slanting", {1, 1}, {2, 5}, {4, 2}, -5.49999},
                                         TriangleRow{"RightAngled", {0, 0}, {0, 3}, {4, 0}, -5.99999},
                                         TriangleRow{"ApexOnTheBase", {0, 0}, {2, 0}, {4, 0}, 0},
                                         TriangleRow{"ApexOnASlantingBase", {0, 0}, {1, 1}, {2, 2}, 0},
                                         TriangleRow{"AllOnePoint", {1, 1}, {1, 1}, {1, 1}, 0}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(QuadArea, IsTheSumOfTwoTriangles) {
  const Point a{0, 2}, b{0, 0}, c{3, 0}, d{3, 2};
  EXPECT_EQ(Kit.QuadArea(a, b, c, d), 5.99996);
  EXPECT_EQ(Kit.QuadArea(a, b, c, d), Kit.TriangleArea(a, b, c) + Kit.TriangleArea(a, c, d));
}

struct SegmentRow {
  const char* Name;
  Point Start, End;
  double Radius, Sweep, Want;
  friend void PrintTo(const SegmentRow& row, std::ostream* out) { *out << row.Name; }
};
class AreaBetweenArcAndChord : public testing::TestWithParam<SegmentRow> {};

TEST_P(AreaBetweenArcAndChord, IsWorkedOutByItsSagitta) {
  const SegmentRow& row = GetParam();
  EXPECT_DOUBLE_EQ(Kit.SegmentArea(row.Start, row.End, row.Radius, row.Sweep), row.Want);
}

INSTANTIATE_TEST_SUITE_P(
    Arcs, AreaBetweenArcAndChord,
    testing::Values(SegmentRow{"HalfCircle", {-1, 0}, {1, 0}, 1, 180, 1.5705},
                    SegmentRow{"QuarterCircle", {2, 0}, {0, 2}, 2, 90, 1.14099},
                    SegmentRow{"ChordLongerThanTheDiameter", {0, 0}, {3, 0}, 1, 90, 0.78525},
                    SegmentRow{
                        "RadiusAndSweepAreRounded", {0.3, 0}, {0, 0.3}, 0.300000001, 90.000001, 0.02567},
                    SegmentRow{"NoArc", {1, 1}, {1, 1}, 0, 0, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- making two lines meet

struct MeetRow {
  const char* Name;
  ToothLine A;
  double AngleA;
  ToothLine B;
  double AngleB;
  Point Want;
  friend void PrintTo(const MeetRow& row, std::ostream* out) { *out << row.Name; }
};
class TwoLinesThatPassed : public testing::TestWithParam<MeetRow> {};

TEST_P(TwoLinesThatPassed, MeetInTheStartOfTheFirstAndTheEndOfTheSecond) {
  const MeetRow& row = GetParam();
  ToothLine a = row.A, b = row.B;
  ASSERT_TRUE(Kit.MeetLines(a, row.AngleA, b, row.AngleB));
  EXPECT_TRUE(Near(a.Start, row.Want, 1e-6));
  EXPECT_EQ(b.End, a.Start);
  EXPECT_EQ(a.End, row.A.End);
  EXPECT_EQ(b.Start, row.B.Start);
}

// Where one end lies straight above the other, the angle between them counts as 0, not as 90.
INSTANTIATE_TEST_SUITE_P(
    Lines, TwoLinesThatPassed,
    testing::Values(MeetRow{"FlatTop", {{0, 0}, {10, 0}}, 0, {{4, -3}, {4, 2}}, 90, {4, 0}},
                    MeetRow{"RisingTop", {{0, 0}, {8, 4}}, 26.56505118, {{2, -3}, {2, 5}}, 90, {2, 1}},
                    MeetRow{"SlantingBack", {{0, 0}, {10, 0}}, 0, {{2, -2}, {7, 3}}, 45, {4, 0}},
                    MeetRow{
                        "EndStraightAboveTheOther", {{0, 0}, {10, 0}}, 0, {{10, -3}, {10, 2}}, 90, {8, 0}},
                    MeetRow{"BackTooShort", {{0, 0}, {10, 0}}, 0, {{4, -3}, {4, -1}}, 90, {4, 0}},
                    MeetRow{"BackTooFar", {{0, 0}, {10, 0}}, 0, {{2, -2}, {12, 3}}, 26.56505118, {6, 0}},
                    MeetRow{"TopRunningLeft", {{10, 0}, {0, 0}}, 180, {{-4, 3}, {-4, 2}}, 270, {-4, 0}},
                    MeetRow{"TopRunningLeftAndSlantingBack",
                            {{10, 0}, {0, 0}},
                            180,
                            {{-3, 3.732050808}, {-4, 2}},
                            240,
                            {-5.154700538, 0}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(MeetLines, StopsAtOnceWhenTheEndsHaveNotPassed) {
  ToothLine a{{0, 0}, {10, 0}}, b{{11, -3}, {12, -1}};
  EXPECT_FALSE(Kit.MeetLines(a, 0, b, 63.43494882));
  EXPECT_EQ(a.Start, (Point{0, 0}));
  EXPECT_EQ(b.End, (Point{12, -1}));
}

TEST(MeetLines, StopsWhenTheEndsCoincide) {
  ToothLine a{{0, 0}, {10, 0}}, b{{10, -3}, {10, 0}};
  EXPECT_FALSE(Kit.MeetLines(a, 0, b, 90));
  EXPECT_EQ(a.Start, (Point{0, 0}));
}

// The end is half an inch short of the first line; lengthened by it, and a hundredth more, it is past the
// first line's own end.
TEST(MeetLines, KeepsTheMovesThatItMadeBeforeItGaveUp) {
  ToothLine a{{0, 0}, {10, 5}}, b{{0, -5.5}, {9.5, 4}};
  EXPECT_FALSE(Kit.MeetLines(a, 26.56505118, b, 45));
  EXPECT_EQ(a.Start, (Point{0, 0}));
  EXPECT_TRUE(Near(b.End, {10.2575, 4.7575}, 1e-12));
}

// An end that is thrown to and fro eleven times: what the last round saw is taken for a meeting.
TEST(MeetLines, TakesWhatItHasAfterElevenRounds) {
  ToothLine a{{0, 0}, {4.7, -2.5}}, b{{11.2, 4.6}, {10.5, 1.2}};
  EXPECT_TRUE(Kit.MeetLines(a, Kit.Direction(a.Start, a.End), b, Kit.Direction(b.Start, b.End)));
  EXPECT_TRUE(Near(a.Start, {1.5262517701755463, -0.8118365246687131}, 1e-9));
  EXPECT_EQ(b.End, a.Start);
}

}  // namespace
}  // namespace tarnwick
