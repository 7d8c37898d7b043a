#pragma once

#include <string>

#include "platform/Canvas.h"

namespace tarnwick {

/// A surface that becomes an SVG picture in true inches, 96 of its units to one. The text depends on nothing
/// but what was drawn: no date, no locale.
///
/// Lines keep the width of one screen pixel when the picture is enlarged or made smaller, so that a band of
/// twenty feet can be seen whole. Pieces that follow on each other are one path.
class SvgCanvas final : public Canvas {
 public:
  explicit SvgCanvas(PixelSize size) : size_(size) {}

  [[nodiscard]] PixelSize Size() const override { return size_; }

  void Clear(Colour background) override;
  void SetPen(Colour colour, PenStyle style) override;
  void Polyline(std::span<const Spot, 2> points) override;
  void Arc(Spot topLeft, Spot bottomRight, Spot start, Spot end) override;
  void Polygon(std::span<const Spot> points) override;

  /// A character is 0.6 of the height wide; a text stands about the middle of its box.
  [[nodiscard]] PixelSize TextSize(std::string_view text) const override;
  /// ASCII; any other byte shows as a question mark.
  void Text(Spot topLeft, std::string_view text) override;

  /// The picture as drawn so far.
  [[nodiscard]] std::string Document() const;

 private:
  void MoveTo(const std::string& place);
  void LineTo(const std::string& place);
  void Step(std::string_view command);
  [[nodiscard]] std::string OpenPath() const;
  void ClosePath();

  PixelSize size_;
  std::string body_;
  Colour colour_ = Black;
  PenStyle style_ = PenStyle::Solid;

  std::string path_;   // of the pen in use, not yet in the body
  std::string place_;  // where it ends, as written
  int steps_ = 0;      // lines and arcs in it
};

}  // namespace tarnwick
