#include "shell/Program.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store/modSave.h"
#include "support/Designs.h"
#include "support/OpenPath.h"
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

TEST(ProgramOpen, HandsOutTheDesignOfTheCommandLineOnce) {
  TestProgram program;
  program.Start("head.bsw");
  EXPECT_EQ(program.Process.TakeCommandFile(), "head.bsw");
  EXPECT_EQ(program.Process.TakeCommandFile(), "");
}

TEST(ProgramOpen, PutsTheDesignAtTheTopOfTheRecentFilesAndSavesThem) {
  TestProgram program;
  program.Start();
  const std::string path = Stored(program.Documents, "head.bsw", PlainDesign());
  ASSERT_TRUE(test::OpenPath(program.Process.Design, path, program.Say));
  program.Process.AddToRecent();
  ASSERT_EQ(program.Process.Design.Settings.Recent.size(), 1u);
  EXPECT_EQ(program.Process.Design.Settings.Recent[0].Path(), path);
  EXPECT_EQ(program.Store.Settings()["RecentNumFiles"], " 1");
  EXPECT_EQ(program.Store.Settings()["RecentFile1"], "head.bsw");
}

TEST(ProgramOpen, ShowsADesignInItsOwnUnitsAndANewOneInThoseOfTheSettings) {
  TestProgram program;
  BandSaw metric = PlainDesign();
  metric.ImpMetric = 1;
  program.Start();
  OpenDesign& design = program.Process.Design;
  EXPECT_EQ(design.ImpMetric, Imperial);
  ASSERT_TRUE(test::OpenPath(design, Stored(program.Documents, "metric.bsw", metric), program.Say));
  EXPECT_EQ(design.ImpMetric, Metric);
  EXPECT_TRUE(design.Format().IsMetric());
  design.ClearSaw();
  EXPECT_EQ(design.ImpMetric, Imperial);
  EXPECT_EQ(design.Saw.ImpMetric, 0);
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
