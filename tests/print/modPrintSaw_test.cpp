#include "print/modPrintSaw.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

using test::PiecesOf;

const PrintPage Upright = PageFor({});
const PrintPage Turned = PageFor({.Turned = PaperOrientation::Landscape});

BandSaw Band() {
  BandSaw saw;
  saw.Width = 5;
  saw.GulletInfo.Depth = 0.75;
  return saw;
}

/// What of one piece comes to an upright sheet, behind the clip and the pen.
template <class Piece>
PrintSheet Drawn(const Piece& piece, int lineThick = 4) {
  EntityList list;
  list.Entities.push_back(piece);
  PrintSheet sheet;
  AppendDrawing(sheet, list, MappingOnPage(Band(), Upright, 5), DrawingBox(Upright), lineThick);
  EXPECT_GE(sheet.size(), 2U);
  EXPECT_EQ(std::get<SheetClip>(sheet[0]).Box, DrawingBox(Upright));
  EXPECT_EQ(std::get<SheetPen>(sheet[1]).Pen, (PrintPen{lineThick, false}));
  return {sheet.begin() + 2, sheet.end()};
}

// ---- where the band lies

TEST(MappingOnPage, HasTheMiddleOfTheTeethInTheMiddleOfTheFrame) {
  for (const PrintPage& page : {Upright, Turned}) {
    const PaperMapping mapping = MappingOnPage(Band(), page, 5);
    const double middle = (page.Frame.Top + page.Frame.Bottom) / 2;
    EXPECT_NEAR(mapping.ToPaper(0, 5 - 0.375).Y, middle, 1e-6);
  }
}

TEST(MappingOnPage, BeginsAQuarterInchInsideTheFrame) {
  EXPECT_NEAR(MappingOnPage(Band(), Upright, 5).ToPaper(-0.25, 0).X, 720, 1e-6);
  EXPECT_NEAR(MappingOnPage(Band(), Upright, 5).ToPaper(0, 0).X, 1080, 1e-6);
}

TEST(MappingOnPage, IsInTrueSizeWithYUp) {
  const PaperMapping mapping = MappingOnPage(Band(), Turned, 4);
  const PaperSpot from = mapping.ToPaper(1, 1), to = mapping.ToPaper(3, 2);
  EXPECT_NEAR(to.X - from.X, 2 * 1440, 1e-6);
  EXPECT_NEAR(from.Y - to.Y, 1440, 1e-6);
}

TEST(DrawingBox, EndsWithThePaper) {
  EXPECT_EQ(DrawingBox(Upright), (PaperBox{720, 2600, 10800, 15480}));
  EXPECT_EQ(DrawingBox(Turned), (PaperBox{720, 2900, 15120, 11880}));
}

// ---- kinds of pieces

TEST(Drawing, DrawsALineInPageUnits) {
  const PrintSheet sheet = Drawn(LineEntity{1, 4.625, 2, 3.625});
  ASSERT_EQ(sheet.size(), 1U);
  const auto& line = std::get<SheetLine>(sheet[0]);
  EXPECT_NEAR(line.From.X, 2520, 1e-6);
  EXPECT_NEAR(line.From.Y, 10160, 1e-6);
  EXPECT_NEAR(line.To.X, 3960, 1e-6);
  EXPECT_NEAR(line.To.Y, 11600, 1e-6);
}

TEST(Drawing, DrawsAnArcWithItsAngles) {
  const PrintSheet sheet = Drawn(ArcEntity{1, 4.625, 0.5, 200, 20});
  ASSERT_EQ(sheet.size(), 1U);
  const auto& arc = std::get<SheetArc>(sheet[0]);
  EXPECT_NEAR(arc.Center.X, 2520, 1e-6);
  EXPECT_NEAR(arc.Center.Y, 10160, 1e-6);
  EXPECT_NEAR(arc.Radius, 720, 1e-6);
  EXPECT_EQ(arc.Start, 200);
  EXPECT_EQ(arc.End, 20);
}

TEST(Drawing, DrawsACircle) {
  const PrintSheet sheet = Drawn(CircleEntity{1, 4.625, 0.5});
  ASSERT_EQ(sheet.size(), 1U);
  EXPECT_NEAR(std::get<SheetCircle>(sheet[0]).Radius, 720, 1e-6);
}

TEST(Drawing, WritesATextAboveItsAnchor) {
  TextEntity text{1, 4.625, 0.25, 0, {}};
  text.Text.Assign("tip");
  const PrintSheet sheet = Drawn(text);
  ASSERT_EQ(sheet.size(), 1U);
  const auto& written = std::get<SheetText>(sheet[0]);
  EXPECT_EQ(written.Text, "tip");
  EXPECT_NEAR(written.TopLeft.X, 2520, 1e-6);
  EXPECT_NEAR(written.TopLeft.Y, 10160 - 360, 1e-6);
  EXPECT_NEAR(written.Font.Points, 18, 1e-9) << "a quarter inch high";
}

TEST(Drawing, FillsASolidInTheOrderOfItsCorners) {
  const PrintSheet sheet = Drawn(SolidEntity{1, 4.625, 2, 4.625, 2, 3.625, 1, 3.625});
  ASSERT_EQ(sheet.size(), 1U);
  const auto& corners = std::get<SheetSolid>(sheet[0]).Corners;
  EXPECT_NEAR(corners[0].X, 2520, 1e-6);
  EXPECT_NEAR(corners[1].X, 3960, 1e-6);
  EXPECT_NEAR(corners[2].Y, 11600, 1e-6);
  EXPECT_NEAR(corners[3].X, 2520, 1e-6);
}

TEST(Drawing, LeavesOutTheBandsOutline) {
  EXPECT_TRUE(Drawn(LineEntity{0, 0, 5, 0, true}).empty());
  EXPECT_TRUE(Drawn(LineEntity{1, 5, 1, 0, true, true}).empty()) << "dotted lines of an overlap too";
}

TEST(Drawing, DotsADottedLineAndGoesBackToSolidOnes) {
  const PrintSheet sheet = Drawn(LineEntity{1, 4, 2, 4, false, true}, 7);
  ASSERT_EQ(sheet.size(), 3U);
  EXPECT_EQ(std::get<SheetPen>(sheet[0]).Pen, (PrintPen{7, true}));
  EXPECT_TRUE(std::holds_alternative<SheetLine>(sheet[1]));
  EXPECT_EQ(std::get<SheetPen>(sheet[2]).Pen, (PrintPen{7, false}));
}

TEST(Drawing, TakesTheThicknessOfTheSettings) { Drawn(CircleEntity{1, 4, 1}, 20); }

// ---- what lies on the sheet

struct SeenRow {
  const char* Name;
  LineEntity Line;
  bool Seen;
  friend void PrintTo(const SeenRow& row, std::ostream* out) { *out << row.Name; }
};
class OnTheSheet : public testing::TestWithParam<SeenRow> {};

TEST_P(OnTheSheet, AreThePiecesThatMeetTheFrame) {
  EXPECT_EQ(Drawn(GetParam().Line).size(), GetParam().Seen ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Lines, OnTheSheet,
                         testing::Values(SeenRow{"Inside", {1, 4, 2, 4}, true},
                                         SeenRow{"AcrossTheRightBorder", {6, 4, 8, 4}, true},
                                         SeenRow{"AcrossAllOfIt", {-5, 4, 50, 4}, true},
                                         SeenRow{"BeyondTheRight", {6.76, 4, 8, 4}, false},
                                         SeenRow{"BeyondTheLeft", {-3, 4, -0.26, 4}, false},
                                         SeenRow{"Above", {1, 9.9, 2, 10}, false},
                                         SeenRow{"Below", {1, -1, 2, -1}, false}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(Drawing, MeasuresAnArcByWhatItReallyTakesUp) {
  // A big circle around the frame, of which the arc lies outside of it.
  EXPECT_TRUE(Drawn(ArcEntity{3, 4.6, 20, 80, 100}).empty());
  EXPECT_EQ(Drawn(ArcEntity{3, -15.4, 20, 80, 100}).size(), 1U);
}

TEST(Drawing, DrawsNothingBeyondAllNumbers) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(Drawn(LineEntity{1, 4, infinite, 4}).empty());
  EXPECT_TRUE(Drawn(ArcEntity{none, 4, 1, 0, 90}).empty());
  EXPECT_TRUE(Drawn(CircleEntity{1, 4, infinite}).empty());
  EXPECT_TRUE(Drawn(SolidEntity{1, 4, 2, 4, 2, none, 1, 3}).empty());
  EXPECT_TRUE(Drawn(TextEntity{none, 4, 1, 0, {}}).empty());
}

}  // namespace
}  // namespace tarnwick
