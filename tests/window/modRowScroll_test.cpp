#include "window/modRowScroll.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

RowBox Row(int place) { return {0, place * RowHeight, 200, (place + 1) * RowHeight}; }

TEST(TopOfRows, IsABitOfAirAtZeroAndARowForEachStep) {
  EXPECT_DOUBLE_EQ(TopOfRows(0) * 15, 12);
  EXPECT_DOUBLE_EQ(TopOfRows(-1) * 15, -238);
  EXPECT_DOUBLE_EQ(TopOfRows(-30) * 15, -7488);
  EXPECT_DOUBLE_EQ(TopOfRows(2) * 15, 512);
}

TEST(LowestBar, BringsTheLastRowIntoSight) {
  EXPECT_EQ(LowestBar(0, 100), 0);
  EXPECT_EQ(LowestBar(6 * RowHeight, 101), 0);     // 100.8 pixels with the air above
  EXPECT_EQ(LowestBar(6 * RowHeight, 100.8), 0);   // to a hair
  EXPECT_EQ(LowestBar(6 * RowHeight, 100), -1);    // the air does not fit
  EXPECT_EQ(LowestBar(60 * RowHeight, 400), -37);  // 1000.8 - 400 are 36.05 rows
  EXPECT_EQ(LowestBar(60 * RowHeight, 0), -61);
}

TEST(BarToSee, StaysWhereTheRowIsInSight) {
  EXPECT_EQ(BarToSee(Row(0), 0, 100), 0);
  EXPECT_EQ(BarToSee(Row(4), 0, 100), 0);
  EXPECT_EQ(BarToSee(Row(20), -18, 100), -18);
}

TEST(BarToSee, MovesNoFurtherThanItMust) {
  EXPECT_EQ(BarToSee(Row(5), 0, 100), -1);    // its foot is at 100.8
  EXPECT_EQ(BarToSee(Row(20), 0, 100), -16);  // 350.8 - 100 are 15.05 rows
  EXPECT_EQ(BarToSee(Row(3), -18, 100), -3);
  EXPECT_EQ(BarToSee(Row(0), -18, 100), 0);
}

TEST(BarToSee, ShowsTheHeadOfARowThatFitsNowhere) { EXPECT_EQ(BarToSee(Row(7), 0, 10), -7); }

TEST(RowsOfPage, KeepsOneRowInSight) {
  EXPECT_EQ(RowsOfPage(100), 5);
  EXPECT_EQ(RowsOfPage(99), 4);
  EXPECT_EQ(RowsOfPage(20), 1);
  EXPECT_EQ(RowsOfPage(0), 1);
}

}  // namespace
}  // namespace tarnwick
