#include "window/modGroupReach.h"

#include <algorithm>
#include <variant>

namespace tarnwick {
namespace {

/// The first number from `from` to `end` that `holds`, and so do all behind it. Looks ever further ahead
/// first: what is looked for is mostly near.
template <class Holds>
std::size_t FirstThat(std::size_t from, std::size_t end, Holds holds) {
  std::size_t step = 1;
  for (; from + step < end && !holds(from + step - 1); step *= 2) from += step;
  end = std::min(end, from + step);
  while (from < end) {
    const std::size_t middle = from + (end - from) / 2;
    if (holds(middle)) {
      end = middle;
    } else {
      from = middle + 1;
    }
  }
  return from;
}

double LeftOf(const Entity& piece) {
  if (const auto* line = std::get_if<LineEntity>(&piece)) return std::min(line->Corner1X, line->Corner4X);
  if (const auto* arc = std::get_if<ArcEntity>(&piece)) return arc->CenterX - arc->Radius;
  return 0;  // groups have lines and arcs alone
}

double RightOf(const Entity& piece) {
  if (const auto* line = std::get_if<LineEntity>(&piece)) return std::max(line->Corner1X, line->Corner4X);
  if (const auto* arc = std::get_if<ArcEntity>(&piece)) return arc->CenterX + arc->Radius;
  return 0;
}

}  // namespace

GroupReach::GroupReach(const EntityList& list, const Repetition& part, const Mapping& mapping)
    : list_(list), part_(part), mapping_(mapping) {
  for (std::size_t piece = 1; piece < part.Size; ++piece) {
    if (LeftOf(PieceOf(0, piece)) < LeftOf(PieceOf(0, leftmost_))) leftmost_ = piece;
    if (RightOf(PieceOf(0, piece)) > RightOf(PieceOf(0, rightmost_))) rightmost_ = piece;
  }
}

std::size_t GroupReach::FirstReaching(double x, std::size_t from) const {
  return FirstThat(from, part_.Times, [&](std::size_t group) {
    return mapping_.ToSurface(RightOf(PieceOf(group, rightmost_)), 0).X >= x;
  });
}

std::size_t GroupReach::FirstBeyond(double x, std::size_t from) const {
  return FirstThat(from, part_.Times, [&](std::size_t group) {
    return mapping_.ToSurface(LeftOf(PieceOf(group, leftmost_)), 0).X > x;
  });
}

}  // namespace tarnwick
