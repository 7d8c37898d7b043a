#include "power/modPowerBox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "support/PowerDesign.h"

namespace tarnwick {
namespace {

using Names = std::vector<std::string>;

Names ControlsOf(std::span<const PowerBoxRow> rows) {
  Names names;
  for (const PowerBoxRow& row : rows) names.emplace_back(row.Control);
  std::sort(names.begin(), names.end());
  return names;
}

TEST(PowerBoxes, AreTheSixteenOfTheEditor) {
  EXPECT_EQ(
      ControlsOf(PowerEditorBoxes()),
      (Names{"txtAreaBelowTip", "txtBite", "txtCapacity", "txtFeedRate", "txtHPGulletArea", "txtHPPlateThick",
             "txtHPSawOD", "txtHPToothWidth", "txtHorsePower", "txtMaxDepth", "txtMaxFeedRate", "txtRPMs",
             "txtSawVelocity", "txtSideClearance", "txtSpecificEnergy", "txtToothPitch"}));
}

TEST(PowerBoxes, AreTheSeventeenOfEachSideOfTheCalculator) {
  EXPECT_EQ(
      ControlsOf(PowerCalculatorBoxes()),
      (Names{"txtBite", "txtCapacity", "txtCenters", "txtFeedRate", "txtHPGulletArea", "txtHPPlateThick",
             "txtHPSawOD", "txtHPToothWidth", "txtHorsePower", "txtLength", "txtMaxDepth", "txtNumTeeth",
             "txtRPMs", "txtSawVelocity", "txtSideClearance", "txtSpecificEnergy", "txtToothPitch"}));
}

TEST(PowerBoxes, HaveACaptionEach) {
  for (const auto rows : {PowerEditorBoxes(), PowerCalculatorBoxes()}) {
    std::set<std::string_view> captions;
    for (const PowerBoxRow& row : rows) {
      EXPECT_TRUE(row.Caption.ends_with(":") || row.Caption == "Feed Rate (FPM): ") << row.Caption;
      EXPECT_TRUE(captions.insert(row.Caption).second) << row.Caption;
    }
  }
}

TEST(PowerBoxes, LetThreeCaptionsOfTheEditorAskAsTheirBoxesDo) {
  Names asking;
  for (const PowerBoxRow& row : PowerEditorBoxes()) {
    if (row.LabelAsks) asking.emplace_back(row.Control);
  }
  EXPECT_EQ(asking, (Names{"txtRPMs", "txtMaxDepth", "txtFeedRate"}));
}

struct FigureRow {
  PowerBox Box;
  const char* Imperial;
  const char* Metric;
};

class PowerFigure : public testing::TestWithParam<FigureRow> {};

TEST_P(PowerFigure, IsShownInItsUnit) {
  BandSaw saw = test::PowerDesign();
  saw.MachineInfo.CenterToCenter = 12;
  saw.GeneralInfo.SideClear = 0.0425;
  saw.DesignInfo.SawVelocity = 8000;
  saw.GulletInfo.Bite = 0.025;
  saw.GulletInfo.Capacity = 0.25;
  saw.GeneralInfo.HorsePower = 1250;
  saw.DesignInfo.MaxFeedRate = 280.385;
  EXPECT_EQ(PowerBoxText(GetParam().Box, saw, 0.7, {Imperial}), GetParam().Imperial);
  EXPECT_EQ(PowerBoxText(GetParam().Box, saw, 0.7, {Metric}), GetParam().Metric);
  EXPECT_EQ(PowerBoxText(GetParam().Box, {}, 0.7, {Imperial}), "");
}

using enum PowerBox;
INSTANTIATE_TEST_SUITE_P(
    Boxes, PowerFigure,
    testing::Values(
        FigureRow{HPSawOD, " 5.000 ft", " 1.524 m"}, FigureRow{Centers, " 12.000 ft", " 3.658 m"},
        FigureRow{Length, " 40.000 ft", " 12.192 m"}, FigureRow{ToothPitch, " 2.000 in", " 5.080 cm"},
        FigureRow{NumTeeth, " 240", " 240"}, FigureRow{HPPlateThick, " 0.065 in", " 1.651 mm"},
        FigureRow{HPToothWidth, " 0.150 in", " 3.810 mm"}, FigureRow{SideClearance, " 0.043 in", " 1.080 mm"},
        FigureRow{RPMs, " 510 rpms", " 510 rpms"}, FigureRow{SawVelocity, " 8000 fpm", " 2438 mpm"},
        FigureRow{MaxDepth, " 10.000 in", " 25.400 cm"}, FigureRow{FeedRate, " 100 fpm", " 30 mpm"},
        FigureRow{SpecificEnergy, "Oak (White)", "Oak (White)"}, FigureRow{Bite, " 0.025 in", " 0.635 mm"},
        FigureRow{HPGulletArea, " 1.000 in²", " 6.452 cm²"},
        FigureRow{AreaBelowTip, " 0.700 in²", " 4.516 cm²"}, FigureRow{Capacity, " 0.250 in²", " 1.613 cm²"},
        FigureRow{HorsePower, " 1.250.000", " 1.250.000"},  // thousands by a point: meant
        FigureRow{MaxFeedRate, " 280 fpm", " 85 mpm"}));

TEST(PowerFigureText, ShowsZeroWithItsUnit) {
  EXPECT_EQ(PowerFigureText(PowerBox::ToothPitch, {}, 0.7, {}), " 0.000 in");
  EXPECT_EQ(PowerFigureText(PowerBox::SpecificEnergy, {}, 0.7, {}), "");
}

}  // namespace
}  // namespace tarnwick
