#include "shell/DocumentCommands.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store/modPath.h"
#include "store/modSave.h"
#include "support/BrokenFileDialogs.h"
#include "support/Designs.h"
#include "support/ScriptedDialogHost.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::PlainDesign;
using Texts = std::vector<std::string>;

/// Writes down what the window is told to show, in order.
class RecordingWindow final : public MainView, public DocumentView {
 public:
  void ShowPanel(Panel panel) override { Note("panel " + std::to_string(static_cast<int>(panel))); }
  [[nodiscard]] Panel CurrentPanel() const override { return Panel::Main; }
  void ShowSawInfo() override { Note("rows"); }
  void FillBoxes() override { Note("boxes"); }
  void ShowUnits() override { Note("units"); }
  void DrawSaw() override { Note("draw"); }
  void ShowStatus(std::string_view, std::string_view) override {}
  void ShowCaption() override { Note("caption"); }
  void ShowRecentFiles() override { Note("recent"); }
  void ShowTeethDirection() override { Note("direction"); }
  void SetBusy(bool busy) override { Note(busy ? "busy" : "not busy"); }
  void ShowAnimation() override {
    Note("animation");
    if (Meanwhile) Meanwhile();
  }
  void HideAnimation() override { Note("no animation"); }
  void LetEventsRun() override {}

  Texts Log;
  std::function<void()> Meanwhile;  // what somebody does while the animation plays

 private:
  void Note(std::string what) { Log.push_back(std::move(what)); }
};

std::string Question(const char* first) {
  return std::string(first) + "\n\nDo you want to save this file?              ";
}
const std::string BandsawChanged = Question("     Bandsaw file has changed!");

class Document : public testing::Test {
 protected:
  Document() {
    program_.Start();
    program_.Say.Shown.clear();
  }

  OpenDesign& Design() { return program_.Process.Design; }
  std::string Folder() const { return program_.Documents.Path().string() + PathSeparator; }
  std::string Path(const char* name) const { return Folder() + name; }
  std::string Stored(const char* name) const {
    return program_.Documents.File(name, BandSawText(PlainDesign())).string();
  }
  void Open(const char* name) {
    commands_.OpenNamedFile(name, Folder());
    window_.Log.clear();
    program_.Say.Shown.clear();
  }
  void Change() { Design().Saw.HookAngle += 1; }
  void Answer(std::initializer_list<Button> answers) { program_.Say.Answers.assign(answers); }
  const Box& LastBox() const { return program_.Say.Shown.back(); }

  test::TestProgram program_;
  test::ScriptedDialogHost dialogs_;
  test::ScriptedFileDialogs& files_ = program_.Files;
  test::RecordingTrash& trash_ = program_.Bin;
  RecordingWindow window_;
  DocumentCommands commands_{{program_.Process, dialogs_, window_, window_}};
};

// ---- new

TEST_F(Document, NewBeginsABlankDesignAndKeepsTheFolder) {
  Stored("head.bsw");
  Open("head.bsw");
  commands_.New();
  EXPECT_EQ(Design().Caption(), "untitled.bsw - Tarnwick");
  EXPECT_EQ(Design().SawDir(), Folder());
  EXPECT_TRUE(SameSaw(Design().Saw, BandSaw{}));
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawEdit));
  EXPECT_TRUE(Design().Lines.Entities.empty());
  EXPECT_EQ(window_.Log, (Texts{"caption", "units", "rows", "boxes", "panel 1", "draw"}));
  EXPECT_TRUE(program_.Say.Shown.empty());
}

TEST_F(Document, NewAsksAboutAChangedDesignWordForWord) {
  Change();
  Answer({Button::Cancel});
  commands_.New();
  ASSERT_EQ(program_.Say.Shown.size(), 1u);
  EXPECT_EQ(LastBox().Title, "Save File.");
  EXPECT_EQ(LastBox().Text, BandsawChanged);
  EXPECT_EQ(LastBox().Offer, Buttons::YesNoCancel);
  EXPECT_EQ(LastBox().Shown, Icon::Question);
  EXPECT_NE(Design().Saw.HookAngle, 0);
  EXPECT_TRUE(window_.Log.empty());
}

TEST_F(Document, NewAfterNoLosesTheChange) {
  Change();
  Answer({Button::No});
  commands_.New();
  EXPECT_EQ(Design().Saw.HookAngle, 0);
}

TEST_F(Document, NewAfterYesAndCancelInTheDialogDoesNothing) {
  Change();
  const BandSaw before = Design().Saw;
  Answer({Button::Yes});
  files_.Paths = {std::nullopt};
  commands_.New();
  EXPECT_TRUE(SameSaw(Design().Saw, before));
  EXPECT_EQ(Design().Caption(), "untitled.bsw - Tarnwick");
}

TEST_F(Document, NewAfterYesSavesFirst) {
  Change();
  Answer({Button::Yes});
  files_.Paths = {Path("kept.bsw")};
  commands_.New();
  EXPECT_TRUE(fs::exists(Path("kept.bsw")));
  EXPECT_FALSE(files_.Asked[0].WarnBeforeReplacing);
  EXPECT_EQ(Design().FileName, "untitled.bsw");
  EXPECT_EQ(Design().Saw.HookAngle, 0);
}

TEST_F(Document, NewTakesTheUnitsOfTheSettings) {
  Design().Settings.MainImpMetric = 1;
  commands_.New();
  EXPECT_EQ(Design().ImpMetric, 1);
  EXPECT_EQ(Design().Saw.ImpMetric, 1);
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
}

// ---- step by step

TEST_F(Document, StepByStepAsksWithItsOwnSpelling) {
  Change();
  Answer({Button::Cancel});
  commands_.NewStepByStep();
  EXPECT_EQ(LastBox().Text, Question("     Bandaw file has changed!"));
}

TEST_F(Document, StepByStepAbortedLeavesABlankUnchangedDesignInTheUnitsOfTheSettings) {
  Design().Settings.MainImpMetric = 1;
  dialogs_.Values = {test::Cancels()};
  commands_.NewStepByStep();
  EXPECT_EQ(Design().Saw.ImpMetric, 1);
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
}

// ---- open

TEST_F(Document, OpenShowsTheDesignAndPutsItAtTheTopOfTheRecentFiles) {
  files_.Paths = {Stored("head.bsw")};
  commands_.Open();
  EXPECT_EQ(files_.Asked[0].Filter, "Band Saw Files (*.bsw)|*.bsw");
  EXPECT_EQ(files_.Asked[0].Name, "untitled.bsw");
  EXPECT_EQ(Design().Caption(), "head.bsw - Tarnwick");
  EXPECT_EQ(Design().SawDir(), Folder());
  EXPECT_EQ(Design().Saw.NumTeeth, 120);
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
  EXPECT_EQ(Design().Settings.Recent[0].Path(), Path("head.bsw"));
  EXPECT_EQ(window_.Log, (Texts{"caption", "busy", "rows", "boxes", "animation", "units", "draw", "panel 1",
                                "rows", "boxes", "no animation", "not busy", "recent"}));
}

TEST_F(Document, OpenCancelledChangesNothing) {
  Stored("head.bsw");
  Open("head.bsw");
  files_.Paths = {std::nullopt};
  commands_.Open();
  EXPECT_EQ(Design().FileName, "head.bsw");
  EXPECT_TRUE(window_.Log.empty());
}

TEST_F(Document, OpenAsksAboutTheFileThatIsOpenEvenWithoutAChange) {
  Stored("head.bsw");
  Open("head.bsw");
  files_.Paths = {Path("head.bsw")};
  Answer({Button::Cancel});
  commands_.Open();
  EXPECT_EQ(LastBox().Title, "File open!");
  EXPECT_EQ(LastBox().Text, "     File already open!  Save file before opening?");
  EXPECT_EQ(LastBox().Offer, Buttons::YesNoCancel);
  EXPECT_EQ(LastBox().Shown, Icon::None);
  EXPECT_TRUE(window_.Log.empty());
}

TEST_F(Document, OpenRemovesAFileThatIsNoBandSaw) {
  files_.Paths = {program_.Documents.File("list.bsw", "Shopping list").string()};
  commands_.Open();
  EXPECT_EQ(LastBox().Text, "Not a valid Band Saw File     ");
  EXPECT_EQ(trash_.Removed, Texts{Path("list.bsw")});
  EXPECT_FALSE(fs::exists(Path("list.bsw")));
  EXPECT_EQ(Design().Caption(), "untitled.bsw - Tarnwick");
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
  EXPECT_TRUE(Design().Settings.Recent.empty());
  EXPECT_EQ(window_.Log.back(), "not busy");
}

TEST_F(Document, OpenOfAMissingFileLeavesABlankDesign) {
  Stored("head.bsw");
  Open("head.bsw");
  files_.Paths = {Path("gone.bsw")};
  commands_.Open();
  EXPECT_TRUE(trash_.Removed.empty());
  EXPECT_EQ(Design().FileName, "untitled.bsw");
  EXPECT_TRUE(SameSaw(Design().Saw, BandSaw{}));
}

TEST_F(Document, TheFileOfTheCommandLineIsOpenedOnce) {
  program_.Start(Stored("head.bsw"));
  commands_.Begin();
  EXPECT_EQ(Design().FileName, "head.bsw");
  window_.Log.clear();
  commands_.Begin();
  EXPECT_TRUE(window_.Log.empty());
}

TEST_F(Document, TheFileOfTheCommandLineIsRemovedWhenItIsNoBandSaw) {
  program_.Start(program_.Documents.File("list.bsw", "Shopping list").string());
  commands_.Begin();
  EXPECT_EQ(trash_.Removed, Texts{Path("list.bsw")});
  EXPECT_EQ(Design().Caption(), "untitled.bsw - Tarnwick");
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawEdit));
  EXPECT_TRUE(Design().Settings.Recent.empty());
}

TEST_F(Document, TheFileOfTheCommandLineStaysWhenItsNameHasNoDot) {
  program_.Start(Stored("head"));
  commands_.Begin();
  EXPECT_TRUE(trash_.Removed.empty());
  EXPECT_TRUE(fs::exists(Path("head")));
  EXPECT_EQ(Design().FileName, "untitled.bsw");
}

// ---- after a crash

/// Leaves what a program leaves that crashes with a changed design.
void Crash(const test::TestProgram& program, double hook) {
  OpenDesign design;
  design.Saw = PlainDesign();
  design.Saw.HookAngle = hook;
  design.FileName = "lost.bsw";
  design.Settings.CurrentSawDir = program.Documents.Path().string() + PathSeparator;
  Recovery(program.State.Path()).Note(design);
}

bool HasCopy(const test::TestProgram& program) {
  for (const auto& entry : fs::recursive_directory_iterator(program.State.Path())) {
    if (entry.path().extension() == ".copy") return true;
  }
  return false;
}

TEST_F(Document, TheDesignOfACrashComesUpInPlaceOfThatOfTheCommandLine) {
  Crash(program_, 25);
  program_.Start(Stored("head.bsw"));
  Answer({Button::Yes});
  commands_.Begin();
  EXPECT_EQ(LastBox().Title, "Recovery");
  EXPECT_EQ(Design().Caption(), "lost.bsw - Tarnwick");
  EXPECT_EQ(Design().Saw.HookAngle, 25);
  EXPECT_EQ(window_.Log, (Texts{"caption", "units", "draw", "panel 1", "rows", "boxes"}));
  commands_.Begin();
  EXPECT_EQ(Design().Caption(), "lost.bsw - Tarnwick");
}

TEST_F(Document, TheDesignOfTheCommandLineComesUpWhenThatOfTheCrashIsDeclined) {
  Crash(program_, 25);
  program_.Start(Stored("head.bsw"));
  Answer({Button::No});
  commands_.Begin();
  EXPECT_EQ(Design().Caption(), "head.bsw - Tarnwick");
  EXPECT_TRUE(HasCopy(program_));  // until the next save
  files_.Paths = {Path("head.bsw")};
  commands_.SaveAs();
  EXPECT_FALSE(HasCopy(program_));
}

TEST_F(Document, AChangeIsNotedAndForgottenWithTheSave) {
  commands_.NoteForRecovery();
  EXPECT_FALSE(HasCopy(program_));
  Change();
  commands_.NoteForRecovery();
  EXPECT_TRUE(HasCopy(program_));
  files_.Paths = {Path("no folder") + PathSeparator + "head.bsw"};
  commands_.Save();
  EXPECT_TRUE(HasCopy(program_));
  files_.Paths = {Path("head.bsw")};
  commands_.SaveAs();
  EXPECT_FALSE(HasCopy(program_));
}

TEST_F(Document, AChangeThatTheUserGivesUpAtTheCloseIsForgotten) {
  Change();
  commands_.NoteForRecovery();
  Answer({Button::Cancel});
  EXPECT_FALSE(commands_.MayClose());
  EXPECT_TRUE(HasCopy(program_));
  Answer({Button::No});
  EXPECT_TRUE(commands_.MayClose());
  EXPECT_FALSE(HasCopy(program_));
}

TEST_F(Document, WhatIsHalfReadIsNotNoted) {
  Change();
  commands_.NoteForRecovery();
  Stored("head.bsw");
  Answer({Button::No});
  Design().Settings.Recent = {{Folder(), "head.bsw"}};
  window_.Meanwhile = [this] {
    commands_.NoteForRecovery();
    EXPECT_TRUE(HasCopy(program_));
  };
  commands_.OpenRecent(0);
  commands_.NoteForRecovery();
  EXPECT_FALSE(HasCopy(program_));
}

// ---- recent files

TEST_F(Document, ARecentFileThatIsRefusedStaysOnTheDiskAndInTheList) {
  program_.Documents.File("list.bsw", "Shopping list");
  Design().Settings.Recent = {{Folder(), "list.bsw"}};
  commands_.OpenRecent(0);
  EXPECT_TRUE(fs::exists(Path("list.bsw")));
  EXPECT_EQ(Design().Settings.Recent.size(), 1u);
  EXPECT_EQ(Design().FileName, "untitled.bsw");
}

TEST_F(Document, TheRecentFileThatIsOpenIsNotOpenedAgain) {
  Stored("head.bsw");
  Open("head.bsw");
  commands_.OpenRecent(0);
  EXPECT_TRUE(window_.Log.empty());
  EXPECT_TRUE(program_.Say.Shown.empty());
}

TEST_F(Document, TheRecentFileThatIsOpenAndChangedAsksAsOpenDoes) {
  Stored("head.bsw");
  Open("head.bsw");
  Change();
  Answer({Button::Cancel});
  commands_.OpenRecent(0);
  EXPECT_EQ(LastBox().Title, "File open!");
  Answer({Button::No});
  commands_.OpenRecent(0);
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
}

// ---- save

TEST_F(Document, SaveOfANamedFileAsksBeforeItReplaces) {
  Stored("head.bsw");
  Open("head.bsw");
  Change();
  Answer({Button::No});
  commands_.Save();
  EXPECT_EQ(LastBox().Title, "Save");
  EXPECT_EQ(LastBox().Text, Path("head.bsw") + "\nThis file already exists.\nDo you want to replace it?");
  EXPECT_EQ(LastBox().Offer, Buttons::YesNo);
  EXPECT_EQ(LastBox().Shown, Icon::Warning);
  EXPECT_EQ(LastBox().Default, Button::No);
  EXPECT_TRUE(window_.Log.empty());

  Answer({Button::Yes});
  commands_.Save();
  EXPECT_TRUE(SameSaw(Design().Saw, Design().SawSaved));
  BandSaw read;
  ASSERT_TRUE(OpenBandSaw(read, Path("head.bsw"), program_.Say));
  EXPECT_TRUE(SameSaw(read, Design().Saw));
  EXPECT_EQ(window_.Log, (Texts{"caption", "busy", "animation", "no animation", "not busy"}));
}

TEST_F(Document, SaveOfAnUntitledDesignAsksForAPlaceAndGivesTheEnding) {
  Change();
  files_.Paths = {Path("my saw")};
  commands_.Save();
  EXPECT_EQ(files_.Asked[0].Filter, "All Files (*.bsw)|*.bsw");
  EXPECT_TRUE(files_.Asked[0].WarnBeforeReplacing);
  EXPECT_EQ(Design().FileName, "my saw.bsw");
  EXPECT_TRUE(fs::exists(Path("my saw.bsw")));
  EXPECT_TRUE(Design().Settings.Recent.empty());
}

TEST_F(Document, AnEndingAnywhereInThePathIsEnough) {
  fs::create_directory(Path("old.bsw.d"));
  files_.Paths = {Path("old.bsw.d") + PathSeparator + "head"};
  commands_.SaveAs();
  EXPECT_EQ(Design().FileName, "head");
  EXPECT_EQ(Design().SawDir(), Path("old.bsw.d") + PathSeparator);
}

TEST_F(Document, ANameThatIsAPartOfItsFolderIsSavedInThatFolder) {
  fs::create_directory(Path("bandsaw.d"));
  files_.Paths = {Path("bandsaw.d") + PathSeparator + "saw"};
  commands_.SaveAs();
  EXPECT_EQ(Design().SawDir(), Path("bandsaw.d") + PathSeparator);
  EXPECT_TRUE(fs::exists(Path("bandsaw.d") + PathSeparator + "saw.bsw"));
}

TEST_F(Document, SaveAsAsksAboutTheFileThatTheEndingMakes) {
  Stored("head.bsw");
  files_.Paths = {Path("head")};
  Answer({Button::No});
  commands_.SaveAs();
  EXPECT_EQ(LastBox().Title, "Save");
  EXPECT_EQ(Design().FileName, "untitled.bsw");
}

TEST_F(Document, SaveThatFailsIsToldByItsNumberAndKeepsTheChange) {
  Change();
  files_.Paths = {Path("no folder") + PathSeparator + "head.bsw"};
  commands_.Save();
  EXPECT_EQ(LastBox().Title, "Saving");
  EXPECT_EQ(LastBox().Text.find("Error Number: "), 0u);
  EXPECT_NE(LastBox().Text.find("\nSub Program mnuItemSave"), std::string::npos);
  EXPECT_FALSE(SameSaw(Design().Saw, Design().SawSaved));
  EXPECT_EQ(window_.Log.back(), "not busy");
}

TEST_F(Document, SavingOnTheWayToSomethingElseShowsInTheCaption) {
  Change();
  files_.Paths = {Path("kept.bsw")};
  EXPECT_TRUE(commands_.SaveBeforeLeaving());
  EXPECT_EQ(Design().Caption(), "kept.bsw - Tarnwick Viewer");
  EXPECT_EQ(Design().Settings.Recent[0].File, "kept.bsw");
  Answer({Button::Yes});
  commands_.Save();
  EXPECT_EQ(Design().Caption(), "kept.bsw - Tarnwick");
}

// ---- close

TEST_F(Document, CloseAsksInItsOwnWordsAndStaysOnCancel) {
  Change();
  Answer({Button::Cancel});
  EXPECT_FALSE(commands_.MayClose());
  EXPECT_EQ(LastBox().Text, Question("     Saw file has changed!"));
  Answer({Button::Yes});
  files_.Paths = {std::nullopt};
  EXPECT_FALSE(commands_.MayClose());
  program_.Store.Settings().clear();
  Answer({Button::No});
  EXPECT_TRUE(commands_.MayClose());
  EXPECT_FALSE(program_.Store.Settings().empty());
}

TEST_F(Document, CloseGoesOnWhenTheSettingsCannotBeSaved) {
  program_.Store.FinishFailure = std::make_error_code(std::errc::permission_denied);
  EXPECT_TRUE(commands_.MayClose());
  EXPECT_EQ(LastBox().Text, "Unable to save config file");
}

// ---- busy

TEST_F(Document, NothingElseCanBeAskedForWhileACommandIsAtWork) {
  Stored("head.bsw");
  window_.Meanwhile = [this] {
    EXPECT_TRUE(commands_.IsBusy());
    commands_.New();
    commands_.Save();
    commands_.SaveAs();
    commands_.Open();
    commands_.OpenRecent(0);
    commands_.ExportDxf();
    commands_.SaveText();
    commands_.SetTeethDirection(2);
    EXPECT_FALSE(commands_.MayClose());
  };
  commands_.OpenNamedFile("head.bsw", Folder());
  EXPECT_FALSE(commands_.IsBusy());
  EXPECT_EQ(Design().FileName, "head.bsw");
  EXPECT_TRUE(files_.Asked.empty());
}

// ---- export

TEST_F(Document, ExportsTheDrawingUnderTheNameUpToItsFirstPoint) {
  Stored("head.rig.bsw");
  Open("head.rig.bsw");
  files_.Paths = {Path("head")};
  commands_.ExportDxf();
  EXPECT_EQ(files_.Asked[0].Filter, "DXF Files (*.dxf)|*.dxf");
  EXPECT_EQ(files_.Asked[0].Name, "head.dxf");
  EXPECT_EQ(files_.Asked[0].Folder, Folder());
  EXPECT_TRUE(files_.Asked[0].WarnBeforeReplacing);
  EXPECT_TRUE(fs::exists(Path("head.dxf")));
  EXPECT_EQ(window_.Log, (Texts{"busy", "not busy", "draw"}));
}

TEST_F(Document, TakesAnEndingInAnyCase) {
  files_.Paths = {Path("HEAD.DXF")};
  commands_.ExportDxf();
  EXPECT_TRUE(fs::exists(Path("HEAD.DXF")));
}

TEST_F(Document, SaysWhenTheDrawingIsTooLarge) {
  BandSaw large = PlainDesign();
  large.Length *= 20;
  large.NumTeeth = static_cast<std::int16_t>(large.NumTeeth * 20);
  program_.Documents.File("head.bsw", BandSawText(large));
  Open("head.bsw");
  Design().Settings.Calculation.MemorySize = 8000;
  files_.Paths = {Path("head.dxf")};
  commands_.ExportDxf();
  EXPECT_EQ(program_.Say.Texts(), Texts{"File is two large"});
  EXPECT_FALSE(fs::exists(Path("head.dxf")));
}

TEST_F(Document, TellsOfAnyOtherFailureOfTheExport) {
  test::BrokenFileDialogs broken;
  Program process(
      {program_.Say, program_.Time, program_.Store, program_.Colors, program_.Help, broken, program_.Bin});
  DocumentCommands({process, dialogs_, window_, window_}).ExportDxf();
  ASSERT_EQ(program_.Say.Shown.size(), 1u);
  EXPECT_EQ(LastBox().Title, "Saving");
  EXPECT_EQ(LastBox().Text, broken.Told("mnuItemExport"));
  EXPECT_TRUE(window_.Log.empty());
}

TEST_F(Document, TellsWhatItCannotPutInWordsUnderTheNameOfTheActivity) {
  test::BrokenFileDialogs broken;
  Program process(
      {program_.Say, program_.Time, program_.Store, program_.Colors, program_.Help, broken, program_.Bin});
  DocumentCommands commands({process, dialogs_, window_, window_});
  process.Design.FileName = UntitledName;
  const auto told = [this](const auto& command) {
    program_.Say.Shown.clear();
    command();
    return program_.Say.Shown.size() == 1 ? LastBox().Title + ": " + LastBox().Text : std::string();
  };
  EXPECT_EQ(told([&] { commands.Open(); }), "Opening: " + broken.Told("mnuItemOpen"));
  EXPECT_EQ(told([&] { commands.Save(); }), "Saving: " + broken.Told("mnuItemSave"));
  EXPECT_EQ(told([&] { commands.SaveAs(); }), "Saving: " + broken.Told("mnuItemSaveAs"));
  EXPECT_EQ(told([&] { EXPECT_FALSE(commands.SaveBeforeLeaving()); }),
            "Saving: " + broken.Told("SaveBeforeLeaving"));
  EXPECT_TRUE(window_.Log.empty());
}

TEST_F(Document, TellsThatMemoryRanOutWhileAFileWasOpened) {
  const std::string file = Stored("head.bsw");
  Design().Settings.Recent = {{Folder(), "head.bsw"}};
  files_.Paths = {file};
  window_.Meanwhile = [] { throw std::bad_alloc(); };
  const std::string procedures[] = {"mnuItemOpen", "mnuRecentFiles", "OpenNamedFile"};
  for (const std::string& procedure : procedures) {
    program_.Say.Shown.clear();
    Design().FileName = UntitledName;
    Design().KeepAsSaved();
    if (procedure == "mnuItemOpen") commands_.Open();
    if (procedure == "mnuRecentFiles") commands_.OpenRecent(0);
    if (procedure == "OpenNamedFile") commands_.OpenNamedFile("head.bsw", Folder());
    ASSERT_EQ(program_.Say.Shown.size(), 1u) << procedure;
    EXPECT_EQ(LastBox().Title, "Opening");
    EXPECT_TRUE(LastBox().Text.ends_with("\nSub Program " + procedure)) << LastBox().Text;
    EXPECT_FALSE(commands_.IsBusy());
    EXPECT_TRUE(fs::exists(file));
  }
}

TEST_F(Document, WritesTheListingAsText) {
  Stored("head.bsw");
  Open("head.bsw");
  files_.Paths = {Path("figures")};
  commands_.SaveText();
  EXPECT_EQ(files_.Asked[0].Filter, "Text Files (*.txt)|*.txt");
  EXPECT_EQ(files_.Asked[0].Name, "head.txt");
  EXPECT_EQ(test::BytesOf(Path("figures.txt")).find("head.bsw,"), 0u);
}

// ---- direction of teeth

TEST_F(Document, TurnsTheTeethOnlyIntoTheOtherDirection) {
  Stored("head.bsw");
  Open("head.bsw");
  commands_.SetTeethDirection(1);
  EXPECT_TRUE(window_.Log.empty());
  commands_.SetTeethDirection(2);
  EXPECT_EQ(window_.Log, (Texts{"direction", "draw"}));
  EXPECT_EQ(Design().Settings.Calculation.TeethDirection, 2);
}

}  // namespace
}  // namespace tarnwick
