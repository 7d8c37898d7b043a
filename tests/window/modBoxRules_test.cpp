#include "window/modBoxRules.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/FieldChanges.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::DesignOfEveryField;
using Names = std::set<std::string>;

constexpr int Places = 5;

// ---- the least radii

struct LimitRow {
  const char* Name;
  Parameter Accepted;
  int Style;
  double BandSaw::Gullet::*Field;
  double Value, Want;
  friend void PrintTo(const LimitRow& row, std::ostream* out) { *out << row.Name; }
};

class BoxLimit : public testing::TestWithParam<LimitRow> {};

TEST_P(BoxLimit, RaisesWhatLiesBelow) {
  const LimitRow& row = GetParam();
  BandSaw saw;
  saw.ToothStyle = static_cast<std::int16_t>(row.Style);
  saw.GulletInfo.*row.Field = row.Value;
  ApplyBoxRule(row.Accepted, saw, Places);
  EXPECT_EQ(saw.GulletInfo.*row.Field, row.Want);
}

TEST_P(BoxLimit, IsNoneForARow) {
  const LimitRow& row = GetParam();
  BandSaw saw;
  saw.ToothStyle = static_cast<std::int16_t>(row.Style);
  saw.GulletInfo.*row.Field = row.Value;
  ApplyRowRule(row.Accepted, saw, Places);
  EXPECT_EQ(saw.GulletInfo.*row.Field, row.Value);
}

using Gullet = BandSaw::Gullet;
constexpr Parameter R1 = Parameter::FirstGulletRadius, R2 = Parameter::SecondGulletRadius,
                    R3 = Parameter::ThirdGulletRadius;

INSTANTIATE_TEST_SUITE_P(
    Radii, BoxLimit,
    testing::Values(LimitRow{"FirstBelow", R1, 4, &Gullet::Radius1, 0.029, 0.03},
                    LimitRow{"FirstNone", R1, 8, &Gullet::Radius1, 0, 0.03},
                    LimitRow{"FirstNegative", R1, 9, &Gullet::Radius1, -1, 0.03},
                    LimitRow{"FirstAt", R1, 4, &Gullet::Radius1, 0.03, 0.03},
                    LimitRow{"FirstAbove", R1, 4, &Gullet::Radius1, 0.031, 0.031},
                    LimitRow{"SecondOfDoubleBelow", R2, 4, &Gullet::Radius2, 0.099, 0.1},
                    LimitRow{"SecondOfDoubleAt", R2, 4, &Gullet::Radius2, 0.1, 0.1},
                    LimitRow{"SecondOfDoubleAbove", R2, 4, &Gullet::Radius2, 0.101, 0.101},
                    LimitRow{"SecondOfTripleBelow", R2, 5, &Gullet::Radius2, 0.374, 0.375},
                    LimitRow{"SecondOfTripleAt", R2, 5, &Gullet::Radius2, 0.375, 0.375},
                    LimitRow{"SecondOfTripleAbove", R2, 5, &Gullet::Radius2, 0.376, 0.376},
                    LimitRow{"SecondOfFlatBelow", R2, 6, &Gullet::Radius2, 0.124, 0.125},
                    LimitRow{"SecondOfFlatAt", R2, 6, &Gullet::Radius2, 0.125, 0.125},
                    LimitRow{"SecondOfFlatAbove", R2, 6, &Gullet::Radius2, 0.126, 0.126},
                    LimitRow{"SecondOfFrostHasNone", R2, 9, &Gullet::Radius2, 0.001, 0.001},
                    LimitRow{"SecondOfFrostMayBeNegative", R2, 9, &Gullet::Radius2, -1, -1},
                    LimitRow{"SecondOfSquareHasNone", R2, 1, &Gullet::Radius2, 0, 0},
                    LimitRow{"ThirdOfTripleBelow", R3, 5, &Gullet::Radius3, 0.029, 0.03},
                    LimitRow{"ThirdOfTripleNone", R3, 5, &Gullet::Radius3, 0, 0.03},
                    LimitRow{"ThirdOfTripleAt", R3, 5, &Gullet::Radius3, 0.03, 0.03},
                    LimitRow{"ThirdOfTripleAbove", R3, 5, &Gullet::Radius3, 0.031, 0.031},
                    LimitRow{"ThirdOfFrostNegative", R3, 9, &Gullet::Radius3, -0.01, 0},
                    LimitRow{"ThirdOfFrostNone", R3, 9, &Gullet::Radius3, 0, 0},
                    LimitRow{"ThirdOfFrostSmall", R3, 9, &Gullet::Radius3, 0.001, 0.001}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- the notch of a Frost tooth

double NotchWidth(double gulletWidth, double notchRadius, double notchWidth) {
  BandSaw saw;
  saw.ToothStyle = FrostTooth;
  saw.GulletInfo.Width = gulletWidth;
  saw.GulletInfo.FrostRadius = notchRadius;
  saw.GulletInfo.FrostWidth = notchWidth;
  ApplyBoxRule(Parameter::FrostNotchWidth, saw, Places);
  return saw.GulletInfo.FrostWidth;
}

TEST(NotchWidthBox, IsNoWiderThanTheGullet) {
  EXPECT_EQ(NotchWidth(0.5, 0.04, 0.6), 0.5);
  EXPECT_EQ(NotchWidth(0.5, 0.04, 0.5), 0.5);
  EXPECT_EQ(NotchWidth(0.5, 0.04, 0.4), 0.4);
}

TEST(NotchWidthBox, IsAsWideAsItLikesWithoutAGulletWidth) {
  EXPECT_EQ(NotchWidth(0, 0.04, 9), 9);
  EXPECT_EQ(NotchWidth(-1, 0.04, 9), 9);
}

TEST(NotchWidthBox, HoldsItsRadiusAndALittle) {
  EXPECT_DOUBLE_EQ(NotchWidth(0.5, 0.25, 0.2), 0.26);
  EXPECT_DOUBLE_EQ(NotchWidth(0.5, 0.25, 0.26), 0.26);
  EXPECT_EQ(NotchWidth(0.5, 0.25, 0.27), 0.27);
  EXPECT_DOUBLE_EQ(NotchWidth(0, 0.25, -3), 0.26);
}

TEST(NotchWidthBox, PutsTheGulletAheadOfTheRadius) {
  EXPECT_EQ(NotchWidth(0.1, 0.25, 0.2), 0.1) << "though the radius does not fit in";
}

// ---- length, pitch and teeth

TEST(LengthBox, TakesThePitchUpAnew) {
  BandSaw saw;
  saw.Length = 20;
  saw.Pitch = 2;
  saw.NumTeeth = 100;
  ApplyBoxRule(Parameter::BandLength, saw, Places);
  EXPECT_EQ(saw.Length, 20);
  EXPECT_EQ(saw.Pitch, 0);
  EXPECT_EQ(saw.NumTeeth, 100);
}

TEST(LengthBox, KnowsNoNegativeLength) {
  for (const double length : {-0.001, 0.0, 0.001}) {
    BandSaw saw;
    saw.Length = length;
    ApplyBoxRule(Parameter::BandLength, saw, Places);
    EXPECT_EQ(saw.Length, length < 0 ? 0 : length);
  }
}

struct PitchRow {
  const char* Name;
  double Length, Pitch;
  std::int16_t Teeth;
  double WantPitch;
  std::int16_t WantTeeth;
  friend void PrintTo(const PitchRow& row, std::ostream* out) { *out << row.Name; }
};

class PitchRule : public testing::TestWithParam<PitchRow> {
 protected:
  static BandSaw Given() {
    BandSaw saw;
    saw.Length = GetParam().Length;
    saw.Pitch = GetParam().Pitch;
    saw.NumTeeth = GetParam().Teeth;
    return saw;
  }
  static void Check(const BandSaw& saw) {
    EXPECT_EQ(saw.Pitch, GetParam().WantPitch);
    EXPECT_EQ(saw.NumTeeth, GetParam().WantTeeth);
    EXPECT_EQ(saw.Length, GetParam().Length);
  }
};

TEST_P(PitchRule, OfTheBoxDividesTheBandIntoWholeTeeth) {
  BandSaw saw = Given();
  ApplyBoxRule(Parameter::Pitch, saw, Places);
  Check(saw);
}

TEST_P(PitchRule, OfTheRowIsTheSame) {
  BandSaw saw = Given();
  ApplyRowRule(Parameter::Pitch, saw, Places);
  Check(saw);
}

INSTANTIATE_TEST_SUITE_P(
    Pitches, PitchRule,
    testing::Values(PitchRow{"Even", 20, 2, 7, 2, 120}, PitchRow{"ALittleOver", 20, 1.75, 7, 1.75182, 137},
                    PitchRow{"CutNotRounded", 20, 1.77, 7, 1.77777, 135}, PitchRow{"None", 20, 0, 7, 0, 7},
                    PitchRow{"Negative", 20, -2, 7, 0, 7}, PitchRow{"LengthOfAFootIsTooShort", 1, 2, 7, 2, 7},
                    PitchRow{"LengthJustOverAFoot", 1.001, 2, 7, 2.002, 6},
                    PitchRow{"WithoutLength", 0, 2, 7, 2, 7},
                    PitchRow{"LongerThanTheBand", 20, 500, 7, 500, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(PitchBox, RoundsByThePlacesOfTheProgram) {
  BandSaw saw;
  saw.Length = 20;
  saw.Pitch = 1.75;
  ApplyBoxRule(Parameter::Pitch, saw, 7);
  EXPECT_EQ(saw.Pitch, 1.7518248);
}

TEST(TeethBox, AsksForTwelveTeethAndTakesThePitchUpAnew) {
  for (const auto& [teeth, want] :
       std::vector<std::pair<int, int>>{{-5, 12}, {0, 12}, {11, 12}, {12, 12}, {13, 13}}) {
    BandSaw saw;
    saw.Length = 20;
    saw.Pitch = 2;
    saw.NumTeeth = static_cast<std::int16_t>(teeth);
    ApplyBoxRule(Parameter::NumTeeth, saw, Places);
    EXPECT_EQ(saw.NumTeeth, want);
    EXPECT_EQ(saw.Pitch, 0);
    EXPECT_EQ(saw.Length, 20);
  }
}

// ---- rows

TEST(LengthRow, TakesThePitchUpAnewFromTheTeeth) {
  BandSaw saw;
  saw.Length = 20;
  saw.Pitch = 2;
  saw.NumTeeth = 100;
  ApplyRowRule(Parameter::BandLength, saw, Places);
  EXPECT_EQ(saw.Length, 20);
  EXPECT_EQ(saw.Pitch, 0);
  EXPECT_EQ(saw.NumTeeth, 100);
}

TEST(TeethRow, SetsThePitchAtOnce) {
  BandSaw saw;
  saw.Length = 20;
  saw.Pitch = 2;
  saw.NumTeeth = 137;
  ApplyRowRule(Parameter::NumTeeth, saw, Places);
  EXPECT_EQ(saw.Pitch, 1.75182);
  EXPECT_EQ(saw.NumTeeth, 137);
  EXPECT_EQ(saw.Length, 20);
}

TEST(TeethRow, KnowsNoLeastNumber) {
  BandSaw saw;
  saw.Length = 20;
  saw.NumTeeth = 5;
  ApplyRowRule(Parameter::NumTeeth, saw, Places);
  EXPECT_EQ(saw.NumTeeth, 5);
  EXPECT_EQ(saw.Pitch, 48);
}

TEST(TeethRow, ClearsTheLengthWithTheCount) {
  BandSaw saw;
  saw.Length = 20;
  saw.Pitch = 2;
  saw.NumTeeth = 0;
  ApplyRowRule(Parameter::NumTeeth, saw, Places);
  EXPECT_EQ(saw.Length, 0);
  EXPECT_EQ(saw.NumTeeth, 0);
}

struct ClearRow {
  double Plate, Kerf, Want;
};

TEST(PlateAndKerfRow, WorkOutTheSideClearance) {
  for (const Parameter accepted : {Parameter::PlateThickness, Parameter::TipKerf}) {
    for (const ClearRow& row : std::vector<ClearRow>{
             {0.065, 0.15, 0.0425}, {0, 0.15, 0}, {0.065, 0, 0}, {0.065, 0.065, 0}, {0.065, 0.06, 0}}) {
      BandSaw saw;
      saw.GeneralInfo.PlateThick = row.Plate;
      saw.GeneralInfo.Kerf = row.Kerf;
      saw.GeneralInfo.SideClear = 9;
      ApplyRowRule(accepted, saw, Places);
      EXPECT_EQ(saw.GeneralInfo.SideClear, row.Want) << row.Plate << ' ' << row.Kerf;
    }
  }
}

// ---- what the rules leave alone

Names BoxChanges(Parameter accepted) {
  BandSaw saw = DesignOfEveryField();
  saw.ToothStyle = TripleRadius;
  const BandSaw before = saw;
  ApplyBoxRule(accepted, saw, Places);
  return ChangedFields(before, saw);
}

Names RowChanges(Parameter accepted) {
  BandSaw saw = DesignOfEveryField();
  saw.ToothStyle = TripleRadius;
  const BandSaw before = saw;
  ApplyRowRule(accepted, saw, Places);
  return ChangedFields(before, saw);
}

TEST(BoxRules, TouchNothingButTheirOwnFields) {
  EXPECT_EQ(BoxChanges(Parameter::BandLength), Names{"Pitch"});
  EXPECT_EQ(BoxChanges(Parameter::Pitch), (Names{"NumTeeth", "Pitch"}));
  for (const Parameter accepted :
       {Parameter::BandWidth, Parameter::TipClearance, Parameter::SeatWidth, Parameter::SeatHeight,
        Parameter::HookAngle, Parameter::ClearanceAngle, Parameter::GulletRadius,
        Parameter::FirstGulletRadius, Parameter::SecondGulletRadius, Parameter::ThirdGulletRadius,
        Parameter::GulletBottomAngle, Parameter::GulletWidth, Parameter::GulletDepth,
        Parameter::GulletBackAngle, Parameter::GulletBackRadius, Parameter::FrostNotchHeight,
        Parameter::FrostNotchRadius, Parameter::FrostNotchAngle})
    EXPECT_EQ(BoxChanges(accepted), Names{}) << RowOf(accepted).Title;
}

TEST(BoxRules, OfTheGeneralInformationFillThatSection) {
  for (const Parameter accepted : {Parameter::TipType, Parameter::JoinStyle})
    EXPECT_EQ(BoxChanges(accepted), Names{"ContainsInfo.General"}) << RowOf(accepted).Title;
  for (const Parameter accepted : {Parameter::PlateThickness, Parameter::TipKerf})
    EXPECT_EQ(BoxChanges(accepted).count("ContainsInfo.General"), 1u) << RowOf(accepted).Title;
}

TEST(RowRules, TouchNothingButTheirOwnFields) {
  EXPECT_EQ(RowChanges(Parameter::BandLength), Names{"Pitch"});
  EXPECT_EQ(RowChanges(Parameter::NumTeeth), Names{"Pitch"});
  EXPECT_EQ(RowChanges(Parameter::TipKerf), (Names{"ContainsInfo.General", "GeneralInfo.SideClear"}));
  EXPECT_EQ(RowChanges(Parameter::PlateThickness), (Names{"ContainsInfo.General", "GeneralInfo.SideClear"}));
  for (const Parameter accepted :
       {Parameter::BandWidth, Parameter::TipClearance, Parameter::SeatWidth, Parameter::SeatHeight,
        Parameter::HookAngle, Parameter::ClearanceAngle, Parameter::GulletRadius,
        Parameter::FirstGulletRadius, Parameter::SecondGulletRadius, Parameter::ThirdGulletRadius,
        Parameter::GulletBottomAngle, Parameter::GulletWidth, Parameter::GulletDepth,
        Parameter::GulletBackAngle, Parameter::GulletBackRadius, Parameter::FrostNotchHeight,
        Parameter::FrostNotchRadius, Parameter::FrostNotchAngle})
    EXPECT_EQ(RowChanges(accepted), Names{}) << RowOf(accepted).Title;
}

// ---- a style changed to the Frost tooth

BandSaw Frosted(const BandSaw::Gullet& gullet) {
  BandSaw saw;
  saw.ToothStyle = FrostTooth;
  saw.GulletInfo = gullet;
  FillFrostTooth(saw);
  return saw;
}

TEST(FrostDefaults, FillADesignThatHasNoNotch) {
  BandSaw::Gullet gullet;
  gullet.Radius = 0.3;
  const BandSaw::Gullet filled = Frosted(gullet).GulletInfo;
  EXPECT_EQ(filled.Radius1, 0.3);
  EXPECT_EQ(filled.FrostAngle, 25);
  EXPECT_EQ(filled.FrostRadius, 0.03937);
  EXPECT_DOUBLE_EQ(filled.FrostHeight, 0.07874);
  EXPECT_DOUBLE_EQ(filled.FrostWidth, 2.2 * 0.03937);
}

TEST(FrostDefaults, LeaveWhatIsThere) {
  BandSaw::Gullet gullet;
  gullet.Radius = 0.3;
  gullet.Radius1 = 0.2;
  gullet.FrostAngle = 0.5;
  gullet.FrostRadius = 0.04;
  gullet.FrostHeight = 0.2;
  gullet.FrostWidth = 0.3;
  BandSaw saw;
  saw.GulletInfo = gullet;
  const BandSaw before = saw;
  FillFrostTooth(saw);
  EXPECT_EQ(ChangedFields(before, saw), Names{});
}

TEST(FrostDefaults, ReplaceRadiusAndAngleBelowZero) {
  BandSaw::Gullet gullet;
  gullet.Radius = 0.3;
  gullet.Radius1 = -0.2;
  gullet.FrostAngle = -1;
  EXPECT_EQ(Frosted(gullet).GulletInfo.Radius1, 0.3);
  EXPECT_EQ(Frosted(gullet).GulletInfo.FrostAngle, 25);
}

TEST(FrostDefaults, KnowNoNotchRadiusBelowAMillimetre) {
  for (const auto& [radius, want] :
       std::vector<std::pair<double, double>>{{-1, 0.03937}, {0.03937, 0.03937}, {0.03938, 0.03938}}) {
    BandSaw::Gullet gullet;
    gullet.FrostRadius = radius;
    EXPECT_EQ(Frosted(gullet).GulletInfo.FrostRadius, want);
  }
}

TEST(FrostDefaults, MakeTheNotchTwiceItsRadiusHigh) {
  for (const auto& [height, want] :
       std::vector<std::pair<double, double>>{{0.499, 0.5}, {0.5, 0.5}, {0.501, 0.501}}) {
    BandSaw::Gullet gullet;
    gullet.FrostRadius = 0.25;
    gullet.FrostHeight = height;
    EXPECT_EQ(Frosted(gullet).GulletInfo.FrostHeight, want);
  }
}

TEST(FrostDefaults, WidenANotchThatIsNarrowerThanTwiceItsRadius) {
  for (const auto& [width, want] :
       std::vector<std::pair<double, double>>{{0.499, 0.55}, {0.5, 0.5}, {0.52, 0.52}, {0.6, 0.6}}) {
    BandSaw::Gullet gullet;
    gullet.FrostRadius = 0.25;
    gullet.FrostWidth = width;
    EXPECT_DOUBLE_EQ(Frosted(gullet).GulletInfo.FrostWidth, want);
  }
}

}  // namespace
}  // namespace tarnwick
