#include "platform/qt/ReducedMotion.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QProcess>
#include <QProxyStyle>
#include <QTest>
#include <QThread>

namespace tarnwick {
namespace {

constexpr const char* Bus = "portal";

/// A style that moves for so many milliseconds.
class TimedStyle final : public QProxyStyle {
 public:
  explicit TimedStyle(int time) : time_(time) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    return hint == SH_Widget_Animation_Duration ? time_
                                                : QProxyStyle::styleHint(hint, option, widget, answer);
  }

 private:
  int time_;
};

/// What a desktop says of itself.
class Portal final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  QVariant Animations;

 public slots:
  QDBusVariant Read(const QString& group, const QString& key) {
    const bool isIt = group == "org.gnome.desktop.interface" && key == "enable-animations";
    return QDBusVariant(QVariant::fromValue(QDBusVariant(isIt ? Animations : QVariant("?"))));
  }
};

}  // namespace

class ReducedMotionTest : public QObject {
  Q_OBJECT

 private slots:
  void isTheStylesWord();
  void isThePortalsWord();
  void isNotAssumed();
};

void ReducedMotionTest::isTheStylesWord() {
  QApplication::setStyle(new TimedStyle(0));
  QVERIFY(ReducedMotion());
  QApplication::setStyle(new TimedStyle(200));
  QVERIFY(!ReducedMotion());
}

/// A desk without a portal, and one whose portal does not know.
void ReducedMotionTest::isNotAssumed() { QVERIFY(!ReducedMotion()); }

void ReducedMotionTest::isThePortalsWord() {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  QVERIFY2(daemon.waitForStarted(), "there is no dbus-daemon");
  QVERIFY(daemon.waitForReadyRead());
  const QByteArray address = daemon.readLine().trimmed();
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  QVERIFY(!ReducedMotion());  // nobody answers

  QThread thread;  // of its own, as the question waits for its answer
  thread.start();
  Portal portal;
  portal.moveToThread(&thread);
  QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), Bus);
  QVERIFY(bus.registerObject("/org/freedesktop/portal/desktop", &portal, QDBusConnection::ExportAllSlots));
  QVERIFY(bus.registerService("org.freedesktop.portal.Desktop"));
  for (const QVariant& says : {QVariant(false), QVariant(true), QVariant("no"), QVariant(0)}) {
    portal.Animations = says;
    QCOMPARE(ReducedMotion(), says == QVariant(false) && says.typeId() == QMetaType::Bool);
  }
  bus.unregisterObject("/org/freedesktop/portal/desktop");
  thread.quit();
  thread.wait();
  QDBusConnection::disconnectFromBus(Bus);
  daemon.terminate();
  daemon.waitForFinished();
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

}  // namespace tarnwick

int main(int argc, char** argv) {
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");  // the desk of whoever runs the tests
  QApplication application(argc, argv);
  tarnwick::ReducedMotionTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "ReducedMotion_test.moc"
