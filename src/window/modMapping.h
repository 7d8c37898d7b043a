#pragma once

#include "platform/Canvas.h"

namespace tarnwick {

/// From design inches to surface pixels: x to the right of the origin, y up from it.
struct Mapping {
  double PixelsPerUnit = PixelsPerInch;
  double OriginX{}, OriginY{};  // pixels of the design's origin

  [[nodiscard]] Spot ToSurface(double x, double y) const {
    return {(x * PixelsPerUnit) + OriginX, OriginY - (y * PixelsPerUnit)};
  }
};

}  // namespace tarnwick
