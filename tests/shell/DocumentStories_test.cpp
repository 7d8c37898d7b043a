// Document commands from their first question to the last file, each as a story: who is asked what, in which
// order, and how it ends.

#include <gtest/gtest.h>

#include <functional>

#include "dxf/modDXF.h"
#include "platform/CollectedMessages.h"
#include "support/Designs.h"
#include "support/DocumentDesk.h"
#ifndef _WIN32
#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"
#endif

namespace tarnwick {
namespace {

using test::DocumentDesk;
using test::Texts;

constexpr auto Yes = Button::Yes;
constexpr auto No = Button::No;
constexpr auto Cancel = Button::Cancel;

// ---- the words

const std::string SaveFileEnd =
    "\n\nDo you want to save this file?               [yes no cancel|question|yes] -> ";
const std::string BandsawChanged = "Save File.:      Bandsaw file has changed!" + SaveFileEnd;
const std::string BandawChanged = "Save File.:      Bandaw file has changed!" + SaveFileEnd;
const std::string SawChanged = "Save File.:      Saw file has changed!" + SaveFileEnd;
const std::string AlreadyOpen =
    "File open!:      File already open!  Save file before opening? [yes no cancel|no icon|yes] -> ";
const std::string NoBandSaw = "Tarnwick: Not a valid Band Saw File      [ok|no icon|ok]";
const std::string Incomplete = "Tarnwick: File is incomplete. What could be read is shown. [ok|no icon|ok]";
const std::string NewerVersion =
    "Tarnwick: File was saved in a newer version of this program!\n"
    "Some information may not be available to the version\n"
    "you are currently using!\n"
    "Contact www.tarnwick.example for an update. [ok|no icon|ok]";
const std::string NoSettings = "Error: Unable to save config file [ok|no icon|ok]";

std::string Replace(const std::string& path) {
  return "Save: " + path +
         "\nThis file already exists.\nDo you want to replace it? [yes no|exclamation|no] -> ";
}

std::string OpenDialog(const std::string& folder, const std::string& name) {
  return "open Band Saw Files (*.bsw)|*.bsw in " + folder + " on " + name + " -> ";
}
std::string SaveDialog(const std::string& folder, const std::string& name) {
  return "save, warning, All Files (*.bsw)|*.bsw in " + folder + " on " + name + " -> ";
}
std::string LeavingDialog(const std::string& folder, const std::string& name) {
  return "save All Files (*.bsw)|*.bsw in " + folder + " on " + name + " -> ";
}

// ---- pieces of a transcript

Texts Script(std::initializer_list<Texts> parts) {
  Texts whole;
  for (const Texts& part : parts) whole.insert(whole.end(), part.begin(), part.end());
  return whole;
}

/// From the caption to the animation: a file is about to be read.
Texts Begins(const std::string& name) {
  return {"caption " + name + " - Tarnwick", "busy", "rows blank", "boxes blank", "animation"};
}

Texts Shows(const std::string& mark) {
  return {"units imperial", "draw " + mark, "panel 1", "rows " + mark,
          "boxes " + mark,  "no animation", "not busy"};
}

Texts Lists(const std::string& recent) { return {"settings written", "recent " + recent}; }

Texts Reads(const std::string& name, const std::string& mark, const std::string& recent) {
  return Script({Begins(name), Shows(mark), Lists(recent)});
}

/// What is left of a file that was refused: a blank design without a name.
Texts IsBlank() { return Script({{"caption untitled.bsw - Tarnwick"}, Shows("blank")}); }

Texts Writes(const std::string& caption) {
  return {"caption " + caption, "busy", "animation", "no animation", "not busy"};
}

Texts BlankIn(const std::string& units) {
  return {"caption untitled.bsw - Tarnwick",
          "units " + units,
          "rows blank",
          "boxes blank",
          "panel 1",
          "draw blank"};
}
const Texts NewDesign = BlankIn("imperial");

// ---- the scene

BandSaw WithHook(double hook) {
  BandSaw saw = test::PlainDesign();
  saw.HookAngle = hook;
  return saw;
}

std::string WithVersion(std::string bytes, std::string_view version) {
  bytes.replace(25, 25, std::string(version) + std::string(25 - version.size(), ' '));
  return bytes;
}

void SetScene(DocumentDesk& desk) {
  desk.Keep("head.bsw", WithHook(10));
  desk.Keep("cut.bsw", WithHook(12));
  desk.Keep("list.bsw", "Shopping list");
  desk.Keep("early.bsw", WithVersion(BandSawText(WithHook(10)), "0.99"));
  desk.Keep("later.bsw", WithVersion(BandSawText(WithHook(20)), "1.02"));
  desk.Keep("torn.bsw", BandSawText(WithHook(15)).substr(0, 400));
}

void OpenFile(DocumentDesk& desk, const std::string& name) {
  desk.Commands.OpenNamedFile(name, desk.Folder());
  desk.Process.Design.ViewAll();  // so that true size is seen to come back
  desk.Transcript();
}

void ChangeHook(DocumentDesk& desk, double hook) { desk.Process.Design.Saw.HookAngle = hook; }

using Act = std::function<void(DocumentDesk&)>;

// Ways in which a story begins.
void Blank(DocumentDesk&) {}
void BlankChanged(DocumentDesk& desk) { ChangeHook(desk, 7); }
void Head(DocumentDesk& desk) { OpenFile(desk, "head.bsw"); }
void HeadChanged(DocumentDesk& desk) {
  Head(desk);
  ChangeHook(desk, 11);
}
/// Two files on the list, the older of them to come.
void HeadAfterCut(DocumentDesk& desk) {
  OpenFile(desk, "cut.bsw");
  Head(desk);
}
void HeadChangedAfterCut(DocumentDesk& desk) {
  HeadAfterCut(desk);
  ChangeHook(desk, 11);
}

// What is done.
void New(DocumentDesk& desk) { desk.Commands.New(); }
void StepByStep(DocumentDesk& desk) { desk.Commands.NewStepByStep(); }
void Open(DocumentDesk& desk) { desk.Commands.Open(); }
void Save(DocumentDesk& desk) { desk.Commands.Save(); }
void SaveAs(DocumentDesk& desk) { desk.Commands.SaveAs(); }
void ExportDxf(DocumentDesk& desk) { desk.Commands.ExportDxf(); }
void SaveText(DocumentDesk& desk) { desk.Commands.SaveText(); }
void CloseAndStay(DocumentDesk& desk) { EXPECT_FALSE(desk.Commands.MayClose()); }
void CloseAndGo(DocumentDesk& desk) { EXPECT_TRUE(desk.Commands.MayClose()); }

Act OpenRecent(std::size_t index) {
  return [index](DocumentDesk& desk) { desk.Commands.OpenRecent(index); };
}

/// The path of the scene's folder, or nothing to cancel.
struct Choice {
  const char* Path = nullptr;
};
constexpr Choice Nothing{};

struct Story {
  const char* Name;
  Act Begin;
  std::vector<Button> Answers;
  std::vector<Choice> Choices;
  Act Command;
  Texts Told;
  std::string State;  // the scale is left out: true size after what reads a file, as it was otherwise
  Texts Disk = {};

  friend void PrintTo(const Story& story, std::ostream* out) { *out << story.Name; }
};

class DocumentStory : public testing::TestWithParam<Story> {};

TEST_P(DocumentStory, GoesAsTold) {
  const Story& story = GetParam();
  DocumentDesk desk;
  SetScene(desk);
  story.Begin(desk);
  for (const Button answer : story.Answers) desk.Answer({answer});
  for (const Choice& choice : story.Choices) {
    if (choice.Path)
      desk.Choose(choice.Path);
    else
      desk.ChooseNothing();
  }
  story.Command(desk);
  EXPECT_EQ(desk.Transcript(), story.Told);
  const std::string state = desk.State();
  EXPECT_EQ(state.substr(0, state.rfind(" | ")), story.State);
  EXPECT_EQ(desk.Disk(), story.Disk);
  EXPECT_FALSE(desk.Commands.IsBusy());
}

const auto NameOf = [](const auto& row) { return std::string(row.param.Name); };

// ---- New

const std::string Untitled = "untitled.bsw - Tarnwick | ~/ | blank blank blank | ";
const std::string HeadAsItWas = "head.bsw - Tarnwick | ~/ | 11 10 10 | ~/head.bsw | imperial";
const std::string OnHead = LeavingDialog("~/", "head.bsw");
const std::string OnUntitled = LeavingDialog("~/", "untitled.bsw");

INSTANTIATE_TEST_SUITE_P(
    New, DocumentStory,
    testing::Values(
        Story{"Blank", Blank, {}, {}, New, NewDesign, Untitled + "none | imperial"},
        Story{"AfterAFile", Head, {}, {}, New, NewDesign, Untitled + "~/head.bsw | imperial"},
        Story{
            "ChangedAndCancelled", HeadChanged, {Cancel}, {}, New, {BandsawChanged + "cancel"}, HeadAsItWas},
        Story{"ChangedAndGivenUp",
              HeadChanged,
              {No},
              {},
              New,
              Script({{BandsawChanged + "no"}, NewDesign}),
              Untitled + "~/head.bsw | imperial"},
        Story{"ChangedAndNotSavedAfterAll",
              HeadChanged,
              {Yes},
              {Nothing},
              New,
              {BandsawChanged + "yes", OnHead + "cancel"},
              HeadAsItWas},
        Story{"ChangedAndSavedUnderItsOwnName",
              HeadChanged,
              {Yes},
              {{"head.bsw"}},
              New,
              Script({{BandsawChanged + "yes", OnHead + "~/head.bsw"},
                      Writes("head.bsw - Tarnwick Viewer"),
                      Lists("~/head.bsw"),
                      NewDesign}),
              Untitled + "~/head.bsw | imperial",
              {"~ ~/head.bsw 11"}},
        Story{"ChangedAndSavedElsewhere",
              BlankChanged,
              {Yes},
              {{"made"}},
              New,
              Script({{BandsawChanged + "yes", OnUntitled + "~/made"},
                      Writes("made.bsw - Tarnwick Viewer"),
                      Lists("~/made.bsw"),
                      NewDesign}),
              Untitled + "~/made.bsw | imperial",
              {"+ ~/made.bsw 7"}},
        // Without a word, also when the ending makes the name of a file that is there.
        Story{"ChangedAndSavedOverAnother",
              BlankChanged,
              {Yes},
              {{"cut"}},
              New,
              Script({{BandsawChanged + "yes", OnUntitled + "~/cut"},
                      Writes("cut.bsw - Tarnwick Viewer"),
                      Lists("~/cut.bsw"),
                      NewDesign}),
              Untitled + "~/cut.bsw | imperial",
              {"~ ~/cut.bsw 7"}},
        Story{"ChangedAndSavingFails",
              HeadChanged,
              {Yes},
              {{"nowhere/head.bsw"}},
              New,
              Script({{BandsawChanged + "yes", OnHead + "~/nowhere/head.bsw"},
                      Writes("head.bsw - Tarnwick Viewer"),
                      {"Saving: Error Number: 2\nNo such file or directory\nSub Program SaveBeforeLeaving "
                       "[ok|no icon|ok]"}}),
              "head.bsw - Tarnwick Viewer | ~/nowhere/ | 11 10 10 | ~/head.bsw | imperial"}),
    NameOf);

TEST(NewDesignStory, LeavesTheViewAlone) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  const std::string scale = desk.Process.Design.View.ScaleText();
  desk.Commands.New();
  EXPECT_EQ(desk.Process.Design.View.ScaleText(), scale);
  EXPECT_NE(scale, "1.0");
}

TEST(NewDesignStory, BeginsInTheUnitsOfTheSettingsAndIsNotChanged) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  desk.Process.Design.Settings.MainImpMetric = 1;
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript(), (Texts{"caption untitled.bsw - Tarnwick", "units metric", "rows blank",
                                      "boxes blank", "panel 1", "draw blank"}));
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript().front(), "caption untitled.bsw - Tarnwick");  // no question
}

// ---- New Step by Step

/// Every question of a square back; a setting is kept after each.
Texts Asks(std::initializer_list<const char*> titles) {
  Texts told;
  for (const char* title : titles) {
    told.push_back(std::string("asks ") + title);
    told.emplace_back("settings written");
  }
  return told;
}

void PlanSquareBack(DocumentDesk& desk) {
  using test::Cancels, test::Enters, test::Picks;
  // Style, wheel, length, width, pitch, hook, clearance, tip clearance, tip, plate, radius, depth, back
  // angle.
  desk.Dialogs.Values = {Picks(0),      Cancels(),     Enters("20"), Enters("5"), Enters("2"),
                         Enters("9"),   Enters("8"),   Cancels(),    Cancels(),   Cancels(),
                         Enters("0.3"), Enters("0.7"), Enters("20")};
}

const Texts SquareBackQuestions =
    Asks({"BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length", "Band Saw Width", "Tooth Pitch",
          "Hook Angle", "Clearance Angle", "Tip Clearance", "BandSaw Tip Type", "Plate Thickness",
          "Gullet Radius", "Gullet Depth", "Gullet Back Angle"});

TEST(StepByStepStory, MakesADesignThatIsNotSavedYet) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  desk.Process.Design.View.ZoomIn();
  desk.Answer({No});
  PlanSquareBack(desk);
  desk.Commands.NewStepByStep();
  EXPECT_EQ(
      desk.Transcript(),
      Script({{BandawChanged + "no"}, NewDesign, SquareBackQuestions, {"draw 9", "rows 9", "boxes 9"}}));
  const OpenDesign& design = desk.Process.Design;
  EXPECT_EQ(desk.State().substr(0, desk.State().rfind(" | ")),
            "untitled.bsw - Tarnwick | ~/ | 9 9 blank | ~/head.bsw | imperial");
  EXPECT_FALSE(design.Lines.Entities.empty());
  // The whole band is in view.
  Viewport whole = design.View;
  whole.ViewAll(ComputeExtents(design.Lines));
  EXPECT_EQ(design.View.ScaleText(), whole.ScaleText());
  EXPECT_NE(design.View.ScaleText(), "1.0");
  // What follows asks about it.
  desk.Answer({Cancel});
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript(), Texts{BandsawChanged + "cancel"});
}

TEST(StepByStepStory, LeavesABlankDesignWhenItsLengthIsDeclined) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  desk.Process.Design.Settings.MainImpMetric = 1;
  desk.Dialogs.Values = {test::Picks(0), test::Enters("60"), test::Cancels()};
  desk.Commands.NewStepByStep();
  EXPECT_EQ(desk.Transcript(), Script({BlankIn("metric"),
                                       Asks({"BandSaw Tooth Style", "Wheel Diameter", "Band Saw Length"}),
                                       {"draw blank", "rows blank", "boxes blank"}}));
  EXPECT_EQ(desk.State().find(Untitled), 0u);
  EXPECT_TRUE(desk.Process.Design.Lines.Entities.empty());
  desk.Commands.New();
  EXPECT_EQ(desk.Transcript(), BlankIn("metric"));  // no question
}

INSTANTIATE_TEST_SUITE_P(
    StepByStep, DocumentStory,
    testing::Values(
        Story{"Cancelled", HeadChanged, {Cancel}, {}, StepByStep, {BandawChanged + "cancel"}, HeadAsItWas},
        Story{"NotSavedAfterAll",
              HeadChanged,
              {Yes},
              {Nothing},
              StepByStep,
              {BandawChanged + "yes", OnHead + "cancel"},
              HeadAsItWas}),
    NameOf);

// ---- Open

const std::string OpenOnHead = OpenDialog("~/", "head.bsw");
const std::string OpenOnUntitled = OpenDialog("~/", "untitled.bsw");
const std::string CutOpen = "cut.bsw - Tarnwick | ~/ | 12 12 12 | ~/cut.bsw, ~/head.bsw | imperial";
const std::string HeadOpen = "head.bsw - Tarnwick | ~/ | 10 10 10 | ~/head.bsw | imperial";

INSTANTIATE_TEST_SUITE_P(
    Open, DocumentStory,
    testing::Values(
        Story{"FirstFile",
              Blank,
              {},
              {{"head.bsw"}},
              Open,
              Script({{OpenOnUntitled + "~/head.bsw"}, Reads("head.bsw", "10", "~/head.bsw")}),
              HeadOpen},
        Story{"AnotherFile",
              Head,
              {},
              {{"cut.bsw"}},
              Open,
              Script({{OpenOnHead + "~/cut.bsw"}, Reads("cut.bsw", "12", "~/cut.bsw, ~/head.bsw")}),
              CutOpen},
        Story{"ThoughtBetterOf", Head, {}, {Nothing}, Open, {OpenOnHead + "cancel"}, HeadOpen},
        Story{
            "ChangedAndCancelled", HeadChanged, {Cancel}, {}, Open, {BandsawChanged + "cancel"}, HeadAsItWas},
        Story{"ChangedAndGivenUp",
              HeadChanged,
              {No},
              {{"cut.bsw"}},
              Open,
              Script({{BandsawChanged + "no", OpenOnHead + "~/cut.bsw"},
                      Reads("cut.bsw", "12", "~/cut.bsw, ~/head.bsw")}),
              CutOpen},
        // The change is given up only when another file has been chosen.
        Story{"ChangedAndGivenUpAndThoughtBetterOf",
              HeadChanged,
              {No},
              {Nothing},
              Open,
              {BandsawChanged + "no", OpenOnHead + "cancel"},
              HeadAsItWas},
        Story{"ChangedAndNotSavedAfterAll",
              HeadChanged,
              {Yes},
              {Nothing},
              Open,
              {BandsawChanged + "yes", OnHead + "cancel"},
              HeadAsItWas},
        // The open dialog stands on the name that was just given.
        Story{"ChangedAndSaved",
              HeadChanged,
              {Yes},
              {{"kept.bsw"}, {"cut.bsw"}},
              Open,
              Script({{BandsawChanged + "yes", OnHead + "~/kept.bsw"},
                      Writes("kept.bsw - Tarnwick Viewer"),
                      Lists("~/kept.bsw, ~/head.bsw"),
                      {OpenDialog("~/", "kept.bsw") + "~/cut.bsw"},
                      Reads("cut.bsw", "12", "~/cut.bsw, ~/kept.bsw, ~/head.bsw")}),
              "cut.bsw - Tarnwick | ~/ | 12 12 12 | ~/cut.bsw, ~/kept.bsw, ~/head.bsw | imperial",
              {"+ ~/kept.bsw 11"}},
        Story{"ChangedAndSavedAndThoughtBetterOf",
              HeadChanged,
              {Yes},
              {{"kept.bsw"}, Nothing},
              Open,
              Script({{BandsawChanged + "yes", OnHead + "~/kept.bsw"},
                      Writes("kept.bsw - Tarnwick Viewer"),
                      Lists("~/kept.bsw, ~/head.bsw"),
                      {OpenDialog("~/", "kept.bsw") + "cancel"}}),
              "kept.bsw - Tarnwick Viewer | ~/ | 11 11 11 | ~/kept.bsw, ~/head.bsw | imperial",
              {"+ ~/kept.bsw 11"}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    OpenTheOpenFile, DocumentStory,
    testing::Values(Story{"Cancelled",
                          Head,
                          {Cancel},
                          {{"head.bsw"}},
                          Open,
                          {OpenOnHead + "~/head.bsw", AlreadyOpen + "cancel"},
                          HeadOpen},
                    Story{"ReadAgain",
                          Head,
                          {No},
                          {{"head.bsw"}},
                          Open,
                          Script({{OpenOnHead + "~/head.bsw", AlreadyOpen + "no"},
                                  Reads("head.bsw", "10", "~/head.bsw")}),
                          HeadOpen},
                    Story{"NotSavedAfterAll",
                          Head,
                          {Yes},
                          {{"head.bsw"}, Nothing},
                          Open,
                          {OpenOnHead + "~/head.bsw", AlreadyOpen + "yes", OnHead + "cancel"},
                          HeadOpen},
                    // It is the file chosen that comes up, not the one just written.
                    Story{"SavedElsewhere",
                          Head,
                          {Yes},
                          {{"head.bsw"}, {"kept.bsw"}},
                          Open,
                          Script({{OpenOnHead + "~/head.bsw", AlreadyOpen + "yes", OnHead + "~/kept.bsw"},
                                  Writes("kept.bsw - Tarnwick Viewer"),
                                  Lists("~/kept.bsw, ~/head.bsw"),
                                  Reads("head.bsw", "10", "~/head.bsw, ~/kept.bsw")}),
                          "head.bsw - Tarnwick | ~/ | 10 10 10 | ~/head.bsw, ~/kept.bsw | imperial",
                          {"+ ~/kept.bsw 10"}},
                    // Two questions for one choice: the change first, then the file.
                    Story{"ChangedAndAskedTwice",
                          HeadChanged,
                          {No, No},
                          {{"head.bsw"}},
                          Open,
                          Script({{BandsawChanged + "no", OpenOnHead + "~/head.bsw", AlreadyOpen + "no"},
                                  Reads("head.bsw", "10", "~/head.bsw")}),
                          HeadOpen}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    OpenWhatIsNoDesign, DocumentStory,
    testing::Values(
        Story{"AnotherKindOfFile",
              Head,
              {},
              {{"list.bsw"}},
              Open,
              Script({{OpenOnHead + "~/list.bsw"},
                      Begins("list.bsw"),
                      {NoBandSaw, "trash ~/list.bsw"},
                      IsBlank()}),
              Untitled + "~/head.bsw | imperial",
              {"- ~/list.bsw"}},
        // It goes without a word.
        Story{"AnUnknownOldVersion",
              Head,
              {},
              {{"early.bsw"}},
              Open,
              Script({{OpenOnHead + "~/early.bsw"}, Begins("early.bsw"), {"trash ~/early.bsw"}, IsBlank()}),
              Untitled + "~/head.bsw | imperial",
              {"- ~/early.bsw"}},
        Story{"AFileThatIsNotThere",
              Head,
              {},
              {{"gone.bsw"}},
              Open,
              Script({{OpenOnHead + "~/gone.bsw"}, Begins("gone.bsw"), IsBlank()}),
              Untitled + "~/head.bsw | imperial"},
        Story{"ATornFile",
              Head,
              {},
              {{"torn.bsw"}},
              Open,
              Script({{OpenOnHead + "~/torn.bsw"},
                      Begins("torn.bsw"),
                      {Incomplete},
                      Shows("15"),
                      Lists("~/torn.bsw, ~/head.bsw")}),
              "torn.bsw - Tarnwick | ~/ | 15 15 15 | ~/torn.bsw, ~/head.bsw | imperial"},
        Story{"ANewerVersion",
              Head,
              {},
              {{"later.bsw"}},
              Open,
              Script({{OpenOnHead + "~/later.bsw"},
                      Begins("later.bsw"),
                      {NewerVersion},
                      Shows("20"),
                      Lists("~/later.bsw, ~/head.bsw")}),
              "later.bsw - Tarnwick | ~/ | 20 20 20 | ~/later.bsw, ~/head.bsw | imperial"}),
    NameOf);

TEST(OpenStory, ComesUpInTrueSizeAndInItsOwnUnits) {
  DocumentDesk desk;
  BandSaw metric = WithHook(10);
  metric.ImpMetric = 1;
  desk.Keep("metric.bsw", metric);
  SetScene(desk);
  Head(desk);
  EXPECT_NE(desk.Process.Design.View.ScaleText(), "1.0");
  desk.Choose("metric.bsw");
  desk.Commands.Open();
  EXPECT_EQ(desk.State(), "metric.bsw - Tarnwick | ~/ | 10 10 10 | ~/metric.bsw, ~/head.bsw | metric | 1.0");
  const View shown = desk.Process.Design.View.ThisView();
  EXPECT_EQ(shown.Scale, 1.0);  // so that the last view is the one before
  EXPECT_EQ(shown.Vertical, desk.Process.Design.View.Vertical());
}

TEST(OpenStory, LeavesTheLastFileInSixOpensOutOfTheRecentFiles) {
  DocumentDesk desk;
  for (const char* name : {"1.bsw", "2.bsw", "3.bsw", "4.bsw", "5.bsw", "6.bsw"}) {
    desk.Keep(name, WithHook(10));
    OpenFile(desk, name);
  }
  EXPECT_NE(desk.State().find("| ~/6.bsw, ~/5.bsw, ~/4.bsw, ~/3.bsw, ~/2.bsw |"), std::string::npos);
  OpenFile(desk, "4.bsw");
  EXPECT_NE(desk.State().find("| ~/4.bsw, ~/6.bsw, ~/5.bsw, ~/3.bsw, ~/2.bsw |"), std::string::npos);
  EXPECT_EQ(desk.Setting("RecentNumFiles"), " 5");
  EXPECT_EQ(desk.Setting("RecentDriveDir1"), "~/");
  EXPECT_EQ(desk.Setting("RecentFile1"), "4.bsw");
  EXPECT_EQ(desk.Setting("RecentFile5"), "2.bsw");
}

TEST(OpenStory, TellsOfSettingsThatCannotBeWrittenAndGoesOn) {
  DocumentDesk desk;
  SetScene(desk);
  desk.Store.FinishFailure = std::make_error_code(std::errc::permission_denied);
  desk.Choose("head.bsw");
  desk.Commands.Open();
  const Texts told = desk.Transcript();
  ASSERT_GE(told.size(), 2u);
  EXPECT_EQ(told[told.size() - 2], NoSettings);
  EXPECT_EQ(told.back(), "recent ~/head.bsw");
  EXPECT_EQ(desk.State(), HeadOpen + " | 1.0");
}

TEST(OpenStory, KnowsTheFolderOfAFileWhoseNameStandsInItToo) {
  DocumentDesk desk;
  desk.Keep("head.bsw.d/head.bsw", WithHook(10));
  desk.Choose("head.bsw.d/head.bsw");
  desk.Commands.Open();
  desk.Transcript();
  EXPECT_EQ(desk.State(),
            "head.bsw - Tarnwick | ~/head.bsw.d/ | 10 10 10 | ~/head.bsw.d/head.bsw | imperial | 1.0");
  desk.Choose("head.bsw.d/head.bsw");
  desk.Answer({Cancel});
  desk.Commands.Open();
  EXPECT_EQ(desk.Transcript().back(), AlreadyOpen + "cancel");
}

// ---- the command line

TEST(CommandLineStory, OpensWithoutAQuestionAndRemovesWhatIsNoDesign) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  desk.Commands.OpenNamedFile("list.bsw", desk.Folder());
  EXPECT_EQ(desk.Transcript(), Script({Begins("list.bsw"), {NoBandSaw, "trash ~/list.bsw"}, IsBlank()}));
  desk.Commands.OpenNamedFile("cut.bsw", desk.Folder());
  EXPECT_EQ(desk.Transcript(), Reads("cut.bsw", "12", "~/cut.bsw, ~/head.bsw"));
  EXPECT_EQ(desk.Disk(), Texts{"- ~/list.bsw"});
}

TEST(CommandLineStory, OpensItsFileAtTheStartAndOnlyThen) {
  DocumentDesk desk;
  SetScene(desk);
  desk.Process.Start(desk.Folder(), desk.Path("cut.bsw"));
  desk.Commands.Begin();
  EXPECT_EQ(desk.Transcript(), Reads("cut.bsw", "12", "~/cut.bsw"));
  desk.Commands.Begin();
  EXPECT_EQ(desk.Transcript(), Texts{});
}

TEST(CommandLineStory, FailsOnANameWithoutAPoint) {
  DocumentDesk desk;
  desk.Keep("head", BandSawText(WithHook(10)));
  Program& process = desk.Process;
  process.Start(desk.Folder(), desk.Path("head"));
  desk.Commands.Begin();
  const Texts told = desk.Transcript();
  EXPECT_EQ(told.front(), "caption  - Tarnwick");
  EXPECT_EQ(process.Design.Caption(), "untitled.bsw - Tarnwick");
  EXPECT_TRUE(desk.Disk().empty());
}

// ---- after a crash

const std::string Recover =
    "Recovery: A design was open when the program ended unexpectedly.\nDo you wish to recover it? "
    "[yes no|question|yes] -> ";

TEST(RecoveryStory, BringsTheDesignBackAsAChangeOfItsFileInPlaceOfTheCommandLine) {
  DocumentDesk desk;
  SetScene(desk);
  desk.LeaveCopy("head.bsw", WithHook(11));
  desk.Process.Start(desk.Folder(), desk.Path("cut.bsw"));
  desk.Answer({Yes});
  desk.Commands.Begin();
  EXPECT_EQ(desk.Transcript(), (Texts{Recover + "yes", "caption head.bsw - Tarnwick", "units imperial",
                                      "draw 11", "panel 1", "rows 11", "boxes 11"}));
  EXPECT_EQ(desk.State(), "head.bsw - Tarnwick | ~/ | 11 11 10 | none | imperial | 1.0");
  EXPECT_TRUE(std::filesystem::exists(desk.Copy())) << "until it is saved";
  desk.Commands.Begin();
  EXPECT_EQ(desk.Transcript(), Texts{}) << "the file of the command line does not push it aside later";
  desk.Answer({Yes});
  desk.Commands.Save();
  EXPECT_EQ(desk.Transcript().front(), Replace("~/head.bsw") + "yes");
  EXPECT_FALSE(std::filesystem::exists(desk.Copy()));
  EXPECT_EQ(desk.Disk(), Texts{"~ ~/head.bsw 11"});
}

TEST(RecoveryStory, KeepsADeclinedDesignUntilTheNextSave) {
  DocumentDesk desk;
  SetScene(desk);
  desk.LeaveCopy("head.bsw", WithHook(11));
  desk.Process.Start(desk.Folder(), desk.Path("cut.bsw"));
  desk.Answer({No});
  desk.Commands.Begin();
  EXPECT_EQ(desk.Transcript(), Script({{Recover + "no"}, Reads("cut.bsw", "12", "~/cut.bsw")}));
  EXPECT_TRUE(std::filesystem::exists(desk.Copy()));
  desk.Answer({Yes});
  desk.Commands.Save();
  desk.Transcript();
  EXPECT_FALSE(std::filesystem::exists(desk.Copy()));
}

TEST(RecoveryStory, AsksAboutARecoveredDesignAtTheCloseAndForgetsItAfterNo) {
  DocumentDesk desk;
  SetScene(desk);
  desk.LeaveCopy("untitled.bsw", WithHook(11));
  desk.Answer({Yes, Cancel, No});
  desk.Commands.Begin();
  desk.Commands.NoteForRecovery();
  EXPECT_FALSE(desk.Commands.MayClose());
  EXPECT_TRUE(std::filesystem::exists(desk.Copy()));
  EXPECT_TRUE(desk.Commands.MayClose());
  const Texts told = desk.Transcript();
  EXPECT_EQ(told.front(), Recover + "yes");
  EXPECT_EQ(Texts(told.end() - 3, told.end()),
            (Texts{SawChanged + "cancel", SawChanged + "no", "settings written"}));
  EXPECT_FALSE(std::filesystem::exists(desk.Copy()));
  EXPECT_TRUE(desk.Disk().empty());
}

// ---- recent files

INSTANTIATE_TEST_SUITE_P(
    Recent, DocumentStory,
    testing::Values(Story{"AnotherFile",
                          HeadAfterCut,
                          {},
                          {},
                          OpenRecent(1),
                          Reads("cut.bsw", "12", "~/cut.bsw, ~/head.bsw"),
                          CutOpen},
                    Story{"TheOpenFile",
                          HeadAfterCut,
                          {},
                          {},
                          OpenRecent(0),
                          {},
                          "head.bsw - Tarnwick | ~/ | 10 10 10 | ~/head.bsw, ~/cut.bsw | imperial"},
                    Story{"AnEntryThatIsNotThere", Head, {}, {}, OpenRecent(1), {}, HeadOpen},
                    Story{"ChangedAndCancelled",
                          HeadChangedAfterCut,
                          {Cancel},
                          {},
                          OpenRecent(1),
                          {BandsawChanged + "cancel"},
                          "head.bsw - Tarnwick | ~/ | 11 10 10 | ~/head.bsw, ~/cut.bsw | imperial"},
                    Story{"ChangedAndGivenUp",
                          HeadChangedAfterCut,
                          {No},
                          {},
                          OpenRecent(1),
                          Script({{BandsawChanged + "no"}, Reads("cut.bsw", "12", "~/cut.bsw, ~/head.bsw")}),
                          CutOpen},
                    Story{"ChangedAndNotSavedAfterAll",
                          HeadChangedAfterCut,
                          {Yes},
                          {Nothing},
                          OpenRecent(1),
                          {BandsawChanged + "yes", OnHead + "cancel"},
                          "head.bsw - Tarnwick | ~/ | 11 10 10 | ~/head.bsw, ~/cut.bsw | imperial"},
                    // Saving moves the list: it is the file that was picked that comes up.
                    Story{"ChangedAndSaved",
                          HeadChangedAfterCut,
                          {Yes},
                          {{"kept.bsw"}},
                          OpenRecent(1),
                          Script({{BandsawChanged + "yes", OnHead + "~/kept.bsw"},
                                  Writes("kept.bsw - Tarnwick Viewer"),
                                  Lists("~/kept.bsw, ~/head.bsw, ~/cut.bsw"),
                                  Reads("cut.bsw", "12", "~/cut.bsw, ~/kept.bsw, ~/head.bsw")}),
                          "cut.bsw - Tarnwick | ~/ | 12 12 12 | ~/cut.bsw, ~/kept.bsw, ~/head.bsw | imperial",
                          {"+ ~/kept.bsw 11"}},
                    Story{"TheOpenFileChangedAndCancelled",
                          HeadChanged,
                          {Cancel},
                          {},
                          OpenRecent(0),
                          {AlreadyOpen + "cancel"},
                          HeadAsItWas},
                    Story{"TheOpenFileChangedAndReadAgain",
                          HeadChanged,
                          {No},
                          {},
                          OpenRecent(0),
                          Script({{AlreadyOpen + "no"}, Reads("head.bsw", "10", "~/head.bsw")}),
                          HeadOpen},
                    Story{"TheOpenFileChangedAndSavedElsewhere",
                          HeadChanged,
                          {Yes},
                          {{"kept"}},
                          OpenRecent(0),
                          Script({{AlreadyOpen + "yes", OnHead + "~/kept"},
                                  Writes("kept.bsw - Tarnwick Viewer"),
                                  Lists("~/kept.bsw, ~/head.bsw"),
                                  Reads("head.bsw", "10", "~/head.bsw, ~/kept.bsw")}),
                          "head.bsw - Tarnwick | ~/ | 10 10 10 | ~/head.bsw, ~/kept.bsw | imperial",
                          {"+ ~/kept.bsw 11"}}),
    NameOf);

/// A refused file stays where it is, and so does its entry.
TEST(RecentStory, KeepsWhatItRefuses) {
  for (const char* name : {"list.bsw", "early.bsw", "gone.bsw"}) {
    SCOPED_TRACE(name);
    DocumentDesk desk;
    SetScene(desk);
    desk.Process.Design.Settings.Recent = {{desk.Folder(), name}};
    desk.Commands.OpenRecent(0);
    const Texts words = name == std::string("list.bsw") ? Texts{NoBandSaw} : Texts{};
    EXPECT_EQ(desk.Transcript(), Script({Begins(name), words, IsBlank()}));
    EXPECT_EQ(desk.State().find(Untitled + "~/" + name + " |"), 0u) << desk.State();
    EXPECT_TRUE(desk.Disk().empty());
  }
}

// ---- Save

INSTANTIATE_TEST_SUITE_P(
    Save, DocumentStory,
    testing::Values(
        Story{"NamedAndNo", HeadChanged, {No}, {}, Save, {Replace("~/head.bsw") + "no"}, HeadAsItWas},
        Story{"NamedAndYes",
              HeadChanged,
              {Yes},
              {},
              Save,
              Script({{Replace("~/head.bsw") + "yes"}, Writes("head.bsw - Tarnwick")}),
              "head.bsw - Tarnwick | ~/ | 11 11 11 | ~/head.bsw | imperial",
              {"~ ~/head.bsw 11"}},
        // Without a change too: nothing is remembered about the file.
        Story{"NamedAndUnchanged", Head, {No}, {}, Save, {Replace("~/head.bsw") + "no"}, HeadOpen},
        Story{"UntitledAndCancelled",
              BlankChanged,
              {},
              {Nothing},
              Save,
              {SaveDialog("~/", "untitled.bsw") + "cancel"},
              "untitled.bsw - Tarnwick | ~/ | 7 blank blank | none | imperial"},
        // No entry among the recent files: Save makes none.
        Story{"Untitled",
              BlankChanged,
              {},
              {{"made.bsw"}},
              Save,
              Script({{SaveDialog("~/", "untitled.bsw") + "~/made.bsw"}, Writes("made.bsw - Tarnwick")}),
              "made.bsw - Tarnwick | ~/ | 7 7 7 | none | imperial",
              {"+ ~/made.bsw 7"}},
        Story{"UntitledBlank",
              Blank,
              {},
              {{"made"}},
              Save,
              Script({{SaveDialog("~/", "untitled.bsw") + "~/made"}, Writes("made.bsw - Tarnwick")}),
              "made.bsw - Tarnwick | ~/ | blank blank blank | none | imperial",
              {"+ ~/made.bsw blank"}},
        // The dialog has warned of it.
        Story{"UntitledOverAnother",
              BlankChanged,
              {},
              {{"cut.bsw"}},
              Save,
              Script({{SaveDialog("~/", "untitled.bsw") + "~/cut.bsw"}, Writes("cut.bsw - Tarnwick")}),
              "cut.bsw - Tarnwick | ~/ | 7 7 7 | none | imperial",
              {"~ ~/cut.bsw 7"}},
        // The dialog has warned of nothing: it knew the name without its ending.
        Story{"UntitledOverAnotherByItsEndingAndNo",
              BlankChanged,
              {No},
              {{"cut"}},
              Save,
              {SaveDialog("~/", "untitled.bsw") + "~/cut", Replace("~/cut.bsw") + "no"},
              "untitled.bsw - Tarnwick | ~/ | 7 blank blank | none | imperial"},
        Story{"UntitledOverAnotherByItsEndingAndYes",
              BlankChanged,
              {Yes},
              {{"cut"}},
              Save,
              Script({{SaveDialog("~/", "untitled.bsw") + "~/cut", Replace("~/cut.bsw") + "yes"},
                      Writes("cut.bsw - Tarnwick")}),
              "cut.bsw - Tarnwick | ~/ | 7 7 7 | none | imperial",
              {"~ ~/cut.bsw 7"}},
        Story{"IntoAFolderThatIsNotThere",
              BlankChanged,
              {},
              {{"nowhere/made.bsw"}},
              Save,
              Script({{SaveDialog("~/", "untitled.bsw") + "~/nowhere/made.bsw"},
                      Writes("made.bsw - Tarnwick"),
                      {"Saving: Error Number: 2\nNo such file or directory\nSub Program mnuItemSave "
                       "[ok|no icon|ok]"}}),
              "made.bsw - Tarnwick | ~/nowhere/ | 7 blank blank | none | imperial"}),
    NameOf);

TEST(SaveStory, AsksForAPlaceOfADesignCalledUntitledEachTime) {
  DocumentDesk desk;
  SetScene(desk);
  BlankChanged(desk);
  for (int i = 0; i < 2; ++i) {
    desk.Choose("untitled.bsw");
    desk.Commands.Save();
    EXPECT_EQ(desk.Transcript(), Script({{SaveDialog("~/", "untitled.bsw") + "~/untitled.bsw"},
                                         Writes("untitled.bsw - Tarnwick")}));
  }
  EXPECT_EQ(desk.Disk(), Texts{"+ ~/untitled.bsw 7"});
}

TEST(SaveStory, WritesWhatIsNotThereAnyMoreAfterTheSameQuestion) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  std::filesystem::remove(FilePath(desk.Path("head.bsw")));
  desk.Answer({Yes});
  desk.Commands.Save();
  EXPECT_EQ(desk.Transcript(), Script({{Replace("~/head.bsw") + "yes"}, Writes("head.bsw - Tarnwick")}));
  EXPECT_EQ(desk.Disk(), Texts{"~ ~/head.bsw 11"});
}

TEST(SaveStory, KeepsTheSpareBytesAndMarksTheDesignAsSaved) {
  DocumentDesk desk;
  BandSaw odd = WithHook(10);
  odd.GulletInfo.SpareByte = 99;
  desk.Keep("odd.bsw", odd);
  OpenFile(desk, "odd.bsw");
  desk.Answer({Yes});
  desk.Commands.Save();
  desk.Transcript();
  const std::string bytes = test::BytesOf(FilePath(desk.Path("odd.bsw")));
  ASSERT_EQ(bytes.size(), 3375u);
  EXPECT_EQ(bytes.substr(0, 50), "Band Saw File: Version = 1.01                     ");
  EXPECT_EQ(bytes[346], 99);
  EXPECT_EQ(bytes[768], 2);
  EXPECT_EQ(bytes[769], 0);
}

#ifndef _WIN32

TEST(SaveStory, OfAFolderThatIsReadOnlyLeavesTheOldFileAndTheChange) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  using std::filesystem::perms;
  std::filesystem::permissions(desk.Folder(), perms::owner_read | perms::owner_exec);
  {
    const test::OrdinaryUser user;
    desk.Answer({Yes});
    desk.Commands.Save();
  }
  std::filesystem::permissions(desk.Folder(), perms::owner_all);
  EXPECT_EQ(desk.Transcript(),
            Script({{Replace("~/head.bsw") + "yes"},
                    Writes("head.bsw - Tarnwick"),
                    {"Saving: Error Number: 13\nPermission denied\nSub Program mnuItemSave "
                     "[ok|no icon|ok]"}}));
  EXPECT_EQ(desk.State().find(HeadAsItWas), 0u);
  EXPECT_TRUE(desk.Disk().empty());
}

/// There is no backup: the old file is deleted before the new one is written.
TEST(SaveStory, OnAFullDiskLeavesNoFileAndKeepsTheChange) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  desk.Choose("head.bsw");
  {
    const test::FullDisk full(1000);
    desk.Commands.SaveAs();
  }
  EXPECT_EQ(desk.Transcript(), Script({{SaveDialog("~/", "head.bsw") + "~/head.bsw"},
                                       Writes("head.bsw - Tarnwick"),
                                       {"Saving: Error Number: 27\nFile too large\nSub Program mnuItemSaveAs "
                                        "[ok|no icon|ok]"}}));
  EXPECT_EQ(desk.State().find(HeadAsItWas), 0u);
  EXPECT_EQ(desk.Disk(), Texts{"- ~/head.bsw"});
}

/// On the way to something else: that does not happen.
TEST(SaveStory, ThatFailsOnTheWayOutKeepsTheWindowOpen) {
  DocumentDesk desk;
  SetScene(desk);
  BlankChanged(desk);
  desk.Answer({Yes});
  desk.Choose("made.bsw");
  {
    const test::FullDisk full(1000);
    EXPECT_FALSE(desk.Commands.MayClose());
  }
  EXPECT_EQ(desk.Transcript(),
            Script({{SawChanged + "yes", OnUntitled + "~/made.bsw"},
                    Writes("made.bsw - Tarnwick Viewer"),
                    {"Saving: Error Number: 27\nFile too large\nSub Program SaveBeforeLeaving "
                     "[ok|no icon|ok]"}}));
  EXPECT_TRUE(desk.Disk().empty());
}

#endif

// ---- Save As

/// The names that come of what was chosen.
struct NameRow {
  const char* Name;
  const char* Chosen;
  const char* FileName;
  const char* Folder;
  friend void PrintTo(const NameRow& row, std::ostream* out) { *out << row.Name; }
};

class SaveAsName : public testing::TestWithParam<NameRow> {};

TEST_P(SaveAsName, IsTakenFromThePath) {
  const NameRow& row = GetParam();
  const std::string folder = std::string("~/") + row.Folder, path = folder + row.FileName;
  DocumentDesk desk;
  desk.Keep(std::string(row.Folder) + "note.txt", "");
  BlankChanged(desk);
  desk.Choose(row.Chosen);
  desk.Commands.SaveAs();
  EXPECT_EQ(desk.Transcript(), Script({{SaveDialog("~/", "untitled.bsw") + "~/" + row.Chosen},
                                       Writes(std::string(row.FileName) + " - Tarnwick"),
                                       Lists(path)}));
  EXPECT_EQ(desk.State(), std::string(row.FileName) + " - Tarnwick | " + folder + " | 7 7 7 | " + path +
                              " | imperial | 1.0");
  EXPECT_EQ(desk.Disk(), Texts{"+ " + path + " 7"});

  // And it comes back by its name, without and with a question.
  desk.Commands.New();
  desk.Transcript();
  desk.Commands.OpenRecent(0);
  EXPECT_EQ(desk.Transcript(), Reads(row.FileName, "7", path));
  desk.Choose(path.substr(2));
  desk.Answer({Cancel});
  desk.Commands.Open();
  EXPECT_EQ(desk.Transcript(), (Texts{OpenDialog(folder, row.FileName) + path, AlreadyOpen + "cancel"}));
}

INSTANTIATE_TEST_SUITE_P(
    Names, SaveAsName,
    testing::Values(NameRow{"WithItsEnding", "made.bsw", "made.bsw", ""},
                    NameRow{"WithoutEnding", "made", "made.bsw", ""},
                    NameRow{"WithAnotherEnding", "made.saw", "made.saw.bsw", ""},
                    // The search is for small letters alone.
                    NameRow{"InCapitals", "MADE.BSW", "MADE.BSW.bsw", ""},
                    NameRow{"WithMoreBehindTheEnding", "made.bsw.old", "made.bsw.old", ""},
                    NameRow{"WithBlanks", " my saw  7.bsw", " my saw  7.bsw", ""},
                    NameRow{"WithUmlauts", "Säge für Söhne", "Säge für Söhne.bsw", ""},
                    NameRow{"WithAnAmpersand", "Cut & Sons [2]", "Cut & Sons [2].bsw", ""},
                    NameRow{"InAFolderWithTheEnding", "old.bsw.d/made", "made", "old.bsw.d/"},
                    NameRow{"InAFolderThatHoldsIt", "bandsaw/saw", "saw.bsw", "bandsaw/"},
                    NameRow{"InAFolderOfTheSameName", "saw.bsw.d/saw.bsw", "saw.bsw", "saw.bsw.d/"},
                    NameRow{"InAFolderWithUmlauts", "Bänder & Blätter/saw.bsw", "saw.bsw",
                            "Bänder & Blätter/"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    SaveAs, DocumentStory,
    testing::Values(
        Story{"Cancelled",
              HeadChanged,
              {},
              {Nothing},
              SaveAs,
              {SaveDialog("~/", "head.bsw") + "cancel"},
              HeadAsItWas},
        // No question of the command's own: the dialog has warned.
        Story{"OverItself",
              HeadChanged,
              {},
              {{"head.bsw"}},
              SaveAs,
              Script({{SaveDialog("~/", "head.bsw") + "~/head.bsw"},
                      Writes("head.bsw - Tarnwick"),
                      Lists("~/head.bsw")}),
              "head.bsw - Tarnwick | ~/ | 11 11 11 | ~/head.bsw | imperial",
              {"~ ~/head.bsw 11"}},
        Story{"OverAnotherByItsEndingAndNo",
              HeadChanged,
              {No},
              {{"cut"}},
              SaveAs,
              {SaveDialog("~/", "head.bsw") + "~/cut", Replace("~/cut.bsw") + "no"},
              HeadAsItWas},
        Story{"OverAnotherByItsEndingAndYes",
              HeadChanged,
              {Yes},
              {{"cut"}},
              SaveAs,
              Script({{SaveDialog("~/", "head.bsw") + "~/cut", Replace("~/cut.bsw") + "yes"},
                      Writes("cut.bsw - Tarnwick"),
                      Lists("~/cut.bsw, ~/head.bsw")}),
              "cut.bsw - Tarnwick | ~/ | 11 11 11 | ~/cut.bsw, ~/head.bsw | imperial",
              {"~ ~/cut.bsw 11"}},
        Story{"IntoAFolderThatIsNotThere",
              HeadChanged,
              {},
              {{"nowhere/head.bsw"}},
              SaveAs,
              Script({{SaveDialog("~/", "head.bsw") + "~/nowhere/head.bsw"},
                      Writes("head.bsw - Tarnwick"),
                      {"Saving: Error Number: 2\nNo such file or directory\nSub Program mnuItemSaveAs "
                       "[ok|no icon|ok]"}}),
              "head.bsw - Tarnwick | ~/nowhere/ | 11 10 10 | ~/head.bsw | imperial"}),
    NameOf);

// ---- the caption of somebody on the way out

TEST(ViewerStory, StaysInTheCaptionUntilACommandSetsIt) {
  const std::vector<std::pair<Act, std::string>> next = {
      {[](DocumentDesk& desk) { desk.Commands.New(); }, "untitled.bsw - Tarnwick"},
      {[](DocumentDesk& desk) { desk.Answer({Yes}), desk.Commands.Save(); }, "kept.bsw - Tarnwick"},
      {[](DocumentDesk& desk) { desk.Choose("other.bsw"), desk.Commands.SaveAs(); }, "other.bsw - Tarnwick"},
      {[](DocumentDesk& desk) { desk.Choose("head.bsw"), desk.Commands.Open(); }, "head.bsw - Tarnwick"},
      {[](DocumentDesk& desk) { desk.Commands.OpenRecent(1); }, "head.bsw - Tarnwick"},
      {[](DocumentDesk& desk) { desk.Choose("kept.dxf"), desk.Commands.ExportDxf(); },
       "kept.bsw - Tarnwick Viewer"},
      {[](DocumentDesk& desk) { desk.Commands.SetTeethDirection(2); }, "kept.bsw - Tarnwick Viewer"},
      {[](DocumentDesk& desk) { desk.Answer({No}), desk.Commands.Save(); }, "kept.bsw - Tarnwick Viewer"},
  };
  for (const auto& [act, caption] : next) {
    DocumentDesk desk;
    SetScene(desk);
    HeadChanged(desk);
    desk.Choose("kept.bsw");
    EXPECT_TRUE(desk.Commands.SaveBeforeLeaving());
    EXPECT_EQ(desk.Process.Design.Caption(), "kept.bsw - Tarnwick Viewer");
    act(desk);
    EXPECT_EQ(desk.Process.Design.Caption(), caption);
    desk.Transcript();
  }
}

// ---- close

INSTANTIATE_TEST_SUITE_P(
    Close, DocumentStory,
    testing::Values(Story{"Unchanged", Head, {}, {}, CloseAndGo, {"settings written"}, HeadOpen},
                    Story{"ChangedAndCancelled",
                          HeadChanged,
                          {Cancel},
                          {},
                          CloseAndStay,
                          {SawChanged + "cancel"},
                          HeadAsItWas},
                    Story{"ChangedAndGivenUp",
                          HeadChanged,
                          {No},
                          {},
                          CloseAndGo,
                          {SawChanged + "no", "settings written"},
                          HeadAsItWas},
                    Story{"ChangedAndNotSavedAfterAll",
                          HeadChanged,
                          {Yes},
                          {Nothing},
                          CloseAndStay,
                          {SawChanged + "yes", OnHead + "cancel"},
                          HeadAsItWas},
                    Story{"ChangedAndSaved",
                          HeadChanged,
                          {Yes},
                          {{"head.bsw"}},
                          CloseAndGo,
                          Script({{SawChanged + "yes", OnHead + "~/head.bsw"},
                                  Writes("head.bsw - Tarnwick Viewer"),
                                  Lists("~/head.bsw"),
                                  {"settings written"}}),
                          "head.bsw - Tarnwick Viewer | ~/ | 11 11 11 | ~/head.bsw | imperial",
                          {"~ ~/head.bsw 11"}}),
    NameOf);

TEST(CloseStory, GoesOnWithoutSettings) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  desk.Store.FinishFailure = std::make_error_code(std::errc::no_space_on_device);
  desk.Answer({No});
  EXPECT_TRUE(desk.Commands.MayClose());
  const Texts told = desk.Transcript();
  EXPECT_EQ(told.front(), SawChanged + "no");
  EXPECT_EQ(told.back(), NoSettings);
}

// ---- exports

std::string DxfDialog(const std::string& folder, const std::string& name) {
  return "save, warning, DXF Files (*.dxf)|*.dxf in " + folder + " on " + name + " -> ";
}
std::string TextDialog(const std::string& folder, const std::string& name) {
  return "save, warning, Text Files (*.txt)|*.txt in " + folder + " on " + name + " -> ";
}

INSTANTIATE_TEST_SUITE_P(
    Export, DocumentStory,
    testing::Values(Story{"DrawingCancelled",
                          HeadChanged,
                          {},
                          {Nothing},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "cancel"},
                          HeadAsItWas},
                    Story{"Drawing",
                          HeadChanged,
                          {},
                          {{"head"}},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "~/head", "busy", "not busy", "draw 11"},
                          HeadAsItWas,
                          {"+ ~/head.dxf"}},
                    Story{"DrawingOfABlankDesign",
                          Blank,
                          {},
                          {{"untitled.dxf"}},
                          ExportDxf,
                          {DxfDialog("~/", "untitled.dxf") + "~/untitled.dxf", "busy", "not busy",
                           "draw blank"},
                          Untitled + "none | imperial",
                          {"+ ~/untitled.dxf"}},
                    Story{"DrawingOverADesign",
                          Head,
                          {},
                          {{"cut.bsw"}},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "~/cut.bsw", "busy", "not busy", "draw 10"},
                          HeadOpen,
                          {"+ ~/cut.bsw.dxf"}},
                    Story{"DrawingIntoAFolderThatIsNotThere",
                          Head,
                          {},
                          {{"nowhere/head.dxf"}},
                          ExportDxf,
                          {DxfDialog("~/", "head.dxf") + "~/nowhere/head.dxf", "busy",
                           "Tarnwick: Error 2 [ok|no icon|ok]", "not busy", "draw 10"},
                          HeadOpen},
                    Story{"ListingCancelled",
                          HeadChanged,
                          {},
                          {Nothing},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "cancel"},
                          HeadAsItWas},
                    Story{"Listing",
                          HeadChanged,
                          {},
                          {{"figures"}},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "~/figures"},
                          HeadAsItWas,
                          {"+ ~/figures.txt"}},
                    Story{"ListingWithAnotherEnding",
                          Head,
                          {},
                          {{"figures.csv"}},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "~/figures.csv"},
                          HeadOpen,
                          {"+ ~/figures.csv"}},
                    // Nothing is said.
                    Story{"ListingIntoAFolderThatIsNotThere",
                          Head,
                          {},
                          {{"nowhere/head.txt"}},
                          SaveText,
                          {TextDialog("~/", "head.txt") + "~/nowhere/head.txt"},
                          HeadOpen}),
    NameOf);

TEST(ExportStory, WritesTheDrawingOfTheChangedDesign) {
  DocumentDesk desk;
  SetScene(desk);
  HeadChanged(desk);
  desk.Choose("head.dxf");
  desk.Commands.ExportDxf();
  desk.Transcript();
  const std::string bytes = test::BytesOf(FilePath(desk.Path("head.dxf")));
  EXPECT_EQ(bytes.find(" 0 \r\nSECTION\r\n 2 \r\nHEADER\r\n"), 0u);
  EXPECT_NE(bytes.find("\r\n 0 \r\nARC\r\n"), std::string::npos);
  const std::string end = " 0 \r\nENDSEC\r\n 0 \r\nEOF\r\n";
  EXPECT_EQ(bytes.rfind(end), bytes.size() - end.size());
  CollectedMessages say;
  OpenDesign& design = desk.Process.Design;
  design.Recalculate(say);
  WriteDxf(design.Lines, FilePath(desk.Path("again.dxf")), design.Settings.Calculation, say);
  EXPECT_EQ(test::BytesOf(FilePath(desk.Path("again.dxf"))), bytes);
}

TEST(ExportStory, TakesAnEndingThatStandsInTheFolder) {
  DocumentDesk desk;
  SetScene(desk);
  desk.Keep("plans.DXF.d/note.txt", "");
  desk.Keep("lists.d/note.txt", "");
  Head(desk);
  desk.Choose("plans.DXF.d/head");
  desk.Commands.ExportDxf();
  desk.Choose("lists.d/head");  // a point in the folder is no ending of the name
  desk.Commands.SaveText();
  desk.Transcript();
  EXPECT_EQ(desk.Disk(), (Texts{"+ ~/lists.d/head.txt", "+ ~/plans.DXF.d/head"}));
}

TEST(ExportStory, AsksAboutTheFileThatTheEndingMakes) {
  DocumentDesk desk;
  SetScene(desk);
  desk.Keep("plan.dxf", "drawn by hand");
  desk.Keep("plan.txt", "written by hand");
  Head(desk);
  for (const Act& act : {Act(ExportDxf), Act(SaveText)}) {
    desk.Choose("plan");
    desk.Answer({No});
    act(desk);
  }
  EXPECT_EQ(desk.Transcript(),
            (Texts{DxfDialog("~/", "head.dxf") + "~/plan", Replace("~/plan.dxf") + "no",
                   TextDialog("~/", "head.txt") + "~/plan", Replace("~/plan.txt") + "no"}));
  EXPECT_TRUE(desk.Disk().empty());
  for (const Act& act : {Act(ExportDxf), Act(SaveText)}) {
    desk.Choose("plan");
    desk.Answer({Yes});
    act(desk);
  }
  desk.Transcript();
  EXPECT_EQ(desk.Disk(), (Texts{"~ ~/plan.dxf", "~ ~/plan.txt"}));
}

TEST(ExportStory, ListsTheRowsUnderTheNameOfTheDesign) {
  DocumentDesk desk;
  desk.Keep("Säge & Söhne.alt.bsw", WithHook(10));
  desk.Commands.OpenNamedFile("Säge & Söhne.alt.bsw", desk.Folder());
  desk.Transcript();
  desk.Choose("list.txt");
  desk.Commands.SaveText();
  EXPECT_EQ(desk.Transcript().front(), TextDialog("~/", "Säge & Söhne.txt") + "~/list.txt");
#ifndef _WIN32  // where the listing is in the code page
  const std::string bytes = test::BytesOf(FilePath(desk.Path("list.txt")));
  EXPECT_EQ(bytes.find("Säge & Söhne.alt.bsw,\n\n"), 0u);
  EXPECT_NE(bytes.find("\nHook Angle:,         "), std::string::npos);
#endif
}

// ---- direction of teeth

TEST(DirectionStory, TurnsTheBandAndIsKeptAtTheClose) {
  DocumentDesk desk;
  SetScene(desk);
  Head(desk);
  desk.Commands.SetTeethDirection(1);
  EXPECT_EQ(desk.Transcript(), Texts{});
  desk.Commands.SetTeethDirection(2);
  EXPECT_EQ(desk.Transcript(), (Texts{"direction 2", "draw 10"}));
  desk.Commands.SetTeethDirection(2);
  EXPECT_EQ(desk.Transcript(), Texts{});
  EXPECT_EQ(desk.State().find(HeadOpen), 0u) << "it belongs to the program, not to the design";
  EXPECT_TRUE(desk.Commands.MayClose());
  EXPECT_EQ(desk.Setting("TeethDirection"), " 2");
  desk.Commands.SetTeethDirection(1);
  EXPECT_EQ(desk.Transcript(), (Texts{"settings written", "direction 1", "draw 10"}));
}

// ---- a day at the desk

TEST(DocumentDay, EndsWithEveryDesignWhereItBelongs) {
  DocumentDesk desk;
  SetScene(desk);
  PlanSquareBack(desk);
  desk.Commands.NewStepByStep();
  desk.Choose("Rift 9");
  desk.Commands.Save();  // made
  ChangeHook(desk, 10);
  desk.Answer({Yes});
  desk.Commands.Save();  // and made better
  desk.Choose("Rift 11.bsw");
  ChangeHook(desk, 11);
  desk.Commands.SaveAs();  // a second one of it
  desk.Choose("list.bsw");
  desk.Commands.Open();  // a slip
  desk.Commands.OpenRecent(0);
  EXPECT_EQ(desk.Process.Design.FileName, "Rift 11.bsw");
  ChangeHook(desk, 12);
  desk.Answer({Yes});
  desk.Choose("Rift 12");
  desk.Choose("head.bsw");
  desk.Commands.Open();  // the third is kept on the way
  EXPECT_EQ(desk.Process.Design.FileName, "head.bsw");
  ChangeHook(desk, 13);
  desk.Answer({No});
  EXPECT_TRUE(desk.Commands.MayClose());
  EXPECT_EQ(desk.Disk(),
            (Texts{"- ~/list.bsw", "+ ~/Rift 11.bsw 11", "+ ~/Rift 12.bsw 12", "+ ~/Rift 9.bsw 10"}));
  EXPECT_EQ(desk.State().substr(0, desk.State().rfind(" | ")),
            "head.bsw - Tarnwick | ~/ | 13 10 10 | ~/head.bsw, ~/Rift 12.bsw, ~/Rift 11.bsw | imperial");
}

}  // namespace
}  // namespace tarnwick
