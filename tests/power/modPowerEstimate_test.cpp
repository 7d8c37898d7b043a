#include "power/modPowerEstimate.h"

#include <gtest/gtest.h>

#include <cmath>

#include "power/modPowerChain.h"
#include "support/PowerDesign.h"

namespace tarnwick {
namespace {

BandSaw WorkedDesign() {
  BandSaw saw = test::PowerDesign();
  UpdatePower(saw, {});
  return saw;
}

PowerEstimates Built(const BandSaw& saw, double percent, const PowerSettings& settings = {}) {
  return BuildPowerEstimates(saw, percent, settings).value();
}

TEST(BuildPowerEstimates, HasNoRowsUnlessThePercentIsAboveZero) {
  for (const double percent : {0.0, -0.0, -10.0, std::nan("")}) {
    EXPECT_EQ(BuildPowerEstimates(WorkedDesign(), percent, {}), std::nullopt) << percent;
  }
  EXPECT_TRUE(BuildPowerEstimates(WorkedDesign(), 0.001, {}).has_value());
}

TEST(BuildPowerEstimates, BeginsWithTheFiguresOfTheDesign) {
  BandSaw saw = WorkedDesign();
  saw.GeneralInfo.HorsePower = 77;  // as stored, whatever the formula says
  saw.MachineInfo.CenterToCenter = 9;
  const PowerEstimate row = Built(saw, 10)[CurrentFigures];
  EXPECT_EQ(row.Marker, 4);
  EXPECT_EQ(row.WheelDia, 5);
  EXPECT_EQ(row.CenterToCenter, 0);
  EXPECT_EQ(row.Width, 10);
  EXPECT_EQ(row.Length, 40);
  EXPECT_EQ(row.Pitch, 2);
  EXPECT_EQ(row.NumTeeth, 240);
  EXPECT_EQ(row.PlateThick, 0.065);
  EXPECT_EQ(row.Kerf, 0.15);
  EXPECT_EQ(row.SideClear, 0.0425);
  EXPECT_EQ(row.ShaftSpeed, 510);
  EXPECT_EQ(row.SawVelocity, 8011);
  EXPECT_EQ(row.DepthOfCut, 10);
  EXPECT_EQ(row.FeedRate, 100);
  EXPECT_EQ(row.WoodType, saw.GeneralInfo.WoodType);
  EXPECT_EQ(row.HorsePower, 77);
  EXPECT_EQ(row.Bite, 0.02496);
  EXPECT_EQ(row.GulletArea, 1);
  EXPECT_EQ(row.AreaBelowTip, 0.7);
  EXPECT_EQ(row.Capacity, 0.2496);
  EXPECT_EQ(row.FeedIndex, 0);
}

TEST(BuildPowerEstimates, WorksOutVelocityAndCapacityAfresh) {
  BandSaw saw = WorkedDesign();
  saw.DesignInfo.SawVelocity = 1;
  saw.GulletInfo.Capacity = 99;
  const PowerEstimate row = Built(saw, 10)[CurrentFigures];
  EXPECT_EQ(row.SawVelocity, 8011);
  EXPECT_EQ(row.Capacity, 0.2496);
}

TEST(BuildPowerEstimates, CompoundsTheIncreaseFromRowToRow) {
  const PowerEstimates rows = Built(WorkedDesign(), 10);
  EXPECT_EQ(rows[CurrentFigures].FeedRate, 100);
  EXPECT_DOUBLE_EQ(rows[ByPitch].FeedRate, 110);
  EXPECT_DOUBLE_EQ(rows[ByWheelSpeed].FeedRate, 121);
  EXPECT_DOUBLE_EQ(rows[ByBite].FeedRate, 133.1);
  EXPECT_EQ(rows[ByBite].FeedRate, 100 * 1.1 * 1.1 * 1.1);  // not rounded
}

TEST(BuildPowerEstimates, TakesAnIncreaseBelowOnePercent) {
  EXPECT_EQ(Built(WorkedDesign(), 0.5)[ByPitch].FeedRate, 100 * (0.5 / 100 + 1));
}

TEST(BuildPowerEstimates, ChangesInTheFirstRowThePitch) {
  const PowerEstimates rows = Built(WorkedDesign(), 10);
  PowerEstimate want = rows[CurrentFigures];
  want.FeedRate = rows[ByPitch].FeedRate;
  want.Pitch = 1.81776;  // 8011 * 0.02496 / 110 = 1.817769, cut
  want.HorsePower = 68.75;
  EXPECT_EQ(rows[ByPitch], want);
}

TEST(BuildPowerEstimates, ChangesInTheSecondRowTheWheelSpeed) {
  const PowerEstimates rows = Built(WorkedDesign(), 10);
  PowerEstimate want = rows[CurrentFigures];
  want.FeedRate = rows[ByWheelSpeed].FeedRate;
  want.ShaftSpeed = 617;    // 121 * 2 / 0.02496 = 9696 ft/min
  want.SawVelocity = 9692;  // of the whole speed
  want.HorsePower = 75.625;
  EXPECT_EQ(rows[ByWheelSpeed], want);
}

TEST(BuildPowerEstimates, ChangesInTheThirdRowTheBite) {
  const PowerEstimates rows = Built(WorkedDesign(), 10);
  PowerEstimate want = rows[CurrentFigures];
  want.FeedRate = rows[ByBite].FeedRate;
  want.Bite = 0.03322;  // 133.1 * 2 / 8011
  want.Capacity = 0.3322;
  want.HorsePower = 83.1875;
  EXPECT_EQ(rows[ByBite], want);
}

TEST(BuildPowerEstimates, KeepsTheActualCapacityInAllRows) {
  for (const PowerEstimate& row : Built(WorkedDesign(), 25, {.GulletFeedIndex = 0.35})) {
    EXPECT_EQ(row.AreaBelowTip, 0.35);
  }
}

TEST(BuildPowerEstimates, DoesNotRoundTheActualCapacity) {
  BandSaw saw = WorkedDesign();
  saw.GulletInfo.Area = 1.0 / 3;
  EXPECT_EQ(Built(saw, 10)[ByBite].AreaBelowTip, 0.7 * (1.0 / 3));
}

TEST(BuildPowerEstimates, RoundsAtThePlacesOfTheSettings) {
  const PowerEstimates rows = Built(WorkedDesign(), 10, {.DecimalPlaces = 4});
  EXPECT_EQ(rows[ByPitch].Pitch, 1.8177);
  EXPECT_EQ(rows[ByBite].Bite, 0.0332);
}

TEST(BuildPowerEstimates, HasNoPitchAndNoWheelSpeedWithoutABite) {
  BandSaw saw = WorkedDesign();
  saw.GulletInfo.Bite = 0;
  const PowerEstimates rows = Built(saw, 10);
  EXPECT_EQ(rows[CurrentFigures].Capacity, 0);
  EXPECT_EQ(rows[ByPitch].Pitch, 0);
  EXPECT_EQ(rows[ByWheelSpeed].ShaftSpeed, 0);
  EXPECT_EQ(rows[ByWheelSpeed].SawVelocity, 0);
  EXPECT_EQ(rows[ByBite].Bite, 0.03322);
}

TEST(BuildPowerEstimates, HasNoHorsePowerForAnUnknownWoodButInTheCurrentRow) {
  BandSaw saw = WorkedDesign();
  saw.GeneralInfo.WoodType.Assign("Ebony");
  const PowerEstimates rows = Built(saw, 10);
  EXPECT_EQ(rows[CurrentFigures].HorsePower, 62.5);
  for (const auto row : {ByPitch, ByWheelSpeed, ByBite}) EXPECT_EQ(rows[row].HorsePower, 0);
}

TEST(BuildPowerEstimates, HasARowOfZerosForABlankDesign) {
  PowerEstimate blank;
  blank.Marker = 4;
  for (const PowerEstimate& row : Built(BandSaw(), 50)) EXPECT_EQ(row, blank);
}

TEST(BuildPowerEstimates, HasNoWheelSpeedBeyondSixteenBits) {
  BandSaw saw = WorkedDesign();
  saw.GulletInfo.Bite = 0.0001;
  const PowerEstimates rows = Built(saw, 10);
  EXPECT_EQ(rows[ByWheelSpeed].ShaftSpeed, 0);
  EXPECT_EQ(rows[ByWheelSpeed].SawVelocity, 0);
}

TEST(BuildPowerEstimates, KeepsAFeedRateThatCannotRise) {
  BandSaw saw = WorkedDesign();
  saw.GeneralInfo.FeedRate = 1.7e308;
  for (const PowerEstimate& row : Built(saw, 50)) EXPECT_EQ(row.FeedRate, 1.7e308);
}

}  // namespace
}  // namespace tarnwick
