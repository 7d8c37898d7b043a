#include "entry/modFraction.h"

#include <cmath>
#include <cstdint>

#include "model/modCharacters.h"
#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr std::int16_t FinestParts = 64;  // of an inch
constexpr int MostHalvings = 101;

/// Digits behind the point; a text without one counts whole.
int PlacesOfText(std::string_view text) {
  const std::size_t point = text.find('.');
  return static_cast<int>(point == std::string_view::npos ? text.size() : text.size() - point - 1);
}

bool IsMultipleOf(double value, double divisor) {
  const double times = value / divisor;
  return times - std::trunc(times) == 0;
}

/// Halves both as long as the numerator is even. A negative numerator comes back positive.
void ReduceFraction(std::int16_t& numerator, std::int16_t& denominator) {
  for (int round = 0; round < MostHalvings && numerator % 2 == 0; ++round) {
    numerator = static_cast<std::int16_t>(numerator / 2);
    denominator = static_cast<std::int16_t>(denominator / 2);
  }
  if (numerator < 0) numerator = static_cast<std::int16_t>(-numerator);
}

/// Empty for 0; two blanks ahead of a fraction, which set it apart from the whole inches.
std::string FractionText(double fraction) {
  if (!IsMultipleOf(fraction, 1.0 / FinestParts)) return DecimalText(fraction);
  std::int16_t numerator = WholeNumber<std::int16_t>(fraction * FinestParts).value_or(0);
  std::int16_t denominator = FinestParts;
  ReduceFraction(numerator, denominator);
  if (numerator == 0) return {};
  return "  " + std::to_string(numerator) + '/' + std::to_string(denominator);
}

}  // namespace

std::string DecimalToFraction(std::string_view text) {
  const double value = ReadNumber(text);
  const auto whole = WholeNumber<std::int16_t>(std::trunc(value)).value_or(0);
  const double fraction = RoundTo(value - whole, PlacesOfText(Trimmed(text)));
  const std::string shown = FractionText(fraction);
  if (whole != 0) return std::to_string(whole) + shown;
  return shown.empty() ? "0" : std::string(Trimmed(shown));
}

}  // namespace tarnwick
