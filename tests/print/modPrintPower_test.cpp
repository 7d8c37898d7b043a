#include "print/modPrintPower.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

const PrintPage Upright = PageFor({});
const PrintPage Turned = PageFor({.Turned = PaperOrientation::Landscape});

PowerSheetText Figures(int count) {
  PowerSheetText text{"Heading", {}, "Foot"};
  for (int i = 0; i < count; ++i) {
    text.Lines.push_back(
        {PowerLine::Role::Figure, "label " + std::to_string(i), " text " + std::to_string(i)});
  }
  return text;
}

PrintSheet Sheet(const PowerSheetText& text, const PrintPage& page = Upright, double top = 1000) {
  PrintSheet sheet;
  AppendPowerLines(sheet, text, page, top);
  return sheet;
}

void ExpectText(const PrintSheet& sheet, const std::string& words, double x, double y, bool bold = false) {
  const SheetText* text = test::FindText(sheet, words);
  ASSERT_NE(text, nullptr) << words;
  EXPECT_NEAR(text->TopLeft.X, x, 1e-9) << words;
  EXPECT_NEAR(text->TopLeft.Y, y, 1e-9) << words;
  EXPECT_EQ(text->Font, (PrintFont{TextPoints, bold})) << words;
}

constexpr double Lines = 1000 + 1.5 * 265;  // where they begin

TEST(PowerLines, StandInTwoBlocksOfFiftyBelowTheHeading) {
  const PrintSheet sheet = Sheet(Figures(60));
  ExpectText(sheet, "Heading", 1200, 1000, true);
  ExpectText(sheet, "label 0", 1200, Lines);
  ExpectText(sheet, " text 0", 3950, Lines);
  ExpectText(sheet, "label 49", 1200, Lines + 49 * 265);
  ExpectText(sheet, "label 50", 6250, Lines);
  ExpectText(sheet, " text 50", 9000, Lines);
  ExpectText(sheet, "label 59", 6250, Lines + 9 * 265);
}

TEST(PowerLines, EndWithTheFootAnEmptyRowBelowThem) {
  ExpectText(Sheet(Figures(60)), "Foot", 6250, Lines + 11 * 265);
  ExpectText(Sheet(Figures(48)), "Foot", 1200, Lines + 49 * 265);
  PowerSheetText text = Figures(3);
  text.Foot.clear();
  EXPECT_EQ(Sheet(text).size(), 1U + 2U * 3U);
}

TEST(PowerLines, WriteHeadingsBoldMarksBehindValuesAndNothingOfABlankLine) {
  const PowerSheetText text{"Heading",
                            {{PowerLine::Role::Heading, "Estimate # 1"},
                             {PowerLine::Role::Blank, " "},
                             {PowerLine::Role::Figure, "Feed Rate:", " 121 fpm", true},
                             {PowerLine::Role::Figure, "Type of Wood:", "Larch"},
                             {PowerLine::Role::Figure, "Bite:", ""}},
                            ""};
  const PrintSheet sheet = Sheet(text);
  EXPECT_EQ(test::TextsOf(sheet), (test::Texts{"Heading", "Estimate # 1", "Feed Rate:", " 121 fpm*",
                                               "Type of Wood:", " Larch", "Bite:"}));
  ExpectText(sheet, "Estimate # 1", 1200, Lines, true);
  ExpectText(sheet, " 121 fpm*", 3950, Lines + 2 * 265);
}

TEST(PowerLines, KeepTheirHeightWhereTheSheetHasFewOfThem) {
  // The power calculator's sheet has 41 rows, and a header may end as low as this.
  PowerSheetText text = Figures(41);
  text.Foot.clear();
  const double begin = 2500 + 1.5 * 265;
  const PrintSheet sheet = Sheet(text, Upright, 2500);
  ExpectText(sheet, "label 0", 1200, begin);
  ExpectText(sheet, "label 40", 1200, begin + 40 * 265);
}

TEST(PowerLines, MoveTogetherForTheFootToo) {
  const PrintSheet sheet = Sheet(Figures(46), Upright, 2600);
  const SheetText* foot = test::FindText(sheet, "Foot");
  ASSERT_TRUE(foot);
  EXPECT_GT(foot->TopLeft.Y, 2600 + 1.5 * 265 + 46 * 260);
  EXPECT_LE(foot->TopLeft.Y + foot->Font.Points * TwipsPerPoint, Upright.Height - FootMargin);
}

TEST(PowerLines, MoveTogetherWhereThePaperIsTooShortForFiftyRows) {
  const struct {
    const PrintPage& Page;
    double Top;
  } rows[] = {{Turned, 1000}, {Turned, 2500}, {Upright, 2500}};
  for (const auto& [page, top] : rows) {
    const PrintSheet sheet = Sheet(Figures(60), page, top);
    const SheetText* first = test::FindText(sheet, "label 0");
    const SheetText* last = test::FindText(sheet, "label 49");
    ASSERT_TRUE(first && last);
    const double row = (last->TopLeft.Y - first->TopLeft.Y) / 49;
    EXPECT_LT(row, 265);
    EXPECT_NEAR(last->TopLeft.Y + row, page.PaperHeight() - FootMargin, 1e-6)
        << "down to the end of the paper";
    EXPECT_GE(row, first->Font.Points * TwipsPerPoint) << "letters would touch";
    EXPECT_EQ(test::FindText(sheet, "label 50")->TopLeft.Y, first->TopLeft.Y);
  }
}

}  // namespace
}  // namespace tarnwick
