#include "power/modPower.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr int Places = 5;
constexpr double Huge = 1e300;
constexpr std::int32_t MostSpeed = std::numeric_limits<std::int32_t>::max();

// ---- saw velocity

TEST(CalcSawVelocity, IsTheCircumferenceTimesTheSpeed) {
  EXPECT_EQ(CalcSawVelocity(5, 600), 9425);  // 9424.78
  EXPECT_EQ(CalcSawVelocity(1, 1), 3);
  EXPECT_EQ(CalcSawVelocity(4, 637), 8005);  // 8004.78
}

TEST(CalcSawVelocity, IsZeroWithoutDiameterOrSpeed) {
  EXPECT_EQ(CalcSawVelocity(0, 600), 0);
  EXPECT_EQ(CalcSawVelocity(5, 0), 0);
}

TEST(CalcSawVelocity, WorksWithNegativeInputs) {
  EXPECT_EQ(CalcSawVelocity(-5, 600), -9425);
  EXPECT_EQ(CalcSawVelocity(5, -600), -9425);
  EXPECT_EQ(CalcSawVelocity(-5, -600), 9425);
}

TEST(CalcSawVelocity, RoundsATieToTheEvenNumber) {
  int ties = 0;
  for (int even = 0; even < 60; even += 2) {
    for (const double tie : {even - 0.5, even + 0.5}) {
      const double diameter = tie / Pi;
      if (diameter * Pi != tie) continue;
      ++ties;
      EXPECT_EQ(CalcSawVelocity(diameter, 1), even) << tie;
      EXPECT_EQ(CalcSawVelocity(diameter, -1), -even) << tie;
    }
  }
  EXPECT_GT(ties, 20);
}

TEST(CalcSawVelocity, IsZeroBeyondThirtyTwoBits) {
  EXPECT_GT(CalcSawVelocity(2 / Pi, 1073741823), 2147483640);
  EXPECT_EQ(CalcSawVelocity(1, MostSpeed), 0);
  EXPECT_EQ(CalcSawVelocity(1, -MostSpeed), 0);
  EXPECT_EQ(CalcSawVelocity(Huge, MostSpeed), 0);
  EXPECT_EQ(CalcSawVelocity(std::numeric_limits<double>::max(), 600), 0);
}

// ---- horsepower

TEST(CalcHorsePower, IsTheWoodSawnInAMinuteTimesItsEnergy) {
  EXPECT_EQ(CalcHorsePower("Oak (White)", 0.15, 100, 10, Places), 62.5);
  EXPECT_EQ(CalcHorsePower("Cypress", 0.15, 100, 10, Places), 43.75);
  EXPECT_EQ(CalcHorsePower("Redwood", 0.15, 100, 10, Places), 39.58333);
  EXPECT_EQ(CalcHorsePower("Redwood", 0.15, 100, 10, 4), 39.5833);
}

TEST(CalcHorsePower, TakesANameBetweenBlanksButNotInAnotherCase) {
  EXPECT_EQ(CalcHorsePower("  Oak (White)                 ", 0.15, 100, 10, Places), 62.5);
  EXPECT_EQ(CalcHorsePower("oak (white)", 0.15, 100, 10, Places), 0);
}

TEST(CalcHorsePower, IsZeroForAHeadingAndAnUnknownWood) {
  EXPECT_EQ(CalcHorsePower("Softwoods:", 0.15, 100, 10, Places), 0);
  EXPECT_EQ(CalcHorsePower("Hardwoods:", 0.15, 100, 10, Places), 0);
  EXPECT_EQ(CalcHorsePower("Ebony", 0.15, 100, 10, Places), 0);
  EXPECT_EQ(CalcHorsePower("", 0.15, 100, 10, Places), 0);
}

TEST(CalcHorsePower, KnowsTheOakThatNoListOffers) {
  EXPECT_EQ(CalcHorsePower("Oak (Southern Red)", 0.144, 100, 10, Places), 52);
}

TEST(CalcHorsePower, IsZeroWithoutKerfFeedOrDepth) {
  EXPECT_EQ(CalcHorsePower("Oak (White)", 0, 100, 10, Places), 0);
  EXPECT_EQ(CalcHorsePower("Oak (White)", 0.15, 0, 10, Places), 0);
  EXPECT_EQ(CalcHorsePower("Oak (White)", 0.15, 100, 0, Places), 0);
}

TEST(CalcHorsePower, WorksWithNegativeInputs) {
  // Below zero the rounding rule takes a unit of the last place away.
  EXPECT_EQ(CalcHorsePower("Oak (White)", 0.15, -100, 10, Places), -62.49999);
  EXPECT_EQ(CalcHorsePower("Oak (White)", -0.15, -100, 10, Places), 62.5);
}

TEST(CalcHorsePower, IsZeroWhenItOverflows) {
  EXPECT_EQ(CalcHorsePower("Oak (White)", Huge, Huge, 10, Places), 0);
}

// ---- bite and capacity

TEST(CalcBite, IsTheFeedOfOneTooth) {
  EXPECT_EQ(CalcBite(100, 2, 8000, Places), 0.025);
  EXPECT_EQ(CalcBite(100, 1.75, 9425, Places), 0.01856);  // 0.018567
  EXPECT_EQ(CalcBite(100, 1.75, 9425, 4), 0.0185);
}

TEST(CalcBite, IsZeroWithoutFeedPitchOrVelocity) {
  EXPECT_EQ(CalcBite(0, 2, 8000, Places), 0);
  EXPECT_EQ(CalcBite(100, 0, 8000, Places), 0);
  EXPECT_EQ(CalcBite(100, 2, 0, Places), 0);
}

TEST(CalcBite, WorksWithNegativeInputs) {
  EXPECT_EQ(CalcBite(-100, 2, 8000, Places), -0.02499);
  EXPECT_EQ(CalcBite(100, 2, -8000, Places), -0.02499);
  EXPECT_EQ(CalcBite(100, -2, -8000, Places), 0.025);
}

TEST(CalcBite, IsZeroWhenItOverflows) { EXPECT_EQ(CalcBite(Huge, Huge, 8000, Places), 0); }

TEST(Capacity, IsBiteTimesDepthWithAGuardAndWithout) {
  EXPECT_EQ(CalcCapacity(0.025, 10, Places), 0.25);
  EXPECT_EQ(CalcCapacityChecked(0.025, 10, Places), 0.25);
  EXPECT_EQ(CalcCapacity(0.123456, 10, Places), 1.23456);
  EXPECT_EQ(CalcCapacity(0.123456, 10, 4), 1.2345);
}

TEST(Capacity, IsZeroWithoutBiteOrDepth) {
  for (const auto capacity : {CalcCapacity, CalcCapacityChecked}) {
    EXPECT_EQ(capacity(0, 10, Places), 0);
    EXPECT_EQ(capacity(0.025, 0, Places), 0);
    EXPECT_EQ(capacity(0, 0, Places), 0);
  }
}

TEST(Capacity, IsTheSameByBothAtAllMeasures) {
  for (int i = -50; i < 200; ++i) {
    for (int j = -5; j < 40; ++j) {
      const double bite = i * 0.00317, depth = j * 1.113;
      ASSERT_EQ(CalcCapacity(bite, depth, Places), CalcCapacityChecked(bite, depth, Places));
    }
  }
}

TEST(Capacity, WorksWithNegativeInputsAndIsZeroWhenItOverflows) {
  for (const auto capacity : {CalcCapacity, CalcCapacityChecked}) {
    EXPECT_EQ(capacity(-0.025, 10, Places), -0.24999);
    EXPECT_EQ(capacity(-0.025, -10, Places), 0.25);
    EXPECT_EQ(capacity(Huge, Huge, Places), 0);
    EXPECT_EQ(capacity(Huge, 1e5, Places), 0);  // a number that the rounding cannot shift
  }
}

// ---- maximum feed rate

TEST(CalcMaxFeedRate, FillsTheUsableGullet) {
  EXPECT_EQ(CalcMaxFeedRate(10, 1, 2, 8000, {}), 280);
  EXPECT_EQ(CalcMaxFeedRate(10, 1, 2, 8000, {.GulletFeedIndex = 1}), 400);
  EXPECT_EQ(CalcMaxFeedRate(10, 1, 3, 8000, {}), 186.66666);
  EXPECT_EQ(CalcMaxFeedRate(10, 1, 3, 8000, {.DecimalPlaces = 4}), 186.6666);
}

TEST(CalcMaxFeedRate, IsTheFeedWhoseCapacityIsTheActualOne) {
  const double feed = CalcMaxFeedRate(12, 0.875, 1.75, 9425, {});
  EXPECT_NEAR(CalcCapacity(CalcBite(feed, 1.75, 9425, 10), 12, 10), 0.7 * 0.875, 1e-6);
}

TEST(CalcMaxFeedRate, IsZeroUnlessAllAreAboveZero) {
  const PowerSettings settings;
  for (const double missing : {0.0, -0.0, -1.0, -Huge, std::nan("")}) {
    EXPECT_EQ(CalcMaxFeedRate(missing, 1, 2, 8000, settings), 0);
    EXPECT_EQ(CalcMaxFeedRate(10, missing, 2, 8000, settings), 0);
    EXPECT_EQ(CalcMaxFeedRate(10, 1, missing, 8000, settings), 0);
  }
  EXPECT_EQ(CalcMaxFeedRate(10, 1, 2, 0, settings), 0);
  EXPECT_EQ(CalcMaxFeedRate(10, 1, 2, -8000, settings), 0);
  EXPECT_EQ(CalcMaxFeedRate(-10, 1, -2, 8000, settings), 0);  // though the quotient would be positive
}

TEST(CalcMaxFeedRate, IsZeroWhenItFails) {
  EXPECT_EQ(CalcMaxFeedRate(10, Huge, 2, MostSpeed, {}), 0);   // overflow
  EXPECT_EQ(CalcMaxFeedRate(Huge, 1, Huge, 8000, {}), 0);      // overflow below the line
  EXPECT_EQ(CalcMaxFeedRate(1e-200, 1, 1e-200, 8000, {}), 0);  // nothing left to divide by
}

// ---- pitch and side clearance

TEST(CalcPitch, StaysInFeet) {
  EXPECT_EQ(CalcPitch(20, 120, Places), 0.16666);
  EXPECT_EQ(CalcPitch(20, 120, 4), 0.1666);
  EXPECT_EQ(CalcPitch(100, 600, Places), 0.16666);
}

TEST(CalcPitch, IsZeroWithoutLengthOrTeeth) {
  EXPECT_EQ(CalcPitch(0, 120, Places), 0);
  EXPECT_EQ(CalcPitch(20, 0, Places), 0);
}

TEST(CalcPitch, WorksWithNegativeInputs) {
  EXPECT_EQ(CalcPitch(-20, 100, Places), -0.19999);
  EXPECT_EQ(CalcPitch(20, -100, Places), -0.19999);
  EXPECT_EQ(CalcPitch(-20, -100, Places), 0.2);
}

TEST(CalcSideClear, IsHalfOfWhatTheKerfIsWider) {
  EXPECT_EQ(CalcSideClear(0.065, 0.125, Places), 0.03);
  EXPECT_EQ(CalcSideClear(0.0625, 0.14063, Places), 0.03906);
  EXPECT_EQ(CalcSideClear(0.0625, 0.14063, 4), 0.039);
}

TEST(CalcSideClear, IsZeroForAKerfNoWiderThanThePlate) {
  EXPECT_EQ(CalcSideClear(0.125, 0.125, Places), 0);
  EXPECT_EQ(CalcSideClear(0.125, 0.065, Places), 0);
  EXPECT_EQ(CalcSideClear(0.125, -0.25, Places), 0);
  EXPECT_EQ(CalcSideClear(-0.125, -0.25, Places), 0);
}

TEST(CalcSideClear, IsZeroWithoutPlateOrKerf) {
  EXPECT_EQ(CalcSideClear(0, 0.125, Places), 0);
  EXPECT_EQ(CalcSideClear(0.125, 0, Places), 0);
  EXPECT_EQ(CalcSideClear(-0.125, 0, Places), 0);
}

TEST(CalcSideClear, WorksWithANegativePlate) { EXPECT_EQ(CalcSideClear(-0.125, 0.125, Places), 0.125); }

// ---- what keeps a bite

TEST(CalcPitchForBite, IsThePitchThatKeepsTheBite) {
  EXPECT_EQ(CalcPitchForBite(100, 8000, 0.025, Places), 2);
  EXPECT_EQ(CalcPitchForBite(110, 8000, 0.025, Places), 1.81818);
  EXPECT_EQ(CalcPitchForBite(110, 8000, 0.025, 4), 1.8181);
}

TEST(CalcPitchForBite, IsZeroWithoutFeedVelocityOrBite) {
  EXPECT_EQ(CalcPitchForBite(0, 8000, 0.025, Places), 0);
  EXPECT_EQ(CalcPitchForBite(100, 0, 0.025, Places), 0);
  EXPECT_EQ(CalcPitchForBite(100, 8000, 0, Places), 0);
}

TEST(CalcPitchForBite, WorksWithNegativeInputsAndIsZeroWhenItOverflows) {
  EXPECT_EQ(CalcPitchForBite(-100, 8000, 0.025, Places), -1.99999);
  EXPECT_EQ(CalcPitchForBite(-100, -8000, 0.025, Places), 2);
  EXPECT_EQ(CalcPitchForBite(1e-300, 8000, Huge, Places), 0);
}

TEST(CalcShaftSpeedForBite, IsTheSpeedThatKeepsTheBite) {
  EXPECT_EQ(CalcShaftSpeedForBite(100, 2, 5, 0.025), 509);  // 8000 ft/min
  EXPECT_EQ(CalcShaftSpeedForBite(110, 2, 5, 0.025), 560);  // 8800 ft/min
}

TEST(CalcShaftSpeedForBite, IsZeroWhenOneIsMissing) {
  EXPECT_EQ(CalcShaftSpeedForBite(0, 2, 5, 0.025), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(100, 0, 5, 0.025), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(100, 2, 0, 0.025), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(100, 2, 5, 0), 0);
}

TEST(CalcShaftSpeedForBite, WorksWithNegativeInputs) {
  EXPECT_EQ(CalcShaftSpeedForBite(-100, 2, 5, 0.025), -509);
  EXPECT_EQ(CalcShaftSpeedForBite(100, 2, -5, 0.025), -509);
  EXPECT_EQ(CalcShaftSpeedForBite(-100, 2, -5, 0.025), 509);
}

// A wheel of one foot around, so that the speed is the velocity.
constexpr double OneFootAround = 1 / Pi;

TEST(CalcShaftSpeedForBite, RoundsTheVelocityToTheEvenOfATie) {
  ASSERT_EQ(OneFootAround * Pi, 1);
  EXPECT_EQ(CalcShaftSpeedForBite(0.5, 1, OneFootAround, 1), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(1.5, 1, OneFootAround, 1), 2);
  EXPECT_EQ(CalcShaftSpeedForBite(2.5, 1, OneFootAround, 1), 2);
  EXPECT_EQ(CalcShaftSpeedForBite(-2.5, 1, OneFootAround, 1), -2);
  EXPECT_EQ(CalcShaftSpeedForBite(3.5, 1, OneFootAround, 1), 4);
}

TEST(CalcShaftSpeedForBite, RoundsTheSpeedToTheEvenOfATie) {
  constexpr double twoFeetAround = 2 / Pi;
  ASSERT_EQ(twoFeetAround * Pi, 2);
  EXPECT_EQ(CalcShaftSpeedForBite(1, 1, twoFeetAround, 1), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(3, 1, twoFeetAround, 1), 2);
  EXPECT_EQ(CalcShaftSpeedForBite(5, 1, twoFeetAround, 1), 2);
  EXPECT_EQ(CalcShaftSpeedForBite(7, 1, twoFeetAround, 1), 4);
}

TEST(CalcShaftSpeedForBite, RoundsTheVelocityBeforeItDivides) {
  // 2.6 ft/min is 3, and half of that 1.5 is 2; half of 2.6 would be 1.
  EXPECT_EQ(CalcShaftSpeedForBite(2.6, 1, 2 / Pi, 1), 2);
}

TEST(CalcShaftSpeedForBite, IsZeroBeyondSixteenBits) {
  EXPECT_EQ(CalcShaftSpeedForBite(32767, 1, OneFootAround, 1), 32767);
  EXPECT_EQ(CalcShaftSpeedForBite(32768, 1, OneFootAround, 1), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(-32768, 1, OneFootAround, 1), -32768);
  EXPECT_EQ(CalcShaftSpeedForBite(-32769, 1, OneFootAround, 1), 0);
}

TEST(CalcShaftSpeedForBite, IsZeroForAVelocityBeyondThirtyTwoBits) {
  EXPECT_NE(CalcShaftSpeedForBite(2147483647, 1, 1e5, 1), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(2147483648, 1, 1e5, 1), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(Huge, Huge, 5, 1), 0);
}

// ---- all of it together

TEST(PowerFigures, AreZeroForWhatIsNoNumber) {
  const double none = std::nan("");
  EXPECT_EQ(CalcSawVelocity(none, 600), 0);
  EXPECT_EQ(CalcHorsePower("Oak (White)", none, 100, 10, Places), 0);
  EXPECT_EQ(CalcBite(none, 2, 8000, Places), 0);
  EXPECT_EQ(CalcCapacity(none, 10, Places), 0);
  EXPECT_EQ(CalcCapacityChecked(none, 10, Places), 0);
  EXPECT_EQ(CalcPitch(none, 120, Places), 0);
  EXPECT_EQ(CalcSideClear(none, 0.125, Places), 0);
  EXPECT_EQ(CalcPitchForBite(none, 8000, 0.025, Places), 0);
  EXPECT_EQ(CalcShaftSpeedForBite(none, 2, 5, 0.025), 0);
}

TEST(PowerSettings, BeginWithFivePlacesAndSeventyPercent) {
  EXPECT_EQ(PowerSettings().DecimalPlaces, 5);
  EXPECT_EQ(PowerSettings().GulletFeedIndex, 0.7);
}

}  // namespace
}  // namespace tarnwick
