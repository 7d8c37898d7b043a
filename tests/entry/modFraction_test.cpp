#include "entry/modFraction.h"

#include <gtest/gtest.h>

#include <string>

#include "entry/modCalculate.h"
#include "model/modDecim.h"
#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

struct FractionRow {
  const char* Name;
  const char* Text;
  const char* Want;
  friend void PrintTo(const FractionRow& row, std::ostream* out) { *out << row.Name; }
};
class Fraction : public testing::TestWithParam<FractionRow> {};

TEST_P(Fraction, IsReducedAndStaysDecimalBelowASixtyFourth) {
  EXPECT_EQ(DecimalToFraction(GetParam().Text), GetParam().Want) << '"' << GetParam().Text << '"';
}

INSTANTIATE_TEST_SUITE_P(Texts, Fraction,
                         testing::Values(FractionRow{"Mixed", " 1.1875", "1  3/16"},                //
                                         FractionRow{"Half", " .5", "1/2"},                         //
                                         FractionRow{"HalfWithAZero", "0.5", "1/2"},                //
                                         FractionRow{"HalfWithZerosBehind", ".5000", "1/2"},        //
                                         FractionRow{"Quarter", ".25", "1/4"},                      //
                                         FractionRow{"Eighth", ".125", "1/8"},                      //
                                         FractionRow{"ThirtySecond", ".03125", "1/32"},             //
                                         FractionRow{"SixtyFourth", ".015625", "1/64"},             //
                                         FractionRow{"MostSixtyFourths", ".984375", "63/64"},       //
                                         FractionRow{"MixedThirtySeconds", "3.96875", "3  31/32"},  //
                                         FractionRow{"MixedSixtyFourth", "12.015625", "12  1/64"},  //
                                         FractionRow{"Whole", " 2", "2"},                           //
                                         FractionRow{"WholeWithZeros", "2.00", "2"},                //
                                         FractionRow{"LargeWhole", " 120", "120"},                  //
                                         FractionRow{"Zero", " 0", "0"},                            //
                                         FractionRow{"ZeroWithZeros", "0.000", "0"},                //
                                         FractionRow{"Empty", "", "0"},                             //
                                         FractionRow{"NoNumber", "wide", "0"},                      //
                                         FractionRow{"BlanksAround", "  1.5  ", "1  1/2"}),
                         [](const auto& row) { return std::string(row.param.Name); });

INSTANTIATE_TEST_SUITE_P(FinerThanASixtyFourth, Fraction,
                         testing::Values(FractionRow{"Alone", ".3", ".3"},                            //
                                         FractionRow{"BehindAWhole", "1.3", "1 .3"},                  //
                                         FractionRow{"HundredTwentyEighth", ".0078125", ".0078125"},  //
                                         FractionRow{"MixedHundredTwentyEighth", "2.0078125", "2 .0078125"},
                                         FractionRow{"AHairAboveAHalf", ".50001", ".50001"},  //
                                         FractionRow{"Third", ".33333", ".33333"}),
                         [](const auto& row) { return std::string(row.param.Name); });

// Below zero the rounding rule takes a unit of the last place off, and a numerator loses its sign. No list
// holds such a value.
INSTANTIATE_TEST_SUITE_P(NegativeNumbers, Fraction,
                         testing::Values(FractionRow{"Whole", "-1", "-1"},           //
                                         FractionRow{"Half", "-.5", "-.4"},          //
                                         FractionRow{"Mixed", "-1.5", "-1-.4"},      //
                                         FractionRow{"MoreDigits", "-.50", "-.49"},  //
                                         FractionRow{"AUnitOff", "-.251", "1/4"}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(EveryFraction, IsReadBackAsItsNumber) {
  CollectedMessages say;
  for (int sixtyFourths = 0; sixtyFourths <= 4 * 64; ++sixtyFourths) {
    const double inches = sixtyFourths / 64.0;
    std::string text = DecimalToFraction(DecimalText(inches)) + " in";
    double value = -1;
    ASSERT_TRUE(EvaluateEquation(text, value, 5, say));
    ASSERT_EQ(value, inches) << text;
  }
}

}  // namespace
}  // namespace tarnwick
