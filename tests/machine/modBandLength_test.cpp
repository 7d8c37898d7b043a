#include "machine/modBandLength.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/Machines.h"

namespace tarnwick {
namespace {

constexpr int Places = 5;
constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

using test::Machine;

// ---- clamps

TEST(ClampWheelDia, KeepsADiameterFromHalfAFootToFifteenFeet) {
  for (const double d : {0.5, 0.75, 5.0, 14.999, 15.0}) EXPECT_EQ(ClampWheelDia(d), d);
}

TEST(ClampWheelDia, LiftsASmallerAndCutsALargerOne) {
  EXPECT_EQ(ClampWheelDia(0.499), 0.5);
  EXPECT_EQ(ClampWheelDia(0), 0.5);
  EXPECT_EQ(ClampWheelDia(-3), 0.5);
  EXPECT_EQ(ClampWheelDia(15.001), 15);
  EXPECT_EQ(ClampWheelDia(20), 15);
  EXPECT_EQ(ClampWheelDia(Infinite), 15);
}

TEST(ClampCenters, KeepsADistanceFromOneAndALittleToSixDiameters) {
  for (const double c : {5.1, 10.0, 29.999, 30.0}) EXPECT_EQ(ClampCenters(5, c), c);
}

TEST(ClampCenters, LiftsASmallerAndCutsALargerOne) {
  EXPECT_EQ(ClampCenters(5, 1), 5 * 1.02);
  EXPECT_DOUBLE_EQ(ClampCenters(5, 1), 5.1);
  EXPECT_EQ(ClampCenters(5, 40), 30);
  EXPECT_EQ(ClampCenters(0.5, 0.001), 0.5 * 1.02);  // unrounded
  EXPECT_EQ(ClampCenters(15, Infinite), 90);
}

// ---- the length

TEST(BandLength, IsTwoStraightsAndTwoHalfTurns) {
  EXPECT_EQ(BandLength(5, 10, Places), 35.70796);
  EXPECT_EQ(BandLength(0.5, 0.51, Places), 2.59079);  // 1.02 + 1.57079
  EXPECT_EQ(BandLength(15, 90, Places), 227.12389);   // 180 + 47.12389, rounded by the lift
}

TEST(BandLength, FollowsTheDecimalPlaces) {
  EXPECT_EQ(BandLength(5, 10, 4), 35.7079);
  EXPECT_EQ(BandLength(5, 10, 8), 35.70796326);
}

TEST(BandLength, IsZeroWhenItOverflows) {
  EXPECT_EQ(BandLength(5, std::numeric_limits<double>::max(), Places), 0);
  EXPECT_EQ(BandLength(5, Infinite, Places), 0);
  EXPECT_EQ(BandLength(std::numeric_limits<double>::max(), 10, Places),
            20);  // a circumference that failed is 0
}

// ---- the rows

TEST(CalcLengths, GivesTheInsideAloneWithoutAPlate) {
  for (const double plate : {0.0, -0.05, NoNumber}) {
    const auto lengths = CalcLengths(Machine(5, 10, plate), Places);
    ASSERT_TRUE(lengths);
    EXPECT_FALSE((*lengths)[OwnLength]);
    EXPECT_TRUE((*lengths)[InsideLength]);
    EXPECT_FALSE((*lengths)[MiddleLength]);
    EXPECT_FALSE((*lengths)[OutsideLength]);
  }
  EXPECT_EQ((*CalcLengths(Machine(5, 10), Places))[InsideLength], 35.70796);
}

TEST(CalcLengths, AddsThePlateOnceTwiceAndThriceToTheWheel) {
  const auto lengths = CalcLengths(Machine(5, 10, 0.05), Places);
  ASSERT_TRUE(lengths);
  EXPECT_FALSE((*lengths)[OwnLength]);
  EXPECT_EQ((*lengths)[InsideLength], BandLength(5.05, 10, Places));
  EXPECT_EQ((*lengths)[MiddleLength], BandLength(5.1, 10, Places));
  EXPECT_EQ((*lengths)[OutsideLength], BandLength(5.15, 10, Places));
  EXPECT_EQ((*lengths)[OutsideLength], 36.1792);
}

TEST(CalcLengths, RoundsEachDiameterFirst) {
  const auto lengths = CalcLengths(Machine(5.000009, 10, 0.000004), Places);
  ASSERT_TRUE(lengths);
  EXPECT_EQ((*lengths)[InsideLength], BandLength(5.00001, 10, Places));   // 5.000013
  EXPECT_EQ((*lengths)[OutsideLength], BandLength(5.00002, 10, Places));  // 5.000021
}

TEST(CalcLengths, GivesNothingWithoutWheelsOrTheirCentres) {
  EXPECT_FALSE(CalcLengths(Machine(0, 10, 0.05), Places));
  EXPECT_FALSE(CalcLengths(Machine(5, 0, 0.05), Places));
  EXPECT_FALSE(CalcLengths(Machine(-5, 10, 0.05), Places));
  EXPECT_FALSE(CalcLengths(Machine(5, -10, 0.05), Places));
  EXPECT_FALSE(CalcLengths(Machine(NoNumber, 10), Places));
  EXPECT_FALSE(CalcLengths(Machine(5, NoNumber), Places));
}

TEST(CalcLengths, LeavesTheRimOutOfAccount) {
  BandSaw saw = Machine(5, 10);
  saw.MachineInfo.Width = 12;
  EXPECT_EQ(CalcLengths(saw, Places), CalcLengths(Machine(5, 10), Places));
}

TEST(CalcLengths, GoesOnWithoutADiameterThatFails) {
  const auto lengths = CalcLengths(Machine(5, 10, Infinite), Places);
  ASSERT_TRUE(lengths);
  EXPECT_EQ((*lengths)[InsideLength], 20);  // a diameter never assigned is 0
  EXPECT_EQ((*lengths)[OutsideLength], 20);
}

}  // namespace
}  // namespace tarnwick
