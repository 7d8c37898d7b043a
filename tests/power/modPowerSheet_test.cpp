#include "power/modPowerSheet.h"

#include <gtest/gtest.h>

#include "power/PowerEstimateList.h"
#include "power/modPowerChain.h"
#include "support/PowerDesign.h"

namespace tarnwick {
namespace {

using Role = PowerLine::Role;
using Texts = std::vector<std::string>;

PowerEstimates TenPercent() {
  BandSaw saw = test::PowerDesign();
  UpdatePower(saw, {});
  return *BuildPowerEstimates(saw, 10, {});
}

PowerLines Lines(LinesFor place) { return EstimateLines(TenPercent(), 0.7, {}, place); }

constexpr std::size_t LinesOfARow = 17, RowAndBlank = LinesOfARow + 1;

PowerLines RowOf(const PowerLines& lines, std::size_t row) {
  const auto first = lines.begin() + static_cast<std::ptrdiff_t>(row * RowAndBlank);
  return {first, first + LinesOfARow};
}

TEST(EstimateLines, ShowTheCurrentFiguresFirst) {
  const PowerLines lines = RowOf(Lines(LinesFor::Window), 0);
  const PowerLines want{{Role::Heading, "Current Power Requirements"},
                        {Role::Figure, "Wheel Diameter:", " 5.000 ft"},
                        {Role::Figure, "Wheel RPM's:", " 510 rpms"},
                        {Role::Figure, "Saw Velocity:", " 8011 fpm"},
                        {Role::Figure, "Tooth Pitch:", " 2.000 in"},
                        {Role::Figure, "Plate Thickness:", " 0.065 in"},
                        {Role::Figure, "Tip Kerf:", " 0.150 in"},
                        {Role::Figure, "Side Clearance:", " 0.043 in"},
                        {Role::Figure, "Depth of Cut:", " 10.000 in"},
                        {Role::Figure, "Feed Rate:", " 100 fpm"},
                        {Role::Blank, " "},
                        {Role::Figure, "Type of Wood:", "Oak (White)"},
                        {Role::Figure, "Bite:", " 0.025 in"},
                        {Role::Figure, "Gullet Capacity (Required):", " 0.250 in²"},
                        {Role::Figure, "Gullet Capacity (Actual):", " 0.700 in²"},
                        {Role::Figure, "Gullet Feed Index:", " 70 Percent"},
                        {Role::Figure, "Horsepower:", " 62.500"}};
  EXPECT_EQ(lines, want);
}

Texts MarkedOf(const PowerLines& lines) {
  Texts marked;
  for (const PowerLine& line : lines) {
    if (line.Changed) marked.push_back(line.Label);
  }
  return marked;
}

TEST(EstimateLines, MarkExactlyWhatEachEstimateChanges) {
  for (const LinesFor place : {LinesFor::Window, LinesFor::Paper}) {
    const std::string speed = place == LinesFor::Window ? "Saw Velocity:" : "Tooth Speed:";
    const PowerLines lines = Lines(place);
    EXPECT_EQ(MarkedOf(RowOf(lines, 0)), Texts());
    EXPECT_EQ(MarkedOf(RowOf(lines, 1)), (Texts{"Tooth Pitch:", "Feed Rate:", "Horsepower:"}));
    EXPECT_EQ(MarkedOf(RowOf(lines, 2)), (Texts{"Wheel RPM's:", speed, "Feed Rate:", "Horsepower:"}));
    EXPECT_EQ(MarkedOf(RowOf(lines, 3)), (Texts{"Feed Rate:", "Bite:", "Gullet Capacity (Required):",
                                                "Gullet Capacity (Actual):", "Horsepower:"}));
  }
}

TEST(EstimateLines, ShowTheEstimates) {
  const PowerLines lines = Lines(LinesFor::Window);
  EXPECT_EQ(RowOf(lines, 1)[4], (PowerLine{Role::Figure, "Tooth Pitch:", " 1.818 in", true}));
  EXPECT_EQ(RowOf(lines, 1)[9].MarkedText(), " 110 fpm*");
  EXPECT_EQ(RowOf(lines, 1)[8].MarkedText(), " 10.000 in");
  EXPECT_EQ(RowOf(lines, 2)[9].Text, " 121 fpm");
  EXPECT_EQ(RowOf(lines, 3)[9].Text, " 133 fpm");
}

TEST(EstimateLines, HaveABlankLineBetweenTheRows) {
  const PowerLines lines = Lines(LinesFor::Window);
  ASSERT_EQ(lines.size(), 4 * LinesOfARow + 3);
  for (const std::size_t row : {0U, 1U, 2U}) {
    EXPECT_EQ(lines[row * RowAndBlank + LinesOfARow], (PowerLine{Role::Blank, ""}));
  }
}

TEST(EstimateLines, DifferOnPaperInTheirHeadingsAndTheSpeed) {
  const PowerLines window = Lines(LinesFor::Window), paper = Lines(LinesFor::Paper);
  ASSERT_EQ(window.size(), paper.size());
  Texts differing;
  for (std::size_t i = 0; i < paper.size(); ++i) {
    if (window[i] == paper[i]) continue;
    differing.push_back(window[i].Label + " | " + paper[i].Label);
    EXPECT_EQ(window[i].Text, paper[i].Text);
  }
  const std::string speed = "Saw Velocity: | Tooth Speed:";
  EXPECT_EQ(differing, (Texts{"Current Power Requirements | Current Estimate", speed,
                              "Power Estimate # 1 | Estimate # 1", speed, "Power Estimate # 2 | Estimate # 2",
                              speed, "Power Estimate # 3 | Estimate # 3", speed}));
}

TEST(EstimateLines, ShowZeroWhereAFigureCannotBeWorkedOut) {
  const auto rows = BuildPowerEstimates({}, 5, {});
  ASSERT_TRUE(rows);
  const PowerLines lines = EstimateLines(*rows, 0.725, {}, LinesFor::Window);
  EXPECT_EQ(lines[4].Text, " 0.000 in");
  EXPECT_EQ(lines[11].Text, "");
  EXPECT_EQ(lines[15].Text, " 72.5 Percent");
}

TEST(EstimateHeading, NamesTheWholePercent) {
  EXPECT_EQ(EstimateHeading(10, LinesFor::Window),
            "Power estimates based on increasing feedrate by 10 percent.");
  EXPECT_EQ(EstimateHeading(12.9, LinesFor::Paper),
            "Estimates for bandsaw based on increasing feedrate by 12 percent");
}

TEST(EstimateNote, ExplainsTheMark) {
  EXPECT_EQ(PowerEstimateList::Note(), "Note: Changes have an asterisk * displayed beside the value.");
}

TEST(PowerEstimateList, ShowsWhatItIsGiven) {
  PowerEstimateList list(0.7, {});
  list.GetPowerReq(TenPercent(), 10.9);
  EXPECT_EQ(list.Heading(), "Power estimates based on increasing feedrate by 10 percent.");
  EXPECT_EQ(list.PaperHeading(), "Estimates for bandsaw based on increasing feedrate by 10 percent");
  EXPECT_EQ(list.Lines(), Lines(LinesFor::Window));
  EXPECT_EQ(list.PaperLines(), Lines(LinesFor::Paper));
}

TEST(CalculationLines, ShowACalculationOfTheCalculator) {
  BandSaw saw = test::PowerDesign();
  saw.MachineInfo.CenterToCenter = 12;
  UpdatePower(saw, {});
  const PowerEstimate row = CalculationRow(saw, 0.55);
  EXPECT_EQ(row.Marker, 0);
  EXPECT_EQ(row.AreaBelowTip, 0);
  EXPECT_EQ(row.Width, 10);
  const PowerLines want{{Role::Heading, "Power Calculation # 2"},
                        {Role::Figure, "Wheel Diameter:", " 5.000 ft"},
                        {Role::Figure, "Center to Center:", " 12.000 ft"},
                        {Role::Figure, "Bandsaw Length:", " 40.000 ft"},
                        {Role::Figure, "Tooth Pitch:", " 2.000 in"},
                        {Role::Figure, "Number of Teeth:", " 240"},
                        {Role::Figure, "Plate Thickness:", " 0.065 in"},
                        {Role::Figure, "Tip Kerf:", " 0.150 in"},
                        {Role::Figure, "Side Clearance:", " 0.043 in"},
                        {Role::Figure, "Wheel RPM's:", " 510 rpms"},
                        {Role::Figure, "Tooth Speed:", " 8011 fpm"},
                        {Role::Figure, "Depth of Cut:", " 10.000 in"},
                        {Role::Figure, "Feed Rate:", " 100 fpm"},
                        {Role::Blank, " "},
                        {Role::Figure, "Type of Wood:", "Oak (White)"},
                        {Role::Figure, "Bite:", " 0.025 in"},
                        {Role::Figure, "Total Gullet Area:", " 1.000 in²"},
                        {Role::Figure, "Gullet Capacity:", " 0.250 in²"},
                        {Role::Figure, "Gullet Feed Index:", " 55 Percent"},
                        {Role::Figure, "Horsepower:", " 62.500"}};
  EXPECT_EQ(CalculationLines(row, 2, {}), want);
}

TEST(PlaceOfPowerRow, FillsTheLeftBlockThenTheRightOne) {
  const auto at = [](int row) {
    const PowerLinePlace place = PlaceOfPowerRow(row);
    return std::vector<int>{place.LabelX, place.TextX, place.Y};
  };
  EXPECT_EQ(at(1), (std::vector<int>{1200, 3950, 265}));
  EXPECT_EQ(at(49), (std::vector<int>{1200, 3950, 12985}));
  EXPECT_EQ(at(50), (std::vector<int>{6250, 9000, 0}));
  EXPECT_EQ(at(52), (std::vector<int>{6250, 9000, 530}));
}

}  // namespace
}  // namespace tarnwick
