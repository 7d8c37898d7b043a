#include "platform/qt/MeasureBox.h"

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <utility>

namespace tarnwick {

MeasureBox::MeasureBox(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setContextMenuPolicy(Qt::NoContextMenu);
  setAttribute(Qt::WA_Hover);
  FitHeight();
  setCursor(Qt::PointingHandCursor);
}

void MeasureBox::SetOpens(bool opens) {
  if (opens == opens_) return;
  opens_ = opens;
  setFrame(opens);
  const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  setTextMargins(opens ? 0 : frame, 0, 0, 0);  // the text stays where it is
  setCursor(opens ? Qt::PointingHandCursor : Qt::ArrowCursor);
  QPalette colours;
  if (!opens) colours.setColor(QPalette::Base, Qt::transparent);
  setPalette(colours);
}

/// As high as with a frame, so that no row moves when a box becomes a result.
void MeasureBox::FitHeight() {
  setFrame(true);
  setFixedHeight(sizeHint().height());
  setFrame(opens_);
}

void MeasureBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitHeight();
}

/// The keys of a line edit, such as Ctrl+A, are commands of the window here.
bool MeasureBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->ignore();
    return false;
  }
  return QLineEdit::event(event);
}

void MeasureBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!hasFocus() && !(opens_ && underMouse())) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), hasFocus() ? 2 : 1));
  const qreal inset = hasFocus() ? 1 : 0.5;
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 2, 2);
}

void MeasureBox::mousePressEvent(QMouseEvent* event) { held_ = event->button() == Qt::LeftButton; }
void MeasureBox::mouseMoveEvent(QMouseEvent*) {}
void MeasureBox::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

/// Answered only now that the button is up: a dialog would take the release for its own.
void MeasureBox::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(held_, false)) return;
  if (rect().contains(event->position().toPoint())) emit Pressed();
}

// The text is not there to be typed over.
void MeasureBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  deselect();
}

void MeasureBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (passesEnterOn_) return event->ignore();
      [[fallthrough]];
    case Qt::Key_Space:
      if (!event->isAutoRepeat()) emit Pressed();
      break;
    default:
      event->ignore();
      break;
  }
}

}  // namespace tarnwick
