#include "print/modPrintRow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "support/FullDesign.h"
#include "support/RecordingPrintDevice.h"
#include "support/TeethOf.h"

namespace tarnwick {
namespace {

using test::FullDesign;
using test::TeethOf;
using test::Texts;

constexpr DisplayFormat Inch{Imperial, 3, 5};

/// The rows of all sections as one reads them, a heading in brackets.
Texts Read(const BandSaw& saw, bool withPower = true, const DisplayFormat& format = Inch) {
  Texts lines;
  for (const SheetSection& section : InfoSections(saw, format, withPower)) {
    for (const SheetRowText& row : section) {
      lines.push_back(row.Heading ? '[' + row.Label + ']' + row.Value : row.Label + row.Value);
    }
  }
  return lines;
}

/// The value beside a label, "no row" without one.
std::string ValueOf(const BandSaw& saw, const std::string& label) {
  for (const SheetSection& section : InfoSections(saw, Inch, true)) {
    for (const SheetRowText& row : section) {
      if (row.Label == label) return row.Value;
    }
  }
  return "no row";
}

// ---- order

TEST(InfoSections, HaveTheTeethFirstAndPowerLast) {
  BandSaw saw = FullDesign();
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 3;
  saw.GeneralInfo.VarPitch = {2.25, 2, 1.75};
  saw.DesignInfo.SegmentLength = 6;
  saw.GulletInfo.Bite = 0.02;
  saw.GeneralInfo.WoodType.Assign("Oak (White)");
  saw.DesignInfo.Comment3.Assign("Back tension 1/64");
  EXPECT_EQ(Read(saw), (Texts{"[Band Saw Teeth:]",
                              "Tooth Style: Triple Radius",
                              "Length: 20.000 ft",
                              "Band Saw Width: 5.000 in",
                              "Number Of Teeth: 120",
                              "Tooth Spacing: 2.000 in  (Average)",
                              "Hook Angle: 25.000 deg",
                              "Clearance Angle: 10.000 deg",
                              "Sharpness Angle: 55.000 deg",
                              "1st Gullet Radius: 0.250 in",
                              "2nd Gullet Radius: 0.500 in",
                              "3rd Gullet Radius: 0.300 in",
                              "Gullet Width: 0.600 in",
                              "Gullet Back Angle: 20.000 deg",
                              "Gullet Depth: 0.700 in",
                              "Gullet Back Radius: 0.200 in",
                              "Gullet Area: 0.512 in²",
                              "Seat: Yes",
                              "Seat Width: 0.100 in",
                              "Seat Height: 0.120 in",
                              "Tip Clearance: 0.020 in",
                              "Face Length: 0.420 in  (Average)",
                              "[Variable Pitch:]",
                              "Teeth in Segment: 3",
                              "Length of Segment: 6.000 in",
                              "1st Tooth:    Pitch: 2.250 in",
                              "2nd Tooth:    Pitch: 2.000 in",
                              "3rd Tooth:    Pitch: 1.750 in",
                              "[General Information:]",
                              "Number Of Saws: 12",
                              "Type of Tip: Carbide",
                              "Plate Thickness: 0.065 in",
                              "Cut Width (Kerf): 0.125 in",
                              "Side Clearance: 0.030 in",
                              "Join Bandsaw Ends: Overlap Join",
                              "Teeth on Both Edges: Yes",
                              "[Additional Information:]",
                              "Hammer lightly",
                              "Back tension 1/64",
                              "[Machine Information:]",
                              "Wheel Diameter: 5.000 ft",
                              "Center to Center: 8.000 ft",
                              "Wheel Rim Width: 5.000 in",
                              "[Power Requirements:]",
                              "Wheel RPMs: 500 rpms",
                              "Tooth Speed: 9000 fpm",
                              "Depth of Cut (Max): 24.000 in",
                              "Feed Rate: 200 fpm",
                              "Bite: 0.020 in",
                              "Horsepower: 150.000",
                              "Type of Wood: Oak (White)"}));
}

TEST(InfoSections, AreMetricInTheirKinds) {
  BandSaw saw = FullDesign();
  const DisplayFormat metric{Metric, 3, 5};
  const Texts rows = Read(saw, true, metric);
  for (const char* row :
       {"Length: 6.096 m", "Band Saw Width: 12.700 cm", "Gullet Area: 3.303 cm²", "Seat Width: 2.540 mm",
        "Face Length: 1.067 cm", "Plate Thickness: 1.651 mm", "Wheel Rim Width: 12.700 cm",
        "Wheel Diameter: 1.524 m", "Wheel RPMs: 500 rpms", "Tooth Speed: 2743 mpm",
        "Depth of Cut (Max): 60.960 cm", "Horsepower: 150.000", "Hook Angle: 25.000 deg"}) {
    EXPECT_EQ(std::count(rows.begin(), rows.end(), row), 1) << row;
  }
}

// ---- conditions

TEST(InfoSections, OfABlankDesignAreNone) { EXPECT_TRUE(InfoSections({}, Inch, true).empty()); }

TEST(InfoSections, BeginWithTheGeneralOnesWithoutTeeth) {
  BandSaw saw = FullDesign();
  saw.ContainsInfo.Teeth = False;
  EXPECT_EQ(Read(saw).front(), "[General Information:]");
}

TEST(InfoSections, HaveNoPowerWithTheSettingOff) {
  const Texts rows = Read(FullDesign(), false);
  EXPECT_EQ(std::count(rows.begin(), rows.end(), "[Power Requirements:]"), 0);
  EXPECT_EQ(rows.back(), "Wheel Rim Width: 5.000 in");
}

TEST(InfoSections, HaveNoPowerWithoutPowerInTheRecord) {
  BandSaw saw = FullDesign();
  saw.ContainsInfo.Power = False;
  EXPECT_EQ(Read(saw, true), Read(saw, false));
}

TEST(InfoSections, AreNoneThatTheRecordDoesNotContain) {
  BandSaw saw = FullDesign();
  saw.ContainsInfo = {};
  EXPECT_TRUE(Read(saw).empty());
  saw.ContainsInfo.Machine = 1;  // any value but 0 counts
  EXPECT_EQ(Read(saw), (Texts{"[Machine Information:]", "Wheel Diameter: 5.000 ft",
                              "Center to Center: 8.000 ft", "Wheel Rim Width: 5.000 in"}));
}

struct ConditionRow {
  const char* Name;
  const char* Label;
  std::function<void(BandSaw&)> Change;
  const char* Want;
  friend void PrintTo(const ConditionRow& row, std::ostream* out) { *out << row.Name; }
};
class SheetCondition : public testing::TestWithParam<ConditionRow> {};

TEST_P(SheetCondition, SettlesTheRow) {
  BandSaw saw = FullDesign();
  GetParam().Change(saw);
  EXPECT_EQ(ValueOf(saw, GetParam().Label), GetParam().Want);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SheetCondition,
    testing::Values(
        ConditionRow{"NoLength", "Length:", [](BandSaw& s) { s.Length = 0; }, "no row"},
        ConditionRow{"NegativeLength", "Length:", [](BandSaw& s) { s.Length = -1; }, " -1.000 ft"},
        ConditionRow{"NoWidth", "Band Saw Width:", [](BandSaw& s) { s.Width = 0; }, "no row"},
        ConditionRow{"NoTeethStillARow", "Number Of Teeth:", [](BandSaw& s) { s.NumTeeth = 0; }, " 0"},
        ConditionRow{"NoPitch", "Tooth Spacing:", [](BandSaw& s) { s.Pitch = 0; }, "no row"},
        ConditionRow{"ZeroHook", "Hook Angle:", [](BandSaw& s) { s.HookAngle = 0; }, " 0.000 deg"},
        ConditionRow{"ZeroClearance", "Clearance Angle:", [](BandSaw& s) { s.ClearAngle = 0; }, " 0.000 deg"},
        ConditionRow{"ZeroSharpness", "Sharpness Angle:", [](BandSaw& s) { s.GulletInfo.Sharpangle = 0; },
                     " 0.000 deg"},
        ConditionRow{"ZeroRadiusOfTheStyleStillARow",
                     "3rd Gullet Radius:", [](BandSaw& s) { s.GulletInfo.Radius3 = 0; }, " 0.000 in"},
        ConditionRow{"NoDepth", "Gullet Depth:", [](BandSaw& s) { s.GulletInfo.Depth = 0; }, "no row"},
        ConditionRow{"NoBackRadius", "Gullet Back Radius:", [](BandSaw& s) { s.GulletInfo.BackRadius = 0; },
                     "no row"},
        ConditionRow{"UnnamedStyle", "Tooth Style:", [](BandSaw& s) { s.ToothStyle = 3; }, "no row"},
        ConditionRow{"AreaOfAShortBand", "Gullet Area:", [](BandSaw& s) { s.Length = 0.99; }, "no row"},
        ConditionRow{"AreaOfAFoot", "Gullet Area:", [](BandSaw& s) { s.Length = 1; }, " 0.512 in²"},
        ConditionRow{"AreaOfSevenTeeth", "Gullet Area:", [](BandSaw& s) { s.NumTeeth = 7; }, "no row"},
        ConditionRow{"AreaOfEightTeeth", "Gullet Area:", [](BandSaw& s) { s.NumTeeth = 8; }, " 0.512 in²"},
        ConditionRow{
            "AreaWithoutARound", "Gullet Area:",
            [](BandSaw& s) { s.GulletInfo.Radius = s.GulletInfo.Radius1 = s.GulletInfo.Radius2 = 0; },
            "no row"},
        ConditionRow{"AreaIsAnAverageOfDepths", "Gullet Area:",
                     [](BandSaw& s) { s.GeneralInfo.VariableDepth = True; }, " 0.512 in²  (Average)"},
        ConditionRow{"AreaIsNoAverageOfPitches",
                     "Gullet Area:", [](BandSaw& s) { s.GeneralInfo.VariablePitch = True; }, " 0.512 in²"},
        ConditionRow{"NoSeatButCarbide", "Seat:", [](BandSaw& s) { s.SeatInfo.State = False; }, " No"},
        ConditionRow{"NoSeatNoCarbide", "Seat:",
                     [](BandSaw& s) {
                       s.SeatInfo.State = False;
                       s.GeneralInfo.TipType = 2;
                     },
                     "no row"},
        ConditionRow{"SeatWidthWithoutASeat", "Seat Width:", [](BandSaw& s) { s.SeatInfo.State = False; },
                     "no row"},
        ConditionRow{"NoSeatWidth", "Seat Width:", [](BandSaw& s) { s.SeatInfo.Width = 0; }, "no row"},
        ConditionRow{"NoSeatHeight", "Seat Height:", [](BandSaw& s) { s.SeatInfo.Height = 0; }, "no row"},
        ConditionRow{"NoTipClearance", "Tip Clearance:", [](BandSaw& s) { s.TipClear = 0; }, "no row"},
        ConditionRow{"NoFace", "Face Length:", [](BandSaw& s) { s.GulletInfo.FaceLength = 0; }, "no row"},
        ConditionRow{"NegativeFace", "Face Length:", [](BandSaw& s) { s.GulletInfo.FaceLength = -0.5; },
                     " -0.500 in"},
        ConditionRow{"NoSaws", "Number Of Saws:", [](BandSaw& s) { s.GeneralInfo.Quantity = 0; }, "no row"},
        ConditionRow{"LessThanNoSaws", "Number Of Saws:", [](BandSaw& s) { s.GeneralInfo.Quantity = -1; },
                     "no row"},
        ConditionRow{"Stellite", "Type of Tip:", [](BandSaw& s) { s.GeneralInfo.TipType = 1; }, " Stellite"},
        ConditionRow{"Swagged", "Type of Tip:", [](BandSaw& s) { s.GeneralInfo.TipType = 2; }, " Swagged"},
        ConditionRow{"NoTip", "Type of Tip:", [](BandSaw& s) { s.GeneralInfo.TipType = 0; }, " None"},
        ConditionRow{"NoPlate", "Plate Thickness:", [](BandSaw& s) { s.GeneralInfo.PlateThick = 0; },
                     "no row"},
        ConditionRow{"NoKerf", "Cut Width (Kerf):", [](BandSaw& s) { s.GeneralInfo.Kerf = 0; }, "no row"},
        ConditionRow{"NoSideClearance", "Side Clearance:", [](BandSaw& s) { s.GeneralInfo.SideClear = 0; },
                     "no row"},
        ConditionRow{"RightAngle", "Join Bandsaw Ends:",
                     [](BandSaw& s) { s.DesignInfo.JoinStyle = RightAngleJoin; }, " Right Angle Join"},
        ConditionRow{"OneEdge", "Teeth on Both Edges:", [](BandSaw& s) { s.BothEdges = False; }, "no row"},
        ConditionRow{"NoComments", "Additional Information:",
                     [](BandSaw& s) { s.DesignInfo.Comment1.Assign("   "); }, "no row"},
        ConditionRow{"NoWheelStillARow", "Wheel Diameter:", [](BandSaw& s) { s.MachineInfo.WheelDia = 0; },
                     " 0.000 ft"},
        ConditionRow{"NoRimStillARow", "Wheel Rim Width:", [](BandSaw& s) { s.MachineInfo.Width = 0; },
                     " 0.000 in"},
        ConditionRow{"NoSpeed", "Wheel RPMs:", [](BandSaw& s) { s.GeneralInfo.ShaftSpeed = 0; }, "no row"},
        ConditionRow{"BackwardSpeed", "Wheel RPMs:", [](BandSaw& s) { s.GeneralInfo.ShaftSpeed = -1; },
                     "no row"},
        ConditionRow{"NoVelocity", "Tooth Speed:", [](BandSaw& s) { s.DesignInfo.SawVelocity = 0; },
                     "no row"},
        ConditionRow{"NoDepthOfCut", "Depth of Cut (Max):", [](BandSaw& s) { s.GeneralInfo.DepthOfCut = 0; },
                     "no row"},
        ConditionRow{"NoFeed", "Feed Rate:", [](BandSaw& s) { s.GeneralInfo.FeedRate = 0; }, "no row"},
        ConditionRow{"NoBiteStillARow", "Bite:", [](BandSaw& s) { s.GulletInfo.Bite = 0; }, " 0.000 in"},
        ConditionRow{"NoHorsepowerStillARow", "Horsepower:", [](BandSaw& s) { s.GeneralInfo.HorsePower = 0; },
                     " 0.000"},
        ConditionRow{"NoWoodStillARow", "Type of Wood:", [](BandSaw&) {}, ""}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InfoSections, LeaveOutEmptyCommentLines) {
  BandSaw saw = FullDesign();
  saw.DesignInfo.Comment1.Assign("");
  saw.DesignInfo.Comment2.Assign("second");
  const Texts rows = Read(saw, false);
  const auto heading = std::find(rows.begin(), rows.end(), "[Additional Information:]");
  ASSERT_NE(heading, rows.end());
  EXPECT_EQ(*(heading + 1), "second");
  EXPECT_EQ(*(heading + 2), "[Machine Information:]");
}

struct StyleRow {
  int Style;
  const char* Name;  // of the row "Tooth Style:"
  Texts Rows;        // between sharpness and depth
};

TEST(InfoSections, HaveTheRowsOfTheStyle) {
  const StyleRow styles[] = {
      {1, " Square Back", {"Gullet Radius: 0.500 in", "Gullet Back Angle: 35.000 deg"}},
      {2, " Round Back", {"Gullet Radius: 0.500 in", "Gullet Back Angle: 35.000 deg"}},
      {3, "no row", {"Gullet Radius: 0.500 in", "Gullet Back Angle: 35.000 deg"}},
      {4,
       " Double Radius",
       {"1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in", "Gullet Width: 0.800 in",
        "Gullet Back Angle: 35.000 deg"}},
      {5,
       " Triple Radius",
       {"1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in", "3rd Gullet Radius: 0.375 in",
        "Gullet Width: 0.800 in", "Gullet Back Angle: 35.000 deg"}},
      {6,
       " Flat Bottom",
       {"1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in", "Gullet Bottom Angle: 7.000 deg",
        "Gullet Width: 0.800 in", "Gullet Back Angle: 35.000 deg"}},
      {7, " Narrow Style", {"Gullet Radius: 0.500 in"}},
      {8, " O Shape", {"1st Gullet Radius: 0.250 in", "Gullet Width: 0.800 in"}},
      {9,
       " Frost Tooth",
       {"Frost Notch Width: 0.100 in", "Frost Notch Height: 0.200 in", "Frost Notch Radius: 0.050 in",
        "Frost Notch Angle: 20.000 deg", "1st Gullet Radius: 0.250 in", "2nd Gullet Radius: 0.750 in",
        "3rd Gullet Radius: 0.375 in", "Gullet Width: 0.800 in"}}};
  for (const StyleRow& style : styles) {
    const BandSaw saw = TeethOf(style.Style);
    EXPECT_EQ(ValueOf(saw, "Tooth Style:"), style.Name);
    const Texts rows = Read(saw);
    const auto first = std::find(rows.begin(), rows.end(), "Sharpness Angle: 53.000 deg");
    const auto last = std::find(rows.begin(), rows.end(), "Gullet Depth: 0.700 in");
    ASSERT_NE(first, rows.end());
    EXPECT_EQ(Texts(first + 1, last), style.Rows) << "style " << style.Style;
  }
}

TEST(InfoSections, ShowPitchAndDepthOfEachToothOfAVariableDepth) {
  BandSaw saw;
  saw.GeneralInfo.VariablePitch = saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.NumVariables = 4;
  saw.GeneralInfo.VarPitch = {2.25, 2, 1.75, 1.5};
  saw.GeneralInfo.VarDepth = {0.75, 0.7, 0.65};
  EXPECT_EQ(Read(saw), (Texts{"[Variable Pitch:]", "Teeth in Segment: 4", "Length of Segment: 0.000 in",
                              "1st Tooth:      Pitch:  2.250 in    Depth:  0.750 in",
                              "2nd Tooth:      Pitch:  2.000 in    Depth:  0.700 in",
                              "3rd Tooth:      Pitch:  1.750 in    Depth:  0.650 in",
                              "4th Tooth:      Pitch:  1.500 in    Depth:  0.000 in"}));
}

TEST(InfoSections, ShowSevenTeethOfASegmentAtMost) {
  BandSaw saw;
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 900;
  const Texts rows = Read(saw);
  EXPECT_EQ(rows.size(), 10U);
  EXPECT_EQ(rows.back(), "7th Tooth:    Pitch: 0.000 in");
  saw.GeneralInfo.NumVariables = -1;
  EXPECT_EQ(Read(saw).back(), "Length of Segment: 0.000 in");
}

// ---- places

const PrintPage Upright = PageFor({});
const PrintPage Turned = PageFor({.Turned = PaperOrientation::Landscape});

TEST(PlaceOfRow, CountsRowsFromTheFirstBelowTheHeader) {
  EXPECT_EQ(PlaceOfRow(1, 0, Upright), (PrintRow{1100, 2400, 5100, 2665, "", ""}));
  EXPECT_EQ(PlaceOfRow(2, 10, Upright), (PrintRow{6100, 5050, 10100, 5315, "", ""}));
  EXPECT_EQ(PlaceOfRow(2, 1, Turned), (PrintRow{5900, 2665, 9900, 2930, "", ""}));
  EXPECT_EQ(PlaceOfRow(3, 2, Turned), (PrintRow{10300, 2930, 14300, 3195, "", ""}));
}

SheetSection Section(const std::string& name, int rows, const std::string& value = " 1.000 in") {
  SheetSection section{{.Label = name, .Heading = true}};
  for (int i = 1; i < rows; ++i) section.push_back({name + std::to_string(i), value});
  return section;
}

/// "label column.row" of each heading, in order, and of rows that stand in another column than the one
/// before.
Texts PlacesOf(const std::vector<SheetSection>& sections, const PrintPage& page) {
  Texts places;
  double column = 0;
  for (const PrintRow& row : PlaceSections(sections, page, test::EvenRuler()).Rows) {
    if (row.Heading || row.LabelX != column) {
      const int number = row.LabelX == LabelX(1, page) ? 1 : row.LabelX == LabelX(2, page) ? 2 : 3;
      places.push_back(row.Label + ' ' + std::to_string(number) + '.' +
                       std::to_string(static_cast<int>((row.Top - FirstRowTop) / SheetRow)));
    }
    column = row.LabelX;
  }
  return places;
}

TEST(PlaceSections, PutsOneBelowTheOtherWithAnEmptyRowBetween) {
  EXPECT_EQ(PlacesOf({Section("a", 20), Section("b", 10), Section("c", 5)}, Upright),
            (Texts{"a 1.0", "b 1.21", "c 1.32"}));
}

TEST(PlaceSections, GoesOnInTheNextColumnWhenTheSheetEnds) {
  // 49 rows have room upright, 35 lying: to the foot of the paper, which is lower than that of the page.
  EXPECT_EQ(PlacesOf({Section("a", 49), Section("b", 3)}, Upright), (Texts{"a 1.0", "b 2.0"}));
  EXPECT_EQ(PlacesOf({Section("a", 35, ""), Section("b", 35, ""), Section("c", 3)}, Turned),
            (Texts{"a 1.0", "b 2.0", "c 3.0"}));
}

TEST(PlaceSections, KeepsASectionTogether) {
  EXPECT_EQ(PlacesOf({Section("a", 40), Section("b", 10)}, Upright), (Texts{"a 1.0", "b 2.0"}));
}

TEST(PlaceSections, KeepsClearOfAWideValue) {
  SheetSection teeth = Section("a", 45);
  teeth[5].Value = " 2.000 in  (Average), and more to come";
  EXPECT_EQ(PlacesOf({teeth, Section("b", 8)}, Upright), (Texts{"a 1.0", "b 2.6"}));
}

TEST(PlaceSections, PutsAWideValueWhereThePaperHasRoom) {
  const std::string wide(60, 'w');
  EXPECT_EQ(PlacesOf({Section("a", 20), Section("b", 8, wide), Section("c", 28)}, Turned),
            (Texts{"a 1.0", "b 1.21", "c 3.0"}))
      << "beside the second column a third has no room";
}

TEST(PlaceSections, ComesBackToRoomThatAnEarlierColumnHasLeft) {
  EXPECT_EQ(PlacesOf({Section("a", 30), Section("b", 45), Section("c", 15)}, Upright),
            (Texts{"a 1.0", "b 2.0", "c 1.31"}));
}

TEST(PlaceSections, DividesASectionAtItsInnerHeadingFirst) {
  SheetSection general = Section("b", 7);
  const SheetSection comments = Section("d", 5, "");
  general.insert(general.end(), comments.begin(), comments.end());
  EXPECT_EQ(PlacesOf({Section("a", 40), Section("c", 43), general}, Upright),
            (Texts{"a 1.0", "c 2.0", "b 1.42", "d 2.44"}))
      << "a row lower, b has more air";
}

TEST(PlaceSections, DividesASectionThatHasRoomNowhere) {
  EXPECT_EQ(PlacesOf({Section("a", 60)}, Upright), (Texts{"a 1.0", "a49 2.0"}));
}

TEST(PlaceSections, WritesSmallerOnAFullSheet) {
  const std::vector<SheetSection> roomy{Section("a", 40)};
  EXPECT_EQ(PlaceSections(roomy, Upright, test::EvenRuler()).Points, TextPoints);
  const std::vector<SheetSection> wide{Section("a", 49, " 2.000 in  abc"), Section("b", 49)};
  const PrintRows rows = PlaceSections(wide, Upright, test::EvenRuler());
  EXPECT_LT(rows.Points, TextPoints);
  EXPECT_EQ(rows.Rows.size(), 98U);
}

TEST(PlaceSections, WritesSmallerRatherThanDividingASection) {
  SheetSection teeth = Section("a", 49);
  teeth[20].Value = " 2.000 in ab";  // reaches too far beside another column, in the usual letters
  const std::vector<SheetSection> sections{teeth, Section("b", 40)};
  EXPECT_EQ(PlacesOf(sections, Upright), (Texts{"a 1.0", "b 2.0"}));
  EXPECT_EQ(PlaceSections(sections, Upright, test::EvenRuler()).Points, TextPoints - 1);
}

TEST(PlaceSections, FindsRoomForASegmentOfSevenTeethBelowTheTeethOnATurnedSheet) {
  SheetSection teeth = Section("teeth", 25);
  teeth.back().Value = " 0.459 in  (Average)";
  const SheetSection segment = Section("segment", 10, "      Pitch:  1.500 in    Depth:  0.750 in");
  EXPECT_EQ(
      PlacesOf({teeth, segment, Section("general", 8), Section("machine", 4), Section("power", 8)}, Turned),
      (Texts{"teeth 1.0", "segment 2.25", "general 3.0", "machine 3.9", "power 3.14"}))
      << "no tooth stands apart from the others";
}

TEST(PlaceSections, LosesNoRowHoweverManyThereAre) {
  const PrintRows rows = PlaceSections({Section("a", 200)}, Upright, test::EvenRuler());
  EXPECT_EQ(rows.Rows.size(), 200U);
  for (std::size_t i = 0; i < rows.Rows.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(rows.Rows[i].LabelX == rows.Rows[j].LabelX && rows.Rows[i].Top == rows.Rows[j].Top)
          << i << " on " << j;
    }
  }
}

TEST(AppendRows, WritesHeadingsBoldAndValuesInTheirColumn) {
  PrintSheet sheet;
  AppendRows(sheet, {{{1100, 2400, 5100, 2665, "Machine Information:", "", true},
                      {1100, 2665, 5100, 2930, "Wheel Diameter:", " 5.000 ft"}},
                     8});
  const auto texts = test::PiecesOf<SheetText>(sheet);
  ASSERT_EQ(texts.size(), 3U) << "an empty value is not written";
  EXPECT_EQ(texts[0].Text, "Machine Information:");
  EXPECT_EQ(texts[0].Font, (PrintFont{8, true}));
  EXPECT_EQ(texts[0].TopLeft, (PaperSpot{1100, 2400}));
  EXPECT_EQ(texts[1].Font, (PrintFont{8, false}));
  EXPECT_EQ(texts[1].TopLeft, (PaperSpot{1100, 2665}));
  EXPECT_EQ(texts[2].Text, " 5.000 ft");
  EXPECT_EQ(texts[2].TopLeft, (PaperSpot{5100, 2665}));
}

}  // namespace
}  // namespace tarnwick
