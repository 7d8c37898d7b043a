// The folders of a user's designs: named by the settings, made at the first start.

#include <gtest/gtest.h>

#include "store/modCfg.h"
#include "store/modPath.h"
#include "support/CollectedMessages.h"
#include "support/Configs.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::CollectedMessages;
using test::DefaultNumbers;
using test::MemoryStore;
using test::NumbersOf;
using test::StoreOf;
using test::TemporaryFolder;

class FoldersOfDesigns : public testing::Test {
 protected:
  [[nodiscard]] std::string Documents() const { return documents_.Path().string(); }

  /// The folder of that name below the documents, with its separator.
  [[nodiscard]] std::string Below(const std::string& name) const {
    fs::path path = documents_.Path() / name;
    return path.make_preferred().string() + PathSeparator;
  }

  void ExpectDefaults(const Config& config) const {
    EXPECT_EQ(config.CurrentMyDir, Below("Tarnwick"));
    EXPECT_EQ(config.CurrentSawDir, Below("Tarnwick/Bandsaws"));
    EXPECT_EQ(config.CurrentDxfDir, Below("Tarnwick/Dxfs"));
    for (const std::string& folder : {config.CurrentMyDir, config.CurrentSawDir, config.CurrentDxfDir})
      EXPECT_TRUE(fs::is_directory(folder)) << folder;
  }

  const TemporaryFolder documents_;
};

TEST_F(FoldersOfDesigns, AreMadeAtTheFirstStart) {
  MemoryStore store;
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, Documents()));
  ExpectDefaults(config);
}

TEST_F(FoldersOfDesigns, AreMadeWhenTheStoreDoesNotNameThem) {
  MemoryStore store = StoreOf({{"CurrentMyDir", ""}, {"CurrentSawDir", "   "}});
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, Documents()));
  ExpectDefaults(config);
}

TEST_F(FoldersOfDesigns, AreMadeWithTheDefaults) {
  Config config;
  DefaultConfig(config, Documents());
  ExpectDefaults(config);
}

TEST_F(FoldersOfDesigns, AreMadeByTheCheck) {
  Config config;
  config.CurrentDxfDir = "  ";
  CheckConfig(config, Documents());
  ExpectDefaults(config);
}

TEST_F(FoldersOfDesigns, LieBelowADocumentsFolderWithASeparatorToo) {
  Config config;
  DefaultConfig(config, Documents() + PathSeparator);
  ExpectDefaults(config);
}

TEST_F(FoldersOfDesigns, KeepWhatLiesInThem) {
  fs::create_directories(documents_ / "Tarnwick/Bandsaws");
  documents_.File("Tarnwick/Bandsaws/head.bsw", "a saw");
  MemoryStore store;
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, Documents()));
  ExpectDefaults(config);
  EXPECT_EQ(test::BytesOf(documents_ / "Tarnwick/Bandsaws/head.bsw"), "a saw");
}

TEST_F(FoldersOfDesigns, AreNotMadeAgainWhenTheyAreNamed) {
  const std::string gone = Below("gone");
  MemoryStore store = StoreOf({{"CurrentSawDir", gone}});
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, Documents()));
  EXPECT_EQ(config.CurrentSawDir, gone);
  EXPECT_FALSE(fs::exists(gone));
  EXPECT_TRUE(fs::is_directory(documents_ / "Tarnwick/Dxfs"));
  EXPECT_FALSE(fs::exists(documents_ / "Tarnwick/Bandsaws"));
}

TEST_F(FoldersOfDesigns, AreNotMadeAgainThoughTheyHaveTheNamesOfTheDefaults) {
  MemoryStore store;
  CollectedMessages say;
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, Documents()));
  EXPECT_TRUE(SaveConfig(config, store, say));
  fs::remove_all(documents_ / "Tarnwick");
  EXPECT_TRUE(LoadConfig(config, store, Documents()));
  EXPECT_EQ(config.CurrentDxfDir, Below("Tarnwick/Dxfs"));
  EXPECT_TRUE(fs::is_empty(documents_.Path()));
}

TEST_F(FoldersOfDesigns, DoNoHarmWhenTheOneAroundThemIsElsewhere) {
  MemoryStore store = StoreOf({{"CurrentMyDir", Below("elsewhere")}, {"City", "Oak Town"}});
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, Documents()));
  EXPECT_EQ(config.CurrentMyDir, Below("elsewhere"));
  EXPECT_EQ(config.CurrentSawDir, Below("Tarnwick/Bandsaws"));
  EXPECT_EQ(config.Customer.City, "Oak Town");
  EXPECT_FALSE(fs::exists(documents_ / "elsewhere"));
}

TEST_F(FoldersOfDesigns, DoNoHarmWhereNothingCanBeWritten) {
  const std::string file = documents_.File("documents", "a file, no folder").string();
  for (const std::string& documents : {file, Below("missing") + "deeper"}) {
    MemoryStore store = StoreOf({{"City", "Oak Town"}, {"DecimalPlaces", "7"}});
    Config config;
    EXPECT_TRUE(LoadConfig(config, store, documents)) << documents;
    EXPECT_EQ(config.Customer.City, "Oak Town");
    EXPECT_EQ(config.Calculation.DecimalPlaces, 7);
    EXPECT_EQ(config.CurrentMyDir, documents + PathSeparator + "Tarnwick" + PathSeparator);
    DefaultConfig(config, documents);
    EXPECT_EQ(NumbersOf(config), DefaultNumbers);
  }
  EXPECT_EQ(test::BytesOf(file), "a file, no folder");
  EXPECT_FALSE(fs::exists(documents_ / "missing"));
}

TEST_F(FoldersOfDesigns, ExistWhenTheyAreFolders) {
  EXPECT_TRUE(FolderExists(Documents()));
  EXPECT_TRUE(FolderExists(Documents() + PathSeparator));
  EXPECT_FALSE(FolderExists(Below("missing")));
  EXPECT_FALSE(FolderExists(documents_.File("a", "").string()));
  EXPECT_FALSE(FolderExists((documents_ / "a" / "b").string()));
  EXPECT_FALSE(FolderExists(""));
  EXPECT_FALSE(FolderExists(Documents() + PathSeparator + std::string(5000, 'x')));
}

}  // namespace
}  // namespace tarnwick
