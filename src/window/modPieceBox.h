#pragma once

#include <algorithm>

#include "model/modEntity.h"

namespace tarnwick {

/// The box that a piece really takes up, in the design's inches: to the last bit what is drawn, unlike the
/// extents, which know seeds and gaps.
struct PieceBox {
  double MinX{}, MinY{}, MaxX{}, MaxY{};

  void Include(double x, double y) {
    MinX = std::min(MinX, x);
    MinY = std::min(MinY, y);
    MaxX = std::max(MaxX, x);
    MaxY = std::max(MaxY, y);
  }
  void Include(const PieceBox& other) {
    Include(other.MinX, other.MinY);
    Include(other.MaxX, other.MaxY);
  }
};

[[nodiscard]] PieceBox BoxOf(const LineEntity& line);
/// An arc that ends where it starts is drawn as a whole circle, and measured as one.
[[nodiscard]] PieceBox BoxOf(const ArcEntity& arc);
[[nodiscard]] PieceBox BoxOf(const CircleEntity& circle);
[[nodiscard]] PieceBox BoxOf(const SolidEntity& solid);

/// The whole circle that an arc lies on.
[[nodiscard]] PieceBox CircleBoxOf(const ArcEntity& arc);

}  // namespace tarnwick
