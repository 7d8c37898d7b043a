#include <gtest/gtest.h>

#include <string>
#include <system_error>

#include "print/PrintDesk.h"

namespace tarnwick {
namespace {

using test::Cancel;
using test::NoPrinters;
using test::Ok;
using test::PrintCommandsTest;
using test::Texts;

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
            (PaperBox{720, 2900, 14 * 1440 - 720, 11880}));
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

}  // namespace
}  // namespace tarnwick
