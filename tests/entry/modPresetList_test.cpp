#include "entry/modPresetList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "entry/modCalculate.h"
#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

using Entries = std::vector<std::string>;

constexpr DisplayFormat InImperial{Imperial, 3, 5};
constexpr DisplayFormat InMetric{Metric, 3, 5};

std::string NameOf(const auto& row) { return row.param.Name; }

// ---- lists of numbers

struct ListRow {
  const char* Name;
  int Number;
  DisplayFormat Format;
  std::size_t Count;
  const char *First, *Second, *Last;
  double FirstValue, Step;
  friend void PrintTo(const ListRow& row, std::ostream* out) { *out << row.Name; }
};

// clang-format off
const ListRow NumberLists[] = {
    {"BandLengthInFeet",       1,  InImperial, 41, " 10 ft", " 11 ft", " 50 ft", 10, 1},
    {"BandLengthInMetres",     1,  InMetric,   13, " 3 m", " 4 m", " 15 m", 3, 1},
    {"Teeth",                  2,  InImperial, 73, " 48", " 49", " 120", 48, 1},
    {"TeethInMetric",          2,  InMetric,   73, " 48", " 49", " 120", 48, 1},
    {"SeatWidthInInches",      3,  InImperial, 25, " 0.005 in", " 0.010 in", " 0.125 in", .005, .005},
    {"SeatWidthInMillimetres", 3,  InMetric,   25, " 0.125 mm", " 0.250 mm", " 3.125 mm", .125, .125},
    {"SeatHeightInInches",     4,  InImperial, 51, " 0.180 in", " 0.185 in", " 0.430 in", .18, .005},
    {"SeatHeightInMillimetres", 4, InMetric,   51, " 4.125 mm", " 4.250 mm", " 10.375 mm", 4.125, .125},
    {"Angles",                 5,  InImperial, 36, " 0 deg", " 1 deg", " 35 deg", 0, 1},
    {"AnglesInMetric",         5,  InMetric,   36, " 0 deg", " 1 deg", " 35 deg", 0, 1},
    {"RadiusInInches",         7,  InImperial, 32, "1/32 in", "1/16 in", "1 in", .03125, .03125},
    {"RadiusInCentimetres",    7,  InMetric,   41, " 0.100 cm", " 0.200 cm", " 4.100 cm", .1, .1},
    {"DepthInInches",          8,  InImperial, 41, "1/4 in", "9/32 in", "1  1/2 in", .25, .03125},
    {"DepthInCentimetres",     8,  InMetric,   41, " 0.500 cm", " 0.600 cm", " 4.500 cm", .5, .1},
    {"WidthInInches",          10, InImperial, 17, " 4 in", " 5 in", " 20 in", 4, 1},
    {"WidthInCentimetres",     10, InMetric,   41, " 10 cm", " 11 cm", " 50 cm", 10, 1},
    {"PitchInInches",          11, InImperial, 46, " 0.500 in", " 0.550 in", " 2.750 in", .5, .05},
    {"PitchInCentimetres",     11, InMetric,   46, " 1.000 cm", " 1.500 cm", " 23.500 cm", 1, .5},
    {"BottomAngles",           12, InImperial, 46, " 0 deg", " 1 deg", " 45 deg", 0, 1},
    {"BottomAnglesInMetric",   12, InMetric,   46, " 0 deg", " 1 deg", " 45 deg", 0, 1},
    {"TipClearInInches",       13, InImperial, 25, " 0.005 in", " 0.010 in", " 0.125 in", .005, .005},
    {"TipClearInMillimetres",  13, InMetric,   25, " 0.125 mm", " 0.250 mm", " 3.125 mm", .125, .125},
    {"SecondRadiusInInches",   14, InImperial, 30, "1/8 in", "5/32 in", "1  1/32 in", .125, .03125},
    {"SecondRadiusInCentimetres", 14, InMetric, 41, " 0.250 cm", " 0.350 cm", " 4.250 cm", .25, .1},
    {"WheelInFeet",            15, InImperial, 31, " 1 ft", " 1 ft  3 in", " 8 ft  6 in", 1, .25},
    {"WheelInMetres",          15, InMetric,   28, " 0.300 m", " 0.400 m", " 3.000 m", .3, .1},
    {"CentersInFeet",          16, InImperial, 45, " 1 ft", " 1 ft  3 in", " 12 ft", 1, .25},
    {"CentersInMetres",        16, InMetric,   38, " 0.300 m", " 0.400 m", " 4.000 m", .3, .1},
    {"PlateInInches",          17, InImperial, 46, " 0.065 in", " 0.070 in", " 0.290 in", .065, .005},
    {"PlateInMillimetres",     17, InMetric,   46, " 1.000 mm", " 1.250 mm", " 12.250 mm", 1, .25},
    {"WheelSpeed",             19, InImperial, 40, " 450 rpms", " 500 rpms", " 2400 rpms", 450, 50},
    {"WheelSpeedInMetric",     19, InMetric,   40, " 450 rpms", " 500 rpms", " 2400 rpms", 450, 50},
    {"FeedRate",               20, InImperial, 17, " 100 Fpm", " 125 Fpm", " 500 Fpm", 100, 25},
    {"FeedRateInMetric",       20, InMetric,   17, " 100 Fpm", " 125 Fpm", " 500 Fpm", 100, 25},
    {"CutInInches",            21, InImperial, 17, " 4 in", " 5 in", " 20 in", 4, 1},
    {"CutInCentimetres",       21, InMetric,   41, " 10 cm", " 11 cm", " 50 cm", 10, 1},
    {"NotchWidthInInches",     24, InImperial, 31, " 0.010 in", " 0.020 in", " 0.310 in", .01, .01},
    {"NotchWidthInMillimetres", 24, InMetric,  31, " 0.250 mm", " 0.500 mm", " 7.750 mm", .25, .25},
    {"NotchHeightInInches",    25, InImperial, 31, " 0.010 in", " 0.020 in", " 0.310 in", .01, .01},
    {"NotchHeightInMillimetres", 25, InMetric, 31, " 0.250 mm", " 0.500 mm", " 7.750 mm", .25, .25},
    {"NotchRadiusInInches",    26, InImperial, 31, " 0.010 in", " 0.020 in", " 0.310 in", .01, .01},
    {"NotchRadiusInMillimetres", 26, InMetric, 31, " 0.250 mm", " 0.500 mm", " 7.750 mm", .25, .25},
    {"NotchAngles",            27, InImperial, 36, " 0 deg", " 1 deg", " 35 deg", 0, 1},
    {"NotchAnglesInMetric",    27, InMetric,   36, " 0 deg", " 1 deg", " 35 deg", 0, 1},
};
// clang-format on

class NumberList : public testing::TestWithParam<ListRow> {};
INSTANTIATE_TEST_SUITE_P(Lists, NumberList, testing::ValuesIn(NumberLists),
                         [](const auto& row) { return NameOf(row); });

TEST_P(NumberList, BeginsAndEndsWhereItShould) {
  const ListRow& row = GetParam();
  const Entries list = ShowListValues(row.Number, row.Format);
  ASSERT_EQ(list.size(), row.Count);
  EXPECT_EQ(list[0], row.First);
  EXPECT_EQ(list[1], row.Second);
  EXPECT_EQ(list.back(), row.Last);
}

TEST_P(NumberList, IsReadBackStepByStep) {
  const ListRow& row = GetParam();
  CollectedMessages say;
  double want = row.FirstValue;
  for (std::string entry : ShowListValues(row.Number, row.Format)) {
    double value = -1;
    ASSERT_TRUE(EvaluateEquation(entry, value, 5, say)) << entry;
    ASSERT_NEAR(value, want, 1e-9) << entry;
    want += row.Step;
  }
}

TEST_P(NumberList, IsReadBackWithAnyCountOfShownDecimals) {
  CollectedMessages say;
  for (std::int16_t places = 2; places <= 5; ++places) {
    DisplayFormat format = GetParam().Format;
    format.DisplayPlaces = places;
    const Entries list = ShowListValues(GetParam().Number, format);
    ASSERT_EQ(list.size(), GetParam().Count) << places;
    double last = -1;
    for (std::string entry : list) {
      double value = -1;
      ASSERT_TRUE(EvaluateEquation(entry, value, 5, say)) << entry;
      ASSERT_GT(value, last) << entry << " with " << places;
      last = value;
    }
  }
}

// ---- what is shown is what is added to

struct StepRow {
  const char* Name;
  int Number;
  DisplayFormat Format;
  Entries Begin;
  const char* Last;
  friend void PrintTo(const StepRow& row, std::ostream* out) { *out << row.Name; }
};
class StepList : public testing::TestWithParam<StepRow> {};

TEST_P(StepList, AddsUpOnTheShownValue) {
  const StepRow& row = GetParam();
  const Entries list = ShowListValues(row.Number, row.Format);
  ASSERT_GE(list.size(), row.Begin.size());
  EXPECT_EQ(Entries(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(row.Begin.size())), row.Begin);
  EXPECT_EQ(list.back(), row.Last);
}

constexpr DisplayFormat TwoImperial{Imperial, 2, 5};
constexpr DisplayFormat TwoMetric{Metric, 2, 5};
INSTANTIATE_TEST_SUITE_P(
    TwoDecimals, StepList,
    testing::Values(
        StepRow{"SeatWidth", 3, TwoImperial, {" 0.01 in", " 0.02 in", " 0.03 in", " 0.04 in"}, " 0.25 in"},
        StepRow{"SeatWidthInMetric", 3, TwoMetric, {" 0.13 mm", " 0.26 mm", " 0.39 mm"}, " 3.25 mm"},
        StepRow{"SeatHeight", 4, TwoImperial, {" 0.18 in", " 0.19 in", " 0.20 in"}, " 0.68 in"},
        StepRow{"SeatHeightInMetric", 4, TwoMetric, {" 4.13 mm", " 4.26 mm", " 4.39 mm"}, " 10.63 mm"},
        StepRow{"TipClearance", 13, TwoImperial, {" 0.01 in", " 0.02 in"}, " 0.25 in"},
        StepRow{"Plate", 17, TwoImperial, {" 0.07 in", " 0.08 in", " 0.09 in"}, " 0.52 in"},
        StepRow{"PitchIsNotTouched", 11, TwoImperial, {" 0.50 in", " 0.55 in"}, " 2.75 in"},
        StepRow{
            "FractionsAreNotTouched", 7, TwoImperial, {"1/32 in", "1/16 in", "3/32 in", "1/8 in"}, "1 in"},
        StepRow{"DepthsAreNotTouched", 8, TwoImperial, {"1/4 in", "9/32 in", "5/16 in"}, "1  1/2 in"},
        StepRow{
            "FeetAreNotTouched", 15, TwoImperial, {" 1 ft", " 1 ft  3 in", " 1 ft  6 in"}, " 8 ft  6 in"}),
    [](const auto& row) { return NameOf(row); });

TEST(StepsWithFiveDecimals, AreShownWithFive) {
  const Entries list = ShowListValues(3, {Imperial, 5, 5});
  EXPECT_EQ(list.front(), " 0.00500 in");
  EXPECT_EQ(list.back(), " 0.12500 in");
}

TEST(FeetAndInches, AreWrittenInQuartersOfAFoot) {
  const Entries list = ShowListValues(15, InImperial);
  ASSERT_GE(list.size(), 6U);
  EXPECT_EQ(Entries(list.begin(), list.begin() + 6),
            (Entries{" 1 ft", " 1 ft  3 in", " 1 ft  6 in", " 1 ft  9 in", " 2 ft", " 2 ft  3 in"}));
}

TEST(FractionsOfAnInch, AreReduced) {
  const Entries list = ShowListValues(8, InImperial);
  ASSERT_GE(list.size(), 26U);
  EXPECT_EQ(list[8], "1/2 in");
  EXPECT_EQ(list[23], "31/32 in");
  EXPECT_EQ(list[24], "1 in");
  EXPECT_EQ(list[25], "1  1/32 in");
}

// ---- lists of names

TEST(NameLists, AreTheSameInBothSystems) {
  for (const DisplayFormat& format : {InImperial, InMetric}) {
    EXPECT_EQ(ShowListValues(9, format),
              (Entries{"Square Back", "Round Back", "Double Radius", "Triple Radius", "Flat Bottom",
                       "Narrow Style", "O Shape", "Frost Tooth"}));
    EXPECT_EQ(ShowListValues(18, format), (Entries{"None", "Stellite", "Swagged", "Carbide"}));
    EXPECT_EQ(ShowListValues(23, format), (Entries{"Right Angle Join", "Overlaped Join"}));
  }
}

TEST(WoodList, HasSoftwoodsThenAnEmptyLineThenHardwoods) {
  const Entries woods{"Softwoods:",
                      "Cedar (Eastern Red)",
                      "Cedar (Northern White)",
                      "Cedar (Soutern Red)",
                      "Cedar (Western Red)",
                      "Cypress",
                      "Douglas Fir (Coast)",
                      "Douglas Fir (Rocky Mt)",
                      "Fir (Alpine)",
                      "Fir (California Red)",
                      "Fir (Silver)",
                      "Fir (White)",
                      "Hemlock (Eastern)",
                      "Hemlock (Mountain)",
                      "Hemlock (Western)",
                      "Larch",
                      "Pine (Eastern White)",
                      "Pine (Jack)",
                      "Pine (Lodgepole)",
                      "Pine (Northern White)",
                      "Pine (Ponderosa)",
                      "Pine (Western White)",
                      "Redwood",
                      "Spruce (Engelmann)",
                      "Spruce (Red)",
                      "Spruce (White)",
                      "Tamarack",
                      "",
                      "Hardwoods:",
                      "Alder",
                      "Ash (White)",
                      "Aspen",
                      "Beech",
                      "Birch (Yellow)",
                      "Cherry (Black)",
                      "Chestnut",
                      "Cottonwood (Eastern)",
                      "Elm (American White)",
                      "Hickory",
                      "Maple (Black)",
                      "Maple (Red)",
                      "Maple (Silver)",
                      "Oak (Black)",
                      "Oak (Northern Red)",
                      "Oak (White)",
                      "Popular",
                      "Walnut",
                      "Willow (Black)"};
  EXPECT_EQ(ShowListValues(22, InImperial), woods);
  EXPECT_EQ(ShowListValues(22, InMetric), woods);
}

TEST(WoodList, LacksTheSouthernRedOakOfOldFiles) {
  const Entries woods = ShowListValues(22, InImperial);
  EXPECT_EQ(std::count(woods.begin(), woods.end(), "Oak (Southern Red)"), 0);
  EXPECT_EQ(std::count(woods.begin(), woods.end(), ""), 1);
}

// ---- limits

TEST(OtherLists, AreEmpty) {
  for (const int number : {-1, 0, 6, 28, 99, 32767}) {
    EXPECT_TRUE(ShowListValues(number, InImperial).empty()) << number;
    EXPECT_TRUE(ShowListValues(number, InMetric).empty()) << number;
  }
}

TEST(AnyList, HasAtMostAHundredAndOneEntries) {
  for (int number = -5; number <= 40; ++number) {
    for (const DisplayFormat& format : {InImperial, InMetric, TwoImperial, TwoMetric}) {
      EXPECT_LE(ShowListValues(number, format).size(), 101U) << number;
    }
  }
}

TEST(Lists, OfAnyOtherUnitNumberAreImperial) {
  for (int number = 1; number <= 27; ++number) {
    EXPECT_EQ(ShowListValues(number, {2, 3, 5}), ShowListValues(number, InImperial)) << number;
  }
}

}  // namespace
}  // namespace tarnwick
