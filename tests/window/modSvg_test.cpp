#include "window/modSvg.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

std::string Picture(std::vector<Entity> entities) {
  EntityList list;
  list.Entities = std::move(entities);
  return SvgText(list);
}

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(SvgDrawing, IsTheDrawingInTrueInchesWithAMargin) {
  const std::string text = Picture({LineEntity{1, 2, 3, 5, false, false}});
  EXPECT_TRUE(Holds(text, "width=\"2.25in\" height=\"3.25in\" viewBox=\"0 0 216 312\""));
  EXPECT_TRUE(Holds(text, "d=\"M12 300L204 12\""));  // Y grows downward on paper
}

TEST(SvgDrawing, IsDarkOnWhitePaper) {
  const std::string text = Picture({LineEntity{1, 2, 3, 5, false, false}});
  EXPECT_TRUE(Holds(text, "<rect width=\"216\" height=\"312\" fill=\"#ffffff\"/>"));
  EXPECT_TRUE(Holds(text, "stroke=\"#000000\""));
}

TEST(SvgDrawing, MeasuresWhatIsReallyDrawn) {
  // Far from the origin, and an arc that passes its top: from (99, 50) over (100, 51) to (101, 50).
  const std::string text = Picture({ArcEntity{100, 50, 1, 0, 180}});
  EXPECT_TRUE(Holds(text, "width=\"2.25in\" height=\"1.25in\""));
  EXPECT_TRUE(Holds(text, "d=\"M204 108A96 96 0 0 0 12 108\""));
}

TEST(SvgDrawing, HasASheetOfFullHundredths) {
  EXPECT_TRUE(Holds(Picture({LineEntity{0, 0, 10.001, 0.0001, false, false}}),
                    "width=\"10.26in\" height=\"0.26in\""));
}

TEST(SvgDrawing, HoldsEveryPieceHoweverSmall) {
  const std::string text =
      Picture({LineEntity{0, 0, 0.001, 0, false, false}, LineEntity{0.001, 0, 0.002, 0, false, false},
               LineEntity{0.002, 0, 0.003, 0, false, false}});
  EXPECT_TRUE(Holds(text, "d=\"M12 12L12.096 12L12.192 12L12.288 12\""));
}

TEST(SvgDrawing, ShowsTheWholeLengthOfAnOutline) {
  const std::string text = Picture({LineEntity{0, 0, 240, 0, true, false}});
  EXPECT_TRUE(Holds(text, "d=\"M12 12L23052 12\""));
}

TEST(SvgDrawing, OfNothingIsAnEmptySheet) {
  const std::string text = Picture({});
  EXPECT_TRUE(Holds(text, "width=\"0.25in\" height=\"0.25in\""));
  EXPECT_FALSE(Holds(text, "<path"));
}

}  // namespace
}  // namespace tarnwick
