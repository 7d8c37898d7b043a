#pragma once

#include <cstdint>
#include <string>

namespace tarnwick {

/// Values of `ImpMetric`; any other counts as imperial.
enum UnitSystem : std::int16_t { Imperial = 0, Metric = 1 };

/// How numbers are shown: the unit system in use and the user's two counts of decimals.
struct DisplayFormat {
  std::int16_t ImpMetric = Imperial;
  std::int16_t DisplayPlaces = 3;  // 1 to 10; any other count shows the digits as they are
  std::int16_t DecimalPlaces = 5;  // of conversions

  [[nodiscard]] bool IsMetric() const { return ImpMetric == Metric; }
};

/// What a number measures: it settles unit word, metric factor and number format.
enum UnitKind : int {
  PlainNumber = 0,
  Inches = 1,        // metric: cm
  Feet = 2,          // metric: m
  Degrees = 3,       //
  SquareInches = 4,  // metric: cm²
  FineInches = 5,    // metric: mm
  RevolutionsPerMinute = 6,
  FeetPerMinute = 7,  // metric: m per minute
};

/// The one road from a stored number to what the user sees: converted to the unit system in use, masked to
/// the shown decimals, the unit word behind it, one blank ahead: " 2.500 in".
///
/// The text is read back as well as looked at, so the unit word is one that EvaluateEquation deletes.
/// Thousands are set apart by a point as the decimals are: " 1.234.500 in". That is meant.
///
/// @param text  decimal text of the number in its stored, imperial unit; comes back converted. An empty text
///              is 0.
/// @param kind  a UnitKind; any other number is a PlainNumber
[[nodiscard]] std::string FormatValue(std::string& text, int kind, const DisplayFormat& format);

/// The same for a number at hand.
[[nodiscard]] std::string FormatNumber(double value, int kind, const DisplayFormat& format);

}  // namespace tarnwick
