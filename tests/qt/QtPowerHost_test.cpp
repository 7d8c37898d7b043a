#include "platform/qt/QtPowerHost.h"

#include <QTest>

#include "power/PowerCalculator.h"
#include "power/PowerEditor.h"
#include "power/PowerEstimateList.h"
#include "qt/PowerWindow.h"

namespace tarnwick {
namespace {

using test::Click;

}  // namespace

class QtPowerHostTest : public QObject {
  Q_OBJECT

 private slots:
  void runsTheEditor();
  void runsTheEstimates();
  void runsTheCalculator();
  void standsAboveTheWindowInUse();

 private:
  test::PowerBench bench_;
};

void QtPowerHostTest::runsTheEditor() {
  PowerEditor editor(bench_.Program.Process, bench_.Dialogs, bench_.Windows);
  editor.GetSawPowerData(test::PowerDesign());
  bench_.User.Acts = {[](QDialog& window) { Click(window, "cmdOk"); }};
  bench_.Windows.Run(editor);
  QVERIFY(editor.IsAccepted());
  QCOMPARE(bench_.User.Seen.takeLast(), QString("frmPower: Power Requirements"));
}

void QtPowerHostTest::runsTheEstimates() {
  const auto rows = BuildPowerEstimates(test::PowerDesign(), 10, {5, 0.7});
  PowerEstimateList estimates(0.7, DisplayFormat{});
  estimates.GetPowerReq(*rows, 10);
  bench_.User.Acts = {test::Escapes()};
  bench_.Windows.Run(estimates);
  QVERIFY(!estimates.IsOpen());
  QCOMPARE(bench_.User.Seen.takeLast(), QString("frmPowerEst: Power Estimates"));
}

void QtPowerHostTest::runsTheCalculator() {
  PowerCalculator calculator(bench_.Program.Process, bench_.Dialogs);
  bench_.User.Acts = {[](QDialog& window) { Click(window, "cmdExit"); }};
  bench_.Windows.Run(calculator);
  QVERIFY(!calculator.IsOpen());
  QCOMPARE(bench_.User.Seen.takeLast(), QString("frmPowerCalc: Power Calculator"));
}

void QtPowerHostTest::standsAboveTheWindowInUse() {
  QWidget main;
  main.show();
  QVERIFY(QTest::qWaitForWindowActive(&main));
  PowerCalculator calculator(bench_.Program.Process, bench_.Dialogs);
  bench_.User.Acts = {[&main](QDialog& window) {
    QCOMPARE(window.parentWidget(), &main);
    QCOMPARE(window.windowModality(), Qt::WindowModal);
    Click(window, "cmdExit");
  }};
  bench_.Windows.Run(calculator);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtPowerHostTest)
#include "QtPowerHost_test.moc"
