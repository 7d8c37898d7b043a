#pragma once

#include <algorithm>
#include <cmath>

#include "geometry/modTrig.h"
#include "model/modEntity.h"

namespace tarnwick {

enum class LineRole { Piece, Outline, LapEnd };

inline constexpr int PiecesPerTooth = 16;  // as many as a list makes room for; no style has them all

/// Appends pieces that exist: a line whose ends lie apart, an arc with a radius. A radius beyond all numbers,
/// which a damaged file may hold, is none: nothing could read a drawing with it. What finds no room is
/// counted and lost.
class PieceList {
 public:
  PieceList(const PlaneKit& kit, EntityList& list, std::size_t room)
      : kit_(kit), list_(list), room_(room), apart_(2 * kit.RoundTo.Unit()) {}

  /// False: there is no such piece.
  bool Add(const ToothLine& line) {
    if (!Exists(line)) return false;
    AddLine(line.Start, line.End, LineRole::Piece);
    return true;
  }
  bool Add(const ToothArc& arc) {
    if (!(arc.Radius > 0 && std::isfinite(arc.Radius))) return false;
    Append(ArcEntity{arc.CenterX, arc.CenterY, arc.Radius, arc.StartAngle, arc.EndAngle});
    return true;
  }

  /// A line whether or not its ends lie apart: those of the outline always stand in the list.
  void AddLine(Point from, Point to, LineRole role) {
    Append(LineEntity{from.X, from.Y, to.X, to.Y, role != LineRole::Piece, role == LineRole::LapEnd});
  }

 private:
  /// Whether the distance of its ends is more than 0 when it is rounded. Ends two units apart along an axis
  /// spare the root; past 1e100 a square would overflow, and such a distance counts as 0.
  [[nodiscard]] bool Exists(const ToothLine& line) const {
    const double longer = std::max(std::abs(line.Start.X - line.End.X), std::abs(line.Start.Y - line.End.Y));
    if (longer > apart_ && longer < 1e100) return true;
    return line.Start != line.End && kit_.Distance(line.Start, line.End) > 0;
  }

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
  double apart_;  // inches that no rounding can make nothing
};

/// How many entities a list made for `teeth` teeth holds: as many as a tooth may have, and three more. A list
/// that cannot be sized keeps the two places of a fresh one.
[[nodiscard]] inline std::size_t RoomFor(int teeth, int piecesPerTooth) {
  constexpr int freshRoom = 2;
  const int lastIndex = teeth * piecesPerTooth + 2;
  return static_cast<std::size_t>(lastIndex < 0 ? freshRoom : lastIndex + 1);
}

}  // namespace tarnwick
