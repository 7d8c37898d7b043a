#include "power/modFeedIndex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarnwick {
namespace {

TEST(CheckedFeedIndex, KeepsWhatLiesAboveZeroAndUpToOne) {
  for (const double index : {0.7, 1.0, 0.72, 0.001, std::numeric_limits<double>::denorm_min()}) {
    EXPECT_EQ(CheckedFeedIndex(index), index);
  }
}

TEST(CheckedFeedIndex, GivesTheDefaultForTheRest) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double index :
       {0.0, -0.0, -0.7, std::nextafter(1.0, 2.0), 70.0, infinity, -infinity, std::nan("")}) {
    EXPECT_EQ(CheckedFeedIndex(index), 0.7) << index;
  }
}

TEST(FeedIndexEntries, RunFromTenToAHundredInStepsOfFive) {
  const std::vector<std::string> entries = FeedIndexEntries();
  ASSERT_EQ(entries.size(), 19U);
  EXPECT_EQ(entries[0], "10 Percent");
  EXPECT_EQ(entries[1], "15 Percent");
  EXPECT_EQ(entries[2], "20 Percent");
  EXPECT_EQ(entries[12], "70 Percent");
  EXPECT_EQ(entries[18], "100 Percent");
}

TEST(FeedIndexOf, IsTheHundredthOfEveryEntryAndLeadsBackToIt) {
  const std::vector<std::string> entries = FeedIndexEntries();
  for (const int places : {4, 5, 10}) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const double index = FeedIndexOf(entries[i], places);
      EXPECT_EQ(index, static_cast<double>(10 + 5 * i) / 100) << entries[i] << " at " << places;
      EXPECT_EQ(FeedIndexEntryOf(index), i);
    }
  }
}

TEST(FeedIndexOf, IsCutByTheRoundingRule) {
  EXPECT_EQ(FeedIndexOf("33.3339 Percent", 4), 0.3333);
  EXPECT_EQ(FeedIndexOf("no number", 5), 0);
}

TEST(FeedIndexEntryOf, TakesTheNearestWholePercentage) {
  EXPECT_EQ(FeedIndexEntryOf(0.7), 12U);
  EXPECT_EQ(FeedIndexEntryOf(0.704), 12U);
  EXPECT_EQ(FeedIndexEntryOf(0.696), 12U);
  EXPECT_EQ(FeedIndexEntryOf(1), 18U);
}

TEST(FeedIndexEntryOf, IsNoneForAnIndexOutsideTheList) {
  for (const double index : {0.72, 0.05, 0.125, 0.0, 1.05, -0.1, 1e300, std::nan("")}) {
    EXPECT_EQ(FeedIndexEntryOf(index), std::nullopt) << index;
  }
}

}  // namespace
}  // namespace tarnwick
