#include "shell/OptionsDialog.h"

#include <gtest/gtest.h>

#include "platform/CollectedMessages.h"
#include "support/ScriptedColorDialog.h"

namespace tarnwick {
namespace {

using NumberBox = OptionsDialog::NumberBox;

constexpr Colour Orange = Rgb(255, 128, 0);

class Options : public testing::Test {
 protected:
  OptionsDialog Open() {
    return {InForce, [this] { ++Shown; }, Say};
  }

  /// What a box reads after `text` was typed into it and it was left.
  std::string Left(OptionsDialog& dialog, NumberBox box, const char* text) {
    dialog.TypeNumber(box, text);
    dialog.LeaveNumber(box);
    return dialog.NumberText(box);
  }

  Config InForce;
  CollectedMessages Say;
  test::ScriptedColorDialog Colors;
  int Shown = 0;  // how often settings were brought into force
};

// ---- copy, Apply, OK, Cancel

TEST_F(Options, OpenOnTheSettingsInForce) {
  InForce.Calculation.DecimalPlaces = 7;
  InForce.Calculation.DisplayPlaces = 2;
  InForce.Display.DisplayScale = 1.25;
  InForce.Customer.City = "Tarnwick";
  const OptionsDialog dialog = Open();
  EXPECT_EQ(dialog.NumberText(NumberBox::DecimalPlaces), "7");
  EXPECT_EQ(dialog.NumberText(NumberBox::DisplayPlaces), "2");
  EXPECT_EQ(dialog.NumberText(NumberBox::DisplayScale), "1.25");
  EXPECT_EQ(dialog.Shown().Customer.City, "Tarnwick");
  EXPECT_FALSE(dialog.ApplyEnabled());
  EXPECT_TRUE(dialog.IsOpen());
}

/// One change of each setting, and whether a record of settings has it.
struct Changed {
  const char* Name;
  void (*Make)(OptionsDialog&, ColorDialog&);
  bool (*IsIn)(const Config&);
  friend void PrintTo(const Changed& row, std::ostream* out) { *out << row.Name; }
};

template <Colour DisplaySettings::*Which>
Changed ColourRow(const char* name) {
  return {name, [](OptionsDialog& dialog, ColorDialog& colours) { dialog.PickColour(Which, colours); },
          [](const Config& config) { return config.Display.*Which == Orange; }};
}

template <std::string CustomerLines::*Line>
Changed CustomerRow(const char* name) {
  return {name, [](OptionsDialog& dialog, ColorDialog&) { dialog.SetCustomerLine(Line, " Mill 7 "); },
          [](const Config& config) { return config.Customer.*Line == " Mill 7 "; }};
}

const Changed Rows[] = {
    ColourRow<&DisplaySettings::BackGroundColor>("BackGroundColor"),
    ColourRow<&DisplaySettings::SawLineColor>("SawLineColor"),
    ColourRow<&DisplaySettings::TextColor>("TextColor"),
    ColourRow<&DisplaySettings::CenterLineColor>("CenterLineColor"),
    ColourRow<&DisplaySettings::ZoomWindowColor>("ZoomWindowColor"),
    {"DxfSaveColor", [](OptionsDialog& d, ColorDialog&) { d.SetDxfSaveColor(9); },
     [](const Config& c) { return c.Calculation.DxfSaveColor == 9; }},
    {"MainImpMetric", [](OptionsDialog& d, ColorDialog&) { d.SetMetric(true); },
     [](const Config& c) { return c.MainImpMetric == 1; }},
    {"PrintPowerReq", [](OptionsDialog& d, ColorDialog&) { d.SetPrintPowerReq(true); },
     [](const Config& c) { return c.PrintPowerReq; }},
    {"PrintLineThick", [](OptionsDialog& d, ColorDialog&) { d.SetPrintLineThick(20); },
     [](const Config& c) { return c.PrintLineThick == 20; }},
    {"MemorySize", [](OptionsDialog& d, ColorDialog&) { d.SetDxfPosition(7); },
     [](const Config& c) { return c.Calculation.MemorySize == 512000; }},
    {"QuickClick", [](OptionsDialog& d, ColorDialog&) { d.TickQuickClick(true); },
     [](const Config& c) { return !c.QuickClick; }},
    {"DecimalPlaces", [](OptionsDialog& d, ColorDialog&) { d.TypeNumber(NumberBox::DecimalPlaces, "8"); },
     [](const Config& c) { return c.Calculation.DecimalPlaces == 8; }},
    {"DisplayPlaces", [](OptionsDialog& d, ColorDialog&) { d.TypeNumber(NumberBox::DisplayPlaces, "4"); },
     [](const Config& c) { return c.Calculation.DisplayPlaces == 4; }},
    {"DisplayScale", [](OptionsDialog& d, ColorDialog&) { d.TypeNumber(NumberBox::DisplayScale, "0.9"); },
     [](const Config& c) { return c.Display.DisplayScale == 0.9; }},
    CustomerRow<&CustomerLines::Name>("Name"),
    CustomerRow<&CustomerLines::Address>("Address"),
    CustomerRow<&CustomerLines::City>("City"),
    CustomerRow<&CustomerLines::Province>("Province"),
    CustomerRow<&CustomerLines::Country>("Country"),
    CustomerRow<&CustomerLines::PostalCode>("PostalCode"),
    CustomerRow<&CustomerLines::Phone>("Phone"),
    CustomerRow<&CustomerLines::Fax>("Fax"),
    CustomerRow<&CustomerLines::Email>("Email"),
};

class EachOption : public Options, public testing::WithParamInterface<Changed> {
 protected:
  OptionsDialog OpenAndChange() {
    Colors.Answers = {Orange};
    OptionsDialog dialog = Open();
    GetParam().Make(dialog, Colors);
    return dialog;
  }
  [[nodiscard]] bool IsInForce() const { return GetParam().IsIn(InForce); }
};

TEST_P(EachOption, IsChangedInTheCopyAlone) {
  const OptionsDialog dialog = OpenAndChange();
  EXPECT_TRUE(dialog.ApplyEnabled());
  EXPECT_FALSE(IsInForce());
  EXPECT_EQ(Shown, 0);
}

TEST_P(EachOption, ComesIntoForceByApply) {
  OptionsDialog dialog = OpenAndChange();
  dialog.PressApply();
  EXPECT_TRUE(IsInForce());
  EXPECT_EQ(Shown, 1);
  EXPECT_FALSE(dialog.ApplyEnabled());
  EXPECT_TRUE(dialog.IsOpen());
}

TEST_P(EachOption, ComesIntoForceByOk) {
  OptionsDialog dialog = OpenAndChange();
  dialog.PressOk();
  EXPECT_TRUE(IsInForce());
  EXPECT_EQ(Shown, 1);
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_P(EachOption, IsForgottenByCancel) {
  OptionsDialog dialog = OpenAndChange();
  dialog.PressCancel();
  EXPECT_FALSE(IsInForce());
  EXPECT_EQ(Shown, 0);
  EXPECT_FALSE(dialog.IsOpen());
}

TEST_P(EachOption, IsKeptByCancelAfterApply) {
  OptionsDialog dialog = OpenAndChange();
  dialog.PressApply();
  dialog.PressCancel();
  EXPECT_TRUE(IsInForce());
  EXPECT_EQ(Shown, 1);
}

INSTANTIATE_TEST_SUITE_P(Settings, EachOption, testing::ValuesIn(Rows),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(Options, AreNotAppliedByOkWithoutAChange) {
  OptionsDialog dialog = Open();
  dialog.PressOk();
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(Shown, 0);
}

TEST_F(Options, AreNotAppliedTwice) {
  OptionsDialog dialog = Open();
  dialog.SetMetric(true);
  dialog.PressApply();
  dialog.PressOk();
  EXPECT_EQ(Shown, 1);
}

TEST_F(Options, AreNotChangedByWhatTheyAreAlready) {
  OptionsDialog dialog = Open();
  Colors.Answers = {InForce.Display.SawLineColor};
  dialog.PickColour(&DisplaySettings::SawLineColor, Colors);
  dialog.SetMetric(false);
  dialog.SetPrintLineThick(1);
  dialog.SetDxfPosition(dialog.DxfPosition());
  dialog.SetDxfSaveColor(5);
  dialog.TypeNumber(NumberBox::DecimalPlaces, "5");
  EXPECT_FALSE(dialog.ApplyEnabled());
}

TEST_F(Options, LeaveTheOtherSettingsAlone) {
  InForce.CurrentSawDir = "/saws/";
  InForce.Calculation.TeethDirection = RightToLeft;
  InForce.GulletFeedIndex = 0.5;
  OptionsDialog dialog = Open();
  dialog.SetMetric(true);
  dialog.PressOk();
  EXPECT_EQ(InForce.CurrentSawDir, "/saws/");
  EXPECT_EQ(InForce.Calculation.TeethDirection, RightToLeft);
  EXPECT_EQ(InForce.GulletFeedIndex, 0.5);
  EXPECT_EQ(InForce.MainImpMetric, 1);
}

// ---- colours

TEST_F(Options, OpenTheColourDialogOnThePresentColour) {
  OptionsDialog dialog = Open();
  Colors.Answers = {Orange, std::nullopt};
  dialog.PickColour(&DisplaySettings::TextColor, Colors);
  dialog.PickColour(&DisplaySettings::TextColor, Colors);
  EXPECT_EQ(Colors.OpenedOn, (std::vector<Colour>{White, Orange}));
  EXPECT_EQ(dialog.Shown().Display.TextColor, Orange);
}

TEST_F(Options, KeepAColourWhenItsDialogIsCancelled) {
  OptionsDialog dialog = Open();
  dialog.PickColour(&DisplaySettings::TextColor, Colors);
  EXPECT_EQ(dialog.Shown().Display.TextColor, White);
  EXPECT_FALSE(dialog.ApplyEnabled());
}

TEST_F(Options, TakeABlackLine) {  // it is replaced when the settings are loaded
  OptionsDialog dialog = Open();
  Colors.Answers = {Black};
  dialog.PickColour(&DisplaySettings::SawLineColor, Colors);
  dialog.PressOk();
  EXPECT_EQ(InForce.Display.SawLineColor, Black);
}

// ---- quick click

TEST_F(Options, TurnQuickClickOffAndOnByTheSameBox) {
  OptionsDialog dialog = Open();
  EXPECT_EQ(dialog.QuickClickCaption(), "Turn Quick Click Display Off");
  EXPECT_EQ(dialog.QuickClickHint(), "Check to turn off quick click display.");
  EXPECT_FALSE(dialog.QuickClickTicked());
  dialog.TickQuickClick(true);
  EXPECT_TRUE(dialog.QuickClickTicked());
  EXPECT_EQ(dialog.QuickClickCaption(), "Turn Quick Click Display Off");
  dialog.PressApply();
  EXPECT_FALSE(InForce.QuickClick);
  EXPECT_FALSE(dialog.QuickClickTicked());
  EXPECT_EQ(dialog.QuickClickCaption(), "Turn Quick Click Display On");
  EXPECT_EQ(dialog.QuickClickHint(), "Check to turn on quick click display.");
  dialog.TickQuickClick(true);
  dialog.PressApply();
  EXPECT_TRUE(InForce.QuickClick);
}

TEST_F(Options, KeepQuickClickWhenTheTickIsTakenBack) {
  OptionsDialog dialog = Open();
  dialog.TickQuickClick(true);
  dialog.TickQuickClick(false);
  dialog.PressOk();
  EXPECT_TRUE(InForce.QuickClick);
}

// ---- the size of drawing files

struct DxfRow {
  int Position;
  std::int32_t MemorySize;
  const char* Number;
};
constexpr DxfRow DxfRows[] = {{1, 8000, "1000"},   {2, 16000, "2000"},   {3, 32000, "4000"},
                              {4, 64000, "8000"},  {5, 128000, "16000"}, {6, 256000, "32000"},
                              {7, 512000, "64000"}};

TEST_F(Options, SetTheDxfSizeByTheBar) {
  InForce.Calculation.MemorySize = 9000;
  OptionsDialog dialog = Open();
  for (const DxfRow& row : DxfRows) {
    dialog.SetDxfPosition(row.Position);
    EXPECT_EQ(dialog.Shown().Calculation.MemorySize, row.MemorySize);
    EXPECT_EQ(dialog.DxfNumberText(), std::string("Number of lines, arcs and circles\n") + row.Number);
  }
}

TEST_F(Options, OpenTheBarAtTheDxfSize) {
  for (const DxfRow& row : DxfRows) {
    InForce.Calculation.MemorySize = row.MemorySize;
    EXPECT_EQ(Open().DxfPosition(), row.Position);
  }
}

TEST_F(Options, OpenTheBarBelowASizeOfNoPosition) {
  InForce.Calculation.MemorySize = 100000;
  const OptionsDialog dialog = Open();
  EXPECT_EQ(dialog.DxfPosition(), 4);
  EXPECT_EQ(dialog.Shown().Calculation.MemorySize, 100000);
  EXPECT_EQ(dialog.DxfNumberText(), "Number of lines, arcs and circles\n12500");
}

// ---- numbers

struct NumberRow {
  NumberBox Box;
  const char* Typed;
  const char* Read;
};

TEST_F(Options, BringANumberIntoItsRangeWhenItsBoxIsLeft) {
  for (const NumberRow& row : {
           NumberRow{NumberBox::DecimalPlaces, "3", "4"},
           NumberRow{NumberBox::DecimalPlaces, "4", "4"},
           NumberRow{NumberBox::DecimalPlaces, "10", "10"},
           NumberRow{NumberBox::DecimalPlaces, "11", "10"},
           NumberRow{NumberBox::DecimalPlaces, "-7", "4"},
           NumberRow{NumberBox::DecimalPlaces, "", "4"},  // nothing is 0
           NumberRow{NumberBox::DecimalPlaces, "99999999999", "10"},
           NumberRow{NumberBox::DecimalPlaces, "10/0", "10"},
           NumberRow{NumberBox::DecimalPlaces, "-10/0", "4"},
           NumberRow{NumberBox::DecimalPlaces, "2*3", "6"},
           NumberRow{NumberBox::DecimalPlaces, "6,7", "7"},
           NumberRow{NumberBox::DisplayPlaces, "1", "2"},
           NumberRow{NumberBox::DisplayPlaces, "2", "2"},
           NumberRow{NumberBox::DisplayPlaces, "5", "5"},
           NumberRow{NumberBox::DisplayPlaces, "6", "5"},
           NumberRow{NumberBox::DisplayScale, "0.5", "0.5"},
           NumberRow{NumberBox::DisplayScale, "1.5", "1.5"},
           NumberRow{NumberBox::DisplayScale, "1.6", "1"},
           NumberRow{NumberBox::DisplayScale, "0.49", "1"},
           NumberRow{NumberBox::DisplayScale, "1/2", "0.5"},
           NumberRow{NumberBox::DisplayScale, "1 1/4", "1.25"},
           NumberRow{NumberBox::DisplayScale, "0/0", "1"},
           NumberRow{NumberBox::DisplayScale, "1/0", "1"},
       }) {
    OptionsDialog dialog = Open();
    EXPECT_EQ(Left(dialog, row.Box, row.Typed), row.Read) << row.Typed;
    EXPECT_TRUE(dialog.ApplyEnabled()) << row.Typed;
  }
  EXPECT_TRUE(Say.Shown.empty());
}

TEST_F(Options, ShowWhatIsTypedUntilTheBoxIsLeft) {
  OptionsDialog dialog = Open();
  dialog.TypeNumber(NumberBox::DecimalPlaces, "3");
  EXPECT_EQ(dialog.NumberText(NumberBox::DecimalPlaces), "3");
  EXPECT_EQ(dialog.Shown().Calculation.DecimalPlaces, 5);
  EXPECT_TRUE(dialog.ApplyEnabled());
}

TEST_F(Options, PutARefusedNumberBack) {
  OptionsDialog dialog = Open();
  EXPECT_EQ(Left(dialog, NumberBox::DecimalPlaces, "many"), "5");
  EXPECT_EQ(Left(dialog, NumberBox::DecimalPlaces, "6"), "6");
  EXPECT_EQ(Left(dialog, NumberBox::DecimalPlaces, "(6"), "6");
  EXPECT_EQ(Say.Texts(), std::vector<std::string>(2, "Not a valid equation!"));
}

TEST_F(Options, ReadABoxOnce) {
  OptionsDialog dialog = Open();
  dialog.TypeNumber(NumberBox::DisplayScale, "x");
  EXPECT_FALSE(dialog.LeaveNumber(NumberBox::DisplayScale));
  EXPECT_TRUE(dialog.LeaveNumber(NumberBox::DisplayScale));
  EXPECT_EQ(Say.Shown.size(), 1U);
}

TEST_F(Options, StayOpenWhenANumberIsRefused) {
  for (const bool ok : {true, false}) {
    OptionsDialog dialog = Open();
    dialog.TypeNumber(NumberBox::DisplayScale, "x");
    if (ok)
      dialog.PressOk();
    else
      dialog.PressApply();
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.NumberText(NumberBox::DisplayScale), "1");
  }
  EXPECT_EQ(Shown, 0);
  EXPECT_EQ(Say.Texts(), std::vector<std::string>(2, "Not a valid equation!"));
}

TEST_F(Options, SayNothingOfARefusedNumberOnCancel) {
  OptionsDialog dialog = Open();
  dialog.TypeNumber(NumberBox::DisplayScale, "x");
  dialog.PressCancel();
  EXPECT_TRUE(Say.Shown.empty());
}

TEST_F(Options, KeepANumberThatIsLongerThanItsText) {
  InForce.Display.DisplayScale = 2.0 / 3;
  OptionsDialog dialog = Open();
  EXPECT_EQ(dialog.NumberText(NumberBox::DisplayScale), "0.666666666666667");
  dialog.LeaveNumber(NumberBox::DisplayScale);
  dialog.PressOk();
  EXPECT_EQ(Shown, 0);
  EXPECT_EQ(InForce.Display.DisplayScale, 2.0 / 3);
}

// ---- colours of drawing files

TEST(TheDxfColorChoice, GivesTheMarkedNumberByOkAlone) {
  DxfColorChoice choice(5);
  EXPECT_EQ(choice.Marked(), 5);
  choice.Mark(0);
  EXPECT_EQ(choice.Marked(), 0);
  EXPECT_EQ(choice.Chosen(), 5);
  choice.PressOk();
  EXPECT_EQ(choice.Chosen(), 0);
}

TEST(TheDxfPalette, HasTenColours) {
  const Colour colours[] = {Rgb(0, 0, 0),     Rgb(255, 0, 0), Rgb(255, 255, 0), Rgb(0, 255, 0),
                            Rgb(0, 255, 255), Rgb(0, 0, 255), Rgb(255, 0, 255), Rgb(255, 255, 255)};
  for (int number = 0; number < 8; ++number) EXPECT_EQ(DxfPaletteColour(number), colours[number]) << number;
  const Colour dark = DxfPaletteColour(8), light = DxfPaletteColour(9);
  EXPECT_TRUE(dark.Red() == dark.Green() && dark.Green() == dark.Blue());
  EXPECT_TRUE(light.Red() == light.Green() && light.Green() == light.Blue());
  EXPECT_LT(0, dark.Red());
  EXPECT_LT(dark.Red(), light.Red());
  EXPECT_LT(light.Red(), 255);
}

}  // namespace
}  // namespace tarnwick
