#include "shell/DocumentStory.h"

namespace tarnwick {
namespace {

using namespace story;

// ---- Open

const std::string OpenOnHead = OpenDialog("~/", "head.bsw");
const std::string OpenOnUntitled = OpenDialog("~/", "untitled.bsw");
const std::string CutOpen = "cut.bsw - Tarnwick | ~/ | 12 12 12 | ~/cut.bsw, ~/head.bsw | imperial";

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

}  // namespace
}  // namespace tarnwick
