#include "print/frmPrinterPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include "qt/Controls.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {

using test::Named;

class frmPrinterPageTest : public QObject {
  Q_OBJECT

 private slots:
  void init();

  void opensOnBothPages();
  void choosesPagesByMouse_data();
  void choosesPagesByMouse();
  void choosesPagesByKeys();
  void asksForTheQuality();
  void keepsThePrinterAndItsTick();
  void accepts();
  void cancels();
  void namesEveryControl();
  void clipsNothing();

 private:
  test::RecordingHelpViewer help_;
  std::unique_ptr<PrinterChoice> choice_;
  std::unique_ptr<frmPrinterPage> window_;
};

void frmPrinterPageTest::init() {
  window_.reset();
  choice_ = std::make_unique<PrinterChoice>(std::vector<std::string>{"Alpha", "Beta"}, 0,
                                            [](const auto&, const auto&) { return std::nullopt; });
  window_ = std::make_unique<frmPrinterPage>(*choice_, help_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void frmPrinterPageTest::opensOnBothPages() {
  QCOMPARE(window_->objectName(), QString("frmPrinterPage"));
  QCOMPARE(window_->windowTitle(), QString("Choose Printer and Pages"));
  QCOMPARE(Named<QGroupBox>(*window_, "fraPages")->title(), QString("Pages:"));
  QCOMPARE(Named<QRadioButton>(*window_, "optBoth")->text(), QString("Both Pages"));
  QCOMPARE(Named<QRadioButton>(*window_, "optSawDrawing")->text(), QString("Saw Drawing"));
  QCOMPARE(Named<QRadioButton>(*window_, "optSawInfo")->text(), QString("Saw Information"));
  QCOMPARE(Named<QCheckBox>(*window_, "chkPrintQuality")->text(), QString("Print Quality (High)"));
  QVERIFY(Named<QRadioButton>(*window_, "optBoth")->isChecked());
  QVERIFY(!Named<QCheckBox>(*window_, "chkPrintQuality")->isChecked());
  QVERIFY(!window_->findChild<QWidget*>("cmdSetup"));
  QCOMPARE(choice_->Pages(), SawPages::Both);
}

void frmPrinterPageTest::choosesPagesByMouse_data() {
  QTest::addColumn<QString>("option");
  QTest::addColumn<SawPages>("pages");
  QTest::newRow("drawing") << "optSawDrawing" << SawPages::Drawing;
  QTest::newRow("information") << "optSawInfo" << SawPages::Info;
}

void frmPrinterPageTest::choosesPagesByMouse() {
  QFETCH(QString, option);
  QFETCH(SawPages, pages);
  Named<QRadioButton>(*window_, qPrintable(option))->click();
  QCOMPARE(choice_->Pages(), pages);
  Named<QRadioButton>(*window_, "optBoth")->click();
  QCOMPARE(choice_->Pages(), SawPages::Both);
}

void frmPrinterPageTest::choosesPagesByKeys() {
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Down);
  QCOMPARE(choice_->Pages(), SawPages::Drawing);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Down);
  QCOMPARE(choice_->Pages(), SawPages::Info);
}

void frmPrinterPageTest::asksForTheQuality() {
  auto* tick = Named<QCheckBox>(*window_, "chkPrintQuality");
  QTest::keyClick(tick, Qt::Key_Space);
  QCOMPARE(choice_->Quality(), PrintQuality::High);
  QTest::keyClick(tick, Qt::Key_Space);
  QCOMPARE(choice_->Quality(), PrintQuality::Normal);
}

void frmPrinterPageTest::keepsThePrinterAndItsTick() {
  QTest::keyClick(Named<QComboBox>(*window_, "cboPrinters"), Qt::Key_Down);
  QTest::keyClick(Named<QCheckBox>(*window_, "chkSavePrinter"), Qt::Key_Space);
  QCOMPARE(choice_->Name(), std::string("Beta"));
  QVERIFY(choice_->SavesPrinter());
}

void frmPrinterPageTest::accepts() {
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  QVERIFY(!window_->isVisible());
  QVERIFY(choice_->IsAccepted());
}

void frmPrinterPageTest::cancels() {
  QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  QVERIFY(!window_->isVisible());
  QVERIFY(!choice_->IsOpen());
  QVERIFY(!choice_->IsAccepted());
}

void frmPrinterPageTest::namesEveryControl() {
  const QStringList controls{"cboPrinters",     "optBoth",        "optSawDrawing", "optSawInfo",
                             "chkPrintQuality", "chkSavePrinter", "cmdOk",         "cmdCancel"};
  QCOMPARE(test::BadlySpoken(*window_, controls + QStringList{"fraPages"}), QStringList());
  QStringList reached = controls;
  reached.removeAll("optSawDrawing");  // the arrows go there
  reached.removeAll("optSawInfo");
  QCOMPARE(test::TabOrder(*window_), reached);
  QCOMPARE(test::AccessKeys(*window_), QString("OC"));
}

void frmPrinterPageTest::clipsNothing() {
  QCOMPARE(test::Clipped(*window_, {"Label1", "cboPrinters", "fraPages", "optBoth", "optSawDrawing",
                                    "optSawInfo", "chkPrintQuality", "chkSavePrinter", "cmdOk", "cmdCancel"}),
           QStringList());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmPrinterPageTest)
#include "frmPrinterPage_test.moc"
