#include "entry/Questions.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "entry/modPresetList.h"
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
using test::Picks;
using test::Says;
using test::ScriptedDialogHost;

using Fields = std::set<std::string>;

/// Somebody at the desk with a full design.
class AQuestion : public testing::Test {
 protected:
  Questions In(UnitSystem system) {
    return {host_, say_, {system, 3, 5}, [this] { ++settingsSaved_; }};
  }

  bool Ask(Parameter parameter, const test::ValueAct& act, UnitSystem system = Imperial) {
    host_.Values.push_back(act);
    return In(system).Ask(parameter, saw_);
  }

  [[nodiscard]] Fields Changed() const { return ChangedFields(before_, saw_); }

  CollectedMessages say_;
  ScriptedDialogHost host_;
  BandSaw saw_ = DesignOfEveryField();
  BandSaw before_ = DesignOfEveryField();
  int settingsSaved_ = 0;
};

// ---- measures

struct MeasureRow {
  const char* Name;
  Parameter Id;
  const char* Typed;
  double Imperially, Metrically;
  const char* Field;
  friend void PrintTo(const MeasureRow& row, std::ostream* out) { *out << row.Name; }
};
class Measure : public AQuestion, public testing::WithParamInterface<MeasureRow> {
 protected:
  void ExpectStored(UnitSystem system, double want) {
    ASSERT_TRUE(Ask(GetParam().Id, Enters(GetParam().Typed), system));
    EXPECT_EQ(Changed(), Fields{GetParam().Field});
    const auto field = std::get<double& (*)(BandSaw&)>(RowOf(GetParam().Id).Field);
    EXPECT_EQ(field(saw_), want);
    EXPECT_EQ(settingsSaved_, 1);
  }
};

TEST_P(Measure, IsStoredAsTypedInImperial) { ExpectStored(Imperial, GetParam().Imperially); }
TEST_P(Measure, IsStoredByItsRuleInMetric) { ExpectStored(Metric, GetParam().Metrically); }

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Answers, Measure,
    testing::Values(
        MeasureRow{"BandLength", Parameter::BandLength, "3.048", 3.048, 10, "Length"},
        MeasureRow{"FeetStayFeetOrCountAsMetres", Parameter::BandLength, "2 ft", 2, 6.56168, "Length"},
        MeasureRow{"Pitch", Parameter::Pitch, "2.54", 2.54, 1, "Pitch"},
        MeasureRow{"BandWidth", Parameter::BandWidth, "5", 5, 1.9685, "Width"},
        MeasureRow{"TipClearance", Parameter::TipClearance, "1", 1, .03937, "TipClear"},
        MeasureRow{"SeatWidth", Parameter::SeatWidth, ".125 mm", .125, .00492, "SeatInfo.Width"},
        MeasureRow{"SeatHeight", Parameter::SeatHeight, "25.4", 25.4, 1, "SeatInfo.Height"},
        MeasureRow{"HookAngle", Parameter::HookAngle, "-3 deg", -3, -3, "HookAngle"},
        MeasureRow{"ClearanceAngle", Parameter::ClearanceAngle, "12.3456789", 12.3456789, 12.3456789, "ClearAngle"},
        MeasureRow{"GulletRadius", Parameter::GulletRadius, "1/2", .5, .19685, "GulletInfo.Radius"},
        MeasureRow{"FirstGulletRadius", Parameter::FirstGulletRadius, "2.54", 2.54, 1, "GulletInfo.Radius1"},
        MeasureRow{"SecondGulletRadius", Parameter::SecondGulletRadius, "2.54", 2.54, 1, "GulletInfo.Radius2"},
        MeasureRow{"ThirdGulletRadius", Parameter::ThirdGulletRadius, "2.54", 2.54, 1, "GulletInfo.Radius3"},
        MeasureRow{"GulletBottomAngle", Parameter::GulletBottomAngle, "20", 20, 20, "GulletInfo.BottomAngle"},
        MeasureRow{"GulletWidth", Parameter::GulletWidth, "2.54", 2.54, 1, "GulletInfo.Width"},
        MeasureRow{"GulletDepth", Parameter::GulletDepth, "1 1/4", 1.25, .49212, "GulletInfo.Depth"},
        MeasureRow{"GulletBackAngle", Parameter::GulletBackAngle, "35", 35, 35, "GulletInfo.BackAngle"},
        MeasureRow{"GulletBackRadius", Parameter::GulletBackRadius, "2.54", 2.54, 1, "GulletInfo.BackRadius"},
        MeasureRow{"FrostNotchWidth", Parameter::FrostNotchWidth, "25.4", 25.4, 1, "GulletInfo.FrostWidth"},
        MeasureRow{"FrostNotchHeight", Parameter::FrostNotchHeight, "25.4", 25.4, 1, "GulletInfo.FrostHeight"},
        MeasureRow{"FrostNotchRadius", Parameter::FrostNotchRadius, "1", 1, .03937, "GulletInfo.FrostRadius"},
        MeasureRow{"FrostNotchAngle", Parameter::FrostNotchAngle, "5", 5, 5, "GulletInfo.FrostAngle"},
        MeasureRow{"FeedRateIsNotConverted", Parameter::FeedRate, "100", 100, 100, "GeneralInfo.FeedRate"},
        MeasureRow{"DepthOfCutIsNotConverted", Parameter::DepthOfCut, "25 cm", 25, 25, "GeneralInfo.DepthOfCut"},
        MeasureRow{"TipKerf", Parameter::TipKerf, "25.4", 25.4, 1, "GeneralInfo.Kerf"},
        MeasureRow{"PlateThickness", Parameter::PlateThickness, "25.4", 25.4, 1, "GeneralInfo.PlateThick"},
        MeasureRow{"WheelDiameter", Parameter::WheelDiameter, "3.048", 3.048, 10, "MachineInfo.WheelDia"},
        MeasureRow{"RimWidth", Parameter::RimWidth, "2.54", 2.54, 1, "MachineInfo.Width"},
        MeasureRow{"CenterToCenter", Parameter::CenterToCenter, "3.048", 3.048, 10, "MachineInfo.CenterToCenter"},
        MeasureRow{"ZeroIsAccepted", Parameter::Pitch, "0", 0, 0, "Pitch"},
        MeasureRow{"NegativeIsAccepted", Parameter::Pitch, "-4", -4, -1.5748, "Pitch"},
        MeasureRow{"InfinityIsZero", Parameter::BandLength, "10/0", 0, 0, "Length"},
        MeasureRow{"NoNumberIsZero", Parameter::HookAngle, "0/0", 0, 0, "HookAngle"}),
    [](const auto& row) { return std::string(row.param.Name); });
// clang-format on

TEST_F(AQuestion, StoresTheFirstSeatWidthOfTheMetricList) {
  ASSERT_TRUE(Ask(Parameter::SeatWidth, Picks(0), Metric));
  EXPECT_EQ(host_.Lists.at(0).at(0), " 0.125 mm");
  EXPECT_EQ(saw_.SeatInfo.Width, .00492);
}

TEST_F(AQuestion, StoresAFractionOfTheImperialList) {
  ASSERT_TRUE(Ask(Parameter::GulletDepth, Picks(0)));
  EXPECT_EQ(saw_.GulletInfo.Depth, .25);
}

TEST_F(AQuestion, ConvertsByTheCountOfDecimals) {
  Questions ask = In(Metric);
  ask.Format.DecimalPlaces = 4;
  host_.Values.push_back(Enters("1"));
  ASSERT_TRUE(ask.Ask(Parameter::SeatWidth, saw_));
  EXPECT_EQ(saw_.SeatInfo.Width, .0393);
}

TEST_F(AQuestion, CanBeAnsweredAgainAfterAWrongEquation) {
  ASSERT_TRUE(Ask(Parameter::Pitch, [](ValueDialog& dialog) {
    dialog.Type("wide");
    dialog.PressOk();
    dialog.Type("2");
    dialog.PressOk();
  }));
  EXPECT_EQ(saw_.Pitch, 2);
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"Not a valid equation!"});
  EXPECT_EQ(settingsSaved_, 1);
}

TEST_F(AQuestion, ShowsTitlePromptAndPictureOfTheBandsStyle) {
  saw_.ToothStyle = OShape;
  ASSERT_TRUE(Ask(Parameter::FirstGulletRadius, Enters("1")));
  EXPECT_EQ(host_.Titles, std::vector<std::string>{"First Gullet Radius"});
  EXPECT_EQ(host_.Prompts, std::vector<std::string>{"\nEnter or Select First Gullet Radius!"});
  EXPECT_EQ(host_.Pictures, std::vector<std::string>{"GuO1stRd"});
}

TEST_F(AQuestion, OffersTheListOfTheUnitSystemInUse) {
  ASSERT_TRUE(Ask(Parameter::BandLength, Enters("1"), Metric));
  ASSERT_TRUE(Ask(Parameter::BandLength, Enters("1"), Imperial));
  EXPECT_EQ(host_.Lists.at(0), ShowListValues(1, {Metric, 3, 5}));
  EXPECT_EQ(host_.Lists.at(1), ShowListValues(1, {Imperial, 3, 5}));
}

TEST_F(AQuestion, BeginsWithAnEmptyBoxEveryTime) {
  const auto seesAnEmptyBox = [](ValueDialog& dialog) {
    EXPECT_EQ(dialog.Value(), "");
    dialog.Type("3");
    dialog.PressOk();
  };
  ASSERT_TRUE(Ask(Parameter::Pitch, seesAnEmptyBox));
  ASSERT_TRUE(Ask(Parameter::Pitch, seesAnEmptyBox));
}

// ---- a measure that lies elsewhere

TEST_F(AQuestion, StoresTheSpaceOfOneToothByItsRule) {
  double space = 7;
  host_.Values = {Enters("2.54"), Enters("2.54"), Cancels()};
  EXPECT_TRUE(In(Imperial).Ask(Parameter::ToothSpace, SquareBack, space));
  EXPECT_EQ(space, 2.54);
  EXPECT_TRUE(In(Metric).Ask(Parameter::ToothSpace, SquareBack, space));
  EXPECT_EQ(space, 1);
  EXPECT_FALSE(In(Metric).Ask(Parameter::ToothSpace, SquareBack, space));
  EXPECT_EQ(space, 1);
  EXPECT_EQ(settingsSaved_, 3);
  EXPECT_EQ(host_.Titles, (std::vector<std::string>{"Tooth Space", "Tooth Space", "Tooth Space"}));
}

TEST_F(AQuestion, ShowsThePictureOfTheStyleThatTheCallerNames) {
  double depth = 0;
  host_.Values = {Enters("1"), Enters("1")};
  EXPECT_TRUE(In(Imperial).Ask(Parameter::GulletWidth, FlatBottom, depth));
  EXPECT_TRUE(In(Imperial).Ask(Parameter::GulletWidth, OShape, depth));
  EXPECT_EQ(host_.Pictures, (std::vector<std::string>{"GuFWidth", "GuOWidth"}));
}

// ---- cancel, and the settings

TEST_F(AQuestion, LeavesTheRecordByteForByteWhenItIsCancelled) {
  int asked = 0;
  for (const ParameterRow& row : Parameters()) {
    if (std::holds_alternative<std::monostate>(row.Field)) continue;
    for (const UnitSystem system : {Imperial, Metric}) {
      EXPECT_FALSE(Ask(row.Id, Cancels(), system)) << row.Title;
      EXPECT_EQ(Changed(), Fields{}) << row.Title;
      EXPECT_EQ(settingsSaved_, ++asked) << row.Title;
    }
  }
  EXPECT_EQ(asked, 2 * 34);
}

TEST_F(AQuestion, SavesTheSettingsLast) {
  Questions ask = In(Imperial);
  double pitchThen = -1;
  ask.SaveSettings = [&] { pitchThen = saw_.Pitch; };
  host_.Values.push_back(Enters("2"));
  ASSERT_TRUE(ask.Ask(Parameter::Pitch, saw_));
  EXPECT_EQ(pitchThen, 2);
  EXPECT_EQ(host_.Titles.size(), 1U);
}

// ---- whole numbers

struct WholeRow {
  const char* Name;
  const char* Typed;
  int Want;
  friend void PrintTo(const WholeRow& row, std::ostream* out) { *out << row.Name; }
};
class NumberOfTeeth : public AQuestion, public testing::WithParamInterface<WholeRow> {};

TEST_P(NumberOfTeeth, IsTheNearestWholeNumberTiesToEven) {
  for (const UnitSystem system : {Imperial, Metric}) {
    saw_.NumTeeth = 111;
    ASSERT_TRUE(Ask(Parameter::NumTeeth, Enters(GetParam().Typed), system));
    EXPECT_EQ(saw_.NumTeeth, GetParam().Want);
    saw_.NumTeeth = before_.NumTeeth;
    EXPECT_EQ(Changed(), Fields{});
  }
}

INSTANTIATE_TEST_SUITE_P(Answers, NumberOfTeeth,
                         testing::Values(WholeRow{"Whole", "100", 100},               //
                                         WholeRow{"Equation", "2*50", 100},           //
                                         WholeRow{"BelowHalf", "100.49", 100},        //
                                         WholeRow{"AboveHalf", "100.51", 101},        //
                                         WholeRow{"HalfToTheEvenBelow", "12.5", 12},  //
                                         WholeRow{"HalfToTheEvenAbove", "13.5", 14},  //
                                         WholeRow{"HalfOfOne", ".5", 0},              //
                                         WholeRow{"Negative", "-3", -3},              //
                                         WholeRow{"NegativeHalf", "-2.5", -2},        //
                                         WholeRow{"InfinityIsZero", "1/0", 0},        //
                                         WholeRow{"Largest", "32767.4", 32767},       //
                                         WholeRow{"Smallest", "-32768.5", -32768}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(AQuestion, LeavesTheCountOfTeethAloneBeyondItsRange) {
  for (const char* typed :
       {"32768", "32767.5", "-32769", "99999", "4294967297", "1000000*1000000*1000000*1000000"}) {
    static_cast<void>(Ask(Parameter::NumTeeth, Enters(typed)));
    EXPECT_EQ(Changed(), Fields{}) << typed;
  }
  EXPECT_EQ(settingsSaved_, 6);
}

TEST_F(AQuestion, RoundsTheWheelSpeedTiesToEven) {
  for (const UnitSystem system : {Imperial, Metric}) {
    ASSERT_TRUE(Ask(Parameter::WheelRpm, Enters("1200.5 rpms"), system));
    EXPECT_EQ(saw_.GeneralInfo.ShaftSpeed, 1200);
    ASSERT_TRUE(Ask(Parameter::WheelRpm, Enters("1201.5"), system));
    EXPECT_EQ(saw_.GeneralInfo.ShaftSpeed, 1202);
    ASSERT_TRUE(Ask(Parameter::WheelRpm, Enters("70000"), system));
    EXPECT_EQ(saw_.GeneralInfo.ShaftSpeed, 70000);
    EXPECT_EQ(Changed(), Fields{"GeneralInfo.ShaftSpeed"});
  }
}

TEST_F(AQuestion, LeavesTheWheelSpeedAloneBeyondItsRange) {
  for (const char* typed : {"2147483648", "-2147483649", "9999999999"}) {
    static_cast<void>(Ask(Parameter::WheelRpm, Enters(typed)));
    EXPECT_EQ(Changed(), Fields{}) << typed;
  }
  ASSERT_TRUE(Ask(Parameter::WheelRpm, Enters("2147483647")));
  EXPECT_EQ(saw_.GeneralInfo.ShaftSpeed, 2147483647);
}

// ---- names

TEST_F(AQuestion, StoresTheCodeOfEveryName) {
  struct Kind {
    Parameter Id;
    std::int16_t& Field;
    std::vector<int> Codes;  // in the order of the list
  };
  for (const Kind& kind : {Kind{Parameter::ToothStyle, saw_.ToothStyle, {1, 2, 4, 5, 6, 7, 8, 9}},
                           Kind{Parameter::TipType, saw_.GeneralInfo.TipType, {0, 1, 2, 3}},
                           Kind{Parameter::JoinStyle, saw_.DesignInfo.JoinStyle, {0, 1}}}) {
    const std::int16_t old = kind.Field;
    for (std::size_t i = 0; i < kind.Codes.size(); ++i) {
      kind.Field = 77;
      ASSERT_TRUE(Ask(kind.Id, Picks(i)));
      EXPECT_EQ(kind.Field, kind.Codes[i]);
    }
    kind.Field = old;
    EXPECT_EQ(Changed(), Fields{});
  }
}

TEST_F(AQuestion, TakesATypedNameOfItsList) {
  ASSERT_TRUE(Ask(Parameter::ToothStyle, Enters("Frost Tooth")));
  EXPECT_EQ(saw_.ToothStyle, 9);
  ASSERT_TRUE(Ask(Parameter::TipType, Enters("None"), Metric));
  EXPECT_EQ(saw_.GeneralInfo.TipType, 0);
  EXPECT_EQ(Changed(), (Fields{"ToothStyle", "GeneralInfo.TipType"}));
}

TEST_F(AQuestion, IsNotAnsweredByANameThatIsInNoList) {
  for (const Parameter parameter : {Parameter::ToothStyle, Parameter::TipType, Parameter::JoinStyle}) {
    for (const char* name : {"Hook Tooth", "4", "Overlap Join", "Alder"}) {
      EXPECT_FALSE(Ask(parameter, Enters(name))) << name;
      EXPECT_EQ(Changed(), Fields{}) << name;
    }
  }
  EXPECT_EQ(settingsSaved_, 12);
  EXPECT_TRUE(say_.Shown.empty());
}

// ---- wood

struct WoodRow {
  const char* Name;
  std::string Typed, Want;  // Want without the blanks that fill the field
  friend void PrintTo(const WoodRow& row, std::ostream* out) { *out << row.Name; }
};
class Wood : public AQuestion, public testing::WithParamInterface<WoodRow> {};

TEST_P(Wood, IsStoredByItsNameFilledWithBlanks) {
  ASSERT_TRUE(Ask(Parameter::TypeOfWood, Enters(GetParam().Typed)));
  std::string want = GetParam().Want;
  want.resize(30, ' ');
  EXPECT_EQ(saw_.GeneralInfo.WoodType.View(), want);
  EXPECT_EQ(Changed(), Fields{"GeneralInfo.WoodType"});
  EXPECT_TRUE(say_.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Names, Wood,
    testing::Values(WoodRow{"OfTheList", "Oak (White)", "Oak (White)"},          //
                    WoodRow{"InNoList", "Teak", "Teak"},                         //
                    WoodRow{"BlanksAround", "  Teak  ", "Teak"},                 //
                    WoodRow{"BlanksWithin", "Old  Teak", "Old  Teak"},           //
                    WoodRow{"AHeadingThatIsTyped", "Softwoods:", "Softwoods:"},  //
                    WoodRow{"TooLong", "Douglas Fir of the far northern coast",
                            "Douglas Fir of the far norther"},
                    WoodRow{"Umlaut", "L\u00E4rche", "L\xE4rche"},             //
                    WoodRow{"NoPlaceInTheCodePage", "\u6728 Teak", "? Teak"},  //
                    WoodRow{"ThirtyUmlauts",
                            "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4"
                            "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4"
                            "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4",
                            std::string(30, '\xE4')},  //
                    WoodRow{"BlanksAlone", "   ", ""}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(AQuestion, TakesAWoodFromTheList) {
  ASSERT_TRUE(Ask(Parameter::TypeOfWood, Picks(3)));
  EXPECT_EQ(saw_.GeneralInfo.WoodType.Trimmed(), "Cedar (Soutern Red)");
}

// ---- the seat

TEST_F(AQuestion, OfTheSeatIsAnsweredByYesOrNo) {
  for (const Flag state : {False, True}) {
    for (const bool answer : {true, false}) {
      saw_.SeatInfo.State = state;
      host_.YesNos.push_back(Says(answer));
      EXPECT_TRUE(In(Imperial).AskSeat(saw_.SeatInfo.State));
      EXPECT_EQ(saw_.SeatInfo.State, answer ? True : False);
    }
  }
  EXPECT_EQ(settingsSaved_, 4);
  EXPECT_EQ(host_.Titles.at(0), "Seat");
  EXPECT_EQ(host_.Pictures.at(0), "Seat");
  EXPECT_EQ(host_.Prompts.at(0), "\nDoes Band Saw Have a Seat?\nSelect Yes or No!");
}

TEST_F(AQuestion, OfTheSeatOpensOnThePresentState) {
  for (const Flag state : {False, True, Flag{5}}) {
    saw_.SeatInfo.State = state;
    host_.YesNos.push_back(AcceptsAsItOpens());
    EXPECT_TRUE(In(Metric).AskSeat(saw_.SeatInfo.State));
    EXPECT_EQ(saw_.SeatInfo.State, state == False ? False : True);
  }
  EXPECT_EQ(host_.OpenedOn, (std::vector<bool>{false, true, true}));
}

TEST_F(AQuestion, OfTheSeatLeavesItAloneWhenItIsCancelled) {
  for (const Flag state : {False, True, Flag{5}}) {
    saw_.SeatInfo.State = state;
    host_.YesNos.push_back(DeclinesToSay());
    EXPECT_FALSE(In(Imperial).AskSeat(saw_.SeatInfo.State));
    EXPECT_EQ(saw_.SeatInfo.State, state);
  }
  EXPECT_EQ(settingsSaved_, 3);
}

}  // namespace
}  // namespace tarnwick
