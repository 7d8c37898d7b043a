// Settings in files are for platforms without a registry. What is tested here are such platforms' files.
#ifndef _WIN32

#include "store/modSettingsFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>

#include "store/modReg.h"
#include "store/modUserStore.h"
#include "support/CollectedMessages.h"
#include "support/Environment.h"
#include "support/FullDisk.h"
#include "support/PipeWatch.h"
#include "support/TemporaryFolder.h"
#ifdef __linux__
#include "support/OrdinaryUser.h"
#endif

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::CollectedMessages;
using test::EnvironmentVariable;
using test::FullDisk;
using test::PipeWatch;
using test::TemporaryFolder;
using Texts = std::vector<std::string>;

constexpr std::string_view App = "Tarnwick", Section = "Settings";

std::string Get(SettingsFile& store, std::string_view name) { return store.GetValue(App, Section, name); }

/// Sets values and puts them to rest; the first failure on the way.
std::error_code Save(SettingsFile& store, const std::vector<std::pair<std::string, std::string>>& values) {
  if (!store.KeyExists(App, Section)) {
    if (const auto error = store.CreateKey(App, Section)) return error;
  }
  for (const auto& [name, value] : values) {
    if (const auto error = store.SetValue(App, Section, name, value)) return error;
  }
  return store.Finish(App, Section);
}

class SettingsFileIn : public testing::Test {
 protected:
  /// The file as somebody left it.
  void Write(std::string_view bytes) const {
    fs::create_directories(Folder());
    folder_.File("Tarnwick/Settings", bytes);
  }
  [[nodiscard]] fs::path Folder() const { return folder_ / "Tarnwick"; }
  [[nodiscard]] fs::path Path() const { return Folder() / "Settings"; }
  [[nodiscard]] std::string Bytes() const { return BytesOf(Path()); }

  /// Names of all that lies in `folder` and below, as seen from there.
  [[nodiscard]] static Texts NamesIn(const fs::path& folder) {
    Texts names;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      names.push_back(entry.path().lexically_relative(folder).string());
    std::sort(names.begin(), names.end());
    return names;
  }
  [[nodiscard]] Texts Names() const { return NamesIn(folder_.Path()); }

  /// What a program reads that starts now.
  [[nodiscard]] std::string Stored(std::string_view name) const {
    SettingsFile store(folder_.Path());
    return Get(store, name);
  }

  const TemporaryFolder folder_;
  SettingsFile store_{folder_.Path()};
};

// ---- Reading

TEST_F(SettingsFileIn, ExistsWhenThereIsAFile) {
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get(store_, "City"), "");
  Write("");
  EXPECT_TRUE(SettingsFile(folder_.Path()).KeyExists(App, Section));
  EXPECT_FALSE(SettingsFile(folder_.Path()).KeyExists(App, "Other"));
  EXPECT_FALSE(SettingsFile(folder_.Path()).KeyExists("Other", Section));
}

TEST_F(SettingsFileIn, IsNotWrittenAgainWhenItHoldsAllThatAlready) {
  Write("Colour=3\n# mine\nUnits=1\n");
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
  fs::last_write_time(Path(), longAgo);
  SettingsFile store(folder_.Path());
  EXPECT_EQ(Save(store, {{"Units", "1"}, {"Colour", "3"}}), std::error_code());
  EXPECT_EQ(fs::last_write_time(Path()), longAgo);
  EXPECT_EQ(Save(store, {{"Units", "2"}}), std::error_code());
  EXPECT_NE(fs::last_write_time(Path()), longAgo);
  EXPECT_EQ(Bytes(), "Colour=3\n# mine\nUnits=2\n");
}

TEST_F(SettingsFileIn, ReadsALineForEachValue) {
  Write("City=Oak Town\nDecimalPlaces= 5\nEmpty=\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_EQ(Get(store_, "DecimalPlaces"), " 5");
  EXPECT_EQ(Get(store_, "Empty"), "");
  EXPECT_EQ(Get(store_, "Missing"), "");
  EXPECT_EQ(Get(store_, "city"), "");
}

TEST_F(SettingsFileIn, TakesAllBehindTheFirstEqualsSign) {
  Write("City==a=b=\n");
  EXPECT_EQ(Get(store_, "City"), "=a=b=");
}

TEST_F(SettingsFileIn, DoesNotMindALastLineWithoutAnEnd) {
  Write("City=Oak Town\nCountry=Canada");
  EXPECT_EQ(Get(store_, "Country"), "Canada");
  EXPECT_FALSE(Save(store_, {{"Fax", "1"}}));
  EXPECT_EQ(Stored("Country"), "Canada");
  EXPECT_EQ(Stored("Fax"), "1");
}

TEST_F(SettingsFileIn, ReadsTheLastOfTwoLinesWithOneKey) {
  Write("City=First\nCountry=Canada\nCity=Last\n");
  EXPECT_EQ(Get(store_, "City"), "Last");
}

TEST_F(SettingsFileIn, ReadsLinesThatEndTheWindowsWay) {
  Write("City=Oak Town\r\nCountry=Canada\r\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_EQ(Get(store_, "Country"), "Canada");
}

TEST_F(SettingsFileIn, SkipsLinesThatAreNoValues) {
  Write("\n# City=comment\n[Settings]\nCity\n=Nowhere\nCity=Oak Town\n\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_EQ(Get(store_, "[Settings]"), "");
}

TEST_F(SettingsFileIn, ReadsTextsOfAnyLanguage) {
  Write("City=Überlingen\nDepot=木材\n");
  EXPECT_EQ(Get(store_, "City"), "Überlingen");
  EXPECT_EQ(Get(store_, "Depot"), "木材");
}

TEST_F(SettingsFileIn, ReadsWhatItCanOfGarbage) {
  std::string bytes;
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>(i * 7919 >> 3);
  Write(bytes + "\nCity=Oak Town\n" + std::string(100, '\0') + "\nCountry=Canada\n");
  EXPECT_TRUE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_EQ(Get(store_, "Country"), "Canada");
}

TEST_F(SettingsFileIn, IsNotThereWhenAFolderHasItsName) {
  fs::create_directories(Path());
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get(store_, "City"), "");
}

TEST_F(SettingsFileIn, MakesNothingByReading) {
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get(store_, "City"), "");
  EXPECT_EQ(Names(), Texts{});
}

// ---- Writing

TEST_F(SettingsFileIn, MakesTheFolderAndTheFile) {
  EXPECT_FALSE(Save(store_, {{"City", "Oak Town"}, {"DecimalPlaces", " 5"}, {"Fax", ""}}));
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
  EXPECT_EQ(Bytes(), "City=Oak Town\nDecimalPlaces= 5\nFax=\n");
}

TEST_F(SettingsFileIn, MakesTheFolderOfAllSettingsToo) {
  SettingsFile store(folder_ / "home" / ".config");
  EXPECT_FALSE(Save(store, {{"City", "Oak Town"}}));
  EXPECT_EQ(BytesOf(folder_ / "home" / ".config" / "Tarnwick" / "Settings"), "City=Oak Town\n");
}

TEST_F(SettingsFileIn, IsTheSamePathForEverySection) {
  EXPECT_FALSE(store_.CreateKey("Tarnwick", "Customer"));
  EXPECT_FALSE(store_.SetValue("Tarnwick", "Customer", "Name", "Oak & Sons"));
  EXPECT_FALSE(store_.Finish("Tarnwick", "Customer"));
  EXPECT_EQ(BytesOf(Folder() / "Customer"), "Name=Oak & Sons\n");
  EXPECT_FALSE(store_.KeyExists(App, Section));
}

TEST_F(SettingsFileIn, KnowsAtOnceWhatItHasTakenIn) {
  Write("City=Oak Town\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_FALSE(store_.SetValue(App, Section, "City", "Elm Town"));
  EXPECT_EQ(Get(store_, "City"), "Elm Town");
}

TEST_F(SettingsFileIn, WritesNothingBeforeItIsPutToRest) {
  Write("City=Oak Town\n");
  EXPECT_FALSE(store_.SetValue(App, Section, "City", "Elm Town"));
  EXPECT_FALSE(store_.SetValue(App, Section, "Fax", "1"));
  EXPECT_EQ(Bytes(), "City=Oak Town\n");
  EXPECT_FALSE(store_.Finish(App, Section));
  EXPECT_EQ(Bytes(), "City=Elm Town\nFax=1\n");
}

TEST_F(SettingsFileIn, HasNothingToDoWithoutAValue) {
  EXPECT_FALSE(store_.Finish(App, Section));
  EXPECT_EQ(Names(), Texts{});
}

TEST_F(SettingsFileIn, ExistsAfterItWasCreated) {
  EXPECT_FALSE(store_.CreateKey(App, Section));
  EXPECT_TRUE(store_.KeyExists(App, Section));
  EXPECT_FALSE(store_.CreateKey(App, Section));  // it is there already
}

TEST_F(SettingsFileIn, IsLeftAloneByASecondCreation) {
  Write("City=Oak Town\n");
  EXPECT_FALSE(store_.CreateKey(App, Section));
  EXPECT_FALSE(store_.Finish(App, Section));
  EXPECT_EQ(Bytes(), "City=Oak Town\n");
}

TEST_F(SettingsFileIn, KeepsLinesThatAreNoneOfItsOwnInTheirPlaces) {
  Write("# mine\n\nCity=Oak Town\n; also mine\nShade=green\nno value\nCountry=Canada\n\n# end\n");
  EXPECT_FALSE(Save(store_, {{"Country", "Peru"}, {"City", "Elm Town"}, {"Fax", "1"}}));
  const std::string kept =
      "# mine\n\nCity=Elm Town\n; also mine\nShade=green\nno value\nCountry=Peru\n\n# end\n";
  EXPECT_EQ(Bytes(), kept + "Fax=1\n");
}

TEST_F(SettingsFileIn, IsReadAsItWasSetWhereAKeyHadTwoLines) {
  Write("City=First\nShade=green\nCity=Last\n");
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_EQ(Stored("City"), "Elm Town");
  EXPECT_EQ(Stored("Shade"), "green");
}

TEST_F(SettingsFileIn, TakesTheLastOfTwoTexts) {
  EXPECT_FALSE(Save(store_, {{"City", "First"}, {"City", "Last"}}));
  EXPECT_EQ(Stored("City"), "Last");
}

TEST_F(SettingsFileIn, PassesOverTheMarkThatSomeEditorsBeginAFileWith) {
  const std::string mark = "\xEF\xBB\xBF";
  Write(mark + "City=Oak Town\nFax=1\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_EQ(Bytes(), mark + "City=Elm Town\nFax=1\n");
}

TEST_F(SettingsFileIn, WritesAmongLinesThatEndTheWindowsWay) {
  Write("# mine\r\nCity=Oak Town\r\nShade=green\r\n");
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}, {"Fax", "1"}}));
  EXPECT_EQ(Stored("City"), "Elm Town");
  EXPECT_EQ(Stored("Fax"), "1");
  EXPECT_EQ(Stored("Shade"), "green");
  EXPECT_TRUE(Bytes().starts_with("# mine\r\nCity=Elm Town"));
  EXPECT_NE(Bytes().find("\nShade=green\r\n"), std::string::npos);
}

TEST_F(SettingsFileIn, KeepsBytesThatAreNoText) {
  const std::string garbage = std::string("\xFF\xFE\0\x01 \x80", 6) + "\n" + std::string(3, '\0') + "\n";
  Write(garbage + "City=Oak Town\n");
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_EQ(Bytes(), garbage + "City=Elm Town\n");
}

TEST_F(SettingsFileIn, WritesTextsOfAnyLanguage) {
  EXPECT_FALSE(Save(store_, {{"City", "Überlingen"}, {"Depot", "木材"}}));
  EXPECT_EQ(Bytes(), "City=Überlingen\nDepot=木材\n");
}

TEST_F(SettingsFileIn, GivesBackEveryByteOfAFolderThatIsNoText) {
  const std::string folder = "/s\xE4gen/\xFF/";  // folders may have such names
  EXPECT_FALSE(Save(store_, {{"CurrentSawDir", folder}}));
  EXPECT_EQ(Stored("CurrentSawDir"), folder);
}

class TextOfSeveralLines : public SettingsFileIn, public testing::WithParamInterface<std::string> {};

TEST_P(TextOfSeveralLines, StaysOneLineOfTheFile) {
  Write("DecimalPlaces= 5\n");
  const std::string text = "Oak" + GetParam() + "DecimalPlaces=9" + GetParam() + "Fax=1";
  EXPECT_FALSE(Save(store_, {{"City", text}, {"Country", "Canada"}}));
  const std::string bytes = Bytes();
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3);
  EXPECT_EQ(bytes.find('\r'), std::string::npos);
  EXPECT_EQ(bytes.find('\0'), std::string::npos);
  EXPECT_EQ(Stored("DecimalPlaces"), " 5");
  EXPECT_EQ(Stored("Fax"), "");
  EXPECT_EQ(Stored("Country"), "Canada");
  EXPECT_TRUE(Stored("City").starts_with("Oak"));
}

INSTANTIATE_TEST_SUITE_P(Breaks, TextOfSeveralLines,
                         testing::Values("\n", "\r\n", "\r", "\n\n", std::string(1, '\0')),
                         [](const auto& row) { return "Break" + std::to_string(row.index); });

TEST_F(SettingsFileIn, GivesLongTextsBackWholeAndTheRegistryTheirBeginning) {
  CollectedMessages say;
  const Registry registry(store_, "Settings");
  const std::string text = std::string(299, 'x') + "y";
  EXPECT_TRUE(registry.SetValue("City", text, say));
  EXPECT_TRUE(registry.Finish(say));
  EXPECT_EQ(Stored("City"), text);
  EXPECT_EQ(registry.GetValue("City"), std::string(255, 'x'));
  EXPECT_EQ(say.Texts(), Texts{});
}

TEST_F(SettingsFileIn, LeavesNothingBesideTheFile) {
  for (const char* city : {"Oak Town", "Elm Town", "Ash Town"}) EXPECT_FALSE(Save(store_, {{"City", city}}));
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
}

TEST_F(SettingsFileIn, StaysALinkWhenItIsOne) {
  const fs::path elsewhere = folder_.File("my settings", "# mine\nCity=Oak Town\n");
  fs::create_directory(Folder());
  fs::create_symlink(elsewhere, Path());
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_TRUE(fs::is_symlink(Path()));
  EXPECT_EQ(BytesOf(elsewhere), "# mine\nCity=Elm Town\n");
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings", "my settings"}));
}

TEST_F(SettingsFileIn, FollowsALinkThatIsSeenFromItsOwnFolder) {
  const fs::path elsewhere = folder_.File("my settings", "City=Oak Town\n");
  fs::create_directory(Folder());
  fs::create_symlink("../my settings", Path());
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_TRUE(fs::is_symlink(Path()));
  EXPECT_EQ(BytesOf(elsewhere), "City=Elm Town\n");
}

TEST_F(SettingsFileIn, StaysALinkWhenThereIsNothingYetAtItsEnd) {
  fs::create_directory(Folder());
  fs::create_symlink("../my settings", Path());
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_TRUE(fs::is_symlink(Path()));
  EXPECT_EQ(BytesOf(folder_ / "my settings"), "City=Elm Town\n");
}

TEST_F(SettingsFileIn, KeepsThePermissionsOfTheFile) {
  Write("City=Oak Town\n");
  fs::permissions(Path(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_EQ(fs::status(Path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

// ---- Several programs on one file

TEST_F(SettingsFileIn, KeepsWhatAnotherProgramHasWritten) {
  Write("City=Oak Town\nCountry=Canada\n");
  SettingsFile other(folder_.Path());
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_EQ(Get(other, "City"), "Oak Town");
  EXPECT_FALSE(Save(other, {{"Country", "Peru"}, {"Shade", "green"}}));
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_EQ(Bytes(), "City=Elm Town\nCountry=Peru\nShade=green\n");
}

TEST_F(SettingsFileIn, IsAsTheLastOfTwoProgramsSetIt) {
  Write("City=Oak Town\n");
  SettingsFile other(folder_.Path());
  EXPECT_FALSE(store_.SetValue(App, Section, "City", "First"));
  EXPECT_FALSE(other.SetValue(App, Section, "City", "Second"));
  EXPECT_FALSE(other.Finish(App, Section));
  EXPECT_FALSE(store_.Finish(App, Section));
  EXPECT_EQ(Bytes(), "City=First\n");
  EXPECT_FALSE(store_.Finish(App, Section));  // at rest: nothing is written again
  EXPECT_FALSE(Save(other, {{"City", "Second"}}));
  EXPECT_FALSE(store_.Finish(App, Section));
  EXPECT_EQ(Bytes(), "City=Second\n");
}

TEST_F(SettingsFileIn, KeepsLinesThatAHandWroteMeanwhile) {
  Write("City=Oak Town\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  Write("# by hand\nCity=Oak Town\nShade=green\n");
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_EQ(Bytes(), "# by hand\nCity=Elm Town\nShade=green\n");
}

TEST_F(SettingsFileIn, IsMadeAgainWhenItHasVanished) {
  Write("City=Oak Town\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  fs::remove_all(Folder());
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}, {"Fax", "1"}}));
  EXPECT_EQ(Stored("City"), "Elm Town");
  EXPECT_EQ(Stored("Fax"), "1");
}

// ---- Failures

TEST_F(SettingsFileIn, IsReadInPartAndNeverWrittenWhenItIsNoFileOfSettings) {
  std::string bytes = "City=Oak Town\n";
  while (bytes.size() < (2U << 20U)) bytes += "this is no line of a file of settings\n";
  bytes += "Country=Canada\n";
  Write(bytes);
  EXPECT_TRUE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  EXPECT_TRUE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_TRUE(Bytes() == bytes);
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
}

TEST_F(SettingsFileIn, CannotReplaceAFolder) {
  fs::create_directories(Path() / "inner");
  EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings", "Tarnwick/Settings/inner"}));
}

TEST_F(SettingsFileIn, CannotReplaceAnEmptyFolderEither) {
  fs::create_directories(Path());
  EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
  EXPECT_TRUE(fs::is_directory(Path()));
}

TEST_F(SettingsFileIn, CannotLieBelowAFile) {
  folder_.File("Tarnwick", "a file");
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  EXPECT_EQ(BytesOf(Folder()), "a file");
  SettingsFile deeper(folder_ / "Tarnwick" / "config");
  EXPECT_TRUE(Save(deeper, {{"City", "Oak Town"}}));
  EXPECT_EQ(Names(), Texts{"Tarnwick"});
}

TEST_F(SettingsFileIn, CanBeSavedLaterWhatCouldNotBeSavedAtOnce) {
  folder_.File("Tarnwick", "a file");
  EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  fs::remove(Folder());
  EXPECT_FALSE(Save(store_, {{"City", "Oak Town"}}));
  EXPECT_EQ(Stored("City"), "Oak Town");
}

TEST_F(SettingsFileIn, SaysTheNumberOfItsFailureThroughTheRegistry) {
  Write("City=Oak Town\n");
  EXPECT_EQ(Get(store_, "City"), "Oak Town");
  fs::remove_all(Folder());
  folder_.File("Tarnwick", "a file");  // now in the way of the folder
  CollectedMessages say;
  const Registry registry(store_, "Settings");
  const bool set = registry.SetValue("City", "Elm Town", say);
  EXPECT_FALSE(registry.Finish(say) && set);
  ASSERT_FALSE(say.Texts().empty());
  const std::string text = say.Texts().front();
  EXPECT_TRUE(text.starts_with("Error ")) << text;
  EXPECT_GT(std::stoi(text.substr(6)), 0) << text;
  EXPECT_EQ(BytesOf(Folder()), "a file");
}

TEST_F(SettingsFileIn, EndsAtALinkToItself) {
  fs::create_directory(Folder());
  fs::create_symlink("Settings", Path());
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  EXPECT_TRUE(fs::is_symlink(Path()));
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
}

TEST_F(SettingsFileIn, IsNotReadFromAPipe) {
  fs::create_directory(Folder());
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
  const PipeWatch watch(Path());
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get(store_, "City"), "");
  EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  EXPECT_TRUE(fs::is_fifo(Path()));
  EXPECT_FALSE(watch.SawAReader());
}

TEST_F(SettingsFileIn, IsAsItWasWhenTheDiskIsFull) {
  Write("City=Oak Town\n");
  {
    const FullDisk full(1000);
    EXPECT_TRUE(Save(store_, {{"City", std::string(5000, 'x')}}));
  }
  EXPECT_EQ(Bytes(), "City=Oak Town\n");
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
  EXPECT_FALSE(Save(store_, {{"City", "Elm Town"}}));
  EXPECT_EQ(Bytes(), "City=Elm Town\n");
}

#ifdef __linux__

using test::OrdinaryUser;

TEST_F(SettingsFileIn, IsLeftAloneWhenItsBytesCannotBeRead) {
  fs::create_directory(Folder());
  fs::create_symlink("/proc/self/mem", Path());  // can be opened, fails as a broken disk does
  EXPECT_FALSE(store_.KeyExists(App, Section));
  EXPECT_EQ(Get(store_, "City"), "");
  EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  EXPECT_EQ(fs::read_symlink(Path()), "/proc/self/mem");
}

TEST_F(SettingsFileIn, IsLeftAloneWhenItMayNotBeRead) {
  Write("# mine\nShade=green\n");
  fs::permissions(Path(), fs::perms::none);
  {
    const OrdinaryUser user;
    EXPECT_FALSE(store_.KeyExists(App, Section));
    EXPECT_EQ(Get(store_, "Shade"), "");
    EXPECT_TRUE(Save(store_, {{"City", "Oak Town"}}));
  }
  fs::permissions(Path(), fs::perms::owner_read);
  EXPECT_EQ(Bytes(), "# mine\nShade=green\n");
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
}

TEST_F(SettingsFileIn, IsAsItWasWhenItsFolderMayNotBeWritten) {
  Write("City=Oak Town\n");
  fs::permissions(Folder(), fs::perms::owner_read | fs::perms::owner_exec);
  {
    const OrdinaryUser user;
    EXPECT_EQ(Get(store_, "City"), "Oak Town");
    EXPECT_EQ(Save(store_, {{"City", "Elm Town"}}), std::errc::permission_denied);
  }
  fs::permissions(Folder(), fs::perms::owner_all);
  EXPECT_EQ(Bytes(), "City=Oak Town\n");
  EXPECT_EQ(Names(), (Texts{"Tarnwick", "Tarnwick/Settings"}));
}

TEST_F(SettingsFileIn, CannotBeMadeWhereNothingMayBeWritten) {
  const fs::path closed = folder_ / "closed";
  fs::create_directory(closed);
  fs::permissions(closed, fs::perms::owner_read | fs::perms::owner_exec);
  {
    const OrdinaryUser user;
    SettingsFile store(closed);
    EXPECT_EQ(Save(store, {{"City", "Elm Town"}}), std::errc::permission_denied);
  }
  fs::permissions(closed, fs::perms::owner_all);
  EXPECT_EQ(Names(), Texts{"closed"});
}

#endif

// ---- Where the settings of a user lie

/// The folder that the program works in, until the end of the test.
class WorkingFolder {
 public:
  explicit WorkingFolder(const fs::path& path) : before_(fs::current_path()) { fs::current_path(path); }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  ~WorkingFolder() {
    std::error_code ignored;
    fs::current_path(before_, ignored);
  }

 private:
  fs::path before_;
};

TEST(UserSettingsStore, LiesInTheFolderOfTheUser) {
  const TemporaryFolder folder;
  const EnvironmentVariable config("XDG_CONFIG_HOME", folder.Path().string());
  const auto store = UserSettingsStore();
  EXPECT_FALSE(store->KeyExists(App, Section));
  EXPECT_TRUE(fs::is_empty(folder.Path()));  // nothing is made before there is a value
  CollectedMessages say;
  const Registry registry(*store, "Settings");
  EXPECT_TRUE(registry.SetValue("City", "Oak Town", say));
  EXPECT_TRUE(registry.Finish(say));
  EXPECT_EQ(BytesOf(folder / "Tarnwick/Settings"), "City=Oak Town\n");
  EXPECT_EQ(say.Texts(), Texts{});
}

TEST(UserSettingsStore, TouchesNoFolderAtHandWithoutAHome) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "Tarnwick");
  folder.File("Tarnwick/Settings", "City=Oak Town\n");
  const WorkingFolder here(folder.Path());
  const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
  const EnvironmentVariable home("HOME", std::nullopt);
  const auto store = UserSettingsStore();
  EXPECT_FALSE(store->KeyExists(App, Section));
  CollectedMessages say;
  const Registry registry(*store, "Settings");
  const bool set = registry.SetValue("City", "Elm Town", say);
  EXPECT_FALSE(registry.Finish(say) && set);
  EXPECT_FALSE(say.Texts().empty());
  EXPECT_EQ(BytesOf(folder / "Tarnwick/Settings"), "City=Oak Town\n");
}

}  // namespace
}  // namespace tarnwick

#endif
