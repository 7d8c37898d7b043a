#include "power/modPowerChain.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/modDecim.h"
#include "support/PowerDesign.h"

namespace tarnwick {
namespace {

using test::PowerDesign;

TEST(UpdatePower, WorksOutAllSixFigures) {
  BandSaw saw = PowerDesign();
  UpdatePower(saw, {});
  EXPECT_EQ(saw.DesignInfo.SawVelocity, 8011);  // 5 ft at 510 rpm
  EXPECT_EQ(saw.GeneralInfo.SideClear, 0.0425);
  EXPECT_EQ(saw.GulletInfo.Bite, 0.02496);     // 200 / 8011
  EXPECT_EQ(saw.GulletInfo.Capacity, 0.2496);  // of the rounded bite
  EXPECT_EQ(saw.GeneralInfo.HorsePower, 62.5);
  EXPECT_EQ(saw.DesignInfo.MaxFeedRate, 280.385);
}

TEST(UpdatePower, TouchesNothingElse) {
  BandSaw saw = PowerDesign();
  BandSaw want = saw;
  UpdatePower(saw, {});
  want.DesignInfo.SawVelocity = saw.DesignInfo.SawVelocity;
  want.GeneralInfo.SideClear = saw.GeneralInfo.SideClear;
  want.GulletInfo.Bite = saw.GulletInfo.Bite;
  want.GulletInfo.Capacity = saw.GulletInfo.Capacity;
  want.GeneralInfo.HorsePower = saw.GeneralInfo.HorsePower;
  EXPECT_TRUE(SameSaw(saw, want));
}

TEST(UpdatePower, StandsStillTheSecondTime) {
  BandSaw saw = PowerDesign();
  UpdatePower(saw, {});
  const BandSaw once = saw;
  UpdatePower(saw, {});
  EXPECT_TRUE(SameSaw(saw, once));
  EXPECT_EQ(saw.DesignInfo.MaxFeedRate, once.DesignInfo.MaxFeedRate);
}

TEST(UpdatePower, LeavesOnlyHorsePowerAndClearanceWithoutSpeed) {
  BandSaw saw = PowerDesign();
  UpdatePower(saw, {});
  saw.GeneralInfo.ShaftSpeed = 0;
  UpdatePower(saw, {});
  EXPECT_EQ(saw.DesignInfo.SawVelocity, 0);
  EXPECT_EQ(saw.GulletInfo.Bite, 0);
  EXPECT_EQ(saw.GulletInfo.Capacity, 0);
  EXPECT_EQ(saw.DesignInfo.MaxFeedRate, 0);
  EXPECT_EQ(saw.GeneralInfo.HorsePower, 62.5);
  EXPECT_EQ(saw.GeneralInfo.SideClear, 0.0425);
}

TEST(UpdatePower, GivesNoHorsePowerForAHeading) {
  BandSaw saw = PowerDesign();
  saw.GeneralInfo.WoodType.Assign("Softwoods:");
  UpdatePower(saw, {});
  EXPECT_EQ(saw.GeneralInfo.HorsePower, 0);
  EXPECT_NE(saw.GulletInfo.Bite, 0);
}

TEST(UpdatePower, GivesNothingForABlankDesign) {
  BandSaw saw;
  UpdatePower(saw, {});
  EXPECT_TRUE(SameSaw(saw, BandSaw()));
  EXPECT_EQ(saw.DesignInfo.MaxFeedRate, 0);
}

TEST(UpdatePower, TakesPlacesAndFeedIndexFromTheSettings) {
  BandSaw saw = PowerDesign();
  UpdatePower(saw, {.DecimalPlaces = 4, .GulletFeedIndex = 1});
  EXPECT_EQ(saw.GulletInfo.Bite, 0.0249);
  EXPECT_EQ(saw.GulletInfo.Capacity, 0.249);
  EXPECT_EQ(saw.DesignInfo.MaxFeedRate, 400.55);
}

TEST(UpdateMaxFeedRate, IsWhatTheFeedIndexChangesAndNothingElse) {
  BandSaw saw = PowerDesign(), other = PowerDesign();
  UpdatePower(saw, {});
  UpdatePower(other, {.GulletFeedIndex = 0.5});
  EXPECT_TRUE(SameSaw(saw, other));
  EXPECT_EQ(other.DesignInfo.MaxFeedRate, 200.275);
}

TEST(UpdateSawVelocity, TakesTheDiameterAsItIsPrinted) {
  // Circumferences next to halfway between two whole numbers, where a digit that no print shows decides.
  BandSaw saw;
  saw.GeneralInfo.ShaftSpeed = 1;
  int different = 0;
  for (int i = 0; i < 200; ++i) {
    const double tie = (i + 0.5) / Pi;
    for (const double stored : {std::nextafter(tie, 0.0), tie, std::nextafter(tie, 100.0)}) {
      saw.MachineInfo.WheelDia = stored;
      UpdateSawVelocity(saw);
      EXPECT_EQ(saw.DesignInfo.SawVelocity, CalcSawVelocity(ReadNumber(DecimalText(stored)), 1));
      different += saw.DesignInfo.SawVelocity != CalcSawVelocity(stored, 1);
    }
  }
  EXPECT_GT(different, 0);
  EXPECT_NE(saw.MachineInfo.WheelDia, ReadNumber(DecimalText(saw.MachineInfo.WheelDia)));  // kept as it was
}

}  // namespace
}  // namespace tarnwick
