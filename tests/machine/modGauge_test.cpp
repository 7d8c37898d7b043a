#include "machine/modGauge.h"

#include <gtest/gtest.h>

#include "machine/modGaugeDraw.h"
#include "support/RecordingCanvas.h"

namespace tarnwick {
namespace {

using test::RecordingCanvas;
using Kind = RecordingCanvas::Kind;

TEST(GaugeTable, ListsThirteenGaugesUnderTheirHeadings) {
  const GaugeRow want[] = {
      {"GA", "Inches", "Millimeters"},     {"20 ga", " 0.035 in", " 0.889 mm"},
      {"19 ga", " 0.042 in", " 1.067 mm"}, {"18 ga", " 0.049 in", " 1.245 mm"},
      {"17 ga", " 0.058 in", " 1.473 mm"}, {"16 ga", " 0.065 in", " 1.651 mm"},
      {"15 ga", " 0.072 in", " 1.829 mm"}, {"14 ga", " 0.083 in", " 2.108 mm"},
      {"13 ga", " 0.095 in", " 2.413 mm"}, {"12 ga", " 0.109 in", " 2.769 mm"},
      {"11 ga", " 0.120 in", " 3.048 mm"}, {"10 ga", " 0.134 in", " 3.404 mm"},
      {" 9 ga", " 0.148 in", " 3.759 mm"}, {" 8 ga", " 0.165 in", " 4.191 mm"},
  };
  const auto table = GaugeTable({});
  ASSERT_EQ(table.size(), std::size(want));
  for (std::size_t i = 0; i < table.size(); ++i) EXPECT_EQ(table[i], want[i]);
}

TEST(GaugeTable, ConvertsNothingInMetricUnits) {
  EXPECT_EQ(GaugeTable({.ImpMetric = Metric}), GaugeTable({.ImpMetric = Imperial}));
}

TEST(GaugeTable, HasTheDecimalsThatAreShown) {
  const auto two = GaugeTable({.DisplayPlaces = 2});
  EXPECT_EQ(two[1], (GaugeRow{"20 ga", " 0.04 in", " 0.89 mm"}));
  const auto five = GaugeTable({.DisplayPlaces = 5});
  EXPECT_EQ(five[13], (GaugeRow{" 8 ga", " 0.16500 in", " 4.19100 mm"}));
}

PixelSize Small(std::string_view text) { return {static_cast<double>(text.size()) * 6, 14}; }

TEST(GaugeUnit, IsAFifteenthOfAPixel) { EXPECT_EQ(GaugeUnit({}, Small), 1.0 / 15); }

TEST(GaugeUnit, GrowsWithAFontThatWouldNotFit) {
  const auto large = [](std::string_view text) {
    return PixelSize{static_cast<double>(text.size()) * 20, 40};
  };
  const double unit = GaugeUnit({}, large);
  EXPECT_GT(unit, 2.0 / 15);
  EXPECT_GE(GaugeRowHeight * unit, 40);
  for (const GaugeRow& row : GaugeTable({}))
    for (std::size_t i = 0; i < GaugeColumns; ++i)
      EXPECT_LE(large(row[i]).Width, (GaugeLines[i + 1] - GaugeLines[i]) * unit);
}

class GaugeDrawing : public testing::Test {
 protected:
  GaugeDrawing() { DrawGauges(canvas_, 1.0 / 15, colours_, {}); }

  const GaugeColours colours_{Rgb(1, 1, 1), Rgb(2, 2, 2), Rgb(3, 3, 3), Rgb(4, 4, 4)};
  RecordingCanvas canvas_{GaugeSize(1.0 / 15)};
};

TEST_F(GaugeDrawing, RulesFourColumnsAndFourteenRows) {
  std::vector<double> upright, level;
  for (const auto& call : canvas_.Calls) {
    if (call.What != Kind::Line) continue;
    EXPECT_EQ(call.Ink, colours_.Lines);
    if (call.Spots[0].X == call.Spots[1].X) {
      upright.push_back(call.Spots[0].X * 15);
    } else {
      level.push_back(call.Spots[0].Y * 15);
    }
  }
  ASSERT_EQ(upright.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(upright[i], GaugeLines[i], 1e-9);
  ASSERT_EQ(level.size(), 15U);
  for (std::size_t i = 1; i < 15; ++i) EXPECT_NEAR(level[i] - level[i - 1], 350, 1e-9);
}

TEST_F(GaugeDrawing, WritesEveryTextIntoItsField) {
  const auto table = GaugeTable({});
  std::size_t i = 0;
  for (const auto& call : canvas_.Calls) {
    if (call.What != Kind::Text) continue;
    const std::size_t row = i / GaugeColumns, column = i % GaugeColumns;
    ASSERT_LT(row, table.size());
    EXPECT_EQ(call.Words, table[row][column]);
    EXPECT_EQ(call.Ink, colours_.Texts);
    const double top = (GaugeTop + static_cast<double>(row) * GaugeRowHeight) / 15;
    EXPECT_GT(call.Spots[0].X, GaugeLines[column] / 15);
    EXPECT_LT(call.Spots[0].X + canvas_.TextSize(call.Words).Width, GaugeLines[column + 1] / 15);
    EXPECT_GT(call.Spots[0].Y, top);
    EXPECT_LT(call.Spots[0].Y + RecordingCanvas::TextHeight, top + GaugeRowHeight / 15);
    ++i;
  }
  EXPECT_EQ(i, 14 * GaugeColumns);
}

TEST_F(GaugeDrawing, FitsItsSurface) {
  const PixelSize size = canvas_.Size();
  for (const auto& call : canvas_.Calls)
    for (const Spot& spot : call.Spots)
      EXPECT_TRUE(spot.X > 0 && spot.X < size.Width && spot.Y > 0 && spot.Y < size.Height);
  EXPECT_EQ(canvas_.Calls[0].What, Kind::Clear);
  EXPECT_EQ(canvas_.Calls[0].Ink, colours_.Ground);
}

}  // namespace
}  // namespace tarnwick
