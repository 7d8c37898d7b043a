#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Canvas.h"

namespace tarnwick::test {

/// A surface that paints nothing and remembers what it was asked for.
class RecordingCanvas final : public Canvas {
 public:
  enum class Kind { Clear, Line, Arc, Polygon, Text };

  struct Call {
    Kind What;
    std::vector<Spot> Spots;  // as given: a line's ends; an arc's box, start and end; a figure's corners
    Colour Ink;
    PenStyle Style = PenStyle::Solid;
    std::string Words;
  };

  static constexpr double TextHeight = 10;  // a character is 0.6 of it wide

  explicit RecordingCanvas(PixelSize size) : size_(size) {}

  [[nodiscard]] PixelSize Size() const override { return size_; }
  void Clear(Colour background) override { Calls.push_back({Kind::Clear, {}, background, style_, {}}); }
  void SetPen(Colour colour, PenStyle style) override {
    colour_ = colour;
    style_ = style;
  }
  void Polyline(std::span<const Spot, 2> points) override { Record(Kind::Line, {points[0], points[1]}); }
  void Arc(Spot topLeft, Spot bottomRight, Spot start, Spot end) override {
    Record(Kind::Arc, {topLeft, bottomRight, start, end});
  }
  void Polygon(std::span<const Spot> points) override {
    Record(Kind::Polygon, {points.begin(), points.end()});
  }
  [[nodiscard]] PixelSize TextSize(std::string_view text) const override {
    return {static_cast<double>(text.size()) * 0.6 * TextHeight, TextHeight};
  }
  void Text(Spot topLeft, std::string_view text) override {
    Record(Kind::Text, {topLeft});
    Calls.back().Words = text;
  }

  std::vector<Call> Calls;

 private:
  void Record(Kind what, std::vector<Spot> spots) {
    Calls.push_back({what, std::move(spots), colour_, style_, {}});
  }

  PixelSize size_;
  Colour colour_;
  PenStyle style_ = PenStyle::Solid;
};

}  // namespace tarnwick::test

namespace tarnwick {

inline void PrintTo(const Spot& spot, std::ostream* out) { *out << '(' << spot.X << ", " << spot.Y << ')'; }

}  // namespace tarnwick
