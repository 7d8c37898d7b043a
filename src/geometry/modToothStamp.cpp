#include "geometry/modToothStamp.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

using Piece = std::variant<ToothLine ToothProfile::*, ToothArc ToothProfile::*>;

/// The second and third arc stand twice, one on top of the other: meant.
constexpr Piece CuttingOrder[] = {
    &ToothProfile::FaceLine,      &ToothProfile::SeatLine,  &ToothProfile::DropLine,
    &ToothProfile::FrostFaceLine, &ToothProfile::FrostArc,  &ToothProfile::FrostBottomLine,
    &ToothProfile::FirstArc,      &ToothProfile::SecondArc, &ToothProfile::ThirdArc,
    &ToothProfile::BottomLine,    &ToothProfile::SecondArc, &ToothProfile::ThirdArc,
    &ToothProfile::GulletArc,     &ToothProfile::BackLine,  &ToothProfile::BackArc,
    &ToothProfile::TopLine};
static_assert(std::size(CuttingOrder) == PiecesPerTooth);

}  // namespace

void AddTooth(PieceList& list, const ToothProfile& tooth) {
  for (const Piece& piece : CuttingOrder) {
    std::visit([&](const auto member) { list.Add(tooth.*member); }, piece);
  }
}

ToothStamp::ToothStamp(const ToothProfile& shape, const ToothProfile& tooth) {
  for (const Piece& piece : CuttingOrder) {
    std::visit([&](const auto member) { Take(shape.*member, tooth.*member); }, piece);
  }
}

void ToothStamp::Take(const ToothLine& shape, const ToothLine& made) {
  if (shape.Start == shape.End) return;  // its ends go through the same roundings: they never part
  pieces_.emplace_back(Line{shape.Start.X, shape.End.X, made});
  reach_ = std::max({reach_, std::abs(shape.Start.X), std::abs(shape.End.X)});
}

void ToothStamp::Take(const ToothArc& shape, const ToothArc& made) {
  if (!(made.Radius > 0)) return;
  pieces_.emplace_back(Arc{shape.CenterX, made});
  reach_ = std::max(reach_, std::abs(shape.CenterX));
}

unsigned ToothStamp::Add(PieceList& list, const BandTeeth& teeth, const ToothPlace& place) const {
  unsigned lines = 0;
  for (const auto& piece : pieces_) {
    if (const auto* line = std::get_if<Line>(&piece)) {
      const ToothLine made{{teeth.MovedX(place, line->ShapeX1), line->Made.Start.Y},
                           {teeth.MovedX(place, line->ShapeX2), line->Made.End.Y}};
      lines = 2 * lines + (list.Add(made) ? 1 : 0);
    } else if (const auto* arc = std::get_if<Arc>(&piece)) {
      ToothArc made = arc->Made;
      made.CenterX = teeth.MovedX(place, arc->ShapeX);
      list.Add(made);
    }
  }
  return lines;
}

}  // namespace tarnwick
