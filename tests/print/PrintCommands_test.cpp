#include <gtest/gtest.h>

#include <string>
#include <system_error>

#include "print/PrintDesk.h"

namespace tarnwick {
namespace {

using test::Ok;
using test::OkFor;
using test::PrintCommandsTest;
using test::PrintedJob;
using test::Texts;

// ---- the saw

TEST_F(PrintCommandsTest, PrintBothSheetsOfTheSaw) {
  Windows.Acts = {Ok};
  Commands.PrintSaw();
  EXPECT_EQ(Log(), (Texts{"frmPrinterPage", "choose Alpha", "notice 1 of 2", "begin oak.bsw", "notice 2 of 2",
                          "new page", "end", "no notice"}));
  EXPECT_EQ(Job().Is, PrintedJob::Fate::Ended);
  const PrintSheet &info = Job().Pages.at(0), &drawing = Job().Pages.at(1);
  EXPECT_TRUE(test::FindText(info, "Page 1 of 2"));
  EXPECT_TRUE(test::FindText(info, "Band Saw Teeth:"));
  EXPECT_TRUE(test::FindText(drawing, "Page 2 of 2"));
  EXPECT_FALSE(test::FindText(drawing, "Band Saw Teeth:"));
  EXPECT_GT(test::PiecesOf<SheetArc>(drawing).size(), 10U);
  for (const PrintSheet& sheet : Job().Pages) {
    EXPECT_TRUE(test::FindText(sheet, "oak.bsw"));
    EXPECT_TRUE(test::FindText(sheet, "Nov, 21/26"));
  }
}

TEST_F(PrintCommandsTest, PrintTheSheetsChosen) {
  Windows.Acts = {OkFor(SawPages::Drawing), OkFor(SawPages::Info)};
  Commands.PrintSaw();
  Commands.PrintSaw();
  ASSERT_EQ(Printer.Jobs.size(), 2U);
  ASSERT_EQ(Printer.Jobs[0].Pages.size(), 1U);
  EXPECT_FALSE(test::PiecesOf<SheetArc>(Printer.Jobs[0].Pages[0]).empty());
  EXPECT_TRUE(test::FindText(Printer.Jobs[0].Pages[0], "Page 1 of 1"));
  ASSERT_EQ(Printer.Jobs[1].Pages.size(), 1U);
  EXPECT_TRUE(test::FindText(Printer.Jobs[1].Pages[0], "Band Saw Teeth:"));
  EXPECT_TRUE(test::PiecesOf<SheetArc>(Printer.Jobs[1].Pages[0]).empty());
}

TEST_F(PrintCommandsTest, PrintTheInformationAlone) {
  Windows.Acts = {Ok};
  Commands.PrintInfoOnly();
  EXPECT_EQ(Log(),
            (Texts{"frmPrinter", "choose Alpha", "notice 1 of 1", "begin oak.bsw", "end", "no notice"}));
  EXPECT_TRUE(test::FindText(Job().Pages.at(0), "Band Saw Teeth:"));
}

TEST_F(PrintCommandsTest, PrintTheDrawingAlone) {
  Windows.Acts = {Ok};
  Commands.PrintShapeOnly();
  EXPECT_EQ(Log().front(), "frmPrinter");
  EXPECT_FALSE(test::PiecesOf<SheetLine>(Job().Pages.at(0)).empty());
  EXPECT_FALSE(test::FindText(Job().Pages.at(0), "Band Saw Teeth:"));
}

TEST_F(PrintCommandsTest, TakeThicknessPowerUnitsAndCompanyOfTheSettings) {
  Process.Design.Settings.PrintPowerReq = true;
  Process.Design.Settings.Customer.Name = "North Creek";
  Process.Design.ImpMetric = Metric;
  Windows.Acts = {Ok, Ok};
  Commands.PrintSaw();
  const PrintSheet &info = Job().Pages.at(0), &drawing = Job().Pages.at(1);
  EXPECT_TRUE(test::FindText(info, "Power Requirements:"));
  EXPECT_TRUE(test::FindText(info, " 6.096 m"));
  EXPECT_TRUE(test::FindText(info, "North Creek"));
  EXPECT_TRUE(test::FindText(drawing, "North Creek"));
  EXPECT_EQ(test::PiecesOf<SheetPen>(drawing).at(0).Pen, (PrintPen{7, false}));

  Process.Design.Settings.PrintPowerReq = false;
  Commands.PrintSaw();
  EXPECT_FALSE(test::FindText(Printer.Jobs.at(1).Pages.at(0), "Power Requirements:"));
}

TEST_F(PrintCommandsTest, PrintABlankDesignWithoutRowsAndPieces) {
  Process.Design.ClearSaw();
  Process.Design.Recalculate(Say);
  ClearLog();
  Windows.Acts = {Ok};
  Commands.PrintSaw();
  EXPECT_EQ(test::TextsOf(Job().Pages.at(0)), (Texts{"oak.bsw", "Nov, 21/26", "Page 1 of 2"}));
  EXPECT_TRUE(test::PiecesOf<SheetLine>(Job().Pages.at(1)).empty());
}

TEST_F(PrintCommandsTest, LeaveTheDesignAsItWas) {
  MakeVariable();
  Process.Design.Saw.GeneralInfo.VariableDepth = True;  // the depths are below what the radii allow
  const BandSaw before = Process.Design.Saw;
  Windows.Acts = {Ok, Ok};
  Commands.PrintVariableSegment();
  Commands.PrintSaw();
  EXPECT_TRUE(SameSaw(before, Process.Design.Saw));
  EXPECT_EQ(before.GeneralInfo.VarDepth, Process.Design.Saw.GeneralInfo.VarDepth);
}

// ---- the segment

TEST_F(PrintCommandsTest, SayThatTheBandIsNotVariable) {
  Windows.Acts = {Ok};
  Commands.PrintVariableSegment();
  EXPECT_EQ(Log(), (Texts{"frmPrinter", "choose Alpha",
                          "Printing Canceled: This is not a variable pitch bandsaw.\nThis print job has been "
                          "canceled."}));
  EXPECT_TRUE(Printer.Jobs.empty());
}

TEST_F(PrintCommandsTest, PrintASegmentOfOneSheetWithoutAQuestion) {
  MakeVariable(1.5);
  Windows.Acts = {Ok};
  Commands.PrintVariableSegment();
  EXPECT_EQ(Log(),
            (Texts{"frmPrinter", "choose Alpha", "notice 1 of 1", "begin oak.bsw", "end", "no notice"}));
  EXPECT_TRUE(test::FindText(Job().Pages.at(0), "Pg 1 of 1"));
}

constexpr const char* Tiling =
    "Print Segment: To print out one complete segment of\nvariable pitch teeth requires 4 pages.\n\nDo you "
    "wish "
    "to continue? [yes no]";

TEST_F(PrintCommandsTest, AskBeforeALongSegment) {
  MakeVariable();
  Windows.Acts = {Ok};
  Commands.PrintVariableSegment();
  EXPECT_EQ(Log(), (Texts{"frmPrinter", "choose Alpha", Tiling, "notice 1 of 4", "begin oak.bsw",
                          "notice 2 of 4", "new page", "notice 3 of 4", "new page", "notice 4 of 4",
                          "new page", "end", "no notice"}));
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_TRUE(test::FindText(Job().Pages.at(i), "Pg " + std::to_string(i + 1) + " of 4"));
    EXPECT_TRUE(test::FindText(Job().Pages.at(i), "oak.bsw"));
  }
}

TEST_F(PrintCommandsTest, PrintNothingOfALongSegmentAtNo) {
  MakeVariable();
  Say.Answer = Button::No;
  Windows.Acts = {Ok};
  Commands.PrintVariableSegment();
  EXPECT_EQ(Log(), (Texts{"frmPrinter", "choose Alpha", Tiling}));
  EXPECT_TRUE(Printer.Jobs.empty());
}

// ---- failures

struct FailureRow {
  const char* Name;
  void (PrintCommands::*Command)();
  const char* Procedure;
  friend void PrintTo(const FailureRow& row, std::ostream* out) { *out << row.Name; }
};
class FailingPrinter : public PrintCommandsTest, public testing::WithParamInterface<FailureRow> {};

TEST_P(FailingPrinter, LeavesNoJobAndNoNoticeAndIsTold) {
  MakeVariable();
  const std::error_code failure = std::make_error_code(std::errc::io_error);
  Printer.FailsToEnd = failure;
  Windows.Acts = {Ok};
  (Commands.*GetParam().Command)();
  ASSERT_GE(Log().size(), 4U);
  EXPECT_EQ(Texts(Log().end() - 4, Log().end()),
            (Texts{"end", "cancel", "no notice",
                   "Printer: Error Number: " + std::to_string(failure.value()) + '\n' + failure.message() +
                       "\nSub Program " + GetParam().Procedure}));
  EXPECT_EQ(Job().Is, PrintedJob::Fate::Cancelled);
}

TEST_P(FailingPrinter, SaysNothingWhenTheUserHasStoppedTheJob) {
  MakeVariable();
  Printer.FailsToBegin = std::make_error_code(std::errc::operation_canceled);
  Windows.Acts = {Ok};
  (Commands.*GetParam().Command)();
  ASSERT_GE(Log().size(), 3U);
  EXPECT_EQ(Texts(Log().end() - 3, Log().end()), (Texts{"begin oak.bsw", "cancel", "no notice"}));
}

TEST_P(FailingPrinter, LeavesNoJobAndNoNoticeWhenAnExceptionComesThrough) {
  MakeVariable();
  Printer.Throws = true;
  Windows.Acts = {Ok};
  EXPECT_THROW((Commands.*GetParam().Command)(), std::system_error);
  EXPECT_EQ(Texts(Log().end() - 2, Log().end()), (Texts{"cancel", "no notice"}));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, FailingPrinter,
    testing::Values(FailureRow{"Saw", &PrintCommands::PrintSaw, "mnuItemPrint"},
                    FailureRow{"Info", &PrintCommands::PrintInfoOnly, "mnuItemPrintInfo"},
                    FailureRow{"Shape", &PrintCommands::PrintShapeOnly, "mnuItemPrintShape"},
                    FailureRow{"Segment", &PrintCommands::PrintVariableSegment, "mnuItemPrintVariable"}),
    [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace tarnwick
