#include "geometry/modToothStamp.h"

#include <algorithm>
#include <array>
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

constexpr std::size_t MostX = 2 * PiecesPerTooth;  // two of a line, one of an arc

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
  pieces_.emplace_back(Line{Note(shape.Start.X), Note(shape.End.X), made.Start.Y, made.End.Y});
}

void ToothStamp::Take(const ToothArc& shape, const ToothArc& made) {
  if (made.Radius > 0) pieces_.emplace_back(Arc{Note(shape.CenterX), made});
}

/// The number of an X of the shape.
std::size_t ToothStamp::Note(double x) {
  const auto found = std::find(shapeX_.begin(), shapeX_.end(), x);
  const auto number = static_cast<std::size_t>(found - shapeX_.begin());
  if (found == shapeX_.end()) shapeX_.push_back(x);
  return number;
}

double ToothStamp::Reach() const {
  double reach = 0;
  for (const double x : shapeX_) reach = std::max(reach, std::abs(x));
  return reach;
}

unsigned ToothStamp::Add(PieceList& list, const BandTeeth& teeth, const ToothPlace& place) const {
  std::array<double, MostX> x;
  std::transform(shapeX_.begin(), shapeX_.end(), x.begin(),
                 [&](double shapeX) { return teeth.MovedX(place, shapeX); });
  unsigned lines = 0;
  for (const auto& piece : pieces_) {
    if (const auto* line = std::get_if<Line>(&piece)) {
      const bool exists = list.Add(ToothLine{{x[line->FromX], line->FromY}, {x[line->ToX], line->ToY}});
      lines = 2 * lines + (exists ? 1 : 0);
    } else if (const auto* arc = std::get_if<Arc>(&piece)) {
      ToothArc made = arc->Made;
      made.CenterX = x[arc->CenterX];
      list.Add(made);
    }
  }
  return lines;
}

}  // namespace tarnwick
