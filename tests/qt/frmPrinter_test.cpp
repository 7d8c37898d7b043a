#include "print/frmPrinter.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "qt/Controls.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {

using test::Named;

class frmPrinterTest : public QObject {
  Q_OBJECT

 private slots:
  void init();

  void opensOnThePrinterSelected();
  void listsThePrintersInTheirOrder();
  void selectsByKeys();
  void ticksTheDefault();
  void opensTheSetupOfThePrinterSelected();
  void leavesTheWheelToTheWindow();
  void accepts_data();
  void accepts();
  void cancels_data();
  void cancels();
  void showsPrintersByTheirNamesWhole();
  void opensTheManual();
  void namesEveryControl();
  void clipsNothing();

 private:
  void Open(std::vector<std::string> printers, std::size_t selected);
  QComboBox* List() { return Named<QComboBox>(*window_, "cboPrinters"); }

  test::RecordingHelpViewer help_;
  QStringList setUp_;
  std::unique_ptr<PrinterChoice> choice_;
  std::unique_ptr<frmPrinter> window_;
};

void frmPrinterTest::init() {
  help_ = {};
  setUp_.clear();
  Open({"Alpha", "Beta", "Gamma"}, 1);
}

void frmPrinterTest::Open(std::vector<std::string> printers, std::size_t selected) {
  window_.reset();
  choice_ = std::make_unique<PrinterChoice>(
      std::move(printers), selected,
      [this](const std::string& printer, const std::optional<PrinterSetup>&) -> std::optional<PrinterSetup> {
        setUp_ << QString::fromStdString(printer);
        return PrinterSetup{.Copies = 3};
      });
  window_ = std::make_unique<frmPrinter>(*choice_, help_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void frmPrinterTest::opensOnThePrinterSelected() {
  QCOMPARE(window_->objectName(), QString("frmPrinter"));
  QCOMPARE(window_->windowTitle(), QString("Choose Printer"));
  QVERIFY(window_->isModal());
  QCOMPARE(Named<QLabel>(*window_, "Label1")->text(), QString("Printer:"));
  QCOMPARE(List()->currentText(), QString("Beta"));
  QCOMPARE(Named<QCheckBox>(*window_, "chkSavePrinter")->text(), QString("Save as default printer"));
  QVERIFY(!Named<QCheckBox>(*window_, "chkSavePrinter")->isChecked());
  for (const char* name : {"fraPages", "chkPrintQuality"}) QVERIFY(!window_->findChild<QWidget*>(name));
}

void frmPrinterTest::listsThePrintersInTheirOrder() {
  QCOMPARE(List()->count(), 3);
  QCOMPARE(List()->itemText(0) + List()->itemText(1) + List()->itemText(2), QString("AlphaBetaGamma"));
}

void frmPrinterTest::selectsByKeys() {
  QCOMPARE(window_->focusWidget(), List());
  QTest::keyClick(List(), Qt::Key_Down);
  QCOMPARE(choice_->Name(), std::string("Gamma"));
  QTest::keyClick(List(), Qt::Key_A);
  QCOMPARE(choice_->Name(), std::string("Alpha"));
}

void frmPrinterTest::ticksTheDefault() {
  auto* tick = Named<QCheckBox>(*window_, "chkSavePrinter");
  QTest::keyClick(tick, Qt::Key_Space);
  QVERIFY(choice_->SavesPrinter());
  QTest::keyClick(tick, Qt::Key_Space);
  QVERIFY(!choice_->SavesPrinter());
}

void frmPrinterTest::opensTheSetupOfThePrinterSelected() {
  QTest::mouseClick(Named<QPushButton>(*window_, "cmdSetup"), Qt::LeftButton);
  QCOMPARE(setUp_, QStringList{"Beta"});
  QCOMPARE(choice_->Setup()->Copies, 3);
  QVERIFY(window_->isVisible());
  QTest::keyClick(List(), Qt::Key_Up);
  QVERIFY(!choice_->Setup());
  QTest::keyClick(window_.get(), Qt::Key_S, Qt::AltModifier);
  QTRY_COMPARE(setUp_.last(), QString("Alpha"));
}

void frmPrinterTest::leavesTheWheelToTheWindow() {
  Named<QCheckBox>(*window_, "chkSavePrinter")->setFocus();
  QWheelEvent turn(QPointF(5, 5), List()->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(List(), &turn);
  QCOMPARE(choice_->Name(), std::string("Beta"));
}

void frmPrinterTest::accepts_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"button", "Enter", "Alt+O"}) QTest::newRow(how) << how;
}

void frmPrinterTest::accepts() {
  QFETCH(QString, how);
  if (how == "button") QTest::mouseClick(Named<QPushButton>(*window_, "cmdOk"), Qt::LeftButton);
  if (how == "Enter") QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  if (how == "Alt+O") QTest::keyClick(window_.get(), Qt::Key_O, Qt::AltModifier);
  QTRY_VERIFY(!window_->isVisible());  // a button pressed by its letter comes up a moment later
  QVERIFY(!choice_->IsOpen());
  QVERIFY(choice_->IsAccepted());
}

void frmPrinterTest::cancels_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"button", "Escape", "Alt+C", "close"}) QTest::newRow(how) << how;
}

void frmPrinterTest::cancels() {
  QFETCH(QString, how);
  if (how == "button") QTest::mouseClick(Named<QPushButton>(*window_, "cmdCancel"), Qt::LeftButton);
  if (how == "Escape") QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  if (how == "Alt+C") QTest::keyClick(window_.get(), Qt::Key_C, Qt::AltModifier);
  if (how == "close") window_->close();
  QTRY_VERIFY(!window_->isVisible());  // a button pressed by its letter comes up a moment later
  QVERIFY(!choice_->IsOpen());
  QVERIFY(!choice_->IsAccepted());
}

void frmPrinterTest::showsPrintersByTheirNamesWhole() {
  const std::string name =
      "Saw shop & office: the large printer on the second floor, beside the stairs, in colour";
  Open({name, "Beta"}, 0);
  QVERIFY(window_->width() < 600);
  QCOMPARE(List()->itemText(0).toStdString(), name);
  QCOMPARE(List()->itemData(0, Qt::ToolTipRole).toString().toStdString(), name);
}

void frmPrinterTest::opensTheManual() {
  QTest::keyClick(window_.get(), Qt::Key_F1);
  QCOMPARE(help_.Asked, std::vector<std::string>{"topic 700"});
}

void frmPrinterTest::namesEveryControl() {
  const QStringList controls{"cboPrinters", "chkSavePrinter", "cmdSetup", "cmdOk", "cmdCancel"};
  QCOMPARE(test::BadlySpoken(*window_, controls), QStringList());
  QCOMPARE(test::TabOrder(*window_), controls);
  QCOMPARE(test::AccessKeys(*window_), QString("SOC"));
}

void frmPrinterTest::clipsNothing() {
  QCOMPARE(
      test::Clipped(*window_, {"Label1", "cboPrinters", "chkSavePrinter", "cmdSetup", "cmdOk", "cmdCancel"}),
      QStringList());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmPrinterTest)
#include "frmPrinter_test.moc"
