#include "entry/ValueDialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "entry/modPresetList.h"
#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

/// Dialogs, and what they say.
class AValueDialog : public testing::Test {
 protected:
  ValueDialog Of(Parameter parameter, int style = SquareBack, DisplayFormat format = {}) {
    return PrepareDialog(parameter, style, format, say_);
  }

  static void Select(ValueDialog& dialog, std::string_view entry) {
    const auto found = std::find(dialog.List().begin(), dialog.List().end(), entry);
    ASSERT_NE(found, dialog.List().end()) << entry;
    dialog.SelectEntry(static_cast<std::size_t>(found - dialog.List().begin()));
  }

  static void ExpectOpen(const ValueDialog& dialog, std::string_view value) {
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.Result(), "");
    EXPECT_EQ(dialog.Value(), value);
  }

  static void ExpectAccepted(const ValueDialog& dialog, std::string_view result) {
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(dialog.Result(), result);
  }

  CollectedMessages say_;
};

constexpr Parameter Choices[] = {Parameter::ToothStyle, Parameter::TipType, Parameter::TypeOfWood,
                                 Parameter::JoinStyle};

// ---- opening

TEST_F(AValueDialog, OpensWithTheTextsOfItsParameterAndAnEmptyBox) {
  for (const ParameterRow& row : Parameters()) {
    const ValueDialog dialog = Of(row.Id, DoubleRadius);
    EXPECT_EQ(dialog.Title(), row.Title);
    EXPECT_EQ(dialog.Prompt(), "\n" + std::string(row.Prompt));
    EXPECT_EQ(dialog.HelpTopic(), row.HelpTopic);
    EXPECT_EQ(dialog.PictureKey(), PictureKey(row.Id, DoubleRadius));
    ExpectOpen(dialog, "");
  }
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(AValueDialog, OffersTheListOfTheUnitSystemInUse) {
  for (const DisplayFormat& format : {DisplayFormat{Imperial, 3, 5}, DisplayFormat{Metric, 2, 5}}) {
    for (const ParameterRow& row : Parameters()) {
      EXPECT_EQ(Of(row.Id, SquareBack, format).List(), ShowListValues(row.List, format)) << row.Title;
    }
  }
  EXPECT_EQ(Of(Parameter::BandLength, SquareBack, {Metric, 3, 5}).List().front(), " 3 m");
}

TEST_F(AValueDialog, ShowsThePictureOfTheToothStyle) {
  EXPECT_EQ(Of(Parameter::FirstGulletRadius, OShape).PictureKey(), "GuO1stRd");
  EXPECT_EQ(Of(Parameter::FirstGulletRadius, FlatBottom).PictureKey(), "GuF1stRd");
  EXPECT_EQ(Of(Parameter::FirstGulletRadius, NarrowStyle).PictureKey(), "");
}

TEST_F(AValueDialog, GivesThePlaceOfAPictureThatCannotComeToTheList) {
  for (const Parameter id :
       {Parameter::TypeOfWood, Parameter::WheelRpm, Parameter::FeedRate, Parameter::ToothSpace}) {
    EXPECT_FALSE(Of(id).ShowsPicture()) << RowOf(id).Title;
  }
  for (const Parameter id : {Parameter::GulletDepth, Parameter::ToothStyle, Parameter::TipType}) {
    EXPECT_TRUE(Of(id).ShowsPicture()) << RowOf(id).Title;
  }
  EXPECT_TRUE(Of(Parameter::FirstGulletRadius, OShape).ShowsPicture());
  EXPECT_FALSE(Of(Parameter::FirstGulletRadius, NarrowStyle).ShowsPicture());
}

// ---- OK

struct NumberRow {
  const char* Name;
  const char* Typed;
  const char* Result;
  friend void PrintTo(const NumberRow& row, std::ostream* out) { *out << row.Name; }
};
class TypedNumber : public AValueDialog, public testing::WithParamInterface<NumberRow> {};

TEST_P(TypedNumber, IsAcceptedByOk) {
  ValueDialog dialog = Of(Parameter::Pitch);
  dialog.Type(GetParam().Typed);
  dialog.PressOk();
  ExpectAccepted(dialog, GetParam().Result);
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_P(TypedNumber, IsShownAndAcceptedByEnter) {
  ValueDialog dialog = Of(Parameter::Pitch);
  dialog.Type(GetParam().Typed);
  dialog.PressEnter();
  ExpectAccepted(dialog, GetParam().Result);
  EXPECT_EQ(dialog.Value(), GetParam().Result);
  EXPECT_TRUE(say_.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(Texts, TypedNumber,
                         testing::Values(NumberRow{"Whole", "12", " 12"},                          //
                                         NumberRow{"Mixed", "12 3/4 in", " 12.75"},                //
                                         NumberRow{"Equation", "(10+2)/5", " 2.4"},                //
                                         NumberRow{"LessThanOne", "1/8", " .125"},                 //
                                         NumberRow{"Negative", "-5", "-5"},                        //
                                         NumberRow{"NegativeLessThanOne", "-1/4", "-.25"},         //
                                         NumberRow{"Zero", "0", " 0"},                             //
                                         NumberRow{"Blank", " ", " 0"},                            //
                                         NumberRow{"FeetAndInches", "5 ft 6 in", " 5.5"},          //
                                         NumberRow{"FifteenDigits", "1/3", " .333333333333333"},   //
                                         NumberRow{"TinyWithoutExponent", "1/100000", " .00001"},  //
                                         NumberRow{"NegativeTiny", "-1/1000000", "-.000001"},      //
                                         NumberRow{"HugeWithoutExponent", "1000000*1000000*10000",
                                                   " 10000000000000000"},                     //
                                         NumberRow{"InfinityIsZero", "10/0", " 0"},           //
                                         NumberRow{"NegativeInfinityIsZero", "-10/0", " 0"},  //
                                         NumberRow{"NoNumberIsZero", "0/0", " 0"}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(AValueDialog, StaysOpenOnAnEmptyBox) {
  for (const ParameterRow& row : Parameters()) {
    ValueDialog dialog = Of(row.Id);
    dialog.PressOk();
    ExpectOpen(dialog, "");
    dialog.PressEnter();
    ExpectOpen(dialog, "");
  }
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(AValueDialog, ClearsTheBoxAndStaysAfterAWrongEquation) {
  ValueDialog dialog = Of(Parameter::Pitch);
  dialog.Type("(1+2");
  dialog.PressOk();
  ExpectOpen(dialog, "");
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"Not a valid equation!"});
  dialog.Type("two");
  dialog.PressEnter();
  ExpectOpen(dialog, "");
  EXPECT_EQ(say_.Shown.size(), 2U);
  dialog.Type("1+2");
  dialog.PressOk();
  ExpectAccepted(dialog, " 3");
  EXPECT_EQ(say_.Shown.size(), 2U);
}

TEST_F(AValueDialog, EvaluatesNothingWhileOneTypes) {
  ValueDialog dialog = Of(Parameter::Pitch);
  dialog.Type("1,5 in");
  ExpectOpen(dialog, "1,5 in");
}

TEST_F(AValueDialog, DeletesAUnitWordInEitherSystem) {
  for (const UnitSystem system : {Imperial, Metric}) {
    ValueDialog dialog = Of(Parameter::BandLength, SquareBack, {system, 3, 5});
    dialog.Type("2 ft");
    dialog.PressOk();
    ExpectAccepted(dialog, " 2");
  }
}

TEST_F(AValueDialog, RoundsFeetAndInchesByTheCountOfDecimals) {
  ValueDialog dialog = Of(Parameter::BandLength, SquareBack, {Imperial, 3, 4});
  dialog.Type("5 ft 7 in");
  dialog.PressOk();
  ExpectAccepted(dialog, " 5.5833");
}

// ---- the list

TEST_F(AValueDialog, ShowsTheNumberOfAnEntryWithoutItsUnit) {
  ValueDialog dialog = Of(Parameter::BandLength);
  Select(dialog, " 12 ft");
  ExpectOpen(dialog, " 12");
  Select(dialog, " 13 ft");
  ExpectOpen(dialog, " 13");
  dialog.PressOk();
  ExpectAccepted(dialog, " 13");
}

TEST_F(AValueDialog, ReadsFractionsFeetAndAnglesOfItsList) {
  ValueDialog radius = Of(Parameter::GulletDepth);
  Select(radius, "1  1/16 in");
  ExpectOpen(radius, " 1.0625");
  ValueDialog wheel = Of(Parameter::WheelDiameter);
  Select(wheel, " 1 ft  3 in");
  ExpectOpen(wheel, " 1.25");
  ValueDialog hook = Of(Parameter::HookAngle);
  Select(hook, " 14 deg");
  ExpectOpen(hook, " 14");
  ValueDialog feed = Of(Parameter::FeedRate);
  Select(feed, " 350 Fpm");
  ExpectOpen(feed, " 350");
  ValueDialog seat = Of(Parameter::SeatWidth, SquareBack, {Metric, 3, 5});
  Select(seat, " 0.125 mm");
  ExpectOpen(seat, " .125");
}

TEST_F(AValueDialog, TakesAnEntryOverWhatWasTyped) {
  ValueDialog dialog = Of(Parameter::NumTeeth);
  dialog.Type("nonsense");
  Select(dialog, " 100");
  ExpectOpen(dialog, " 100");
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(AValueDialog, KeepsThePictureOfAMeasureOverItsList) {
  ValueDialog dialog = Of(Parameter::BandLength);
  dialog.SelectEntry(3);
  EXPECT_EQ(dialog.PictureKey(), "Length");
}

TEST_F(AValueDialog, ReadsEveryEntryOfEveryNumberList) {
  for (const UnitSystem system : {Imperial, Metric}) {
    for (const ParameterRow& row : Parameters()) {
      if (IsChoice(row.Store)) continue;
      ValueDialog dialog = Of(row.Id, SquareBack, {system, 3, 5});
      for (std::size_t i = 0; i < dialog.List().size(); ++i) {
        dialog.Type("");
        dialog.SelectEntry(i);
        ASSERT_NE(dialog.Value(), "") << row.Title << ", entry " << i;
        ASSERT_EQ(dialog.Value().find_first_not_of(" .0123456789"), std::string::npos) << dialog.Value();
      }
    }
  }
  EXPECT_TRUE(say_.Shown.empty());
}

// ---- names

struct NameRow {
  const char* Name;
  Parameter Id;
  const char* Entry;
  const char* Picture;
  friend void PrintTo(const NameRow& row, std::ostream* out) { *out << row.Name; }
};
class ChosenName : public AValueDialog, public testing::WithParamInterface<NameRow> {};

TEST_P(ChosenName, StandsInTheBoxWithItsPictureAndIsAccepted) {
  ValueDialog dialog = Of(GetParam().Id);
  Select(dialog, GetParam().Entry);
  ExpectOpen(dialog, GetParam().Entry);
  EXPECT_EQ(dialog.PictureKey(), GetParam().Picture);
  dialog.PressOk();
  ExpectAccepted(dialog, GetParam().Entry);
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_P(ChosenName, IsAcceptedByEnterWithoutBeingEvaluated) {
  ValueDialog dialog = Of(GetParam().Id);
  dialog.Type(GetParam().Entry);
  dialog.PressEnter();
  ExpectAccepted(dialog, GetParam().Entry);
  EXPECT_TRUE(say_.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ChosenName,
    testing::Values(NameRow{"SquareBack", Parameter::ToothStyle, "Square Back", "SqrBack"},       //
                    NameRow{"RoundBack", Parameter::ToothStyle, "Round Back", "RndBack"},         //
                    NameRow{"DoubleRadius", Parameter::ToothStyle, "Double Radius", "GuDouble"},  //
                    NameRow{"TripleRadius", Parameter::ToothStyle, "Triple Radius", "GuTriple"},  //
                    NameRow{"FlatBottom", Parameter::ToothStyle, "Flat Bottom", "GuFlatBo"},      //
                    NameRow{"NarrowStyle", Parameter::ToothStyle, "Narrow Style", "GuNarrow"},    //
                    NameRow{"OShape", Parameter::ToothStyle, "O Shape", "GuOShape"},              //
                    NameRow{"FrostToothHasNone", Parameter::ToothStyle, "Frost Tooth", ""},       //
                    NameRow{"NoTip", Parameter::TipType, "None", "TipNone"},                      //
                    NameRow{"Stellite", Parameter::TipType, "Stellite", "TipStel"},               //
                    NameRow{"Swagged", Parameter::TipType, "Swagged", "TipSwag"},                 //
                    NameRow{"Carbide", Parameter::TipType, "Carbide", "TipCarb"},                 //
                    NameRow{"RightAngle", Parameter::JoinStyle, "Right Angle Join", "RightAng"},  //
                    NameRow{"Overlap", Parameter::JoinStyle, "Overlaped Join", "Overlap"},        //
                    NameRow{"Wood", Parameter::TypeOfWood, "Oak (White)", ""}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(AValueDialog, TakesATypedNameAsItStands) {
  for (const Parameter parameter : Choices) {
    ValueDialog dialog = Of(parameter);
    dialog.Type("Teak, 2*");
    dialog.PressOk();
    ExpectAccepted(dialog, "Teak, 2*");
  }
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(AValueDialog, DoesNotFollowTypedNamesWithThePicture) {
  ValueDialog dialog = Of(Parameter::ToothStyle);
  dialog.Type("O Shape");
  EXPECT_EQ(dialog.PictureKey(), "SqrBack");
}

TEST_F(AValueDialog, BringsThePictureBackAfterAFrostTooth) {
  ValueDialog dialog = Of(Parameter::ToothStyle);
  Select(dialog, "Frost Tooth");
  EXPECT_EQ(dialog.PictureKey(), "");
  Select(dialog, "Square Back");
  EXPECT_EQ(dialog.PictureKey(), "SqrBack");
}

TEST_F(AValueDialog, RefusesTheHeadingsOfWood) {
  ValueDialog dialog = Of(Parameter::TypeOfWood);
  Select(dialog, "Softwoods:");
  ExpectOpen(dialog, "");
  Select(dialog, "Alder");
  Select(dialog, "Hardwoods:");
  ExpectOpen(dialog, "Alder");
  Select(dialog, "Softwoods:");
  ExpectOpen(dialog, "Alder");
  dialog.PressOk();
  ExpectAccepted(dialog, "Alder");
}

TEST_F(AValueDialog, EmptiesTheBoxByTheEmptyLineOfWood) {
  ValueDialog dialog = Of(Parameter::TypeOfWood);
  Select(dialog, "Alder");
  Select(dialog, "");
  dialog.PressOk();
  ExpectOpen(dialog, "");
}

// ---- cancel

TEST_F(AValueDialog, GivesNothingWhenItIsCancelled) {
  for (const Parameter parameter : {Parameter::BandLength, Parameter::ToothStyle}) {
    ValueDialog dialog = Of(parameter);
    dialog.SelectEntry(2);
    dialog.PressCancel();
    ExpectAccepted(dialog, "");
  }
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(AValueDialog, GivesNothingWhenItIsCancelledAfterAWrongEquation) {
  ValueDialog dialog = Of(Parameter::Pitch);
  dialog.Type("wrong");
  dialog.PressOk();
  dialog.PressCancel();
  ExpectAccepted(dialog, "");
}

// ---- hints

TEST(HintOfAValueDialog, SaysWhatAControlIsFor) {
  EXPECT_EQ(ValueDialog::Hint("cmdOk"), "Click to accept value in text box.");
  EXPECT_EQ(ValueDialog::Hint("cmdCancel"), "Click to cancel.");
  EXPECT_EQ(ValueDialog::Hint("ListValues"), "Click to select value.");
  EXPECT_EQ(ValueDialog::Hint("txtValue"), "Enter value here. Press enter to calculate.");
  for (const char* other : {"", "cmdHelp", "lblDisplay", "PicDisplay", "frmCDialog"}) {
    EXPECT_EQ(ValueDialog::Hint(other), "") << other;
  }
}

}  // namespace
}  // namespace tarnwick
