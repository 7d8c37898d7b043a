#include "platform/qt/QtPrintPages.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLineF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

#include "platform/qt/QtText.h"
#include "platform/qt/SeenLines.h"

namespace tarnwick {
namespace {

constexpr double Flatness = 0.2;             // twips that a chord may lie beside its arc
constexpr double DotLength = TwipsPerPoint;  // of a dotted line
constexpr double DotGap = 2;                 // dots long
constexpr double MostPoints = 1000;          // of letters: nothing of larger ones is read on paper

/// More than any paper has, and a margin around it.
QRectF AllPaper() {
  constexpr double margin = TwipsPerInch, most = 100 * TwipsPerInch;
  return {-margin, -margin, most, most};
}

QPointF ToQt(PaperSpot spot) { return {spot.X, spot.Y}; }

bool IsOnPaper(QPointF point) { return AllPaper().contains(point); }

// In twips: its size needs no rounding then, and is the same whatever the device makes of it.
QFont FontOf(const PrintFont& font) {
  const double points = std::isfinite(font.Points) ? std::clamp(font.Points, 1.0, MostPoints) : 1;
  QFont made = QGuiApplication::font();  // the face in which the main window draws
  made.setPixelSize(static_cast<int>(std::lround(points * TwipsPerPoint)));
  made.setBold(font.Bold);
  made.setHintingPreference(QFont::PreferNoHinting);
  return made;
}

/// @param dot  in twips
QPen PenOf(const PrintPen& pen, double dot) {
  const double width = std::max(1, pen.Width) * dot;
  // The width goes in here: a pen that is given the width that it has anyway would count as one without.
  QPen made(Qt::black, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (!pen.Dotted) return made;
  const double length = std::max(DotLength, width) / width;  // a pattern counts in widths of the pen
  made.setDashPattern({length, length * DotGap});
  made.setCapStyle(Qt::FlatCap);
  return made;
}

double DotOf(const QPainter& painter) { return TwipsPerInch / painter.device()->logicalDpiX(); }

/// As a page begins.
void Prepare(QPainter& painter) {
  painter.scale(1 / DotOf(painter), 1 / DotOf(painter));
  painter.setPen(PenOf({}, DotOf(painter)));
  painter.setLayoutDirection(Qt::LeftToRight);
}

}  // namespace

PaperSize QtPrintPages::TextSize(std::string_view text, const PrintFont& font) const {
  const QFontMetricsF metrics(FontOf(font));
  return {metrics.horizontalAdvance(tarnwick::ToQt(text)), metrics.height()};
}

// ---- the job

std::error_code QtPrintPages::Begin(const std::string& title) {
  title_ = tarnwick::ToQt(title);
  pages_.assign(1, {});
  return Ready();
}

std::error_code QtPrintPages::NewPage() {
  pages_.emplace_back();
  return {};
}

std::error_code QtPrintPages::End() {
  const std::error_code failure = Send(title_);
  pages_.clear();
  return failure;
}

void QtPrintPages::Cancel() noexcept { pages_.clear(); }

std::error_code QtPrintPages::SendPages(QPagedPaintDevice& paper, const std::function<void()>& stop) const {
  const std::error_code failed = std::make_error_code(std::errc::io_error);
  QPainter painter;
  if (!painter.begin(&paper)) return failed;
  for (auto page = pages_.begin(); page != pages_.end(); ++page) {
    if (page != pages_.begin() && !paper.newPage()) {
      stop();
      return failed;
    }
    painter.save();
    Prepare(painter);
    for (const Stroke& stroke : *page) stroke(painter);
    painter.restore();
  }
  return painter.end() ? std::error_code() : failed;
}

// ---- drawing

void QtPrintPages::Draw(Stroke stroke) {
  if (!pages_.empty()) pages_.back().push_back(std::move(stroke));
}

void QtPrintPages::SetPen(const PrintPen& pen) {
  Draw([pen](QPainter& painter) { painter.setPen(PenOf(pen, DotOf(painter))); });
}

void QtPrintPages::SetClip(const PaperBox& box) {
  const bool isBox = std::isfinite(box.Width() + box.Height() + box.Left + box.Top);
  const QRectF inside = isBox ? AllPaper() & QRectF(box.Left, box.Top, box.Width(), box.Height()) : QRectF();
  Draw([inside](QPainter& painter) { painter.setClipRect(inside); });
}

void QtPrintPages::EndClip() {
  Draw([](QPainter& painter) { painter.setClipping(false); });
}

void QtPrintPages::Text(PaperSpot topLeft, std::string_view text, const PrintFont& font) {
  if (!IsOnPaper(ToQt(topLeft))) return;
  const QFont made = FontOf(font);
  const QPointF baseline = ToQt(topLeft) + QPointF(0, QFontMetricsF(made).ascent());
  Draw([made, baseline, words = tarnwick::ToQt(text)](QPainter& painter) {
    painter.setFont(made);
    painter.drawText(baseline, words);
  });
}

void QtPrintPages::Line(PaperSpot from, PaperSpot to) {
  const std::optional<QLineF> seen = SeenPart(QLineF(ToQt(from), ToQt(to)), AllPaper());
  if (!seen) return;
  Draw([line = *seen](QPainter& painter) { painter.drawLine(line); });
}

void QtPrintPages::Arc(PaperSpot center, double radius, double start, double end) {
  const Ellipse circle{center.X, center.Y, radius, radius};
  if (!circle.CanBeDrawn()) return;
  double degrees = std::fmod(end - start, 360);
  if (degrees <= 0) degrees += 360;
  constexpr double radians = std::numbers::pi / 180;
  DrawSeenChains(circle, start * radians, degrees * radians, Flatness, AllPaper(),
                 [this](const std::vector<QPointF>& chain) {
                   Draw([chain](QPainter& painter) {
                     painter.drawPolyline(chain.data(), static_cast<int>(chain.size()));
                   });
                 });
}

void QtPrintPages::Circle(PaperSpot center, double radius) { Arc(center, radius, 0, 0); }

void QtPrintPages::Polygon(std::span<const PaperSpot> corners) {
  QPolygonF figure;
  for (const PaperSpot& corner : corners) {
    if (!std::isfinite(corner.X + corner.Y)) return;
    figure << ToQt(corner);
  }
  if (!AllPaper().contains(figure.boundingRect())) figure = figure.intersected(QPolygonF(AllPaper()));
  Draw([figure](QPainter& painter) {
    const QPen pen = painter.pen();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawPolygon(figure);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
  });
}

}  // namespace tarnwick
