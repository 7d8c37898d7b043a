#include "platform/qt/QtApplication.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QTest>
#include <QWidget>

namespace tarnwick {
namespace {

constexpr const char* DesktopIcon =
    TARNWICK_SAMPLES_DIR "/../packaging/icons/scalable/org.tarnwick.tarnwick.svg";

}  // namespace

class QtApplicationTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { SetUpApplication(*qApp); }

  void namesTheProgram();
  void showsTheIconOfTheDesktop();
};

void QtApplicationTest::namesTheProgram() {
  QCOMPARE(QApplication::applicationName(), QString("tarnwick"));
  QCOMPARE(QGuiApplication::desktopFileName(), QString("org.tarnwick.tarnwick"));
  QVERIFY(QApplication::applicationVersion().contains('.'));
}

void QtApplicationTest::showsTheIconOfTheDesktop() {
  QWidget window;
  for (const int side : {16, 32, 48, 256}) {
    const QImage shown = window.windowIcon().pixmap(side).toImage();
    QCOMPARE(shown.size(), QSize(side, side));
    QCOMPARE(shown, QIcon(DesktopIcon).pixmap(side).toImage());
    QVERIFY(qAlpha(shown.pixel(side / 2, side / 2)) > 0);
  }
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtApplicationTest)
#include "QtApplication_test.moc"
