#include "model/modDecim.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace tarnwick {
namespace {

// ---- the rounding rule

struct RoundRow {
  const char* Name;
  double Value;
  int Places;
  double Want;
  friend void PrintTo(const RoundRow& row, std::ostream* out) { *out << row.Name; }
};
class RoundingRule : public testing::TestWithParam<RoundRow> {};

TEST_P(RoundingRule, CutsTowardZeroAfterALiftOfATwentiethOfTheLastPlace) {
  const RoundRow& row = GetParam();
  EXPECT_EQ(RoundTo(row.Value, row.Places), row.Want);
  EXPECT_EQ(Rounding(row.Places)(row.Value), row.Want);
}

INSTANTIATE_TEST_SUITE_P(Numbers, RoundingRule,
                         testing::Values(RoundRow{"Zero", 0, 5, 0},                                         //
                                         RoundRow{"CutsWhatIsBelowTheLift", 1.234567, 5, 1.23456},          //
                                         RoundRow{"LiftsWhatIsNearlyThere", 1.2345695, 5, 1.23457},         //
                                         RoundRow{"JustUnderTheLift", 1.2345694, 5, 1.23456},               //
                                         RoundRow{"KeepsANumberFromFallingAPlace", 1.2299999999, 2, 1.23},  //
                                         RoundRow{"HalfIsNotRoundedUp", 2.5, 0, 2},                         //
                                         RoundRow{"NearTheNextWhole", 0.99999996, 5, 1},                    //
                                         RoundRow{"NearTheNextWholeWithoutPlaces", 2.96, 0, 3},             //
                                         RoundRow{"FourPlaces", 123456.78999, 4, 123456.7899},              //
                                         RoundRow{"TenPlaces", 0.12345678912, 10, 0.1234567891},            //
                                         RoundRow{"BarelyAUnit", 0.0000096, 5, 0.00001},                    //
                                         RoundRow{"BarelyNoUnit", 0.0000094, 5, 0}),
                         [](const auto& row) { return std::string(row.param.Name); });

// Below zero the lift works against the magnitude.
INSTANTIATE_TEST_SUITE_P(NegativeNumbers, RoundingRule,
                         testing::Values(RoundRow{"IsCutTowardZeroToo", -1.234567, 5, -1.23456},    //
                                         RoundRow{"ARoundedOneLosesAUnit", -1, 6, -0.999999},       //
                                         RoundRow{"AndLosesOneEachTime", -0.999999, 6, -0.999998},  //
                                         RoundRow{"ARoundedHalf", -1.5, 5, -1.49999},               //
                                         RoundRow{"NoPlaces", -2.5, 0, -2},                         //
                                         RoundRow{"WithinTheLift", -0.00000004, 5, 0},              //
                                         RoundRow{"LessThanAUnit", -0.00001, 5, 0},                 //
                                         RoundRow{"NearlyTwoUnits", -0.0000199, 5, -0.00001}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(RoundTo, GivesNoNegativeZero) {
  EXPECT_FALSE(std::signbit(RoundTo(-0.0, 5)));
  EXPECT_FALSE(std::signbit(RoundTo(-0.0000001, 5)));
  EXPECT_FALSE(std::signbit(RoundTo(-0.04, 0)));
}

TEST(RoundTo, KeepsAHugeNumberAndGivesZeroForOneThatCannotBeShifted) {
  EXPECT_NEAR(RoundTo(1e20, 5), 1e20, 1e5);
  EXPECT_EQ(RoundTo(1e300, 10), 0);
  EXPECT_EQ(RoundTo(-1e300, 10), 0);
  EXPECT_EQ(RoundTo(std::numeric_limits<double>::max(), 4), 0);
}

TEST(RoundTo, LeavesARoundedPositiveNumberAsItIs) {
  for (int units = 0; units < 300000; units += 7) {
    const double value = units / 100000.0;
    ASSERT_EQ(RoundTo(value, 5), value);
  }
}

TEST(Rounding, RoundsARoundedNumberAgainAsAnyOther) {
  for (int places = 0; places <= 10; ++places) {
    const Rounding round(places);
    for (const double value : {0.0, 0.1, 1.0, 1.75182, 12.345678901, 99999.99999, 7036.8744177663,
                               7036.8744177664, 56000.123456789, 1e9 / 3, 1e15 / 7, 1e17 / 3, 1e300}) {
      for (const double rounded : {round(value), round(-value)}) {
        EXPECT_EQ(round.Again(rounded), round(rounded)) << rounded << " at " << places;
      }
    }
    double walk = -1000;
    for (int i = 0; i < 20000; ++i) {
      walk += 0.1234567891234;
      ASSERT_EQ(round.Again(round(walk)), round(round(walk))) << walk << " at " << places;
    }
  }
}

TEST(Rounding, KnowsItsUnit) { EXPECT_EQ(Rounding(5).Unit(), 0.00001); }

TEST(Rounding, LeavesAFailedExpressionFailed) {
  const Checked failed = Rounding(5)(Quotient(1, 0));
  EXPECT_EQ(failed.Why(), Failure::DivisionByZero);
  EXPECT_EQ(Rounding(5)(Checked(1.234567)).OrZero(), 1.23456);
}

// ---- reading numbers

struct ReadRow {
  const char* Name;
  const char* Text;
  double Want;
  friend void PrintTo(const ReadRow& row, std::ostream* out) { *out << row.Name; }
};
class ReadingANumber : public testing::TestWithParam<ReadRow> {};

TEST_P(ReadingANumber, StopsAtTheFirstCharacterThatDoesNotFit) {
  EXPECT_EQ(ReadNumber(GetParam().Text), GetParam().Want) << "text \"" << GetParam().Text << '"';
}

INSTANTIATE_TEST_SUITE_P(Texts, ReadingANumber,
                         testing::Values(ReadRow{"Whole", "12", 12},                         //
                                         ReadRow{"LeadingBlanks", "   12.5", 12.5},          //
                                         ReadRow{"Minus", "-3", -3},                         //
                                         ReadRow{"Plus", "+4.25", 4.25},                     //
                                         ReadRow{"BlankThenMinus", " -.5", -0.5},            //
                                         ReadRow{"BlanksAmongDigits", "1 2 3.4 5", 123.45},  //
                                         ReadRow{"PointFirst", ".125", 0.125},               //
                                         ReadRow{"PointLast", "5.", 5},                      //
                                         ReadRow{"SecondPoint", "1.2.3", 1.2},               //
                                         ReadRow{"Comma", "1,5", 1},                         //
                                         ReadRow{"Slash", "3/4", 3},                         //
                                         ReadRow{"Letters", "12abc", 12},                    //
                                         ReadRow{"Exponent", "1e3", 1000},                   //
                                         ReadRow{"ExponentWithSign", "2.5E-02", 0.025},      //
                                         ReadRow{"ExponentWithPlus", "1E+15", 1e15},         //
                                         ReadRow{"ExponentLetterAlone", "7e", 7},            //
                                         ReadRow{"ExponentSignAlone", "7e+", 7},             //
                                         ReadRow{"Empty", "", 0},                            //
                                         ReadRow{"Blanks", "   ", 0},                        //
                                         ReadRow{"NoNumber", "abc", 0},                      //
                                         ReadRow{"SignAlone", "-", 0},                       //
                                         ReadRow{"PointAlone", ".", 0},                      //
                                         ReadRow{"WordOfALibrary", "inf", 0},                //
                                         ReadRow{"AnotherWordOfALibrary", "nan", 0},         //
                                         ReadRow{"NoHexadecimal", "0x10", 0},                //
                                         ReadRow{"TooLarge", "1e400", 0}),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- numbers as text

struct TextRow {
  const char* Name;
  double Value;
  const char* Want;
  friend void PrintTo(const TextRow& row, std::ostream* out) { *out << row.Name; }
};
class GeneralNumber : public testing::TestWithParam<TextRow> {};

TEST_P(GeneralNumber, IsShownWithUpToFifteenDigits) {
  EXPECT_EQ(GeneralText(GetParam().Value), GetParam().Want);
  std::string appended = "x";
  AppendGeneralText(appended, GetParam().Value);
  EXPECT_EQ(appended, std::string("x") + GetParam().Want);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, GeneralNumber,
    testing::Values(TextRow{"Whole", 12, "12"},                                                  //
                    TextRow{"WholeWithZeros", 1200, "1200"},                                     //
                    TextRow{"Zero", 0, "0"},                                                     //
                    TextRow{"NegativeZero", -0.0, "0"},                                          //
                    TextRow{"ZeroBeforeThePoint", 0.25, "0.25"},                                 //
                    TextRow{"Negative", -0.5, "-0.5"},                                           //
                    TextRow{"NoDigitsOfTheBinaryForm", 0.1 + 0.2, "0.3"},                        //
                    TextRow{"FifteenDigits", 1.0 / 3, "0.333333333333333"},                      //
                    TextRow{"TheFifteenthIsRounded", 2.0 / 3, "0.666666666666667"},              //
                    TextRow{"LargestPlainWhole", 123456789012345.0, "123456789012345"},          //
                    TextRow{"FirstWithExponent", 1e15, "1E+15"},                                 //
                    TextRow{"RoundedUpToTheExponent", 999999999999999.9, "1E+15"},               //
                    TextRow{"LargeWithFraction", 123456789012345678.0, "1.23456789012346E+17"},  //
                    TextRow{"SmallestPlain", 0.0001, "0.0001"},                                  //
                    TextRow{"SmallWithExponent", 0.00001, "1E-05"},                              //
                    TextRow{"SmallNegative", -0.0000015, "-1.5E-06"},                            //
                    TextRow{"ThreeDigitExponent", 1e-100, "1E-100"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(DecimalText, HasABlankOrAMinusAheadAndNoZeroBeforeThePoint) {
  EXPECT_EQ(DecimalText(0.125), " .125");
  EXPECT_EQ(DecimalText(-0.125), "-.125");
  EXPECT_EQ(DecimalText(12), " 12");
  EXPECT_EQ(DecimalText(-12.5), "-12.5");
  EXPECT_EQ(DecimalText(0), " 0");
  EXPECT_EQ(DecimalText(10.05), " 10.05");
}

// ---- imperial and metric

using Conversion = std::string (*)(std::string_view, int);
struct ConversionRow {
  const char* Name;
  Conversion Convert;
  const char* From;
  int Places;
  const char* Want;
  friend void PrintTo(const ConversionRow& row, std::ostream* out) { *out << row.Name; }
};
class Converting : public testing::TestWithParam<ConversionRow> {};

TEST_P(Converting, MultipliesAndRounds) {
  const ConversionRow& row = GetParam();
  EXPECT_EQ(row.Convert(row.From, row.Places), row.Want) << "from \"" << row.From << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Converting,
    testing::Values(ConversionRow{"InchToMillimetre", InToMm, "1", 5, "25.4"},                  //
                    ConversionRow{"InchToCentimetre", InToCm, "1", 5, "2.54"},                  //
                    ConversionRow{"FootToMetre", FtToM, "10", 5, "3.048"},                      //
                    ConversionRow{"SquareInchToSquareCentimetre", In2ToCm2, "1", 5, "6.4516"},  //
                    ConversionRow{"CentimetreToInch", CmToIn, "2.54", 5, "1"},                  //
                    ConversionRow{"MetreToFoot", MToFt, "3.048", 5, "10"},                      //
                    ConversionRow{"MillimetreToInch", MmToIn, "25.4", 5, "1"},                  //
                    ConversionRow{"OneMillimetreIsCut", MmToIn, "1", 5, ".03937"},              //
                    ConversionRow{"OneMillimetreAtFourPlaces", MmToIn, "1", 4, ".0393"},        //
                    ConversionRow{"NoZeroBeforeThePoint", InToCm, "0.01", 5, ".0254"},          //
                    ConversionRow{"ReadsAsEverywhere", InToMm, " 1 0 mm", 5, "254"},            //
                    ConversionRow{"NegativeLosesAUnit", InToCm, "-1", 5, "-2.53999"},           //
                    ConversionRow{"NoNumber", InToCm, "wide", 5, "0"},                          //
                    ConversionRow{"Empty", MToFt, "", 5, "0"},                                  //
                    ConversionRow{"Overflow", InToMm, "1e308", 5, "0"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(Conversions, ThereAndBackNeedNotGiveTheSameDigits) {
  EXPECT_EQ(InToCm("0.12345", 4), ".3135");
  EXPECT_EQ(CmToIn(".3135", 4), ".1234");
}

}  // namespace
}  // namespace tarnwick
