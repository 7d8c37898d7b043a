#include "entry/modParameter.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/FieldChanges.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::DesignOfEveryField;

std::string NameOf(const auto& row) { return row.param.Name; }

// ---- the table

constexpr std::string_view ByStyle;  // the picture goes by the tooth style

struct TableRow {
  const char* Name;
  Parameter Id;
  std::string_view Key, Title, Prompt;
  int List, Help;
  StoreRule Store;
  UnitKind Kind;
  const char* Field;
  friend void PrintTo(const TableRow& row, std::ostream* out) { *out << row.Name; }
};

using enum StoreRule;

// clang-format off
const TableRow Table[] = {
    {"ToothStyle", Parameter::ToothStyle, "SqrBack", "BandSaw Tooth Style", "Select BandSaw Tooth Style.", 9, 200, StyleCode, PlainNumber, "ToothStyle"},
    {"BandLength", Parameter::BandLength, "Length", "Band Saw Length", "Enter or Select Band Saw Length", 1, 201, MetresToFeet, Feet, "Length"},
    {"Pitch", Parameter::Pitch, "Pitch", "Tooth Pitch", "Enter or Select Average Tooth Pitch", 11, 202, CentimetresToInches, Inches, "Pitch"},
    {"ToothSpace", Parameter::ToothSpace, "", "Tooth Space", "Enter or Select Tooth Spacing.", 11, 202, CentimetresToInches, Inches, ""},
    {"BandWidth", Parameter::BandWidth, "Width", "Band Saw Width", "Enter or Select Band Saw Width", 10, 33, CentimetresToInches, Inches, "Width"},
    {"NumTeeth", Parameter::NumTeeth, "NumTeeth", "Number of Teeth", "Enter or Select Number of Teeth", 2, 203, Integer, PlainNumber, "NumTeeth"},
    {"TipClearance", Parameter::TipClearance, "TipClear", "Tip Clearance", "Enter or Select the Tip Clearance. Value to \nremove from width of BandSaw for tips.", 13, 215, MillimetresToInches, FineInches, "TipClear"},
    {"SeatWidth", Parameter::SeatWidth, "SeatWide", "Seat Width", "Enter or Select Width of Seat!", 3, 217, MillimetresToInches, FineInches, "SeatInfo.Width"},
    {"SeatHeight", Parameter::SeatHeight, "SeatHigh", "Seat Height", "Enter or Select Height of Seat!", 4, 218, MillimetresToInches, FineInches, "SeatInfo.Height"},
    {"HookAngle", Parameter::HookAngle, "Hook", "Hook Angle", "Enter or Select the Hook Angle of Band Saw!", 5, 204, AsTyped, Degrees, "HookAngle"},
    {"ClearanceAngle", Parameter::ClearanceAngle, "ClrAngle", "Clearance Angle", "Enter or Select Clearance Angle!", 5, 205, AsTyped, Degrees, "ClearAngle"},
    {"GulletRadius", Parameter::GulletRadius, "GuRadius", "Gullet Radius", "Enter or Select Gullet Radius!", 7, 206, CentimetresToInches, Inches, "GulletInfo.Radius"},
    {"FirstGulletRadius", Parameter::FirstGulletRadius, ByStyle, "First Gullet Radius", "Enter or Select First Gullet Radius!", 7, 207, CentimetresToInches, Inches, "GulletInfo.Radius1"},
    {"SecondGulletRadius", Parameter::SecondGulletRadius, ByStyle, "Second Gullet Radius", "Enter or Select Second Gullet Radius!", 14, 208, CentimetresToInches, Inches, "GulletInfo.Radius2"},
    {"ThirdGulletRadius", Parameter::ThirdGulletRadius, "Gu3rdRd", "Third Gullet Radius", "Enter or Select Third Gullet Radius!", 7, 209, CentimetresToInches, Inches, "GulletInfo.Radius3"},
    {"GulletBottomAngle", Parameter::GulletBottomAngle, "GuBotAng", "Gullet Bottom Angle", "Enter or Select Gullet Bottom Angle!", 12, 210, AsTyped, Degrees, "GulletInfo.BottomAngle"},
    {"GulletWidth", Parameter::GulletWidth, ByStyle, "Gullet Width", "Enter or Select Gullet Width!", 7, 211, CentimetresToInches, Inches, "GulletInfo.Width"},
    {"GulletDepth", Parameter::GulletDepth, "GuDepth", "Gullet Depth", "Enter or Select Gullet Depth!", 8, 213, CentimetresToInches, Inches, "GulletInfo.Depth"},
    {"GulletBackAngle", Parameter::GulletBackAngle, "GuBkAngl", "Gullet Back Angle", "Enter or Select Gullet Back Angle!", 5, 212, AsTyped, Degrees, "GulletInfo.BackAngle"},
    {"GulletBackRadius", Parameter::GulletBackRadius, "GuBkRad", "Gullet Back Radius", "Enter or Select Gullet Back Radius!", 7, 214, CentimetresToInches, Inches, "GulletInfo.BackRadius"},
    {"FrostNotchWidth", Parameter::FrostNotchWidth, "FrostWidth", "Frost Notch Width", "Enter or Select Frost Notch Width!", 24, 0, MillimetresToInches, FineInches, "GulletInfo.FrostWidth"},
    {"FrostNotchHeight", Parameter::FrostNotchHeight, "FrostHeight", "Frost Notch Height", "Enter or Select Frost Notch Height!", 25, 0, MillimetresToInches, FineInches, "GulletInfo.FrostHeight"},
    {"FrostNotchRadius", Parameter::FrostNotchRadius, "FrostRadius", "Frost Notch Radius", "Enter or Select Frost Notch Radius!", 26, 0, MillimetresToInches, FineInches, "GulletInfo.FrostRadius"},
    {"FrostNotchAngle", Parameter::FrostNotchAngle, "FrostAngle", "Frost Notch Angle", "Enter or Select Frost Notch Angle!", 27, 0, AsTyped, Degrees, "GulletInfo.FrostAngle"},
    {"WheelRpm", Parameter::WheelRpm, "", "Wheel RPMs", "Enter or Select the Wheel RPMs", 19, 407, Integer, RevolutionsPerMinute, "GeneralInfo.ShaftSpeed"},
    {"FeedRate", Parameter::FeedRate, "", "Feed Rate", "Enter or Select the Feed Rate", 20, 410, AsTyped, FeetPerMinute, "GeneralInfo.FeedRate"},
    {"DepthOfCut", Parameter::DepthOfCut, "CutDepth", "Maximum Depth of Cut", "Enter or Select the Maximum Depth of Cut", 21, 409, AsTyped, Inches, "GeneralInfo.DepthOfCut"},
    {"TypeOfWood", Parameter::TypeOfWood, "", "Type of Wood", "Enter or Select the Type of Wood", 22, 412, Text, PlainNumber, "GeneralInfo.WoodType"},
    {"TipKerf", Parameter::TipKerf, "TipKerf", "Tip Kerf", "Enter or Select the Tip Kerf.", 17, 36, MillimetresToInches, FineInches, "GeneralInfo.Kerf"},
    {"PlateThickness", Parameter::PlateThickness, "PlateThk", "Plate Thickness", "Enter or Select the Plate Thickness.", 17, 35, MillimetresToInches, FineInches, "GeneralInfo.PlateThick"},
    {"TipType", Parameter::TipType, "", "BandSaw Tip Type", "Select BandSaw Type of Tip", 18, 34, TipCode, PlainNumber, "GeneralInfo.TipType"},
    {"JoinStyle", Parameter::JoinStyle, "RightAng", "BandSaw Join Style", "Select Style to Join Bandsaw Ends", 23, 37, JoinCode, PlainNumber, "DesignInfo.JoinStyle"},
    {"WheelDiameter", Parameter::WheelDiameter, "WheelDia", "Wheel Diameter", "Enter Wheel Diameter", 15, 500, MetresToFeet, Feet, "MachineInfo.WheelDia"},
    {"RimWidth", Parameter::RimWidth, "RimWidth", "Rim Width", "Enter Wheel Rim Width", 10, 502, CentimetresToInches, Inches, "MachineInfo.Width"},
    {"CenterToCenter", Parameter::CenterToCenter, "CenToCen", "Center to Center", "Enter Wheel Center to Center", 16, 501, MetresToFeet, Feet, "MachineInfo.CenterToCenter"},
};
// clang-format on

class ParameterTable : public testing::TestWithParam<TableRow> {};
INSTANTIATE_TEST_SUITE_P(Rows, ParameterTable, testing::ValuesIn(Table),
                         [](const auto& row) { return NameOf(row); });

TEST_P(ParameterTable, HoldsWhatTheDialogShows) {
  const TableRow& want = GetParam();
  const ParameterRow& row = RowOf(want.Id);
  EXPECT_EQ(row.Id, want.Id);
  EXPECT_EQ(row.Key, want.Key);
  EXPECT_EQ(row.Title, want.Title);
  EXPECT_EQ(row.Prompt, want.Prompt);
  EXPECT_EQ(row.List, want.List);
}

TEST_P(ParameterTable, HoldsHowTheAnswerIsStoredAndShown) {
  const TableRow& want = GetParam();
  EXPECT_EQ(RowOf(want.Id).Store, want.Store);
  EXPECT_EQ(RowOf(want.Id).Kind, want.Kind);
}

TEST_P(ParameterTable, LeadsFromTheTitleToTheHelp) {
  EXPECT_EQ(RowOf(GetParam().Id).HelpTopic, GetParam().Help);
  EXPECT_EQ(HelpTopicOfTitle(GetParam().Title), GetParam().Help);
}

/// Writes something else into the field that a row names.
struct WriteOther {
  BandSaw& Saw;
  bool operator()(std::monostate) const { return false; }
  bool operator()(double& (*field)(BandSaw&)) const { return field(Saw) = 987.125, true; }
  bool operator()(std::int16_t& (*field)(BandSaw&)) const { return field(Saw) = 9876, true; }
  bool operator()(std::int32_t& (*field)(BandSaw&)) const { return field(Saw) = 987654, true; }
  bool operator()(FixedText<30>& (*field)(BandSaw&)) const { return field(Saw).Assign("Teak"), true; }
};

TEST_P(ParameterTable, WritesItsFieldAndNoOther) {
  const std::string field = GetParam().Field;
  const BandSaw before = DesignOfEveryField();
  BandSaw after = before;
  const bool written = std::visit(WriteOther{after}, RowOf(GetParam().Id).Field);
  EXPECT_EQ(written, !field.empty());
  EXPECT_EQ(ChangedFields(before, after),
            field.empty() ? std::set<std::string>{} : std::set<std::string>{field});
}

TEST(ParametersOfTheTable, AreTheseAndNoMore) {
  ASSERT_EQ(Parameters().size(), std::size(Table));
  std::set<std::string_view> titles;
  std::set<Parameter> ids;
  for (const ParameterRow& row : Parameters()) {
    titles.insert(row.Title);
    ids.insert(row.Id);
  }
  EXPECT_EQ(titles.size(), std::size(Table));
  EXPECT_EQ(ids.size(), std::size(Table));
}

// ---- pictures

std::string_view KeyByStyle(Parameter parameter, int style) {
  switch (parameter) {
    case Parameter::FirstGulletRadius:
      return style == 4 || style == 5 ? "Gu1stRd" : style == 6 ? "GuF1stRd" : style == 8 ? "GuO1stRd" : "";
    case Parameter::SecondGulletRadius:
      return style == 4 ? "GuDRad2" : style == 5 ? "Gu2ndRd" : style == 6 ? "GuFRad2" : "";
    default:  // gullet width
      return style == 4 || style == 5 ? "GuWidth" : style == 6 ? "GuFWidth" : style == 8 ? "GuOWidth" : "";
  }
}

bool GoesByStyle(Parameter parameter) {
  return parameter == Parameter::FirstGulletRadius || parameter == Parameter::SecondGulletRadius ||
         parameter == Parameter::GulletWidth;
}

TEST_P(ParameterTable, HasItsPictureForEveryToothStyle) {
  const TableRow& row = GetParam();
  for (int style = 0; style <= 10; ++style) {
    EXPECT_EQ(PictureKey(row.Id, style), GoesByStyle(row.Id) ? KeyByStyle(row.Id, style) : row.Key) << style;
  }
}

TEST(PictureOfAGulletMeasure, IsNoneForANumberWithoutAStyle) {
  for (const int style : {-1, 99, 32767}) {
    EXPECT_EQ(PictureKey(Parameter::FirstGulletRadius, style), "");
    EXPECT_EQ(PictureKey(Parameter::SecondGulletRadius, style), "");
    EXPECT_EQ(PictureKey(Parameter::GulletWidth, style), "");
    EXPECT_EQ(PictureKey(Parameter::GulletDepth, style), "GuDepth");
  }
}

// ---- help

TEST(HelpTopicOfTitle, KnowsTheSeatAndNoStranger) {
  EXPECT_EQ(HelpTopicOfTitle("Seat"), 216);
  for (const char* title : {"", "Seat Depth", "Tooth", "Hole Centered", "Tarnwick", "Tooth Pitch "}) {
    EXPECT_EQ(HelpTopicOfTitle(title), 0) << title;
  }
}

TEST(SeatQuestion, HasItsTexts) {
  EXPECT_EQ(SeatKey, "Seat");
  EXPECT_EQ(SeatTitle, "Seat");
  EXPECT_EQ(SeatPrompt, "Does Band Saw Have a Seat?\nSelect Yes or No!");
}

// ---- names and codes

struct ChoiceRow {
  const char* Name;
  StoreRule Rule;
  const char* Text;
  int Code;
  const char* Key;
  friend void PrintTo(const ChoiceRow& row, std::ostream* out) { *out << row.Name; }
};
class Choice : public testing::TestWithParam<ChoiceRow> {};

TEST_P(Choice, HasItsCodeAndPicture) {
  const ChoiceName* found = FindChoice(GetParam().Rule, GetParam().Text);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->Name, GetParam().Text);
  EXPECT_EQ(found->Code, GetParam().Code);
  EXPECT_EQ(found->Key, GetParam().Key);
}

INSTANTIATE_TEST_SUITE_P(
    Names, Choice,
    testing::Values(ChoiceRow{"SquareBack", StyleCode, "Square Back", 1, "SqrBack"},       //
                    ChoiceRow{"RoundBack", StyleCode, "Round Back", 2, "RndBack"},         //
                    ChoiceRow{"DoubleRadius", StyleCode, "Double Radius", 4, "GuDouble"},  //
                    ChoiceRow{"TripleRadius", StyleCode, "Triple Radius", 5, "GuTriple"},  //
                    ChoiceRow{"FlatBottom", StyleCode, "Flat Bottom", 6, "GuFlatBo"},      //
                    ChoiceRow{"NarrowStyle", StyleCode, "Narrow Style", 7, "GuNarrow"},    //
                    ChoiceRow{"OShape", StyleCode, "O Shape", 8, "GuOShape"},              //
                    ChoiceRow{"FrostTooth", StyleCode, "Frost Tooth", 9, ""},              //
                    ChoiceRow{"NoTip", TipCode, "None", 0, "TipNone"},                     //
                    ChoiceRow{"Stellite", TipCode, "Stellite", 1, "TipStel"},              //
                    ChoiceRow{"Swagged", TipCode, "Swagged", 2, "TipSwag"},                //
                    ChoiceRow{"Carbide", TipCode, "Carbide", 3, "TipCarb"},                //
                    ChoiceRow{"RightAngle", JoinCode, "Right Angle Join", 0, "RightAng"},  //
                    ChoiceRow{"Overlap", JoinCode, "Overlaped Join", 1, "Overlap"}),
    [](const auto& row) { return NameOf(row); });

TEST(ChoiceNames, StandInTheOrderOfTheirCodes) {
  EXPECT_EQ(ChoiceNames(StyleCode).size(), 8U);
  EXPECT_EQ(ChoiceNames(TipCode).size(), 4U);
  EXPECT_EQ(ChoiceNames(JoinCode).size(), 2U);
  for (const StoreRule rule : {StyleCode, TipCode, JoinCode}) {
    int last = -1;
    for (const ChoiceName& choice : ChoiceNames(rule)) {
      EXPECT_GT(choice.Code, last) << choice.Name;
      last = choice.Code;
    }
  }
}

TEST(ChoiceNames, AreNotFoundUnderAnotherRuleOrSpelling) {
  EXPECT_EQ(FindChoice(StyleCode, "Carbide"), nullptr);
  EXPECT_EQ(FindChoice(TipCode, "Square Back"), nullptr);
  EXPECT_EQ(FindChoice(JoinCode, "Overlap Join"), nullptr);
  EXPECT_EQ(FindChoice(StyleCode, "Square"), nullptr);
  EXPECT_EQ(FindChoice(StyleCode, "1"), nullptr);
  EXPECT_EQ(FindChoice(TipCode, ""), nullptr);
}

TEST(AChoice, IsWhatIsStoredByName) {
  for (const StoreRule rule : {StyleCode, TipCode, JoinCode, Text}) EXPECT_TRUE(IsChoice(rule));
  for (const StoreRule rule : {MetresToFeet, CentimetresToInches, MillimetresToInches, AsTyped, Integer}) {
    EXPECT_FALSE(IsChoice(rule));
  }
}

// ---- numbers on their way into the record

struct StoreRow {
  const char* Name;
  StoreRule Rule;
  const char* Text;
  double Imperially, Metrically;
  friend void PrintTo(const StoreRow& row, std::ostream* out) { *out << row.Name; }
};
class Storing : public testing::TestWithParam<StoreRow> {};

TEST_P(Storing, ConvertsInMetricOnly) {
  const StoreRow& row = GetParam();
  EXPECT_EQ(StoredNumber(row.Rule, row.Text, {Imperial, 3, 5}), row.Imperially);
  EXPECT_EQ(StoredNumber(row.Rule, row.Text, {Metric, 3, 5}), row.Metrically);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, Storing,
    testing::Values(StoreRow{"Metres", MetresToFeet, " 3.048", 3.048, 10},              //
                    StoreRow{"TwoMetres", MetresToFeet, " 2", 2, 6.56168},              //
                    StoreRow{"Centimetres", CentimetresToInches, " 2.54", 2.54, 1},     //
                    StoreRow{"FiveCentimetres", CentimetresToInches, " 5", 5, 1.9685},  //
                    StoreRow{"Millimetres", MillimetresToInches, " 25.4", 25.4, 1},     //
                    StoreRow{"OneMillimetre", MillimetresToInches, " 1", 1, .03937},    //
                    StoreRow{"AsTyped", AsTyped, " 14.123456789", 14.123456789, 14.123456789},
                    StoreRow{"ImperialIsNotRounded", CentimetresToInches, " .123456789", .123456789,
                             .0486},  //
                    StoreRow{"NegativeLosesAUnit", CentimetresToInches, "-2.54", -2.54, -.99999},
                    StoreRow{"Zero", MetresToFeet, " 0", 0, 0},  //
                    StoreRow{"Fraction", MillimetresToInches, " .125", .125, .00492}),
    [](const auto& row) { return NameOf(row); });

TEST(StoredNumber, IsCutToTheDecimalsOfConversionsInMetric) {
  EXPECT_EQ(StoredNumber(MillimetresToInches, " 1", {Metric, 3, 4}), .0393);
  EXPECT_EQ(StoredNumber(MillimetresToInches, " 1", {Metric, 3, 8}), .03937007);
}

}  // namespace
}  // namespace tarnwick
