// What saving writes into the store, and what it says when the store fails.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "store/modCfg.h"
#include "support/CollectedMessages.h"
#include "support/Configs.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::CollectedMessages;
using test::KeysOfTheStore;
using test::MemoryStore;
using test::NumbersOf;
using test::TemporaryFolder;
using test::TextsOf;
using test::Unusual;
using Texts = std::vector<std::string>;

class SavingSettings : public testing::Test {
 protected:
  [[nodiscard]] static Texts NamesOf(const std::vector<MemoryStore::Setting>& settings) {
    Texts names;
    for (const auto& [name, value] : settings) names.push_back(name);
    return names;
  }

  [[nodiscard]] static Texts LinesOf(const std::vector<MemoryStore::Setting>& settings) {
    Texts lines;
    for (const auto& [name, value] : settings) lines.push_back(name + '=' + value);
    return lines;
  }

  MemoryStore store_;
  CollectedMessages say_;
};

TEST_F(SavingSettings, WritesEveryKeyInOrder) {
  EXPECT_TRUE(SaveConfig(Config(), store_, say_));
  EXPECT_EQ(NamesOf(store_.Saved()), KeysOfTheStore(0));
  EXPECT_EQ(say_.Texts(), Texts{});
  MemoryStore another;
  EXPECT_TRUE(SaveConfig(Unusual(), another, say_));
  EXPECT_EQ(NamesOf(another.Saved()), KeysOfTheStore(2));
}

TEST_F(SavingSettings, WritesTheTextsOfTheDefaults) {
  EXPECT_TRUE(SaveConfig(Config(), store_, say_));
  const Texts want{"SawLineColor= 16776960",
                   "CenterLineColor= 65535",
                   "TextColor= 16777215",
                   "BackGroundColor= 0",
                   "ZoomWindowColor= 16711680",
                   "DisplayScale= 1",
                   "DecimalPlaces= 5",
                   "DisplayPlaces= 3",
                   "MemorySize= 128000",
                   "DxfSaveColor= 5",
                   "CurrentMyDir=",
                   "CurrentSawDir=",
                   "CurrentDxfDir=",
                   "RecentNumFiles= 0",
                   "Loops=True",
                   "LoopType= 1",
                   "LoopSize= .0625",
                   "Address=",
                   "City=",
                   "Province=",
                   "Country=",
                   "PostalCode=",
                   "Phone=",
                   "Fax=",
                   "Email=",
                   "DefaultPrinterName=",
                   "DefaultPrinter= 0",
                   "TeethDirection= 1",
                   "PrintPowerReq=False",
                   "MainImpMetric= 0",
                   "QuickClick=True",
                   "PrintLineThick= 1",
                   "GulletFeedIndex= .7"};
  EXPECT_EQ(LinesOf(store_.Saved()), want);
}

TEST_F(SavingSettings, WritesTheTextsOfUnusualSettings) {
  Config config = Unusual();
  config.DefaultPrinter = -3;
  EXPECT_TRUE(SaveConfig(config, store_, say_));
  const Texts want{"SawLineColor= 197121",
                   "CenterLineColor= 394500",
                   "TextColor= 591879",
                   "BackGroundColor= 789258",
                   "ZoomWindowColor= 986637",
                   "DisplayScale= .875",
                   "DecimalPlaces= 7",
                   "DisplayPlaces= 4",
                   "MemorySize= 64000",
                   "DxfSaveColor= 3",
                   "CurrentMyDir=/saws/",
                   "CurrentSawDir=/saws/head saws/",
                   "CurrentDxfDir=/Zeichnungen/Sägen/",
                   "RecentNumFiles= 2",
                   "RecentDriveDir1=/saws/",
                   "RecentFile1=head.bsw",
                   "RecentDriveDir2=/old saws/",
                   "RecentFile2=resaw 2.bsw",
                   "Loops=True",
                   "LoopType= 1",
                   "LoopSize= .0625",
                   "Address=1 Mill Road",
                   "City=Oak Town",
                   "Province=B.C.",
                   "Country=Canada",
                   "PostalCode=V1V 1V1",
                   "Phone=12",
                   "Fax=34",
                   "Email=a=b@c",
                   "DefaultPrinterName=Laser",
                   "DefaultPrinter=-3",
                   "TeethDirection= 2",
                   "PrintPowerReq=True",
                   "MainImpMetric= 1",
                   "QuickClick=False",
                   "PrintLineThick= 12",
                   "GulletFeedIndex= .35"};
  EXPECT_EQ(LinesOf(store_.Saved()), want);
}

TEST_F(SavingSettings, PutsRedInTheLowByteOfAColour) {
  Config config;
  config.Display.SawLineColor = Rgb(255, 0, 0);
  config.Display.TextColor = Rgb(0, 0, 255);
  EXPECT_TRUE(SaveConfig(config, store_, say_));
  EXPECT_EQ(store_.Settings()["SawLineColor"], " 255");
  EXPECT_EQ(store_.Settings()["TextColor"], " 16711680");
}

TEST_F(SavingSettings, WritesWhatIsReadAsItWas) {
  const TemporaryFolder documents;
  Config large = Unusual();
  large.Display.DisplayScale = 1.0123456789;
  large.GulletFeedIndex = 0.00001;
  large.Calculation.MemorySize = 512000;
  large.DefaultPrinter = std::numeric_limits<std::int16_t>::min();
  large.Recent.assign(MostRecentFiles, {"/saws/", "head.bsw"});
  for (const Config& saved : {Unusual(), large}) {
    EXPECT_TRUE(SaveConfig(saved, store_, say_));
    Config loaded;
    EXPECT_TRUE(LoadConfig(loaded, store_, documents.Path().string()));
    EXPECT_EQ(NumbersOf(loaded), NumbersOf(saved));
    EXPECT_EQ(TextsOf(loaded), TextsOf(saved));
  }
  EXPECT_TRUE(fs::is_empty(documents.Path()));  // every folder had its name
}

TEST_F(SavingSettings, KeepsTheNameInASectionOfItsOwn) {
  Config config;
  config.Customer.Name = "Oak & Sons";
  EXPECT_TRUE(SaveConfig(config, store_, say_));
  EXPECT_EQ(store_.Settings().count("Name"), 0u);
  ASSERT_EQ(store_.Sections.size(), 2u);
  for (const auto& [section, values] : store_.Sections) {
    EXPECT_TRUE(section.starts_with("Tarnwick/")) << section;
    if (section == "Tarnwick/Settings") continue;
    EXPECT_EQ(values, (MemoryStore::Values{{"Name", "Oak & Sons"}}));
  }
}

TEST_F(SavingSettings, ForgetsTheOldNameOfACustomerWithoutOne) {
  Config config;
  config.Customer.Name = "Oak & Sons";
  EXPECT_TRUE(SaveConfig(config, store_, say_));
  config.Customer.Name = "";
  EXPECT_TRUE(SaveConfig(config, store_, say_));
  EXPECT_TRUE(ReadConfig(config, store_));
  EXPECT_EQ(config.Customer.Name, "");
}

TEST_F(SavingSettings, WritesANameThatIsReadWithoutItsBlanks) {
  Config config;
  config.Customer.Name = "  Oak & Sons ";
  EXPECT_TRUE(SaveConfig(config, store_, say_));
  EXPECT_TRUE(ReadConfig(config, store_));
  EXPECT_EQ(config.Customer.Name, "Oak & Sons");
}

TEST_F(SavingSettings, RemovesNothing) {
  store_.Settings()["RecentFile5"] = "old.bsw";
  store_.Settings()["Shade"] = "green";
  EXPECT_TRUE(SaveConfig(Unusual(), store_, say_));
  EXPECT_EQ(store_.Settings()["RecentFile5"], "old.bsw");
  EXPECT_EQ(store_.Settings()["Shade"], "green");
}

TEST_F(SavingSettings, PutsEverySectionToRest) {
  EXPECT_TRUE(SaveConfig(Unusual(), store_, say_));
  Texts sections = store_.Finished;
  std::sort(sections.begin(), sections.end());
  Texts written;
  for (const auto& [section, values] : store_.Written) written.push_back(section);
  EXPECT_EQ(sections, written);
}

std::string ErrorText(std::errc error) {
  return "Error " + std::to_string(std::make_error_code(error).value());
}

TEST_F(SavingSettings, ShowsEachValueThatIsRefusedAndGoesOn) {
  store_.Refused = {"SawLineColor", "City", "GulletFeedIndex"};
  EXPECT_FALSE(SaveConfig(Unusual(), store_, say_));
  EXPECT_EQ(say_.Texts(), Texts(3, ErrorText(std::errc::no_space_on_device)));
  Texts want = KeysOfTheStore(2);
  want.erase(std::remove_if(want.begin(), want.end(),
                            [&](const auto& key) { return store_.Refused.count(key) > 0; }),
             want.end());
  EXPECT_EQ(NamesOf(store_.Saved()), want);
  for (const Box& box : say_.Shown) {
    EXPECT_EQ(box.Title, Box().Title);
    EXPECT_EQ(box.Offer, Buttons::Ok);
  }
}

TEST_F(SavingSettings, ShowsEveryFailureOfAStoreThatTakesNothing) {
  store_.SetFailure = std::make_error_code(std::errc::permission_denied);
  EXPECT_FALSE(SaveConfig(Unusual(), store_, say_));
  for (const std::string& key : KeysOfTheStore(2))
    EXPECT_EQ(std::count(store_.Tried.begin(), store_.Tried.end(), key), 1) << key;
  EXPECT_EQ(say_.Texts(), Texts(store_.Tried.size(), ErrorText(std::errc::permission_denied)));
}

TEST_F(SavingSettings, FailsWithoutTheName) {
  store_.Refused = {"Name"};
  EXPECT_FALSE(SaveConfig(Unusual(), store_, say_));
  EXPECT_EQ(say_.Texts(), Texts{ErrorText(std::errc::no_space_on_device)});
  EXPECT_EQ(NamesOf(store_.Saved()), KeysOfTheStore(2));
}

TEST_F(SavingSettings, FailsWhereNoSectionCanBeMade) {
  store_.CreateFailure = std::make_error_code(std::errc::permission_denied);
  EXPECT_FALSE(SaveConfig(Unusual(), store_, say_));
  ASSERT_FALSE(say_.Shown.empty());
  EXPECT_EQ(say_.Texts(), Texts(say_.Shown.size(), ErrorText(std::errc::permission_denied)));
}

TEST_F(SavingSettings, ShowsOneFailureOfAStoreThatCannotComeToRest) {
  store_.FinishFailure = std::make_error_code(std::errc::no_space_on_device);
  EXPECT_FALSE(SaveConfig(Unusual(), store_, say_));
  EXPECT_EQ(say_.Texts(), Texts{ErrorText(std::errc::no_space_on_device)});
  EXPECT_EQ(say_.Shown[0].Title, Box().Title);
}

TEST(SaveConfigOrTell, SaysNothingWhenAllIsSaved) {
  MemoryStore store;
  CollectedMessages say;
  SaveConfigOrTell(Unusual(), store, say);
  EXPECT_EQ(say.Texts(), Texts{});
  EXPECT_EQ(store.Settings()["City"], "Oak Town");
}

TEST(SaveConfigOrTell, SaysThatNotAllIsSaved) {
  MemoryStore store;
  store.Refused = {"City"};
  CollectedMessages say;
  SaveConfigOrTell(Unusual(), store, say);
  EXPECT_EQ(say.Texts(), (Texts{ErrorText(std::errc::no_space_on_device), "Unable to save config file"}));
  EXPECT_EQ(say.Shown.back().Title, "Error");
  EXPECT_EQ(say.Shown.back().Offer, Buttons::Ok);
}

TEST(SaveConfigOrTell, SaysThatTheStoreCannotComeToRest) {
  MemoryStore store;
  store.FinishFailure = std::make_error_code(std::errc::permission_denied);
  CollectedMessages say;
  SaveConfigOrTell(Unusual(), store, say);
  EXPECT_EQ(say.Texts(), (Texts{ErrorText(std::errc::permission_denied), "Unable to save config file"}));
}

}  // namespace
}  // namespace tarnwick
