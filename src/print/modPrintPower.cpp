#include "print/modPrintPower.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr int RowsOfABlock = 50;
constexpr double HeadingHeight = 1.5 * SheetRow;  // with the air below it

/// How many rows stand one below the other, the foot and the empty row above it among them.
int RowsOf(const PowerSheetText& text) {
  const int rows = static_cast<int>(text.Lines.size()) + (text.Foot.empty() ? 0 : 2);
  return std::clamp(rows, 1, RowsOfABlock);
}

/// Prints line after line.
class LinePrinter {
 public:
  /// @param rows  that the sheet is to hold
  LinePrinter(PrintSheet& sheet, const PrintPage& page, double top, int rows)
      : sheet_(sheet),
        top_(top),
        squeeze_(std::min(1.0, (page.PaperHeight() - FootMargin - top) / (rows * SheetRow))),
        points_(std::min(TextPoints, MostOfRow * squeeze_ * SheetRow / TwipsPerPoint)) {}

  void Print(const std::string& label, const std::string& text = {}, bool heading = false) {
    const PowerLinePlace place = PlaceOfPowerRow(row_++);
    const double y = top_ + place.Y * squeeze_;
    const auto put = [&](double x, const std::string& words) {
      if (!words.empty()) sheet_.push_back(SheetText{{x, y}, words, {points_, heading}});
    };
    put(place.LabelX, label);
    put(place.TextX, text);
  }
  void Skip() { ++row_; }

 private:
  static constexpr double MostOfRow = 0.8;  // that the letters may take

  PrintSheet& sheet_;
  const double top_, squeeze_, points_;
  int row_ = 0;
};

/// The figures begin with a blank of their own; the wood, to stand below them, needs one.
std::string InColumn(const std::string& text) {
  return text.empty() || text.front() == ' ' ? text : ' ' + text;
}

}  // namespace

void AppendPowerLines(PrintSheet& sheet, const PowerSheetText& text, const PrintPage& page, double top) {
  sheet.push_back(
      SheetText{{static_cast<double>(PlaceOfPowerRow(0).LabelX), top}, text.Heading, {TextPoints, true}});
  LinePrinter printer(sheet, page, top + HeadingHeight, RowsOf(text));
  for (const PowerLine& line : text.Lines) {
    if (line.Is == PowerLine::Role::Blank) {
      printer.Skip();
    } else {
      printer.Print(line.Label, InColumn(line.MarkedText()), line.Is == PowerLine::Role::Heading);
    }
  }
  if (text.Foot.empty()) return;
  printer.Skip();
  printer.Print(text.Foot);
}

}  // namespace tarnwick
