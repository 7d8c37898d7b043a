#include "entry/StepByStep.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "support/CollectedMessages.h"
#include "support/FieldChanges.h"
#include "support/ScriptedDialogHost.h"

namespace tarnwick {
namespace {

using test::AcceptsAsItOpens;
using test::Cancels;
using test::ChangedFields;
using test::DeclinesToSay;
using test::DesignOfEveryField;
using test::Enters;
using test::Says;
using test::ScriptedDialogHost;

using Fields = std::set<std::string>;
using Titles = std::vector<std::string>;

/// Somebody who knows an answer to every question, each number another one, and declines some.
class Designer : public ScriptedDialogHost {
 public:
  using ScriptedDialogHost::Run;

  void Run(ValueDialog& dialog) override {
    const auto known = Answers.find(dialog.Title());
    const bool declines = Declined.count(dialog.Title()) != 0 || known == Answers.end();
    Values.push_back(declines ? Cancels() : Enters(known->second));
    ScriptedDialogHost::Run(dialog);
  }

  std::map<std::string, std::string> Answers{{"BandSaw Tooth Style", "Square Back"},
                                             {"Wheel Diameter", "5.5"},
                                             {"Band Saw Length", "100"},
                                             {"Band Saw Width", "6.25"},
                                             {"Tooth Pitch", "2"},
                                             {"Number of Teeth", "600"},
                                             {"Hook Angle", "27"},
                                             {"Clearance Angle", "11"},
                                             {"Tip Clearance", ".03"},
                                             {"BandSaw Tip Type", "None"},
                                             {"Seat Width", ".06"},
                                             {"Seat Height", ".175"},
                                             {"Plate Thickness", ".065"},
                                             {"Tip Kerf", ".125"},
                                             {"Gullet Radius", ".41"},
                                             {"First Gullet Radius", ".21"},
                                             {"Second Gullet Radius", ".52"},
                                             {"Third Gullet Radius", ".33"},
                                             {"Gullet Width", ".84"},
                                             {"Gullet Bottom Angle", "7"},
                                             {"Gullet Depth", ".71"},
                                             {"Gullet Back Angle", "16"},
                                             {"Gullet Back Radius", ".22"}};
  std::set<std::string> Declined;
};

class StepByStep : public testing::Test {
 protected:
  bool Run() {
    return StepByStepInput(saw_, {desk_, say_, format_, [this] {
                                    ++settingsSaved_;
                                    EXPECT_EQ(settingsSaved_, desk_.Titles.size());
                                  }});
  }

  /// The same with nothing but `declined` declined.
  bool RunWithout(const std::set<std::string>& declined) {
    desk_.Declined = declined;
    return Run();
  }

  void Answer(const std::string& title, const std::string& text) { desk_.Answers[title] = text; }

  void ChooseStyle(int style) { Answer("BandSaw Tooth Style", ToothStyleName(style)); }

  [[nodiscard]] bool Asked(const std::string& title) const {
    return std::set<std::string>(desk_.Titles.begin(), desk_.Titles.end()).count(title) != 0;
  }

  [[nodiscard]] Fields Changed(const BandSaw& before) const { return ChangedFields(before, saw_); }

  CollectedMessages say_;
  Designer desk_;
  BandSaw saw_;
  DisplayFormat format_{Imperial, 3, 5};
  std::size_t settingsSaved_ = 0;
};

// ---- what is asked, in which order

struct StyleRow {
  const char* Name;
  int Style;
  Titles Asked;
  friend void PrintTo(const StyleRow& row, std::ostream* out) { *out << row.Name; }
};
class StepByStepOrder : public StepByStep, public testing::WithParamInterface<StyleRow> {};

TEST_P(StepByStepOrder, AsksWhatTheStyleNeeds) {
  ChooseStyle(GetParam().Style);
  EXPECT_TRUE(Run());
  EXPECT_EQ(desk_.Titles, GetParam().Asked);
  EXPECT_EQ(settingsSaved_, desk_.Titles.size());
  EXPECT_EQ(saw_.ToothStyle, GetParam().Style);
  EXPECT_EQ(saw_.ContainsInfo.Teeth, True);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Styles, StepByStepOrder,
    testing::Values(
        StyleRow{"SquareBack", SquareBack, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "Gullet Radius",
            "Gullet Depth", "Gullet Back Angle"}},
        StyleRow{"RoundBack", RoundBack, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "Gullet Radius",
            "Gullet Depth", "Gullet Back Angle", "Gullet Back Radius"}},
        StyleRow{"DoubleRadius", DoubleRadius, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "First Gullet Radius", "Second Gullet Radius", "Gullet Width",
            "Gullet Depth", "Gullet Back Angle", "Gullet Back Radius"}},
        StyleRow{"TripleRadius", TripleRadius, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "First Gullet Radius", "Second Gullet Radius", "Third Gullet Radius", "Gullet Width",
            "Gullet Depth", "Gullet Back Angle", "Gullet Back Radius"}},
        StyleRow{"FlatBottom", FlatBottom, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "First Gullet Radius", "Second Gullet Radius", "Gullet Width", "Gullet Bottom Angle",
            "Gullet Depth", "Gullet Back Angle", "Gullet Back Radius"}},
        StyleRow{"NarrowStyle", NarrowStyle, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "Gullet Depth"}},
        StyleRow{"OShape", OShape, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "First Gullet Radius", "Gullet Width",
            "Gullet Depth"}},
        StyleRow{"FrostTooth", FrostTooth, {
            "BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch", "Hook Angle",
            "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
            "Gullet Radius",
            "Gullet Depth", "Gullet Back Angle"}}),
    [](const auto& row) { return std::string(row.param.Name); });
// clang-format on

TEST_F(StepByStep, AsksForSeatAndKerfOfACarbideTip) {
  Answer("BandSaw Tip Type", "Carbide");
  desk_.YesNos.push_back(Says(true));
  EXPECT_TRUE(Run());
  EXPECT_EQ(desk_.Titles,
            (Titles{"BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width",
                    "Tooth Pitch", "Hook Angle", "Clearance Angle", "Tip Clearance", "BandSaw Tip Type",
                    "Seat", "Seat Width", "Seat Height", "Plate Thickness", "Tip Kerf", "Gullet Radius",
                    "Gullet Depth", "Gullet Back Angle"}));
  EXPECT_EQ(settingsSaved_, desk_.Titles.size());
}

TEST_F(StepByStep, AsksForTheKerfOfTheOtherTipsWithoutASeat) {
  for (const char* tip : {"Stellite", "Swagged"}) {
    desk_.Titles.clear();
    settingsSaved_ = 0;
    Answer("BandSaw Tip Type", tip);
    EXPECT_TRUE(Run());
    EXPECT_FALSE(Asked("Seat")) << tip;
    EXPECT_TRUE(Asked("Tip Kerf")) << tip;
  }
}

TEST_F(StepByStep, GoesByTheTipThatWasThereWhenItsQuestionIsDeclined) {
  saw_.GeneralInfo.TipType = 3;
  desk_.YesNos.push_back(Says(false));
  EXPECT_TRUE(RunWithout({"BandSaw Tip Type"}));
  EXPECT_EQ(saw_.GeneralInfo.TipType, 3);
  EXPECT_TRUE(Asked("Seat"));
  EXPECT_TRUE(Asked("Tip Kerf"));
}

TEST_F(StepByStep, ShowsThePictureOfTheChosenStyle) {
  ChooseStyle(FlatBottom);
  EXPECT_TRUE(Run());
  EXPECT_EQ(desk_.Pictures[10], "GuF1stRd");
  EXPECT_EQ(desk_.Pictures[11], "GuFRad2");
  EXPECT_EQ(desk_.Pictures[12], "GuFWidth");
}

// ---- what is stored

TEST_F(StepByStep, StoresEveryAnswer) {
  ChooseStyle(TripleRadius);
  Answer("BandSaw Tip Type", "Carbide");
  desk_.YesNos.push_back(Says(true));
  EXPECT_TRUE(Run());

  BandSaw want;
  want.ContainsInfo.General = True;
  want.ContainsInfo.Teeth = True;
  want.ToothStyle = TripleRadius;
  want.MachineInfo.WheelDia = 5.5;
  want.Length = 100;
  want.Width = 6.25;
  want.Pitch = 2;
  want.NumTeeth = 50;
  want.HookAngle = 27;
  want.ClearAngle = 11;
  want.TipClear = .03;
  want.GeneralInfo.TipType = 3;
  want.SeatInfo = {True, .06, .175};
  want.GeneralInfo.PlateThick = .065;
  want.GeneralInfo.Kerf = .125;
  want.GeneralInfo.SideClear = .03;
  want.GulletInfo.Radius1 = .21;
  want.GulletInfo.Radius2 = .52;
  want.GulletInfo.Radius3 = .33;
  want.GulletInfo.Width = .84;
  want.GulletInfo.Depth = .71;
  want.GulletInfo.BackAngle = 16;
  want.GulletInfo.BackRadius = .22;
  EXPECT_EQ(Changed(want), Fields{});
}

TEST_F(StepByStep, ConvertsWhatIsTypedInMetric) {
  format_ = {Metric, 3, 5};
  Answer("Band Saw Length", "30.48");
  Answer("Tooth Pitch", "5.08");
  Answer("Plate Thickness", "2.54");
  EXPECT_TRUE(Run());
  EXPECT_EQ(saw_.Length, 100);
  EXPECT_EQ(saw_.Pitch, 2);
  EXPECT_EQ(saw_.NumTeeth, 50);
  EXPECT_EQ(saw_.GeneralInfo.PlateThick, .1);
}

TEST_F(StepByStep, LeavesMeasuresThatItsStyleIsNotAskedFor) {
  saw_ = DesignOfEveryField();
  const BandSaw before = saw_;
  ChooseStyle(NarrowStyle);
  EXPECT_TRUE(Run());
  EXPECT_EQ(Changed(before),
            (Fields{"ContainsInfo.General", "ContainsInfo.Teeth", "ToothStyle", "Length", "Width", "Pitch",
                    "NumTeeth", "HookAngle", "TipClear", "GulletInfo.Depth", "GulletInfo.BackRadius",
                    "GeneralInfo.TipType", "GeneralInfo.PlateThick", "MachineInfo.WheelDia"}));
}

// ---- declined for good

struct AbortRow {
  const char* Name;
  std::set<std::string> Declined;
  std::size_t Asked;
  const char* LastTitle;
  friend void PrintTo(const AbortRow& row, std::ostream* out) { *out << row.Name; }
};
class StepByStepAbort : public StepByStep, public testing::WithParamInterface<AbortRow> {};

TEST_P(StepByStepAbort, EmptiesAFullRecordAndAsksNoMore) {
  saw_ = DesignOfEveryField();
  EXPECT_FALSE(RunWithout(GetParam().Declined));
  EXPECT_EQ(Changed(BandSaw{}), Fields{});
  EXPECT_EQ(desk_.Titles.size(), GetParam().Asked);
  EXPECT_EQ(desk_.Titles.back(), GetParam().LastTitle);
  EXPECT_EQ(settingsSaved_, desk_.Titles.size());
}

INSTANTIATE_TEST_SUITE_P(
    Questions, StepByStepAbort,
    testing::Values(AbortRow{"ToothStyle", {"BandSaw Tooth Style"}, 1, "BandSaw Tooth Style"},
                    AbortRow{"Length", {"Band Saw Length"}, 3, "Band Saw Length"},
                    AbortRow{"Width", {"Band Saw Width"}, 4, "Band Saw Width"},
                    AbortRow{"PitchAndTeeth", {"Tooth Pitch", "Number of Teeth"}, 6, "Number of Teeth"},
                    AbortRow{"HookAngle", {"Hook Angle"}, 6, "Hook Angle"},
                    AbortRow{"HookAngleAfterTeeth", {"Tooth Pitch", "Hook Angle"}, 7, "Hook Angle"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(StepByStep, TakesATypedTextThatIsNoStyleAsDeclined) {
  saw_ = DesignOfEveryField();
  Answer("BandSaw Tooth Style", "Shark");
  EXPECT_FALSE(Run());
  EXPECT_EQ(desk_.Titles, Titles{"BandSaw Tooth Style"});
  EXPECT_EQ(Changed(BandSaw{}), Fields{});
}

TEST(ClearBandSaw, LeavesNothing) {
  BandSaw saw = DesignOfEveryField();
  ClearBandSaw(saw);
  EXPECT_EQ(ChangedFields(BandSaw{}, saw), Fields{});
}

// ---- declined without harm

struct IgnoreRow {
  const char* Name;
  std::string Title;
  const char* Field;
  friend void PrintTo(const IgnoreRow& row, std::ostream* out) { *out << row.Name; }
};
class StepByStepIgnore : public StepByStep, public testing::WithParamInterface<IgnoreRow> {};

TEST_P(StepByStepIgnore, KeepsTheMeasureThatWasThere) {
  saw_ = DesignOfEveryField();
  const BandSaw before = saw_;
  Answer("BandSaw Tip Type", "Swagged");
  EXPECT_TRUE(RunWithout({GetParam().Title}));
  EXPECT_TRUE(Asked(GetParam().Title));
  EXPECT_TRUE(Asked("Gullet Back Angle"));
  EXPECT_EQ(Changed(before).count(GetParam().Field), 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Questions, StepByStepIgnore,
    testing::Values(IgnoreRow{"WheelDiameter", "Wheel Diameter", "MachineInfo.WheelDia"},
                    IgnoreRow{"TipClearance", "Tip Clearance", "TipClear"},
                    IgnoreRow{"TipType", "BandSaw Tip Type", "GeneralInfo.TipType"},
                    IgnoreRow{"PlateThickness", "Plate Thickness", "GeneralInfo.PlateThick"},
                    IgnoreRow{"Kerf", "Tip Kerf", "GeneralInfo.Kerf"},
                    IgnoreRow{"SideClearanceWithoutKerf", "Tip Kerf", "GeneralInfo.SideClear"}),
    [](const auto& row) { return std::string(row.param.Name); });

// ---- plate and kerf

TEST_F(StepByStep, NotesGeneralDataForThePlateAlone) {
  EXPECT_TRUE(Run());
  EXPECT_EQ(saw_.ContainsInfo.General, True);
}

TEST_F(StepByStep, NotesGeneralDataForTheKerfAlone) {
  Answer("BandSaw Tip Type", "Stellite");
  EXPECT_TRUE(RunWithout({"Plate Thickness"}));
  EXPECT_EQ(saw_.ContainsInfo.General, True);
  EXPECT_EQ(saw_.GeneralInfo.Kerf, .125);
  EXPECT_EQ(saw_.GeneralInfo.SideClear, 0) << "no plate to stand out from";
}

TEST_F(StepByStep, NotesNoGeneralDataWithoutPlateAndKerf) {
  Answer("BandSaw Tip Type", "Stellite");
  EXPECT_TRUE(RunWithout({"Plate Thickness", "Tip Kerf"}));
  EXPECT_EQ(saw_.ContainsInfo.General, False);
  EXPECT_EQ(saw_.ContainsInfo.Teeth, True);
}

TEST_F(StepByStep, ClearsTheSideClearanceOfAKerfThatIsNotWider) {
  saw_.GeneralInfo.SideClear = 3;
  Answer("BandSaw Tip Type", "Swagged");
  Answer("Tip Kerf", ".065");
  EXPECT_TRUE(Run());
  EXPECT_EQ(saw_.GeneralInfo.SideClear, 0);
}

TEST_F(StepByStep, RoundsTheSideClearance) {
  Answer("BandSaw Tip Type", "Swagged");
  Answer("Tip Kerf", ".12501");
  EXPECT_TRUE(Run());
  EXPECT_EQ(saw_.GeneralInfo.SideClear, .03) << "of .030005";
}

// ---- pitch and teeth

struct TeethRow {
  const char* Name;
  const char* Length;
  const char* Pitch;
  int Want;  // of 111 before
  friend void PrintTo(const TeethRow& row, std::ostream* out) { *out << row.Name; }
};
class StepByStepTeeth : public StepByStep, public testing::WithParamInterface<TeethRow> {};

TEST_P(StepByStepTeeth, AreFeetDividedByInches) {
  saw_.NumTeeth = 111;
  Answer("Band Saw Length", GetParam().Length);
  Answer("Tooth Pitch", GetParam().Pitch);
  EXPECT_TRUE(Run());
  EXPECT_EQ(saw_.NumTeeth, GetParam().Want);
  EXPECT_FALSE(Asked("Number of Teeth"));
}

INSTANTIATE_TEST_SUITE_P(Counts, StepByStepTeeth,
                         testing::Values(TeethRow{"Whole", "100", "2", 50},          //
                                         TeethRow{"RoundedDown", "100", "1.8", 55},  //
                                         TeethRow{"NegativeToo", "-100", "3", -34},  //
                                         TeethRow{"Few", "1", "2", 0},               //
                                         TeethRow{"Most", "32767", "1", 32767},      //
                                         TeethRow{"TooMany", "32768", "1", 111},     //
                                         TeethRow{"FewerThanMost", "32767.5", "1", 32767},
                                         TeethRow{"Least", "-32767.5", "1", -32768},     //
                                         TeethRow{"BelowTheLeast", "-32769", "1", 111},  //
                                         TeethRow{"NoPitch", "100", "0", 111},           //
                                         TeethRow{"NoLengthNorPitch", "0", "0", 111}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(StepByStep, AsksForTheTeethInsteadOfADeclinedPitch) {
  saw_.Pitch = 1.5;
  EXPECT_TRUE(RunWithout({"Tooth Pitch"}));
  EXPECT_EQ(desk_.Titles[4], "Tooth Pitch");
  EXPECT_EQ(desk_.Titles[5], "Number of Teeth");
  EXPECT_EQ(desk_.Titles[6], "Hook Angle");
  EXPECT_EQ(saw_.NumTeeth, 600);
  EXPECT_EQ(saw_.Pitch, 1.5) << "the calculation settles it";
}

// ---- defaults

struct DefaultRow {
  const char* Name;
  int Style;
  std::string Title;
  const char* Field;
  double Want;  // 100 feet, 600 teeth: 2 inches apart
  friend void PrintTo(const DefaultRow& row, std::ostream* out) { *out << row.Name; }
};
class StepByStepDefault : public StepByStep, public testing::WithParamInterface<DefaultRow> {
 protected:
  [[nodiscard]] double Field() const {
    double value = -1;
    ForEachField(saw_, [&value](const std::string& name, const auto& field) {
      if constexpr (std::is_same_v<std::decay_t<decltype(field)>, double>) {
        if (name == GetParam().Field) value = field;
      }
    });
    return value;
  }
};

TEST_P(StepByStepDefault, ReplacesWhatWasThere) {
  saw_ = DesignOfEveryField();
  ChooseStyle(GetParam().Style);
  EXPECT_TRUE(RunWithout({"Tooth Pitch", GetParam().Title}));
  EXPECT_TRUE(Asked(GetParam().Title));
  EXPECT_EQ(Field(), GetParam().Want);
  EXPECT_TRUE(Asked("Gullet Depth"));
  EXPECT_EQ(saw_.ContainsInfo.Teeth, True);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Questions, StepByStepDefault,
    testing::Values(
        DefaultRow{"ClearanceAngle", SquareBack, "Clearance Angle", "ClearAngle", 8},
        DefaultRow{"RadiusOfSquareBack", SquareBack, "Gullet Radius", "GulletInfo.Radius", .36},
        DefaultRow{"RadiusOfRoundBack", RoundBack, "Gullet Radius", "GulletInfo.Radius", .36},
        DefaultRow{"RadiusOfFrostTooth", FrostTooth, "Gullet Radius", "GulletInfo.Radius", .36},
        DefaultRow{"FirstOfDouble", DoubleRadius, "First Gullet Radius", "GulletInfo.Radius1", .2},
        DefaultRow{"SecondOfDouble", DoubleRadius, "Second Gullet Radius", "GulletInfo.Radius2", .6},
        DefaultRow{"WidthOfDouble", DoubleRadius, "Gullet Width", "GulletInfo.Width", .05549},
        DefaultRow{"FirstOfTriple", TripleRadius, "First Gullet Radius", "GulletInfo.Radius1", .2},
        DefaultRow{"SecondOfTriple", TripleRadius, "Second Gullet Radius", "GulletInfo.Radius2", .6},
        DefaultRow{"ThirdOfTriple", TripleRadius, "Third Gullet Radius", "GulletInfo.Radius3", .2},
        DefaultRow{"WidthOfTriple", TripleRadius, "Gullet Width", "GulletInfo.Width", .05549},
        DefaultRow{"FirstOfFlat", FlatBottom, "First Gullet Radius", "GulletInfo.Radius1", .2},
        DefaultRow{"SecondOfFlat", FlatBottom, "Second Gullet Radius", "GulletInfo.Radius2", .6},
        DefaultRow{"WidthOfFlat", FlatBottom, "Gullet Width", "GulletInfo.Width", .666},
        DefaultRow{"BottomOfFlat", FlatBottom, "Gullet Bottom Angle", "GulletInfo.BottomAngle", 5},
        DefaultRow{"FirstOfOShape", OShape, "First Gullet Radius", "GulletInfo.Radius1", .2},
        DefaultRow{"WidthOfOShape", OShape, "Gullet Width", "GulletInfo.Width", .666},
        DefaultRow{"Depth", NarrowStyle, "Gullet Depth", "GulletInfo.Depth", 0},
        DefaultRow{"BackAngle", FrostTooth, "Gullet Back Angle", "GulletInfo.BackAngle", 15},
        DefaultRow{"BackRadiusOfRoundBack", RoundBack, "Gullet Back Radius", "GulletInfo.BackRadius", 0},
        DefaultRow{"BackRadiusOfDouble", DoubleRadius, "Gullet Back Radius", "GulletInfo.BackRadius", 0},
        DefaultRow{"BackRadiusOfTriple", TripleRadius, "Gullet Back Radius", "GulletInfo.BackRadius", 0},
        DefaultRow{"BackRadiusOfFlat", FlatBottom, "Gullet Back Radius", "GulletInfo.BackRadius", 0}),
    [](const auto& row) { return std::string(row.param.Name); });
// clang-format on

TEST_F(StepByStep, RoundsDefaultsToTheUsersDecimals) {
  Answer("Number of Teeth", "700");
  for (const auto& [places, want] : std::map<int, double>{{4, .3085}, {5, .30857}, {10, .3085714285}}) {
    desk_.Titles.clear();
    settingsSaved_ = 0;
    format_.DecimalPlaces = static_cast<std::int16_t>(places);
    EXPECT_TRUE(RunWithout({"Tooth Pitch", "Gullet Radius"}));
    EXPECT_EQ(saw_.GulletInfo.Radius, want);
  }
}

TEST_F(StepByStep, RoundsThePitchInFeetBeforeTakingItsThird) {
  ChooseStyle(DoubleRadius);
  Answer("Number of Teeth", "700");
  EXPECT_TRUE(RunWithout({"Tooth Pitch", "Gullet Width"}));
  EXPECT_EQ(saw_.GulletInfo.Width, .04756) << ".14285 * .333";
}

TEST_F(StepByStep, TakesThePitchFromTheTeethAlsoWhenAPitchWasGiven) {
  EXPECT_TRUE(RunWithout({"Gullet Radius"}));
  EXPECT_EQ(saw_.Pitch, 2);
  EXPECT_EQ(saw_.GulletInfo.Radius, 4.32) << "50 teeth on 1200 inches";
}

TEST_F(StepByStep, LeavesAloneWhatNoTeethGiveADefaultFor) {
  saw_ = DesignOfEveryField();
  const double before = saw_.GulletInfo.Radius1;
  ChooseStyle(DoubleRadius);
  Answer("Number of Teeth", "0");
  EXPECT_TRUE(RunWithout({"Tooth Pitch", "First Gullet Radius", "Gullet Width"}));
  EXPECT_EQ(saw_.GulletInfo.Radius1, before);
  EXPECT_EQ(saw_.GulletInfo.Width, 0) << "a pitch that cannot be worked out is 0";
}

TEST_F(StepByStep, GivesANewDesignItsStartingValues) {
  desk_.Answers = {{"BandSaw Tooth Style", "Triple Radius"},
                   {"Band Saw Length", "100"},
                   {"Band Saw Width", "6"},
                   {"Number of Teeth", "600"},
                   {"Hook Angle", "25"}};
  EXPECT_TRUE(Run());
  BandSaw want;
  want.ContainsInfo.Teeth = True;
  want.ToothStyle = TripleRadius;
  want.Length = 100;
  want.Width = 6;
  want.NumTeeth = 600;
  want.HookAngle = 25;
  want.ClearAngle = 8;
  want.GulletInfo.Radius1 = .2;
  want.GulletInfo.Radius2 = .6;
  want.GulletInfo.Radius3 = .2;
  want.GulletInfo.Width = .05549;
  want.GulletInfo.BackAngle = 15;
  EXPECT_EQ(Changed(want), Fields{});
}

TEST_F(StepByStep, ClearsTheBackRadiusOfStylesWithoutOneButTheFrostTooth) {
  for (const auto& [style, want] :
       std::map<int, double>{{SquareBack, 0}, {NarrowStyle, 0}, {OShape, 0}, {FrostTooth, .4}}) {
    desk_.Titles.clear();
    settingsSaved_ = 0;
    saw_.GulletInfo.BackRadius = .4;
    ChooseStyle(style);
    EXPECT_TRUE(Run());
    EXPECT_FALSE(Asked("Gullet Back Radius"));
    EXPECT_EQ(saw_.GulletInfo.BackRadius, want) << style;
  }
}

// ---- the seat

class StepByStepSeat : public StepByStep {
 protected:
  StepByStepSeat() {
    Answer("BandSaw Tip Type", "Carbide");
    saw_.SeatInfo = {True, .5, .75};
  }

  BandSaw::Seat RunSeat(const test::YesNoAct& act, const std::set<std::string>& declined = {}) {
    desk_.YesNos.push_back(act);
    EXPECT_TRUE(RunWithout(declined));
    EXPECT_TRUE(Asked("Plate Thickness"));
    return saw_.SeatInfo;
  }
};

TEST_F(StepByStepSeat, StaysWhenTheQuestionIsDeclined) {
  EXPECT_EQ(RunSeat(DeclinesToSay()), (BandSaw::Seat{True, .5, .75}));
  EXPECT_FALSE(Asked("Seat Width"));
}

TEST_F(StepByStepSeat, IsGoneWithItsMeasuresWhenThereIsNone) {
  EXPECT_EQ(RunSeat(Says(false)), (BandSaw::Seat{False, 0, 0}));
  EXPECT_FALSE(Asked("Seat Width"));
}

TEST_F(StepByStepSeat, TakesItsMeasures) {
  EXPECT_EQ(RunSeat(AcceptsAsItOpens()), (BandSaw::Seat{True, .06, .175}));
  EXPECT_EQ(desk_.OpenedOn, std::vector<bool>{true});
}

TEST_F(StepByStepSeat, IsGoneWhenItsWidthIsDeclined) {
  EXPECT_EQ(RunSeat(Says(true), {"Seat Width"}), (BandSaw::Seat{False, 0, 0}));
  EXPECT_FALSE(Asked("Seat Height"));
}

TEST_F(StepByStepSeat, IsGoneWhenItsHeightIsDeclined) {
  EXPECT_EQ(RunSeat(Says(true), {"Seat Height"}), (BandSaw::Seat{False, 0, 0}));
}

TEST_F(StepByStepSeat, StaysWithATipThatHasNone) {
  Answer("BandSaw Tip Type", "Swagged");
  EXPECT_TRUE(Run());
  EXPECT_EQ(saw_.SeatInfo, (BandSaw::Seat{True, .5, .75}));
}

}  // namespace
}  // namespace tarnwick
