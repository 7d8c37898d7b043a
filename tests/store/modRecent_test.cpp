#include "store/modRecent.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tarnwick {
namespace {

using Texts = std::vector<std::string>;

/// What the menu shows.
Texts Paths(const RecentFiles& files) {
  Texts paths;
  for (const RecentFile& file : files) paths.push_back(file.Path());
  return paths;
}

RecentFiles Opened(const std::vector<std::string>& names) {
  RecentFiles files;
  for (const std::string& name : names) AddRecent(files, name, "/saws/");
  return files;
}

RecentFiles Saws(const std::vector<std::string>& names) {
  RecentFiles files;
  for (const std::string& name : names) files.push_back({"/saws/", name});
  return files;
}

/// The way a list of menu items goes about it, which has an item for every entry: the list makes room, closes
/// up over an older copy, moves down, and drops its last item when that came out empty.
struct MenuList {
  std::array<RecentFile, 6> Entries;
  std::size_t Count = 0;

  void Add(const std::string& name, const std::string& driveDir) {
    std::size_t n = Count + 1;
    if (n >= 6) n = 5;
    std::size_t j = 0;
    for (std::size_t i = 0; i < n; ++i) {
      Entries[j] = Entries[i];
      if (Entries[i].Path() != driveDir + name) ++j;
    }
    for (std::size_t i = n - 1; i >= 1; --i) Entries[i] = Entries[i - 1];
    Entries[0] = {driveDir, name};
    if (Entries[n - 1].Path().empty()) --n;
    Count = n;
  }

  [[nodiscard]] RecentFiles List() const {
    return {Entries.begin(), Entries.begin() + static_cast<std::ptrdiff_t>(Count)};
  }
};

TEST(AddRecent, PutsTheFirstFileOnTheList) {
  RecentFiles files;
  AddRecent(files, "head.bsw", "/saws/");
  ASSERT_EQ(files.size(), 1u);
  EXPECT_EQ(files[0].DriveDir, "/saws/");
  EXPECT_EQ(files[0].File, "head.bsw");
  EXPECT_EQ(files[0].Path(), "/saws/head.bsw");
}

TEST(AddRecent, KeepsTheFiveNewestOfSixFiles) {
  EXPECT_EQ(Opened({"1", "2", "3", "4", "5"}), Saws({"5", "4", "3", "2", "1"}));
  EXPECT_EQ(Opened({"1", "2", "3", "4", "5", "6"}), Saws({"6", "5", "4", "3", "2"}));
}

TEST(AddRecent, MovesAFileThatIsOnTheListToTheTop) {
  EXPECT_EQ(Opened({"1", "1"}), Saws({"1"}));
  EXPECT_EQ(Opened({"1", "2", "1"}), Saws({"1", "2"}));
  EXPECT_EQ(Opened({"1", "2", "3", "4", "5", "5"}), Saws({"5", "4", "3", "2", "1"}));
  EXPECT_EQ(Opened({"1", "2", "3", "4", "5", "3"}), Saws({"3", "5", "4", "2", "1"}));
  EXPECT_EQ(Opened({"1", "2", "3", "4", "5", "1"}), Saws({"1", "5", "4", "3", "2"}));
}

TEST(AddRecent, TellsUpperFromLowerCase) {
  EXPECT_EQ(Opened({"head.bsw", "Head.bsw", "HEAD.BSW"}), Saws({"HEAD.BSW", "Head.bsw", "head.bsw"}));
  RecentFiles files = Saws({"head.bsw"});
  AddRecent(files, "head.bsw", "/Saws/");
  EXPECT_EQ(files, (RecentFiles{{"/Saws/", "head.bsw"}, {"/saws/", "head.bsw"}}));
}

TEST(AddRecent, TellsFoldersApart) {
  RecentFiles files;
  AddRecent(files, "head.bsw", "/saws/");
  AddRecent(files, "head.bsw", "/old saws/");
  EXPECT_EQ(files, (RecentFiles{{"/old saws/", "head.bsw"}, {"/saws/", "head.bsw"}}));
}

TEST(AddRecent, ComparesTheWholePathHoweverItIsSplit) {
  RecentFiles files{{"/saws/", "old/head.bsw"}};
  AddRecent(files, "head.bsw", "/saws/old/");
  EXPECT_EQ(files, (RecentFiles{{"/saws/old/", "head.bsw"}}));
}

TEST(AddRecent, DoesNotMindThatTheFileIsNamedFromTheListItself) {
  RecentFiles files = Opened({"1", "2", "3", "4", "5"});
  AddRecent(files, files[4].File, files[4].DriveDir);
  EXPECT_EQ(files, Saws({"1", "5", "4", "3", "2"}));
}

/// Lists that nobody gets by opening files, only by a hand in the store.
struct HandMadeRow {
  const char* Name;
  std::vector<std::string> Before;  // "" is an entry without folder and name
  friend void PrintTo(const HandMadeRow& row, std::ostream* out) { *out << row.Name; }
};
class HandMadeList : public testing::TestWithParam<HandMadeRow> {};

RecentFiles HandMade(const std::vector<std::string>& names) {
  RecentFiles files;
  for (const std::string& name : names)
    files.push_back(name.empty() ? RecentFile{} : RecentFile{"/saws/", name});
  return files;
}

TEST_P(HandMadeList, TakesANewFileAsTheMenuDoes) {
  for (const char* opened : {"new", "1", "2", "3"}) {
    RecentFiles files = HandMade(GetParam().Before);
    MenuList menu;
    std::copy(files.begin(), files.end(), menu.Entries.begin());
    menu.Count = files.size();
    AddRecent(files, opened, "/saws/");
    menu.Add(opened, "/saws/");
    EXPECT_EQ(Paths(files), Paths(menu.List())) << "and then " << opened;
    EXPECT_LE(files.size(), MostRecentFiles);
  }
}

INSTANTIATE_TEST_SUITE_P(Recent, HandMadeList,
                         testing::Values(HandMadeRow{"GapInTheMiddle", {"1", "", "3"}},
                                         HandMadeRow{"GapAhead", {"", "1"}},
                                         HandMadeRow{"GapAtTheEnd", {"1", "2", ""}},
                                         HandMadeRow{"OnlyAGap", {""}},
                                         HandMadeRow{"OnlyGaps", {"", "", "", "", ""}},
                                         HandMadeRow{"FullWithAGap", {"1", "", "3", "4", "5"}},
                                         HandMadeRow{"FullWithAGapAtTheEnd", {"1", "2", "3", "4", ""}},
                                         HandMadeRow{"TwoGaps", {"1", "", "3", "", "2"}}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(AddRecent, DoesAsTheMenuInAnyOrderOfFiles) {
  std::mt19937 dice(8311);
  for (int list = 0; list < 200; ++list) {
    RecentFiles files;
    MenuList menu;
    const auto choice = 1 + dice() % 9;
    for (int opened = 0; opened < 40; ++opened) {
      const std::string name = std::to_string(dice() % choice) + ".bsw";
      const std::string folder = dice() % 4 == 0 ? "/other/" : "/saws/";
      AddRecent(files, name, folder);
      menu.Add(name, folder);
      ASSERT_EQ(files, menu.List()) << "list " << list << ", file " << opened;
    }
  }
}

}  // namespace
}  // namespace tarnwick
