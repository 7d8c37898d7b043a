#include "window/modDisplay.h"

#include <string_view>
#include <utility>

#include "model/modDecim.h"
#include "window/modGulletRow.h"
#include "window/modRowText.h"

namespace tarnwick {
namespace {

constexpr int RowsOfATooth = 4;

/// Adds row to row. A section is one function, in the order of the panel.
class Builder {
 public:
  Builder(const BandSaw& saw, const DisplayFormat& format, double width)
      : saw_(saw), format_(format), width_(width) {}

  SawInfo Build() {
    if (saw_.ContainsInfo.Teeth) Teeth();
    if (saw_.GeneralInfo.VariablePitch) VariablePitch();
    if (saw_.ContainsInfo.General) General();
    if (saw_.ContainsInfo.Machine) Machine();
    if (saw_.ContainsInfo.Power) Power();
    return std::move(rows_);
  }

 private:
  // ---- rows

  void Text(RowCode code, std::string_view caption, std::string value) {
    const double top = static_cast<double>(rows_.size()) * RowHeight;
    rows_.push_back({.Row = static_cast<std::int16_t>(rows_.size() + 1),
                     .Code = code,
                     .Caption = std::string(caption),
                     .Value = std::move(value),
                     .Header = code == RowCode::Header,
                     .Box = {0, top, width_, top + RowHeight}});
  }
  void Number(RowCode code, std::string_view caption, double value, UnitKind kind) {
    Text(code, caption, FormatNumber(value, kind, format_));
  }
  void NumberIfSet(RowCode code, std::string_view caption, double value, UnitKind kind) {
    if (value != 0) Number(code, caption, value, kind);
  }
  void TextIfSet(RowCode code, std::string_view caption, std::string value) {
    if (!value.empty()) Text(code, caption, std::move(value));
  }
  void Whole(RowCode code, std::string_view caption, int value) { Text(code, caption, DecimalText(value)); }

  /// A heading, with a blank row between it and the section above.
  void Section(std::string_view heading) {
    if (!rows_.empty()) Text(RowCode::Blank, "", "");
    Text(RowCode::Header, heading, "");
  }

  /// Says of the row just added that its figure is one for many teeth.
  void AverageIf(Flag flag) {
    if (flag) rows_.back().Value += AverageMark;
  }

  // ---- sections

  void Teeth() {
    Section("Band Saw Teeth:");
    TextIfSet(RowCode::ToothStyle, "Tooth Style:", ToothStyleText(saw_));
    NumberIfSet(RowCode::Length, "Length:", saw_.Length, Feet);
    NumberIfSet(RowCode::Width, "Band Saw Width:", saw_.Width, Inches);
    if (saw_.NumTeeth != 0) Whole(RowCode::NumTeeth, "Number Of Teeth:", saw_.NumTeeth);
    if (saw_.Pitch != 0) {
      Number(RowCode::Pitch, "Tooth Spacing:", saw_.Pitch, Inches);
      AverageIf(saw_.GeneralInfo.VariablePitch);
    }
    Number(RowCode::HookAngle, "Hook Angle:", saw_.HookAngle, Degrees);
    Number(RowCode::ClearAngle, "Clearance Angle:", saw_.ClearAngle, Degrees);
    Number(RowCode::SharpAngle, "Sharpness Angle:", saw_.GulletInfo.Sharpangle, Degrees);
    GulletOfStyle();
    Gullet();
    SeatAndTip();
  }

  void GulletOfStyle() {
    for (const GulletRow& row : GulletRowsOfStyle(saw_.ToothStyle)) {
      const double measure = saw_.GulletInfo.*row.Measure;
      if (row.Code == RowCode::BackAngle ? HasBack() : measure != 0) {
        Number(row.Code, row.Caption, measure, row.Kind);
      }
    }
  }

  /// A back straight up is one too; a flat bottom without its second radius has none.
  [[nodiscard]] bool HasBack() const { return saw_.ToothStyle != FlatBottom || saw_.GulletInfo.Radius2 != 0; }

  void Gullet() {
    const BandSaw::Gullet& g = saw_.GulletInfo;
    NumberIfSet(RowCode::GulletDepth, "Gullet Depth:", g.Depth, Inches);
    NumberIfSet(RowCode::BackRadius, "Gullet Back Radius:", g.BackRadius, Inches);
    if (ShowsGulletArea(saw_)) {
      Number(RowCode::GulletArea, "Gullet Area:", g.Area, SquareInches);
      AverageIf(saw_.GeneralInfo.VariableDepth);
    }
  }

  void SeatAndTip() {
    constexpr std::int16_t carbide = 3;
    if (saw_.SeatInfo.State || saw_.GeneralInfo.TipType == carbide) {
      Text(RowCode::Seat, "Seat:", SeatText(saw_));
    }
    if (saw_.SeatInfo.State) {
      NumberIfSet(RowCode::SeatWidth, "Seat Width:", saw_.SeatInfo.Width, FineInches);
      NumberIfSet(RowCode::SeatHeight, "Seat Height:", saw_.SeatInfo.Height, FineInches);
    }
    NumberIfSet(RowCode::TipClearance, "Tip Clearance:", saw_.TipClear, FineInches);
    if (saw_.GulletInfo.FaceLength > 0) {
      Number(RowCode::FaceLength, "Face Length:", saw_.GulletInfo.FaceLength, FineInches);
      AverageIf(saw_.GeneralInfo.VariablePitch);
    }
  }

  void VariablePitch() {
    Section("Variable Pitch:");
    Whole(RowCode::TeethInSegment, "Teeth in Segment:", saw_.GeneralInfo.NumVariables);
    Number(RowCode::SegmentLength, "Length of Segment:", saw_.DesignInfo.SegmentLength, Inches);
    for (int i = 0; i < TeethOfSegmentShown(saw_); ++i) ToothOfSegment(i);
  }

  void ToothOfSegment(int i) {
    const auto at = static_cast<std::size_t>(i);
    int code = static_cast<int>(RowCode::FirstTooth) + i * RowsOfATooth;
    const auto next = [&code] { return static_cast<RowCode>(code++); };
    Text(next(), ToothOfSegmentCaptions[at], "");
    Number(next(), "    Pitch:", saw_.GeneralInfo.VarPitch[at], Inches);
    Number(next(), "    Depth:", saw_.GeneralInfo.VarDepth[at], Inches);
    Number(next(), "    Area:", saw_.DesignInfo.VarArea[at], SquareInches);
  }

  void General() {
    const BandSaw::General& g = saw_.GeneralInfo;
    Section("General Information:");
    if (g.Quantity > 0) Whole(RowCode::Quantity, "Number Of Saws:", g.Quantity);
    Text(RowCode::TipType, "Type of Tip:", TipText(saw_));
    Text(RowCode::JoinStyle, "Join Bandsaw Ends:", JoinText(saw_));
    if (saw_.BothEdges) Text(RowCode::BothEdges, "Teeth on Both Edges:", " Yes");
    NumberIfSet(RowCode::PlateThick, "Plate Thickness:", g.PlateThick, FineInches);
    NumberIfSet(RowCode::Kerf, "Cut Width (Kerf):", g.Kerf, FineInches);
    NumberIfSet(RowCode::SideClear, "Side Clearance:", g.SideClear, FineInches);
  }

  void Machine() {
    Section("Machine Information:");
    NumberIfSet(RowCode::WheelDia, "Wheel Diameter:", saw_.MachineInfo.WheelDia, Feet);
    NumberIfSet(RowCode::CenterToCenter, "Center to Center:", saw_.MachineInfo.CenterToCenter, Feet);
    NumberIfSet(RowCode::RimWidth, "Wheel Rim Width:", saw_.MachineInfo.Width, Inches);
  }

  void Power() {
    const BandSaw::General& g = saw_.GeneralInfo;
    Section("Power Requirements:");
    NumberIfSet(RowCode::ShaftSpeed, "Wheel RPMs:", g.ShaftSpeed, RevolutionsPerMinute);
    NumberIfSet(RowCode::SawVelocity, "Tooth Speed:", saw_.DesignInfo.SawVelocity, FeetPerMinute);
    NumberIfSet(RowCode::DepthOfCut, "Depth of Cut (Max):", g.DepthOfCut, Inches);
    NumberIfSet(RowCode::FeedRate, "Feed Rate:", g.FeedRate, FeetPerMinute);
    NumberIfSet(RowCode::Bite, "Bite:", saw_.GulletInfo.Bite, FineInches);
    TextIfSet(RowCode::WoodType, "Type of Wood:", WoodText(saw_));
    NumberIfSet(RowCode::HorsePower, "Horsepower:", g.HorsePower, PlainNumber);
  }

  const BandSaw& saw_;
  const DisplayFormat& format_;
  double width_;
  SawInfo rows_;
};

}  // namespace

SawInfo BuildSawInfo(const BandSaw& saw, const DisplayFormat& format, double width) {
  return Builder(saw, format, width).Build();
}

}  // namespace tarnwick
