#include "power/modPowerSheet.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/modCharacters.h"
#include "model/modDecim.h"
#include "store/modCodePage.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::size_t>;  // of the estimates: those in which a line is marked

std::string PercentText(double index) { return DecimalText(index * 100) + " Percent"; }

/// Appends lines, one figure after another.
class Sheet {
 public:
  Sheet(PowerLines& lines, const DisplayFormat& format) : lines_(lines), format_(format) {}

  /// Lines are marked from here on as they are in that row of the estimates.
  void BeginRow(std::size_t row) { row_ = row; }

  void Heading(std::string text) { Append({PowerLine::Role::Heading, std::move(text)}); }
  void Blank(std::string label) { Append({PowerLine::Role::Blank, std::move(label)}); }
  void Number(std::string label, double value, UnitKind kind, const Rows& changed = {}) {
    Text(std::move(label), FormatNumber(value, kind, format_), changed);
  }
  void Text(std::string label, std::string text, const Rows& changed = {}) {
    const bool marked = std::find(changed.begin(), changed.end(), row_) != changed.end();
    Append({PowerLine::Role::Figure, std::move(label), std::move(text), marked});
  }
  void Wood(const PowerEstimate& row) { Text("Type of Wood:", Utf8OfCodePage(row.WoodType.Trimmed())); }

 private:
  void Append(PowerLine line) { lines_.push_back(std::move(line)); }

  PowerLines& lines_;
  const DisplayFormat& format_;
  std::size_t row_ = CurrentFigures;
};

std::string RowHeading(std::size_t row, LinesFor place) {
  const bool onWindow = place == LinesFor::Window;
  if (row == CurrentFigures) return onWindow ? "Current Power Requirements" : "Current Estimate";
  return (onWindow ? "Power Estimate # " : "Estimate # ") + std::to_string(row);
}

void AppendEstimate(Sheet& sheet, const PowerEstimate& row, double feedIndex, LinesFor place) {
  const Rows always{ByPitch, ByWheelSpeed, ByBite};
  sheet.Number("Wheel Diameter:", row.WheelDia, Feet);
  sheet.Number("Wheel RPM's:", row.ShaftSpeed, RevolutionsPerMinute, {ByWheelSpeed});
  sheet.Number(place == LinesFor::Window ? "Saw Velocity:" : "Tooth Speed:", row.SawVelocity, FeetPerMinute,
               {ByWheelSpeed});
  sheet.Number("Tooth Pitch:", row.Pitch, Inches, {ByPitch});
  sheet.Number("Plate Thickness:", row.PlateThick, FineInches);
  sheet.Number("Tip Kerf:", row.Kerf, FineInches);
  sheet.Number("Side Clearance:", row.SideClear, FineInches);
  sheet.Number("Depth of Cut:", row.DepthOfCut, Inches);
  sheet.Number("Feed Rate:", row.FeedRate, FeetPerMinute, always);
  sheet.Blank(" ");
  sheet.Wood(row);
  sheet.Number("Bite:", row.Bite, FineInches, {ByBite});
  sheet.Number("Gullet Capacity (Required):", row.Capacity, SquareInches, {ByBite});
  // Marked although no estimate changes the gullet: meant so.
  sheet.Number("Gullet Capacity (Actual):", row.AreaBelowTip, SquareInches, {ByBite});
  sheet.Text("Gullet Feed Index:", PercentText(feedIndex));
  sheet.Number("Horsepower:", row.HorsePower, PlainNumber, always);
}

}  // namespace

PowerLines EstimateLines(const PowerEstimates& rows, double feedIndex, const DisplayFormat& format,
                         LinesFor place) {
  PowerLines lines;
  Sheet sheet(lines, format);
  for (std::size_t i = CurrentFigures; i < rows.size(); ++i) {
    if (i != CurrentFigures) sheet.Blank("");
    sheet.BeginRow(i);
    sheet.Heading(RowHeading(i, place));
    AppendEstimate(sheet, rows[i], feedIndex, place);
  }
  return lines;
}

std::string EstimateHeading(double percent, LinesFor place) {
  const std::string number(Trimmed(DecimalText(std::trunc(percent))));
  return place == LinesFor::Window
             ? "Power estimates based on increasing feedrate by " + number + " percent."
             : "Estimates for bandsaw based on increasing feedrate by " + number + " percent";
}

PowerEstimate CalculationRow(const BandSaw& saw, double feedIndex) {
  PowerEstimate row = StoredFigures(saw);
  row.CenterToCenter = saw.MachineInfo.CenterToCenter;
  row.Capacity = saw.GulletInfo.Capacity;
  row.FeedIndex = feedIndex;
  return row;
}

PowerLines CalculationLines(const PowerEstimate& row, int number, const DisplayFormat& format) {
  PowerLines lines;
  Sheet sheet(lines, format);
  sheet.Heading("Power Calculation # " + std::to_string(number));
  sheet.Number("Wheel Diameter:", row.WheelDia, Feet);
  sheet.Number("Center to Center:", row.CenterToCenter, Feet);
  sheet.Number("Bandsaw Length:", row.Length, Feet);
  sheet.Number("Tooth Pitch:", row.Pitch, Inches);
  sheet.Text("Number of Teeth:", DecimalText(row.NumTeeth));
  sheet.Number("Plate Thickness:", row.PlateThick, FineInches);
  sheet.Number("Tip Kerf:", row.Kerf, FineInches);
  sheet.Number("Side Clearance:", row.SideClear, FineInches);
  sheet.Number("Wheel RPM's:", row.ShaftSpeed, RevolutionsPerMinute);
  sheet.Number("Tooth Speed:", row.SawVelocity, FeetPerMinute);
  sheet.Number("Depth of Cut:", row.DepthOfCut, Inches);
  sheet.Number("Feed Rate:", row.FeedRate, FeetPerMinute);
  sheet.Blank(" ");
  sheet.Wood(row);
  sheet.Number("Bite:", row.Bite, FineInches);
  sheet.Number("Total Gullet Area:", row.GulletArea, SquareInches);
  sheet.Number("Gullet Capacity:", row.Capacity, SquareInches);
  sheet.Text("Gullet Feed Index:", PercentText(row.FeedIndex));
  sheet.Number("Horsepower:", row.HorsePower, PlainNumber);
  return lines;
}

PowerLinePlace PlaceOfPowerRow(int row) {
  constexpr int RowsOfABlock = 50, RowHeight = 265;
  if (row < RowsOfABlock) return {.LabelX = 1200, .TextX = 3950, .Y = RowHeight * row};
  return {.LabelX = 6250, .TextX = 9000, .Y = RowHeight * (row - RowsOfABlock)};
}

}  // namespace tarnwick
