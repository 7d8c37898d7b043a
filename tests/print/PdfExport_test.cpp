#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <system_error>

#include "print/PrintDesk.h"
#include "store/modFiles.h"
#include "store/modPath.h"

namespace tarnwick {
namespace {

using test::PrintCommandsTest;
using test::PrintedJob;
using test::Texts;

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

TEST_F(PrintCommandsTest, ExportTheInformationOfTheDesignAndNotOfItsSegment) {
  MakeVariable();
  Process.Design.Saw.ToothStyle = FrostTooth;
  Process.Design.Saw.GulletInfo.Radius = 0;  // with which a segment has no teeth, nor a face
  Process.Design.Recalculate(Say);
  ASSERT_GT(Process.Design.Saw.GulletInfo.FaceLength, 0);
  Files.Paths = {"print.pdf"};
  Commands.ExportPdf();
  EXPECT_TRUE(test::FindText(Pdf.Jobs.at(0).Pages.at(0), "Face Length:"));
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
