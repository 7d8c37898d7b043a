#include "store/modReg.h"

#include <gtest/gtest.h>

#include "support/CollectedMessages.h"
#include "support/MemoryStore.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;
using test::MemoryStore;
using Texts = std::vector<std::string>;

class RegistryOfSettings : public testing::Test {
 protected:
  MemoryStore store_;
  CollectedMessages say_;
  Registry registry_{store_, "Settings"};
};

TEST_F(RegistryOfSettings, LiesInTheSectionOfTheApplication) {
  EXPECT_FALSE(registry_.KeyExists());
  store_.Sections["Tarnwick/Other"];
  store_.Sections["Other/Settings"];
  EXPECT_FALSE(registry_.KeyExists());
  store_.Sections["Tarnwick/Settings"];
  EXPECT_TRUE(registry_.KeyExists());
  EXPECT_TRUE(Registry(store_, "Other").KeyExists());
}

TEST_F(RegistryOfSettings, GivesTheTextOfAValueAsItIs) {
  store_.Settings()["City"] = "  Oak Town ";
  EXPECT_EQ(registry_.GetValue("City"), "  Oak Town ");
}

TEST_F(RegistryOfSettings, GivesAnEmptyTextForWhatIsNotThere) {
  EXPECT_EQ(registry_.GetValue("City"), "");
  store_.Settings()["Country"] = "x";
  EXPECT_EQ(registry_.GetValue("City"), "");
  EXPECT_EQ(registry_.GetValue("country"), "");
}

TEST_F(RegistryOfSettings, AsksForNothingMoreThanItReads) {
  EXPECT_EQ(registry_.GetValue("City"), "");
  EXPECT_FALSE(registry_.KeyExists());
  EXPECT_EQ(store_.Sections.size(), 0u);
}

TEST_F(RegistryOfSettings, ReadsTwoHundredAndFiftyFiveCharacters) {
  const std::string longest(255, 'x');
  store_.Settings()["City"] = longest;
  EXPECT_EQ(registry_.GetValue("City"), longest);
  store_.Settings()["City"] = longest + "y";
  EXPECT_EQ(registry_.GetValue("City"), longest);
  store_.Settings()["City"] = std::string(100000, 'x');
  EXPECT_EQ(registry_.GetValue("City"), longest);
}

TEST_F(RegistryOfSettings, CountsCharactersNotBytes) {
  std::string umlauts;
  for (int i = 0; i < 300; ++i) umlauts += "ä";
  store_.Settings()["City"] = umlauts;
  EXPECT_EQ(registry_.GetValue("City"), umlauts.substr(0, 2 * 255));
}

TEST_F(RegistryOfSettings, MakesTheSectionForTheFirstValue) {
  EXPECT_TRUE(registry_.SetValue("City", "Oak Town", say_));
  EXPECT_TRUE(registry_.KeyExists());
  EXPECT_EQ(registry_.GetValue("City"), "Oak Town");
  EXPECT_TRUE(registry_.SetValue("City", "", say_));
  EXPECT_EQ(registry_.GetValue("City"), "");
  EXPECT_EQ(say_.Texts(), Texts{});
}

TEST_F(RegistryOfSettings, KeepsWhatElseIsInTheSection) {
  store_.Settings()["Unknown"] = "1";
  EXPECT_TRUE(registry_.SetValue("City", "Oak Town", say_));
  EXPECT_EQ(store_.Settings(), (MemoryStore::Values{{"City", "Oak Town"}, {"Unknown", "1"}}));
}

TEST_F(RegistryOfSettings, ShowsTheNumberOfEveryFailure) {
  store_.SetFailure = std::error_code(5, std::generic_category());
  EXPECT_FALSE(registry_.SetValue("City", "Oak Town", say_));
  EXPECT_FALSE(registry_.SetValue("Country", "Canada", say_));
  store_.SetFailure = std::error_code(1018, std::system_category());
  EXPECT_FALSE(registry_.SetValue("City", "Oak Town", say_));
  EXPECT_EQ(say_.Texts(), (Texts{"Error 5", "Error 5", "Error 1018"}));
}

TEST_F(RegistryOfSettings, ShowsAFailureInABoxWithoutATitleOfItsOwn) {
  store_.SetFailure = std::make_error_code(std::errc::permission_denied);
  EXPECT_FALSE(registry_.SetValue("City", "Oak Town", say_));
  ASSERT_EQ(say_.Shown.size(), 1u);
  EXPECT_EQ(say_.Shown[0].Title, Box().Title);
  EXPECT_EQ(say_.Shown[0].Offer, Buttons::Ok);
}

TEST_F(RegistryOfSettings, ShowsThatTheSectionCannotBeMade) {
  store_.CreateFailure = std::error_code(5, std::generic_category());
  EXPECT_FALSE(registry_.SetValue("City", "Oak Town", say_));
  EXPECT_EQ(say_.Texts(), Texts{"Error 5"});
}

TEST_F(RegistryOfSettings, PutsItsOwnSectionToRest) {
  EXPECT_TRUE(registry_.Finish(say_));
  EXPECT_EQ(store_.Finished, Texts{"Settings"});
  EXPECT_EQ(say_.Texts(), Texts{});
  store_.FinishFailure = std::error_code(28, std::generic_category());
  EXPECT_FALSE(registry_.Finish(say_));
  EXPECT_EQ(say_.Texts(), Texts{"Error 28"});
}

}  // namespace
}  // namespace tarnwick
