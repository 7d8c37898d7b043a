#include "print/modPrintRow.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "model/modDecim.h"
#include "store/modCodePage.h"
#include "window/modGulletRow.h"
#include "window/modRowText.h"

namespace tarnwick {
namespace {

// ---- what the rows say

/// Adds row to row. A section is one function, in the order of the sheet.
class Builder {
 public:
  Builder(const BandSaw& saw, const DisplayFormat& format) : saw_(saw), format_(format) {}

  std::vector<SheetSection> Build(bool withPower) {
    if (saw_.ContainsInfo.Teeth) Teeth();
    if (saw_.GeneralInfo.VariablePitch) VariablePitch();
    if (saw_.ContainsInfo.General) General();
    if (saw_.ContainsInfo.Machine) Machine();
    if (withPower && saw_.ContainsInfo.Power) Power();
    return std::move(sections_);
  }

 private:
  // ---- rows

  void Section(const char* heading) { sections_.push_back({{.Label = heading, .Heading = true}}); }
  void Text(std::string_view label, std::string value) {
    sections_.back().push_back({std::string(label), std::move(value)});
  }
  void Number(std::string_view label, double value, UnitKind kind) {
    Text(label, FormatNumber(value, kind, format_));
  }
  void NumberIfSet(std::string_view label, double value, UnitKind kind) {
    if (value != 0) Number(label, value, kind);
  }
  void NumberAboveZero(std::string_view label, double value, UnitKind kind) {
    if (value > 0) Number(label, value, kind);
  }
  void Whole(std::string_view label, int value) { Text(label, DecimalText(value)); }
  void Average(std::string_view label, double value, UnitKind kind, Flag isAverage) {
    Number(label, value, kind);
    if (isAverage) sections_.back().back().Value += AverageMark;
  }

  // ---- sections

  void Teeth() {
    Section("Band Saw Teeth:");
    if (std::string style = ToothStyleText(saw_); !style.empty()) Text("Tooth Style:", std::move(style));
    NumberIfSet("Length:", saw_.Length, Feet);
    NumberIfSet("Band Saw Width:", saw_.Width, Inches);
    Whole("Number Of Teeth:", saw_.NumTeeth);
    if (saw_.Pitch != 0) Average("Tooth Spacing:", saw_.Pitch, Inches, saw_.GeneralInfo.VariablePitch);
    Number("Hook Angle:", saw_.HookAngle, Degrees);
    Number("Clearance Angle:", saw_.ClearAngle, Degrees);
    Number("Sharpness Angle:", saw_.GulletInfo.Sharpangle, Degrees);
    for (const GulletRow& row : GulletRowsOfStyle(saw_.ToothStyle)) {
      Number(row.Caption, saw_.GulletInfo.*row.Measure, row.Kind);
    }
    Gullet();
    SeatAndTip();
  }

  void Gullet() {
    const BandSaw::Gullet& g = saw_.GulletInfo;
    NumberIfSet("Gullet Depth:", g.Depth, Inches);
    NumberIfSet("Gullet Back Radius:", g.BackRadius, Inches);
    if (ShowsGulletArea(saw_)) {
      Average("Gullet Area:", g.Area, SquareInches, saw_.GeneralInfo.VariableDepth);
    }
  }

  void SeatAndTip() {
    constexpr std::int16_t carbide = 3;
    const BandSaw::Seat& seat = saw_.SeatInfo;
    if (seat.State || saw_.GeneralInfo.TipType == carbide) Text("Seat:", SeatText(saw_));
    if (seat.State) {
      NumberIfSet("Seat Width:", seat.Width, FineInches);
      NumberIfSet("Seat Height:", seat.Height, FineInches);
    }
    NumberIfSet("Tip Clearance:", saw_.TipClear, FineInches);
    // In inches here, in fine ones on the panel: meant so.
    const double face = saw_.GulletInfo.FaceLength;
    if (face != 0) Average("Face Length:", face, Inches, saw_.GeneralInfo.VariablePitch);
  }

  void VariablePitch() {
    Section("Variable Pitch:");
    Whole("Teeth in Segment:", saw_.GeneralInfo.NumVariables);
    Number("Length of Segment:", saw_.DesignInfo.SegmentLength, Inches);
    for (int i = 0; i < TeethOfSegmentShown(saw_); ++i) ToothOfSegment(static_cast<std::size_t>(i));
  }

  void ToothOfSegment(std::size_t i) {
    const std::string pitch = FormatNumber(saw_.GeneralInfo.VarPitch[i], Inches, format_);
    const std::string depth = FormatNumber(saw_.GeneralInfo.VarDepth[i], Inches, format_);
    Text(ToothOfSegmentCaptions[i], saw_.GeneralInfo.VariableDepth
                                        ? "      Pitch: " + pitch + "    Depth: " + depth
                                        : "    Pitch:" + pitch);
  }

  void General() {
    const BandSaw::General& g = saw_.GeneralInfo;
    Section("General Information:");
    if (g.Quantity > 0) Whole("Number Of Saws:", g.Quantity);
    Text("Type of Tip:", TipText(saw_));
    NumberIfSet("Plate Thickness:", g.PlateThick, FineInches);
    NumberIfSet("Cut Width (Kerf):", g.Kerf, FineInches);
    NumberIfSet("Side Clearance:", g.SideClear, FineInches);
    Text("Join Bandsaw Ends:", JoinText(saw_));
    if (saw_.BothEdges) Text("Teeth on Both Edges:", " Yes");
    Comments();
  }

  /// Below a heading of their own, when there are any.
  void Comments() {
    SheetSection& section = sections_.back();
    bool any = false;
    for (const auto* comment :
         {&saw_.DesignInfo.Comment1, &saw_.DesignInfo.Comment2, &saw_.DesignInfo.Comment3}) {
      const std::string text = Utf8OfCodePage(comment->Trimmed());
      if (text.empty()) continue;
      if (!std::exchange(any, true)) section.push_back({.Label = "Additional Information:", .Heading = true});
      section.push_back({.Label = text});
    }
  }

  void Machine() {
    Section("Machine Information:");
    Number("Wheel Diameter:", saw_.MachineInfo.WheelDia, Feet);
    Number("Center to Center:", saw_.MachineInfo.CenterToCenter, Feet);
    Number("Wheel Rim Width:", saw_.MachineInfo.Width, Inches);
  }

  void Power() {
    const BandSaw::General& g = saw_.GeneralInfo;
    Section("Power Requirements:");
    NumberAboveZero("Wheel RPMs:", g.ShaftSpeed, RevolutionsPerMinute);
    NumberAboveZero("Tooth Speed:", saw_.DesignInfo.SawVelocity, FeetPerMinute);
    NumberAboveZero("Depth of Cut (Max):", g.DepthOfCut, Inches);
    NumberAboveZero("Feed Rate:", g.FeedRate, FeetPerMinute);
    Number("Bite:", saw_.GulletInfo.Bite, FineInches);
    Number("Horsepower:", g.HorsePower, PlainNumber);
    Text("Type of Wood:", WoodText(saw_));
  }

  const BandSaw& saw_;
  const DisplayFormat& format_;
  std::vector<SheetSection> sections_;
};

// ---- where they stand

constexpr double LeastPoints = 7;

/// Rows of a sheet, taken one after another.
class Layout {
 public:
  Layout(const PrintPage& page, const TextRuler& ruler, double points)
      : page_(page),
        ruler_(ruler),
        points_(points),
        columns_(page.IsPortrait() ? 2 : 3),
        rows_(static_cast<int>((page.PaperHeight() - FootMargin - FirstRowTop) / SheetRow)) {}

  void Place(const SheetSection& section) {
    if (const std::optional<Cell> first = FindRoom(section)) {
      Put(*first, section);
    } else {
      PlaceParts(section);
    }
  }

  /// Torn: a section had to be divided where no heading begins. Full: a row has found no room.
  enum class Fit { Whole, Torn, Full };
  [[nodiscard]] Fit Fits() const { return fit_; }
  PrintRows Rows() { return {std::move(placed_), points_}; }

 private:
  struct Cell {
    int Column, Row;
  };

  [[nodiscard]] static int Size(const SheetSection& section) { return static_cast<int>(section.size()); }
  [[nodiscard]] static const SheetRowText& RowOf(const SheetSection& section, int i) {
    return section[static_cast<std::size_t>(i)];
  }

  /// The first cell of room for a whole section: in the column in hand, in the next ones, in what an earlier
  /// one has left. Close to another text only when there is no better place.
  [[nodiscard]] std::optional<Cell> FindRoom(const SheetSection& section) const {
    for (const double air : {400.0, 150.0}) {
      for (int i = 0; i < columns_; ++i) {
        const int column = (column_ - 1 + i) % columns_ + 1;
        for (int row = column == column_ ? NextRow(column) : 0; row + Size(section) <= rows_; ++row) {
          if (HasRoom({column, row}, section, air)) return Cell{column, row};
        }
      }
    }
    return std::nullopt;
  }

  [[nodiscard]] bool HasRoom(Cell first, const SheetSection& section, double air) const {
    const Cell above{first.Column, first.Row - 1}, below{first.Column, first.Row + Size(section)};
    if (At(above) || At(below)) return false;  // an empty row is to be between
    for (int i = 0; i < Size(section); ++i) {
      if (!HasRoom(Cell{first.Column, first.Row + i}, RowOf(section, i), air)) return false;
    }
    return true;
  }

  /// Nothing is there, and no text would run into another one or off the paper.
  [[nodiscard]] bool HasRoom(Cell cell, const SheetRowText& text, double air) const {
    if (At(cell)) return false;
    const PrintRow* left = At({cell.Column - 1, cell.Row});
    if (left && Reach(*left) + air > LabelX(cell.Column, page_)) return false;
    const double reach = Reach(Placed(cell, text));
    return At({cell.Column + 1, cell.Row}) ? reach + air <= LabelX(cell.Column + 1, page_)
                                           : reach <= page_.PaperWidth() - SideMargin;
  }

  /// How far a row's texts reach.
  [[nodiscard]] double Reach(const PrintRow& row) const {
    const PrintFont font{points_, row.Heading};
    const double label = row.LabelX + ruler_.TextSize(row.Label, font).Width;
    return row.Value.empty() ? label : std::max(label, row.ValueX + ruler_.TextSize(row.Value, font).Width);
  }

  [[nodiscard]] const PrintRow* At(Cell cell) const {
    if (cell.Column < 1 || cell.Column > columns_) return nullptr;
    const PrintRow place = PlaceOfRow(cell.Column, cell.Row, page_);
    const auto found = std::find_if(placed_.begin(), placed_.end(), [&](const PrintRow& p) {
      return p.LabelX == place.LabelX && p.Top == place.Top;
    });
    return found == placed_.end() ? nullptr : &*found;
  }

  /// Below what stands in a column, an empty row between.
  [[nodiscard]] int NextRow(int column) const {
    int next = 0;
    for (int row = 0; row < rows_; ++row) {
      if (At({column, row})) next = row + 2;
    }
    return next;
  }

  [[nodiscard]] PrintRow Placed(Cell cell, const SheetRowText& text) const {
    PrintRow placed = PlaceOfRow(cell.Column, cell.Row, page_);
    placed.Label = text.Label;
    placed.Value = text.Value;
    placed.Heading = text.Heading;
    return placed;
  }

  void Put(Cell first, const SheetSection& section) {
    for (int i = 0; i < Size(section); ++i) {
      placed_.push_back(Placed({first.Column, first.Row + i}, RowOf(section, i)));
    }
    column_ = std::max(column_, first.Column);
  }

  /// A section that nowhere has room as a whole: up to a heading within it, or else as much as there is room
  /// for, and then the rest.
  void PlaceParts(const SheetSection& section) {
    const auto inner =
        std::find_if(section.begin() + 1, section.end(), [](const auto& row) { return row.Heading; });
    if (inner != section.end()) {
      Place({section.begin(), inner});
      Place({inner, section.end()});
      return;
    }
    for (auto end = section.end() - 1; end != section.begin(); --end) {
      const SheetSection part(section.begin(), end);
      if (const std::optional<Cell> first = FindRoom(part)) {
        fit_ = std::max(fit_, Fit::Torn);
        Put(*first, part);
        return Place({end, section.end()});
      }
    }
    fit_ = Fit::Full;
    Put(AnyFree(), {section.front()});
    if (section.size() > 1) Place({section.begin() + 1, section.end()});
  }

  /// When the sheet is full: over the end of another text, or below all, rather than nowhere.
  [[nodiscard]] Cell AnyFree() const {
    Cell cell{columns_, 0};
    while (At(cell)) ++cell.Row;
    return cell;
  }

  const PrintPage& page_;
  const TextRuler& ruler_;
  const double points_;
  const int columns_, rows_;
  int column_ = 1;  // in hand
  Fit fit_ = Fit::Whole;
  std::vector<PrintRow> placed_;
};

}  // namespace

std::vector<SheetSection> InfoSections(const BandSaw& saw, const DisplayFormat& format, bool withPower) {
  return Builder(saw, format).Build(withPower);
}

PrintRow PlaceOfRow(int column, int row, const PrintPage& page) {
  return {.LabelX = LabelX(column, page),
          .Top = row * SheetRow + FirstRowTop,
          .ValueX = ValueX(column, page),
          .Bottom = (row + 1) * SheetRow + FirstRowTop,
          .Label = {},
          .Value = {}};
}

PrintRows PlaceSections(const std::vector<SheetSection>& sections, const PrintPage& page,
                        const TextRuler& ruler) {
  // Smaller letters where they keep a section together, or else where they keep a row on the sheet.
  std::optional<PrintRows> torn;
  for (double points = TextPoints;; --points) {
    Layout layout(page, ruler, points);
    for (const SheetSection& section : sections) layout.Place(section);
    if (layout.Fits() == Layout::Fit::Whole) return layout.Rows();
    if (layout.Fits() == Layout::Fit::Torn && !torn) torn = layout.Rows();
    if (points <= LeastPoints) return torn ? *torn : layout.Rows();
  }
}

void AppendRows(PrintSheet& sheet, const PrintRows& rows) {
  for (const PrintRow& row : rows.Rows) {
    const PrintFont font{rows.Points, row.Heading};
    sheet.push_back(SheetText{{row.LabelX, row.Top}, row.Label, font});
    if (!row.Value.empty()) sheet.push_back(SheetText{{row.ValueX, row.Top}, row.Value, font});
  }
}

}  // namespace tarnwick
