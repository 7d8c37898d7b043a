#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <memory>

#include "qt/MainWindow.h"
#include "qt/PrivatePrinters.h"

namespace tarnwick {
namespace {

using test::DialogUser;
using test::Named;
using test::PrintedJob;

/// A segment that one sheet holds.
BandSaw ShortSegment() {
  BandSaw saw = test::VariableDesign();
  saw.NumTeeth = 320;
  saw.GeneralInfo.VarPitch = {1.4, 1.5, 1.6};
  saw.DesignInfo.SegmentLength = 4.5;
  return saw;
}

/// Of frmPrinter and frmPrinterPage.
DialogUser::Act On(const char* printer) {
  return [printer](QDialog& dialog) {
    Named<QComboBox>(dialog, "cboPrinters")->setCurrentText(printer);
    test::Click(dialog, "cmdOk");
  };
}

}  // namespace

// What the main window puts on paper.
class mainPrintTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void prints_data();
  void prints();
  void printsTheSheetsChosen();
  void printsTheSegmentFromItsPanel();
  void asksForASegmentOfSeveralSheets();
  void hasNoSegmentOfAPlainBand();
  void printsThePowerEstimates();
  void printsTheEstimatesShown();
  void printsThePowerCalculations();
  void printsToAFile();
  void leavesNoJobWhenCancelled();
  void leavesNoJobWhenTheQueueRefuses_data();
  void leavesNoJobWhenTheQueueRefuses();
  void saysThatThereIsNoPrinter_data();
  void saysThatThereIsNoPrinter();

 private:
  PrintedJob OnlyJob();
  bool Says(const PrintedJob& job, const QString& words, int page = 1) {
    return job.File.Text(page).contains(words);
  }

  test::PrivatePrinters printers_;
  std::unique_ptr<test::MainWindow> main_;
};

PrintedJob mainPrintTest::OnlyJob() {
  const std::vector<PrintedJob> jobs = printers_.Jobs();
  if (jobs.size() != 1) qFatal("%zu jobs", jobs.size());
  return jobs[0];
}

void mainPrintTest::prints_data() {
  QTest::addColumn<QString>("command");
  QTest::addColumn<QString>("window");
  QTest::addColumn<int>("pages");
  QTest::addColumn<QStringList>("words");
  const QString heading = "Band Saw Teeth:";
  QTest::newRow("both sheets") << "mnuItemPrint"
                               << "frmPrinterPage: Choose Printer and Pages" << 2
                               << QStringList{"Page 1 of 2", heading};
  QTest::newRow("by the tool bar") << "tlbPrint"
                                   << "frmPrinterPage: Choose Printer and Pages" << 2
                                   << QStringList{"Page 1 of 2", heading};
  QTest::newRow("information") << "mnuItemPrintInfo"
                               << "frmPrinter: Choose Printer" << 1 << QStringList{"Page 1 of 1", heading};
  QTest::newRow("tooth shape") << "mnuItemPrintShape"
                               << "frmPrinter: Choose Printer" << 1 << QStringList{"Page 1 of 1"};
  QTest::newRow("segment") << "mnuItemPrintVariable"
                           << "frmPrinter: Choose Printer" << 1 << QStringList{"Pg 1 of 1"};
}

void mainPrintTest::prints() {
  QFETCH(QString, command);
  QFETCH(QString, window);
  QFETCH(int, pages);
  QFETCH(QStringList, words);
  main_->Open(ShortSegment());
  main_->Program.Say.Shown.clear();
  main_->User.Acts = {On("Beta")};
  if (command.startsWith("tlb")) {
    QTest::mouseClick(Named<QToolButton>(*main_->Window, command.toUtf8()), Qt::LeftButton);
  } else {
    main_->Do(command.toUtf8());
  }
  QCOMPARE(main_->User.Seen, QStringList(window));
  QVERIFY(main_->Program.Say.Shown.empty());
  const PrintedJob job = OnlyJob();
  QCOMPARE(job.Printer, QString("Beta"));
  QCOMPARE(job.File.Pages(), pages);
  for (const QString& text : words) QVERIFY2(Says(job, text), qPrintable(job.File.Text(1)));
  QVERIFY(Says(job, "head.bsw"));
}

void mainPrintTest::printsTheSheetsChosen() {
  main_->Open(test::VariableDesign());
  main_->User.Acts = {[](QDialog& dialog) {
    test::Click(dialog, "optSawInfo");
    test::Click(dialog, "cmdOk");
  }};
  main_->Do("mnuItemPrint");
  const PrintedJob job = OnlyJob();
  QCOMPARE(job.File.Pages(), 1);
  QVERIFY(Says(job, "Band Saw Teeth:"));
}

void mainPrintTest::printsTheSegmentFromItsPanel() {
  main_->Open(ShortSegment());
  main_->Do("mnuItemVariable");
  main_->User.Acts = {On("Alpha")};
  QTest::mouseClick(Named<QAbstractButton>(*main_->Window, "cmdVariablePrint"), Qt::LeftButton);
  QCOMPARE(main_->Panel(), QString("fraVariable"));  // it goes on
  QVERIFY(Says(OnlyJob(), "Pg 1 of 1"));
}

void mainPrintTest::asksForASegmentOfSeveralSheets() {
  BandSaw saw = test::VariableDesign();
  main_->Open(saw);
  main_->Program.Say.Shown.clear();
  main_->Program.Say.Answers = {Button::No, Button::Yes};
  for (int i = 0; i < 2; ++i) {
    main_->User.Acts = {On("Alpha")};
    main_->Do("mnuItemPrintVariable");
    QCOMPARE(main_->Program.Say.Shown.back().Title, std::string("Print Segment"));
    if (i == 0) QVERIFY(printers_.Jobs().empty());
  }
  const PrintedJob job = OnlyJob();
  QCOMPARE(job.File.Pages(), 2);
  QVERIFY(Says(job, "Pg 2 of 2", 2));
}

void mainPrintTest::hasNoSegmentOfAPlainBand() {
  main_->Open(test::FullDesign(DoubleRadius));
  main_->User.Acts = {On("Alpha")};
  main_->Do("mnuItemPrintVariable");
  QCOMPARE(main_->Program.Say.Shown.size(), 1U);
  QCOMPARE(main_->Program.Say.Shown[0].Title, std::string("Printing Canceled"));
  QVERIFY(printers_.Jobs().empty());
}

// ---- power

void mainPrintTest::printsThePowerEstimates() {
  main_->Open(test::FullDesign(DoubleRadius));
  main_->User.Acts = {[this](QDialog& power) {
    Named<QComboBox>(power, "cboPercent")->setCurrentIndex(1);
    main_->User.Answer(power, "cmdPrint", On("Alpha"));
    test::Click(power, "cmdOk");
  }};
  main_->Do("mnuItemPower");
  QVERIFY(Says(OnlyJob(), "Estimates for bandsaw based on increasing feedrate by 10 percent"));
}

void mainPrintTest::printsTheEstimatesShown() {
  main_->Open(test::FullDesign(DoubleRadius));
  main_->User.Acts = {[this](QDialog& power) {
    Named<QComboBox>(power, "cboPercent")->setCurrentIndex(1);
    main_->User.Answer(power, "cmdView", [this](QDialog& estimates) {
      main_->User.Answer(estimates, "cmdPrint", On("Alpha"));
      test::Click(estimates, "cmdOk");
    });
    test::Click(power, "cmdOk");
  }};
  main_->Do("mnuItemPower");
  QVERIFY(Says(OnlyJob(), "Estimates for bandsaw based on increasing feedrate by 10 percent"));
}

void mainPrintTest::printsThePowerCalculations() {
  main_->Open(test::FullDesign(DoubleRadius));
  main_->User.Acts = {[this](QDialog& calculator) {
    main_->User.Answer(calculator, "cmdPrint", On("Alpha"));
    test::Click(calculator, "cmdExit");
  }};
  main_->Do("mnuItemPowerCalc");
  const PrintedJob job = OnlyJob();
  QVERIFY(Says(job, "Power Calculations"));
  QVERIFY(Says(job, "Power Calculation # 1"));
}

// ---- a file

void mainPrintTest::printsToAFile() {
  main_->Open(ShortSegment());
  const std::string path = (main_->Folder.Path() / "sheets.pdf").string();
  main_->Program.Files.Paths = {path};
  main_->Do("mnuItemExportPdf");
  QCOMPARE(main_->Program.Files.Asked.at(0).Name, std::string("head.pdf"));
  const test::PrintedFile file(QString::fromStdString(path));
  QCOMPARE(file.Pages(), 3);  // information, drawing, segment
  QVERIFY(printers_.Jobs().empty());
}

// ---- nothing printed

void mainPrintTest::leavesNoJobWhenCancelled() {
  main_->Open(test::VariableDesign());
  for (const char* command :
       {"mnuItemPrint", "mnuItemPrintInfo", "mnuItemPrintShape", "mnuItemPrintVariable"}) {
    main_->User.Acts = {test::Cancels()};
    main_->Do(command);
    main_->User.Acts = {test::Escapes()};
    main_->Do(command);
  }
  QCOMPARE(main_->User.Seen.size(), 8);
  QVERIFY(main_->Program.Say.Shown.empty());
  QVERIFY(printers_.Jobs().empty());
}

void mainPrintTest::leavesNoJobWhenTheQueueRefuses_data() {
  QTest::addColumn<QString>("command");
  for (const char* command :
       {"mnuItemPrint", "mnuItemPrintInfo", "mnuItemPrintShape", "mnuItemPrintVariable"}) {
    QTest::newRow(command) << command;
  }
}

void mainPrintTest::leavesNoJobWhenTheQueueRefuses() {
  QFETCH(QString, command);
  main_->Open(ShortSegment());
  main_->Program.Say.Shown.clear();
  printers_.Command("cupsreject", {"Alpha"});
  main_->User.Acts = {On("Alpha")};
  main_->Do(command.toUtf8());
  printers_.Command("cupsaccept", {"Alpha"});
  QCOMPARE(main_->Program.Say.Shown.size(), 1U);
  const Box& told = main_->Program.Say.Shown[0];
  QCOMPARE(told.Title, std::string("Printer"));
  QVERIFY2(told.Text.starts_with("Error Number: "), told.Text.c_str());
  QVERIFY2(told.Text.ends_with("\nSub Program " + command.toStdString()), told.Text.c_str());
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    QVERIFY2(window->objectName() != "frmPrintMsg" || !window->isVisible(), "the notice stays");
  }
  QVERIFY(printers_.Jobs().empty());
}

void mainPrintTest::saysThatThereIsNoPrinter_data() {
  QTest::addColumn<QString>("command");
  for (const char* command :
       {"mnuItemPrint", "mnuItemPrintInfo", "mnuItemPrintShape", "mnuItemPrintVariable"}) {
    QTest::newRow(command) << command;
  }
}

void mainPrintTest::saysThatThereIsNoPrinter() {
  QFETCH(QString, command);
  printers_.Stop();
  main_->Open(test::VariableDesign());
  main_->Do(command.toUtf8());
  QCOMPARE(main_->User.Seen, QStringList());
  QCOMPARE(main_->Program.Say.Shown.size(), 1U);
  const Box& told = main_->Program.Say.Shown[0];
  QCOMPARE(told.Title, std::string("No Printers!"));
  QCOMPARE(told.Text, std::string("No windows printers available!"));
  QVERIFY(told.Shown == Icon::Information);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainPrintTest)
#include "mainPrint_test.moc"
