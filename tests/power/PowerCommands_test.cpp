#include "power/PowerCommands.h"

#include <gtest/gtest.h>

#include "support/Designs.h"
#include "support/FieldChanges.h"
#include "support/RecordingMainView.h"
#include "support/ScriptedDialogHost.h"
#include "support/ScriptedPowerHost.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::Enters;
using Texts = std::vector<std::string>;
using Names = std::set<std::string>;

/// A band with all that the power figures take, opened.
BandSaw ReadyDesign() {
  BandSaw saw = test::PlainDesign();
  saw.GeneralInfo.Kerf = 0.15;
  saw.GeneralInfo.PlateThick = 0.065;
  saw.MachineInfo.WheelDia = 5;
  saw.GeneralInfo.WoodType.Assign("Oak (White)");
  saw.GeneralInfo.ShaftSpeed = 510;
  saw.GeneralInfo.DepthOfCut = 10;
  return saw;
}

class PowerCommandsTest : public testing::Test {
 protected:
  PowerCommandsTest() {
    program_.Start();
    design_.View.SetSurface({10, 7});
    design_.Saw = ReadyDesign();
    design_.Recalculate(program_.Say);
    design_.KeepAsSaved();
    program_.Store.Written.clear();
    view_.Current = Panel::General;
  }

  void Answer(Button button) { program_.Say.Answers.push_back(button); }
  void Plan(std::function<void(PowerEditor&)> act) { windows_.Editors.push_back(std::move(act)); }

  /// Something changed since the last OK.
  void Change() {
    design_.Saw.Width = 9;
    design_.Saw.ImpMetric = Metric;
    design_.ImpMetric = Metric;
    design_.Recalculate(program_.Say);
  }

  test::TestProgram program_;
  OpenDesign& design_ = program_.Process.Design;
  test::ScriptedDialogHost host_;
  test::ScriptedPowerHost windows_;
  test::RecordingMainView view_{program_};
  PowerDesk desk_{program_.Process, host_, windows_, view_};
};

// ---- what is required

struct RequiredRow {
  const char* Name;
  void (*Change)(BandSaw&);
  const char* Line;
  friend void PrintTo(const RequiredRow& row, std::ostream* out) { *out << row.Name; }
};

class PowerDataRequiredTest : public PowerCommandsTest, public testing::WithParamInterface<RequiredRow> {};

TEST_P(PowerDataRequiredTest, NamesTheFirstThingMissingAndStops) {
  GetParam().Change(design_.Saw);  // nobody is asked about that change either
  OpenPowerEditor(desk_);
  ASSERT_EQ(program_.Say.Shown.size(), 1U);
  const Box& box = program_.Say.Shown[0];
  EXPECT_EQ(box.Title, "Information Required");
  EXPECT_EQ(box.Text, std::string(GetParam().Line) + " to calculate power requirements.");
  EXPECT_EQ(box.Shown, Icon::Information);
  EXPECT_EQ(box.Offer, Buttons::Ok);
  EXPECT_EQ(windows_.Shown, Texts());
  EXPECT_TRUE(program_.Store.Saved().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Data, PowerDataRequiredTest,
    testing::Values(
        RequiredRow{"Teeth", [](BandSaw& s) { s.ContainsInfo.Teeth = False; }, "Teeth are required"},
        RequiredRow{"Kerf", [](BandSaw& s) { s.GeneralInfo.Kerf = 0; }, "Tooth width (Kerf) is required"},
        RequiredRow{"Plate", [](BandSaw& s) { s.GeneralInfo.PlateThick = 0; }, "Plate thickness is required"},
        RequiredRow{"Wheel", [](BandSaw& s) { s.MachineInfo.WheelDia = 0; }, "Wheel diameter is required"},
        RequiredRow{"EverythingNamesTheTeeth", [](BandSaw& s) { s = {}; }, "Teeth are required"},
        RequiredRow{"KerfBeforePlateAndWheel",
                    [](BandSaw& s) {
                      s.GeneralInfo.Kerf = s.GeneralInfo.PlateThick = 0;
                      s.MachineInfo.WheelDia = 0;
                    },
                    "Tooth width (Kerf) is required"},
        RequiredRow{"PlateBeforeWheel",
                    [](BandSaw& s) { s.GeneralInfo.PlateThick = s.MachineInfo.WheelDia = 0; },
                    "Plate thickness is required"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(PowerCommandsTest, TakesNegativeMeasuresAndAnySetFlag) {
  design_.Saw.GeneralInfo.Kerf = -0.15;
  design_.Saw.ContainsInfo.Teeth = 7;
  design_.KeepAsSaved();
  Plan([](PowerEditor&) {});
  OpenPowerEditor(desk_);
  EXPECT_EQ(program_.Say.Texts(), Texts());
  EXPECT_EQ(windows_.Shown, Texts{"frmPower"});
}

// ---- changes since the last OK

TEST_F(PowerCommandsTest, AsksNothingOfAnUnchangedDesign) {
  Plan([](PowerEditor&) {});
  OpenPowerEditor(desk_);
  EXPECT_EQ(program_.Say.Texts(), Texts());
}

TEST_F(PowerCommandsTest, AsksWhetherToKeepChanges) {
  Change();
  Answer(Button::Cancel);
  OpenPowerEditor(desk_);
  ASSERT_EQ(program_.Say.Shown.size(), 1U);
  const Box& box = program_.Say.Shown[0];
  EXPECT_EQ(box.Title, "Changed");
  EXPECT_EQ(box.Text, "Bandsaw has been changed!\nDo you wish to keep the existing changes?");
  EXPECT_EQ(box.Offer, Buttons::YesNoCancel);
  EXPECT_EQ(box.Default, Button::Cancel);
}

TEST_F(PowerCommandsTest, StopsOnCancelWithEverythingAsItWas) {
  Change();
  const BandSaw saw = design_.Saw, edit = design_.SawEdit;
  Answer(Button::Cancel);
  OpenPowerEditor(desk_);
  EXPECT_EQ(windows_.Shown, Texts());
  EXPECT_TRUE(program_.Store.Saved().empty());
  EXPECT_EQ(ChangedFields(saw, design_.Saw), Names());
  EXPECT_EQ(ChangedFields(edit, design_.SawEdit), Names());
  EXPECT_EQ(view_.Log(), Texts());
}

TEST_F(PowerCommandsTest, OpensOnTheChangedDesignAfterYes) {
  Change();
  Answer(Button::Yes);
  Plan([](PowerEditor& editor) { EXPECT_EQ(editor.Saw().Width, 9); });
  OpenPowerEditor(desk_);
  EXPECT_EQ(design_.SawEdit.Width, 9);
  EXPECT_EQ(design_.ImpMetric, Metric);
}

TEST_F(PowerCommandsTest, OpensOnTheLastOkAfterNoWithItsUnitsAndDrawing) {
  const BandSaw accepted = design_.SawEdit;
  Change();
  Answer(Button::No);
  Plan([&](PowerEditor& editor) {
    EXPECT_EQ(editor.Saw().Width, accepted.Width);
    EXPECT_EQ(design_.ImpMetric, Imperial);
    EXPECT_TRUE(view_.WasTold("ShowUnits"));
    EXPECT_TRUE(view_.WasTold("DrawSaw"));
    EXPECT_TRUE(view_.WasTold("FillBoxes"));
    EXPECT_TRUE(view_.WasTold("ShowSawInfo"));
  });
  OpenPowerEditor(desk_);
  EXPECT_EQ(windows_.Shown, Texts{"frmPower"});
  EXPECT_TRUE(SameSaw(design_.Saw, accepted));
}

// ---- the window, and what comes back

TEST_F(PowerCommandsTest, WritesTheSettingsBeforeTheWindowOpens) {
  Plan([this](PowerEditor&) { EXPECT_FALSE(program_.Store.Saved().empty()); });
  OpenPowerEditor(desk_);
}

TEST_F(PowerCommandsTest, LeavesTheDesignAloneWhileTheWindowIsOpenAndOnCancel) {
  const BandSaw before = design_.Saw;
  Plan([&](PowerEditor& editor) {
    host_.Values.push_back(Enters("100"));
    editor.Click(PowerBox::FeedRate);
    EXPECT_EQ(editor.Saw().GeneralInfo.FeedRate, 100);
    EXPECT_EQ(ChangedFields(before, design_.Saw), Names());
    editor.PressCancel();
  });
  OpenPowerEditor(desk_);
  EXPECT_EQ(ChangedFields(before, design_.Saw), Names());
  EXPECT_EQ(view_.Log(), Texts());
}

TEST_F(PowerCommandsTest, TakesTheFiguresBackOnOk) {
  Plan([this](PowerEditor& editor) {
    host_.Values.push_back(Enters("100"));
    editor.Click(PowerBox::FeedRate);
    editor.PressOk();
  });
  const BandSaw before = design_.Saw;
  OpenPowerEditor(desk_);
  EXPECT_EQ(
      ChangedFields(before, design_.Saw),
      (Names{"ContainsInfo.Power", "GeneralInfo.FeedRate", "GeneralInfo.SideClear", "GeneralInfo.HorsePower",
             "GulletInfo.Bite", "GulletInfo.Capacity", "DesignInfo.SawVelocity", "DesignInfo.MaxFeedRate"}));
  EXPECT_EQ(design_.Saw.ContainsInfo.Power, True);
  EXPECT_EQ(ChangedFields(before, design_.SawEdit), Names());  // the next editor asks about it
  EXPECT_EQ(view_.Log(), (Texts{"ShowPanel 1", "ShowSawInfo"}));
  EXPECT_EQ(view_.At("ShowSawInfo").Saw.GeneralInfo.FeedRate, 100);
}

TEST_F(PowerCommandsTest, HasNoPowerSectionWithoutHorsePower) {
  design_.Saw.ContainsInfo.Power = True;
  design_.KeepAsSaved();
  Plan([](PowerEditor& editor) { editor.PressOk(); });
  OpenPowerEditor(desk_);  // there is no feed rate
  EXPECT_EQ(design_.Saw.ContainsInfo.Power, False);
}

// ---- the calculator

TEST_F(PowerCommandsTest, OpensTheCalculatorOnAnyDesignWithoutAQuestion) {
  design_.Saw = {};
  Change();
  const BandSaw before = design_.Saw;
  windows_.Calculators.push_back([&](PowerCalculator& calculator) {
    EXPECT_EQ(ChangedFields(calculator.Saws()[0], before), Names());
    EXPECT_EQ(ChangedFields(calculator.Saws()[1], BandSaw()), Names());
    calculator.PressNew();
  });
  OpenPowerCalculator(desk_);
  EXPECT_EQ(windows_.Shown, Texts{"frmPowerCalc"});
  EXPECT_EQ(program_.Say.Texts(), Texts());
  EXPECT_EQ(ChangedFields(before, design_.Saw), Names());
  EXPECT_EQ(view_.Log(), Texts());
}

}  // namespace
}  // namespace tarnwick
