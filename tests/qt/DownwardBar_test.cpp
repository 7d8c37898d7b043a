#include "platform/qt/DownwardBar.h"

#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>
#include <memory>

namespace tarnwick {

class DownwardBarTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { bar_.reset(); }

  void hasItsThumbAtTheTopAtFirst();
  void goesDownByWhatIsBelow();
  void goesByKeys();
  void goesByTheWheel();
  void addsUpSmallTurns();
  void staysWithinItsEnds();

 private:
  [[nodiscard]] QRect Part(QStyle::SubControl part) const;
  void Press(QStyle::SubControl part) {
    QTest::mouseClick(bar_.get(), Qt::LeftButton, {}, Part(part).center());
  }
  void Turn(int angle);

  std::unique_ptr<DownwardBar> bar_;
};

void DownwardBarTest::init() {
  bar_ = std::make_unique<DownwardBar>();
  bar_->setRange(-50, 0);
  bar_->setPageStep(10);
  bar_->setFocusPolicy(Qt::StrongFocus);
  bar_->resize(16, 300);
  bar_->show();
  QVERIFY(QTest::qWaitForWindowActive(bar_.get()));
}

QRect DownwardBarTest::Part(QStyle::SubControl part) const {
  QStyleOptionSlider option;
  option.initFrom(bar_.get());
  option.subControls = QStyle::SC_All;
  option.orientation = Qt::Vertical;
  option.minimum = bar_->minimum();
  option.maximum = bar_->maximum();
  option.sliderPosition = bar_->sliderPosition();
  option.sliderValue = bar_->value();
  option.singleStep = bar_->singleStep();
  option.pageStep = bar_->pageStep();
  option.upsideDown = bar_->invertedAppearance();
  return bar_->style()->subControlRect(QStyle::CC_ScrollBar, &option, part, bar_.get());
}

void DownwardBarTest::Turn(int angle) {
  QWheelEvent wheel(QPointF(5, 5), bar_->mapToGlobal(QPointF(5, 5)), {}, {0, angle}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(bar_.get(), &wheel);
  QVERIFY(wheel.isAccepted());
}

void DownwardBarTest::hasItsThumbAtTheTopAtFirst() {
  const int top = Part(QStyle::SC_ScrollBarSlider).top();
  bar_->setValue(-50);
  QVERIFY(Part(QStyle::SC_ScrollBarSlider).top() > top + 100);
}

void DownwardBarTest::goesDownByWhatIsBelow() {
  Press(QStyle::SC_ScrollBarAddLine);
  QCOMPARE(bar_->value(), -1);
  Press(QStyle::SC_ScrollBarAddPage);
  QCOMPARE(bar_->value(), -11);
  Press(QStyle::SC_ScrollBarSubLine);
  QCOMPARE(bar_->value(), -10);
  Press(QStyle::SC_ScrollBarSubPage);
  QCOMPARE(bar_->value(), 0);
}

void DownwardBarTest::goesByKeys() {
  const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Down, -1}, {Qt::Key_PageDown, -11}, {Qt::Key_Up, -10},
                                           {Qt::Key_End, -50}, {Qt::Key_PageUp, -40},   {Qt::Key_Home, 0}};
  for (const auto& [key, value] : steps) {
    QTest::keyClick(bar_.get(), key);
    QCOMPARE(bar_->value(), value);
  }
}

void DownwardBarTest::goesByTheWheel() {
  Turn(-120);  // toward the hand
  QCOMPARE(bar_->value(), -QApplication::wheelScrollLines());
  Turn(-240);
  QCOMPARE(bar_->value(), -3 * QApplication::wheelScrollLines());
  Turn(120);
  QCOMPARE(bar_->value(), -2 * QApplication::wheelScrollLines());
}

void DownwardBarTest::addsUpSmallTurns() {
  for (int i = 0; i < 8; ++i) Turn(-15);
  QCOMPARE(bar_->value(), -QApplication::wheelScrollLines());
}

void DownwardBarTest::staysWithinItsEnds() {
  Turn(120);
  QCOMPARE(bar_->value(), 0);
  bar_->setValue(-50);
  Turn(-1200);
  Press(QStyle::SC_ScrollBarAddLine);
  QCOMPARE(bar_->value(), -50);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::DownwardBarTest)
#include "DownwardBar_test.moc"
