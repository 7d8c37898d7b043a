#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "entry/modFormat.h"
#include "power/modPowerEstimate.h"

namespace tarnwick {

/// A line of power figures, on a window or on paper.
struct PowerLine {
  enum class Role { Heading, Figure, Blank };  // a heading has no text, a blank line at most a blank label
  Role Is{};
  std::string Label;
  std::string Text{};    // as FormatValue shows the figure, a blank ahead; the wood's name without one
  bool Changed = false;  // the estimate differs here from the current figures: marked by an asterisk

  /// Text with its mark.
  [[nodiscard]] std::string MarkedText() const { return Changed ? Text + '*' : Text; }

  bool operator==(const PowerLine&) const = default;
};
using PowerLines = std::vector<PowerLine>;

/// The two places have each their own words for some lines.
enum class LinesFor { Window, Paper };

/// All four rows of the estimates one below the other, a blank line between two of them. Marked is what the
/// estimate is made by, and what follows from it, whether or not the number came out as another one.
/// @param feedIndex  GulletFeedIndex, the one that the rows were built with
[[nodiscard]] PowerLines EstimateLines(const PowerEstimates& rows, double feedIndex,
                                       const DisplayFormat& format, LinesFor place);

/// "Power estimates based on increasing feedrate by 10 percent." on the window, "Estimates for bandsaw based
/// on increasing feedrate by 10 percent" on paper. Of `percent` the whole part.
[[nodiscard]] std::string EstimateHeading(double percent, LinesFor place);

/// Below the lines of the window.
inline constexpr std::string_view EstimateNote =
    "Note: Changes have an asterisk * displayed beside the value.";

/// One calculation of the power calculator as a row for paper.
[[nodiscard]] PowerEstimate CalculationRow(const BandSaw& saw, double feedIndex);

/// Its lines on paper, below "Power Calculation # " with its number, which counts from 1.
[[nodiscard]] PowerLines CalculationLines(const PowerEstimate& row, int number, const DisplayFormat& format);

/// Where a line stands on paper, in twips (1440 to the inch) from the page's own origin.
struct PowerLinePlace {
  int LabelX, TextX, Y;
};

/// The place of the row of that number, counted from 0: two blocks of fifty rows beside each other.
[[nodiscard]] PowerLinePlace PlaceOfPowerRow(int row);

}  // namespace tarnwick
