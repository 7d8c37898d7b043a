#include "platform/qt/MeasureBox.h"

#include <QKeyEvent>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

namespace tarnwick {

class MeasureBoxTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { window_.reset(); }

  void isPressedByTheMouse();
  void isPressedByKeys_data();
  void isPressedByKeys();
  void isPressedWhenItIsAResultToo();
  void leavesEnterToItsWindow();
  void isNotPressedOtherwise();
  void takesNoText();
  void leavesTheKeysOfCommandsAlone();
  void looksLikeAnInputOnlyWhereItOpens();
  void staysInPlaceWhenItBecomesAResult();
  void passesOtherKeysOn();

 private:
  std::unique_ptr<QWidget> window_;
  MeasureBox* box_ = nullptr;
  int presses_ = 0;
};

void MeasureBoxTest::init() {
  window_ = std::make_unique<QWidget>();
  box_ = new MeasureBox(window_.get());
  box_->setText(" 2.500 in");
  (new QVBoxLayout(window_.get()))->addWidget(box_);
  presses_ = 0;
  connect(box_, &MeasureBox::Pressed, this, [this] { ++presses_; });
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  box_->setFocus();
}

void MeasureBoxTest::isPressedByTheMouse() {
  QTest::mousePress(box_, Qt::LeftButton);
  QCOMPARE(presses_, 0);  // a dialog that opened now would take the release
  QTest::mouseRelease(box_, Qt::LeftButton);
  QCOMPARE(presses_, 1);
}

void MeasureBoxTest::isPressedByKeys_data() {
  QTest::addColumn<int>("key");
  QTest::newRow("Return") << int(Qt::Key_Return);
  QTest::newRow("Enter") << int(Qt::Key_Enter);
  QTest::newRow("Space") << int(Qt::Key_Space);
}

void MeasureBoxTest::isPressedByKeys() {
  QFETCH(int, key);
  QTest::keyClick(box_, Qt::Key(key));
  QCOMPARE(presses_, 1);
  QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
  QCoreApplication::sendEvent(box_, &again);
  QCOMPARE(presses_, 1);  // a key that is held opens one dialog
  QCOMPARE(box_->text(), QString(" 2.500 in"));
}

void MeasureBoxTest::isPressedWhenItIsAResultToo() {
  box_->SetOpens(false);
  QTest::mouseClick(box_, Qt::LeftButton);
  QTest::keyClick(box_, Qt::Key_Return);
  QCOMPARE(presses_, 2);
}

void MeasureBoxTest::leavesEnterToItsWindow() {
  box_->PassEnterOn();
  for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(box_, &event);
    QVERIFY(!event.isAccepted());
  }
  QCOMPARE(presses_, 0);
  QTest::keyClick(box_, Qt::Key_Space);
  QCOMPARE(presses_, 1);
}

void MeasureBoxTest::isNotPressedOtherwise() {
  QTest::mouseClick(box_, Qt::RightButton);
  QTest::mouseClick(box_, Qt::MiddleButton);
  QTest::mousePress(box_, Qt::LeftButton);
  QTest::mouseRelease(box_, Qt::LeftButton, {}, QPoint(5, box_->height() + 20));  // thought better of it
  QTest::keyClick(box_, Qt::Key_Left);
  QCOMPARE(presses_, 0);
}

void MeasureBoxTest::takesNoText() {
  QTest::keyClicks(box_, "7");
  QTest::keyClick(box_, Qt::Key_Delete);
  QTest::keyClick(box_, Qt::Key_Backspace);
  QCOMPARE(box_->text(), QString(" 2.500 in"));
}

void MeasureBoxTest::leavesTheKeysOfCommandsAlone() {
  for (const int key : {Qt::Key_A, Qt::Key_C, Qt::Key_L}) {
    QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
    QCoreApplication::sendEvent(box_, &event);
    QVERIFY(!event.isAccepted());
  }
}

void MeasureBoxTest::looksLikeAnInputOnlyWhereItOpens() {
  QVERIFY(box_->hasFrame());
  QCOMPARE(box_->cursor().shape(), Qt::PointingHandCursor);
  box_->SetOpens(false);
  QVERIFY(!box_->hasFrame());
  QVERIFY(box_->isEnabled());  // a box that is not enabled gets no mouse, and no hint
  QCOMPARE(box_->cursor().shape(), Qt::ArrowCursor);
  QCOMPARE(box_->palette().color(QPalette::Base).alpha(), 0);
  QCOMPARE(box_->palette().color(QPalette::Text), window_->palette().color(QPalette::Text));
  box_->SetOpens(true);
  QVERIFY(box_->hasFrame());
  QCOMPARE(box_->palette().color(QPalette::Base), window_->palette().color(QPalette::Base));
}

void MeasureBoxTest::staysInPlaceWhenItBecomesAResult() {
  const int height = box_->height();
  box_->SetOpens(false);
  QTest::qWait(10);
  QCOMPARE(box_->height(), height);
  box_->SetOpens(true);
  QTest::qWait(10);
  QCOMPARE(box_->height(), height);
  QFont large = box_->font();
  large.setPointSize(large.pointSize() * 2);
  box_->setFont(large);
  QTest::qWait(10);
  QVERIFY(box_->height() > height);
}

void MeasureBoxTest::passesOtherKeysOn() {
  QKeyEvent page(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
  box_->setFocus();
  QCoreApplication::sendEvent(box_, &page);
  QVERIFY(!page.isAccepted());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::MeasureBoxTest)
#include "MeasureBox_test.moc"
