#include "platform/qt/QtClock.h"

#include <QDateTime>
#include <QEventLoop>
#include <QTimer>

namespace tarnwick {

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

}  // namespace tarnwick
