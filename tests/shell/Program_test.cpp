#include "shell/Program.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store/modSave.h"
#include "support/Designs.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::PlainDesign;
using test::TemporaryFolder;
using test::TestProgram;

std::string Stored(const TemporaryFolder& folder, const char* name, const BandSaw& saw) {
  return folder.File(name, BandSawText(saw)).string();
}

TEST(ProgramStart, MakesTheFoldersOnACleanMachine) {
  TestProgram program;
  program.Start();
  EXPECT_TRUE(fs::is_directory(program.Documents.Path() / "Tarnwick" / "Bandsaws"));
  EXPECT_TRUE(fs::is_directory(program.Documents.Path() / "Tarnwick" / "Dxfs"));
  EXPECT_EQ(program.Process.Design.Settings.Display.ZoomWindowColor, Rgb(0, 0, 255));
  EXPECT_EQ(fs::path(program.Process.Design.SawDir()),
            program.Documents.Path() / "Tarnwick" / "Bandsaws" / "");
  EXPECT_TRUE(program.Say.Shown.empty());
}

TEST(ProgramStart, TakesTheSettingsOfTheStore) {
  TestProgram program;
  program.Store.Settings() = {{"DecimalPlaces", " 7"}, {"DisplayScale", " 1.25"}, {"MainImpMetric", " 1"}};
  program.Start();
  const OpenDesign& design = program.Process.Design;
  EXPECT_EQ(design.Settings.Calculation.DecimalPlaces, 7);
  EXPECT_EQ(design.Settings.Display.DisplayScale, 1.25);
  EXPECT_EQ(design.ImpMetric, Metric);
  EXPECT_EQ(design.Saw.ImpMetric, 1);
  EXPECT_TRUE(SameSaw(design.Saw, design.SawSaved));
  EXPECT_TRUE(SameSaw(design.Saw, design.SawEdit));
}

TEST(ProgramStart, TakesTheDefaultsInPlaceOfAStoreThatCannotBeRead) {
  TestProgram program;
  program.Store.Settings() = {{"DecimalPlaces", " 7"}, {"MemorySize", "1e20"}, {"PrintLineThick", " 9"}};
  program.Start();
  const Config& settings = program.Process.Design.Settings;
  EXPECT_EQ(settings.Calculation.DecimalPlaces, 5);
  EXPECT_EQ(settings.Calculation.MemorySize, 128000);
  EXPECT_EQ(settings.PrintLineThick, 1);
  EXPECT_TRUE(fs::is_directory(program.Documents.Path() / "Tarnwick" / "Dxfs"));
  EXPECT_TRUE(program.Say.Shown.empty());
}

TEST(ProgramOpen, OpensTheDesignOfTheCommandLineOnce) {
  TestProgram program;
  program.Start(Stored(program.Documents, "head.bsw", PlainDesign()));
  EXPECT_EQ(program.Process.Design.FileName, "untitled.bsw");
  EXPECT_TRUE(program.Process.OpenCommandFile());
  EXPECT_EQ(program.Process.Design.FileName, "head.bsw");
  program.Process.Design.FileName = "other.bsw";
  EXPECT_FALSE(program.Process.OpenCommandFile());
  EXPECT_EQ(program.Process.Design.FileName, "other.bsw");
}

TEST(ProgramOpen, PutsTheDesignAtTheTopOfTheRecentFilesAndSavesThem) {
  TestProgram program;
  const std::string path = Stored(program.Documents, "head.bsw", PlainDesign());
  program.Start(path);
  program.Process.OpenCommandFile();
  ASSERT_EQ(program.Process.Design.Settings.Recent.size(), 1u);
  EXPECT_EQ(program.Process.Design.Settings.Recent[0].Path(), path);
  EXPECT_EQ(program.Store.Settings()["RecentNumFiles"], " 1");
  EXPECT_EQ(program.Store.Settings()["RecentFile1"], "head.bsw");
}

TEST(ProgramOpen, KeepsARefusedFileOutOfTheRecentFiles) {
  TestProgram program;
  program.Start(program.Documents.File("list.bsw", "Shopping list").string());
  EXPECT_TRUE(program.Process.OpenCommandFile());
  EXPECT_TRUE(program.Process.Design.Settings.Recent.empty());
  EXPECT_EQ(program.Say.Shown.size(), 1u);
}

TEST(ProgramOpen, ShowsADesignInItsOwnUnitsAndANewOneInThoseOfTheSettings) {
  TestProgram program;
  BandSaw metric = PlainDesign();
  metric.ImpMetric = 1;
  program.Start(Stored(program.Documents, "metric.bsw", metric));
  EXPECT_EQ(program.Process.Design.ImpMetric, Imperial);
  program.Process.OpenCommandFile();
  EXPECT_EQ(program.Process.Design.ImpMetric, Metric);
  EXPECT_TRUE(program.Process.Design.Format().IsMetric());
  program.Process.Design.ClearSaw();
  EXPECT_EQ(program.Process.Design.ImpMetric, Imperial);
  EXPECT_EQ(program.Process.Design.Saw.ImpMetric, 0);
}

TEST(ProgramSettings, TellsWhenTheyCannotBeSavedAndGoesOn) {
  TestProgram program;
  program.Start();
  program.Store.FinishFailure = std::make_error_code(std::errc::permission_denied);
  program.Process.SaveSettings();
  ASSERT_GE(program.Say.Shown.size(), 2u);
  EXPECT_EQ(program.Say.Shown.back().Title, "Error");
  EXPECT_EQ(program.Say.Shown.back().Text, "Unable to save config file");
}

}  // namespace
}  // namespace tarnwick
