#include "window/modDraw.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <set>
#include <utility>

#include "geometry/modTooth.h"
#include "model/modDecim.h"
#include "model/modZoom.h"
#include "support/CollectedMessages.h"
#include "support/RecordingCanvas.h"

namespace tarnwick {
namespace {

using test::RecordingCanvas;
using Kind = RecordingCanvas::Kind;

// Ten inches by eight, the origin in its middle; so the window reaches six inches and five from there.
constexpr PixelSize Surface{.Width = 960, .Height = 768};
constexpr Mapping TrueSize{.PixelsPerUnit = 96, .OriginX = 480, .OriginY = 384};

constexpr Colour Cyan = Rgb(0, 255, 255);
constexpr Inks SawInks{.Lines = Cyan, .Texts = White};

LineEntity Line(double x1, double y1, double x2, double y2) { return {x1, y1, x2, y2, false, false}; }
LineEntity Outline(double x1, double y1, double x2, double y2) { return {x1, y1, x2, y2, true, false}; }

std::vector<RecordingCanvas::Call> Drawn(std::vector<Entity> entities, Detail detail = Detail::Screen) {
  RecordingCanvas canvas(Surface);
  EntityList list;
  list.Entities = std::move(entities);
  DrawEntities(list, TrueSize, canvas, SawInks, detail);
  return canvas.Calls;
}

void ExpectSpots(const RecordingCanvas::Call& call, const std::vector<Spot>& spots) {
  ASSERT_EQ(call.Spots.size(), spots.size());
  for (std::size_t i = 0; i < spots.size(); ++i) {
    EXPECT_NEAR(call.Spots[i].X, spots[i].X, 1e-9) << "spot " << i;
    EXPECT_NEAR(call.Spots[i].Y, spots[i].Y, 1e-9) << "spot " << i;
  }
}

// ---- lines

TEST(DrawLine, MapsBothEnds) {
  const auto calls = Drawn({Line(1, 1, 2, -3)});
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].What, Kind::Line);
  EXPECT_EQ(calls[0].Ink, Cyan);
  EXPECT_EQ(calls[0].Style, PenStyle::Solid);
  ExpectSpots(calls[0], {{576, 288}, {672, 672}});
}

TEST(DrawLine, DrawsEveryOneFromTheFirst) {
  EXPECT_EQ(Drawn({Line(0, 0, 1, 0), Line(1, 0, 2, 0), Line(2, 0, 3, 0)}).size(), 3U);
}

TEST(DrawLine, NeedsOneEndWithinAnInchOfTheSurface) {
  EXPECT_EQ(Drawn({Line(-6, 5, -20, 30)}).size(), 1U);
  EXPECT_EQ(Drawn({Line(20, -30, 6, -5)}).size(), 1U);
  EXPECT_EQ(Drawn({Line(-6.01, 0, -20, 0)}).size(), 0U);
  EXPECT_EQ(Drawn({Line(0, 5.01, 0, 20)}).size(), 0U);
  EXPECT_EQ(Drawn({Line(0, -5.01, 0, -20)}).size(), 0U);
}

TEST(DrawLine, LeavesOutOneThatCrossesTheSurface) {
  EXPECT_EQ(Drawn({Line(-6.01, 0, 6.01, 0)}).size(), 0U);
  EXPECT_EQ(Drawn({Line(0, -5.01, 0, 5.01)}).size(), 0U);
}

TEST(DrawLine, IsDottedInTheOutlineOnly) {
  LineEntity dotted = Line(0, 0, 1, 0);
  dotted.IsDotted = true;
  EXPECT_EQ(Drawn({dotted})[0].Style, PenStyle::Solid);
}

// ---- the outline

TEST(DrawOutline, KeepsAcrossToTheWindowAndNotDown) {
  const auto calls = Drawn({Outline(-100, 100, 200, -100)});
  ASSERT_EQ(calls.size(), 1U);
  ExpectSpots(calls[0], {{-96, 384 - 9600}, {1056, 384 + 9600}});
}

TEST(DrawOutline, IsDrawnEvenOffTheSurface) {
  const auto calls = Drawn({Outline(50, 0, 50, 2)});
  ASSERT_EQ(calls.size(), 1U);
  ExpectSpots(calls[0], {{1056, 384}, {1056, 192}});
}

TEST(DrawOutline, DotsTheLinesOfAnOverlapAndNoOthers) {
  LineEntity dotted = Outline(1, 0, 1, 2);
  dotted.IsDotted = true;
  const auto calls = Drawn({Outline(0, 0, 0, 2), dotted, Line(0, 0, 1, 0)});
  ASSERT_EQ(calls.size(), 3U);
  EXPECT_EQ(calls[0].Style, PenStyle::Solid);
  EXPECT_EQ(calls[1].Style, PenStyle::Dots);
  EXPECT_EQ(calls[1].Ink, Cyan);
  EXPECT_EQ(calls[2].Style, PenStyle::Solid);
}

// ---- arcs and circles

TEST(DrawArc, GivesBoxAndBothEnds) {
  const auto calls = Drawn({ArcEntity{1, 1, 0.5, 0, 90}});
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].What, Kind::Arc);
  ExpectSpots(calls[0], {{528, 240}, {624, 336}, {624, 288}, {576, 240}});
}

TEST(DrawArc, NeedsOneEndWithinAnInchOfTheSurface) {
  EXPECT_EQ(Drawn({ArcEntity{-7, 0, 1, 0, 90}}).size(), 1U);    // starts at (-6, 0)
  EXPECT_EQ(Drawn({ArcEntity{-7, 0, 1, 90, 0}}).size(), 1U);    // ends there
  EXPECT_EQ(Drawn({ArcEntity{-7, 0, 1, 90, 270}}).size(), 0U);  // in reach of its circle only
  EXPECT_EQ(Drawn({ArcEntity{-8, 0, 8, 280, 80}}).size(), 0U);  // crosses the surface
  EXPECT_EQ(Drawn({ArcEntity{-100, 0, 1, 0, 90}}).size(), 0U);
}

TEST(DrawCircle, StartsAndEndsAtItsRight) {
  const auto calls = Drawn({CircleEntity{1, 1, 0.5}});
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].What, Kind::Arc);
  ExpectSpots(calls[0], {{528, 240}, {624, 336}, {624, 288}, {624, 288}});
}

TEST(DrawCircle, IsNotTestedAgainstTheWindow) {
  EXPECT_EQ(Drawn({CircleEntity{100, 100, 1}, CircleEntity{0, 0, 100}}).size(), 2U);
}

// ---- figures and texts

TEST(DrawSolid, ClosesTheFigure) {
  const auto calls = Drawn({SolidEntity{0, 0, 1, 0.25, 1, -0.25, 0, 0}});
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].What, Kind::Polygon);
  EXPECT_EQ(calls[0].Ink, Cyan);
  ExpectSpots(calls[0], {{480, 384}, {576, 360}, {576, 408}, {480, 384}, {480, 384}});
}

TEST(DrawText, StandsAboutItsAnchorInItsOwnColour) {
  TextEntity text;
  text.Corner1X = 1;
  text.Corner1Y = 2;
  text.TextHeight = 0.5;
  text.Text.Assign("  72 in");
  const auto calls = Drawn({text, Line(0, 0, 1, 0)});
  ASSERT_EQ(calls.size(), 2U);
  EXPECT_EQ(calls[0].What, Kind::Text);
  EXPECT_EQ(calls[0].Words, "72 in");
  EXPECT_EQ(calls[0].Ink, White);
  // (0.5 / 1.5 + 1) x 96 + 480 - 30 / 2 and 384 - 2.5 x 96 - 10 / 2
  ExpectSpots(calls[0], {{593, 139}});
  EXPECT_EQ(calls[1].Ink, Cyan);
}

TEST(DrawText, IsNotTestedAgainstTheWindow) {
  TextEntity text;
  text.Corner1X = 100;
  text.Text.Assign("far");
  EXPECT_EQ(Drawn({text}).size(), 1U);
}

// ---- the whole picture

DisplaySettings Colours() {
  DisplaySettings colours;
  colours.SawLineColor = Rgb(1, 0, 0);
  colours.CenterLineColor = Rgb(2, 0, 0);
  colours.TextColor = Rgb(3, 0, 0);
  colours.BackGroundColor = Rgb(4, 0, 0);
  return colours;
}

TEST(DrawSaw, OfNothingShowsTheCentreLines) {
  RecordingCanvas canvas(Surface);
  EXPECT_TRUE(DrawSaw({}, {.PixelsPerUnit = 96, .OriginX = 100, .OriginY = 200}, canvas, Colours()));
  ASSERT_EQ(canvas.Calls.size(), 3U);
  EXPECT_EQ(canvas.Calls[0].What, Kind::Clear);
  EXPECT_EQ(canvas.Calls[0].Ink, Rgb(4, 0, 0));
  ExpectSpots(canvas.Calls[1], {{100, 0}, {100, 768}});
  ExpectSpots(canvas.Calls[2], {{0, 200}, {960, 200}});
  for (const std::size_t line : {1U, 2U}) {
    EXPECT_EQ(canvas.Calls[line].Style, PenStyle::DashDot);
    EXPECT_EQ(canvas.Calls[line].Ink, Rgb(2, 0, 0));
  }
}

TEST(DrawSaw, DrawsTheListOverTheCentreLines) {
  RecordingCanvas canvas(Surface);
  EntityList list;
  list.Entities = {Line(0, 0, 1, 0)};
  EXPECT_TRUE(DrawSaw(list, TrueSize, canvas, Colours()));
  ASSERT_EQ(canvas.Calls.size(), 4U);
  EXPECT_EQ(canvas.Calls[3].Ink, Rgb(1, 0, 0));
  EXPECT_EQ(canvas.Calls[3].Style, PenStyle::Solid);
}

TEST(DrawSaw, LeavesOutACentreLineThatIsFarOff) {
  RecordingCanvas canvas(Surface);
  EXPECT_TRUE(DrawSaw({}, {.PixelsPerUnit = 96, .OriginX = -97, .OriginY = 864}, canvas, Colours()));
  ASSERT_EQ(canvas.Calls.size(), 2U);
  ExpectSpots(canvas.Calls[1], {{0, 864}, {960, 864}});
}

TEST(DrawSaw, NeedsASurface) {
  for (const PixelSize size : {PixelSize{0, 768}, PixelSize{960, 0}}) {
    RecordingCanvas canvas(size);
    EXPECT_FALSE(DrawSaw({}, TrueSize, canvas, Colours()));
    EXPECT_TRUE(canvas.Calls.empty());
  }
}

// ---- pieces smaller than a column of pixels

/// A line in pixels of the surface.
LineEntity InPixels(double x1, double y1, double x2, double y2) {
  return Line((x1 - 480) / 96, (384 - y1) / 96, (x2 - 480) / 96, (384 - y2) / 96);
}

TEST(Bundle, IsOneStrokeFromTheHighestToTheLowest) {
  const auto calls =
      Drawn({InPixels(10.25, 20, 10.5, 25), InPixels(10.5, 25, 10.75, 22), InPixels(10.75, 22, 10.25, 30)});
  ASSERT_EQ(calls.size(), 1U);
  ExpectSpots(calls[0], {{10.5, 20}, {10.5, 30}});
}

TEST(Bundle, LowerThanWideIsDrawnAcross) {
  const auto calls = Drawn({InPixels(10.25, 20, 10.5, 20.25), InPixels(10.5, 20.25, 10.75, 20.125)});
  ASSERT_EQ(calls.size(), 1U);
  ExpectSpots(calls[0], {{10.25, 20.125}, {10.75, 20.125}});
}

TEST(Bundle, OfOnePieceIsThePieceItself) {
  const auto calls = Drawn({InPixels(10.25, 20, 10.5, 25), ArcEntity{4.5 / 96, 0.05, 0.004, 0, 180}});
  ASSERT_EQ(calls.size(), 2U);
  ExpectSpots(calls[0], {{10.25, 20}, {10.5, 25}});
  EXPECT_EQ(calls[1].What, Kind::Arc);
}

TEST(Bundle, TakesPiecesOfOneColumnOnly) {
  EXPECT_EQ(Drawn({InPixels(10.25, 20, 10.5, 25), InPixels(11.25, 20, 11.5, 25)}).size(), 2U);
  EXPECT_EQ(Drawn({InPixels(10.75, 20, 11.25, 25), InPixels(10.75, 20, 11.25, 25)}).size(), 2U);
}

TEST(Bundle, TakesADotIntoTheColumnOfItsMiddle) {
  const LineEntity inTen = InPixels(10.25, 20, 10.5, 25);
  EXPECT_EQ(Drawn({inTen, InPixels(10.75, 20, 11.125, 20.5)}).size(), 1U);
  EXPECT_EQ(Drawn({inTen, InPixels(10.75, 20, 11.375, 20.5)}).size(), 2U);
  EXPECT_EQ(Drawn({inTen, InPixels(9.75, 20, 10.375, 20.5)}).size(), 1U);
  const auto calls = Drawn({InPixels(10.75, 20, 11.125, 20.5), inTen});
  ASSERT_EQ(calls.size(), 1U);
  ExpectSpots(calls[0], {{10.6875, 20}, {10.6875, 25}});
}

TEST(Bundle, LeavesGapsOpen) {
  EXPECT_EQ(Drawn({InPixels(10.25, 20, 10.5, 25), InPixels(10.25, 25.75, 10.5, 30)}).size(), 1U);
  EXPECT_EQ(Drawn({InPixels(10.25, 20, 10.5, 25), InPixels(10.25, 26.25, 10.5, 30)}).size(), 2U);
  EXPECT_EQ(Drawn({InPixels(10.25, 26.25, 10.5, 30), InPixels(10.25, 20, 10.5, 25)}).size(), 2U);
}

TEST(Bundle, TakesNoLineOfTheOutline) {
  LineEntity outline = InPixels(10.25, 20, 10.5, 25);
  outline.IsOutline = true;
  EXPECT_EQ(Drawn({outline, outline, outline}).size(), 3U);
}

TEST(Bundle, TakesAnArcThatStaysInTheColumn) {
  const ArcEntity flat{10, 0, 10, 179, 181};  // rises 16.75 pixels on either side and bulges 0.15
  const double rise = 960 * std::sin(std::numbers::pi / 180);
  const auto calls = Drawn({flat, flat});
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].What, Kind::Line);
  EXPECT_NEAR(calls[0].Spots[0].Y, 384 - rise, 1e-9);
  EXPECT_NEAR(calls[0].Spots[1].Y, 384 + rise, 1e-9);
}

TEST(Bundle, TakesNoArcThatBulgesOutOfTheColumn) {
  const ArcEntity round{0, 0, 0.1, 90, 270};  // both ends in column 480, its side in column 470
  EXPECT_EQ(Drawn({round, round}).size(), 2U);
}

TEST(Bundle, IsForScreensOnly) {
  const LineEntity piece = InPixels(10.25, 20, 10.5, 25);
  EXPECT_EQ(Drawn({piece, piece, piece}, Detail::EveryPiece).size(), 3U);
}

// ---- a band, with and without bundles

using Pixels = std::set<std::pair<int, int>>;

void Touch(Pixels& pixels, Spot spot) {
  if (spot.X < 0 || spot.Y < 0 || spot.X >= Surface.Width || spot.Y >= Surface.Height) return;
  pixels.emplace(static_cast<int>(spot.X), static_cast<int>(spot.Y));
}

/// What is drawn, in steps of a quarter pixel.
Pixels PixelsOf(const std::vector<RecordingCanvas::Call>& calls) {
  Pixels pixels;
  for (const auto& call : calls) {
    if (call.What == Kind::Line) {
      const Spot from = call.Spots[0], to = call.Spots[1];
      const int steps = static_cast<int>(std::hypot(to.X - from.X, to.Y - from.Y) * 4) + 1;
      for (int i = 0; i <= steps; ++i) {
        const double part = static_cast<double>(i) / steps;
        Touch(pixels, {from.X + (to.X - from.X) * part, from.Y + (to.Y - from.Y) * part});
      }
    } else if (call.What == Kind::Arc) {
      const double x = (call.Spots[0].X + call.Spots[1].X) / 2, y = (call.Spots[0].Y + call.Spots[1].Y) / 2;
      const double radius = call.Spots[1].X - x;
      const auto angleTo = [&](Spot spot) { return std::atan2(y - spot.Y, spot.X - x); };
      const double from = angleTo(call.Spots[2]);
      double sweep = angleTo(call.Spots[3]) - from;
      if (sweep <= 0) sweep += 2 * std::numbers::pi;
      const int steps = static_cast<int>(radius * sweep * 4) + 1;
      for (int i = 0; i <= steps; ++i) {
        const double angle = from + sweep * i / steps;
        Touch(pixels, {x + radius * std::cos(angle), y - radius * std::sin(angle)});
      }
    }
  }
  return pixels;
}

/// Pixels of `a` that are no neighbours of any of `b`.
int Lonely(const Pixels& a, const Pixels& b) {
  int lonely = 0;
  for (const auto& [x, y] : a) {
    bool near = false;
    for (int dx = -1; dx <= 1; ++dx) {
      for (int dy = -1; dy <= 1; ++dy) near = near || b.contains({x + dx, y + dy});
    }
    lonely += near ? 0 : 1;
  }
  return lonely;
}

EntityList Band(int teeth, Flag bothEdges) {
  BandSaw saw;
  saw.ToothStyle = RoundBack;
  saw.Pitch = 1.75;
  saw.Length = teeth * saw.Pitch / 12;
  saw.Width = 4;
  saw.HookAngle = 20;
  saw.ClearAngle = 12;
  saw.GulletInfo.Radius = 0.3125;
  saw.GulletInfo.Depth = 0.55;
  saw.GulletInfo.BackAngle = 16;
  saw.GulletInfo.BackRadius = 0.2;
  saw.BothEdges = bothEdges;
  test::CollectedMessages messages;
  return CalculateSaw(saw, {}, messages);
}

class BandOnScreen : public testing::TestWithParam<std::tuple<double, Flag>> {};

TEST_P(BandOnScreen, LooksTheSameInFewerStrokes) {
  const auto [pixelsPerInch, bothEdges] = GetParam();
  const EntityList list = Band(2000, bothEdges);
  const Mapping mapping{.PixelsPerUnit = pixelsPerInch,
                        .OriginX = 480 - 1750 * pixelsPerInch,
                        .OriginY = 384 + 2 * pixelsPerInch};
  RecordingCanvas screen(Surface), paper(Surface);
  DrawEntities(list, mapping, screen, SawInks, Detail::Screen);
  DrawEntities(list, mapping, paper, SawInks, Detail::EveryPiece);

  EXPECT_LE(screen.Calls.size(), paper.Calls.size());
  EXPECT_LT(screen.Calls.size(), 10 * Surface.Width);
  const Pixels merged = PixelsOf(screen.Calls), all = PixelsOf(paper.Calls);
  EXPECT_GT(all.size(), 100U);
  EXPECT_EQ(Lonely(all, merged), 0) << "holes";
  EXPECT_EQ(Lonely(merged, all), 0) << "blots";
}

INSTANTIATE_TEST_SUITE_P(AtEveryZoom, BandOnScreen,
                         testing::Combine(testing::Values(0.05, 0.26, 1, 2.5, 7, 20, 96),
                                          testing::Values(False, True)));

TEST_P(BandOnScreen, LooksTheSameToAWalkerThatPassesOverRepetitions) {
  const auto [pixelsPerInch, bothEdges] = GetParam();
  EntityList list = Band(2000, bothEdges);
  ASSERT_EQ(list.Repetitions.size(), bothEdges != False ? 2U : 1U);
  for (const double middle : {-3.0, 0.5, 1750.0, 3499.5, 3504.0}) {
    SCOPED_TRACE(middle);
    const Mapping mapping{.PixelsPerUnit = pixelsPerInch,
                          .OriginX = 480 - middle * pixelsPerInch,
                          .OriginY = 384 + 2 * pixelsPerInch};
    RecordingCanvas quick(Surface), slow(Surface);
    DrawEntities(list, mapping, quick, SawInks, Detail::Screen);
    EntityList plain = list;
    plain.Repetitions.clear();
    DrawEntities(plain, mapping, slow, SawInks, Detail::Screen);
    ASSERT_EQ(quick.Calls.size(), slow.Calls.size());
    for (std::size_t i = 0; i < quick.Calls.size(); ++i) ExpectSpots(quick.Calls[i], slow.Calls[i].Spots);
  }
}

TEST(BandOnScreen, OfMostTeethIsOneStrokeAColumnOrTwo) {
  const EntityList list = Band(32000, False);
  const double pixelsPerInch = 0.95 * Surface.Width / 56000;
  RecordingCanvas canvas(Surface);
  EXPECT_TRUE(DrawSaw(list, {pixelsPerInch, 24, 384}, canvas, {}));
  EXPECT_GT(list.Entities.size(), 150000U);
  EXPECT_LT(canvas.Calls.size(), 2000U);
  std::set<int> columns;
  for (const auto& [x, y] : PixelsOf(canvas.Calls)) columns.insert(x);
  EXPECT_EQ(columns.size(), 960U);  // the centre line reaches over all of them
}

TEST(BandBeyondAllNumbers, DrawsNothingThatIsNoNumber) {
  const double huge = 1e308;
  for (const auto& call : Drawn({Outline(0, -huge, 1, huge), Line(0, 0, huge, huge), CircleEntity{0, 0, huge},
                                 ArcEntity{huge, 0, huge, 0, 180}, SolidEntity{0, 0, huge, 0, 0, 0, 0, 0}})) {
    for (const Spot& spot : call.Spots) EXPECT_TRUE(std::isfinite(spot.X) && std::isfinite(spot.Y));
  }
}

}  // namespace
}  // namespace tarnwick
