#include "window/modDisplay.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "support/TeethOf.h"

namespace tarnwick {
namespace {

using test::TeethOf;

using Rows = std::vector<std::string>;

constexpr DisplayFormat Inch{Imperial, 3, 5};
constexpr DisplayFormat Centimetre{Metric, 3, 5};
constexpr double PanelWidth = 300;

/// Caption and value of each row, as one reads them; a row that sets sections apart is empty.
Rows Shown(const BandSaw& saw, const DisplayFormat& format = Inch) {
  Rows rows;
  for (const InfoRow& row : BuildSawInfo(saw, format, PanelWidth)) rows.push_back(row.Caption + row.Value);
  return rows;
}

const InfoRow* Find(const SawInfo& rows, const std::string& caption) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const InfoRow& row) { return row.Caption == caption; });
  return found == rows.end() ? nullptr : &*found;
}

bool Has(const BandSaw& saw, const std::string& caption) {
  return Find(BuildSawInfo(saw, Inch, PanelWidth), caption) != nullptr;
}

std::string ValueOf(const BandSaw& saw, const std::string& caption) {
  const SawInfo rows = BuildSawInfo(saw, Inch, PanelWidth);
  const InfoRow* row = Find(rows, caption);
  return row == nullptr ? "no row" : row->Value;
}

void AddSegment(BandSaw& saw) {
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {2.25, 2, 1.75};
  saw.GeneralInfo.VarDepth = {0.75, 0.7, 0.65};
  saw.DesignInfo.VarArea = {1.1, 0.9, 0.7};
  saw.DesignInfo.SegmentLength = 6;
}

void AddGeneral(BandSaw& saw) {
  saw.ContainsInfo.General = True;
  saw.GeneralInfo.Quantity = 3;
  saw.GeneralInfo.TipType = 1;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.BothEdges = True;
  saw.GeneralInfo.PlateThick = 0.065;
  saw.GeneralInfo.Kerf = 0.15;
  saw.GeneralInfo.SideClear = 0.0425;
}

void AddMachine(BandSaw& saw) {
  saw.ContainsInfo.Machine = True;
  saw.MachineInfo.WheelDia = 5;
  saw.MachineInfo.CenterToCenter = 8;
  saw.MachineInfo.Width = 9;
}

void AddPower(BandSaw& saw) {
  saw.ContainsInfo.Power = True;
  saw.GeneralInfo.ShaftSpeed = 510;
  saw.DesignInfo.SawVelocity = 8011;
  saw.GeneralInfo.DepthOfCut = 10;
  saw.GeneralInfo.FeedRate = 100;
  saw.GulletInfo.Bite = 0.025;
  saw.GeneralInfo.WoodType.Assign("Oak (White)");
  saw.GeneralInfo.HorsePower = 31.25;
}

BandSaw Everything() {
  BandSaw saw = TeethOf(DoubleRadius);
  AddSegment(saw);
  AddGeneral(saw);
  AddMachine(saw);
  AddPower(saw);
  return saw;
}

// ---- the teeth, by style

/// What changes from style to style, in order.
struct StyleRows {
  const char* Name;
  int Style;
  const char* StyleText;  // nullptr: no such row
  Rows Inch, Metric;
  friend void PrintTo(const StyleRows& row, std::ostream* out) { *out << row.Name; }
};

class PanelTeeth : public testing::TestWithParam<StyleRows> {
 protected:
  static Rows Expected(const Rows& head, const Rows& style, const Rows& tail) {
    Rows rows{"Band Saw Teeth:"};
    if (GetParam().StyleText != nullptr) rows.push_back(std::string("Tooth Style: ") + GetParam().StyleText);
    for (const Rows* part : {&head, &style, &tail}) rows.insert(rows.end(), part->begin(), part->end());
    return rows;
  }
};

TEST_P(PanelTeeth, AreShownInInches) {
  EXPECT_EQ(Shown(TeethOf(GetParam().Style)),
            Expected({"Length: 20.000 ft", "Band Saw Width: 5.000 in", "Number Of Teeth: 120",
                      "Tooth Spacing: 2.000 in", "Hook Angle: 25.000 deg", "Clearance Angle: 12.000 deg",
                      "Sharpness Angle: 53.000 deg"},
                     GetParam().Inch,
                     {"Gullet Depth: 0.700 in", "Gullet Back Radius: 0.125 in", "Gullet Area: 0.900 in²",
                      "Seat: Yes", "Seat Width: 0.060 in", "Seat Height: 0.175 in", "Tip Clearance: 0.030 in",
                      "Face Length: 0.400 in"}));
}

TEST_P(PanelTeeth, AreShownInMetricUnits) {
  EXPECT_EQ(Shown(TeethOf(GetParam().Style), Centimetre),
            Expected({"Length: 6.096 m", "Band Saw Width: 12.700 cm", "Number Of Teeth: 120",
                      "Tooth Spacing: 5.080 cm", "Hook Angle: 25.000 deg", "Clearance Angle: 12.000 deg",
                      "Sharpness Angle: 53.000 deg"},
                     GetParam().Metric,
                     {"Gullet Depth: 1.778 cm", "Gullet Back Radius: 0.318 cm", "Gullet Area: 5.806 cm²",
                      "Seat: Yes", "Seat Width: 1.524 mm", "Seat Height: 4.445 mm", "Tip Clearance: 0.762 mm",
                      "Face Length: 10.160 mm"}));
}

const Rows SingleInch{"Gullet Radius: 0.500 in", "Gullet Back Angle: 35.000 deg"};
const Rows SingleMetric{"Gullet Radius: 1.270 cm", "Gullet Back Angle: 35.000 deg"};

INSTANTIATE_TEST_SUITE_P(
    Styles, PanelTeeth,
    testing::Values(
        StyleRows{"NoStyle", 0, nullptr, SingleInch, SingleMetric},
        StyleRows{"SquareBack", 1, "Square Back", SingleInch, SingleMetric},
        StyleRows{"RoundBack", 2, "Round Back", SingleInch, SingleMetric},
        StyleRows{"TheHoleInTheNumbering", 3, nullptr, SingleInch, SingleMetric},
        StyleRows{"DoubleRadius",
                  4,
                  "Double Radius",
                  {"1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in", "Gullet Width: 0.800 in",
                   "Gullet Back Angle: 35.000 deg"},
                  {"1st Gullet Radius: 0.635 cm", "2nd Gullet Radius: 1.905 cm", "Gullet Width: 2.032 cm",
                   "Gullet Back Angle: 35.000 deg"}},
        StyleRows{"TripleRadius",
                  5,
                  "Triple Radius",
                  {"1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in",
                   "3rd Gullet Radius: 0.375 in", "Gullet Width: 0.800 in", "Gullet Back Angle: 35.000 deg"},
                  {"1st Gullet Radius: 0.635 cm", "2nd Gullet Radius: 1.905 cm",
                   "3rd Gullet Radius: 0.953 cm", "Gullet Width: 2.032 cm", "Gullet Back Angle: 35.000 deg"}},
        StyleRows{
            "FlatBottom",
            6,
            "Flat Bottom",
            {"1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in", "Gullet Bottom Angle: 7.000 deg",
             "Gullet Width: 0.800 in", "Gullet Back Angle: 35.000 deg"},
            {"1st Gullet Radius: 0.635 cm", "2nd Gullet Radius: 1.905 cm", "Gullet Bottom Angle: 7.000 deg",
             "Gullet Width: 2.032 cm", "Gullet Back Angle: 35.000 deg"}},
        StyleRows{"NarrowStyle", 7, "Narrow Style", {"Gullet Radius: 0.500 in"}, {"Gullet Radius: 1.270 cm"}},
        StyleRows{"OShape",
                  8,
                  "O Shape",
                  {"1st Gullet Radius: 0.250 in", "Gullet Width: 0.800 in"},
                  {"1st Gullet Radius: 0.635 cm", "Gullet Width: 2.032 cm"}},
        StyleRows{
            "FrostTooth",
            9,
            "Frost Tooth",
            {"Frost Notch Width: 0.100 in", "Frost Notch Height: 0.200 in", "Frost Notch Radius: 0.050 in",
             "Frost Notch Angle: 20.000 deg", "1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in",
             "3rd Gullet Radius: 0.375 in", "Gullet Width: 0.800 in"},
            {"Frost Notch Width: 2.540 mm", "Frost Notch Height: 5.080 mm", "Frost Notch Radius: 1.270 mm",
             "Frost Notch Angle: 20.000 deg", "1st Gullet Radius: 0.635 cm", "2nd Gullet Radius: 1.905 cm",
             "3rd Gullet Radius: 0.953 cm", "Gullet Width: 2.032 cm"}},
        StyleRows{"ANumberBeyondAllStyles", 12, nullptr, SingleInch, SingleMetric}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- rows that are only there when there is something to show

struct Condition {
  const char* Name;
  const char* Caption;
  int Style;
  std::function<void(BandSaw&)> Clear;
  friend void PrintTo(const Condition& row, std::ostream* out) { *out << row.Name; }
};

class RowIfSet : public testing::TestWithParam<Condition> {};

TEST_P(RowIfSet, IsThereWithAValueAndGoneWithoutOneAndTakesNoOtherRowAlong) {
  BandSaw saw = Everything();
  saw.ToothStyle = static_cast<std::int16_t>(GetParam().Style);
  const Rows before = Shown(saw);
  ASSERT_TRUE(Has(saw, GetParam().Caption));
  GetParam().Clear(saw);
  EXPECT_FALSE(Has(saw, GetParam().Caption));
  EXPECT_EQ(Shown(saw).size(), before.size() - 1);
}

INSTANTIATE_TEST_SUITE_P(
    Each, RowIfSet,
    testing::Values(
        Condition{"Width", "Band Saw Width:", 4, [](BandSaw& s) { s.Width = 0; }},
        Condition{"Pitch", "Tooth Spacing:", 4, [](BandSaw& s) { s.Pitch = 0; }},
        Condition{"RadiusOfSquareBack", "Gullet Radius:", 1, [](BandSaw& s) { s.GulletInfo.Radius = 0; }},
        Condition{"RadiusOfNarrow", "Gullet Radius:", 7, [](BandSaw& s) { s.GulletInfo.Radius = 0; }},
        Condition{"Radius1", "1st Gullet Radius:", 4, [](BandSaw& s) { s.GulletInfo.Radius1 = 0; }},
        Condition{"Radius1OfO", "1st Gullet Radius:", 8, [](BandSaw& s) { s.GulletInfo.Radius1 = 0; }},
        Condition{"Radius2", "2nd Gullet Radius:", 5, [](BandSaw& s) { s.GulletInfo.Radius2 = 0; }},
        Condition{"Radius3", "3rd Gullet Radius:", 5, [](BandSaw& s) { s.GulletInfo.Radius3 = 0; }},
        Condition{"BottomAngle", "Gullet Bottom Angle:", 6, [](BandSaw& s) { s.GulletInfo.BottomAngle = 0; }},
        Condition{"GulletWidth", "Gullet Width:", 4, [](BandSaw& s) { s.GulletInfo.Width = 0; }},
        Condition{"FrostWidth", "Frost Notch Width:", 9, [](BandSaw& s) { s.GulletInfo.FrostWidth = 0; }},
        Condition{"FrostHeight", "Frost Notch Height:", 9, [](BandSaw& s) { s.GulletInfo.FrostHeight = 0; }},
        Condition{"FrostRadius", "Frost Notch Radius:", 9, [](BandSaw& s) { s.GulletInfo.FrostRadius = 0; }},
        Condition{"FrostAngle", "Frost Notch Angle:", 9, [](BandSaw& s) { s.GulletInfo.FrostAngle = 0; }},
        Condition{"Depth", "Gullet Depth:", 4, [](BandSaw& s) { s.GulletInfo.Depth = 0; }},
        Condition{"BackRadius", "Gullet Back Radius:", 4, [](BandSaw& s) { s.GulletInfo.BackRadius = 0; }},
        Condition{"SeatWidth", "Seat Width:", 4, [](BandSaw& s) { s.SeatInfo.Width = 0; }},
        Condition{"SeatHeight", "Seat Height:", 4, [](BandSaw& s) { s.SeatInfo.Height = 0; }},
        Condition{"TipClearance", "Tip Clearance:", 4, [](BandSaw& s) { s.TipClear = 0; }},
        Condition{"FaceLength", "Face Length:", 4, [](BandSaw& s) { s.GulletInfo.FaceLength = 0; }},
        Condition{"FaceLengthBelowZero", "Face Length:", 4, [](BandSaw& s) { s.GulletInfo.FaceLength = -1; }},
        Condition{"Quantity", "Number Of Saws:", 4, [](BandSaw& s) { s.GeneralInfo.Quantity = 0; }},
        Condition{"QuantityBelowZero", "Number Of Saws:", 4, [](BandSaw& s) { s.GeneralInfo.Quantity = -2; }},
        Condition{"BothEdges", "Teeth on Both Edges:", 4, [](BandSaw& s) { s.BothEdges = False; }},
        Condition{"PlateThick", "Plate Thickness:", 4, [](BandSaw& s) { s.GeneralInfo.PlateThick = 0; }},
        Condition{"Kerf", "Cut Width (Kerf):", 4, [](BandSaw& s) { s.GeneralInfo.Kerf = 0; }},
        Condition{"SideClear", "Side Clearance:", 4, [](BandSaw& s) { s.GeneralInfo.SideClear = 0; }},
        Condition{"WheelDia", "Wheel Diameter:", 4, [](BandSaw& s) { s.MachineInfo.WheelDia = 0; }},
        Condition{"Centers", "Center to Center:", 4, [](BandSaw& s) { s.MachineInfo.CenterToCenter = 0; }},
        Condition{"RimWidth", "Wheel Rim Width:", 4, [](BandSaw& s) { s.MachineInfo.Width = 0; }},
        Condition{"ShaftSpeed", "Wheel RPMs:", 4, [](BandSaw& s) { s.GeneralInfo.ShaftSpeed = 0; }},
        Condition{"ToothSpeed", "Tooth Speed:", 4, [](BandSaw& s) { s.DesignInfo.SawVelocity = 0; }},
        Condition{"DepthOfCut", "Depth of Cut (Max):", 4, [](BandSaw& s) { s.GeneralInfo.DepthOfCut = 0; }},
        Condition{"FeedRate", "Feed Rate:", 4, [](BandSaw& s) { s.GeneralInfo.FeedRate = 0; }},
        Condition{"Bite", "Bite:", 4, [](BandSaw& s) { s.GulletInfo.Bite = 0; }},
        Condition{"WoodOfBlanks", "Type of Wood:", 4, [](BandSaw& s) { s.GeneralInfo.WoodType.Assign(""); }},
        Condition{"WoodNeverGiven", "Type of Wood:", 4, [](BandSaw& s) { s.GeneralInfo.WoodType = {}; }},
        Condition{"HorsePower", "Horsepower:", 4, [](BandSaw& s) { s.GeneralInfo.HorsePower = 0; }}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(PanelRows, CountNegativeMeasuresAsSet) {
  BandSaw saw = TeethOf(SquareBack);
  saw.TipClear = -0.03;
  EXPECT_EQ(ValueOf(saw, "Tip Clearance:"), " -0.030 in");
}

TEST(PanelRows, ShowAnglesOfZero) {
  BandSaw saw;
  saw.ContainsInfo.Teeth = True;
  EXPECT_EQ(Shown(saw), (Rows{"Band Saw Teeth:", "Hook Angle: 0.000 deg", "Clearance Angle: 0.000 deg",
                              "Sharpness Angle: 0.000 deg", "Gullet Back Angle: 0.000 deg"}));
}

TEST(PanelRows, ShowTheBackAngleOfAFlatBottomOnlyBesideItsSecondRadius) {
  BandSaw saw = TeethOf(FlatBottom);
  saw.GulletInfo.BackAngle = 0;
  EXPECT_EQ(ValueOf(saw, "Gullet Back Angle:"), " 0.000 deg");
  saw.GulletInfo.Radius2 = 0;
  EXPECT_FALSE(Has(saw, "Gullet Back Angle:"));
}

TEST(PanelRows, ShowTheLengthOnlyWhenThereIsOne) {
  BandSaw saw = TeethOf(SquareBack);
  saw.Length = 0;
  EXPECT_FALSE(Has(saw, "Length:"));
}

TEST(PanelRows, ShowTheNumberOfTeethOnlyWhenThereAreSome) {
  BandSaw saw = TeethOf(SquareBack);
  saw.NumTeeth = 0;
  EXPECT_FALSE(Has(saw, "Number Of Teeth:"));
}

TEST(PanelRows, ShowLargeCountsWithoutDecimals) {
  BandSaw saw = TeethOf(SquareBack);
  AddGeneral(saw);
  saw.NumTeeth = 1500;
  saw.GeneralInfo.Quantity = 1200;
  EXPECT_EQ(ValueOf(saw, "Number Of Teeth:"), " 1500");
  EXPECT_EQ(ValueOf(saw, "Number Of Saws:"), " 1200");
}

TEST(PanelRows, GoByThePlacesOfTheDisplay) {
  const BandSaw saw = TeethOf(SquareBack);
  const SawInfo rows = BuildSawInfo(saw, {Imperial, 5, 5}, PanelWidth);
  ASSERT_NE(Find(rows, "Tooth Spacing:"), nullptr);
  EXPECT_EQ(Find(rows, "Tooth Spacing:")->Value, " 2.00000 in");
  EXPECT_EQ(Find(rows, "Hook Angle:")->Value, " 25.00000 deg");
  EXPECT_EQ(Find(rows, "Number Of Teeth:")->Value, " 120");
}

// ---- gullet area

TEST(PanelArea, AsksForALengthOfAFoot) {
  BandSaw saw = TeethOf(SquareBack);
  saw.Length = 1;
  EXPECT_TRUE(Has(saw, "Gullet Area:"));
  saw.Length = 0.999;
  EXPECT_FALSE(Has(saw, "Gullet Area:"));
}

TEST(PanelArea, AsksForEightTeeth) {
  BandSaw saw = TeethOf(SquareBack);
  saw.NumTeeth = 8;
  EXPECT_TRUE(Has(saw, "Gullet Area:"));
  saw.NumTeeth = 7;
  EXPECT_FALSE(Has(saw, "Gullet Area:"));
}

TEST(PanelArea, AsksForOneOfThreeRadii) {
  using Gullet = BandSaw::Gullet;
  BandSaw saw = TeethOf(TripleRadius);
  for (double Gullet::*radius : {&Gullet::Radius, &Gullet::Radius1, &Gullet::Radius2}) {
    saw.GulletInfo.Radius = saw.GulletInfo.Radius1 = saw.GulletInfo.Radius2 = 0;
    saw.GulletInfo.*radius = 0.1;
    EXPECT_TRUE(Has(saw, "Gullet Area:"));
    saw.GulletInfo.*radius = -0.1;
    EXPECT_FALSE(Has(saw, "Gullet Area:")) << "a third radius alone, or one below zero";
  }
}

// ---- averages

TEST(PanelAverages, ComeWithAVariablePitch) {
  BandSaw saw = TeethOf(DoubleRadius);
  AddSegment(saw);
  saw.GeneralInfo.VariableDepth = False;
  EXPECT_EQ(ValueOf(saw, "Tooth Spacing:"), " 2.000 in  (Average)");
  EXPECT_EQ(ValueOf(saw, "Face Length:"), " 0.400 in  (Average)");
  EXPECT_EQ(ValueOf(saw, "Gullet Area:"), " 0.900 in²");
  EXPECT_EQ(ValueOf(saw, "Gullet Depth:"), " 0.700 in");
}

TEST(PanelAverages, OfTheAreaComeWithAVariableDepth) {
  BandSaw saw = TeethOf(DoubleRadius);
  saw.GeneralInfo.VariableDepth = True;
  EXPECT_EQ(ValueOf(saw, "Gullet Area:"), " 0.900 in²  (Average)");
  EXPECT_EQ(ValueOf(saw, "Tooth Spacing:"), " 2.000 in");
  EXPECT_EQ(ValueOf(saw, "Face Length:"), " 0.400 in");
}

// ---- seat

TEST(PanelSeat, IsDeniedOnlyForCarbideTips) {
  for (int tip = 0; tip <= 4; ++tip) {
    BandSaw saw = TeethOf(SquareBack);
    saw.SeatInfo.State = False;
    saw.GeneralInfo.TipType = static_cast<std::int16_t>(tip);
    EXPECT_EQ(ValueOf(saw, "Seat:"), tip == 3 ? " No" : "no row") << tip;
    EXPECT_FALSE(Has(saw, "Seat Width:"));
    EXPECT_FALSE(Has(saw, "Seat Height:"));
  }
}

TEST(PanelSeat, IsThereForAnyFlagThatIsNotZero) {
  BandSaw saw = TeethOf(SquareBack);
  saw.SeatInfo.State = 1;
  saw.GeneralInfo.TipType = 3;
  EXPECT_EQ(ValueOf(saw, "Seat:"), " Yes");
}

// ---- segment

TEST(PanelSegment, ShowsEachToothInOrder) {
  BandSaw saw;
  AddSegment(saw);
  EXPECT_EQ(Shown(saw),
            (Rows{"Variable Pitch:", "Teeth in Segment: 3", "Length of Segment: 6.000 in",
                  "1st Tooth:", "    Pitch: 2.250 in", "    Depth: 0.750 in", "    Area: 1.100 in²",
                  "2nd Tooth:", "    Pitch: 2.000 in", "    Depth: 0.700 in", "    Area: 0.900 in²",
                  "3rd Tooth:", "    Pitch: 1.750 in", "    Depth: 0.650 in", "    Area: 0.700 in²"}));
}

TEST(PanelSegment, IsConvertedInMetricUnits) {
  BandSaw saw;
  AddSegment(saw);
  const Rows rows = Shown(saw, Centimetre);
  ASSERT_EQ(rows.size(), 15u);
  EXPECT_EQ(rows[2], "Length of Segment: 15.240 cm");
  EXPECT_EQ(rows[4], "    Pitch: 5.715 cm");
  EXPECT_EQ(rows[5], "    Depth: 1.905 cm");
  EXPECT_EQ(rows[6], "    Area: 7.097 cm²");
}

TEST(PanelSegment, NumbersUpToSevenTeeth) {
  BandSaw saw;
  AddSegment(saw);
  saw.GeneralInfo.NumVariables = 7;
  for (std::size_t i = 0; i < 7; ++i)
    saw.GeneralInfo.VarPitch[i] = saw.GeneralInfo.VarDepth[i] = saw.DesignInfo.VarArea[i] = 1;
  const Rows rows = Shown(saw);
  ASSERT_EQ(rows.size(), 3u + 7 * 4);
  const Rows names{
      "1st Tooth:", "2nd Tooth:", "3rd Tooth:", "4th Tooth:", "5th Tooth:", "6th Tooth:", "7th Tooth:"};
  for (std::size_t tooth = 0; tooth < 7; ++tooth) EXPECT_EQ(rows[3 + 4 * tooth], names[tooth]);
}

TEST(PanelSegment, ShowsNoToothThatADamagedCountInvents) {
  BandSaw saw;
  AddSegment(saw);
  saw.GeneralInfo.VarPitch.fill(1);
  saw.GeneralInfo.VarDepth.fill(1);
  saw.DesignInfo.VarArea.fill(1);
  saw.GeneralInfo.NumVariables = 32767;
  EXPECT_EQ(Shown(saw).back(), "    Area: 1.000 in²");
  EXPECT_EQ(Shown(saw).size(), 3u + 7 * 4);
  saw.GeneralInfo.NumVariables = -5;
  EXPECT_FALSE(Has(saw, "1st Tooth:"));
}

// ---- general, machine, power

TEST(PanelGeneral, ShowsItsRowsInOrder) {
  BandSaw saw;
  AddGeneral(saw);
  EXPECT_EQ(Shown(saw),
            (Rows{"General Information:", "Number Of Saws: 3", "Type of Tip: Stellite",
                  "Join Bandsaw Ends: Overlap Join", "Teeth on Both Edges: Yes", "Plate Thickness: 0.065 in",
                  "Cut Width (Kerf): 0.150 in", "Side Clearance: 0.043 in"}));
  const Rows metric = Shown(saw, Centimetre);
  EXPECT_EQ(Rows(metric.end() - 3, metric.end()),
            (Rows{"Plate Thickness: 1.651 mm", "Cut Width (Kerf): 3.810 mm", "Side Clearance: 1.080 mm"}));
}

TEST(PanelGeneral, AlwaysNamesTipAndJoin) {
  BandSaw saw;
  saw.ContainsInfo.General = True;
  EXPECT_EQ(Shown(saw),
            (Rows{"General Information:", "Type of Tip: None", "Join Bandsaw Ends: Right Angle Join"}));
}

TEST(PanelGeneral, NamesEveryTip) {
  BandSaw saw;
  saw.ContainsInfo.General = True;
  const std::vector<std::pair<int, std::string>> tips{{-1, " None"},   {0, " None"},    {1, " Stellite"},
                                                      {2, " Swagged"}, {3, " Carbide"}, {4, " None"}};
  for (const auto& [tip, name] : tips) {
    saw.GeneralInfo.TipType = static_cast<std::int16_t>(tip);
    EXPECT_EQ(ValueOf(saw, "Type of Tip:"), name);
  }
}

TEST(PanelMachine, ShowsItsRowsInBothSystems) {
  BandSaw saw;
  AddMachine(saw);
  EXPECT_EQ(Shown(saw), (Rows{"Machine Information:", "Wheel Diameter: 5.000 ft",
                              "Center to Center: 8.000 ft", "Wheel Rim Width: 9.000 in"}));
  EXPECT_EQ(Shown(saw, Centimetre), (Rows{"Machine Information:", "Wheel Diameter: 1.524 m",
                                          "Center to Center: 2.438 m", "Wheel Rim Width: 22.860 cm"}));
}

TEST(PanelPower, ShowsItsRowsInBothSystems) {
  BandSaw saw;
  AddPower(saw);
  EXPECT_EQ(Shown(saw), (Rows{"Power Requirements:", "Wheel RPMs: 510 rpms", "Tooth Speed: 8011 fpm",
                              "Depth of Cut (Max): 10.000 in", "Feed Rate: 100 fpm", "Bite: 0.025 in",
                              "Type of Wood: Oak (White)", "Horsepower: 31.250"}));
  EXPECT_EQ(Shown(saw, Centimetre),
            (Rows{"Power Requirements:", "Wheel RPMs: 510 rpms", "Tooth Speed: 2442 mpm",
                  "Depth of Cut (Max): 25.400 cm", "Feed Rate: 30 mpm", "Bite: 0.635 mm",
                  "Type of Wood: Oak (White)", "Horsepower: 31.250"}));
}

// ---- sections

TEST(PanelSections, StandInTheirOrderWithAnEmptyRowBetween) {
  const Rows rows = Shown(Everything());
  const Rows headings{"Band Saw Teeth:", "Variable Pitch:", "General Information:", "Machine Information:",
                      "Power Requirements:"};
  Rows found;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (std::find(headings.begin(), headings.end(), rows[i]) == headings.end()) continue;
    found.push_back(rows[i]);
    if (i > 0) {
      EXPECT_EQ(rows[i - 1], "") << "ahead of " << rows[i];
    }
  }
  EXPECT_EQ(found, headings);
  EXPECT_EQ(std::count(rows.begin(), rows.end(), ""), 4);
  EXPECT_NE(rows.front(), "");
  EXPECT_NE(rows.back(), "");
}

TEST(PanelSections, NeverBeginOrEndWithAnEmptyRowWhateverTheDesignHolds) {
  for (int sections = 1; sections < 32; ++sections) {
    BandSaw saw = Everything();
    int shown = 0;
    const auto keep = [&](int bit, Flag& flag) {
      flag = (sections & bit) != 0 ? True : False;
      if (flag != False) ++shown;
    };
    keep(1, saw.ContainsInfo.Teeth);
    keep(2, saw.GeneralInfo.VariablePitch);
    keep(4, saw.ContainsInfo.General);
    keep(8, saw.ContainsInfo.Machine);
    keep(16, saw.ContainsInfo.Power);
    const Rows rows = Shown(saw);
    ASSERT_FALSE(rows.empty()) << sections;
    EXPECT_NE(rows.front(), "") << sections;
    EXPECT_NE(rows.back(), "") << sections;
    EXPECT_EQ(std::count(rows.begin(), rows.end(), ""), shown - 1) << sections;
  }
}

TEST(PanelSections, AreNoneForABlankDesign) { EXPECT_TRUE(Shown(BandSaw{}).empty()); }

TEST(PanelSections, AreNoneWithoutTheirFlagsWhateverTheDesignHolds) {
  BandSaw saw = Everything();
  saw.ContainsInfo = {};
  saw.GeneralInfo.VariablePitch = False;
  EXPECT_TRUE(Shown(saw).empty());
}

// ---- what a row knows of itself

TEST(PanelRow, TellsItsPlaceFromOne) {
  const SawInfo rows = BuildSawInfo(Everything(), Inch, PanelWidth);
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].Row, static_cast<int>(i) + 1);
}

TEST(PanelRow, IsAHeadingWithCodeTwoAndWithoutValueOnTopOfEachSection) {
  const Rows headings{"Band Saw Teeth:", "Variable Pitch:", "General Information:", "Machine Information:",
                      "Power Requirements:"};
  for (const InfoRow& row : BuildSawInfo(Everything(), Inch, PanelWidth)) {
    const bool heading = std::find(headings.begin(), headings.end(), row.Caption) != headings.end();
    EXPECT_EQ(row.Header, heading) << row.Caption;
    EXPECT_EQ(row.Code == RowCode::Header, heading) << row.Caption;
    if (heading) {
      EXPECT_EQ(row.Value, "");
    }
  }
}

TEST(PanelRow, HasCodeZeroAndNoWordsWhereItSetsSectionsApart) {
  int blank = 0;
  for (const InfoRow& row : BuildSawInfo(Everything(), Inch, PanelWidth)) {
    EXPECT_EQ(row.Code == RowCode::Blank, row.Caption.empty());
    if (!row.Caption.empty()) continue;
    ++blank;
    EXPECT_EQ(row.Value, "");
    EXPECT_FALSE(row.Header);
  }
  EXPECT_EQ(blank, 4);
}

TEST(PanelRow, BeginsItsValueWithOneBlank) {
  for (const InfoRow& row : BuildSawInfo(Everything(), Inch, PanelWidth)) {
    if (row.Value.empty()) continue;
    ASSERT_GE(row.Value.size(), 2u);
    EXPECT_EQ(row.Value[0], ' ') << row.Caption;
    EXPECT_NE(row.Value[1], ' ') << row.Caption;
  }
}

TEST(PanelRow, StandsInABoxOfItsHeightBelowTheOneBefore) {
  EXPECT_DOUBLE_EQ(RowHeight, 250.0 / 15);
  const SawInfo rows = BuildSawInfo(Everything(), Inch, 222);
  for (const InfoRow& row : rows) {
    EXPECT_DOUBLE_EQ(row.Box.Left, 0);
    EXPECT_DOUBLE_EQ(row.Box.Right, 222);
    EXPECT_NEAR(row.Box.Top, (row.Row - 1) * RowHeight, 1e-9) << row.Row;
    EXPECT_NEAR(row.Box.Bottom, row.Row * RowHeight, 1e-9) << row.Row;
  }
}

struct CodeRow {
  const char* Caption;
  int Code;
  int Style;
};

TEST(PanelRow, CarriesTheCodeOfWhatItShows) {
  const std::vector<CodeRow> codes{{"Tooth Style:", 10, 4},
                                   {"Length:", 11, 4},
                                   {"Band Saw Width:", 12, 4},
                                   {"Number Of Teeth:", 13, 4},
                                   {"Tooth Spacing:", 14, 4},
                                   {"Hook Angle:", 15, 4},
                                   {"Clearance Angle:", 16, 4},
                                   {"Sharpness Angle:", 17, 4},
                                   {"Gullet Radius:", 18, 1},
                                   {"Gullet Radius:", 18, 7},
                                   {"1st Gullet Radius:", 19, 4},
                                   {"1st Gullet Radius:", 19, 8},
                                   {"2nd Gullet Radius:", 20, 6},
                                   {"3rd Gullet Radius:", 21, 5},
                                   {"Gullet Bottom Angle:", 22, 6},
                                   {"Gullet Width:", 23, 8},
                                   {"Gullet Back Angle:", 24, 2},
                                   {"Frost Notch Width:", 25, 9},
                                   {"Frost Notch Height:", 26, 9},
                                   {"Frost Notch Radius:", 27, 9},
                                   {"Frost Notch Angle:", 28, 9},
                                   {"Gullet Depth:", 29, 4},
                                   {"Gullet Back Radius:", 30, 4},
                                   {"Gullet Area:", 31, 4},
                                   {"Seat:", 32, 4},
                                   {"Seat Width:", 33, 4},
                                   {"Seat Height:", 34, 4},
                                   {"Tip Clearance:", 35, 4},
                                   {"Face Length:", 36, 4},
                                   {"Teeth in Segment:", 40, 4},
                                   {"Length of Segment:", 41, 4},
                                   {"1st Tooth:", 42, 4},
                                   {"    Pitch:", 43, 4},
                                   {"    Depth:", 44, 4},
                                   {"    Area:", 45, 4},
                                   {"2nd Tooth:", 46, 4},
                                   {"3rd Tooth:", 50, 4},
                                   {"Number Of Saws:", 70, 4},
                                   {"Type of Tip:", 71, 4},
                                   {"Join Bandsaw Ends:", 72, 4},
                                   {"Teeth on Both Edges:", 73, 4},
                                   {"Plate Thickness:", 74, 4},
                                   {"Cut Width (Kerf):", 75, 4},
                                   {"Side Clearance:", 76, 4},
                                   {"Wheel Diameter:", 80, 4},
                                   {"Center to Center:", 81, 4},
                                   {"Wheel Rim Width:", 82, 4},
                                   {"Wheel RPMs:", 90, 4},
                                   {"Tooth Speed:", 91, 4},
                                   {"Depth of Cut (Max):", 92, 4},
                                   {"Feed Rate:", 93, 4},
                                   {"Bite:", 94, 4},
                                   {"Type of Wood:", 95, 4},
                                   {"Horsepower:", 96, 4}};
  for (const CodeRow& expected : codes) {
    BandSaw saw = Everything();
    saw.ToothStyle = static_cast<std::int16_t>(expected.Style);
    const SawInfo rows = BuildSawInfo(saw, Inch, PanelWidth);
    const InfoRow* row = Find(rows, expected.Caption);
    ASSERT_NE(row, nullptr) << expected.Caption;
    EXPECT_EQ(static_cast<int>(row->Code), expected.Code) << expected.Caption;
  }
}

TEST(PanelRow, HasACodeOfItsOwnWithinTheList) {
  BandSaw saw = Everything();
  saw.GeneralInfo.NumVariables = 7;
  saw.GeneralInfo.VarPitch.fill(1);
  saw.GeneralInfo.VarDepth.fill(1);
  saw.DesignInfo.VarArea.fill(1);
  std::vector<RowCode> codes;
  for (const InfoRow& row : BuildSawInfo(saw, Inch, PanelWidth))
    if (row.Code != RowCode::Blank && row.Code != RowCode::Header) codes.push_back(row.Code);
  std::sort(codes.begin(), codes.end());
  EXPECT_EQ(std::adjacent_find(codes.begin(), codes.end()), codes.end());
  EXPECT_LE(static_cast<int>(codes.back()), 97);
}

}  // namespace
}  // namespace tarnwick
