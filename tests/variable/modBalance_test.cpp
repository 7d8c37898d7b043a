#include "variable/modBalance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "support/RandomDesigns.h"

namespace tarnwick {
namespace {

using Pitches = std::vector<double>;

constexpr PitchLimits AroundTwo{1.4, 2.6};

/// All numbers are such that a double holds every sum of them exactly.
constexpr PitchLimits AroundFour{3, 5};

struct BalanceRow {
  const char* Name;
  Pitches Before;
  double Size;
  Pitches After;
  int Passes;
  friend void PrintTo(const BalanceRow& row, std::ostream* out) { *out << row.Name; }
};

class BalancedSegment : public testing::TestWithParam<BalanceRow> {};

TEST_P(BalancedSegment, ComesOutSo) {
  Pitches pitches = GetParam().Before;
  EXPECT_EQ(BalanceSegment(pitches, GetParam().Size, AroundFour), GetParam().Passes);
  EXPECT_EQ(pitches, GetParam().After);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BalancedSegment,
    testing::Values(BalanceRow{"TheLastTakesWhatIsLeft", {3.5, 4.25, 99}, 12, {3.5, 4.25, 4.25}, 1},
                    BalanceRow{"OneInBalanceStays", {3.5, 4.25, 4.25}, 12, {3.5, 4.25, 4.25}, 1},
                    BalanceRow{"TheLastMayStandAtItsLimits", {4.5, 4.5, 0}, 12, {4.5, 4.5, 3}, 1},
                    BalanceRow{"TheLargestGives", {4.5, 5, 0}, 12, {4.5, 4.5, 3}, 2},
                    BalanceRow{"TheFirstOfEquallyLargeGives", {5, 5, 0}, 12, {4, 5, 3}, 2},
                    BalanceRow{"TheSmallestTakes", {3.25, 3, 0}, 12, {3.25, 3.75, 5}, 2},
                    BalanceRow{"TheFirstOfEquallySmallTakes", {3, 3, 0}, 12, {4, 3, 5}, 2},
                    BalanceRow{
                        "AFirstPassThatIsNotEnoughIsFollowedByAnother", {5, 5, 5, 0}, 15, {3, 4, 5, 3}, 3},
                    BalanceRow{"OneOutOfItsLimitsIsBroughtInByGiving", {9, 3, 0}, 12, {6, 3, 3}, 2},
                    BalanceRow{"AGiverStopsAtTheLeast", {3.5, 3.5, 0}, 9, {3, 3, 3}, 3},
                    BalanceRow{"ATakerStopsAtTheMost", {4.5, 4.5, 0}, 15, {5, 5, 5}, 3},
                    BalanceRow{"AllAtTheLeastCannotGive", {3, 3, 0}, 8, {3, 3, 3}, 101},
                    BalanceRow{"AllAtTheMostCannotTake", {5, 5, 0}, 16, {5, 5, 5}, 101},
                    BalanceRow{"ALengthOfNothing", {4, 4, 4}, 0, {3, 3, 3}, 101},
                    BalanceRow{"OneBelowTheLeastIsLeftToItselfWhenTheSumFits", {1, 7, 0}, 12, {1, 7, 4}, 1},
                    BalanceRow{"OneToothIsLeftAlone", {9}, 12, {9}, 0},
                    BalanceRow{"NoToothNeedsAnything", {}, 12, {}, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

double Sum(const Pitches& pitches) { return std::accumulate(pitches.begin(), pitches.end(), 0.0); }

TEST(BalanceSegment, KeepsLengthAndLimitsOfEverySegmentThatCanBalance) {
  test::Dice dice(1);
  for (int i = 0; i < 20000; ++i) {
    Pitches pitches(static_cast<std::size_t>(dice.Whole(3, 7)));
    for (double& pitch : pitches) pitch = dice.Between(1.4, 2.6);
    const double size = 2.0 * static_cast<double>(pitches.size());
    ASSERT_LE(BalanceSegment(pitches, size, AroundTwo), 101);
    ASSERT_NEAR(Sum(pitches), size, 1e-12);
    const auto [least, most] = std::minmax_element(pitches.begin(), pitches.end());
    ASSERT_GE(*least, 1.4);
    ASSERT_LE(*most, 2.6);
  }
}

TEST(BalanceSegment, EndsAtTheLimitsWhereTheLengthLiesBeyondThem) {
  test::Dice dice(2);
  for (int i = 0; i < 5000; ++i) {
    Pitches pitches(static_cast<std::size_t>(dice.Whole(3, 7)));
    for (double& pitch : pitches) pitch = dice.Between(1.4, 2.6);
    const bool isTooLong = dice.Chance(0.5);
    const double limit = isTooLong ? 2.6 : 1.4;
    const double size =
        static_cast<double>(pitches.size()) * (isTooLong ? dice.Between(2.7, 9) : dice.Between(-1, 1.3));
    ASSERT_EQ(BalanceSegment(pitches, size, AroundTwo), 101);
    for (const double pitch : pitches) ASSERT_EQ(pitch, limit);
  }
}

TEST(BalanceSegment, DoesNothingASecondTime) {
  test::Dice dice(3);
  for (int i = 0; i < 5000; ++i) {
    Pitches pitches(static_cast<std::size_t>(dice.Whole(3, 7)));
    for (double& pitch : pitches) pitch = dice.Between(0, 4);
    BalanceSegment(pitches, 2.0 * static_cast<double>(pitches.size()), AroundTwo);
    const Pitches once = pitches;
    BalanceSegment(pitches, 2.0 * static_cast<double>(pitches.size()), AroundTwo);
    for (std::size_t k = 0; k < once.size(); ++k) ASSERT_NEAR(pitches[k], once[k], 1e-12);
  }
}

/// A sum too large for a double cannot be told: the last tooth keeps what it has.
TEST(BalanceSegment, PassesOverASumThatOverflows) {
  Pitches pitches{1e308, 1e308, 2};
  EXPECT_EQ(BalanceSegment(pitches, 6, AroundTwo), 1);
  EXPECT_EQ(pitches, (Pitches{1e308, 1e308, 2}));
}

}  // namespace
}  // namespace tarnwick
