#pragma once

#include <cmath>
#include <numbers>

#include "platform/Canvas.h"

namespace tarnwick {

/// The ellipse that a canvas is asked to draw an arc of. Angles in radians, 0 to the right, anticlockwise as
/// the eye sees it.
struct Ellipse {
  double CenterX{}, CenterY{}, RadiusX{}, RadiusY{};

  [[nodiscard]] static Ellipse InBox(Spot topLeft, Spot bottomRight) {
    return {(topLeft.X + bottomRight.X) / 2, (topLeft.Y + bottomRight.Y) / 2, (bottomRight.X - topLeft.X) / 2,
            (bottomRight.Y - topLeft.Y) / 2};
  }
  /// Neither flat nor beyond all numbers.
  [[nodiscard]] bool CanBeDrawn() const {
    return RadiusX > 0 && RadiusY > 0 && std::isfinite(RadiusX + RadiusY + CenterX + CenterY);
  }

  /// Of the radial through a place that need not lie on the ellipse.
  [[nodiscard]] double AngleTo(Spot spot) const {
    return std::atan2((CenterY - spot.Y) / RadiusY, (spot.X - CenterX) / RadiusX);
  }
  [[nodiscard]] Spot At(double angle) const {
    return {CenterX + RadiusX * std::cos(angle), CenterY - RadiusY * std::sin(angle)};
  }
  /// The turn from one radial to the other: above 0, a whole turn when they are one place.
  [[nodiscard]] double Sweep(Spot start, Spot end) const {
    constexpr double wholeTurn = 2 * std::numbers::pi;
    if (start == end) return wholeTurn;
    const double sweep = AngleTo(end) - AngleTo(start);
    return sweep > 0 ? sweep : sweep + wholeTurn;
  }
};

}  // namespace tarnwick
