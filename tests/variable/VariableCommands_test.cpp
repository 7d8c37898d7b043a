#include "variable/VariableCommands.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "dxf/modDXF.h"
#include "support/EditorsTest.h"
#include "support/FieldChanges.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::Told;
using Names = std::set<std::string>;

class VariableCommanding : public test::EditorsTest {
 protected:
  void OpenPanel() {
    commands_.OpenVariable();
    ASSERT_EQ(view_.Current, Panel::Variable);
    static_cast<void>(view_.Log());
  }

  void ExpectRefusal(const std::string& title, const std::string& text) {
    commands_.OpenVariable();
    ASSERT_EQ(program_.Say.Shown.size(), 1u);
    const tarnwick::Box& box = program_.Say.Shown[0];
    EXPECT_EQ(box.Title, title);
    EXPECT_EQ(box.Text, text);
    EXPECT_EQ(box.Offer, Buttons::Ok);
    EXPECT_EQ(view_.Log(), Told{});
    EXPECT_FALSE(commands_.Values().IsFilled);
  }

  void ExpectRefusal(const std::string& text) { ExpectRefusal("Tarnwick", text); }

  void OpenTeeth(std::int16_t teeth) {
    BandSaw saw = test::PlainDesign();
    saw.NumTeeth = teeth;
    Open(saw);
  }

  std::string Drawing() const { return DxfText(design_.Lines, design_.Settings.Calculation).value_or(""); }

  VariableCommands commands_{program_.Process, host_, view_};
};

using VariableOpening = VariableCommanding;
using VariableAsking = VariableCommanding;
using VariableLeaving = VariableCommanding;
using VariableControls = VariableCommanding;
using VariableEmptying = VariableCommanding;
using VariableFollowing = VariableCommanding;

// ---- opening

TEST_F(VariableOpening, FillsThePanelAndShowsIt) {
  commands_.OpenVariable();
  EXPECT_EQ(view_.Log(), (Told{"FillBoxes", "ShowPanel 3"}));
  EXPECT_TRUE(program_.Say.Shown.empty());
  EXPECT_EQ(commands_.Values().SegmentTeeth, 3);
}

TEST_F(VariableOpening, TakesTheBackupBeforeTheLengthOfTheSegmentIsStored) {
  OpenPanel();
  EXPECT_EQ(ChangedFields(design_.SawEdit, design_.Saw), Names{"DesignInfo.SegmentLength"});
  EXPECT_EQ(ChangedFields(design_.SawSaved, design_.SawEdit), Names{});
}

TEST_F(VariableOpening, NeedsTeeth) {
  Open(BandSaw{});
  ExpectRefusal("Variable Pitch", "Bandsaw must have teeth before adjusting pitch!");
}

TEST_F(VariableOpening, NeedsTeethBeforeItAsksAboutChanges) {
  design_.Saw = {};
  ExpectRefusal("Variable Pitch", "Bandsaw must have teeth before adjusting pitch!");
}

TEST_F(VariableOpening, NeedsACountThatDivides) {
  OpenTeeth(121);
  ExpectRefusal("Number of teeth must be divisible by 3, 4, or 5.");
  EXPECT_EQ(ChangedFields(design_.SawEdit, design_.Saw), Names{});
}

TEST_F(VariableOpening, TakesACountThatOnlySevenDivides) {
  OpenTeeth(98);
  OpenPanel();
  EXPECT_EQ(commands_.Values().SegmentTeeth, 7);
}

TEST_F(VariableOpening, IsNotForNarrowTeeth) {
  Open(test::PlainDesign(NarrowStyle));
  ASSERT_NE(design_.Saw.ContainsInfo.Teeth, False);
  ExpectRefusal("Variable pitch not available with the Narrow style tooth shape.");
}

TEST_F(VariableOpening, IsNotForOTeeth) {
  BandSaw saw = test::PlainDesign(OShape);
  saw.GulletInfo.Radius1 = 0.3;
  saw.GulletInfo.Width = 0.8;
  Open(saw);
  ASSERT_NE(design_.Saw.ContainsInfo.Teeth, False);
  ExpectRefusal("Variable pitch not available with the O shape tooth shape.");
}

TEST_F(VariableOpening, IsNotForABandWithoutAStyle) {
  design_.Saw.ToothStyle = design_.SawEdit.ToothStyle = NoStyle;
  ExpectRefusal("Variable pitch not available with this tooth shape.");
}

TEST_F(VariableOpening, StopsWhenThePanelShowsAlready) {
  OpenPanel();
  design_.SawEdit = design_.Saw;
  commands_.OpenVariable();
  EXPECT_EQ(view_.Log(), Told{});
}

TEST_F(VariableOpening, AsksAboutThePanelThatShowsAheadOfTheGate) {
  view_.Current = Panel::Variable;
  design_.Saw.NumTeeth = design_.SawEdit.NumTeeth = 121;
  commands_.OpenVariable();
  EXPECT_TRUE(program_.Say.Shown.empty());
}

// ---- the question about changes

TEST_F(VariableAsking, HasTheseWordsAndNoForItsDefault) {
  Change();
  Answer(Button::Cancel);
  commands_.OpenVariable();
  ASSERT_EQ(program_.Say.Shown.size(), 1u);
  const tarnwick::Box& box = program_.Say.Shown[0];
  EXPECT_EQ(box.Title, "Changed");
  EXPECT_EQ(box.Text, "Bandsaw has been changed!\nDo you wish to keep the existing changes?\n");
  EXPECT_EQ(box.Offer, Buttons::YesNoCancel);
  EXPECT_EQ(box.Shown, Icon::Question);
  EXPECT_EQ(box.Default, Button::No);
}

TEST_F(VariableAsking, StaysOnCancel) {
  Change();
  Answer(Button::Cancel);
  commands_.OpenVariable();
  EXPECT_EQ(view_.Log(), Told{});
  EXPECT_EQ(design_.Saw.Width, 6);
  EXPECT_EQ(design_.SawEdit.Width, 5);
}

TEST_F(VariableAsking, KeepsTheChangesOnYes) {
  Change();
  Answer(Button::Yes);
  commands_.OpenVariable();
  EXPECT_EQ(view_.Log(), (Told{"FillBoxes", "ShowPanel 3"}));
  EXPECT_EQ(design_.Saw.Width, 6);
  EXPECT_EQ(design_.SawEdit.Width, 6);
}

TEST_F(VariableAsking, GoesBackToTheLastOkOnNo) {
  Change();
  Answer(Button::No);
  commands_.OpenVariable();
  EXPECT_EQ(design_.Saw.Width, 5);
  EXPECT_EQ(design_.Lines.Header.MaxY, 5) << "calculated anew";
  EXPECT_EQ(view_.Log(),
            (Told{"ShowUnits", "DrawSaw", "FillBoxes", "ShowSawInfo", "FillBoxes", "ShowPanel 3"}));
}

TEST_F(VariableAsking, BringsTheUnitsBackOnNo) {
  editors_.SetUnits(Metric);
  Answer(Button::No);
  commands_.OpenVariable();
  EXPECT_EQ(design_.ImpMetric, Imperial);
  EXPECT_EQ(design_.Saw.ImpMetric, Imperial);
}

TEST_F(VariableAsking, ComesAheadOfTheGate) {
  OpenTeeth(121);
  Change();
  Answer(Button::Yes);
  commands_.OpenVariable();
  ASSERT_EQ(program_.Say.Shown.size(), 2u);
  EXPECT_EQ(program_.Say.Shown[0].Title, "Changed");
  EXPECT_EQ(program_.Say.Shown[1].Text, "Number of teeth must be divisible by 3, 4, or 5.");
}

TEST_F(VariableAsking, FillsThePanelThatShowsWithTheOldDesignOnNo) {
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  Answer(Button::No);
  commands_.OpenVariable();
  EXPECT_EQ(view_.Current, Panel::Variable);
  EXPECT_EQ(commands_.Values().Pattern, NoPattern);
  EXPECT_EQ(commands_.Values().ToothPitch[0], 2);
  EXPECT_EQ(design_.Saw.GeneralInfo.VariablePitch, False);
}

TEST_F(VariableAsking, HappensForOtherEditorsAfterAnyChange) {
  OpenPanel();
  Answer(Button::Cancel);
  editors_.OpenGeneral();
  EXPECT_EQ(program_.Say.Shown.size(), 1u) << "the length of the segment counts";
}

// ---- OK and Cancel

TEST_F(VariableLeaving, OkKeepsTheSegment) {
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  static_cast<void>(view_.Log());
  commands_.PressVariableOk();
  EXPECT_EQ(view_.Log(), (Told{"Pause", "ShowPanel 1", "ShowSawInfo", "DrawSaw"}));
  EXPECT_TRUE(SameSaw(design_.Saw, design_.SawEdit));
  EXPECT_EQ(design_.SawEdit.GeneralInfo.NumVariables, 3);
  EXPECT_EQ(design_.SawSaved.GeneralInfo.NumVariables, 0);
  EXPECT_TRUE(SameSaw(view_.At("ShowSawInfo").Saw, view_.At("ShowSawInfo").SawEdit));
}

TEST_F(VariableLeaving, OkShowsTheWholeBandWhenItWasInTrueSize) {
  OpenPanel();
  ASSERT_EQ(design_.View.ScaleText(), "1.0");
  commands_.PressVariableOk();
  const std::string scale = design_.View.ScaleText();
  EXPECT_NE(scale, "1.0");
  design_.ViewAll();
  EXPECT_EQ(design_.View.ScaleText(), scale);
}

TEST_F(VariableLeaving, OkLeavesAnyOtherViewAsItIs) {
  ASSERT_TRUE(design_.View.ZoomIn());
  ASSERT_TRUE(design_.View.Scroll(111, -222));
  const View before = design_.View.ThisView();
  OpenPanel();
  commands_.PressVariableOk();
  EXPECT_EQ(design_.View.ThisView(), before);
}

TEST_F(VariableLeaving, CancelGoesBackToTheDesignBefore) {
  const BandSaw before = design_.Saw;
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  commands_.TickVarDepth(true);
  static_cast<void>(view_.Log());
  commands_.PressVariableCancel();
  EXPECT_EQ(view_.Log(), (Told{"Pause", "ShowPanel 1", "ShowUnits", "DrawSaw", "ShowSawInfo"}));
  EXPECT_TRUE(SameSaw(design_.Saw, before));
  EXPECT_EQ(design_.Saw.DesignInfo.VarPattern, 0);
}

TEST_F(VariableLeaving, CancelDrawsTheBandAnewAtAnyScale) {
  for (const bool trueSize : {true, false}) {
    if (!trueSize) {
      ASSERT_TRUE(design_.ViewAll());
    }
    OpenPanel();
    const std::string scale = design_.View.ScaleText();
    const std::string constant = Drawing();
    commands_.ClickPattern(LeftToRightPattern);
    ASSERT_NE(Drawing(), constant);
    commands_.PressVariableCancel();
    EXPECT_EQ(Drawing(), constant);
    EXPECT_EQ(design_.View.ScaleText(), scale);
  }
}

TEST_F(VariableLeaving, CancelBringsTheUnitsBack) {
  OpenPanel();
  editors_.SetUnits(Metric);
  commands_.PressVariableCancel();
  EXPECT_EQ(design_.ImpMetric, Imperial);
  EXPECT_EQ(design_.Saw.ImpMetric, Imperial);
  EXPECT_TRUE(view_.WasTold("ShowUnits"));
}

TEST_F(VariableLeaving, AsksNothing) {
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  commands_.PressVariableCancel();
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  commands_.PressVariableOk();
  EXPECT_TRUE(program_.Say.Shown.empty());
}

// ---- controls

TEST_F(VariableControls, DrawTheBandAndFillTheBoxes) {
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  EXPECT_EQ(view_.Log(), (Told{"DrawSaw", "FillBoxes"}));
  commands_.TickVarDepth(true);
  EXPECT_EQ(view_.Log(), (Told{"DrawSaw", "FillBoxes"}));
  commands_.ChooseEntry(2);
  EXPECT_EQ(view_.Log(), (Told{"DrawSaw", "FillBoxes"}));
  host_.Values = {test::Enters("2.1"), test::Enters("0.8")};
  commands_.ClickPitch(0);
  EXPECT_EQ(view_.Log(), (Told{"DrawSaw", "FillBoxes"}));
  commands_.ClickDepth(0);
  EXPECT_EQ(view_.Log(), (Told{"DrawSaw", "FillBoxes"}));
  commands_.PressVariableReset();
  EXPECT_EQ(view_.Log(), (Told{"Pause", "DrawSaw", "DrawSaw", "DrawSaw", "FillBoxes"}));
}

TEST_F(VariableControls, FillTheBoxesWhereAControlGoesBackByItself) {
  OpenPanel();
  commands_.ChooseEntry(0);
  static_cast<void>(view_.Log());
  commands_.TickVarDepth(true);
  EXPECT_EQ(view_.Log(), Told{"FillBoxes"});
}

TEST_F(VariableControls, KeepTheSettingsAfterADialog) {
  OpenPanel();
  const std::size_t written = SettingsWritten();
  host_.Values = {test::Cancels()};
  commands_.ClickPitch(0);
  EXPECT_GT(SettingsWritten(), written) << "a cancelled one too";
}

TEST_F(VariableControls, SpeakInTheUnitsOfTheDesign) {
  OpenPanel();
  editors_.SetUnits(Metric);
  host_.Values = {test::Enters("5.334")};
  commands_.ClickPitch(0);
  EXPECT_NEAR(commands_.Values().ToothPitch[0], 2.1, 1e-9);
}

// ---- emptied

TEST_F(VariableEmptying, LeavesTheDesignAlone) {
  OpenPanel();
  const BandSaw saw = design_.Saw;
  commands_.ResetVariable();
  EXPECT_EQ(view_.Log(), Told{"FillBoxes"});
  EXPECT_EQ(ChangedFields(saw, design_.Saw), Names{});
  EXPECT_FALSE(commands_.Values().IsFilled);
}

TEST_F(VariableEmptying, FollowsTheStylesThatAreNeverVariable) {
  for (const std::int16_t style : {NarrowStyle, OShape}) {
    Open(test::PlainDesign());
    commands_.OpenVariable();
    commands_.ClickPattern(MixedPattern);
    commands_.PressVariableOk();
    design_.Saw.ToothStyle = style;
    design_.Recalculate(program_.Say);
    ASSERT_EQ(design_.Saw.GeneralInfo.VariablePitch, False);
    commands_.FollowDesign();
    EXPECT_FALSE(commands_.Values().IsFilled);
  }
}

TEST_F(VariableEmptying, DoesNotFollowOtherStyles) {
  OpenPanel();
  commands_.FollowDesign();
  EXPECT_TRUE(commands_.Values().IsFilled);
  EXPECT_EQ(view_.Log(), Told{});
}

// ---- another length of the band

TEST_F(VariableFollowing, FillsAPanelThatShowsWithTheBandOfTheNewLength) {
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  design_.Saw.Length = 22.1;
  design_.Saw.NumTeeth = 0;
  design_.Recalculate(program_.Say);
  ASSERT_EQ(design_.Saw.NumTeeth, 133);
  commands_.FollowDesign();
  const VariableValues& shown = commands_.Values();
  EXPECT_EQ(shown.AveragePitch, design_.Saw.Pitch);
  EXPECT_EQ(shown.NumTeeth, 133);
  EXPECT_EQ(shown.Entries, (std::vector<std::string>{"None", "7 Teeth"}));
  EXPECT_EQ(shown.Entry, VariableValues::NoEntry);
  commands_.ChooseEntry(1);
  EXPECT_EQ(design_.Saw.DesignInfo.SegmentLength, 7 * design_.Saw.Pitch);
  EXPECT_EQ(design_.Saw.GeneralInfo.NumVariables, 7);
}

TEST_F(VariableFollowing, KeepsTheSegmentWhereTheNewBandCanHaveIt) {
  OpenPanel();
  commands_.ClickPattern(MixedPattern);
  design_.Saw.Length = 20.01;
  design_.Recalculate(program_.Say);
  ASSERT_EQ(design_.Saw.NumTeeth, 120);
  commands_.FollowDesign();
  EXPECT_EQ(commands_.Values().Pattern, MixedPattern);
  EXPECT_EQ(commands_.Values().SegmentTeeth, 3);
  EXPECT_EQ(commands_.Values().ToothPitch[0], 1.782);
  EXPECT_EQ(commands_.Values().SegmentSize, 3 * design_.Saw.Pitch);
  EXPECT_EQ(design_.Saw.DesignInfo.SegmentLength, 3 * design_.Saw.Pitch);
}

TEST_F(VariableFollowing, LeavesThePanelAloneWhileItsBandIsTheSame) {
  OpenPanel();
  commands_.ChooseEntry(0);
  commands_.FollowDesign();
  EXPECT_EQ(commands_.Values().Entry, 0);
}

TEST_F(VariableFollowing, TouchesNoDesignWhileThePanelIsAway) {
  OpenPanel();
  commands_.PressVariableCancel();
  design_.Saw.NumTeeth = 0;
  design_.Saw.Length = 30;
  design_.Recalculate(program_.Say);
  const BandSaw saw = design_.Saw;
  commands_.FollowDesign();
  EXPECT_EQ(ChangedFields(saw, design_.Saw), Names{});
}

}  // namespace
}  // namespace tarnwick
