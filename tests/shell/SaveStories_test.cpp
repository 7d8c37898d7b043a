#include "shell/DocumentStory.h"
#ifndef _WIN32
#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"
#endif

namespace tarnwick {
namespace {

using namespace story;

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

}  // namespace
}  // namespace tarnwick
