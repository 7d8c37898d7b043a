#include "variable/modPattern.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace tarnwick {
namespace {

using Entries = std::vector<std::string>;
using Shares = std::vector<double>;

Shares SharesAsList(int pattern, int teeth) {
  const auto shares = SharesOf(pattern, teeth);
  return {shares.begin(), shares.end()};
}

TEST(PatternShares, AddUpToTheSegment) {
  for (int pattern = LeftToRightPattern; pattern <= MixedPattern; ++pattern) {
    for (int teeth = LeastSegmentTeeth; teeth <= MostSegmentTeeth; ++teeth) {
      const Shares shares = SharesAsList(pattern, teeth);
      ASSERT_EQ(shares.size(), static_cast<std::size_t>(teeth));
      EXPECT_NEAR(std::accumulate(shares.begin(), shares.end(), 0.0), 1, 1e-15);
    }
  }
}

TEST(PatternShares, KeepEveryToothWithinItsLimits) {
  for (int pattern = LeftToRightPattern; pattern <= MixedPattern; ++pattern) {
    for (int teeth = LeastSegmentTeeth; teeth <= MostSegmentTeeth; ++teeth) {
      for (const double share : SharesOf(pattern, teeth)) {
        EXPECT_GT(share * teeth, 0.7);
        EXPECT_LT(share * teeth, 1.3);
      }
    }
  }
}

TEST(PatternShares, FallFromLeftToRight) {
  EXPECT_EQ(SharesAsList(1, 3), (Shares{0.371, 0.332, 0.297}));
  EXPECT_EQ(SharesAsList(1, 4), (Shares{0.295, 0.263, 0.236, 0.206}));
  EXPECT_EQ(SharesAsList(1, 5), (Shares{0.245, 0.218, 0.197, 0.17, 0.17}));
  EXPECT_EQ(SharesAsList(1, 6), (Shares{0.21, 0.191, 0.173, 0.156, 0.135, 0.135}));
  EXPECT_EQ(SharesAsList(1, 7), (Shares{0.183, 0.175, 0.159, 0.143, 0.124, 0.108, 0.108}));
}

TEST(PatternShares, RiseFromLeftToRightInTheOtherOrder) {
  for (int teeth = LeastSegmentTeeth; teeth <= MostSegmentTeeth; ++teeth) {
    Shares turned = SharesAsList(LeftToRightPattern, teeth);
    std::reverse(turned.begin(), turned.end());
    EXPECT_EQ(SharesAsList(RightToLeftPattern, teeth), turned);
  }
}

TEST(PatternShares, SetLargeBesideSmallWhenMixed) {
  EXPECT_EQ(SharesAsList(3, 3), (Shares{0.297, 0.371, 0.332}));
  EXPECT_EQ(SharesAsList(3, 4), (Shares{0.206, 0.263, 0.295, 0.236}));
  EXPECT_EQ(SharesAsList(3, 5), (Shares{0.17, 0.218, 0.245, 0.197, 0.17}));
  EXPECT_EQ(SharesAsList(3, 6), (Shares{0.135, 0.173, 0.21, 0.156, 0.135, 0.191}));
  EXPECT_EQ(SharesAsList(3, 7), (Shares{0.124, 0.159, 0.183, 0.143, 0.108, 0.175, 0.108}));
}

TEST(PatternShares, AreNoneWithoutAPresetOrASegment) {
  for (const int pattern : {-1, 0, 4, 77}) EXPECT_TRUE(SharesOf(pattern, 5).empty());
  for (const int teeth : {-3, 0, 1, 2, 8, 100}) EXPECT_TRUE(SharesOf(MixedPattern, teeth).empty());
}

TEST(PatternNames, AreTheOptionsOfThePanel) {
  EXPECT_EQ(PatternName(0), "None");
  EXPECT_EQ(PatternName(1), "Left to Right:");
  EXPECT_EQ(PatternName(2), "Right to Left");
  EXPECT_EQ(PatternName(3), "Mixed");
  EXPECT_EQ(PatternName(-1), "");
  EXPECT_EQ(PatternName(4), "");
}

TEST(SegmentEntries, OfferTheCountsThatDivideTheTeeth) {
  EXPECT_EQ(SegmentEntries(100), (Entries{"None", "4 Teeth", "5 Teeth"}));
  EXPECT_EQ(SegmentEntries(98), (Entries{"None", "7 Teeth"}));
  EXPECT_EQ(SegmentEntries(420), (Entries{"None", "3 Teeth", "4 Teeth", "5 Teeth", "6 Teeth", "7 Teeth"}));
  EXPECT_EQ(SegmentEntries(12), (Entries{"None", "3 Teeth", "4 Teeth", "6 Teeth"}));
  EXPECT_EQ(SegmentEntries(11), Entries{"None"});
}

TEST(SegmentEntries, OfferNoSegmentToABandWithoutTeeth) { EXPECT_EQ(SegmentEntries(0), Entries{"None"}); }

}  // namespace
}  // namespace tarnwick
