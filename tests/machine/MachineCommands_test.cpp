#include "machine/MachineCommands.h"

#include <gtest/gtest.h>

#include "support/Designs.h"
#include "support/Machines.h"
#include "support/RecordingMainView.h"
#include "support/ScriptedDialogHost.h"
#include "support/ScriptedMachineHost.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using test::Enters;
using Told = std::vector<std::string>;

class MachineCommands : public testing::Test {
 protected:
  MachineCommands() {
    program_.Start();
    Design().Saw = test::PlainDesign();
    Design().Recalculate(program_.Say);
    Design().KeepAsSaved();
  }

  OpenDesign& Design() { return program_.Process.Design; }
  MachineDesk Desk() { return {program_.Process, dialogs_, windows_, view_}; }
  void Open(const test::ScriptedMachineHost::Act& act) {
    windows_.Acts.push_back(act);
    OpenBandCalculator(Desk());
  }

  /// Wheels of 5 ft, 10 ft apart, and the length inside of the plate.
  static void TakeInside(BandCalculator& calculator) {
    calculator.TickLength(InsideLength);
    calculator.PressOk();
  }
  void GiveWheels() {
    Design().Saw.MachineInfo.WheelDia = 5;
    Design().Saw.MachineInfo.CenterToCenter = 10;
  }

  test::TestProgram program_;
  test::ScriptedDialogHost dialogs_;
  test::ScriptedMachineHost windows_;
  test::RecordingMainView view_{program_};
};

TEST_F(MachineCommands, PauseThenCalculateAndShowAnew) {
  (void)view_.Log();
  Open([this](BandCalculator& calculator) {
    EXPECT_EQ(view_.Log(), (Told{"Pause"}));
    calculator.PressCancel();
  });
  EXPECT_EQ(view_.Log(), (Told{"DrawSaw", "ShowSawInfo", "FillBoxes"}));
}

TEST_F(MachineCommands, HandACopyOfTheDesignOver) {
  GiveWheels();
  Open([this](BandCalculator& calculator) {
    EXPECT_EQ(calculator.Saw().Length, 20);
    EXPECT_EQ(calculator.LengthText(InsideLength), " 35.708 ft");
    EXPECT_EQ(Design().SawEdit.MachineInfo.WheelDia, 5);  // as it goes there
    calculator.PressCancel();
  });
}

TEST_F(MachineCommands, TakeTheLengthAndCountTheTeethAnew) {
  GiveWheels();
  Open(TakeInside);
  EXPECT_EQ(Design().Saw.Length, 35.708);
  EXPECT_EQ(Design().Saw.NumTeeth, 214);  // 428.496 in by the pitch of 2
  EXPECT_NEAR(Design().Saw.Pitch, 2.0023, 1e-4);
  EXPECT_NEAR(Design().Lines.Header.MaxX, 35.708 * 12, 0.2);
}

TEST_F(MachineCommands, TakeWheelsWithoutALengthToo) {
  const std::int16_t teeth = Design().Saw.NumTeeth;
  dialogs_.Values = {Enters("5"), Enters("10"), Enters("6")};
  Open([](BandCalculator& calculator) {
    calculator.Click(Parameter::WheelDiameter);
    calculator.Click(Parameter::CenterToCenter);
    calculator.Click(Parameter::RimWidth);
    calculator.PressOk();
  });
  EXPECT_EQ(Design().Saw.MachineInfo.WheelDia, 5);
  EXPECT_EQ(Design().Saw.MachineInfo.CenterToCenter, 10);
  EXPECT_EQ(Design().Saw.MachineInfo.Width, 6);
  EXPECT_EQ(Design().Saw.ContainsInfo.Machine, True);
  EXPECT_EQ(Design().Saw.Length, 20);
  EXPECT_EQ(Design().Saw.NumTeeth, teeth);
}

TEST_F(MachineCommands, LeaveTheDesignAloneOnCancel) {
  GiveWheels();
  const BandSaw before = Design().Saw;
  dialogs_.Values = {Enters("4")};
  Open([](BandCalculator& calculator) {
    calculator.Click(Parameter::WheelDiameter);
    calculator.TickLength(InsideLength);
    calculator.PressCancel();
  });
  EXPECT_TRUE(SameSaw(Design().Saw, before));
}

TEST_F(MachineCommands, LeaveTheLastOkAsItWasBefore) {
  GiveWheels();
  Open(TakeInside);
  EXPECT_EQ(Design().SawEdit.Length, 20);
  EXPECT_FALSE(SameSaw(Design().Saw, Design().SawEdit));  // the next editor asks
}

TEST_F(MachineCommands, KeepTheCountOfADesignWithoutAPitch) {
  Design().Saw = test::Machine(5, 10);
  Design().Saw.NumTeeth = 90;
  Open(TakeInside);
  EXPECT_EQ(Design().Saw.NumTeeth, 90);
  EXPECT_EQ(Design().Saw.Length, 35.708);
}

TEST_F(MachineCommands, ShowThePlateGaugesAfterAPause) {
  (void)view_.Log();
  Design().ImpMetric = Metric;
  OpenPlateGauges(Desk());
  EXPECT_EQ(view_.Log(), (Told{"Pause"}));
  ASSERT_EQ(windows_.Gauges.size(), 1U);
  EXPECT_EQ(windows_.Gauges[0].ImpMetric, Metric);
}

}  // namespace
}  // namespace tarnwick
