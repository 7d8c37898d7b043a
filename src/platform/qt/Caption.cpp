#include "platform/qt/Caption.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <utility>

#include "platform/qt/MeasureBox.h"

namespace tarnwick {

Caption::Caption(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void Caption::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int beyond = text().endsWith(' ') ? fontMetrics().horizontalAdvance(' ') : 0;
  style()->drawItemText(&painter, rect().adjusted(0, 0, beyond, 0), static_cast<int>(alignment()), palette(),
                        isEnabled(), text(), foregroundRole());
}

BoxCaption::BoxCaption(const QString& text, QWidget* box, QWidget* parent)
    : Caption(text, parent), box_(box) {}

BoxCaption::BoxCaption(const QString& text, MeasureBox* box, QWidget* parent)
    : BoxCaption(text, static_cast<QWidget*>(box), parent) {
  setCursor(Qt::PointingHandCursor);
  connect(this, &BoxCaption::Pressed, box, &MeasureBox::Pressed);
}

void BoxCaption::mousePressEvent(QMouseEvent* event) {
  held_ = event->button() == Qt::LeftButton;
  if (held_) box_->setFocus(Qt::MouseFocusReason);
}

void BoxCaption::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

/// Answered only now that the button is up: a dialog would take the release for its own.
void BoxCaption::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(held_, false)) return;
  if (rect().contains(event->position().toPoint())) emit Pressed();
}

}  // namespace tarnwick
