#pragma once

#include <optional>

#include "platform/PrintDevice.h"

namespace tarnwick {

/// Which sheets of a saw are printed.
enum class SawPages { Both, Drawing, Info };

/// The layout of a page: what a sheet is built on. Twips, from the corner of the paper.
struct PrintPage {
  int Paper = LetterPaper;
  PaperOrientation Turned = PaperOrientation::Portrait;
  double Width{}, Height{};  // as the eye holds the sheet; the width of the paper is the one of FitPaper
  double Left{}, Top{};      // the origin
  PaperBox Frame;            // of the drawing

  [[nodiscard]] bool IsPortrait() const { return Turned == PaperOrientation::Portrait; }
  // The paper is half an inch wider than the page; on one that is turned that lies below.
  [[nodiscard]] double PaperWidth() const { return IsPortrait() ? 8.5 * TwipsPerInch : Width; }
  [[nodiscard]] double PaperHeight() const { return IsPortrait() ? Height : 8.5 * TwipsPerInch; }
  bool operator==(const PrintPage&) const = default;
};

inline constexpr double TextPoints = 9;      // of all text that says nothing else
inline constexpr double SheetRow = 265;      // height of a row of text
inline constexpr double FirstRowTop = 2400;  // of the rows below the header
inline constexpr double FootMargin = 360;    // below the last row, and below a drawing
inline constexpr double SideMargin = 240;    // that texts keep from the paper's border

// The three groups of columns, 1 to 3; the third has room on a landscape sheet only.
[[nodiscard]] double LabelX(int column, const PrintPage& page);
[[nodiscard]] double ValueX(int column, const PrintPage& page);

/// The layout for paper in a printer. Paper that is none of letter, legal, 12 or 13 inches is taken for
/// letter.
///
/// All paper is 8.5 inches wide, and a page 8 inches: widths and heights become whole inches on their way
/// here, half to even, so that 8.5 gives 8. It is meant so; the columns and the frame are made for it.
[[nodiscard]] PrintPage PageFor(const PrinterSetup& setup);

/// The layout for the paper that the device has; one with other paper is set up for letter.
/// @return nullopt when the device cannot take that
[[nodiscard]] std::optional<PrintPage> FitPaper(PrintDevice& device);

}  // namespace tarnwick
