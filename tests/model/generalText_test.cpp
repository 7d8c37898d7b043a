#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "model/modDecim.h"

// The general form of a number against the C library's "%.15G", which is what it is meant to be. Two ways
// lead to it inside; they must meet on every double.
namespace tarnwick {
namespace {

std::string FifteenDigits(double value) {
  char text[40];
  const int length = std::snprintf(text, sizeof text, "%.15G", value);
  return {text, static_cast<std::size_t>(length)};
}

constexpr int ManyNumbers = 500'000;

TEST(GeneralText, IsFifteenDigitsOfAnyDouble) {
  std::mt19937_64 random(20);
  for (int i = 0; i < ManyNumbers; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value) && value != 0) {
      ASSERT_EQ(GeneralText(value), FifteenDigits(value));
    }
  }
}

TEST(GeneralText, IsFifteenDigitsOfAnyCoordinate) {
  std::mt19937_64 random(21);
  std::uniform_int_distribution<int> places(0, 10);
  std::uniform_real_distribution<double> magnitude(-5, 7);
  for (int i = 0; i < ManyNumbers; ++i) {
    const double raw = std::pow(10.0, magnitude(random));
    const double value = RoundTo(i % 2 == 0 ? raw : -raw, places(random));
    ASSERT_EQ(GeneralText(value), FifteenDigits(value));
    ASSERT_EQ(GeneralText(raw), FifteenDigits(raw));
  }
}

/// Every power of ten with its neighbours: where digits carry over and the exponent comes and goes.
TEST(GeneralText, IsFifteenDigitsAroundEveryPowerOfTen) {
  constexpr int neighbours = 200;
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (int exponent = -323; exponent <= 308; ++exponent) {
    double up = std::pow(10.0, exponent), down = up;
    for (int i = 0; i < neighbours; ++i) {
      ASSERT_EQ(GeneralText(up), FifteenDigits(up));
      ASSERT_EQ(GeneralText(-down), FifteenDigits(-down + 0.0));
      up = std::nextafter(up, infinity);
      down = std::nextafter(down, 0.0);
    }
  }
}

TEST(GeneralText, IsFifteenDigitsOfTheLeastNumbers) {
  for (std::uint64_t bits = 1; bits < 10'000; ++bits) {
    const auto value = std::bit_cast<double>(bits);
    ASSERT_EQ(GeneralText(value), FifteenDigits(value));
  }
}

}  // namespace
}  // namespace tarnwick
