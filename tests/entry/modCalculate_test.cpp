#include "entry/modCalculate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr int Places = 5;

std::string Repeated(std::string_view part, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += part;
  return text;
}

std::string NameOf(const auto& row) { return row.param.Name; }

// ---- texts that are equations

struct AcceptedRow {
  const char* Name;
  std::string Text;
  double Want;
  friend void PrintTo(const AcceptedRow& row, std::ostream* out) { *out << row.Name; }
};
class AcceptedEquation : public testing::TestWithParam<AcceptedRow> {};

TEST_P(AcceptedEquation, GivesItsNumberWithoutAMessage) {
  CollectedMessages say;
  std::string text = GetParam().Text;
  double value = -77;
  EXPECT_TRUE(EvaluateEquation(text, value, Places, say)) << '"' << GetParam().Text << '"';
  EXPECT_EQ(value, GetParam().Want) << '"' << GetParam().Text << '"';
  EXPECT_TRUE(say.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(PlainNumbers, AcceptedEquation,
                         testing::Values(AcceptedRow{"Whole", "12", 12},                      //
                                         AcceptedRow{"LeadingBlank", " 12", 12},              //
                                         AcceptedRow{"LeadingZeros", "007", 7},               //
                                         AcceptedRow{"Decimal", "12.5", 12.5},                //
                                         AcceptedRow{"PointFirst", ".5", 0.5},                //
                                         AcceptedRow{"PointLast", "5.", 5},                   //
                                         AcceptedRow{"PointAlone", ".", 0},                   //
                                         AcceptedRow{"Empty", "", 0},                         //
                                         AcceptedRow{"Blanks", "     ", 0},                   //
                                         AcceptedRow{"BlanksAmongDigits", "1 000", 1000},     //
                                         AcceptedRow{"BlanksAroundThePoint", "1 . 5", 1.5},   //
                                         AcceptedRow{"DecimalComma", "12,5", 12.5},           //
                                         AcceptedRow{"CommaFirst", ",5", 0.5},                //
                                         AcceptedRow{"CommaBeforeAPoint", "1,234.5", 1.234},  //
                                         AcceptedRow{"ASecondPointEndsIt", "1.2.3", 1.2},     //
                                         AcceptedRow{"AndAllBehindIt", "1.2.3+4", 1.2},       //
                                         AcceptedRow{"ShownThousands", " 1.234.500 in", 1.234}),
                         [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(Operators, AcceptedEquation,
                         testing::Values(AcceptedRow{"Sum", "1+2", 3},                                //
                                         AcceptedRow{"Difference", "10-2-3", 5},                      //
                                         AcceptedRow{"Product", "1.5*2", 3},                          //
                                         AcceptedRow{"QuotientsFromTheLeft", "8/2/2", 2},             //
                                         AcceptedRow{"ProductAndQuotientFromTheLeft", "2*3/4", 1.5},  //
                                         AcceptedRow{"Third", "1/3", 1.0 / 3},                        //
                                         AcceptedRow{"PointBeforeLine", "1+2*3", 7},                  //
                                         AcceptedRow{"PointBeforeLineTwice", "2+3*4-6/2", 11},        //
                                         AcceptedRow{"BlanksAroundOperators", " 3 - 1 / 2 ", 2.5},    //
                                         AcceptedRow{"MinusAhead", "-5", -5},                         //
                                         AcceptedRow{"PlusAhead", "+5", 5},                           //
                                         AcceptedRow{"MinusAheadOfASum", "-5+3", -2},                 //
                                         AcceptedRow{"TimesAhead", "*3", 0},                          //
                                         AcceptedRow{"NoSignBehindTimes", "2*-3", -3},                //
                                         AcceptedRow{"NoSignBehindTimesInBrackets", "2*(-3)", -6},    //
                                         AcceptedRow{"DoubledPlus", "2++3", 5},                       //
                                         AcceptedRow{"DoubledMinus", "2--3", -1},                     //
                                         AcceptedRow{"DoubledTimes", "2**3", 0},                      //
                                         AcceptedRow{"PlusLast", "4+", 4},                            //
                                         AcceptedRow{"TimesLast", "4*", 0},                           //
                                         AcceptedRow{"DivisionByZero", "10/0", Infinity},             //
                                         AcceptedRow{"NegativeDivisionByZero", "-10/0", -Infinity},   //
                                         AcceptedRow{"DivisionByNothing", "4/", Infinity},            //
                                         AcceptedRow{"DivisionByNothingGoesOn", "2/-3", Infinity},    //
                                         AcceptedRow{"DivisionByZeroWithinBrackets", "1/(1/0)", 0}),
                         [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(Brackets, AcceptedEquation,
                         testing::Values(AcceptedRow{"First", "(1+2)*3", 9},                     //
                                         AcceptedRow{"Divided", "(10+2)/4", 3},                  //
                                         AcceptedRow{"Between", "2*(3+4)*5", 70},                //
                                         AcceptedRow{"Nested", "((1+2)*(3+4))", 21},             //
                                         AcceptedRow{"NestedAlone", "((2))", 2},                 //
                                         AcceptedRow{"MinusAhead", "-(2+3)", -5},                //
                                         AcceptedRow{"MinusBetween", "2-(3-4)", 3},              //
                                         AcceptedRow{"BlanksWithin", "( 1 + 2 ) * 3", 9},        //
                                         AcceptedRow{"NothingWithin", "()", 0},                  //
                                         AcceptedRow{"NumberBefore", "2(3)", 2},                 //
                                         AcceptedRow{"NumberBeforeThenASum", "2(3)+4", 2},       //
                                         AcceptedRow{"NumberBehind", "(2)3", 2},                 //
                                         AcceptedRow{"SideBySide", "(2)(3)", 2},                 //
                                         AcceptedRow{"SecondPointWithin", "(1.2.3)*2", 2.4},     //
                                         AcceptedRow{"WrongWayRound", ")(", 0},                  //
                                         AcceptedRow{"WrongWayRoundBehindANumber", "1)+(2", 1},  //
                                         AcceptedRow{"FortyDeep", Repeated("(", 39) + "1" + Repeated(")", 39),
                                                     1}),
                         [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(MixedFractions, AcceptedEquation,
                         testing::Values(AcceptedRow{"Usual", "12 3/4", 12.75},                 //
                                         AcceptedRow{"Half", "3 1/2", 3.5},                     //
                                         AcceptedRow{"BlanksAroundTheStroke", "3 1 / 2", 3.5},  //
                                         AcceptedRow{"TwoBlanks", "1  3/16", 1.1875},           //
                                         AcceptedRow{"BlanksBehind", "3 1/2   ", 3.5},          //
                                         AcceptedRow{"WithItsUnit", "12 3/4 in", 12.75},        //
                                         AcceptedRow{"EntryOfAList", "1  1/16 in", 1.0625},     //
                                         AcceptedRow{"FractionAlone", "1/2", 0.5},              //
                                         AcceptedRow{"FractionWithItsUnit", "3/4 in", 0.75},    //
                                         AcceptedRow{"LeadingBlank", " 1/2", 0.5},              //
                                         AcceptedRow{"DecimalRestOfAList", "1 .3 in", 1.3},     //
                                         AcceptedRow{"ThreeRunsOfDigits", "  3 1/2", 15.5},     // 31/2
                                         AcceptedRow{"MinusAhead", "-3 1/2", -15.5},            // -31/2
                                         AcceptedRow{"MoreBehind", "3 1/2+1", 16.5},            // 31/2+1
                                         AcceptedRow{"EmptyNumerator", "3 /2", 3},              // 3+/2
                                         AcceptedRow{"EmptyDenominator", "3 1/", Infinity}),
                         [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(UnitWords, AcceptedEquation,
                         testing::Values(AcceptedRow{"Inches", "12.5 in", 12.5},                           //
                                         AcceptedRow{"InchesWithoutABlank", "12.5in", 12.5},               //
                                         AcceptedRow{"Feet", "2 ft", 2},                                   //
                                         AcceptedRow{"Millimetres", "12.5 mm", 12.5},                      //
                                         AcceptedRow{"CapitalMillimetres", "12.5 MM", 12.5},               //
                                         AcceptedRow{"Centimetres", "12.5 cm", 12.5},                      //
                                         AcceptedRow{"Metres", "3 m", 3},                                  //
                                         AcceptedRow{"Degrees", "14 deg", 14},                             //
                                         AcceptedRow{"MixedCaseDegrees", "14 dEg", 14},                    //
                                         AcceptedRow{"SquareInches", "12 in²", 12},                        //
                                         AcceptedRow{"CapitalSquareInches", "12 IN²", 12},                 //
                                         AcceptedRow{"SquareCentimetres", "12 cm²", 12},                   //
                                         AcceptedRow{"Revolutions", " 1200 rpms", 1200},                   //
                                         AcceptedRow{"FeetPerMinute", " 350 fpm", 350},                    //
                                         AcceptedRow{"FeetPerMinuteOfAList", " 100 Fpm", 100},             //
                                         AcceptedRow{"MetresPerMinute", " 107 mpm", 107},                  //
                                         AcceptedRow{"WordWithoutANumber", "in", 0},                       //
                                         AcceptedRow{"WordAheadOfItsNumber", "in 4", 4},                   //
                                         AcceptedRow{"WordAmongDigits", "10in5", 105},                     //
                                         AcceptedRow{"WordsOfTwoSystemsAreNotConverted", "1 in+1 cm", 2},  //
                                         AcceptedRow{"WordMadeOfTwo", "12 min", 12},                       //
                                         AcceptedRow{"InAnEquation", "(1 in + 3 in)*2 mm", 8}),
                         [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(FeetAndInches, AcceptedEquation,
                         testing::Values(AcceptedRow{"Usual", "5 ft 6 in", 5.5},                          //
                                         AcceptedRow{"Capitals", "5 FT 6 IN", 5.5},                       //
                                         AcceptedRow{"WithoutBlanksAheadOfTheWords", "5ft 6in", 5.5},     //
                                         AcceptedRow{"EntryOfAList", " 1 ft  3 in", 1.25},                //
                                         AcceptedRow{"NoBlankBehindFeetLosesADigit", "5ft6in", 5},        //
                                         AcceptedRow{"NoBlankBehindFeetLosesTheFirst", "5ft10in", 5},     //
                                         AcceptedRow{"NoBlankBehindFeetKeepsTheSecond", "5ft16in", 5.5},  //
                                         AcceptedRow{"NoInches", "10 ft in", 10},                         //
                                         AcceptedRow{"RoundedInches", "5 ft 7 in", 5.58333},              //
                                         AcceptedRow{"DecimalComma", "5,5 ft 6 in", 6},                   //
                                         AcceptedRow{"NegativeFeet", "-5 ft 6 in", -4.5},                 //
                                         AcceptedRow{"BracketsAreNotRead", "(1+1) ft 6 in", 0.5},         //
                                         AcceptedRow{"AMixedNumberIsNotRead", "1 1/2 ft 6 in", 11.5},     //
                                         AcceptedRow{"InchesFirst", "6 in 5 ft", 6}),
                         [](const auto& row) { return NameOf(row); });

// Eighty characters count, what follows is lost: 40 ones with their plus signs are 79 characters.
INSTANTIATE_TEST_SUITE_P(
    LongTexts, AcceptedEquation,
    testing::Values(AcceptedRow{"EightyCharactersCount", "3" + Repeated("+1", 39) + ".", 42},     //
                    AcceptedRow{"TheEightyFirstIsLost", "1" + Repeated("+1", 39) + "+5", 40},     //
                    AcceptedRow{"ALastDigitIsLost", Repeated(" ", 79) + "12", 1},                 //
                    AcceptedRow{"ALetterBehindThemIsLost", "1" + Repeated("+1", 39) + "+x", 40},  //
                    AcceptedRow{"AForeignLetterBehindThemIsLost", "1" + Repeated("+1", 39) + "+\u6728",
                                40},                                                               //
                    AcceptedRow{"BracketsOfEighty", Repeated("(", 40) + Repeated(")", 40), 0},     //
                    AcceptedRow{"ASquareIsOneCharacter", "in²7" + Repeated("+1", 38) + "+1", 45},  //
                    AcceptedRow{"VeryLong", "4" + Repeated("+0", 5000), 4}),
    [](const auto& row) { return NameOf(row); });

INSTANTIATE_TEST_SUITE_P(ManyCommasAndWords, AcceptedEquation,
                         testing::Values(AcceptedRow{"TwentyOneCommas", "1" + Repeated(",", 21), 1},  //
                                         AcceptedRow{"TwentyOneWords", "5" + Repeated(" m", 21), 5}),
                         [](const auto& row) { return NameOf(row); });

TEST(AnEquation, OfZeroByZeroIsAcceptedAndIsNoNumber) {
  for (std::string text : {"0/0", " /", "1+0/0*2"}) {
    CollectedMessages say;
    double value = 3;
    EXPECT_TRUE(EvaluateEquation(text, value, Places, say));
    EXPECT_TRUE(std::isnan(value)) << text;
    EXPECT_TRUE(say.Shown.empty());
  }
}

// ---- texts that are none

struct RefusedRow {
  const char* Name;
  std::string Text;
  friend void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.Name; }
};
class RefusedEquation : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedEquation, LeavesTheValueAloneAndSaysSoOnce) {
  CollectedMessages say;
  std::string text = GetParam().Text;
  double value = -77;
  EXPECT_FALSE(EvaluateEquation(text, value, Places, say));
  EXPECT_EQ(value, -77);
  ASSERT_EQ(say.Shown.size(), 1U);
  EXPECT_EQ(say.Shown[0].Text, "Not a valid equation!");
  EXPECT_EQ(say.Shown[0].Offer, Buttons::Ok);
  EXPECT_EQ(say.Shown[0].Default, Button::Ok);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, RefusedEquation,
    testing::Values(RefusedRow{"Letters", "abc"},                                                    //
                    RefusedRow{"LetterBehindANumber", "2x"},                                         //
                    RefusedRow{"LetterAheadOfANumber", "x2"},                                        //
                    RefusedRow{"MeterIsNoUnitWord", "meter"},                                        //
                    RefusedRow{"InchesIsNoUnitWord", "12 inches"},                                   //
                    RefusedRow{"FeetIsNoUnitWord", "5 feet 6 inches"},                               //
                    RefusedRow{"RpmIsNoUnitWord", "1200 rpm"},                                       //
                    RefusedRow{"SquareMillimetresAreNoUnitWord", "12 mm²"},                          //
                    RefusedRow{"InchMark", "12\""},                                                  //
                    RefusedRow{"DegreeSign", "12°"},                                                 //
                    RefusedRow{"Exponent", "1E5"},                                                   //
                    RefusedRow{"Hexadecimal", "0x10"},                                               //
                    RefusedRow{"Percent", "5%"},                                                     //
                    RefusedRow{"FirstCodeBehindTheNine", "5:"},                                      //
                    RefusedRow{"LastCodeAheadOfTheBracket", "5'"},                                   //
                    RefusedRow{"Equals", "1=1"},                                                     //
                    RefusedRow{"Power", "2^3"},                                                      //
                    RefusedRow{"Tab", "1\t2"},                                                       //
                    RefusedRow{"LineBreak", "12\n"},                                                 //
                    RefusedRow{"FullwidthDigit", "\uFF15"},                                          //
                    RefusedRow{"ForeignLetter", "5 \u6728"},                                         //
                    RefusedRow{"LowByteOfADigit", "\u0135"},                                         //
                    RefusedRow{"OpenBracket", "(1+2"},                                               //
                    RefusedRow{"ClosingBracket", "1+2)"},                                            //
                    RefusedRow{"NestedOpenBracket", "((1+2)"},                                       //
                    RefusedRow{"ClosingBracketFirst", ")5"},                                         //
                    RefusedRow{"BracketThatIsCutOff", Repeated("(", 40) + "1" + Repeated(")", 40)},  //
                    RefusedRow{"LetterInTheEightiethPlace", Repeated(" ", 79) + "x1"},               //
                    RefusedRow{"TwentyTwoCommas", "1" + Repeated(",", 22)},                          //
                    RefusedRow{"TwentyTwoWords", "5" + Repeated(" m", 22)},                          //
                    RefusedRow{"WordsThatBlanksMake", "5 i n"},                                      //
                    RefusedRow{"StrayByte", "12\xFF"},                                               //
                    RefusedRow{"ContinuationAlone", "12\xB2"},                                       //
                    RefusedRow{"SquareInTheCodePage", "12 in\xB2"},                                  //
                    RefusedRow{"CutCharacter", "12 in\xC2"},                                         //
                    RefusedRow{"OverlongDigit", "1\xC0\xB5"},                                        //
                    RefusedRow{"CutLongCharacter", "\xF0\x9F\x8C"},                                  //
                    RefusedRow{"BytesThatAreNoUtf8", Repeated("\x80\xFE", 60)}),
    [](const auto& row) { return NameOf(row); });

// ---- what becomes of the text

struct RewrittenRow {
  const char* Name;
  std::string Text, Want;
  friend void PrintTo(const RewrittenRow& row, std::ostream* out) { *out << row.Name; }
};
class RewrittenText : public testing::TestWithParam<RewrittenRow> {};

TEST_P(RewrittenText, HasPointsForCommasAndBlanksForUnitWords) {
  CollectedMessages say;
  std::string text = GetParam().Text;
  double value = 0;
  static_cast<void>(EvaluateEquation(text, value, Places, say));
  EXPECT_EQ(text, GetParam().Want);
}

INSTANTIATE_TEST_SUITE_P(Texts, RewrittenText,
                         testing::Values(RewrittenRow{"NothingToDo", "12 3/4", "12 3/4"},              //
                                         RewrittenRow{"Empty", "", ""},                                //
                                         RewrittenRow{"Comma", "12,5", "12.5"},                        //
                                         RewrittenRow{"CommaAndPoint", "1,234.5", "1.234.5"},          //
                                         RewrittenRow{"Inches", "12.5 in", "12.5   "},                 //
                                         RewrittenRow{"Capitals", "12.5 MM", "12.5   "},               //
                                         RewrittenRow{"SquareInches", "12 in²", "12    "},             //
                                         RewrittenRow{"SquareCentimetres", "6 cm²+1", "6    +1"},      //
                                         RewrittenRow{"Revolutions", " 1200 rpms", " 1200     "},      //
                                         RewrittenRow{"TwoWords", "1 in+1 cm", "1   +1   "},           //
                                         RewrittenRow{"FeetAndInches", "5 ft 6 in", " 5.5"},           //
                                         RewrittenRow{"FeetAndNoInches", "5ft6in", " 5"},              //
                                         RewrittenRow{"LessThanAFoot", "0 ft 6 in", " .5"},            //
                                         RewrittenRow{"NegativeFeet", "-5 ft 6 in", "-4.5"},           //
                                         RewrittenRow{"FractionOfAList", "1  1/16 in", "1  1/16   "},  //
                                         RewrittenRow{"RefusedWord", "meter", " eter"},                //
                                         RewrittenRow{"RefusedInches", "12 inches", "12   ches"},      //
                                         RewrittenRow{"TwentyOneOfManyCommas", "1" + Repeated(",", 23),
                                                      "1" + Repeated(".", 21) + ",,"},
                                         RewrittenRow{"TwentyOneOfManyWords", "5" + Repeated(" m", 22),
                                                      "5" + Repeated(" ", 43) + "m"},
                                         RewrittenRow{"LongTextKeepsItsLength",
                                                      Repeated("1,", 10) + Repeated("0", 90),
                                                      Repeated("1.", 10) + Repeated("0", 90)}),
                         [](const auto& row) { return NameOf(row); });

TEST(FeetAndInchesTogether, AreRoundedByTheCountOfDecimals) {
  CollectedMessages say;
  std::string text = "5 ft 7 in";
  double value = 0;
  EXPECT_TRUE(EvaluateEquation(text, value, 4, say));
  EXPECT_EQ(value, 5.5833);
  EXPECT_EQ(text, " 5.5833");
}

// ---- commas

TEST(CommaToPoint, TakesTheFirstTwentyOneCommas) {
  EXPECT_EQ(CommaToPoint(""), "");
  EXPECT_EQ(CommaToPoint("12.5"), "12.5");
  EXPECT_EQ(CommaToPoint("12,5"), "12.5");
  EXPECT_EQ(CommaToPoint("1,234,567.5"), "1.234.567.5");
  EXPECT_EQ(CommaToPoint(Repeated(",", 21)), Repeated(".", 21));
  EXPECT_EQ(CommaToPoint(Repeated("a,", 25)), Repeated("a.", 21) + Repeated("a,", 4));
}

}  // namespace
}  // namespace tarnwick
