#include "shell/frmSplash.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QTest>
#include <memory>

#include "platform/qt/BandPicture.h"
#include "qt/Controls.h"

namespace tarnwick {
namespace {

using test::Named;

const QStringList Parts = {"lblName", "lblVersion", "lblMaker", "PicSplash", "lblClose"};

}  // namespace

class frmSplashTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { window_.reset(); }

  void showsNameVersionAndMaker();
  void closesOnAnyKey_data();
  void closesOnAnyKey();
  void closesOnAClick_data();
  void closesOnAClick();
  void staysWhileAKeyIsHeld();
  void blocksItsWindowAndStandsInTheMiddle();
  void looksTheSameOnEveryDesktop();
  void namesEveryPart();
  void clipsNothing_data();
  void clipsNothing();

 private:
  void Open(QWidget* parent = nullptr);

  std::unique_ptr<frmSplash> window_;
};

void frmSplashTest::Open(QWidget* parent) {
  window_ = std::make_unique<frmSplash>(parent);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void frmSplashTest::showsNameVersionAndMaker() {
  Open();
  QCOMPARE(window_->objectName(), QString("frmSplash"));
  QCOMPARE(window_->windowTitle(), QString("Tarnwick"));
  QCOMPARE(Named<QLabel>(*window_, "lblName")->text(), QString("Tarnwick"));
  QCOMPARE(Named<QLabel>(*window_, "lblVersion")->text(), QString("Version 2.1"));
  QCOMPARE(Named<QLabel>(*window_, "lblMaker")->text(),
           QString("Made by the Tarnwick makers, www.tarnwick.example"));
}

void frmSplashTest::closesOnAnyKey_data() {
  QTest::addColumn<Qt::Key>("key");
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab, Qt::Key_A, Qt::Key_F1,
                            Qt::Key_Left, Qt::Key_Shift}) {
    QTest::addRow("%s", qPrintable(QVariant::fromValue(key).toString())) << key;
  }
}

void frmSplashTest::closesOnAnyKey() {
  QFETCH(Qt::Key, key);
  Open();
  QTest::keyClick(window_->windowHandle(), key);
  QVERIFY(!window_->isVisible());
}

void frmSplashTest::closesOnAClick_data() {
  QTest::addColumn<QString>("part");
  QTest::newRow("the ground") << QString();
  for (const QString& part : Parts) QTest::newRow(qPrintable(part)) << part;
}

void frmSplashTest::closesOnAClick() {
  QFETCH(QString, part);
  Open();
  const QWidget* under = part.isEmpty() ? nullptr : Named<QWidget>(*window_, qPrintable(part));
  const QPoint place = under ? under->mapTo(window_.get(), under->rect().center()) : QPoint(5, 5);
  QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {}, place);
  QVERIFY(!window_->isVisible());
}

void frmSplashTest::staysWhileAKeyIsHeld() {
  Open();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true),
      up(QEvent::KeyRelease, Qt::Key_Return, {});
  QApplication::sendEvent(window_.get(), &held);
  QApplication::sendEvent(window_.get(), &up);
  QVERIFY(window_->isVisible());
}

void frmSplashTest::blocksItsWindowAndStandsInTheMiddle() {
  QMainWindow owner;
  owner.setGeometry(20, 300, 300, 200);
  owner.show();
  QVERIFY(QTest::qWaitForWindowExposed(&owner));
  Open(&owner);
  QCOMPARE(QApplication::activeModalWidget(), window_.get());
  const QPoint off = window_->frameGeometry().center() - owner.screen()->availableGeometry().center();
  QVERIFY(off.manhattanLength() <= 2);
  window_.reset();
}

void frmSplashTest::looksTheSameOnEveryDesktop() {
  const QPalette before = QApplication::palette();
  Open();
  const QImage light = window_->grab().toImage();
  QApplication::setPalette(QPalette(QColor(30, 30, 30)));
  Open();
  QCOMPARE(window_->grab().toImage(), light);
  QApplication::setPalette(before);
  QCOMPARE(light.pixelColor(4, 4), PictureGround);
}

void frmSplashTest::namesEveryPart() {
  Open();
  QCOMPARE(test::BadlySpoken(*window_, Parts), QStringList());
  QVERIFY(window_->accessibleDescription().contains("closes"));
}

void frmSplashTest::clipsNothing_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 14; ++points) QTest::addRow("%d points", points) << points;
}

void frmSplashTest::clipsNothing() {
  QFETCH(int, points);
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPointSize(points);
  QApplication::setFont(font);
  Open();
  QCOMPARE(test::Clipped(*window_, Parts).join(", "), QString());
  QApplication::setFont(before);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmSplashTest)
#include "frmSplash_test.moc"
