#include "geometry/modToothMoves.h"

#include <gtest/gtest.h>

#include <string>

#include "support/Pieces.h"
#include "support/Shapes.h"

namespace tarnwick {
namespace {

using test::At;
using test::ForEachPiece;
using test::FullTooth;
using test::IsLine;
using test::IsNotch;

const PlaneKit Kit(5);

// ---- moving

TEST(TranslateTooth, MovesEveryPieceAndRoundsIt) {
  ToothProfile in;
  in.FaceLine = {{1.123456, 2}, {0.5, 3.000009}};
  in.GulletArc = {1.123456, 2, 0.333339, 200.123456, 300.999999};
  in.FrostArc = {4, 5, 0.5, 10, 20};
  in.FrostFaceLine = {{6, 7}, {8, 9}};
  in.JoinPoint = {0.999999, 3};
  ToothProfile out;
  TranslateTooth(Kit, in, out, 10, 1);
  EXPECT_TRUE(At(out.FaceLine.Start, {11.12345, 3}));
  EXPECT_TRUE(At(out.FaceLine.End, {10.5, 4}));
  EXPECT_TRUE(At(out.GulletArc.Center(), {11.12345, 3}));
  EXPECT_EQ(out.GulletArc.Radius, 0.33333);
  EXPECT_EQ(out.GulletArc.StartAngle, 200.12345);
  EXPECT_EQ(out.GulletArc.EndAngle, 300.99999);
  EXPECT_TRUE(At(out.FrostArc.Center(), {14, 6}));
  EXPECT_TRUE(At(out.FrostFaceLine.End, {18, 10}));
  EXPECT_TRUE(At(out.JoinPoint, {10.99999, 4}));
}

TEST(TranslateTooth, TakesAUnitFromNegativeCoordinates) {
  ToothProfile in;
  in.TopLine = {{-3, -4}, {1, 1}};
  ToothProfile out;
  TranslateTooth(Kit, in, out, 0, 0);
  EXPECT_TRUE(At(out.TopLine.Start, {-2.99999, -3.99999}));
  EXPECT_TRUE(At(out.TopLine.End, {1, 1}));
}

TEST(TranslateTooth, MovesEveryPieceByTheSame) {
  const ToothProfile in = FullTooth();
  ToothProfile out;
  TranslateTooth(Kit, in, out, 0.5, 0.25);
  ForEachPiece(in, out, [](const char* name, const auto& from, const auto& to) {
    SCOPED_TRACE(name);
    if constexpr (IsLine<decltype(from)>) {
      EXPECT_TRUE(At(to.Start, {from.Start.X + 0.5, from.Start.Y + 0.25}));
      EXPECT_TRUE(At(to.End, {from.End.X + 0.5, from.End.Y + 0.25}));
    } else {
      EXPECT_TRUE(At(to.Center(), {from.CenterX + 0.5, from.CenterY + 0.25}));
      EXPECT_EQ(to.Radius, from.Radius);
      EXPECT_EQ(to.StartAngle, from.StartAngle);
      EXPECT_EQ(to.EndAngle, from.EndAngle);
    }
  });
}

TEST(TranslateTooth, CarriesStyleAndEdgesButNotAreaAndArcDepth) {
  ToothProfile in = FullTooth();
  in.Style = FrostTooth;
  in.BothEdges = True;
  in.Area = 0.5;
  in.ArcDepth = 0.25;
  ToothProfile out;
  out.Area = 7;
  out.ArcDepth = 8;
  TranslateTooth(Kit, in, out, 1, 0);
  EXPECT_EQ(out.Style, FrostTooth);
  EXPECT_EQ(out.BothEdges, True);
  EXPECT_EQ(out.Area, 7);
  EXPECT_EQ(out.ArcDepth, 8);
}

TEST(TranslateTooth, WorksInPlace) {
  ToothProfile tooth = FullTooth();
  const Point tip = tooth.FaceLine.Start;
  TranslateTooth(Kit, tooth, tooth, 1, 0);
  EXPECT_TRUE(At(tooth.FaceLine.Start, {tip.X + 1, tip.Y}));
}

// ---- mirroring

struct MirrorRow {
  double Angle, X, Y;
  friend void PrintTo(const MirrorRow& row, std::ostream* out) { *out << row.Angle << " degrees"; }
};
class AngleInAMirror : public testing::TestWithParam<MirrorRow> {};

TEST_P(AngleInAMirror, IsTurnedOver) {
  EXPECT_DOUBLE_EQ(MirrorAngleX(Kit, GetParam().Angle), GetParam().X);
  EXPECT_DOUBLE_EQ(MirrorAngleY(Kit, GetParam().Angle), GetParam().Y);
}

INSTANTIATE_TEST_SUITE_P(Angles, AngleInAMirror,
                         testing::Values(MirrorRow{0, 180, 0}, MirrorRow{45, 135, 315},
                                         MirrorRow{90, 90, 270}, MirrorRow{91, 89, 269},
                                         MirrorRow{135, 45, 225}, MirrorRow{180, 360, 180},
                                         MirrorRow{200, 340, 160}, MirrorRow{270, 270, 90},
                                         MirrorRow{271, 269, 89}, MirrorRow{315, 225, 45},
                                         MirrorRow{359, 181, 1}, MirrorRow{360, 180, 360},
                                         MirrorRow{370, 170, 350}, MirrorRow{-10, 190, 10},
                                         MirrorRow{12.345678, 167.65432, 347.65432}));

TEST(MirrorToothX, SwapsLeftAndRight) {
  ToothProfile in;
  in.FaceLine = {{1, 2}, {-0.5, 3}};
  in.GulletArc = {1, 2, 0.333339, 180, 270};
  in.JoinPoint = {2, 3};
  ToothProfile out;
  MirrorToothX(Kit, in, out);
  EXPECT_TRUE(At(out.FaceLine.Start, {-0.99999, 2}));
  EXPECT_TRUE(At(out.FaceLine.End, {0.5, 3}));
  EXPECT_TRUE(At(out.GulletArc.Center(), {-0.99999, 2}));
  EXPECT_EQ(out.GulletArc.Radius, 0.333339) << "a mirror does not round the radius";
  EXPECT_EQ(out.GulletArc.StartAngle, 270) << "the sense of an arc is turned";
  EXPECT_EQ(out.GulletArc.EndAngle, 360);
  EXPECT_TRUE(At(out.JoinPoint, {-1.99999, 3}));
}

TEST(MirrorToothY, SwapsTopAndBottom) {
  ToothProfile in;
  in.FaceLine = {{1, 2}, {0.5, -3}};
  in.GulletArc = {1, 2, 0.25, 180, 260};
  in.JoinPoint = {2, 3};
  ToothProfile out;
  MirrorToothY(Kit, in, out);
  EXPECT_TRUE(At(out.FaceLine.Start, {1, -1.99999}));
  EXPECT_TRUE(At(out.FaceLine.End, {0.5, 3}));
  EXPECT_TRUE(At(out.GulletArc.Center(), {1, -1.99999}));
  EXPECT_EQ(out.GulletArc.StartAngle, 100);
  EXPECT_EQ(out.GulletArc.EndAngle, 180);
  EXPECT_TRUE(At(out.JoinPoint, {2, -2.99999}));
}

using Mirror = void (*)(const PlaneKit&, const ToothProfile&, ToothProfile&);
class MirroredTooth : public testing::TestWithParam<Mirror> {};

TEST_P(MirroredTooth, LosesItsNotchAndNothingElse) {
  ToothProfile in = FullTooth();
  in.Style = FrostTooth;
  in.BothEdges = True;
  ToothProfile out;
  GetParam()(Kit, in, out);
  EXPECT_EQ(out.Style, FrostTooth);
  EXPECT_EQ(out.BothEdges, True);
  ForEachPiece(out, [](const char* name, const auto& piece) {
    EXPECT_EQ(test::Same(piece, std::decay_t<decltype(piece)>{}), IsNotch(name)) << name;
  });
}

TEST_P(MirroredTooth, IsTheSameWithinTwoUnitsOfTheLastPlaceWhenMirroredAgain) {
  const ToothProfile in = FullTooth();
  ToothProfile once, twice;
  GetParam()(Kit, in, once);
  GetParam()(Kit, once, twice);
  ForEachPiece(in, twice, [](const char* name, const auto& from, const auto& to) {
    if (IsNotch(name)) return;
    SCOPED_TRACE(name);
    constexpr double twoUnits = 2.000001e-5;
    if constexpr (IsLine<decltype(from)>) {
      EXPECT_TRUE(test::Near(to, from, twoUnits));
    } else {
      EXPECT_TRUE(test::Near(to.Center(), from.Center(), twoUnits));
      EXPECT_EQ(to.Radius, from.Radius);
      EXPECT_NEAR(to.StartAngle, from.StartAngle, twoUnits);
      EXPECT_NEAR(to.EndAngle, from.EndAngle, twoUnits);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Mirrors, MirroredTooth, testing::Values(&MirrorToothX, &MirrorToothY),
                         [](const auto& row) { return row.index == 0 ? "LeftAndRight" : "TopAndBottom"; });

// ---- rounding

TEST(RoundTooth, RoundsEveryPieceButTheNotchAndTheJoin) {
  ToothProfile tooth;
  ForEachPiece(tooth, [](const char*, auto& piece) {
    if constexpr (IsLine<decltype(piece)>) {
      piece = {{1.000019, 2.000019}, {3.000019, 4.000019}};
    } else {
      piece = {1.000019, 2.000019, 3.000019, 4.000019, 5.000019};
    }
  });
  tooth.JoinPoint = {1.000019, 2.000019};
  const ToothProfile before = tooth;
  RoundTooth(Kit, tooth);
  ForEachPiece(before, tooth, [](const char* name, const auto& from, const auto& to) {
    SCOPED_TRACE(name);
    if (IsNotch(name)) {
      EXPECT_TRUE(test::Same(from, to));
    } else if constexpr (IsLine<decltype(to)>) {
      EXPECT_TRUE(test::Same(to, {{1.00001, 2.00001}, {3.00001, 4.00001}}));
    } else {
      EXPECT_TRUE(test::Same(to, {1.00001, 2.00001, 3.00001, 4.00001, 5.00001}));
    }
  });
  EXPECT_EQ(tooth.JoinPoint, before.JoinPoint);
}

}  // namespace
}  // namespace tarnwick
