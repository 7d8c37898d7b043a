#include "platform/qt/QtPdfFiles.h"

#include <QDebug>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTest>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <vector>

#include "qt/PrintedFile.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::BlackBox;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr int Dot = 3;  // twips, rounded up: the thinnest line

/// Whether two boxes are the same but for the thickness of a line and a twip.
bool Agree(const QRect& box, const QRect& wanted, int tolerance = Dot) {
  const bool agree = std::abs(box.left() - wanted.left()) <= tolerance &&
                     std::abs(box.top() - wanted.top()) <= tolerance &&
                     std::abs(box.right() - wanted.right()) <= tolerance &&
                     std::abs(box.bottom() - wanted.bottom()) <= tolerance;
  if (!agree) qWarning() << "box" << box << "wanted" << wanted;
  return agree;
}

QRect Around(const QRect& box) { return box.adjusted(-50, -50, 50, 50); }

}  // namespace

class QtPdfFilesTest : public QObject {
  Q_OBJECT

 private slots:
  void init();

  void makesPagesOfTheRightPaper_data();
  void makesPagesOfTheRightPaper();
  void refusesPaperThatDoesNotExist();
  void knowsNoPrinters();
  void carriesTheTitle();
  void leavesNoFileBehindACancelledJob();
  void replacesAFileOnlyAtTheEnd();
  void saysWhyAFileCannotBeWritten();
  void printsSeveralJobs();

  void drawsAnInchAsAnInch();
  void drawsLinesAsThickAsTold_data();
  void drawsLinesAsThickAsTold();
  void drawsDotsThatTheEyeTellsApart();
  void startsEveryPageWithAThinSolidPen();
  void drawsArcsAnticlockwise_data();
  void drawsArcsAnticlockwise();
  void drawsWholeCircles();
  void keepsVeryLargeArcsTrue();
  void fillsPolygons();
  void clips();
  void passesOverWhatIsNoNumberOrBeyondAllPaper();

  void writesTextWhereItIsTold();
  void measuresTheTextThatItWrites_data();
  void measuresTheTextThatItWrites();
  void keepsEveryBlank();
  void embedsItsLetters();

 private:
  [[nodiscard]] std::string Path() const { return (folder_ / "sheets.pdf").string(); }

  /// Ends the job and opens what came of it.
  test::PrintedFile Printed() {
    if (const std::error_code failed = device_->End()) qFatal("%s", failed.message().c_str());
    return test::PrintedFile(QString::fromStdString(Path()));
  }

  test::TemporaryFolder folder_;
  QtPdfFiles files_;
  std::unique_ptr<PrintDevice> device_;
};

void QtPdfFilesTest::init() {
  std::filesystem::remove(Path());
  device_ = files_.File(Path());
  QVERIFY(!device_->Begin("test"));
}

// ---- the file

void QtPdfFilesTest::makesPagesOfTheRightPaper_data() {
  QTest::addColumn<int>("kind");
  QTest::addColumn<bool>("landscape");
  QTest::addColumn<QSizeF>("size");
  QTest::newRow("letter") << 1 << false << QSizeF(612, 792);
  QTest::newRow("letter, turned") << 1 << true << QSizeF(792, 612);
  QTest::newRow("small letter") << 2 << false << QSizeF(612, 792);
  QTest::newRow("legal") << 5 << false << QSizeF(612, 1008);
  QTest::newRow("legal, turned") << 5 << true << QSizeF(1008, 612);
  QTest::newRow("A4") << 9 << false << QSizeF(595, 842);
  QTest::newRow("13 inches") << 14 << false << QSizeF(612, 936);
  QTest::newRow("12 inches") << 40 << false << QSizeF(612, 864);
  QTest::newRow("13 inches, the other one") << 41 << false << QSizeF(612, 936);
}

void QtPdfFilesTest::makesPagesOfTheRightPaper() {
  QFETCH(int, kind);
  QFETCH(bool, landscape);
  QFETCH(QSizeF, size);
  const PrinterSetup setup{kind, landscape ? PaperOrientation::Landscape : PaperOrientation::Portrait, 3};
  QVERIFY(device_->SetUp(setup));
  QCOMPARE(device_->Setup(), setup);
  QVERIFY(!device_->NewPage());
  const test::PrintedFile file = Printed();
  QCOMPARE(file.Size(), size);
  QCOMPARE(file.Pages(), 2);  // copies are a matter of printers
}

void QtPdfFilesTest::refusesPaperThatDoesNotExist() {
  for (const int kind : {0, -1, 48, 1'000'000}) QVERIFY(!device_->SetUp({.Paper = kind}));
  QCOMPARE(device_->Setup(), PrinterSetup());
}

void QtPdfFilesTest::knowsNoPrinters() {
  QVERIFY(device_->Printers().empty());
  QVERIFY(!device_->Choose("Alpha"));
}

void QtPdfFilesTest::carriesTheTitle() {
  QVERIFY(!device_->Begin("s\u00e4ge & co.bsw"));
  QCOMPARE(Printed().Title(), QString("s\u00e4ge & co.bsw"));
}

void QtPdfFilesTest::leavesNoFileBehindACancelledJob() {
  device_->Line({0, 0}, {1440, 1440});
  device_->Cancel();
  device_.reset();
  QVERIFY(!std::filesystem::exists(Path()));
}

void QtPdfFilesTest::replacesAFileOnlyAtTheEnd() {
  std::ofstream(Path()) << "old";
  device_->Line({0, 0}, {1440, 1440});
  QVERIFY(!device_->NewPage());
  QCOMPARE(test::BytesOf(Path()), "old");
  QCOMPARE(Printed().Pages(), 2);
}

void QtPdfFilesTest::saysWhyAFileCannotBeWritten() {
  device_ = files_.File((folder_ / "no" / "sheets.pdf").string());
  QVERIFY(!device_->Begin("test"));
  QCOMPARE(device_->End(), std::make_error_code(std::errc::no_such_file_or_directory));
}

void QtPdfFilesTest::printsSeveralJobs() {
  QVERIFY(!device_->NewPage());
  QCOMPARE(Printed().Pages(), 2);
  QVERIFY(!device_->Begin("again"));
  QCOMPARE(Printed().Pages(), 1);
}

// ---- lines

void QtPdfFilesTest::drawsAnInchAsAnInch() {
  device_->Line({1440, 2880}, {2880, 2880});
  device_->Line({720, 4320}, {720, 5760});
  device_->Line({12200, 15800}, {12200, 15800 - 1440});  // close to the lower right corner
  const test::PrintedFile file = Printed();
  QVERIFY(Agree(BlackBox(file, {1340, 2830, 1640, 100}), QRect(QPoint(1440, 2880), QPoint(2880, 2880))));
  QVERIFY(Agree(BlackBox(file, {670, 4220, 100, 1640}), QRect(QPoint(720, 4320), QPoint(720, 5760))));
  QVERIFY(Agree(BlackBox(file, {12150, 14300, 90, 1540}), QRect(QPoint(12200, 14360), QPoint(12200, 15800))));
}

void QtPdfFilesTest::drawsLinesAsThickAsTold_data() {
  QTest::addColumn<int>("dots");
  for (const int dots : {1, 2, 7, 20}) QTest::addRow("%d", dots) << dots;
}

void QtPdfFilesTest::drawsLinesAsThickAsTold() {
  QFETCH(int, dots);
  device_->SetPen({dots});
  device_->Line({1440, 1440}, {2880, 1440});
  const double thick = BlackBox(Printed(), {1800, 1340, 100, 200}).height();
  QVERIFY2(std::abs(thick - dots * 1440.0 / DotsPerInch) <= 1.5, qPrintable(QString::number(thick)));
}

void QtPdfFilesTest::drawsDotsThatTheEyeTellsApart() {
  device_->SetPen({1, true});
  device_->Line({1440, 1440}, {1440, 2880});
  const QImage line = Printed().Part({1430, 1440, 20, 1440});
  int changes = 0, black = 0;
  bool before = false;
  for (int y = 0; y < line.height(); ++y) {
    const bool now = !BlackBox(line.copy(0, y, line.width(), 1)).isEmpty();
    changes += now != before;
    black += now;
    before = now;
  }
  const int dots = changes / 2;
  QVERIFY2(dots >= 20 && dots <= 60, qPrintable(QString::number(dots)));  // of half a millimetre, about
  QVERIFY2(black > 300 && black < 720, qPrintable(QString::number(black)));
}

void QtPdfFilesTest::startsEveryPageWithAThinSolidPen() {
  device_->SetPen({20, true});
  device_->SetClip({0, 0, 100, 100});
  QVERIFY(!device_->NewPage());
  device_->Line({1440, 1440}, {2880, 1440});
  const QRect line = BlackBox(Printed(), {1340, 1340, 1640, 200}, 2);
  QVERIFY(Agree(line, QRect(QPoint(1440, 1440), QPoint(2880, 1440))));
}

// ---- figures

void QtPdfFilesTest::drawsArcsAnticlockwise_data() {
  QTest::addColumn<double>("start");
  QTest::addColumn<double>("end");
  QTest::addColumn<QRect>("box");  // about a centre of 0, of a radius of 1000
  QTest::newRow("upper right") << 0.0 << 90.0 << QRect(QPoint(0, -1000), QPoint(1000, 0));
  QTest::newRow("lower half") << 180.0 << 360.0 << QRect(QPoint(-1000, 0), QPoint(1000, 1000));
  QTest::newRow("through the zero") << 270.0 << 90.0 << QRect(QPoint(0, -1000), QPoint(1000, 1000));
  QTest::newRow("beyond a turn") << 450.0 << 540.0 << QRect(QPoint(-1000, -1000), QPoint(0, 0));
  QTest::newRow("negative") << -90.0 << 0.0 << QRect(QPoint(0, 0), QPoint(1000, 1000));
  QTest::newRow("a fraction of a degree") << 0.0 << 0.5 << QRect(QPoint(1000, -9), QPoint(1000, 0));
  QTest::newRow("one angle is a circle") << 33.0 << 33.0 << QRect(QPoint(-1000, -1000), QPoint(1000, 1000));
}

void QtPdfFilesTest::drawsArcsAnticlockwise() {
  QFETCH(double, start);
  QFETCH(double, end);
  QFETCH(QRect, box);
  const QRect wanted = box.translated(3000, 4000);
  device_->Arc({3000, 4000}, 1000, start, end);
  QVERIFY(Agree(BlackBox(Printed(), {1900, 2900, 2200, 2200}), wanted));
}

void QtPdfFilesTest::drawsWholeCircles() {
  device_->Circle({3000, 4000}, 300);
  const test::PrintedFile file = Printed();
  QVERIFY(Agree(BlackBox(file, {2600, 3600, 800, 800}), QRect(QPoint(2700, 3700), QPoint(3300, 4300))));
  QVERIFY(BlackBox(file, {2800, 3800, 400, 400}).isEmpty());  // nothing inside
}

void QtPdfFilesTest::keepsVeryLargeArcsTrue() {
  constexpr double radius = 1e6;
  device_->Arc({6000, 4000 + radius}, radius, 89, 91);
  const test::PrintedFile file = Printed();
  const double atEdge = 4000 + radius - std::sqrt(radius * radius - 5000.0 * 5000.0);
  QVERIFY(std::abs(BlackBox(file, {5990, 3900, 20, 200}).center().y() - 4000) <= 2);
  QVERIFY(std::abs(BlackBox(file, {990, 3900, 20, 200}).center().y() - atEdge) <= 2);
}

void QtPdfFilesTest::fillsPolygons() {
  const std::vector<PaperSpot> corners{{2000, 2000}, {2400, 2000}, {2400, 2300}, {2000, 2300}};
  device_->Polygon(corners);
  const QImage inside = Printed().Part({2010, 2010, 380, 280});
  QCOMPARE(BlackBox(inside), inside.rect());
  for (const QPoint place : {QPoint(0, 0), QPoint(190, 140), QPoint(379, 279)}) {
    QCOMPARE(qGray(inside.pixel(place)), 0);
  }
}

void QtPdfFilesTest::clips() {
  device_->SetClip({2000, 2000, 3000, 3000});
  device_->Line({1000, 2500}, {4000, 2500});
  device_->Text({2900, 2600}, "MMMMMMMMMMMM", {20});
  const std::vector<PaperSpot> corners{{1900, 2700}, {2100, 2700}, {2100, 2900}};
  device_->Polygon(corners);
  device_->EndClip();
  device_->Line({1000, 3500}, {4000, 3500});
  const test::PrintedFile file = Printed();
  QVERIFY(Agree(BlackBox(file, {900, 1900, 3500, 1200}),
                QRect(QPoint(2000, 2500), QPoint(3000, BlackBox(file, {2001, 2001, 990, 990}).bottom()))));
  QVERIFY(Agree(BlackBox(file, {900, 3400, 3500, 200}), QRect(QPoint(1000, 3500), QPoint(4000, 3500))));
}

void QtPdfFilesTest::passesOverWhatIsNoNumberOrBeyondAllPaper() {
  for (const double number : {NoNumber, Infinity, -Infinity, 1e300, -1e300, 1e9}) {
    const PaperSpot far{number, number};
    const std::vector<PaperSpot> corners{far, {number, 0}, {0, number}};
    device_->Line(far, far);
    device_->Line({number, 5000}, {number, 6000});
    device_->Arc(far, 100, 0, 90);
    device_->Arc({1000, 1000}, number, 0, 90);
    device_->Arc({1000, 1000}, 0, number, 90);
    device_->Circle({1000, 1000}, -number);
    device_->Text(far, "far away", {10});
    if (!std::isfinite(number)) device_->Polygon(corners);
    (void)device_->TextSize("any", {number});
  }
  device_->Line({100, 100}, {200, 100});
  QVERIFY(Agree(BlackBox(Printed().Sheet()), QRect(QPoint(10, 10), QPoint(20, 10)), 1));
}

// ---- texts

void QtPdfFilesTest::writesTextWhereItIsTold() {
  QFont font = QGuiApplication::font();
  font.setPixelSize(200);
  const double ascent = QFontMetricsF(font).ascent();
  device_->Text({1100, 2400}, "H", {10});
  device_->Text({1100, 2665}, "H", {10});
  device_->Text({5100, 2400}, "H", {10});
  const test::PrintedFile file = Printed();
  const QRect letter = BlackBox(file, {1100, 2400, 200, 264});
  QVERIFY2(std::abs(letter.bottom() + 1 - (2400 + ascent)) <= 1.5,
           qPrintable(QString::number(letter.bottom())));
  QCOMPARE(BlackBox(file, {1100, 2665, 200, 264}), letter.translated(0, 265));
  QCOMPARE(BlackBox(file, {5100, 2400, 200, 264}), letter.translated(4000, 0));
  QCOMPARE(file.Words()[0].Left, 55.0);  // points
}

void QtPdfFilesTest::measuresTheTextThatItWrites_data() {
  QTest::addColumn<double>("points");
  QTest::addColumn<bool>("bold");
  QTest::newRow("rows") << 10.0 << false;
  QTest::newRow("headings") << 10.0 << true;
  QTest::newRow("titles") << 14.0 << true;
  QTest::newRow("a fraction") << 9.35 << false;
}

void QtPdfFilesTest::measuresTheTextThatItWrites() {
  QFETCH(double, points);
  QFETCH(bool, bold);
  const PrintFont font{points, bold};
  const PaperSize size = device_->TextSize("Gullet", font);
  device_->Text({1440, 1440}, "Gullet", font);
  const test::PrintedFile file = Printed();
  const test::PrintedWord word = file.Words().at(0);
  QVERIFY2(std::abs((word.Right - word.Left) * TwipsPerPoint - size.Width) < 2,
           qPrintable(QString::number((word.Right - word.Left) * TwipsPerPoint - size.Width)));
  QVERIFY(size.Height > points * TwipsPerPoint && size.Height < points * TwipsPerPoint * 1.5);
  const QRect letters = BlackBox(file, Around({1440, 1440, 2000, 400}));
  QVERIFY(letters.top() >= 1440 && letters.bottom() <= 1440 + size.Height);
}

void QtPdfFilesTest::keepsEveryBlank() {
  const PrintFont font{10};
  device_->Text({1440, 1440}, "   a   b", font);
  const std::vector<test::PrintedWord> words = Printed().Words();
  QCOMPARE(words.size(), std::size_t{2});
  QVERIFY(std::abs(words[0].Left * TwipsPerPoint - 1440 - device_->TextSize("   ", font).Width) < 1);
  QVERIFY(std::abs(words[1].Left * TwipsPerPoint - 1440 - device_->TextSize("   a   ", font).Width) < 1);
}

void QtPdfFilesTest::embedsItsLetters() {
  device_->Text({1440, 1440}, "0.5 in\u00b2 \u00b0", {10});
  (void)Printed();
  const QString fonts = QString::fromUtf8(test::OutputOf("pdffonts", {QString::fromStdString(Path())}));
  QVERIFY(fonts.split('\n')[2].contains(QRegularExpression("yes (yes|no ) yes")));  // embedded, in Unicode
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtPdfFilesTest)
#include "QtPdfFiles_test.moc"
