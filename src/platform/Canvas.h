#pragma once

#include <array>
#include <span>
#include <string_view>

#include "model/modColour.h"

namespace tarnwick {

/// A place on a drawing surface, in its pixels: X to the right, Y downward.
struct Spot {
  double X{}, Y{};
  bool operator==(const Spot&) const = default;
};

/// Size of a surface or of a text on it, in pixels.
struct PixelSize {
  double Width{}, Height{};
};

inline constexpr double PixelsPerInch = 96;  // of every surface, whatever the screen's own resolution is

enum class PenStyle { Solid = 0, Dots = 2, DashDot = 3 };

/// Port: a surface that can be drawn on. It draws and measures, it never decides. Lines are one pixel wide at
/// every zoom.
class Canvas {
 public:
  virtual ~Canvas() = default;

  [[nodiscard]] virtual PixelSize Size() const = 0;

  virtual void Clear(Colour background) = 0;
  /// Colour and style of the lines that follow; figures are filled, and texts written, in the colour.
  virtual void SetPen(Colour colour, PenStyle style) = 0;

  /// One straight segment in the current pen.
  virtual void Polyline(std::span<const Spot, 2> points) = 0;
  /// Anticlockwise, as the eye sees it, along the ellipse in the box from the radial through `start` to the
  /// one through `end`; the whole ellipse when the two are one point. The box is given by its corners
  /// `topLeft` and `bottomRight`.
  virtual void Arc(Spot topLeft, Spot bottomRight, Spot start, Spot end) = 0;
  /// A closed figure, filled.
  virtual void Polygon(std::span<const Spot> points) = 0;

  [[nodiscard]] virtual PixelSize TextSize(std::string_view text) const = 0;
  /// `topLeft`: of the box that TextSize measures.
  virtual void Text(Spot topLeft, std::string_view text) = 0;
};

}  // namespace tarnwick
