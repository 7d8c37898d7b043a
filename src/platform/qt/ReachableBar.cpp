#include "platform/qt/ReachableBar.h"

#include <QFocusEvent>
#include <QPainter>

namespace tarnwick {

ReachableBar::ReachableBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
  setFocusPolicy(Qt::StrongFocus);
  setInvertedControls(false);  // the toolkit's scroll bars go left by the right arrow
}

void ReachableBar::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void ReachableBar::focusInEvent(QFocusEvent* event) {
  QScrollBar::focusInEvent(event);
  update();
}

void ReachableBar::focusOutEvent(QFocusEvent* event) {
  QScrollBar::focusOutEvent(event);
  update();
}

}  // namespace tarnwick
