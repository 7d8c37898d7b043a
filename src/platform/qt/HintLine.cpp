#include "platform/qt/HintLine.h"

#include <QEvent>
#include <QMouseEvent>
#include <utility>

#include "platform/qt/TabStep.h"

namespace tarnwick {

HintLine::HintLine(HintOf hintOf, QWidget* parent) : QLabel(parent), hintOf_(std::move(hintOf)) {
  setTextFormat(Qt::PlainText);
  setAccessibleName(tr("Hint"));
}

void HintLine::Watch(QWidget& window) {
  QList<QWidget*> watched = window.findChildren<QWidget*>();
  for (QWidget* control : std::as_const(watched)) {
    const QString hint = hintOf_(control->objectName());
    if (hint.isEmpty()) continue;
    control->setAccessibleDescription(hint);
    setText(hint);
    room_ = room_.expandedTo(QLabel::sizeHint());
  }
  clear();
  watched.append(&window);
  for (QWidget* widget : std::as_const(watched)) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
  }
}

/// Parts of a control, such as the surface of a list, speak for the whole.
QString HintLine::HintFor(const QWidget* control) const {
  for (; control && !control->isWindow(); control = control->parentWidget()) {
    QString hint = hintOf_(control->objectName());
    if (!hint.isEmpty()) return hint;
  }
  return {};
}

void HintLine::Say(const QString& hint) {
  setText(hint);
  setAccessibleDescription(hint);
}

bool HintLine::eventFilter(QObject* watched, QEvent* event) {
  const auto* const control = qobject_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::Enter:
      Say(HintFor(control));
      break;
    case QEvent::Leave:
      Say(HintFor(control->parentWidget()));
      break;
    case QEvent::MouseMove: {
      // By the place: a control may pass its event on to the window below it.
      const QPoint place = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
      Say(HintFor(control->window()->childAt(control->window()->mapFromGlobal(place))));
      break;
    }
    case QEvent::FocusIn:
      if (IsTabStep(*event) && control->hasFocus()) {
        Say(HintFor(control));  // without the focus: a window that opens
      }
      break;
    default:
      break;
  }
  return QLabel::eventFilter(watched, event);
}

}  // namespace tarnwick
