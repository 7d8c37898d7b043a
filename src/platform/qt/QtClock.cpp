#include "platform/qt/QtClock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTimer>

namespace tarnwick {
namespace {

/// Takes the presses of the mouse that have waited, up to the moment in which nothing waits any more. A
/// button that was down before may still come up.
class StaleClicks final : public QObject {
 public:
  StaleClicks() : QObject(QCoreApplication::instance()) {
    QCoreApplication::instance()->installEventFilter(this);
    startTimer(0);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
        taken_ |= static_cast<QMouseEvent*>(event)->button();
        return true;
      case QEvent::MouseButtonRelease:
        return taken_.testFlag(static_cast<QMouseEvent*>(event)->button());
      case QEvent::TouchBegin:
      case QEvent::TabletPress:
        return true;
      default:
        return QObject::eventFilter(watched, event);
    }
  }

  /// Each round of the loop answers all that waits, but some desktops' loops look at the timers first.
  void timerEvent(QTimerEvent*) override {
    constexpr int enough = 3;
    if (++rounds_ < enough) return;
    QCoreApplication::instance()->removeEventFilter(this);
    deleteLater();
  }

 private:
  Qt::MouseButtons taken_;
  int rounds_ = 0;
};

}  // namespace

LocalTime QtClock::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  return {date.year(), date.month(), date.day(), now.time().hour(), now.time().minute()};
}

void QtClock::Wait(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void QtClock::WaitDeafToClicks(std::chrono::milliseconds time) {
  Wait(time);
  new StaleClicks;
}

}  // namespace tarnwick
