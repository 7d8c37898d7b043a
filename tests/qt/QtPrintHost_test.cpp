#include "platform/qt/QtPrintHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <functional>

#include "print/PrinterChoice.h"
#include "qt/Controls.h"
#include "qt/PrivatePrinters.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {
namespace {

using test::Named;

/// Has `act` done on the next dialog, once that is up.
void OnDialog(const std::function<void(QDialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog) qFatal("no dialog is open");
    act(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
}

QPushButton* ButtonOf(const QDialog& dialog, QDialogButtonBox::StandardButton button) {
  return dialog.findChild<QDialogButtonBox*>()->button(button);
}

}  // namespace

class QtPrintHostTest : public QObject {
  Q_OBJECT

 private slots:
  void runsTheChoiceOfAPrinter();
  void runsTheChoiceOfPrinterAndPages();
  void standsAboveTheWindowInUse();

  void opensTheSetupOfThePrinter();
  void opensTheSetupAsItWasLeft();
  void choosesPaper_data();
  void choosesPaper();
  void changesNothingWhenTheSetupIsCancelled();
  void hasNoSetupForAPrinterThatIsNone();
  void opensTheSetupFromTheWindow();
  void printsWithWhatWasSetUp();

  void showsTheNotice();
  void takesTheNoticeAway();

 private:
  test::PrivatePrinters printers_;
  test::RecordingHelpViewer help_;
  QtPrintDevice device_;
  QtPrintHost host_{help_, device_};
};

void QtPrintHostTest::runsTheChoiceOfAPrinter() {
  PrinterChoice choice({"Alpha", "Beta"}, 1, {});
  OnDialog([](QDialog& dialog) {
    QCOMPARE(dialog.objectName(), QString("frmPrinter"));
    Named<QPushButton>(dialog, "cmdOk")->click();
  });
  host_.RunPrinter(choice);
  QVERIFY(choice.IsAccepted());
}

void QtPrintHostTest::runsTheChoiceOfPrinterAndPages() {
  PrinterChoice choice({"Alpha", "Beta"}, 1, {});
  OnDialog([](QDialog& dialog) {
    QCOMPARE(dialog.objectName(), QString("frmPrinterPage"));
    Named<QAbstractButton>(dialog, "optSawInfo")->click();
    Named<QPushButton>(dialog, "cmdOk")->click();
  });
  host_.RunPrinterPage(choice);
  QVERIFY(choice.IsAccepted());
  QCOMPARE(choice.Pages(), SawPages::Info);
}

void QtPrintHostTest::standsAboveTheWindowInUse() {
  QWidget main;
  main.show();
  QVERIFY(QTest::qWaitForWindowActive(&main));
  PrinterChoice choice({"Alpha"}, 0, {});
  OnDialog([&main](QDialog& dialog) { QCOMPARE(dialog.parentWidget(), &main); });
  host_.RunPrinter(choice);
  QVERIFY(!choice.IsAccepted());
}

// ---- the platform's setup

void QtPrintHostTest::opensTheSetupOfThePrinter() {
  OnDialog([](QDialog& dialog) {
    QVERIFY(qobject_cast<QPrintDialog*>(&dialog));
    QCOMPARE(dialog.windowTitle(), QString("Print Setup"));
    const auto* printers = Named<QComboBox>(dialog, "printers");
    QCOMPARE(printers->currentText(), QString("Alpha"));
    QVERIFY(!printers->isEnabled());  // it has been chosen already
    for (int i = 0; i < printers->count(); ++i) QVERIFY(!printers->itemText(i).contains("PDF"));
    QCOMPARE(ButtonOf(dialog, QDialogButtonBox::Ok)->text(), QString("&OK"));
    Named<QSpinBox>(dialog, "copies")->setValue(3);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  });
  const std::optional<PrinterSetup> setup = host_.RunSetup("Alpha", std::nullopt);
  QVERIFY(setup);
  QCOMPARE(*setup, (PrinterSetup{.Copies = 3}));
}

void QtPrintHostTest::opensTheSetupAsItWasLeft() {
  const PrinterSetup left{LegalPaper, PaperOrientation::Landscape, 2};
  OnDialog([](QDialog& dialog) {
    QCOMPARE(Named<QSpinBox>(dialog, "copies")->value(), 2);
    ButtonOf(dialog, QDialogButtonBox::Ok)->click();
  });
  QCOMPARE(host_.RunSetup("Beta", left), std::optional(left));
}

/// The paper is chosen in a dialog above the dialog.
void QtPrintHostTest::choosesPaper_data() {
  QTest::addColumn<QString>("chosen");  // empty: left as it is
  QTest::addColumn<bool>("accepted");
  QTest::addColumn<int>("kind");
  QTest::newRow("another one") << "Letter" << true << 1;
  QTest::newRow("none") << "" << true << 5;
  QTest::newRow("cancelled") << "Letter" << false << 5;
  QTest::newRow("that of the printer") << "A4" << true << 9;
}

void QtPrintHostTest::choosesPaper() {
  QFETCH(QString, chosen);
  QFETCH(bool, accepted);
  QFETCH(int, kind);
  OnDialog([&](QDialog& dialog) {
    OnDialog([&](QDialog& properties) {
      auto* sizes = Named<QComboBox>(properties, "pageSizeCombo");
      QCOMPARE(sizes->currentText(), QString("Legal"));
      if (!chosen.isEmpty()) sizes->setCurrentIndex(sizes->findText(chosen));
      ButtonOf(properties, accepted ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
    });
    Named<QPushButton>(dialog, "properties")->click();
    ButtonOf(dialog, QDialogButtonBox::Ok)->click();
  });
  QCOMPARE(host_.RunSetup("Beta", PrinterSetup{.Paper = LegalPaper})->Paper, kind);
}

void QtPrintHostTest::changesNothingWhenTheSetupIsCancelled() {
  OnDialog([](QDialog& dialog) {
    Named<QSpinBox>(dialog, "copies")->setValue(3);
    ButtonOf(dialog, QDialogButtonBox::Cancel)->click();
  });
  QVERIFY(!host_.RunSetup("Alpha", std::nullopt));
}

void QtPrintHostTest::hasNoSetupForAPrinterThatIsNone() { QVERIFY(!host_.RunSetup("Gamma", std::nullopt)); }

void QtPrintHostTest::opensTheSetupFromTheWindow() {
  PrinterChoice choice({"Alpha", "Beta"}, 1, [this](const auto& printer, const auto& current) {
    return host_.RunSetup(printer, current);
  });
  OnDialog([](QDialog& window) {
    OnDialog([&window](QDialog& dialog) {
      QCOMPARE(dialog.parentWidget(), &window);
      ButtonOf(dialog, QDialogButtonBox::Ok)->click();
    });
    Named<QPushButton>(window, "cmdSetup")->click();
    Named<QPushButton>(window, "cmdOk")->click();
  });
  host_.RunPrinter(choice);
  QVERIFY(choice.IsAccepted());
  QCOMPARE(choice.Setup(), std::optional(PrinterSetup{.Paper = 9}));
}

void QtPrintHostTest::printsWithWhatWasSetUp() {
  OnDialog([](QDialog& dialog) {
    Named<QSpinBox>(dialog, "copies")->setValue(2);
    Named<QAbstractButton>(dialog, "duplexLong")->click();
    ButtonOf(dialog, QDialogButtonBox::Ok)->click();
  });
  const std::optional<PrinterSetup> setup = host_.RunSetup("Alpha", std::nullopt);
  QVERIFY(device_.Choose("Alpha"));
  QVERIFY(device_.SetUp(*setup));
  QVERIFY(!device_.Begin("page"));
  device_.Line({1440, 1440}, {2880, 1440});
  QVERIFY(!device_.End());
  const std::vector<test::PrintedJob> jobs = printers_.Jobs();
  QCOMPARE(jobs.size(), std::size_t{1});
  QCOMPARE(jobs[0].Copies, 2);
  QVERIFY2(jobs[0].Options.contains("two-sided-long-edge"), qPrintable(jobs[0].Options));
  const QRect line = test::BlackBox(jobs[0].File, {1340, 1340, 1640, 200});
  QVERIFY(std::abs(line.width() - 1440) <= 4);  // whatever margins a page of that dialog has
}

// ---- the notice

void QtPrintHostTest::showsTheNotice() {
  host_.ShowPrintMsg(1, 3);
  QWidget* notice = QApplication::activeModalWidget();
  QVERIFY(notice);
  QCOMPARE(notice->objectName(), QString("frmPrintMsg"));
  host_.ShowPrintMsg(2, 3);
  QCOMPARE(QApplication::activeModalWidget(), notice);
  QCOMPARE(notice->accessibleName(), QString("Printing page 2 of 3"));
  host_.HidePrintMsg();
}

void QtPrintHostTest::takesTheNoticeAway() {
  host_.HidePrintMsg();  // none was shown
  host_.ShowPrintMsg(1, 1);
  host_.HidePrintMsg();
  QVERIFY(!QApplication::activeModalWidget());
  for (const QWidget* window : QApplication::topLevelWidgets()) QVERIFY(!window->isVisible());
  {
    QtPrintHost another(help_, device_);
    another.ShowPrintMsg(1, 1);
  }
  QVERIFY(!QApplication::activeModalWidget());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtPrintHostTest)
#include "QtPrintHost_test.moc"
