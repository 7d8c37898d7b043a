#include "platform/qt/CenterForm.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QMargins>
#include <QObject>
#include <QPoint>
#include <QScreen>
#include <QWindow>

namespace tarnwick {
namespace {

/// A window that was never shown does not know its frame; the one that it belongs to has one like it.
QMargins FrameOf(const QDialog& form) {
  for (const QWidget* window = &form; window; window = window->parentWidget()) {
    const QWindow* handle = window->windowHandle();
    if (handle && !handle->frameMargins().isNull()) return handle->frameMargins();
  }
  return {};
}

void MoveToTheMiddle(QDialog& form) {
  // Controls may learn only now, with their fonts and borders, that they need more room.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const QScreen* screen = (form.parentWidget() ? form.parentWidget() : &form)->screen();
  const QRect area = screen->availableGeometry();
  const QMargins frame = FrameOf(form);
  const QSize spare = (area.size() - form.size().grownBy(frame)).expandedTo({0, 0});
  // The place of what is inside the frame: a place of the frame is one only once the desktop has made it.
  form.setGeometry(
      {area.topLeft() + QPoint(spare.width() / 2 + frame.left(), spare.height() / 2 + frame.top()),
       form.size()});
}

/// Waits for the moment in which the dialog knows its size, and nothing is seen of it yet.
class FirstShow final : public QObject {
 public:
  explicit FirstShow(QDialog& form) : QObject(&form), form_(form) { form.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) {
      form_.removeEventFilter(this);
      MoveToTheMiddle(form_);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QDialog& form_;
};

}  // namespace

void CenterForm(QDialog& form) { new FirstShow(form); }

}  // namespace tarnwick
