#include "window/modGulletRow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/TeethOf.h"

namespace tarnwick {
namespace {

std::vector<std::string> Captions(int style) {
  std::vector<std::string> captions;
  for (const GulletRow& row : GulletRowsOfStyle(style)) captions.emplace_back(row.Caption);
  return captions;
}

TEST(GulletRows, AreThoseOfTheStyle) {
  using Words = std::vector<std::string>;
  EXPECT_EQ(Captions(DoubleRadius),
            (Words{"1st Gullet Radius:", "2nd Gullet Radius:", "Gullet Width:", "Gullet Back Angle:"}));
  EXPECT_EQ(Captions(NarrowStyle), Words{"Gullet Radius:"});
  EXPECT_EQ(Captions(OShape), (Words{"1st Gullet Radius:", "Gullet Width:"}));
  EXPECT_EQ(Captions(FrostTooth).size(), 8U);
  for (const int single : {SquareBack + 0, RoundBack + 0, 3, 0, -4}) {
    EXPECT_EQ(Captions(single), (Words{"Gullet Radius:", "Gullet Back Angle:"})) << single;
  }
}

TEST(GulletRows, MeasureAnglesInDegreesAndTheNotchFinely) {
  const auto rows = GulletRowsOfStyle(FrostTooth);
  EXPECT_EQ(rows[0].Kind, FineInches);
  EXPECT_EQ(rows[3].Kind, Degrees);
  EXPECT_EQ(rows[7].Kind, Inches);
  const BandSaw saw = test::TeethOf(FrostTooth);
  EXPECT_EQ(saw.GulletInfo.*rows[3].Measure, 20);
}

TEST(GulletArea, IsShownOfABandThatIsOne) {
  BandSaw saw = test::TeethOf(SquareBack);
  EXPECT_TRUE(ShowsGulletArea(saw));
  saw.Length = 0.5;
  EXPECT_FALSE(ShowsGulletArea(saw));
}

TEST(TeethOfSegment, AreSevenAtMost) {
  BandSaw saw;
  saw.GeneralInfo.NumVariables = 8;
  EXPECT_EQ(TeethOfSegmentShown(saw), 7);
  saw.GeneralInfo.NumVariables = -2;
  EXPECT_EQ(TeethOfSegmentShown(saw), 0);
}

}  // namespace
}  // namespace tarnwick
