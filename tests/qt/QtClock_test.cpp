#include "platform/qt/QtClock.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

namespace tarnwick {

class QtClockTest : public QObject {
  Q_OBJECT

 private slots:
  void tellsTheTimeOfTheUser();
  void pausesForAQuarterOfASecond();
  void letsWindowsLiveMeanwhile();
};

void QtClockTest::tellsTheTimeOfTheUser() {
  const QDateTime before = QDateTime::currentDateTime().addSecs(-60);
  const LocalTime now = QtClock().Now();
  const QDateTime told(QDate(now.Year, now.Month, now.Day), QTime(now.Hour, now.Minute));
  QVERIFY(told.isValid());
  QVERIFY(told >= before && told <= QDateTime::currentDateTime());
}

void QtClockTest::pausesForAQuarterOfASecond() {
  QElapsedTimer watch;
  watch.start();
  QtClock clock;
  Pause(clock);
  QVERIFY(watch.elapsed() >= 250);
  QVERIFY(watch.elapsed() < 2000);  // a machine under load
}

void QtClockTest::letsWindowsLiveMeanwhile() {
  int ticks = 0;
  QTimer timer;
  connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
  timer.start(10);
  QtClock().Wait(std::chrono::milliseconds(100));
  QVERIFY(ticks > 1);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtClockTest)
#include "QtClock_test.moc"
