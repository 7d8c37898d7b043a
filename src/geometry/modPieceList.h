#pragma once

#include "geometry/modTrig.h"
#include "model/modEntity.h"

namespace tarnwick {

enum class LineRole { Piece, Outline, LapEnd };

/// Appends pieces that exist: a line whose ends lie apart, an arc with a radius. What finds no room is
/// counted and lost.
class PieceList {
 public:
  PieceList(const PlaneKit& kit, EntityList& list, std::size_t room) : kit_(kit), list_(list), room_(room) {}

  void Add(const ToothLine& line) {
    if (line.Start == line.End) return;
    if (kit_.Distance(line.Start, line.End) > 0) AddLine(line.Start, line.End, LineRole::Piece);
  }

  void Add(const ToothArc& arc) {
    if (arc.Radius > 0) Append(ArcEntity{arc.CenterX, arc.CenterY, arc.Radius, arc.StartAngle, arc.EndAngle});
  }

  /// A line whether or not its ends lie apart: those of the outline always stand in the list.
  void AddLine(Point from, Point to, LineRole role) {
    Append(LineEntity{from.X, from.Y, to.X, to.Y, role != LineRole::Piece, role == LineRole::LapEnd});
  }

 private:
  template <class Kind>
  void Append(const Kind& entity) {
    if (list_.Entities.size() < room_) {
      list_.Entities.emplace_back(entity);
    } else {
      ++list_.Lost;
    }
  }

  const PlaneKit& kit_;
  EntityList& list_;
  std::size_t room_;
};

/// How many entities a list made for `teeth` teeth holds: as many as a tooth may have, and three more. A list
/// that cannot be sized keeps the two places of a fresh one.
[[nodiscard]] inline std::size_t RoomFor(int teeth, int piecesPerTooth) {
  constexpr int freshRoom = 2;
  const int lastIndex = teeth * piecesPerTooth + 2;
  return static_cast<std::size_t>(lastIndex < 0 ? freshRoom : lastIndex + 1);
}

}  // namespace tarnwick
