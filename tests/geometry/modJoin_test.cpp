#include "geometry/modJoin.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/AllTeeth.h"
#include "support/Pieces.h"
#include "support/Shapes.h"

namespace tarnwick {
namespace {

using test::At;
using test::ForEachPiece;
using test::FullTooth;
using test::IsLine;
using test::Near;
using test::Same;

const PlaneKit Kit(5);

// ---- measures of the join

struct AllowanceRow {
  const char* Name;
  std::int16_t JoinStyle;
  double PlateThick, Want;
  friend void PrintTo(const AllowanceRow& row, std::ostream* out) { *out << row.Name; }
};
class JoinAllowanceOf : public testing::TestWithParam<AllowanceRow> {};

TEST_P(JoinAllowanceOf, IsHalfOfTenPlatesAndAnEighth) {
  BandSaw saw;
  saw.DesignInfo.JoinStyle = GetParam().JoinStyle;
  saw.GeneralInfo.PlateThick = GetParam().PlateThick;
  EXPECT_EQ(JoinAllowance(Kit, saw), GetParam().Want);
}

INSTANTIATE_TEST_SUITE_P(Joins, JoinAllowanceOf,
                         testing::Values(AllowanceRow{"RightAngle", RightAngleJoin, 0.05, 0},
                                         AllowanceRow{"Overlap", OverlapJoin, 0.05, 0.3125},
                                         AllowanceRow{"OverlapIsRounded", OverlapJoin, 0.0331111, 0.22805},
                                         AllowanceRow{"OverlapWithoutPlate", OverlapJoin, 0, 0.0625},
                                         AllowanceRow{"UnknownJoin", 2, 0.05, 0}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(HalfPitchOf, IsHalfTheWayToTheNextTip) {
  ToothProfile tooth;
  tooth.FaceLine.Start = {0.25, 5};
  tooth.TopLine.End = {2, 5};
  EXPECT_EQ(HalfPitchOf(tooth), 0.875);
}

// ---- what the cut meets

/// A tooth whose pieces all lie across X = 1, each at a height of its own: whatever is tried first is hit.
ToothProfile ToothAcrossTheCut() {
  ToothProfile tooth;
  double height = 10;
  ForEachPiece(tooth, [&](const char*, auto& piece) {
    height += 10;
    if constexpr (IsLine<decltype(piece)>) {
      piece = {{0, height}, {2, height}};
    } else {
      piece = {1.25, height, 1, 180, 359};
    }
  });
  return tooth;
}

const std::map<JoinElement, std::string> PieceOf{
    {JoinElement::GulletArc, "GulletArc"}, {JoinElement::FirstArc, "FirstArc"},
    {JoinElement::SecondArc, "SecondArc"}, {JoinElement::ThirdArc, "ThirdArc"},
    {JoinElement::BackLine, "BackLine"},   {JoinElement::BackArc, "BackArc"},
    {JoinElement::TopLine, "TopLine"},     {JoinElement::BottomLine, "BottomLine"},
};

void Remove(ToothProfile& tooth, JoinElement element) {
  ForEachPiece(tooth, [&](const char* name, auto& piece) {
    if (PieceOf.at(element) == name) piece = {};
  });
}

struct OrderRow {
  const char* Name;
  std::int16_t Style;
  std::vector<int> Codes;
  friend void PrintTo(const OrderRow& row, std::ostream* out) { *out << row.Name; }
};
class EndCut : public testing::TestWithParam<OrderRow> {};

TEST_P(EndCut, MeetsTheFirstPieceInTheOrderOfTheStyle) {
  ToothProfile tooth = ToothAcrossTheCut();
  tooth.Style = GetParam().Style;
  std::vector<int> met;
  for (int i = 0; i < 10; ++i) {
    ToothLine cut{{1, 300}, {1, 0}};
    const JoinElement element = FindJoinElement(Kit, cut, tooth);
    if (element == JoinElement::None) {
      EXPECT_EQ(cut.Start, (Point{1, 300})) << "a cut that meets nothing stays";
      break;
    }
    EXPECT_LT(cut.Start.Y, 299) << "the cut begins at the crossing";
    EXPECT_NEAR(cut.Start.X, 1, 1e-4);
    met.push_back(static_cast<int>(element));
    Remove(tooth, element);
  }
  EXPECT_EQ(met, GetParam().Codes);
}

INSTANTIATE_TEST_SUITE_P(
    Styles, EndCut,
    testing::Values(OrderRow{"SquareBack", 1, {1, 5, 7}}, OrderRow{"RoundBack", 2, {1, 6, 5, 7}},
                    OrderRow{"TheHoleInTheNumbering", 3, {}}, OrderRow{"DoubleRadius", 4, {3, 6, 5, 7}},
                    OrderRow{"TripleRadius", 5, {3, 4, 6, 5, 7}}, OrderRow{"FlatBottom", 6, {9, 3, 6, 5, 7}},
                    OrderRow{"NarrowStyle", 7, {1, 7}}, OrderRow{"OShape", 8, {2, 9, 7}},
                    OrderRow{"FrostTooth", 9, {1, 4, 3, 2, 6, 5, 7}}, OrderRow{"NoStyle", 0, {}},
                    OrderRow{"UnknownStyle", 10, {}}, OrderRow{"NegativeStyle", -1, {}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(EndCut, BeginsWhereItMeetsTheGullet) {
  ToothProfile tooth;
  tooth.Style = SquareBack;
  tooth.GulletArc = {0, 5, 1, 180, 350};
  ToothLine cut{{0.5, 8}, {0.5, 0}};
  EXPECT_EQ(FindJoinElement(Kit, cut, tooth), JoinElement::GulletArc);
  EXPECT_TRUE(Near(cut.Start, {0.5, 4.133975}, 5e-5));
  EXPECT_EQ(cut.End, (Point{0.5, 0}));
}

// ---- trimming

const Point CutPoint{1.5, 2.5};

/// What a trim does to the pieces that it neither zeroes nor leaves alone.
struct TrimRow {
  int Code;
  std::set<std::string> Zeroed;
  std::string Changed;  // piece and field: "GulletArc.StartAngle"
  friend void PrintTo(const TrimRow& row, std::ostream* out) { *out << "code " << row.Code; }
};

/// The tooth that the row asks for, made from `before` field by field.
ToothProfile Trimmed(const ToothProfile& before, const TrimRow& row) {
  ToothProfile want = before;
  ForEachPiece(want, [&](const std::string& name, auto& piece) {
    if (row.Zeroed.contains(name)) piece = {};
    if (!row.Changed.starts_with(name + ".")) return;
    const std::string field = row.Changed.substr(name.size() + 1);
    if constexpr (IsLine<decltype(piece)>) {
      (field == "Start" ? piece.Start : piece.End) = CutPoint;
    } else {
      (field == "StartAngle" ? piece.StartAngle : piece.EndAngle) = Kit.Direction(piece.Center(), CutPoint);
    }
  });
  return want;
}

void ExpectSamePieces(const ToothProfile& got, const ToothProfile& want) {
  ForEachPiece(got, want, [](const char* name, const auto& a, const auto& b) {
    EXPECT_TRUE(Same(a, b)) << name << ": " << testing::PrintToString(a) << ", wanted "
                            << testing::PrintToString(b);
  });
  EXPECT_EQ(got.JoinPoint, want.JoinPoint);
}

class FirstToothCutAt : public testing::TestWithParam<TrimRow> {};

TEST_P(FirstToothCutAt, LosesWhatLiesBeforeTheJoin) {
  TrimRow row = GetParam();
  for (const char* face :
       {"FaceLine", "SeatLine", "DropLine", "FrostArc", "FrostFaceLine", "FrostBottomLine"})
    row.Zeroed.insert(face);
  ToothProfile tooth = FullTooth();
  const ToothProfile want = Trimmed(tooth, row);
  TrimToothStart(Kit, tooth, CutPoint, static_cast<JoinElement>(row.Code));
  ExpectSamePieces(tooth, want);
}

INSTANTIATE_TEST_SUITE_P(
    Elements, FirstToothCutAt,
    testing::Values(
        TrimRow{1, {}, "GulletArc.StartAngle"}, TrimRow{2, {}, "FirstArc.StartAngle"},
        TrimRow{3, {"BottomLine", "FirstArc"}, "SecondArc.StartAngle"},
        TrimRow{4, {"FirstArc", "BottomLine", "SecondArc"}, "ThirdArc.StartAngle"},
        TrimRow{5, {"GulletArc", "FirstArc", "BottomLine", "SecondArc", "ThirdArc"}, "BackLine.Start"},
        TrimRow{6,
                {"GulletArc", "FirstArc", "BottomLine", "SecondArc", "ThirdArc", "BackLine"},
                "BackArc.EndAngle"},
        TrimRow{7,
                {"GulletArc", "FirstArc", "BottomLine", "SecondArc", "ThirdArc", "BackLine", "BackArc"},
                "TopLine.Start"},
        TrimRow{9, {"FirstArc"}, "BottomLine.Start"}));

class LastToothCutAt : public testing::TestWithParam<TrimRow> {};

TEST_P(LastToothCutAt, LosesWhatLiesBehindTheJoin) {
  ToothProfile tooth = FullTooth();
  const ToothProfile want = Trimmed(tooth, GetParam());
  TrimToothEnd(Kit, tooth, CutPoint, static_cast<JoinElement>(GetParam().Code));
  ExpectSamePieces(tooth, want);
}

// At the floor of the last tooth it is the first point that jumps to the cut. Meant.
INSTANTIATE_TEST_SUITE_P(
    Elements, LastToothCutAt,
    testing::Values(TrimRow{1, {"BackLine", "BackArc", "TopLine"}, "GulletArc.EndAngle"},
                    TrimRow{2,
                            {"BottomLine", "SecondArc", "ThirdArc", "BackLine", "BackArc", "TopLine"},
                            "FirstArc.EndAngle"},
                    TrimRow{3, {"ThirdArc", "BackLine", "BackArc", "TopLine"}, "SecondArc.EndAngle"},
                    TrimRow{4, {"BackLine", "BackArc", "TopLine"}, "ThirdArc.EndAngle"},
                    TrimRow{5, {"BackArc", "TopLine"}, "BackLine.End"},
                    TrimRow{6, {"TopLine"}, "BackArc.StartAngle"}, TrimRow{7, {}, "TopLine.End"},
                    TrimRow{
                        9, {"SecondArc", "ThirdArc", "BackLine", "BackArc", "TopLine"}, "BottomLine.Start"}));

TEST(TrimTooth, TakesNothingWhereTheCutMetNothing) {
  ToothProfile tooth = FullTooth();
  TrimToothStart(Kit, tooth, CutPoint, JoinElement::None);
  ExpectSamePieces(tooth, FullTooth());
  TrimToothEnd(Kit, tooth, CutPoint, JoinElement::None);
  ExpectSamePieces(tooth, FullTooth());
}

// ---- cutting the band

/// A square tooth an inch deep on a band of 5 inches: face down from the tip, a half round gullet, an upright
/// back, a level top.
ToothProfile PlainTooth(double tipX, double pitch) {
  ToothProfile tooth;
  tooth.Style = SquareBack;
  tooth.FaceLine = {{tipX, 5}, {tipX, 4.5}};
  tooth.SeatLine = {tooth.FaceLine.End, tooth.FaceLine.End};
  tooth.DropLine = tooth.SeatLine;
  tooth.GulletArc = {tipX + 0.5, 4.5, 0.5, 180, 360};
  tooth.BackLine = {{tipX + 1, 4.5}, {tipX + 1, 5}};
  tooth.TopLine = {{tipX + 1, 5}, {tipX + pitch, 5}};
  return tooth;
}

Teeth PlainBand(int last, double pitch) {
  Teeth teeth;
  for (int i = 0; i <= last; ++i) teeth.push_back(PlainTooth(pitch * i, pitch));
  return teeth;
}

void CutEnds(const BandSaw& saw, Teeth& teeth) {
  BandTeeth band(Kit, teeth);
  JoinBand(Kit, saw, band, static_cast<int>(teeth.size()) - 1);
  teeth = test::AllOf(band);
}

TEST(JoinBand, CutsBothEndsThroughTheMiddleOfATooth) {
  BandSaw saw;
  Teeth teeth = PlainBand(3, 1.75);
  const Teeth before = teeth;
  CutEnds(saw, teeth);
  // half a pitch is 0.875, 0.375 right of the gullet's centre: sqrt(0.25 - 0.140625) below it
  const double y = 4.5 - 0.330719;
  EXPECT_TRUE(Near(teeth[0].JoinPoint, {0.875, y}, 5e-5));
  EXPECT_TRUE(Near(teeth[3].JoinPoint, {6.125, y}, 5e-5));
  EXPECT_TRUE(Same(teeth[0].FaceLine, ToothLine{}));
  EXPECT_NEAR(teeth[0].GulletArc.StartAngle, 318.590378, 1e-2);
  EXPECT_EQ(teeth[0].GulletArc.EndAngle, 360);
  EXPECT_TRUE(Same(teeth[0].BackLine, before[0].BackLine));
  EXPECT_TRUE(Same(teeth[0].TopLine, before[0].TopLine));
  EXPECT_TRUE(Same(teeth[3].FaceLine, before[3].FaceLine));
  EXPECT_EQ(teeth[3].GulletArc.StartAngle, 180);
  EXPECT_NEAR(teeth[3].GulletArc.EndAngle, 318.590378, 1e-2);
  EXPECT_TRUE(Same(teeth[3].BackLine, ToothLine{}));
  EXPECT_TRUE(Same(teeth[3].TopLine, ToothLine{}));
  for (const std::size_t i : {1u, 2u}) {
    SCOPED_TRACE(i);
    ExpectSamePieces(teeth[i], before[i]);
  }
}

TEST(JoinBand, LeavesTheAllowanceOfAnOverlapOnBothEnds) {
  BandSaw saw;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.GeneralInfo.PlateThick = 0.05;
  Teeth teeth = PlainBand(3, 1.75);
  CutEnds(saw, teeth);
  EXPECT_NEAR(teeth[0].JoinPoint.X, 0.875 - 0.3125, 2e-5);
  EXPECT_NEAR(teeth[3].JoinPoint.X, 6.125 + 0.3125, 2e-5);
  EXPECT_NEAR(teeth[3].JoinPoint.Y, 5, 5e-5) << "on the top of the last tooth";
  EXPECT_TRUE(Near(teeth[3].TopLine.End, {6.4375, 5}, 5e-5));
}

TEST(JoinBand, TrimsASingleToothOnItsTwoSides) {
  BandSaw saw;
  Teeth teeth = PlainBand(1, 1.75);
  CutEnds(saw, teeth);
  EXPECT_TRUE(Same(teeth[0].FaceLine, ToothLine{}));
  EXPECT_FALSE(Same(teeth[0].TopLine, ToothLine{}));
  EXPECT_FALSE(Same(teeth[1].FaceLine, ToothLine{}));
  EXPECT_TRUE(Same(teeth[1].TopLine, ToothLine{}));
}

TEST(JoinBand, LeavesTeethWholeThatTheCutDoesNotMeet) {
  BandSaw saw;
  Teeth teeth = PlainBand(2, 1.75);
  for (ToothProfile& tooth : teeth) tooth.Style = 3;
  const Teeth before = teeth;
  CutEnds(saw, teeth);
  for (std::size_t i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    ForEachPiece(teeth[i], before[i],
                 [](const char* name, const auto& a, const auto& b) { EXPECT_TRUE(Same(a, b)) << name; });
  }
  EXPECT_TRUE(At(teeth[0].JoinPoint, {0.875, 5})) << "the uncut point";
  EXPECT_TRUE(At(teeth[2].JoinPoint, {4.375, 5}));
}

TEST(JoinBand, RoundsTheJoinPointsButNotTheCut) {
  BandSaw saw;
  Teeth teeth = PlainBand(1, 1.7500019);
  for (ToothProfile& tooth : teeth) tooth.Style = 3;
  CutEnds(saw, teeth);
  EXPECT_TRUE(At(teeth[0].JoinPoint, {0.875, 5}));
  EXPECT_TRUE(At(teeth[1].JoinPoint, {2.625, 5}));
}

}  // namespace
}  // namespace tarnwick
