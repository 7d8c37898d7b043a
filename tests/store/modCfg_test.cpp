// What the settings are after they were read, whatever the store holds.

#include "store/modCfg.h"

#include <gtest/gtest.h>

#include <optional>

#include "support/CollectedMessages.h"
#include "support/Configs.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::CollectedMessages;
using test::DefaultNumbers;
using test::KeysOfTheStore;
using test::MemoryStore;
using test::NumbersOf;
using test::NumbersOfAnEmptyStore;
using test::StoreOf;
using test::TemporaryFolder;
using test::TextsOf;
using test::Unusual;
using Texts = std::vector<std::string>;

// ---- Each setting and its range

struct NumberRow {
  std::string Key;
  std::string Text;  // in the store
  double Want;
  friend void PrintTo(const NumberRow& row, std::ostream* out) {
    *out << row.Key << "=\"" << row.Text << '"';
  }
};
using Readings = std::vector<std::pair<double, Texts>>;  // a value, and the texts that stand for it

std::vector<NumberRow> Rows(const Texts& keys, const Readings& readings) {
  std::vector<NumberRow> rows;
  for (const std::string& key : keys) {
    for (const auto& [want, texts] : readings) {
      for (const std::string& text : texts) rows.push_back({key, text, want});
    }
  }
  return rows;
}

class NumberInTheStore : public testing::TestWithParam<NumberRow> {};

TEST_P(NumberInTheStore, IsReadAndMended) {
  const NumberRow& row = GetParam();
  MemoryStore store = StoreOf({{row.Key, row.Text}});
  std::map<std::string, double> want = NumbersOfAnEmptyStore;
  want[row.Key] = row.Want;
  Config config;
  EXPECT_TRUE(ReadConfig(config, store));
  EXPECT_EQ(NumbersOf(config), want);
  const TemporaryFolder documents;
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  EXPECT_EQ(NumbersOf(config), want);
}

std::vector<NumberRow> ColourRows(const std::string& key, double fallback) {
  const Texts broken{"0", " 0", "0.9", "-0.9", "-1", "16777216", "2147483647", "abc", "", "  ", "&HFF00"};
  return Rows({key}, {{1, {"1"}},
                      {7, {"7.9"}},
                      {255, {"255", " 255"}},
                      {65280, {"  65280  "}},
                      {16777214, {"16777214"}},
                      {16777215, {"16777215", "16777215.9"}},
                      {fallback, broken}});
}

INSTANTIATE_TEST_SUITE_P(SawLineColor, NumberInTheStore,
                         testing::ValuesIn(ColourRows("SawLineColor", 0xFFFF00)));
INSTANTIATE_TEST_SUITE_P(CenterLineColor, NumberInTheStore,
                         testing::ValuesIn(ColourRows("CenterLineColor", 0x00FFFF)));
INSTANTIATE_TEST_SUITE_P(TextColor, NumberInTheStore, testing::ValuesIn(ColourRows("TextColor", 0xFFFFFF)));
INSTANTIATE_TEST_SUITE_P(BackGroundColor, NumberInTheStore,
                         testing::ValuesIn(ColourRows("BackGroundColor", 0)));
// Green, though blue is the default: the store is to blame.
INSTANTIATE_TEST_SUITE_P(ZoomWindowColor, NumberInTheStore,
                         testing::ValuesIn(ColourRows("ZoomWindowColor", 0x00FF00)));

const Texts DisplayScaleOutOfRange{"0.4999999", "1.5000001", "0", "-1", "-0.75", "1e99",
                                   "1e999",     "abc",       "",  " ",  "nan",   "inf"};
INSTANTIATE_TEST_SUITE_P(DisplayScale, NumberInTheStore,
                         testing::ValuesIn(Rows({"DisplayScale"}, {{0.5, {"0.5", ".5", "5e-1"}},
                                                                   {0.75, {"0 . 7 5", "0.75 in"}},
                                                                   {1, {"1", "1,25"}},
                                                                   {1.25, {" 1.25 "}},
                                                                   {1.5, {"1.5"}},
                                                                   {1, DisplayScaleOutOfRange}})));

const Texts DecimalPlacesOutOfRange{"3", "3.9", "11",    "0",       "-1",     "-4",   "abc",
                                    "",  " ",   "32767", "32767.9", "-32768", "1e999"};
INSTANTIATE_TEST_SUITE_P(DecimalPlaces, NumberInTheStore,
                         testing::ValuesIn(Rows({"DecimalPlaces"}, {{4, {"4", "4.9"}},
                                                                    {5, {"5"}},
                                                                    {7, {" 7 "}},
                                                                    {8, {"+8"}},
                                                                    {9, {"9 places"}},
                                                                    {10, {"10", "10.9", "1 0", "1e1"}},
                                                                    {5, DecimalPlacesOutOfRange}})));

const Texts DisplayPlacesOutOfRange{"1", "1.9", "6", "0", "-1", "abc", "", "32767", "-32768"};
INSTANTIATE_TEST_SUITE_P(DisplayPlaces, NumberInTheStore,
                         testing::ValuesIn(Rows({"DisplayPlaces"}, {{2, {"2", "2.9"}},
                                                                    {3, {"3"}},
                                                                    {4, {" 4 "}},
                                                                    {5, {"5", "5.9"}},
                                                                    {3, DisplayPlacesOutOfRange}})));

const Texts MemorySizeOutOfRange{"7999", "7999.9", "512001",     "0",          "-1",
                                 "abc",  "",       "2147483647", "-2147483648"};
INSTANTIATE_TEST_SUITE_P(MemorySize, NumberInTheStore,
                         testing::ValuesIn(Rows({"MemorySize"}, {{8000, {"8000", "8000.9"}},
                                                                 {64000, {" 64000 "}},
                                                                 {512000, {"512000", "512000.9"}},
                                                                 {128000, MemorySizeOutOfRange}})));

// Black is a colour of a drawing like any other.
INSTANTIATE_TEST_SUITE_P(DxfSaveColor, NumberInTheStore,
                         testing::ValuesIn(Rows({"DxfSaveColor"}, {{0, {"0", "-0.9", "abc", ""}},
                                                                   {1, {"1"}},
                                                                   {8, {" 8 "}},
                                                                   {9, {"9", "9.9"}},
                                                                   {5, {"10", "255", "255.9"}}})));

INSTANTIATE_TEST_SUITE_P(PrintLineThick, NumberInTheStore,
                         testing::ValuesIn(Rows({"PrintLineThick"},
                                                {{1, {"1", "0.9", "0", "-1", "-32768", "abc", ""}},
                                                 {12, {" 12 "}},
                                                 {20, {"20", "20.9", "21", "32767"}}})));

const Texts NoFeedIndex{"0", "-1", "-0.5", "1.00001", "70", "1e99", "abc", ""};
INSTANTIATE_TEST_SUITE_P(GulletFeedIndex, NumberInTheStore,
                         testing::ValuesIn(Rows({"GulletFeedIndex"}, {{0.00001, {"0.00001", "1E-5"}},
                                                                      {0.35, {" .35 "}},
                                                                      {0.72, {"0.72"}},
                                                                      {1, {"1"}},
                                                                      {0.7, NoFeedIndex}})));

INSTANTIATE_TEST_SUITE_P(WithoutARange, NumberInTheStore,
                         testing::ValuesIn(Rows({"DefaultPrinter", "TeethDirection", "MainImpMetric"},
                                                {{0, {"0", "abc", ""}},
                                                 {1, {"1", "1.9"}},
                                                 {2, {" 2 "}},
                                                 {-1, {"-1", "-1.9"}},
                                                 {32767, {"32767"}},
                                                 {-32768, {"-32768"}}})));

// These three are as they always were, whatever a hand writes.
INSTANTIATE_TEST_SUITE_P(Loops, NumberInTheStore,
                         testing::ValuesIn(Rows({"Loops", "LoopType"},
                                                {{1, {"False", "True", "0", "2", "-1", "", "abc"}}})));
INSTANTIATE_TEST_SUITE_P(LoopSize, NumberInTheStore,
                         testing::ValuesIn(Rows({"LoopSize"},
                                                {{0.0625, {"0.125", "0", "-1", "1e99", "abc", ""}}})));

const Texts SwitchedOn{"True", " true ", "TRUE", "tRuE", "-1", "  -1"};
const Texts SwitchedOff{"False", "0", "1", "", "yes", "-1.0", "- 1", "true.", "abc", "1e99"};
INSTANTIATE_TEST_SUITE_P(Switches, NumberInTheStore,
                         testing::ValuesIn(Rows({"PrintPowerReq", "QuickClick"},
                                                {{1, SwitchedOn}, {0, SwitchedOff}})));

/// Numbers that the type of their setting cannot hold: then nothing of the store is believed.
class NumberBeyondItsType : public testing::TestWithParam<NumberRow> {};

TEST_P(NumberBeyondItsType, MakesTheStoreUnusable) {
  const TemporaryFolder documents;
  MemoryStore store = StoreOf({{"City", "Oak Town"},
                               {"DecimalPlaces", "7"},
                               {"RecentNumFiles", "1"},
                               {"RecentFile1", "head.bsw"},
                               {"TeethDirection", "2"}});
  store.Settings()[GetParam().Key] = GetParam().Text;
  Config config;
  EXPECT_FALSE(ReadConfig(config, store));
  EXPECT_FALSE(LoadConfig(config, store, documents.Path().string()));
  DefaultConfig(config, documents.Path().string());
  EXPECT_EQ(NumbersOf(config), DefaultNumbers);
  EXPECT_EQ(config.Customer, CustomerLines());
  EXPECT_TRUE(FolderExists(config.CurrentSawDir));
}

std::vector<NumberRow> TooLarge(const Texts& keys, const Texts& texts) { return Rows(keys, {{0, texts}}); }

INSTANTIATE_TEST_SUITE_P(Whole, NumberBeyondItsType,
                         testing::ValuesIn(TooLarge({"DecimalPlaces", "DisplayPlaces", "RecentNumFiles",
                                                     "LoopType", "DefaultPrinter", "TeethDirection",
                                                     "MainImpMetric", "PrintLineThick"},
                                                    {"32768", "-32769", "40000", "1e99", "-1e99"})));
INSTANTIATE_TEST_SUITE_P(LongWhole, NumberBeyondItsType,
                         testing::ValuesIn(TooLarge({"MemorySize"},
                                                    {"2147483648", "-2147483649", "1e99", "-1e99"})));
INSTANTIATE_TEST_SUITE_P(Byte, NumberBeyondItsType,
                         testing::ValuesIn(TooLarge({"DxfSaveColor"}, {"256", "-1", "1e99", "-1e99"})));

TEST(ColourInTheStore, NeverComesThroughWhenItIsNone) {
  for (const char* text :
       {"4294967295", "4294967296", "4294967551", "-2147483649", "1e99", "-1e99", "1e300"}) {
    MemoryStore store = StoreOf({{"ZoomWindowColor", text}});
    Config config;
    const bool usable = ReadConfig(config, store);
    EXPECT_TRUE(!usable || config.Display.ZoomWindowColor == Rgb(0, 255, 0)) << text;
  }
}

// ---- Missing settings

TEST(LoadConfig, GivesTheDefaultsWithoutAStore) {
  const TemporaryFolder documents;
  MemoryStore store;
  Config config = Unusual();
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  EXPECT_EQ(NumbersOf(config), DefaultNumbers);  // the zoom window is blue
  EXPECT_EQ(config.Customer, CustomerLines());
  EXPECT_EQ(config.DefaultPrinterName, "");
  EXPECT_EQ(config.Recent, RecentFiles());
  EXPECT_TRUE(store.Sections.empty());  // loading sets nothing
}

TEST(LoadConfig, GivesZerosForWhatAStoreLacksAndMendsWhatHasARange) {
  const TemporaryFolder documents;
  MemoryStore store = StoreOf({});
  Config config = Unusual();
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  EXPECT_EQ(NumbersOf(config), NumbersOfAnEmptyStore);  // the zoom window is green
  EXPECT_EQ(config.Customer, CustomerLines());
  EXPECT_EQ(config.DefaultPrinterName, "");
  EXPECT_TRUE(store.Settings().empty());
}

TEST(LoadConfig, GivesTheSameWhenItIsDoneAgain) {
  const TemporaryFolder documents;
  MemoryStore store;
  CollectedMessages say;
  EXPECT_TRUE(SaveConfig(Unusual(), store, say));
  Config config;
  for (int times = 0; times < 2; ++times) {
    EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
    EXPECT_EQ(NumbersOf(config), NumbersOf(Unusual()));
    EXPECT_EQ(TextsOf(config), TextsOf(Unusual()));
  }
}

TEST(LoadConfig, ReadsEveryKeyInOrder) {
  const TemporaryFolder documents;
  MemoryStore store = StoreOf({{"RecentNumFiles", "3"}});
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  EXPECT_EQ(store.Read, KeysOfTheStore(3));
}

TEST(ReadConfig, GivesTheDefaultsWithoutAStore) {
  MemoryStore store;
  Config config = Unusual();
  EXPECT_TRUE(ReadConfig(config, store));
  EXPECT_EQ(NumbersOf(config), DefaultNumbers);
  EXPECT_EQ(config.Customer, CustomerLines());
  EXPECT_EQ(config.Recent, RecentFiles());
}

TEST(ReadConfig, MakesNothing) {
  const TemporaryFolder folder;
  const fs::path gone = folder / "gone";
  MemoryStore none;
  MemoryStore some = StoreOf({{"CurrentMyDir", gone.string()}, {"CurrentSawDir", (gone / "saws").string()}});
  const MemoryStore::Values before = some.Settings();
  Config config;
  EXPECT_TRUE(ReadConfig(config, none));
  EXPECT_TRUE(none.Sections.empty());
  EXPECT_TRUE(ReadConfig(config, some));
  EXPECT_EQ(some.Settings(), before);
  EXPECT_TRUE(some.Tried.empty() && some.Finished.empty());
  EXPECT_TRUE(fs::is_empty(folder.Path()));
  EXPECT_EQ(config.CurrentMyDir, gone.string());
}

// ---- Texts and recent files

TEST(LoadConfig, TrimsTexts) {
  const TemporaryFolder documents;
  MemoryStore store = StoreOf({{"CurrentMyDir", "  /my saws/ "},
                               {"CurrentSawDir", " /saws/"},
                               {"CurrentDxfDir", "/dxf/   "},
                               {"RecentNumFiles", "1"},
                               {"RecentDriveDir1", " /saws/ "},
                               {"RecentFile1", "  head saw.bsw "},
                               {"DefaultPrinterName", " Laser 2  "}});
  const Texts lines{"Address", "City", "Province", "Country", "PostalCode", "Phone", "Fax", "Email"};
  for (const std::string& line : lines) store.Settings()[line] = "  of  " + line + " ";
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  std::map<std::string, std::string> want{{"CurrentMyDir", "/my saws/"},
                                          {"CurrentSawDir", "/saws/"},
                                          {"CurrentDxfDir", "/dxf/"},
                                          {"RecentDriveDir1", "/saws/"},
                                          {"RecentFile1", "head saw.bsw"},
                                          {"DefaultPrinterName", "Laser 2"},
                                          {"Name", ""}};
  for (const std::string& line : lines) want[line] = "of  " + line;
  EXPECT_EQ(TextsOf(config), want);
}

TEST(LoadConfig, ReadsTwoHundredAndFiftyFiveCharactersOfAText) {
  const TemporaryFolder documents;
  MemoryStore store = StoreOf({{"City", std::string(300, 'x')}});
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  EXPECT_EQ(config.Customer.City, std::string(255, 'x'));
}

struct RecentRow {
  const char* Name;
  std::optional<std::string> Count;  // in the store
  std::size_t Want;
  friend void PrintTo(const RecentRow& row, std::ostream* out) { *out << row.Name; }
};
class RecentCount : public testing::TestWithParam<RecentRow> {};

TEST_P(RecentCount, IsHowManyPairsAreRead) {
  const TemporaryFolder documents;
  MemoryStore store = StoreOf({});
  if (GetParam().Count) store.Settings()["RecentNumFiles"] = *GetParam().Count;
  RecentFiles want;
  for (std::size_t i = 1; i <= 7; ++i) {
    const std::string digit = std::to_string(i);
    store.Settings()["RecentDriveDir" + digit] = "/saws " + digit + "/";
    store.Settings()["RecentFile" + digit] = digit + ".bsw";
    if (i <= GetParam().Want) want.push_back({"/saws " + digit + "/", digit + ".bsw"});
  }
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  EXPECT_EQ(config.Recent, want);
  EXPECT_EQ(store.Read, KeysOfTheStore(static_cast<int>(want.size())));
}

INSTANTIATE_TEST_SUITE_P(Counts, RecentCount,
                         testing::Values(RecentRow{"BelowZero", "-1", 0},
                                         RecentRow{"FarBelowZero", "-32768", 0}, RecentRow{"Zero", "0", 0},
                                         RecentRow{"One", "1", 1}, RecentRow{"Three", " 3", 3},
                                         RecentRow{"Five", "5", 5}, RecentRow{"Six", "6", 5},
                                         RecentRow{"NinetyNine", "99", 5}, RecentRow{"Largest", "32767", 5},
                                         RecentRow{"Broken", "2.9", 2}, RecentRow{"Garbage", "abc", 0},
                                         RecentRow{"Empty", "", 0}, RecentRow{"Missing", std::nullopt, 0}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(LoadConfig, ReadsAPairThatIsMissingAsAnEmptyEntry) {
  const TemporaryFolder documents;
  MemoryStore store = StoreOf({{"RecentNumFiles", "3"},
                               {"RecentDriveDir1", "/saws/"},
                               {"RecentFile1", "head.bsw"},
                               {"RecentFile3", "resaw.bsw"}});
  Config config;
  EXPECT_TRUE(LoadConfig(config, store, documents.Path().string()));
  EXPECT_EQ(config.Recent, (RecentFiles{{"/saws/", "head.bsw"}, {"", ""}, {"", "resaw.bsw"}}));
}

// ---- Defaults and the check

TEST(DefaultConfig, SetsEveryDefault) {
  const TemporaryFolder documents;
  Config config = Unusual();
  config.Loops = false;
  config.LoopType = 2;
  config.LoopSize = 1;
  DefaultConfig(config, documents.Path().string());
  EXPECT_EQ(NumbersOf(config), DefaultNumbers);
  EXPECT_EQ(config.Customer, CustomerLines());
  EXPECT_EQ(config.DefaultPrinterName, "");
}

TEST(DefaultConfig, IsWhatAConfigBeginsWith) { EXPECT_EQ(NumbersOf(Config()), DefaultNumbers); }

TEST(CheckConfig, LeavesWhatIsInRange) {
  const TemporaryFolder documents;
  Config config = Unusual();
  CheckConfig(config, documents.Path().string());
  EXPECT_EQ(NumbersOf(config), NumbersOf(Unusual()));
  EXPECT_EQ(TextsOf(config), TextsOf(Unusual()));
}

TEST(CheckConfig, BringsBackWhatIsOutOfRange) {
  const TemporaryFolder documents;
  Config config;
  for (Colour* colour : {&config.Display.SawLineColor, &config.Display.CenterLineColor,
                         &config.Display.TextColor, &config.Display.ZoomWindowColor})
    *colour = Black;
  config.Display.BackGroundColor.Packed = 0x1000000;
  config.Display.DisplayScale = 1.51;
  config.Calculation.DecimalPlaces = 11;
  config.Calculation.DisplayPlaces = 6;
  config.Calculation.MemorySize = 7999;
  config.Calculation.DxfSaveColor = 10;
  config.Loops = false;
  config.LoopType = 2;
  config.LoopSize = 0.125;
  config.PrintLineThick = 21;
  config.GulletFeedIndex = 1.5;
  CheckConfig(config, documents.Path().string());
  std::map<std::string, double> want = DefaultNumbers;
  want["ZoomWindowColor"] = 0x00FF00;
  want["PrintLineThick"] = 20;
  EXPECT_EQ(NumbersOf(config), want);
}

}  // namespace
}  // namespace tarnwick
