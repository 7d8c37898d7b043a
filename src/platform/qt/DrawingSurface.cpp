#include "platform/qt/DrawingSurface.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPen>
#include <QWheelEvent>

#include "platform/qt/QtCanvas.h"

namespace tarnwick {
namespace {

constexpr double WheelNotch = 120;  // angle units of one notch of a plain wheel

SurfacePoint InInches(QPointF place) { return {place.x() / PixelsPerInch, place.y() / PixelsPerInch}; }

/// To people who listen it is a drawing: a widget of no kind has nothing to tell.
QAccessibleInterface* AccessTo(const QString& /*kind*/, QObject* object) {
  auto* surface = qobject_cast<DrawingSurface*>(object);
  return surface ? new QAccessibleWidget(surface, QAccessible::Canvas) : nullptr;
}

void TeachDrawings() {
  [[maybe_unused]] static const bool taught = (QAccessible::installFactory(AccessTo), true);
}

bool PullsRectangle(Qt::MouseButton button) { return button == Qt::LeftButton || button == Qt::RightButton; }

}  // namespace

DrawingSurface::DrawingSurface(QWidget* parent) : QWidget(parent) {
  TeachDrawings();
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::CrossCursor);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DrawingSurface::Redraw() {
  stale_ = true;
  update();
}

SurfaceSize DrawingSurface::SizeInInches() const {
  return {width() / PixelsPerInch, height() / PixelsPerInch};
}

void DrawingSurface::DrawPicture() {
  const qreal ratio = devicePixelRatioF();
  const QSize pixels(qCeil(width() * ratio), qCeil(height() * ratio));
  if (picture_.size() != pixels) picture_ = QImage(pixels, QImage::Format_RGB32);
  picture_.setDevicePixelRatio(ratio);
  QPainter painter(&picture_);
  painter.setFont(font());
  QtCanvas canvas(painter, size());
  if (drawing_) drawing_(canvas);
  stale_ = false;
}

void DrawingSurface::paintEvent(QPaintEvent* event) {
  if (stale_ || picture_.devicePixelRatio() != devicePixelRatioF()) DrawPicture();
  QPainter painter(this);
  painter.setClipRect(event->rect());
  painter.drawImage(QPointF(0, 0), picture_);
  if (from_) PaintRectangle(painter);
  emit Painted();
}

void DrawingSurface::PaintRectangle(QPainter& painter) const {
  QPen pen(rectangleColour_);
  pen.setStyle(Qt::DotLine);
  painter.setPen(pen);
  painter.drawRect(QRectF(*from_, *to_).normalized());
}

void DrawingSurface::resizeEvent(QResizeEvent* /*event*/) {
  stale_ = true;
  emit Resized();
}

void DrawingSurface::mousePressEvent(QMouseEvent* event) {
  if (held_ != Qt::NoButton) return;
  if (PullsRectangle(event->button())) {
    held_ = event->button();
    from_ = to_ = event->position();
    emit RectangleBegun(InInches(*from_));
  } else if (event->button() == Qt::MiddleButton) {
    held_ = event->button();
    setCursor(Qt::ClosedHandCursor);
    emit DragBegun(InInches(event->position()));
  }
}

void DrawingSurface::mouseMoveEvent(QMouseEvent* event) {
  if (from_) {
    to_ = event->position();
    emit RectangleDragged(InInches(*to_));
    update();
  } else if (held_ == Qt::MiddleButton) {
    emit DraggedTo(InInches(event->position()));
  }
}

void DrawingSurface::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != held_) return;
  held_ = Qt::NoButton;
  setCursor(Qt::CrossCursor);
  if (!from_) return;
  GiveUpRectangle();
  emit RectangleEnded(InInches(event->position()));
}

void DrawingSurface::GiveUpRectangle() {
  from_.reset();
  to_.reset();
  update();
}

void DrawingSurface::wheelEvent(QWheelEvent* event) {
  const double notches = event->angleDelta().y() / WheelNotch;
  if (notches != 0) emit WheelTurned(InInches(event->position()), notches);
  event->accept();
}

void DrawingSurface::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return MoveAsked(Qt::Horizontal, QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Right:
      return MoveAsked(Qt::Horizontal, QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Up:
      return MoveAsked(Qt::Vertical, QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
      return MoveAsked(Qt::Vertical, QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_PageUp:
      return MoveAsked(Qt::Horizontal, QAbstractSlider::SliderPageStepSub);
    case Qt::Key_PageDown:
      return MoveAsked(Qt::Horizontal, QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_Escape:
      if (from_) return GiveUpRectangle();
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace tarnwick
