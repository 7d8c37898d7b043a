#include "entry/modFormat.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwick {
namespace {

std::string NameOf(const auto& row) { return row.param.Name; }

// ---- one value of every kind

struct KindRow {
  const char* Name;
  const char* Text;
  int Kind;
  const char* Imperial;   // as shown with three decimals
  const char* Metric;     // the same
  const char* Converted;  // the caller's text after a metric showing
  friend void PrintTo(const KindRow& row, std::ostream* out) { *out << row.Name; }
};
class ShownValue : public testing::TestWithParam<KindRow> {};

TEST_P(ShownValue, HasItsImperialWordAndLeavesTheTextAlone) {
  std::string text = GetParam().Text;
  EXPECT_EQ(FormatValue(text, GetParam().Kind, {Imperial, 3, 5}), GetParam().Imperial);
  EXPECT_EQ(text, GetParam().Text);
}

TEST_P(ShownValue, IsConvertedWithItsTextInMetric) {
  std::string text = GetParam().Text;
  EXPECT_EQ(FormatValue(text, GetParam().Kind, {Metric, 3, 5}), GetParam().Metric);
  EXPECT_EQ(text, GetParam().Converted);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ShownValue,
    testing::Values(KindRow{"Plain", " .25", PlainNumber, " 0.250", " 0.250", " .25"},             //
                    KindRow{"Length", " 12", Inches, " 12.000 in", " 30.480 cm", " 30.48"},        //
                    KindRow{"BandLength", " 10", Feet, " 10.000 ft", " 3.048 m", " 3.048"},        //
                    KindRow{"Angle", " 14.5", Degrees, " 14.500 deg", " 14.500 deg", " 14.5"},     //
                    KindRow{"Area", " 1", SquareInches, " 1.000 in²", " 6.452 cm²", " 6.4516"},    //
                    KindRow{"FineLength", " .05", FineInches, " 0.050 in", " 1.270 mm", " 1.27"},  //
                    KindRow{"WheelSpeed", " 1200", RevolutionsPerMinute, " 1200 rpms", " 1200 rpms",
                            " 1200"},                                                                    //
                    KindRow{"ToothSpeed", " 8000", FeetPerMinute, " 8000 fpm", " 2438 mpm", " 2438.4"},  //
                    KindRow{"KindEightIsPlain", " 1.5", 8, " 1.500", " 1.500", " 1.5"},                  //
                    KindRow{"NegativeKindIsPlain", " 1.5", -1, " 1.500", " 1.500", " 1.5"}),
    [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(
    Texts, ShownValue,
    testing::Values(
        KindRow{"EmptyIsZero", "", Inches, " 0.000 in", " 0.000 cm", " 0"},                      //
        KindRow{"EmptySpeedIsZero", "", FeetPerMinute, " 0 fpm", " 0 mpm", " 0"},                //
        KindRow{"NoNumberIsZero", "wide", Inches, " 0.000 in", " 0.000 cm", " 0"},               //
        KindRow{"NumberWithItsWord", " 2 in", Inches, " 2.000 in", " 5.080 cm", " 5.08"},        //
        KindRow{"DecimalCommaEndsTheNumber", "1,5", Inches, " 1.000 in", " 2.540 cm", " 2.54"},  //
        KindRow{"BlanksAroundAWheelSpeed", "  1200  ", RevolutionsPerMinute, " 1200 rpms", " 1200 rpms",
                "  1200  "},  //
        KindRow{"WheelSpeedIsNotMasked", " 1200.5", RevolutionsPerMinute, " 1200.5 rpms", " 1200.5 rpms",
                " 1200.5"},  //
        KindRow{"CommaInAWheelSpeed", "1,200", RevolutionsPerMinute, " 1.200 rpms", " 1.200 rpms", "1,200"},
        KindRow{"WordsBehindAWheelSpeed", " 5 a", RevolutionsPerMinute, " 5 a rpms", " 5 a rpms", " 5 a"},
        KindRow{"Negative", "-1.5", Inches, " -1.500 in", " -3.810 cm", "-3.80999"},            //
        KindRow{"Thousands", " 1234.5", Inches, " 1.234.500 in", " 3.135.630 cm", " 3135.63"},  //
        KindRow{"SpeedHasNoThousands", " 12345", FeetPerMinute, " 12345 fpm", " 3763 mpm", " 3762.756"},
        KindRow{"ConvertedIsCutBeforeItIsMasked", " .123456789", Inches, " 0.123 in", " 0.314 cm",
                " .31358"}),
    [](const auto& row) { return NameOf(row); });

// Shown speeds are whole: to the nearest, ties to the even one.
INSTANTIATE_TEST_SUITE_P(
    Speeds, ShownValue,
    testing::Values(
        KindRow{"BelowHalf", " 7.49", FeetPerMinute, " 7 fpm", " 2 mpm", " 2.28295"},                  //
        KindRow{"HalfToTheEvenBelow", " 350.5", FeetPerMinute, " 350 fpm", " 107 mpm", " 106.8324"},   //
        KindRow{"HalfToTheEvenAbove", " 351.5", FeetPerMinute, " 352 fpm", " 107 mpm", " 107.1372"},   //
        KindRow{"HalfOfOne", " .5", FeetPerMinute, " 0 fpm", " 0 mpm", " .1524"},                      //
        KindRow{"ConvertedHalfToTheEvenBelow", " 8.2021", FeetPerMinute, " 8 fpm", " 2 mpm", " 2.5"},  //
        KindRow{"NegativeHalf", "-2.5", FeetPerMinute, " -2 fpm", " -1 mpm", "-.76199"}),
    [](const auto& row) { return NameOf(row); });

// ---- decimals

struct MaskRow {
  const char* Name;
  const char* Text;
  int Places;
  const char* Want;
  friend void PrintTo(const MaskRow& row, std::ostream* out) { *out << row.Name; }
};
class Mask : public testing::TestWithParam<MaskRow> {};

TEST_P(Mask, ShowsExactlyItsDecimals) {
  const MaskRow& row = GetParam();
  std::string text = row.Text;
  EXPECT_EQ(FormatValue(text, PlainNumber, {Imperial, static_cast<std::int16_t>(row.Places), 5}), row.Want);
  EXPECT_EQ(text, row.Text);
}

INSTANTIATE_TEST_SUITE_P(Decimals, Mask,
                         testing::Values(MaskRow{"One", " 12.25", 1, " 12.3"},                     //
                                         MaskRow{"Two", " .25", 2, " 0.25"},                       //
                                         MaskRow{"Three", " .25", 3, " 0.250"},                    //
                                         MaskRow{"Four", " 1.23456", 4, " 1.2346"},                //
                                         MaskRow{"Five", " 1.23456", 5, " 1.23456"},               //
                                         MaskRow{"Six", " 1.23456", 6, " 1.234560"},               //
                                         MaskRow{"Seven", "-1.5", 7, " -1.5000000"},               //
                                         MaskRow{"Eight", " 0", 8, " 0.00000000"},                 //
                                         MaskRow{"Nine", " .333333333333333", 9, " 0.333333333"},  //
                                         MaskRow{"Ten", " .666666666666667", 10, " 0.6666666667"}),
                         [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(CountsWithoutAMask, Mask,
                         testing::Values(MaskRow{"NoneKeepsTheRawDigits", " .25", 0, "  .25"},        //
                                         MaskRow{"ElevenToo", " .25", 11, "  .25"},                   //
                                         MaskRow{"NegativeCountToo", "-1234.567", -1, " -1234.567"},  //
                                         MaskRow{"CommasBecomePoints", "1,5", 0, " 1.5"},             //
                                         MaskRow{"EmptyStaysEmpty", "", 0, " "}),
                         [](const auto& row) { return NameOf(row); });

// The last decimal is rounded half away from zero on the digits that the user would write down, not on the
// binary number behind them.
INSTANTIATE_TEST_SUITE_P(Ties, Mask,
                         testing::Values(MaskRow{"Up", " .0005", 3, " 0.001"},                   //
                                         MaskRow{"JustBelow", " .00049", 3, " 0.000"},           //
                                         MaskRow{"EvenDigitToo", " 2.5", 1, " 2.5"},             //
                                         MaskRow{"EvenDigitRoundsUpToo", " .125", 2, " 0.13"},   //
                                         MaskRow{"OddDigit", " .375", 2, " 0.38"},               //
                                         MaskRow{"BinaryJustBelow", " 1.005", 2, " 1.01"},       //
                                         MaskRow{"BinaryJustBelowAgain", " 2.675", 2, " 2.68"},  //
                                         MaskRow{"BinaryJustAbove", " 1.015", 2, " 1.02"},       //
                                         MaskRow{"Negative", "-.0005", 3, " -0.001"},            //
                                         MaskRow{"NegativeEvenDigit", "-2.125", 2, " -2.13"},    //
                                         MaskRow{"NegativeJustBelow", "-2.1249", 2, " -2.12"},
                                         MaskRow{"NegativeThatIsShownAsZeroHasNoSign", "-.0004", 3,
                                                 " 0.000"},                              //
                                         MaskRow{"CarriesOver", " .9995", 3, " 1.000"},  //
                                         MaskRow{"CarriesFar", " 99.999", 2, " 100.00"}),
                         [](const auto& row) { return NameOf(row); });

// Thousands are set apart by the point that sets the decimals apart.
INSTANTIATE_TEST_SUITE_P(Thousands, Mask,
                         testing::Values(MaskRow{"JustBelow", " 999.9", 1, " 999.9"},                       //
                                         MaskRow{"One", " 1000", 2, " 1.000.00"},                           //
                                         MaskRow{"CarriedInto", " 999.9996", 3, " 1.000.000"},              //
                                         MaskRow{"WithDecimals", " 1234.5", 1, " 1.234.5"},                 //
                                         MaskRow{"Tens", " 12345.678", 2, " 12.345.68"},                    //
                                         MaskRow{"Hundreds", " 123456.5", 1, " 123.456.5"},                 //
                                         MaskRow{"Millions", " 1234567.891", 3, " 1.234.567.891"},          //
                                         MaskRow{"BeyondTheMask", " 12345678901", 1, " 12.345.678.901.0"},  //
                                         MaskRow{"Negative", "-1234.5", 3, " -1.234.500"},                  //
                                         MaskRow{"NegativeHundreds", "-123.5", 1, " -123.5"},               //
                                         MaskRow{"FifteenDigitsCount", "123456789012.345678", 5,
                                                 " 123.456.789.012.34600"}),
                         [](const auto& row) { return NameOf(row); });

TEST(ShownDecimals, FollowTheirCountWithUnitsToo) {
  std::string text = " 1234.5";
  EXPECT_EQ(FormatValue(text, Inches, {Imperial, 1, 5}), " 1.234.5 in");
  text = " .25";
  EXPECT_EQ(FormatValue(text, Inches, {Imperial, 0, 5}), "  .25 in");
  text = " .25";
  EXPECT_EQ(FormatValue(text, Degrees, {Metric, 11, 5}), "  .25 deg");
  text = " 12";
  EXPECT_EQ(FormatValue(text, Inches, {Metric, 0, 5}), "  30.48 cm");
  text = " 8000";
  EXPECT_EQ(FormatValue(text, FeetPerMinute, {Metric, 0, 5}), " 2438 mpm");
}

TEST(ShownMetricValues, AreCutToTheDecimalsOfConversionsFirst) {
  std::string text = " .05";
  EXPECT_EQ(FormatValue(text, FineInches, {Metric, 3, 4}), " 1.270 mm");
  EXPECT_EQ(text, " 1.27");
  text = " .123456";
  EXPECT_EQ(FormatValue(text, FineInches, {Metric, 6, 4}), " 3.135700 mm");
  EXPECT_EQ(text, " 3.1357");
  text = " 1.11111";
  EXPECT_EQ(FormatValue(text, SquareInches, {Metric, 5, 4}), " 7.16840 cm²");
  EXPECT_EQ(text, " 7.1684");
}

TEST(UnitSystem, IsMetricOnlyByItsOneNumber) {
  for (const int other : {0, 2, -1, 17}) {
    const auto system = static_cast<std::int16_t>(other);
    std::string text = " 12";
    EXPECT_EQ(FormatValue(text, Inches, {system, 3, 5}), " 12.000 in") << system;
    EXPECT_EQ(text, " 12");
  }
}

TEST(NumberAtHand, IsShownAsItsText) {
  EXPECT_EQ(FormatNumber(12, Inches, {Imperial, 3, 5}), " 12.000 in");
  EXPECT_EQ(FormatNumber(12, Inches, {Metric, 3, 5}), " 30.480 cm");
  EXPECT_EQ(FormatNumber(-0.25, PlainNumber, {Imperial, 2, 5}), " -0.25");
  EXPECT_EQ(FormatNumber(0.25, PlainNumber, {Imperial, 0, 5}), "  .25");
  EXPECT_EQ(FormatNumber(1200, RevolutionsPerMinute, {Metric, 3, 5}), " 1200 rpms");
  EXPECT_EQ(FormatNumber(2.675, PlainNumber, {Imperial, 2, 5}), " 2.68");
}

}  // namespace
}  // namespace tarnwick
