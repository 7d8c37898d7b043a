#include "window/modSelect.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {
namespace {

struct AskedRow {
  RowCode Code;
  Parameter Asked;
};

constexpr AskedRow AskedRows[] = {
    {RowCode::ToothStyle, Parameter::ToothStyle},
    {RowCode::Length, Parameter::BandLength},
    {RowCode::Width, Parameter::BandWidth},
    {RowCode::NumTeeth, Parameter::NumTeeth},
    {RowCode::Pitch, Parameter::Pitch},
    {RowCode::HookAngle, Parameter::HookAngle},
    {RowCode::ClearAngle, Parameter::ClearanceAngle},
    {RowCode::GulletRadius, Parameter::GulletRadius},
    {RowCode::Radius1, Parameter::FirstGulletRadius},
    {RowCode::Radius2, Parameter::SecondGulletRadius},
    {RowCode::Radius3, Parameter::ThirdGulletRadius},
    {RowCode::BottomAngle, Parameter::GulletBottomAngle},
    {RowCode::GulletWidth, Parameter::GulletWidth},
    {RowCode::BackAngle, Parameter::GulletBackAngle},
    {RowCode::FrostWidth, Parameter::FrostNotchWidth},
    {RowCode::FrostHeight, Parameter::FrostNotchHeight},
    {RowCode::FrostRadius, Parameter::FrostNotchRadius},
    {RowCode::FrostAngle, Parameter::FrostNotchAngle},
    {RowCode::GulletDepth, Parameter::GulletDepth},
    {RowCode::BackRadius, Parameter::GulletBackRadius},
    {RowCode::SeatWidth, Parameter::SeatWidth},
    {RowCode::SeatHeight, Parameter::SeatHeight},
    {RowCode::TipClearance, Parameter::TipClearance},
    {RowCode::TipType, Parameter::TipType},
    {RowCode::JoinStyle, Parameter::JoinStyle},
    {RowCode::PlateThick, Parameter::PlateThickness},
    {RowCode::Kerf, Parameter::TipKerf},
};

struct OwnedRows {
  RowCode First, Last;
  int MustUse;
};

constexpr OwnedRows RowsOfOthers[] = {
    {RowCode::TeethInSegment, RowCode::LastTooth, 102}, {RowCode::Quantity, RowCode::Quantity, 104},
    {RowCode::BothEdges, RowCode::BothEdges, 104},      {RowCode::WheelDia, RowCode::RimWidth, 101},
    {RowCode::ShaftSpeed, RowCode::HorsePower, 103},
};

struct HintedRow {
  RowCode Code;
  std::string_view Control;
};

// Rows that open no dialog, whose figure stands in a box with a hint.
constexpr HintedRow HintedRows[] = {
    {RowCode::GulletArea, "txtGulletArea"},
    {RowCode::Quantity, "txtQuantity"},
};

bool IsResult(RowCode code, int toothStyle) {
  return code == RowCode::ClearAngle && (toothStyle == NarrowStyle || toothStyle == OShape);
}

std::optional<Parameter> AskedOf(RowCode code) {
  const auto* const row = std::find_if(std::begin(AskedRows), std::end(AskedRows),
                                       [code](const AskedRow& r) { return r.Code == code; });
  return row == std::end(AskedRows) ? std::nullopt : std::optional(row->Asked);
}

/// Whether a box shows the figure of a row.
bool ShowsFigure(const PanelField& field, RowCode code) {
  if (code == RowCode::Seat) return field.Act == BoxAct::AskSeat;
  if (field.Act == BoxAct::Ask) return AskedOf(code) == field.Asked;
  return std::any_of(std::begin(HintedRows), std::end(HintedRows),
                     [&](const HintedRow& row) { return row.Code == code && row.Control == field.Control; });
}

}  // namespace

const InfoRow* FindRow(const SawInfo& rows, int x, int y) {
  const auto found = std::find_if(rows.begin(), rows.end(), [x, y](const InfoRow& row) {
    return x >= row.Box.Left && x <= row.Box.Right && y >= row.Box.Top && y <= row.Box.Bottom;
  });
  return found == rows.end() ? nullptr : &*found;
}

RowAct ActOfRow(RowCode code, int toothStyle) {
  if (IsResult(code, toothStyle)) return {};
  if (code == RowCode::Seat) return {.Act = BoxAct::AskSeat};
  if (const auto asked = AskedOf(code)) return {.Act = BoxAct::Ask, .Asked = *asked};
  for (const OwnedRows& rows : RowsOfOthers) {
    if (code >= rows.First && code <= rows.Last) return {.Act = BoxAct::MustUse, .MustUse = rows.MustUse};
  }
  return {};
}

BoxHint HintOfRow(RowCode code) {
  for (const std::span<const PanelField> fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      if (ShowsFigure(field, code)) return HintOfBox(field);
    }
  }
  return {};
}

}  // namespace tarnwick
