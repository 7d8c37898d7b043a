#include "platform/SvgCanvas.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tarnwick {
namespace {

constexpr PixelSize Sheet{.Width = 192, .Height = 96};

bool Holds(const SvgCanvas& canvas, const std::string& text) {
  return canvas.Document().find(text) != std::string::npos;
}

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

void DrawLine(SvgCanvas& canvas, Spot from, Spot to) { canvas.Polyline(std::array{from, to}); }

TEST(SvgPicture, IsAsLargeAsItsInches) {
  const SvgCanvas canvas(Sheet);
  EXPECT_EQ(canvas.Document(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"2in\" height=\"1in\" viewBox=\"0 0 192 96\">\n"
            "</svg>\n");
}

TEST(SvgPicture, StartsAgainWhenCleared) {
  SvgCanvas canvas(Sheet);
  DrawLine(canvas, {0, 0}, {1, 1});
  canvas.Clear(Rgb(255, 254, 1));
  EXPECT_TRUE(Holds(
      canvas, "viewBox=\"0 0 192 96\">\n<rect width=\"192\" height=\"96\" fill=\"#fffe01\"/>\n</svg>\n"));
}

TEST(SvgLines, AreAPathOfAnUnscaledStroke) {
  SvgCanvas canvas(Sheet);
  canvas.SetPen(Rgb(0, 0, 128), PenStyle::Solid);
  DrawLine(canvas, {1, 2}, {3.5, -4});
  EXPECT_TRUE(Holds(canvas,
                    "<path d=\"M1 2L3.5 -4\" fill=\"none\" stroke=\"#000080\" "
                    "vector-effect=\"non-scaling-stroke\" stroke-linecap=\"round\"/>\n"));
}

TEST(SvgLines, FollowOnEachOther) {
  SvgCanvas canvas(Sheet);
  DrawLine(canvas, {1, 2}, {3, 4});
  DrawLine(canvas, {3.0001, 4}, {5, 6});
  DrawLine(canvas, {1, 2}, {3, 4});
  EXPECT_TRUE(Holds(canvas, "d=\"M1 2L3 4L5 6M1 2L3 4\""));
}

TEST(SvgLines, HaveThousandthsAndNoMore) {
  SvgCanvas canvas(Sheet);
  DrawLine(canvas, {1.0 / 3, 2.0 / 3}, {-0.0004, 100000.00049});
  EXPECT_TRUE(Holds(canvas, "d=\"M0.333 0.667L0 100000\""));
}

TEST(SvgLines, AreDashedByTheirPen) {
  SvgCanvas canvas(Sheet);
  DrawLine(canvas, {0, 0}, {1, 0});
  canvas.SetPen(Black, PenStyle::Dots);
  DrawLine(canvas, {1, 0}, {2, 0});
  canvas.SetPen(Black, PenStyle::DashDot);
  DrawLine(canvas, {2, 0}, {3, 0});
  canvas.SetPen(Black, PenStyle::DashDot);
  DrawLine(canvas, {3, 0}, {4, 0});
  EXPECT_EQ(CountOf(canvas.Document(), "<path"), 3);
  EXPECT_TRUE(Holds(canvas,
                    "d=\"M1 0L2 0\" fill=\"none\" stroke=\"#000000\" "
                    "vector-effect=\"non-scaling-stroke\" stroke-dasharray=\"2 2\"/>"));
  EXPECT_TRUE(Holds(canvas, "d=\"M2 0L3 0L4 0\""));
  EXPECT_TRUE(Holds(canvas, "stroke-dasharray=\"20 6 3 6\"/>"));
}

TEST(SvgLines, AreSpreadOverManyPaths) {
  SvgCanvas canvas(Sheet);
  for (int i = 0; i < 1000; ++i) DrawLine(canvas, {static_cast<double>(i), 0}, {i + 1.0, 0});
  EXPECT_EQ(CountOf(canvas.Document(), "<path"), 5);
  EXPECT_EQ(CountOf(canvas.Document(), "M"), 5);
  EXPECT_EQ(CountOf(canvas.Document(), "L"), 1000);
}

/// An arc of a circle of radius 10 about (50, 50), from one place to another.
std::string ArcPath(Spot start, Spot end) {
  SvgCanvas canvas(Sheet);
  canvas.Arc({40, 40}, {60, 60}, start, end);
  const std::string text = canvas.Document();
  const auto from = text.find("d=\"");
  return from == std::string::npos ? "" : text.substr(from + 3, text.find('"', from + 3) - from - 3);
}

constexpr Spot Right{60, 50}, Top{50, 40}, Left{40, 50}, Bottom{50, 60};

TEST(SvgArc, RunsAnticlockwiseForTheEye) {
  EXPECT_EQ(ArcPath(Right, Top), "M60 50A10 10 0 0 0 50 40");
  EXPECT_EQ(ArcPath(Bottom, Right), "M50 60A10 10 0 0 0 60 50");
  EXPECT_EQ(ArcPath(Right, Left), "M60 50A10 10 0 0 0 40 50");
}

TEST(SvgArc, OfMoreThanHalfATurnGoesByItsMiddle) {
  EXPECT_EQ(ArcPath(Right, Bottom), "M60 50A10 10 0 0 0 42.929 42.929A10 10 0 0 0 50 60");
}

TEST(SvgArc, BetweenOnePlaceIsTheWholeCircle) {
  EXPECT_EQ(ArcPath(Right, Right), "M60 50A10 10 0 0 0 40 50A10 10 0 0 0 60 50");
}

TEST(SvgArc, EndsOnTheRadialsOfItsEnds) {
  EXPECT_EQ(ArcPath({70, 50}, {50, 49}), "M60 50A10 10 0 0 0 50 40");
}

TEST(SvgArc, OfAFlatBoxIsNone) {
  SvgCanvas canvas(Sheet);
  canvas.Arc({40, 50}, {60, 50}, Right, Left);
  EXPECT_FALSE(Holds(canvas, "<path"));
}

TEST(SvgArc, JoinsTheLinesBeforeAndAfter) {
  SvgCanvas canvas(Sheet);
  DrawLine(canvas, {60, 80}, Right);
  canvas.Arc({40, 40}, {60, 60}, Right, Top);
  DrawLine(canvas, Top, {0, 40});
  EXPECT_TRUE(Holds(canvas, "d=\"M60 80L60 50A10 10 0 0 0 50 40L0 40\""));
}

TEST(SvgFigure, IsFilled) {
  SvgCanvas canvas(Sheet);
  canvas.SetPen(Rgb(1, 2, 3), PenStyle::Solid);
  canvas.Polygon(std::array{Spot{0, 0}, Spot{10, 0}, Spot{5, 2.5}, Spot{0, 0}});
  EXPECT_TRUE(Holds(canvas, "<polygon points=\"0 0 10 0 5 2.5 0 0\" fill=\"#010203\"/>\n"));
}

TEST(SvgText, IsSixTenthsOfItsHeightACharacter) {
  const SvgCanvas canvas(Sheet);
  EXPECT_DOUBLE_EQ(canvas.TextSize("72 in").Width, 5 * 0.6 * 16);
  EXPECT_EQ(canvas.TextSize("72 in").Height, 16);
  EXPECT_EQ(canvas.TextSize("").Width, 0);
}

TEST(SvgText, StandsInTheMiddleOfItsBox) {
  SvgCanvas canvas(Sheet);
  canvas.SetPen(Rgb(0, 0, 255), PenStyle::Solid);
  canvas.Text({10, 20}, "72 in");
  EXPECT_TRUE(
      Holds(canvas,
            "<text x=\"34\" y=\"33.6\" font-family=\"sans-serif\" font-size=\"16\" text-anchor=\"middle\" "
            "fill=\"#0000ff\">72 in</text>\n"));
}

TEST(SvgText, IsEscaped) {
  SvgCanvas canvas(Sheet);
  canvas.Text({0, 0}, "\xE9 a<b> & \"c\"\x01");
  EXPECT_TRUE(Holds(canvas, ">? a&lt;b&gt; &amp; \"c\"?</text>"));
}

}  // namespace
}  // namespace tarnwick
