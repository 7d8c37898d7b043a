#include "window/Editors.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/EditorsTest.h"
#include "support/FieldChanges.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::EditorsTest;
using test::Told;
using Names = std::set<std::string>;

using EditorOpening = EditorsTest;
using EditorLeaving = EditorsTest;
using EditorPressing = EditorsTest;
using EditorUnits = EditorsTest;

// ---- opening a panel

TEST_F(EditorOpening, TheMainPanelBringsItsRowsUpToDateFirst) {
  view_.Current = Panel::ToothShape;
  editors_.OpenMain();
  EXPECT_EQ(StepsButBoxes(), (Told{"ShowSawInfo", "Pause", "ShowPanel 1"}));
  EXPECT_TRUE(program_.Say.Shown.empty());
}

TEST_F(EditorOpening, TheGeneralInformationFillsItsBoxesAheadOfShowing) {
  editors_.OpenGeneral();
  EXPECT_EQ(Steps(), (Told{"Pause", "ShowStatus |", "FillBoxes", "ShowPanel 4"}));
  EXPECT_TRUE(program_.Say.Shown.empty());
}

TEST_F(EditorOpening, TheToothShapeEditorDrawsAndFillsItsBoxesAheadOfShowing) {
  editors_.OpenToothShape();
  EXPECT_EQ(Steps(), (Told{"ShowStatus |", "Pause", "DrawSaw", "FillBoxes", "ShowPanel 2"}));
  EXPECT_TRUE(program_.Say.Shown.empty());
}

TEST_F(EditorOpening, TheToothShapeEditorShowsTrueSize) {
  ASSERT_TRUE(design_.ViewAll());
  ASSERT_NE(design_.View.ScaleText(), "1.0");
  editors_.OpenToothShape();
  EXPECT_EQ(design_.View.ScaleText(), "1.0");
  EXPECT_EQ(Steps(), (Told{"ShowStatus |", "Pause", "DrawSaw", "FillBoxes", "ShowPanel 2"}));
}

TEST_F(EditorOpening, TheToothShapeEditorLeavesAViewInTrueSizeWhereItIs) {
  ASSERT_TRUE(design_.View.Scroll(111, 222));
  editors_.OpenToothShape();
  EXPECT_EQ(design_.View.Horizontal(), 111);
  EXPECT_EQ(design_.View.Vertical(), 222);
}

TEST_F(EditorOpening, OtherPanelsLeaveTheView) {
  ASSERT_TRUE(design_.ViewAll());
  const std::string scale = design_.View.ScaleText();
  editors_.OpenGeneral();
  editors_.OpenMain();
  EXPECT_EQ(design_.View.ScaleText(), scale);
}

TEST_F(EditorOpening, WorksOnABlankDesign) {
  Open(BandSaw{});
  editors_.OpenToothShape();
  EXPECT_EQ(view_.Current, Panel::ToothShape);
  editors_.OpenGeneral();
  EXPECT_EQ(view_.Current, Panel::General);
  editors_.OpenMain();
  EXPECT_EQ(view_.Current, Panel::Main);
  EXPECT_TRUE(program_.Say.Shown.empty());
  EXPECT_TRUE(SameSaw(design_.Saw, BandSaw{}));
}

TEST_F(EditorOpening, ChangesNoDesign) {
  const BandSaw before = design_.Saw;
  editors_.OpenGeneral();
  editors_.OpenToothShape();
  editors_.OpenMain();
  EXPECT_EQ(ChangedFields(before, design_.Saw), Names{});
  EXPECT_EQ(ChangedFields(before, design_.SawEdit), Names{});
}

TEST_F(EditorOpening, StopsWhenThePanelShowsAlready) {
  editors_.OpenMain();
  view_.Current = Panel::General;
  editors_.OpenGeneral();
  view_.Current = Panel::ToothShape;
  editors_.OpenToothShape();
  EXPECT_EQ(view_.Log(), Told{});
}

TEST_F(EditorOpening, GoesByThePanelThatShowsAndByNoOtherNote) {
  editors_.OpenGeneral();
  view_.Current = Panel::Variable;
  static_cast<void>(view_.Log());
  editors_.OpenGeneral();
  EXPECT_EQ(view_.Current, Panel::General);
  view_.Current = Panel::None;
  editors_.OpenMain();
  EXPECT_EQ(view_.Current, Panel::Main);
}

// ---- the question about changes

TEST_F(EditorLeaving, AsksInTheseWords) {
  Change();
  editors_.OpenGeneral();  // nobody answers: the default
  ASSERT_EQ(program_.Say.Shown.size(), 1u);
  const tarnwick::Box& box = program_.Say.Shown[0];
  EXPECT_EQ(box.Title, "Changed");
  EXPECT_EQ(box.Text, "Bandsaw has been changed!\nDo you wish to keep the existing changes?\n");
  EXPECT_EQ(box.Offer, Buttons::YesNoCancel);
  EXPECT_EQ(box.Shown, Icon::Question);
  EXPECT_EQ(box.Default, Button::Cancel);
}

/// The three commands that ask.
struct Command {
  const char* Name;
  void (Editors::*Run)();
  Panel Opens;
  friend void PrintTo(const Command& row, std::ostream* out) { *out << row.Name; }
};

class EditorLeavingBy : public EditorsTest, public testing::WithParamInterface<Command> {
 protected:
  EditorLeavingBy() {
    view_.Current = Panel::Variable;
    Change();
  }
  void Run() { (editors_.*GetParam().Run)(); }
};

TEST_P(EditorLeavingBy, CancelStopsAndKeepsEverything) {
  Answer(Button::Cancel);
  Run();
  EXPECT_EQ(view_.Log(), Told{});
  EXPECT_EQ(view_.Current, Panel::Variable);
  EXPECT_EQ(design_.Saw.Width, 6);
  EXPECT_EQ(design_.SawEdit.Width, 5);
}

TEST_P(EditorLeavingBy, YesKeepsTheChangesAndGoesOn) {
  Answer(Button::Yes);
  Run();
  EXPECT_EQ(view_.Current, GetParam().Opens);
  EXPECT_EQ(design_.Saw.Width, 6);
  EXPECT_EQ(design_.SawEdit.Width, 6);
  EXPECT_EQ(design_.SawSaved.Width, 5);
}

TEST_P(EditorLeavingBy, NoGoesBackToTheLastOkAndGoesOn) {
  Answer(Button::No);
  Run();
  EXPECT_EQ(view_.Current, GetParam().Opens);
  EXPECT_EQ(design_.Saw.Width, 5);
  EXPECT_EQ(design_.SawEdit.Width, 5);
  EXPECT_EQ(design_.Lines.Header.MaxY, 5) << "calculated anew";
}

TEST_P(EditorLeavingBy, NoDrawsTheBandThatIsBack) {
  Answer(Button::No);
  Run();
  EXPECT_EQ(view_.At("DrawSaw").Saw.Width, 5);
}

TEST_P(EditorLeavingBy, NoBringsTheUnitsBack) {
  editors_.SetUnits(Metric);
  Answer(Button::No);
  Run();
  EXPECT_EQ(design_.ImpMetric, Imperial);
  EXPECT_EQ(design_.Saw.ImpMetric, Imperial);
  EXPECT_TRUE(view_.WasTold("ShowUnits"));
}

TEST_P(EditorLeavingBy, YesStaysOnThePanelThatShowsAndAsksAgain) {
  view_.Current = GetParam().Opens;
  Answer(Button::Yes);
  Answer(Button::Yes);
  Run();
  EXPECT_EQ(view_.Log(), Told{});
  EXPECT_EQ(design_.Saw.Width, 6);
  EXPECT_EQ(design_.SawEdit.Width, 5);
  Run();
  EXPECT_EQ(program_.Say.Shown.size(), 2u);
}

TEST_P(EditorLeavingBy, NoStaysOnThePanelThatShowsWithTheOldDesign) {
  view_.Current = GetParam().Opens;
  Answer(Button::No);
  Run();
  for (const std::string& told : view_.Log()) {
    EXPECT_NE(told.substr(0, 9), "ShowPanel");
    EXPECT_NE(told, "Pause");
  }
  EXPECT_EQ(design_.Saw.Width, 5);
  EXPECT_EQ(design_.Lines.Header.MaxY, 5);
  Run();
  EXPECT_EQ(program_.Say.Shown.size(), 1u) << "nothing has changed any more";
}

TEST_P(EditorLeavingBy, AsksAheadOfEverythingElse) {
  Answer(Button::Cancel);
  Run();
  EXPECT_EQ(program_.Say.Shown.size(), 1u);
  EXPECT_TRUE(program_.Time.Waited.empty());
}

INSTANTIATE_TEST_SUITE_P(Commands, EditorLeavingBy,
                         testing::Values(Command{"OpenMain", &Editors::OpenMain, Panel::Main},
                                         Command{"OpenGeneral", &Editors::OpenGeneral, Panel::General},
                                         Command{"OpenToothShape", &Editors::OpenToothShape,
                                                 Panel::ToothShape}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(EditorLeaving, DoesNotAskAboutMeasuresThatDoNotCount) {
  design_.Saw.GulletInfo.FrostWidth = 1;
  design_.Saw.DesignInfo.MaxFeedRate = 1;
  editors_.OpenGeneral();
  EXPECT_TRUE(program_.Say.Shown.empty());
}

// ---- OK and Cancel

TEST_F(EditorPressing, GeneralOkWorksInItsOrder) {
  view_.Current = Panel::General;
  design_.Saw.GeneralInfo.PlateThick = 0.065;
  design_.Saw.GeneralInfo.Kerf = 0.15;
  editors_.PressGeneralOk();
  EXPECT_EQ(StepsButBoxes(), (Told{"Pause", "ShowPanel 1", "DrawSaw", "ShowSawInfo"}));
  const auto shown = view_.At("ShowPanel 1");
  EXPECT_EQ(shown.Saw.GeneralInfo.SideClear, 0.0425);
  EXPECT_EQ(shown.SawEdit.GeneralInfo.SideClear, 0.0425);
  EXPECT_TRUE(SameSaw(shown.Saw, shown.SawEdit));
  EXPECT_EQ(view_.At("ShowSawInfo").Saw.GeneralInfo.SideClear, 0.0425);
}

TEST_F(EditorPressing, GeneralOkKnowsNoSideClearanceWithoutAKerf) {
  design_.Saw.GeneralInfo.PlateThick = 0.065;
  design_.Saw.GeneralInfo.SideClear = 1;
  editors_.PressGeneralOk();
  EXPECT_EQ(design_.Saw.GeneralInfo.SideClear, 0);
}

TEST_F(EditorPressing, GeneralOkWithoutAnyChangeLeavesTheDesignAsSaved) {
  editors_.OpenGeneral();
  editors_.PressGeneralOk();
  EXPECT_EQ(design_.Saw.ContainsInfo.General, False);
  EXPECT_TRUE(SameSaw(design_.Saw, design_.SawSaved));
  EXPECT_TRUE(SameSaw(design_.Saw, design_.SawEdit));
}

TEST_F(EditorPressing, GeneralCancelWorksInItsOrder) {
  view_.Current = Panel::General;
  Change();
  editors_.PressGeneralCancel();
  EXPECT_EQ(StepsButBoxes(), (Told{"Pause", "ShowPanel 1", "DrawSaw", "ShowSawInfo"}));
  EXPECT_EQ(view_.At("ShowPanel 1").Saw.Width, 5);
  EXPECT_EQ(design_.Saw.Width, 5);
  EXPECT_EQ(design_.Lines.Header.MaxY, 5);
}

TEST_F(EditorPressing, ToothOkWorksInItsOrder) {
  view_.Current = Panel::ToothShape;
  Change();
  editors_.PressToothOk();
  EXPECT_EQ(StepsButBoxes(), (Told{"Pause", "ShowPanel 1", "ShowSawInfo", "DrawSaw"}));
  EXPECT_EQ(view_.At("ShowSawInfo").SawEdit.Width, 5);
  EXPECT_EQ(view_.At("DrawSaw").SawEdit.Width, 6);
  EXPECT_EQ(design_.Saw.Width, 6);
  EXPECT_EQ(design_.SawEdit.Width, 6);
  EXPECT_EQ(design_.SawSaved.Width, 5);
}

TEST_F(EditorPressing, ToothCancelWorksInItsOrder) {
  view_.Current = Panel::ToothShape;
  Change();
  editors_.PressToothCancel();
  EXPECT_EQ(StepsButBoxes(), (Told{"Pause", "DrawSaw", "ShowSawInfo", "ShowPanel 1"}));
  EXPECT_EQ(view_.At("DrawSaw").Saw.Width, 5);
  EXPECT_EQ(design_.Saw.Width, 5);
  EXPECT_EQ(design_.Lines.Header.MaxY, 5);
}

TEST_F(EditorPressing, CancelGoesBackToTheLastOkNotToTheFile) {
  editors_.OpenToothShape();
  Change();
  editors_.PressToothOk();
  editors_.OpenGeneral();
  editors_.TypeInto(Box("txtQuantity"), "4");
  editors_.PressGeneralCancel();
  EXPECT_EQ(design_.Saw.Width, 6);
  EXPECT_EQ(design_.Saw.GeneralInfo.Quantity, 0);
  EXPECT_EQ(design_.Saw.ContainsInfo.General, False);
  EXPECT_TRUE(program_.Say.Shown.empty());
}

TEST_F(EditorPressing, CancelBringsTheUnitsBack) {
  for (const auto press : {&Editors::PressGeneralCancel, &Editors::PressToothCancel}) {
    editors_.SetUnits(Metric);
    static_cast<void>(view_.Log());
    (editors_.*press)();
    EXPECT_EQ(design_.ImpMetric, Imperial);
    EXPECT_EQ(design_.Saw.ImpMetric, Imperial);
    EXPECT_TRUE(view_.WasTold("ShowUnits"));
    EXPECT_TRUE(SameSaw(design_.Saw, design_.SawSaved));
  }
}

TEST_F(EditorPressing, OkKeepsTheUnits) {
  editors_.SetUnits(Metric);
  editors_.PressGeneralOk();
  EXPECT_EQ(design_.ImpMetric, Metric);
  EXPECT_EQ(design_.SawEdit.ImpMetric, Metric);
  editors_.PressToothCancel();
  EXPECT_EQ(design_.ImpMetric, Metric);
}

TEST_F(EditorPressing, AsksNothing) {
  for (const auto press : {&Editors::PressGeneralOk, &Editors::PressGeneralCancel, &Editors::PressToothOk,
                           &Editors::PressToothCancel}) {
    Change();
    (editors_.*press)();
  }
  EXPECT_TRUE(program_.Say.Shown.empty());
}

// ---- units

TEST_F(EditorUnits, GoToTheWindowAndToTheDesign) {
  editors_.SetUnits(Metric);
  EXPECT_EQ(design_.ImpMetric, Metric);
  EXPECT_EQ(design_.Saw.ImpMetric, 1);
  EXPECT_TRUE(view_.WasTold("ShowSawInfo"));
  EXPECT_TRUE(view_.WasTold("FillBoxes"));
  EXPECT_EQ(view_.At("ShowSawInfo").Saw.ImpMetric, 1);
  EXPECT_EQ(view_.At("FillBoxes").Saw.ImpMetric, 1);
  EXPECT_EQ(ChangedFields(design_.SawSaved, design_.Saw), Names{"ImpMetric"});
  editors_.SetUnits(Imperial);
  EXPECT_EQ(design_.ImpMetric, Imperial);
  EXPECT_TRUE(SameSaw(design_.Saw, design_.SawSaved));
}

TEST_F(EditorUnits, StayOutOfTheSettings) {
  editors_.SetUnits(Metric);
  EXPECT_EQ(design_.Settings.MainImpMetric, Imperial);
}

TEST_F(EditorUnits, AreAskedAboutLikeEveryChange) {
  editors_.SetUnits(Metric);
  Answer(Button::Cancel);
  editors_.OpenGeneral();
  EXPECT_EQ(program_.Say.Shown.size(), 1u);
}

}  // namespace
}  // namespace tarnwick
