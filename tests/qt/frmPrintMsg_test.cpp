#include "print/frmPrintMsg.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <memory>

#include "qt/Controls.h"

namespace tarnwick {

using test::Named;

class frmPrintMsgTest : public QObject {
  Q_OBJECT

 private slots:
  void init();

  void saysThatAPageIsPrinted();
  void showsTheNextPage();
  void isSeenBeforeThePageIsMade();
  void standsInTheMiddleOfTheScreen();
  void hasNoButton();
  void staysWhateverIsPressed();
  void keepsTheProgramToItself();
  void makesRoomForManyPages();

 private:
  std::unique_ptr<frmPrintMsg> window_;
};

void frmPrintMsgTest::init() {
  window_ = std::make_unique<frmPrintMsg>();
  window_->ShowPage(1, 2);
}

void frmPrintMsgTest::saysThatAPageIsPrinted() {
  QCOMPARE(window_->objectName(), QString("frmPrintMsg"));
  QCOMPARE(window_->windowTitle(), QString("Printing"));
  QCOMPARE(Named<QLabel>(*window_, "lblPrinting")->text(), QString("Printing"));
  QCOMPARE(Named<QLabel>(*window_, "lblPage")->text(), QString("Page 1 of 2"));
  QCOMPARE(window_->accessibleName(), QString("Printing page 1 of 2"));
}

void frmPrintMsgTest::showsTheNextPage() {
  window_->ShowPage(2, 2);
  QVERIFY(window_->isVisible());
  QCOMPARE(Named<QLabel>(*window_, "lblPage")->text(), QString("Page 2 of 2"));
}

void frmPrintMsgTest::isSeenBeforeThePageIsMade() {
  class Watcher final : public QObject {
   public:
    bool eventFilter(QObject*, QEvent* event) override {
      painted += event->type() == QEvent::Paint;
      return false;
    }
    int painted = 0;
  } watcher;
  Named<QLabel>(*window_, "lblPage")->installEventFilter(&watcher);
  window_->ShowPage(2, 2);
  QVERIFY(watcher.painted > 0);
}

void frmPrintMsgTest::standsInTheMiddleOfTheScreen() {
  const QPoint off = window_->geometry().center() - window_->screen()->availableGeometry().center();
  QVERIFY(off.manhattanLength() <= 2);
}

void frmPrintMsgTest::hasNoButton() {
  QVERIFY(window_->findChildren<QAbstractButton*>().isEmpty());
  QVERIFY(!(window_->windowFlags() & Qt::WindowCloseButtonHint));
}

void frmPrintMsgTest::staysWhateverIsPressed() {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
    QTest::keyClick(window_.get(), key);
    QVERIFY(window_->isVisible());
  }
  window_->close();
  QVERIFY(window_->isVisible());
}

void frmPrintMsgTest::keepsTheProgramToItself() {
  QCOMPARE(QApplication::activeModalWidget(), window_.get());
}

void frmPrintMsgTest::makesRoomForManyPages() {
  window_->ShowPage(32766, 32767);
  QCOMPARE(test::Clipped(*window_, {"lblPrinting", "lblPage"}), QStringList());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmPrintMsgTest)
#include "frmPrintMsg_test.moc"
