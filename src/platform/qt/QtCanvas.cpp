#include "platform/qt/QtCanvas.h"

#include <QFontMetricsF>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "platform/qt/Language.h"
#include "platform/qt/SeenLines.h"
#include "platform/qt/WideRegisters.h"

namespace tarnwick {
namespace {

constexpr double CenterLineShare = 0.6;  // of a saw line's: the saw is the loudest thing on the screen
constexpr double SeenMargin = 8;         // pixels around the surface where strokes may still end
constexpr double Flatness = 0.1;         // device pixels that a chord may lie beside its arc

QPointF ToQt(Spot spot) { return {spot.X, spot.Y}; }

bool IsUpright(const QLineF& line) { return line.dx() == 0; }
bool IsLevel(const QLineF& line) { return line.dy() == 0; }

/// The weight of a centre line in the device's pixels: a share of one, or whole ones.
double CenterLineWeight(double ratio) {
  const double weight = ratio * CenterLineShare;
  return weight < 1 ? weight : std::floor(weight);
}

/// A level or upright line `weight` device pixels wide moved, by less than a pixel, to where it covers whole
/// ones: it would be a grey pair of lines else.
QLineF OnPixels(const QLineF& line, double ratio, double weight) {
  const double half = std::fmod(std::ceil(weight), 2) / 2;  // an odd line has a pixel's middle in its own
  const auto crisp = [=](double place) { return (std::round((place * ratio) - half) + half) / ratio; };
  if (IsLevel(line)) return {line.x1(), crisp(line.y1()), line.x2(), crisp(line.y1())};
  if (IsUpright(line)) return {crisp(line.x1()), line.y1(), crisp(line.x1()), line.y2()};
  return line;
}

/// The whole pixels that a level or upright line covers.
QRectF Bar(const QLineF& line, double ratio) {
  const double weight = std::max(1.0, std::round(ratio));
  const auto edge = [&](double place) { return std::round((place * ratio) - (weight / 2)); };
  const QPointF from(edge(std::min(line.x1(), line.x2())), edge(std::min(line.y1(), line.y2())));
  const QPointF to(edge(std::max(line.x1(), line.x2())) + weight,
                   edge(std::max(line.y1(), line.y2())) + weight);
  return {from / ratio, to / ratio};
}

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, QSizeF size)
    : painter_(painter),
      size_(size),
      seen_(QRectF(QPointF(0, 0), size).adjusted(-SeenMargin, -SeenMargin, SeenMargin, SeenMargin)),
      ratio_(painter.device()->devicePixelRatio()) {
  painter_.setRenderHint(QPainter::Antialiasing);
  SetPen(colour_, style_);
}

PixelSize QtCanvas::Size() const { return {size_.width(), size_.height()}; }

void QtCanvas::Clear(Colour background) {
  lines_.clear();
  bars_.clear();
  painter_.fillRect(QRectF(QPointF(0, 0), size_), ToQt(background));
  ReleaseWideRegisters();
}

void QtCanvas::SetPen(Colour colour, PenStyle style) {
  Flush();
  colour_ = colour;
  style_ = style;
  QPen pen(ToQt(colour));
  pen.setCosmetic(true);
  pen.setWidthF(ratio_);
  pen.setCapStyle(Qt::SquareCap);
  if (style == PenStyle::Dots) {
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({2, 2});
  } else if (style == PenStyle::DashDot) {
    pen.setWidthF(CenterLineWeight(ratio_));
    pen.setCapStyle(Qt::FlatCap);
    const double unit = ratio_ / std::max(1.0, pen.widthF());  // a pattern counts in weights of the pen
    pen.setDashPattern({20 * unit, 6 * unit, 3 * unit, 6 * unit});
  }
  painter_.setPen(pen);
  painter_.setBrush(Qt::NoBrush);
}

void QtCanvas::Polyline(std::span<const Spot, 2> points) {
  const auto line = SeenPart(QLineF(ToQt(points[0]), ToQt(points[1])), seen_);
  if (!line) return;
  if (style_ != PenStyle::Solid) {
    lines_.push_back(OnPixels(*line, ratio_, painter_.pen().widthF()));
  } else if (IsUpright(*line) || IsLevel(*line)) {
    bars_.push_back(Bar(*line, ratio_));
  } else {
    lines_.push_back(*line);
  }
}

// The arc goes out as chords: exact at any radius, and only those that can be seen.
void QtCanvas::Arc(Spot topLeft, Spot bottomRight, Spot start, Spot end) {
  const Ellipse ellipse = Ellipse::InBox(topLeft, bottomRight);
  if (!ellipse.CanBeDrawn()) return;
  DrawSeenChains(ellipse, ellipse.AngleTo(start), ellipse.Sweep(start, end), Flatness / ratio_, seen_,
                 [this](const std::vector<QPointF>& chain) { DrawChain(chain); });
}

void QtCanvas::Polygon(std::span<const Spot> points) {
  Flush();
  QPolygonF figure;
  for (const Spot& spot : points) figure << ToQt(spot);
  painter_.setBrush(ToQt(colour_));
  painter_.drawPolygon(figure);
  painter_.setBrush(Qt::NoBrush);
}

PixelSize QtCanvas::TextSize(std::string_view text) const {
  const QFontMetricsF metrics(painter_.font(), painter_.device());
  return {metrics.horizontalAdvance(Translated(text)), metrics.height()};
}

void QtCanvas::Text(Spot topLeft, std::string_view text) {
  Flush();
  const QFontMetricsF metrics(painter_.font(), painter_.device());
  painter_.drawText(QPointF(topLeft.X, topLeft.Y + metrics.ascent()), Translated(text));
}

void QtCanvas::Flush() {
  if (!lines_.empty()) painter_.drawLines(lines_.data(), static_cast<int>(lines_.size()));
  lines_.clear();
  FlushBars();
  ReleaseWideRegisters();
}

void QtCanvas::FlushBars() {
  if (bars_.empty()) return;
  const QPen pen = painter_.pen();
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(ToQt(colour_));
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.drawRects(bars_.data(), static_cast<int>(bars_.size()));
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setBrush(Qt::NoBrush);
  painter_.setPen(pen);
  bars_.clear();
}

// A chain of its own is one short path, without beads where its chords meet.
void QtCanvas::DrawChain(const std::vector<QPointF>& chain) {
  if (chain.size() == 2) lines_.emplace_back(chain[0], chain[1]);
  if (chain.size() > 2) {
    painter_.drawPolyline(chain.data(), static_cast<int>(chain.size()));
    ReleaseWideRegisters();
  }
}

}  // namespace tarnwick
