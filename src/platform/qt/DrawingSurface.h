#pragma once

#include <QAbstractSlider>
#include <QColor>
#include <QImage>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/Canvas.h"
#include "window/Viewport.h"

namespace tarnwick {

/// A widget that shows a drawing and reports what hand and keyboard do to it. It keeps the last picture, so
/// that a zoom rectangle moves over it without drawing anything anew.
///
/// All places are inches of 96 pixels from its upper left corner.
class DrawingSurface final : public QWidget {
  Q_OBJECT

 public:
  using Drawing = std::function<void(Canvas&)>;

  explicit DrawingSurface(QWidget* parent = nullptr);

  /// What is drawn: called with a canvas of the widget's present size whenever the picture is needed anew.
  void SetDrawing(Drawing drawing) { drawing_ = std::move(drawing); }
  void SetRectangleColour(QColor colour) { rectangleColour_ = colour; }

  /// The picture is out of date; it is drawn again before the next paint, once, however often this is called.
  void Redraw();

  [[nodiscard]] SurfaceSize SizeInInches() const;

 signals:
  void Resized();
  void Painted();
  // A rectangle pulled with the left or the right button; Escape gives it up.
  void RectangleBegun(tarnwick::SurfacePoint corner);
  void RectangleDragged(tarnwick::SurfacePoint corner);
  void RectangleEnded(tarnwick::SurfacePoint corner);
  // The drawing taken hold of with the middle button.
  void DragBegun(tarnwick::SurfacePoint place);
  void DraggedTo(tarnwick::SurfacePoint place);
  void WheelTurned(tarnwick::SurfacePoint place, double notches);  // away from the hand: positive
  void MoveAsked(Qt::Orientation bar, QAbstractSlider::SliderAction step);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void DrawPicture();
  void PaintRectangle(QPainter& painter) const;
  void GiveUpRectangle();

  Drawing drawing_;
  QColor rectangleColour_ = Qt::blue;
  QImage picture_;
  bool stale_ = true;
  Qt::MouseButton held_ = Qt::NoButton;  // the button that began what is going on
  std::optional<QPointF> from_, to_;     // corners of the rectangle, in pixels
};

}  // namespace tarnwick
