#include "model/modCircular.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

// The doubles next to the true values, worked out with 113 bits.

struct CircularRow {
  const char* Name;
  double Angle, Sine, Cosine, Tangent;
  friend void PrintTo(const CircularRow& row, std::ostream* out) { *out << row.Name; }
};
class CircularFunctions : public testing::TestWithParam<CircularRow> {};

TEST_P(CircularFunctions, AreRightToTheLastDigit) {
  const CircularRow& row = GetParam();
  EXPECT_EQ(Sine(row.Angle), row.Sine);
  EXPECT_EQ(Cosine(row.Angle), row.Cosine);
  EXPECT_EQ(Tangent(row.Angle), row.Tangent);
}

INSTANTIATE_TEST_SUITE_P(
    Angles, CircularFunctions,
    testing::Values(
        CircularRow{"Nothing", 0, 0, 1, 0},
        CircularRow{"HookAngle", 0.4363323129985821, 0x1.b0c2d7737984ep-2, 0x1.d0079302dd768p-1,
                    0x1.dd7fc13699aabp-2},
        CircularRow{"AnEighth", 0.7853981633974483, 0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp-1,
                    0x1.fffffffffffffp-1},
        CircularRow{"ASixth", 1.0471975511965976, 0x1.bb67ae8584caap-1, 0x1.0000000000001p-1,
                    0x1.bb67ae8584ca8p+0},
        CircularRow{"AQuarter", 1.5707963267948966, 1, 0x1.1a62633145c07p-54, 0x1.d02967c31cdb5p+53},
        CircularRow{"AQuarterOfFifteenDigits", 1.570796326794895, 1, 0x1.d1a62633145cp-50,
                    0x1.197b7e0796822p+49},
        CircularRow{"SecondQuarter", 2.5, 0x1.326af0dcfcab1p-1, -0x1.9a2f7ef858b7dp-1, -0x1.7e79b4e00bb15p-1},
        CircularRow{"AHalfOfFifteenDigits", 3.14159265358979, 0x1.d1a62633145cp-49, -1,
                    -0x1.d1a62633145cp-49},
        CircularRow{"ThirdQuarter", 3.3, -0x1.43102cab70c87p-3, -0x1.f996f2ca70bb6p-1, 0x1.4728c74effcf3p-3},
        CircularRow{"NearlyAllAround", 6.28, -0x1.a180fe0f0fda7p-9, 0x1.ffff55c68488ep-1,
                    -0x1.a18188ddf1e5ap-9},
        CircularRow{"Clockwise", -0.3, -0x1.2e9cd95baba33p-2, 0x1.e921dd42f09bap-1, -0x1.3cc2a44e29998p-2},
        CircularRow{"ClockwiseFurther", -2, -0x1.d18f6ead1b446p-1, -0x1.aa22657537205p-2,
                    0x1.17af62e0950f8p+1},
        CircularRow{"ManyTimesAround", 1e9, 0x1.1778cae83c69bp-1, 0x1.acff8c7364234p-1,
                    0x1.4d8b249e3dba7p-1}),
    [](const auto& row) { return std::string(row.param.Name); });

struct ArctangentRow {
  const char* Name;
  double Tangent, Want;
  friend void PrintTo(const ArctangentRow& row, std::ostream* out) { *out << row.Name; }
};
class ArctangentOf : public testing::TestWithParam<ArctangentRow> {};

TEST_P(ArctangentOf, IsRightToTheLastDigit) { EXPECT_EQ(Arctangent(GetParam().Tangent), GetParam().Want); }

INSTANTIATE_TEST_SUITE_P(Tangents, ArctangentOf,
                         testing::Values(ArctangentRow{"Nothing", 0, 0},                      //
                                         ArctangentRow{"Tiny", 1e-9, 0x1.12e0be826d695p-30},  //
                                         ArctangentRow{"ATenth", 0.1, 0x1.983e282e2cc4dp-4},  //
                                         ArctangentRow{"AHalf", 0.5, 0x1.dac670561bb4fp-2},   //
                                         ArctangentRow{"One", 1, 0x1.921fb54442d18p-1},       //
                                         ArctangentRow{"Steep", 57.28996163075942, 0x1.8da7e39bae2a3p+0},
                                         ArctangentRow{"Upright", 1e16, 0x1.921fb54442d18p+0},
                                         ArctangentRow{"Downward", -0.75, -0x1.4978fa3269ee1p-1}),
                         [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace tarnwick
