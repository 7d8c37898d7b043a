#include "power/PowerEditor.h"

#include <gtest/gtest.h>

#include <map>

#include "support/FieldChanges.h"
#include "support/PowerDesign.h"
#include "support/ScriptedDialogHost.h"
#include "support/ScriptedPowerHost.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using enum PowerBox;
using test::Cancels;
using test::ChangedFields;
using test::Enters;
using test::PowerDesign;
using Texts = std::vector<std::string>;
using TextOf = std::map<std::string, std::string>;

class PowerEditorTest : public testing::Test {
 protected:
  PowerEditorTest() {
    program_.Start();
    program_.Store.Written.clear();
  }

  void Open(const BandSaw& saw) { editor_.GetSawPowerData(saw); }

  void Accept(PowerBox box, std::string_view typed) {
    host_.Values.push_back(Enters(typed));
    editor_.Click(box);
  }

  /// The boxes that are not empty, by their names without "txt".
  TextOf Filled() const {
    TextOf filled;
    for (const PowerBoxRow& row : PowerEditorBoxes()) {
      if (!editor_.Text(row.Box).empty()) filled[std::string(row.Control.substr(3))] = editor_.Text(row.Box);
    }
    return filled;
  }

  /// The boxes that show something else now.
  TextOf ChangedSince(const TextOf& before) const {
    TextOf changed;
    for (const PowerBoxRow& row : PowerEditorBoxes()) {
      const std::string name(row.Control.substr(3));
      const auto found = before.find(name);
      const std::string old = found == before.end() ? std::string() : found->second;
      if (editor_.Text(row.Box) != old) changed[name] = editor_.Text(row.Box);
    }
    return changed;
  }

  double& Index() { return program_.Process.Design.Settings.GulletFeedIndex; }
  std::size_t SettingsWritten() { return program_.Store.Saved().size(); }

  test::TestProgram program_;
  test::ScriptedDialogHost host_;
  test::ScriptedPowerHost windows_;
  PowerEditor editor_{program_.Process, host_, windows_};
};

// ---- opening

TEST_F(PowerEditorTest, ShowsTheDesignAndWorksItsFiguresOut) {
  BandSaw saw = PowerDesign();
  saw.GulletInfo.Bite = 0.02496;
  Open(saw);
  EXPECT_EQ(Filled(), (TextOf{{"HPSawOD", " 5.000 ft"},
                              {"HPToothWidth", " 0.150 in"},
                              {"HPPlateThick", " 0.065 in"},
                              {"HPGulletArea", " 1.000 in²"},
                              {"AreaBelowTip", " 0.700 in²"},
                              {"Bite", " 0.025 in"},
                              {"RPMs", " 510 rpms"},
                              {"MaxDepth", " 10.000 in"},
                              {"FeedRate", " 100 fpm"},
                              {"SpecificEnergy", "Oak (White)"},
                              {"ToothPitch", " 2.000 in"},
                              {"SawVelocity", " 8011 fpm"},
                              {"SideClearance", " 0.043 in"},
                              {"Capacity", " 0.250 in²"},
                              {"HorsePower", " 62.500"},
                              {"MaxFeedRate", " 280 fpm"}}));
}

TEST_F(PowerEditorTest, ShowsOnlyThePitchOfABlankDesign) {
  Open({});
  EXPECT_EQ(Filled(), (TextOf{{"ToothPitch", " 0.000 in"}}));
}

TEST_F(PowerEditorTest, KeepsTheStoredBiteUntilSomethingChanges) {
  BandSaw saw = PowerDesign();
  saw.GulletInfo.Bite = 0.5;
  Open(saw);
  EXPECT_EQ(editor_.Text(Bite), " 0.500 in");
  EXPECT_EQ(editor_.Text(Capacity), " 5.000 in²");
  Accept(MaxDepth, "20");
  EXPECT_EQ(editor_.Text(Bite), " 0.025 in");
  EXPECT_EQ(editor_.Text(Capacity), " 0.499 in²");
}

TEST_F(PowerEditorTest, StoresTheFiveFiguresOfOpeningAndNothingElse) {
  const BandSaw saw = PowerDesign();
  Open(saw);
  EXPECT_EQ(
      ChangedFields(saw, editor_.Saw()),
      (std::set<std::string>{"DesignInfo.SawVelocity", "GeneralInfo.SideClear", "GeneralInfo.HorsePower",
                             "DesignInfo.MaxFeedRate"}));  // capacity is 0 yet
}

TEST_F(PowerEditorTest, ReplacesStaleFiguresAndEmptiesThoseThatComeOutAsZero) {
  BandSaw saw = PowerDesign();
  saw.GeneralInfo.ShaftSpeed = 0;
  saw.GeneralInfo.Kerf = 0.06;  // not wider than the plate
  saw.GeneralInfo.WoodType.Assign("Softwoods:");
  saw.DesignInfo.SawVelocity = 9000;
  saw.GeneralInfo.SideClear = 0.05;
  saw.GeneralInfo.HorsePower = 77;
  saw.DesignInfo.MaxFeedRate = 300;
  Open(saw);
  for (const PowerBox box : {RPMs, SawVelocity, SideClearance, HorsePower, MaxFeedRate}) {
    EXPECT_EQ(editor_.Text(box), "") << static_cast<int>(box);
  }
  EXPECT_EQ(editor_.Saw().DesignInfo.SawVelocity, 0);
  EXPECT_EQ(editor_.Saw().GeneralInfo.HorsePower, 0);
}

TEST_F(PowerEditorTest, ShowsNegativeMeasuresButNoNegativeSpeedOrFeed) {
  BandSaw saw = PowerDesign();
  saw.MachineInfo.WheelDia = -5;
  saw.GeneralInfo.ShaftSpeed = -510;
  saw.GeneralInfo.FeedRate = -100;
  Open(saw);
  EXPECT_EQ(editor_.Text(HPSawOD), " -5.000 ft");
  EXPECT_EQ(editor_.Text(RPMs), "");
  EXPECT_EQ(editor_.Text(FeedRate), "");
}

TEST_F(PowerEditorTest, ShowsMetricUnitsToAUserOfThem) {
  program_.Process.Design.ImpMetric = Metric;
  Open(PowerDesign());
  EXPECT_EQ(editor_.Text(HPSawOD), " 1.524 m");
  EXPECT_EQ(editor_.Text(HPToothWidth), " 3.810 mm");
  EXPECT_EQ(editor_.Text(HPGulletArea), " 6.452 cm²");
  EXPECT_EQ(editor_.Text(AreaBelowTip), " 4.516 cm²");
  EXPECT_EQ(editor_.Text(MaxDepth), " 25.400 cm");
  EXPECT_EQ(editor_.Text(FeedRate), " 30 mpm");
  EXPECT_EQ(editor_.Text(RPMs), " 510 rpms");
}

TEST_F(PowerEditorTest, ShowsTheWoodAsAReadableText) {
  BandSaw saw = PowerDesign();
  saw.GeneralInfo.WoodType.Assign("  Fr\xEAne  ");  // the bytes of a design
  Open(saw);
  EXPECT_EQ(editor_.Text(SpecificEnergy), "Frêne");
}

// ---- clicks on boxes

TEST_F(PowerEditorTest, AsksForTheFourCuttingConditionsOnly) {
  Open(PowerDesign());
  for (const PowerBoxRow& row : PowerEditorBoxes()) {
    if (row.Asked) host_.Values.push_back(Cancels());
    editor_.Click(row.Box);
  }
  for (const PowerBox box : {Centers, Length, NumTeeth}) editor_.Click(box);  // no boxes of this window
  EXPECT_EQ(host_.Titles, (Texts{"Wheel RPMs", "Maximum Depth of Cut", "Feed Rate", "Type of Wood"}));
}

TEST_F(PowerEditorTest, ChangesNothingWhenTheUserCancels) {
  Open(PowerDesign());
  const TextOf before = Filled();
  const BandSaw saw = editor_.Saw();
  for (const PowerBox box : {RPMs, MaxDepth, FeedRate, SpecificEnergy}) {
    host_.Values.push_back(Cancels());
    editor_.Click(box);
  }
  EXPECT_EQ(ChangedSince(before), TextOf());
  EXPECT_EQ(ChangedFields(saw, editor_.Saw()), std::set<std::string>());
}

struct ClickRow {
  const char* Name;
  PowerBox Box;
  const char* Typed;
  TextOf Changed;
  friend void PrintTo(const ClickRow& row, std::ostream* out) { *out << row.Name; }
};

class PowerEditorClick : public PowerEditorTest, public testing::WithParamInterface<ClickRow> {};

TEST_P(PowerEditorClick, RecomputesWhatDependsOnTheBox) {
  BandSaw saw = PowerDesign();
  saw.GulletInfo.Bite = 0.02496;
  Open(saw);
  const TextOf before = Filled();
  Accept(GetParam().Box, GetParam().Typed);
  EXPECT_EQ(ChangedSince(before), GetParam().Changed);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, PowerEditorClick,
    testing::Values(
        ClickRow{"Speed",
                 RPMs,
                 "600",
                 {{"RPMs", " 600 rpms"},
                  {"SawVelocity", " 9425 fpm"},
                  {"Bite", " 0.021 in"},
                  {"Capacity", " 0.212 in²"},
                  {"MaxFeedRate", " 330 fpm"}}},
        ClickRow{"NoSpeed",
                 RPMs,
                 "0",
                 {{"RPMs", ""}, {"SawVelocity", ""}, {"Bite", ""}, {"Capacity", ""}, {"MaxFeedRate", ""}}},
        ClickRow{"Depth",
                 MaxDepth,
                 "12 1/2 in",
                 {{"MaxDepth", " 12.500 in"},
                  {"Capacity", " 0.312 in²"},
                  {"HorsePower", " 78.125"},
                  {"MaxFeedRate", " 224 fpm"}}},
        ClickRow{"NoDepth",
                 MaxDepth,
                 "0",
                 {{"MaxDepth", ""}, {"Capacity", ""}, {"HorsePower", ""}, {"MaxFeedRate", ""}}},
        ClickRow{"Feed",
                 FeedRate,
                 "200",
                 {{"FeedRate", " 200 fpm"},
                  {"Bite", " 0.050 in"},
                  {"Capacity", " 0.499 in²"},
                  {"HorsePower", " 125.000"}}},
        ClickRow{
            "NoFeed", FeedRate, "0", {{"FeedRate", ""}, {"Bite", ""}, {"Capacity", ""}, {"HorsePower", ""}}},
        ClickRow{
            "Wood", SpecificEnergy, "Redwood", {{"SpecificEnergy", "Redwood"}, {"HorsePower", " 39.583"}}},
        ClickRow{"UnknownWood", SpecificEnergy, "teak", {{"SpecificEnergy", "teak"}, {"HorsePower", ""}}},
        ClickRow{"BlankWood", SpecificEnergy, "  ", {{"SpecificEnergy", ""}, {"HorsePower", ""}}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(PowerEditorTest, TakesAWoodWithoutTouchingTheBite) {
  BandSaw saw = PowerDesign();
  saw.GulletInfo.Bite = 0.5;
  Open(saw);
  Accept(SpecificEnergy, "Redwood");
  EXPECT_EQ(editor_.Text(Bite), " 0.500 in");
}

TEST_F(PowerEditorTest, HasHorsePowerButNoBiteForAFeedRateWithoutSpeed) {
  BandSaw saw = PowerDesign();
  saw.GeneralInfo.ShaftSpeed = 0;
  saw.GeneralInfo.FeedRate = 0;
  Open(saw);
  Accept(FeedRate, "100");
  EXPECT_EQ(editor_.Text(HorsePower), " 62.500");
  for (const PowerBox box : {Bite, Capacity, MaxFeedRate}) EXPECT_EQ(editor_.Text(box), "");
}

TEST_F(PowerEditorTest, ShowsWhatWasJustTypedBelowZeroToo) {
  Open(PowerDesign());
  Accept(FeedRate, "-20");
  EXPECT_EQ(editor_.Text(FeedRate), " -20 fpm");
}

TEST_F(PowerEditorTest, RefusesAHeadingAsWood) {
  Open(PowerDesign());
  host_.Values.push_back([](ValueDialog& dialog) {
    dialog.SelectEntry(0);
    dialog.PressOk();
    EXPECT_TRUE(dialog.IsOpen());
    dialog.PressCancel();
  });
  editor_.Click(SpecificEnergy);
  EXPECT_EQ(editor_.Text(SpecificEnergy), "Oak (White)");
}

TEST_F(PowerEditorTest, TakesTheDepthAsTypedInMetricToo) {
  program_.Process.Design.ImpMetric = Metric;
  Open(PowerDesign());
  Accept(MaxDepth, "20");
  EXPECT_EQ(editor_.Saw().GeneralInfo.DepthOfCut, 20);
  EXPECT_EQ(editor_.Text(MaxDepth), " 50.800 cm");
}

// ---- feed index

TEST_F(PowerEditorTest, OpensOnTheEntryOfTheFeedIndex) {
  Open(PowerDesign());
  EXPECT_EQ(editor_.FeedIndexEntry(), 12U);
  EXPECT_EQ(FeedIndexEntries()[12], "70 Percent");
}

TEST_F(PowerEditorTest, ChoosesNoEntryForAnIndexBetweenThemAndUsesIt) {
  Index() = 0.72;
  Open(PowerDesign());
  EXPECT_EQ(editor_.FeedIndexEntry(), std::nullopt);
  EXPECT_EQ(editor_.Text(AreaBelowTip), " 0.720 in²");
  EXPECT_EQ(Index(), 0.72);
}

TEST_F(PowerEditorTest, ChangesActualCapacityAndHighestFeedWithTheFeedIndexOnly) {
  Open(PowerDesign());
  const TextOf before = Filled();
  editor_.SelectFeedIndex(8);
  EXPECT_EQ(ChangedSince(before), (TextOf{{"AreaBelowTip", " 0.500 in²"}, {"MaxFeedRate", " 200 fpm"}}));
  EXPECT_EQ(Index(), 0.5);
  EXPECT_EQ(editor_.FeedIndexEntry(), 8U);
}

TEST_F(PowerEditorTest, TakesNoEntryThatTheListDoesNotHave) {
  Open(PowerDesign());
  editor_.SelectFeedIndex(19);
  EXPECT_EQ(Index(), 0.7);
  EXPECT_EQ(editor_.FeedIndexEntry(), 12U);
}

TEST_F(PowerEditorTest, UpdatesWithoutEmptyingTheBoxesOfMeasures) {
  Open(PowerDesign());
  Accept(FeedRate, "-20");
  editor_.SelectFeedIndex(0);
  EXPECT_EQ(editor_.Text(FeedRate), " -20 fpm");  // not set, so its box is left alone
  EXPECT_EQ(editor_.Text(SawVelocity), " 8011 fpm");
  EXPECT_EQ(editor_.Text(SideClearance), " 0.043 in");
}

// ---- estimates

TEST_F(PowerEditorTest, OffersTenPercents) {
  EXPECT_EQ(PowerEditor::PercentEntries(),
            (Texts{"5 Percent", "10 Percent", "15 Percent", "20 Percent", "25 Percent", "30 Percent",
                   "35 Percent", "40 Percent", "45 Percent", "50 Percent"}));
}

struct PercentRow {
  const char* Typed;
  const char* Shown;
};

class PowerEditorPercent : public PowerEditorTest, public testing::WithParamInterface<PercentRow> {};

TEST_P(PowerEditorPercent, BecomesAWholeNumberWhenTheBoxIsLeft) {
  editor_.TypePercent(GetParam().Typed);
  EXPECT_EQ(editor_.PercentText(), GetParam().Typed);
  editor_.LeavePercent();
  EXPECT_EQ(editor_.PercentText(), GetParam().Shown);
  editor_.LeavePercent();
  EXPECT_EQ(editor_.PercentText(), GetParam().Shown);
}

INSTANTIATE_TEST_SUITE_P(Texts, PowerEditorPercent,
                         testing::Values(PercentRow{"", ""}, PercentRow{"10 Percent", "10 Percent"},
                                         PercentRow{"12.5", "12 Percent"}, PercentRow{" 7", "7 Percent"},
                                         PercentRow{"9.99 percent", "9 Percent"},
                                         PercentRow{"1 5", "15 Percent"}, PercentRow{"0.9", "0 Percent"},
                                         PercentRow{"-0.5", "0 Percent"}, PercentRow{"-3.5", "-3 Percent"},
                                         PercentRow{"much", "0 Percent"}, PercentRow{" ", "0 Percent"},
                                         PercentRow{"250", "250 Percent"}));

TEST_F(PowerEditorTest, AsksForAPercentFirst) {
  Open(PowerDesign());
  for (const char* typed : {"", "0 Percent", "-5", "0.5", "some"}) {
    program_.Say.Shown.clear();
    editor_.TypePercent(typed);
    editor_.PressView();
    ASSERT_EQ(program_.Say.Shown.size(), 1U) << typed;
    EXPECT_EQ(program_.Say.Shown[0].Title, "Select Percent");
    EXPECT_EQ(program_.Say.Shown[0].Text, "You must first select a percent from the above list.");
    EXPECT_EQ(program_.Say.Shown[0].Shown, Icon::Information);
    EXPECT_EQ(program_.Say.Shown[0].Offer, Buttons::Ok);
  }
  EXPECT_EQ(windows_.Shown, Texts());
}

TEST_F(PowerEditorTest, ShowsTheEstimatesOfWhatStandsInItsBoxes) {
  Open(PowerDesign());
  Accept(FeedRate, "200");
  editor_.SelectFeedIndex(8);
  editor_.TypePercent("10.9");
  windows_.Estimates.push_back([](PowerEstimateList& list) {
    EXPECT_EQ(list.Heading(), "Power estimates based on increasing feedrate by 10 percent.");
    EXPECT_EQ(list.PaperHeading(), "Estimates for bandsaw based on increasing feedrate by 10 percent");
    const PowerLines lines = list.Lines();
    ASSERT_EQ(lines.size(), 71U);
    EXPECT_EQ(lines[9], (PowerLine{PowerLine::Role::Figure, "Feed Rate:", " 200 fpm"}));
    EXPECT_EQ(lines[27], (PowerLine{PowerLine::Role::Figure, "Feed Rate:", " 220 fpm", true}));
    EXPECT_EQ(lines[15].Text, " 50 Percent");
    list.PressOk();
    EXPECT_FALSE(list.IsOpen());
  });
  editor_.PressView();
  EXPECT_EQ(editor_.PercentText(), "10 Percent");
  EXPECT_EQ(windows_.Shown, Texts{"frmPowerEst"});
  EXPECT_TRUE(editor_.IsOpen());
}

// ---- the end

TEST_F(PowerEditorTest, GivesTheRecordBackOnOkWithoutWritingSettings) {
  Open(PowerDesign());
  editor_.PressOk();
  EXPECT_FALSE(editor_.IsOpen());
  EXPECT_TRUE(editor_.IsAccepted());
  EXPECT_EQ(SettingsWritten(), 0U);
}

TEST_F(PowerEditorTest, WritesTheSettingsOnCancelAndKeepsTheNewFeedIndex) {
  Open(PowerDesign());
  editor_.SelectFeedIndex(0);
  editor_.PressCancel();
  EXPECT_FALSE(editor_.IsOpen());
  EXPECT_FALSE(editor_.IsAccepted());
  EXPECT_EQ(Index(), 0.1);
  const auto& saved = program_.Store.Saved();
  EXPECT_NE(std::find(saved.begin(), saved.end(), test::MemoryStore::Setting("GulletFeedIndex", " .1")),
            saved.end());
}

}  // namespace
}  // namespace tarnwick
