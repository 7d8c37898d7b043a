#include "platform/qt/QtPrintDevice.h"

#include <QPrinter>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include "cli/Design.h"
#include "geometry/modTooth.h"
#include "platform/CollectedMessages.h"
#include "print/PrintJob.h"
#include "print/modPrint.h"
#include "qt/PrivatePrinters.h"

namespace tarnwick {
namespace {

using test::BlackBox;
using test::PrintedJob;

constexpr PrinterSetup LetterUpright{};
constexpr PrinterSetup A4Upright{.Paper = 9};

}  // namespace

class QtPrintDeviceTest : public QObject {
  Q_OBJECT

 private slots:
  void init();

  void listsThePrintersOfTheSystem();
  void startsWithThePaperInThePrinter();
  void refusesAPrinterThatIsNone();
  void keepsTheSetupOfTheCurrentPrinter();
  void startsAnewWithAnotherPrinter();
  void refusesPaperThatDoesNotExist();
  void doesNothingWithoutAPrinter();

  void printsInTheSetupInForce_data();
  void printsInTheSetupInForce();
  void printsOnThePrinterChosen();
  void printsInTrueSize_data();
  void printsInTrueSize();
  void takesOverWhatElseWasSetUp();
  void leavesOutWhatWasSetUpForAnother();
  void asksForTheQuality();
  void leavesNoJobBehindACancel();
  void tellsOfAQueueThatRefuses();
  void leavesTheJobToAQueueThatIsStopped();
  void tellsOfAPrinterThatGoesAway();

  void hasNoPrintersWithoutAServer();  // the last one

 private:
  void HoldsTexts(const test::PrintedFile& file, const PrintSheet& sheet, int page);
  void HoldsLines(const test::PrintedFile& file, const PrintSheet& sheet, int page);

  PrintedJob OnlyJob() {
    std::vector<PrintedJob> jobs = printers_.Jobs();
    if (jobs.size() != 1) qFatal("%zu jobs", jobs.size());
    return jobs.front();
  }
  /// Prints a page with a line on it.
  std::error_code PrintAPage(const std::string& title = "page") {
    if (const std::error_code failed = device_->Begin(title)) return failed;
    device_->Line({1440, 1440}, {2880, 1440});
    return device_->End();
  }

  test::PrivatePrinters printers_;
  std::unique_ptr<QtPrintDevice> device_;
};

void QtPrintDeviceTest::init() { device_ = std::make_unique<QtPrintDevice>(); }

// ---- printers

void QtPrintDeviceTest::listsThePrintersOfTheSystem() {
  QCOMPARE(device_->Printers(), (std::vector<std::string>{"Alpha", "Beta"}));  // and no file among them
}

void QtPrintDeviceTest::startsWithThePaperInThePrinter() {
  QVERIFY(device_->Choose("Alpha"));
  QCOMPARE(device_->Setup(), LetterUpright);
  QVERIFY(device_->Choose("Beta"));
  QCOMPARE(device_->Setup(), A4Upright);
}

void QtPrintDeviceTest::refusesAPrinterThatIsNone() {
  QVERIFY(device_->Choose("Beta"));
  for (const char* name : {"Gamma", "", "alpha", "Beta "}) QVERIFY(!device_->Choose(name));
  QCOMPARE(device_->Setup(), A4Upright);
  QVERIFY(!PrintAPage());
  QCOMPARE(OnlyJob().Printer, QString("Beta"));
}

void QtPrintDeviceTest::keepsTheSetupOfTheCurrentPrinter() {
  const PrinterSetup setup{LegalPaper, PaperOrientation::Landscape, 2};
  QVERIFY(device_->Choose("Alpha"));
  QVERIFY(device_->SetUp(setup));
  QVERIFY(device_->Choose("Alpha"));
  QCOMPARE(device_->Setup(), setup);
}

void QtPrintDeviceTest::startsAnewWithAnotherPrinter() {
  QVERIFY(device_->Choose("Alpha"));
  QVERIFY(device_->SetUp({LegalPaper, PaperOrientation::Landscape, 2}));
  QVERIFY(device_->Choose("Beta"));
  QVERIFY(device_->Choose("Alpha"));
  QCOMPARE(device_->Setup(), LetterUpright);
}

void QtPrintDeviceTest::refusesPaperThatDoesNotExist() {
  QVERIFY(device_->Choose("Alpha"));
  for (const int kind : {0, -1, 48}) QVERIFY(!device_->SetUp({.Paper = kind}));
  QCOMPARE(device_->Setup(), LetterUpright);
}

void QtPrintDeviceTest::doesNothingWithoutAPrinter() {
  QVERIFY(!device_->SetUp({}));
  QCOMPARE(device_->Begin("nowhere"), std::make_error_code(std::errc::no_such_device));
  device_->Cancel();
  QVERIFY(device_->TextSize("Gullet", {10}).Width > 0);  // measures all the same
  QVERIFY(printers_.Jobs().empty());
}

// ---- jobs

void QtPrintDeviceTest::printsInTheSetupInForce_data() {
  QTest::addColumn<PrinterSetup>("setup");
  QTest::addColumn<QSizeF>("size");
  QTest::addColumn<QString>("media");
  const auto landscape = PaperOrientation::Landscape;
  const auto portrait = PaperOrientation::Portrait;
  QTest::newRow("letter") << PrinterSetup{1, portrait, 1} << QSizeF(612, 792) << "Letter";
  QTest::newRow("letter, turned") << PrinterSetup{1, landscape, 1} << QSizeF(792, 612) << "Letter";
  QTest::newRow("small letter") << PrinterSetup{2, portrait, 1} << QSizeF(612, 792) << "Letter";
  QTest::newRow("legal, three times") << PrinterSetup{5, portrait, 3} << QSizeF(612, 1008) << "Legal";
  QTest::newRow("legal, turned") << PrinterSetup{5, landscape, 2} << QSizeF(1008, 612) << "Legal";
  QTest::newRow("A4") << PrinterSetup{9, portrait, 1} << QSizeF(595, 842) << "A4";
  QTest::newRow("13 inches") << PrinterSetup{14, portrait, 1} << QSizeF(612, 936) << "FanFoldGermanLegal";
  QTest::newRow("12 inches") << PrinterSetup{40, portrait, 1} << QSizeF(612, 864) << "FanFoldGerman";
  QTest::newRow("13 inches, the other one")
      << PrinterSetup{41, landscape, 1} << QSizeF(936, 612) << "FanFoldGermanLegal";
}

void QtPrintDeviceTest::printsInTheSetupInForce() {
  QFETCH(PrinterSetup, setup);
  QFETCH(QSizeF, size);
  QFETCH(QString, media);
  QVERIFY(device_->Choose("Beta"));
  QVERIFY(device_->SetUp(setup));
  QCOMPARE(device_->Setup(), setup);
  QVERIFY(!device_->Begin("s\u00e4ge.bsw"));
  QVERIFY(!device_->NewPage());
  QVERIFY(!device_->End());
  const PrintedJob job = OnlyJob();
  QCOMPARE(job.Title, QString("s\u00e4ge.bsw"));
  QCOMPARE(job.Copies, setup.Copies);
  QCOMPARE(job.File.Pages(), 2);
  QCOMPARE(job.File.Size(), size);
  QVERIFY2(job.Options.contains("media=" + media + ' '), qPrintable(job.Options));
}

void QtPrintDeviceTest::printsOnThePrinterChosen() {
  QVERIFY(device_->Choose("Beta"));
  QVERIFY(!PrintAPage("first"));
  QVERIFY(device_->Choose("Alpha"));
  QVERIFY(!PrintAPage("second"));
  QVERIFY(!PrintAPage("third"));
  const std::vector<PrintedJob> jobs = printers_.Jobs();
  QCOMPARE(jobs.size(), std::size_t{3});
  QCOMPARE(jobs[0].Printer + jobs[0].Title, QString("Betafirst"));
  QCOMPARE(jobs[1].Printer + jobs[1].Title, QString("Alphasecond"));
  QCOMPARE(jobs[2].Printer + jobs[2].Title, QString("Alphathird"));
}

void QtPrintDeviceTest::printsInTrueSize_data() {
  QTest::addColumn<PrinterSetup>("setup");
  QTest::addColumn<QSizeF>("size");
  QTest::newRow("A4 becomes letter") << A4Upright << QSizeF(612, 792);
  QTest::newRow("legal, turned") << PrinterSetup{LegalPaper, PaperOrientation::Landscape, 1}
                                 << QSizeF(1008, 612);
}

/// The whole way of a design: what its sheets have stands on paper where they have it.
void QtPrintDeviceTest::printsInTrueSize() {
  QFETCH(PrinterSetup, setup);
  QFETCH(QSizeF, size);
  QVERIFY(device_->Choose("Beta"));
  QVERIFY(device_->SetUp(setup));
  cli::Design design = cli::ReadDesign(TARNWICK_SAMPLES_DIR "/round-back.json");
  CollectedMessages ignored;
  const EntityList lines = CalculateSaw(design.Saw, CalculationSettings(), ignored);
  const EntityList none;
  const SawPrint print{.Saw = design.Saw, .Lines = lines, .Segment = none, .Format = {}};
  const std::optional<PrintPage> page = FitPaper(*device_);
  QVERIFY(page);
  const Stationery stationery{*page, {"band.bsw", "Nov, 21/26", {}}, *device_};
  const PrintJob job = SawJob(print, stationery, SawPages::Both);
  QVERIFY(!RunPrintJob(job, *device_, {}));
  const PrintedJob printed = OnlyJob();
  QCOMPARE(printed.File.Size(), size);
  QCOMPARE(printed.File.Pages(), 2);
  HoldsTexts(printed.File, job.Sheet(1), 1);
  HoldsTexts(printed.File, job.Sheet(2), 2);
  HoldsLines(printed.File, job.Sheet(2), 2);
}

void QtPrintDeviceTest::HoldsTexts(const test::PrintedFile& file, const PrintSheet& sheet, int page) {
  const std::vector<test::PrintedWord> words = file.Words(page);
  for (const SheetPiece& piece : sheet) {
    const auto* text = std::get_if<SheetText>(&piece);
    if (!text) continue;
    const QString first = QString::fromStdString(text->Text).trimmed().section(' ', 0, 0);
    const std::size_t blanks = text->Text.find_first_not_of(' ');
    const double left = text->TopLeft.X + device_->TextSize(std::string(blanks, ' '), text->Font).Width;
    const double bottom = text->TopLeft.Y + device_->TextSize(text->Text, text->Font).Height;
    const auto isIt = [&](const test::PrintedWord& word) {
      const double middle = (word.Top + word.Bottom) / 2 * TwipsPerPoint;
      return word.Text == first && std::abs(word.Left * TwipsPerPoint - left) <= 1 &&
             middle > text->TopLeft.Y && middle < bottom;
    };
    QVERIFY2(std::any_of(words.begin(), words.end(), isIt), text->Text.c_str());
  }
}

void QtPrintDeviceTest::HoldsLines(const test::PrintedFile& file, const PrintSheet& sheet, int page) {
  PaperBox box;
  int ends = 0;
  for (const SheetPiece& piece : sheet) {
    if (const auto* clip = std::get_if<SheetClip>(&piece)) box = clip->Box;
    const auto* line = std::get_if<SheetLine>(&piece);
    if (!line) continue;
    for (const auto& [x, y] : {line->From, line->To}) {
      if (x < box.Left || x > box.Right || y < box.Top || y > box.Bottom) continue;
      constexpr int reach = 3;
      const QRect around(QPoint(static_cast<int>(x) - reach, static_cast<int>(y) - reach),
                         QSize(2 * reach, 2 * reach));
      QVERIFY2(!BlackBox(file, around, page).isEmpty(), qPrintable(QString("%1, %2").arg(x).arg(y)));
      ++ends;
    }
  }
  QVERIFY(ends > 10);
}

void QtPrintDeviceTest::takesOverWhatElseWasSetUp() {
  QVERIFY(device_->Choose("Alpha"));
  std::unique_ptr<QPrinter> printer = OpenPrinter("Alpha");
  printer->setDuplex(QPrinter::DuplexLongSide);
  printer->setCopyCount(2);
  const PrinterSetup setup = SetupOf(*printer);
  device_->KeepForSetUp(std::move(printer));
  QVERIFY(device_->SetUp(setup));
  QVERIFY(!PrintAPage());
  const PrintedJob job = OnlyJob();
  QVERIFY2(job.Options.contains("sides=two-sided-long-edge"), qPrintable(job.Options));
  QCOMPARE(job.Copies, 2);
}

void QtPrintDeviceTest::leavesOutWhatWasSetUpForAnother() {
  QVERIFY(device_->Choose("Beta"));
  std::unique_ptr<QPrinter> printer = OpenPrinter("Alpha");
  printer->setDuplex(QPrinter::DuplexLongSide);
  device_->KeepForSetUp(std::move(printer));
  QVERIFY(device_->SetUp(LetterUpright));
  QVERIFY(!PrintAPage());
  const PrintedJob job = OnlyJob();
  QCOMPARE(job.Printer, QString("Beta"));
  QVERIFY2(!job.Options.contains("two-sided"), qPrintable(job.Options));
}

void QtPrintDeviceTest::asksForTheQuality() {
  QVERIFY(device_->Choose("Alpha"));
  device_->SetQuality(PrintQuality::High);
  QVERIFY(!PrintAPage());
  const QString high = OnlyJob().Options;
  QVERIFY2(high.contains("print-quality=5"), qPrintable(high));
  QVERIFY2(high.contains("print-scaling=none"), qPrintable(high));  // an inch stays one
  device_->SetQuality(PrintQuality::Normal);
  QVERIFY(!PrintAPage());
  const QString normal = OnlyJob().Options;
  QVERIFY2(!normal.contains("print-quality"), qPrintable(normal));
  QVERIFY2(normal.contains("print-scaling=none"), qPrintable(normal));
}

void QtPrintDeviceTest::leavesNoJobBehindACancel() {
  QVERIFY(device_->Choose("Alpha"));
  QVERIFY(!device_->Begin("cancelled"));
  device_->Line({1440, 1440}, {2880, 1440});
  QVERIFY(!device_->NewPage());
  device_->Cancel();
  QVERIFY(!PrintAPage("printed"));
  QCOMPARE(OnlyJob().Title, QString("printed"));
  QCOMPARE(device_->Begin("left alone"), std::error_code());
  device_.reset();
  QVERIFY(printers_.Jobs().empty());
}

void QtPrintDeviceTest::tellsOfAQueueThatRefuses() {
  QVERIFY(device_->Choose("Alpha"));
  printers_.Command("cupsreject", {"Alpha"});
  const std::error_code failed = PrintAPage();
  printers_.Command("cupsaccept", {"Alpha"});
  QVERIFY(failed);
  QVERIFY2(QString::fromStdString(failed.message()).contains("not accepting"), failed.message().c_str());
  QVERIFY(printers_.Jobs().empty());
  QVERIFY(!PrintAPage());
  QCOMPARE(printers_.Jobs().size(), std::size_t{1});
}

void QtPrintDeviceTest::leavesTheJobToAQueueThatIsStopped() {
  QVERIFY(device_->Choose("Alpha"));
  printers_.Command("cupsdisable", {"Alpha"});
  const std::error_code failed = PrintAPage("later");
  printers_.Command("cupsenable", {"Alpha"});
  QCOMPARE(failed, std::error_code());
  QCOMPARE(OnlyJob().Title, QString("later"));
}

void QtPrintDeviceTest::tellsOfAPrinterThatGoesAway() {
  QVERIFY(device_->Choose("Alpha"));
  QVERIFY(!device_->Begin("page"));
  printers_.Command("lpadmin", {"-x", "Alpha"});
  QCOMPARE(device_->End(), std::make_error_code(std::errc::no_such_device));
  QCOMPARE(device_->Begin("page"), std::make_error_code(std::errc::no_such_device));
  QVERIFY(!device_->Choose("Alpha"));
  QCOMPARE(device_->Printers(), std::vector<std::string>{"Beta"});
  QVERIFY(printers_.Jobs().empty());
}

void QtPrintDeviceTest::hasNoPrintersWithoutAServer() {
  QVERIFY(device_->Choose("Beta"));
  printers_.Stop();
  QVERIFY(device_->Printers().empty());
  QVERIFY(!device_->Choose("Beta"));
  QCOMPARE(PrintAPage(), std::make_error_code(std::errc::no_such_device));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtPrintDeviceTest)
#include "QtPrintDevice_test.moc"
