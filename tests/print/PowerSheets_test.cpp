#include <gtest/gtest.h>

#include <string>
#include <system_error>

#include "power/PowerCalculator.h"
#include "print/PrintDesk.h"

namespace tarnwick {
namespace {

using test::NoPrinters;
using test::Ok;
using test::PrintCommandsTest;
using test::Texts;

TEST_F(PrintCommandsTest, PrintTheEstimatesOfThePowerWindow) {
  Process.Design.Saw = test::PowerDesign();
  test::ScriptedDialogHost dialogs;
  test::ScriptedPowerHost power;
  PowerEditor editor(Process, dialogs, power);
  editor.GetSawPowerData(Process.Design.Saw);
  editor.TypePercent("10");
  Windows.Acts = {Ok};
  Commands.PrintEstimates(editor);
  EXPECT_EQ(Log(),
            (Texts{"frmPrinter", "choose Alpha", "notice 1 of 1", "begin oak.bsw", "end", "no notice"}));
  const PrintSheet& sheet = Job().Pages.at(0);
  for (const char* words : {"oak.bsw", "Nov, 21/26", "Page 1 of 1",
                            "Estimates for bandsaw based on increasing feedrate by 10 percent",
                            "Current Estimate", "Estimate # 3", "Tooth Speed:", " 110 fpm*", " 70 Percent",
                            "Note: Changes have an asterisk * displayed beside the value."}) {
    EXPECT_TRUE(test::FindText(sheet, words)) << words;
  }
  EXPECT_FALSE(test::FindText(sheet, "Saw Velocity:")) << "that is the window's word";
}

TEST_F(PrintCommandsTest, AskForAPercentBeforeThePrinter) {
  test::ScriptedDialogHost dialogs;
  test::ScriptedPowerHost power;
  PowerEditor editor(Process, dialogs, power);
  editor.GetSawPowerData(test::PowerDesign());
  Commands.PrintEstimates(editor);
  EXPECT_EQ(Log(),
            (Texts{"Select Percent: You must first select a percent from the above list. [information]"}));
}

TEST_F(PrintCommandsTest, SayThatThereIsNoPrinterBeforeAskingForAPercent) {
  Printer.Names.clear();
  test::ScriptedDialogHost dialogs;
  test::ScriptedPowerHost power;
  PowerEditor editor(Process, dialogs, power);
  editor.GetSawPowerData(test::PowerDesign());
  Commands.PrintEstimates(editor);
  EXPECT_EQ(Log(), Texts{NoPrinters});
}

TEST_F(PrintCommandsTest, PrintBothCalculationsOnOneSheet) {
  test::ScriptedDialogHost dialogs;
  PowerCalculator calculator(Process, dialogs);
  calculator.GetSawPowerData(test::PowerDesign());
  Windows.Acts = {Ok};
  Commands.PrintCalculations(calculator);
  EXPECT_EQ(Log(), (Texts{"frmPrinter", "choose Alpha", "notice 1 of 1", "begin Power Calculations", "end",
                          "no notice"}));
  const PrintSheet& sheet = Job().Pages.at(0);
  for (const char* words : {"Power Calculations", "untitled.bsp", "Nov, 21/26", "Power Calculation # 1",
                            "Power Calculation # 2", "Bandsaw Length:", " 40.000 ft"}) {
    EXPECT_TRUE(test::FindText(sheet, words)) << words;
  }
}

TEST_F(PrintCommandsTest, SayThatThereIsNoCalculationBeforeThePrinter) {
  test::ScriptedDialogHost dialogs;
  PowerCalculator calculator(Process, dialogs);
  Commands.PrintCalculations(calculator);
  EXPECT_EQ(Log(), (Texts{"Print Canceled: No power information available to print!"}));
}

TEST_F(PrintCommandsTest, TellOfAFailureWithPower) {
  Printer.FailsToEnd = std::make_error_code(std::errc::io_error);
  Windows.Acts = {Ok};
  Commands.PrintEstimates(Estimates());
  EXPECT_NE(Log().back().find("Sub Program cmdPrint"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick
