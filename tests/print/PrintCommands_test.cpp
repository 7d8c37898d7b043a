#include "print/PrintCommands.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "power/PowerCalculator.h"
#include "power/PowerEditor.h"
#include "power/PowerEstimateList.h"
#include "store/modFiles.h"
#include "store/modPath.h"
#include "support/FullDesign.h"
#include "support/MemoryStore.h"
#include "support/PowerDesign.h"
#include "support/RecordingHelpViewer.h"
#include "support/RecordingPrintDevice.h"
#include "support/RecordingTrash.h"
#include "support/ScriptedColorDialog.h"
#include "support/ScriptedDialogHost.h"
#include "support/ScriptedFileDialogs.h"
#include "support/ScriptedPowerHost.h"
#include "support/ScriptedPrintHost.h"
#include "support/StoppedClock.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::FullDesign;
using test::PrintedJob;
using test::Texts;

constexpr const char* NoPrinters = "No Printers!: No windows printers available! [information]";

/// Boxes among all else that is done, "title: text", and what is answered.
class NotedMessages final : public Messages {
 public:
  explicit NotedMessages(Texts& log) : log_(log) {}
  Button Show(const Box& box) override {
    log_.push_back(box.Title + ": " + box.Text + (box.Offer == Buttons::YesNo ? " [yes no]" : "") +
                   (box.Shown == Icon::Information ? " [information]" : ""));
    return box.Offer == Buttons::Ok ? Button::Ok : Answer;
  }
  Button Answer = Button::Yes;

 private:
  Texts& log_;
};

void Ok(PrinterChoice& choice) { choice.PressOk(); }
void Cancel(PrinterChoice& choice) { choice.PressCancel(); }
auto OkFor(SawPages pages) {
  return [pages](PrinterChoice& choice) {
    choice.ChoosePages(pages);
    choice.PressOk();
  };
}

/// A program with a design, two printers, and somebody at its windows.
class PrintCommandsTest : public testing::Test {
 protected:
  PrintCommandsTest() {
    Process.Start(Documents.Path().string(), {});
    OpenDesign& design = Process.Design;
    design.FileName = "oak.bsw";
    design.Settings.CurrentSawDir = PathText(Documents.Path()) + PathSeparator;
    design.Settings.PrintLineThick = 7;
    design.Saw = FullDesign();
    design.Recalculate(Say);
    log_.clear();
  }

  /// A band of three pitches, its segment 20 inches long or as long as told.
  void MakeVariable(double average = 20.0 / 3) {
    BandSaw& saw = Process.Design.Saw;
    saw.NumTeeth = 36;
    saw.Length = 36 * average / 12;
    saw.Pitch = 0;
    saw.BothEdges = False;
    saw.GeneralInfo.VariablePitch = True;
    saw.GeneralInfo.NumVariables = 3;
    saw.GeneralInfo.VarPitch = {average * 1.1, average, average * 0.9};
    saw.DesignInfo.SegmentLength = 3 * average;
    Process.Design.Recalculate(Say);
    log_.clear();
  }

  /// The estimates for a tenth more.
  PowerEstimateList Estimates() {
    test::ScriptedDialogHost dialogs;
    test::ScriptedPowerHost power;
    PowerEditor editor(Process, dialogs, power);
    editor.GetSawPowerData(test::PowerDesign());
    editor.TypePercent("10");
    return *editor.Estimates();
  }

  [[nodiscard]] const PrintedJob& Job() const {
    EXPECT_EQ(Printer.Jobs.size(), 1U);
    return Printer.Jobs.at(0);
  }

 private:
  Texts log_;

 protected:
  [[nodiscard]] const Texts& Log() const { return log_; }
  void ClearLog() { log_.clear(); }

  NotedMessages Say{log_};
  test::StoppedClock Time;
  test::MemoryStore Store;
  test::ScriptedColorDialog Colors;
  test::RecordingHelpViewer Help;
  test::ScriptedFileDialogs Files;
  test::RecordingTrash Bin;
  test::TemporaryFolder Documents;
  Program Process{{Say, Time, Store, Colors, Help, Files, Bin}};

  test::RecordingPrintDevice Printer{log_};
  test::ScriptedPrintHost Windows{log_};
  test::RecordingPdfFiles Pdf{log_};
  PrintCommands Commands{{Process, Printer, Windows, Pdf}};
};

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

// ---- the printer

TEST_F(PrintCommandsTest, SayThatThereIsNoPrinter) {
  Printer.Names.clear();
  MakeVariable();
  Commands.PrintSaw();
  Commands.PrintInfoOnly();
  Commands.PrintShapeOnly();
  Commands.PrintVariableSegment();
  Commands.PrintEstimates(Estimates());
  EXPECT_EQ(Log(), (Texts(5, NoPrinters)));
  EXPECT_TRUE(Printer.Jobs.empty());
}

TEST_F(PrintCommandsTest, StopAtCancelWithoutAWord) {
  MakeVariable();
  Windows.Acts = {Cancel, Cancel, Cancel, Cancel};
  Commands.PrintSaw();
  Commands.PrintInfoOnly();
  Commands.PrintShapeOnly();
  Commands.PrintVariableSegment();
  EXPECT_EQ(Log(), (Texts{"frmPrinterPage", "frmPrinter", "frmPrinter", "frmPrinter"}));
  EXPECT_TRUE(Printer.Jobs.empty());
}

TEST_F(PrintCommandsTest, ForgetWhatWasChosenAtCancel) {
  Windows.Acts = {[](PrinterChoice& choice) {
    choice.Select(1);
    choice.TickSavePrinter(true);
    choice.PressCancel();
  }};
  Commands.PrintSaw();
  EXPECT_EQ(Process.Design.Settings.DefaultPrinter, 0);
  EXPECT_EQ(Process.Design.Settings.DefaultPrinterName, "");
}

TEST_F(PrintCommandsTest, OpenOnThePrinterOfTheSettings) {
  Process.Design.Settings.DefaultPrinter = 1;
  Windows.Acts = {[](PrinterChoice& choice) {
    EXPECT_EQ(choice.Printers(), (Texts{"Alpha", "Beta"}));
    EXPECT_EQ(choice.Name(), "Beta");
    choice.PressOk();
  }};
  Commands.PrintInfoOnly();
  EXPECT_EQ(Job().Printer, "Beta");
}

struct IndexRow {
  const char* Name;
  std::int16_t Saved;
  friend void PrintTo(const IndexRow& row, std::ostream* out) { *out << row.Name; }
};
class SavedPrinter : public PrintCommandsTest, public testing::WithParamInterface<IndexRow> {};

TEST_P(SavedPrinter, IsTheFirstWhenItIsNotThere) {
  Process.Design.Settings.DefaultPrinter = GetParam().Saved;
  Windows.Acts = {[](PrinterChoice& choice) {
    EXPECT_EQ(choice.Selected(), 0U);
    choice.PressCancel();
  }};
  Commands.PrintInfoOnly();
  EXPECT_EQ(Process.Design.Settings.DefaultPrinter, 0) << "and it is so from now on";
}

INSTANTIATE_TEST_SUITE_P(Indices, SavedPrinter,
                         testing::Values(IndexRow{"JustBeyond", 2}, IndexRow{"FarBeyond", 32767},
                                         IndexRow{"BelowAll", -1}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(PrintCommandsTest, SaveTheIndexOnlyWhenItIsTickedButTheNameAlways) {
  const auto beta = [](bool save) {
    return [save](PrinterChoice& choice) {
      choice.Select(1);
      choice.TickSavePrinter(save);
      choice.PressOk();
    };
  };
  Windows.Acts = {beta(false), beta(true)};
  Commands.PrintInfoOnly();
  EXPECT_EQ(Process.Design.Settings.DefaultPrinter, 0);
  EXPECT_EQ(Process.Design.Settings.DefaultPrinterName, "Beta");
  EXPECT_EQ(Job().Printer, "Beta");
  Commands.PrintInfoOnly();
  EXPECT_EQ(Process.Design.Settings.DefaultPrinter, 1);
}

TEST_F(PrintCommandsTest, SetThePrinterUp) {
  Windows.Setup = PrinterSetup{LegalPaper, PaperOrientation::Landscape, 4};
  Windows.Acts = {[](PrinterChoice& choice) {
    choice.PressSetup();
    choice.PressOk();
  }};
  Commands.PrintInfoOnly();
  EXPECT_EQ(Log(), (Texts{"frmPrinter", "set up Alpha", "choose Alpha", "notice 1 of 1", "begin oak.bsw",
                          "end", "no notice"}));
  EXPECT_FALSE(Windows.SetupOpenedOn) << "the printer's own";
  EXPECT_EQ(Job().Setup, *Windows.Setup);
}

TEST_F(PrintCommandsTest, KeepPaperAndDirectionOfThePrinterInUseButNotItsCopies) {
  Windows.Setup = PrinterSetup{LegalPaper, PaperOrientation::Landscape, 4};
  Windows.Acts = {[](PrinterChoice& choice) {
                    choice.PressSetup();
                    choice.PressOk();
                  },
                  Ok,
                  [](PrinterChoice& choice) {
                    choice.PressSetup();
                    choice.PressOk();
                  },
                  [](PrinterChoice& choice) {
                    choice.Select(1);
                    choice.PressSetup();
                    choice.PressCancel();
                  }};
  Commands.PrintInfoOnly();
  Commands.PrintSaw();
  EXPECT_EQ(Printer.Jobs.at(1).Setup, (PrinterSetup{LegalPaper, PaperOrientation::Landscape, 1}));
  Commands.PrintInfoOnly();
  EXPECT_EQ(Windows.SetupOpenedOn, (PrinterSetup{LegalPaper, PaperOrientation::Landscape, 1}));
  Commands.PrintInfoOnly();
  EXPECT_FALSE(Windows.SetupOpenedOn) << "another printer has a setup of its own";
}

TEST_F(PrintCommandsTest, LayTheSheetsOutForThePaper) {
  Printer.Own["Alpha"] = {9, PaperOrientation::Portrait, 1};
  Printer.Own["Beta"] = {LegalPaper, PaperOrientation::Landscape, 1};
  Windows.Acts = {Ok, [](PrinterChoice& choice) {
                    choice.Select(1);
                    choice.PressOk();
                  }};
  Commands.PrintShapeOnly();
  Commands.PrintShapeOnly();
  EXPECT_EQ(Printer.Jobs.at(0).Setup.Paper, LetterPaper) << "A4 comes out on letter";
  EXPECT_EQ(test::PiecesOf<SheetClip>(Printer.Jobs[0].Pages.at(0)).at(0).Box,
            (PaperBox{720, 2600, 10800, 15480}));
  EXPECT_EQ(Printer.Jobs.at(1).Setup.Paper, LegalPaper);
  EXPECT_EQ(test::PiecesOf<SheetClip>(Printer.Jobs[1].Pages.at(0)).at(0).Box,
            (PaperBox{720, 2900, 14 * 1440 - 720, 11160}));
}

TEST_F(PrintCommandsTest, PassTheQualityOn) {
  Windows.Acts = {[](PrinterChoice& choice) {
                    choice.TickQuality(true);
                    choice.PressOk();
                  },
                  Ok};
  Commands.PrintSaw();
  EXPECT_EQ(Job().Quality, PrintQuality::High);
  Commands.PrintInfoOnly();
  EXPECT_EQ(Printer.Jobs.at(1).Quality, PrintQuality::Normal);
}

TEST_F(PrintCommandsTest, SayThatThePaperIsOfNoUse) {
  Printer.Own["Alpha"].Paper = 9;
  Printer.RefusedPaper = {LetterPaper};
  Windows.Acts = {Ok};
  Commands.PrintSaw();
  EXPECT_EQ(Log(), (Texts{"frmPrinterPage", "choose Alpha",
                          "Tarnwick: Tarnwick can not print to the selected paper size."}));
  EXPECT_TRUE(Printer.Jobs.empty());
}

TEST_F(PrintCommandsTest, SayThatThePrinterHasGone) {
  Printer.Gone = {"Alpha"};
  Windows.Acts = {Ok};
  Commands.PrintSaw();
  const std::error_code failure = std::make_error_code(std::errc::no_such_device);
  EXPECT_EQ(Log(), (Texts{"frmPrinterPage", "Printer: Error Number: " + std::to_string(failure.value()) +
                                                '\n' + failure.message() + "\nSub Program mnuItemPrint"}));
  EXPECT_TRUE(Printer.Jobs.empty()) << "and not on another one instead";
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

// ---- power

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

// ---- a file

TEST_F(PrintCommandsTest, ExportAllSheetsOfTheSaw) {
  const std::string folder = Process.Design.SawDir();
  Files.Paths = {folder + "print.pdf"};
  Commands.ExportPdf();
  ASSERT_EQ(Files.Asked.size(), 1U);
  EXPECT_EQ(Files.Modes, Texts{"save"});
  EXPECT_EQ(Files.Asked[0].Filter, "Pdf Files (*.pdf)|*.pdf");
  EXPECT_EQ(Files.Asked[0].Folder, folder);
  EXPECT_EQ(Files.Asked[0].Name, "oak.pdf");
  EXPECT_TRUE(Files.Asked[0].WarnBeforeReplacing);
  EXPECT_EQ(Log(), (Texts{"file " + folder + "print.pdf", "notice 1 of 2", "begin oak.bsw", "notice 2 of 2",
                          "new page", "end", "no notice"}));
  ASSERT_EQ(Pdf.Jobs.size(), 1U);
  EXPECT_EQ(Pdf.Jobs[0].Is, PrintedJob::Fate::Ended);
  EXPECT_EQ(Pdf.Jobs[0].Setup, PrinterSetup()) << "letter, upright";
  EXPECT_TRUE(Printer.Jobs.empty());
}

TEST_F(PrintCommandsTest, ExportTheSegmentToo) {
  MakeVariable();
  Files.Paths = {"print.pdf"};
  Commands.ExportPdf();
  ASSERT_EQ(Pdf.Jobs.size(), 1U);
  ASSERT_EQ(Pdf.Jobs[0].Pages.size(), 6U) << "and nobody is asked how many";
  EXPECT_TRUE(test::FindText(Pdf.Jobs[0].Pages[1], "Page 2 of 2"));
  EXPECT_TRUE(test::FindText(Pdf.Jobs[0].Pages[2], "Pg 1 of 4"));
  EXPECT_TRUE(test::FindText(Pdf.Jobs[0].Pages[5], "Pg 4 of 4"));
}

TEST_F(PrintCommandsTest, ExportNeedsNoPrinter) {
  Printer.Names.clear();
  Files.Paths = {"print.pdf"};
  Commands.ExportPdf();
  EXPECT_EQ(Pdf.Jobs.size(), 1U);
}

TEST_F(PrintCommandsTest, ExportNothingAtCancel) {
  Files.Paths = {std::nullopt};
  Commands.ExportPdf();
  EXPECT_TRUE(Log().empty());
  EXPECT_TRUE(Pdf.Jobs.empty());
}

TEST_F(PrintCommandsTest, ExportUnderItsEnding) {
  const std::string folder = Process.Design.SawDir();
  Files.Paths = {folder + "print", folder + "PRINT.PDF"};
  Commands.ExportPdf();
  EXPECT_EQ(Log().front(), "file " + folder + "print.pdf");
  ClearLog();
  Commands.ExportPdf();
  EXPECT_EQ(Log().front(), "file " + folder + "PRINT.PDF");
}

TEST_F(PrintCommandsTest, AskBeforeAFileGoesThatTheDialogHasNotWarnedOf) {
  const std::string path = Process.Design.SawDir() + "print";
  ASSERT_FALSE(WriteWholeFile(FilePath(path + ".pdf"), "old"));
  Files.Paths = {path};
  Say.Answer = Button::No;
  Commands.ExportPdf();
  ASSERT_EQ(Log().size(), 1U);
  EXPECT_NE(Log()[0].find("Do you want to replace it?"), std::string::npos);
  EXPECT_TRUE(Pdf.Jobs.empty());
}

TEST_F(PrintCommandsTest, TellOfAFileThatCannotBeWritten) {
  const std::error_code failure = std::make_error_code(std::errc::no_space_on_device);
  Pdf.FailsToEnd = failure;
  Files.Paths = {"print.pdf"};
  Commands.ExportPdf();
  EXPECT_EQ(Log().back(), "Saving: Error Number: " + std::to_string(failure.value()) + '\n' +
                              failure.message() + "\nSub Program mnuItemExportPdf");
  EXPECT_EQ(Pdf.Jobs.at(0).Is, PrintedJob::Fate::Cancelled);
}

}  // namespace
}  // namespace tarnwick
