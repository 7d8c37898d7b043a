#include "shell/frmAnime.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QSvgRenderer>
#include <QWindow>
#include <QtMath>
#include <chrono>

#include "platform/qt/ReducedMotion.h"

namespace tarnwick {
namespace {

constexpr int Frames = 30;
constexpr int FramesPerRow = 6;
constexpr QSize FrameSize(127, 69);
constexpr auto FrameTime = std::chrono::milliseconds(40);

/// The room of one frame in the screen's own pixels, whole ones, so that no frame shows an edge of its
/// neighbour.
QSize FinePixels(qreal ratio) {
  return {qCeil(FrameSize.width() * ratio), qCeil(FrameSize.height() * ratio)};
}

bool IsWindow(const QObject& object) {
  return object.isWindowType() || (object.isWidgetType() && static_cast<const QWidget&>(object).isWindow());
}

void Close(QObject* window) {
  if (auto* widget = qobject_cast<QWidget*>(window)) widget->close();
  if (auto* handle = qobject_cast<QWindow*>(window)) handle->close();
}

enum class Input { None, Ends, Excluded };

Input InputOf(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      // A key that is still held gave the command.
      return static_cast<const QKeyEvent&>(event).isAutoRepeat() ? Input::Excluded : Input::Ends;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
      return Input::Ends;
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return Input::Excluded;
    default:
      return Input::None;
  }
}

}  // namespace

frmAnime::frmAnime(QWidget& place, Clock& clock) : QWidget(place.window()), place_(&place), clock_(clock) {
  setObjectName("frmAnime");
  setAccessibleName(tr("A band saw is running"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFixedSize(FrameSize);
  hide();
}

frmAnime::~frmAnime() { Hide(); }

void frmAnime::Play() {
  if (playing_ || !place_ || !place_->isVisible() || ReducedMotion()) return;
  playing_ = true;
  ended_ = false;
  Appear();
  qApp->installEventFilter(this);
  for (frame_ = 0; frame_ < Frames && !ended_; ++frame_) {
    repaint();
    clock_.Wait(FrameTime);
    // The clock keeps back what the user does; here it is looked at.
    QApplication::processEvents();
  }
  qApp->removeEventFilter(this);
  frame_ = Frames - 1;
  playing_ = false;
}

/// Above the window's other widgets, so that it is seen although its place stands still.
void frmAnime::Appear() {
  if (parentWidget() != place_->window()) setParent(place_->window());
  MoveToTheMiddle();
  place_->repaint();  // a change of size may not have come to that yet
  place_->setUpdatesEnabled(false);
  shown_ = true;
  show();
  raise();
}

void frmAnime::MoveToTheMiddle() {
  const QPoint middle = place_->mapTo(place_->window(), place_->rect().center());
  move(middle - rect().center());
}

/// Draws all pictures at once for a screen of `ratio` pixels to each of ours.
void frmAnime::DrawSheet(qreal ratio) {
  const QSize frame = FinePixels(ratio);
  sheet_ = QImage(frame.width() * FramesPerRow, frame.height() * Frames / FramesPerRow, QImage::Format_RGB32);
  QPainter painter(&sheet_);
  QSvgRenderer(QString(":/drawings/Animation.svg")).render(&painter, QRectF(sheet_.rect()));
  painter.end();
  sheet_.setDevicePixelRatio(ratio);
}

void frmAnime::Hide() {
  if (!shown_) return;
  shown_ = false;
  hide();
  if (place_) place_->setUpdatesEnabled(true);
  if (!toClose_) return;
  // Once the command is over. Not by the window itself: what the desktop has of it passes such calls on.
  QMetaObject::invokeMethod(
      qApp, [window = toClose_] { Close(window); }, Qt::QueuedConnection);
  toClose_.clear();
}

void frmAnime::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const qreal ratio = painter.deviceTransform().m11();
  if (sheet_.isNull() || !qFuzzyCompare(sheet_.devicePixelRatio(), ratio)) DrawSheet(ratio);
  const QSize frame = FinePixels(ratio);
  const QPoint corner(frame_ % FramesPerRow * frame.width(), frame_ / FramesPerRow * frame.height());
  painter.drawImage(QPointF(), sheet_.copy(QRect(corner, frame)));
}

bool frmAnime::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close && IsWindow(*watched)) {
    toClose_ = watched;
    ended_ = true;
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::Resize && watched == place_) {
    place_->setUpdatesEnabled(true);  // what it has drawn is of another size
    MoveToTheMiddle();
  }
  const Input input = InputOf(*event);
  if (input == Input::None) return QWidget::eventFilter(watched, event);
  if (input == Input::Ends) ended_ = true;
  // A key that could be a shortcut is thereby taken for a plain one, and comes again as that.
  event->setAccepted(event->type() == QEvent::ShortcutOverride);
  return true;
}

}  // namespace tarnwick
