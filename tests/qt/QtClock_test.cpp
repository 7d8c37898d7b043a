#include "platform/qt/QtClock.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tarnwick {

class QtClockTest : public QObject {
  Q_OBJECT

 private slots:
  void tellsTheTimeOfTheUser();
  void pausesForAQuarterOfASecond();
  void letsWindowsLiveMeanwhile();
  void answersNoClickOfAPause();
  void answersKeysAfterAPause();
  void letsAHeldButtonComeUpAfterAPause();
  void answersClicksAfterAPlainWait();
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

namespace {

/// A button in a window that shows, and how often it was pressed.
struct Pressable {
  Pressable() {
    QObject::connect(&Button, &QPushButton::clicked, &Button, [this] { ++Times; });
    Button.show();
    if (!QTest::qWaitForWindowActive(&Button)) qFatal("no window");
    QTest::qWait(20);  // no pause of another test counts any more
    Button.setFocus();
  }
  QPushButton Button;
  int Times = 0;
};

}  // namespace

// What has waited comes as soon as the pause is over, ahead of everything that comes later.
void QtClockTest::answersNoClickOfAPause() {
  Pressable window;
  QtClock clock;
  Pause(clock);
  QTest::mouseClick(&window.Button, Qt::LeftButton);
  QTest::mouseDClick(&window.Button, Qt::LeftButton);
  QCOMPARE(window.Times, 0);
  QVERIFY(!window.Button.isDown());
  QTest::qWait(20);
  QTest::mouseClick(&window.Button, Qt::LeftButton);
  QCOMPARE(window.Times, 1);
}

void QtClockTest::answersKeysAfterAPause() {
  Pressable window;
  QtClock clock;
  Pause(clock);
  QTest::keyClick(&window.Button, Qt::Key_Space);
  QCOMPARE(window.Times, 1);
}

void QtClockTest::letsAHeldButtonComeUpAfterAPause() {
  Pressable window;
  QtClock clock;
  QTest::mousePress(&window.Button, Qt::LeftButton);
  Pause(clock);
  QVERIFY(window.Button.isDown());
  QTest::mouseRelease(&window.Button, Qt::LeftButton);
  QVERIFY(!window.Button.isDown());
  QCOMPARE(window.Times, 1);
}

void QtClockTest::answersClicksAfterAPlainWait() {
  Pressable window;
  QtClock().Wait(std::chrono::milliseconds(10));
  QTest::mouseClick(&window.Button, Qt::LeftButton);
  QCOMPARE(window.Times, 1);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtClockTest)
#include "QtClock_test.moc"
