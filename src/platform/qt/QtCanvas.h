#pragma once

#include <QLineF>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <vector>

#include "platform/Canvas.h"

namespace tarnwick {

[[nodiscard]] inline QColor ToQt(Colour colour) { return {colour.Red(), colour.Green(), colour.Blue()}; }

/// A surface that QPainter draws on. Its pixels are device-independent: on a fine screen each is several, and
/// lines keep their weight.
///
/// Lines are gathered and painted in one go; they are there at the latest when the canvas is gone.
class QtCanvas final : public Canvas {
 public:
  /// `size`: of the surface in device-independent pixels. `painter` must have no transformation of its own.
  QtCanvas(QPainter& painter, QSizeF size);
  QtCanvas(const QtCanvas&) = delete;
  QtCanvas& operator=(const QtCanvas&) = delete;
  ~QtCanvas() override { Flush(); }

  [[nodiscard]] PixelSize Size() const override;
  void Clear(Colour background) override;
  void SetPen(Colour colour, PenStyle style) override;
  void Polyline(std::span<const Spot, 2> points) override;
  void Arc(Spot topLeft, Spot bottomRight, Spot start, Spot end) override;
  void Polygon(std::span<const Spot> points) override;
  [[nodiscard]] PixelSize TextSize(std::string_view text) const override;
  void Text(Spot topLeft, std::string_view text) override;

 private:
  void Flush();
  void FlushBars();
  void DrawChain(const std::vector<QPointF>& chain);

  QPainter& painter_;
  QSizeF size_;
  QRectF seen_;  // the surface and some pixels around it; strokes are cut off there
  qreal ratio_;  // device pixels of one pixel of ours
  Colour colour_ = White;
  PenStyle style_ = PenStyle::Solid;
  std::vector<QLineF> lines_;
  std::vector<QRectF> bars_;  // level and upright lines, as the pixels that they cover
};

}  // namespace tarnwick
