#include "platform/SvgCanvas.h"

#include <cmath>
#include <numbers>

#include "model/modDecim.h"
#include "platform/Ellipse.h"

namespace tarnwick {
namespace {

constexpr double TextHeight = 16;
constexpr double CharacterWidth = 0.6;  // of the height
constexpr double Baseline = 0.35;       // of the height, below the middle
constexpr int MostSteps = 200;          // of one path: programs draw many short ones faster than a long one

/// Thousandths of a unit: finer than the fifth decimal of an inch.
std::string Number(double value) { return GeneralText(std::round(value * 1000) / 1000); }

std::string Place(Spot spot) { return Number(spot.X) + ' ' + Number(spot.Y); }

std::string Hex(Colour colour) {
  std::string text = "#";
  for (const int part : {colour.Red(), colour.Green(), colour.Blue()}) {
    for (const int digit : {part / 16, part % 16}) text += "0123456789abcdef"[digit];
  }
  return text;
}

std::string Attribute(std::string_view name, std::string_view value) {
  return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

std::string_view DashesOf(PenStyle style) {
  switch (style) {
    case PenStyle::Solid:
      return {};
    case PenStyle::Dots:
      return "2 2";
    case PenStyle::DashDot:
      return "20 6 3 6";
  }
  return {};
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '&') {
      escaped += "&amp;";
    } else if (c == '<') {
      escaped += "&lt;";
    } else if (c == '>') {
      escaped += "&gt;";
    } else {
      escaped += c >= ' ' && c <= '~' ? c : '?';
    }
  }
  return escaped;
}

}  // namespace

void SvgCanvas::Clear(Colour background) {
  ClosePath();
  body_ = "<rect" + Attribute("width", Number(size_.Width)) + Attribute("height", Number(size_.Height)) +
          Attribute("fill", Hex(background)) + "/>\n";
}

void SvgCanvas::SetPen(Colour colour, PenStyle style) {
  if (colour == colour_ && style == style_) return;
  ClosePath();
  colour_ = colour;
  style_ = style;
}

void SvgCanvas::Polyline(std::span<const Spot, 2> points) {
  MoveTo(Place(points[0]));
  LineTo(Place(points[1]));
}

// More than half a turn goes out as two halves: the long way round is then never in doubt, and an arc whose
// ends fall together on paper does not vanish.
void SvgCanvas::Arc(Spot topLeft, Spot bottomRight, Spot start, Spot end) {
  const Ellipse ellipse = Ellipse::InBox(topLeft, bottomRight);
  if (!ellipse.CanBeDrawn()) return;
  const double from = ellipse.AngleTo(start);
  const double sweep = ellipse.Sweep(start, end);

  constexpr double halfTurn = std::numbers::pi + 1e-9;  // and the last bits of one
  constexpr std::string_view shortWayAnticlockwise = " 0 0 0 ";
  const std::string arc = "A" + Number(ellipse.RadiusX) + ' ' + Number(ellipse.RadiusY);
  MoveTo(Place(ellipse.At(from)));
  const auto arcTo = [&](const std::string& place) {
    Step(arc + std::string(shortWayAnticlockwise) + place);
    place_ = place;
  };
  if (sweep > halfTurn) arcTo(Place(ellipse.At(from + sweep / 2)));
  arcTo(Place(ellipse.At(from + sweep)));
}

void SvgCanvas::Polygon(std::span<const Spot> points) {
  ClosePath();
  std::string places;
  for (const Spot& spot : points) places += (places.empty() ? "" : " ") + Place(spot);
  body_ += "<polygon" + Attribute("points", places) + Attribute("fill", Hex(colour_)) + "/>\n";
}

PixelSize SvgCanvas::TextSize(std::string_view text) const {
  return {static_cast<double>(text.size()) * CharacterWidth * TextHeight, TextHeight};
}

void SvgCanvas::Text(Spot topLeft, std::string_view text) {
  ClosePath();
  const PixelSize size = TextSize(text);
  body_ += "<text" + Attribute("x", Number(topLeft.X + size.Width / 2)) +
           Attribute("y", Number(topLeft.Y + size.Height / 2 + Baseline * size.Height)) +
           Attribute("font-family", "sans-serif") + Attribute("font-size", Number(TextHeight)) +
           Attribute("text-anchor", "middle") + Attribute("fill", Hex(colour_)) + ">" + Escaped(text) +
           "</text>\n";
}

std::string SvgCanvas::Document() const {
  const auto inches = [](double pixels) { return GeneralText(pixels / PixelsPerInch) + "in"; };
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg" +
         Attribute("xmlns", "http://www.w3.org/2000/svg") + Attribute("width", inches(size_.Width)) +
         Attribute("height", inches(size_.Height)) +
         Attribute("viewBox", "0 0 " + Number(size_.Width) + ' ' + Number(size_.Height)) + ">\n" + body_ +
         OpenPath() + "</svg>\n";
}

void SvgCanvas::MoveTo(const std::string& place) {
  if (steps_ >= MostSteps) ClosePath();
  if (place != place_ || path_.empty()) path_ += 'M' + place;
  place_ = place;
}

/// A line shorter than a thousandth still shows as a dot; its caps make it one.
void SvgCanvas::LineTo(const std::string& place) {
  Step('L' + place);
  place_ = place;
}

void SvgCanvas::Step(std::string_view command) {
  path_ += command;
  ++steps_;
}

std::string SvgCanvas::OpenPath() const {
  if (path_.empty()) return {};
  const std::string_view dashes = DashesOf(style_);
  return "<path" + Attribute("d", path_) + Attribute("fill", "none") + Attribute("stroke", Hex(colour_)) +
         Attribute("vector-effect", "non-scaling-stroke") +
         (dashes.empty() ? std::string(Attribute("stroke-linecap", "round"))
                         : Attribute("stroke-dasharray", dashes)) +
         "/>\n";
}

void SvgCanvas::ClosePath() {
  body_ += OpenPath();
  path_.clear();
  place_.clear();
  steps_ = 0;
}

}  // namespace tarnwick
