#include "power/frmPowerEst.h"

#include <QAccessible>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <memory>

#include "platform/qt/QtText.h"
#include "qt/Controls.h"
#include "qt/PowerWindow.h"

namespace tarnwick {
namespace {

using test::Named;

constexpr int LinesOfARow = 17, Lines = 4 * LinesOfARow + 3;  // with the blank lines between two rows
const QStringList Controls = {"picPowerEst", "cmdPrint", "cmdOk"};

}  // namespace

class frmPowerEstTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { Close(); }

  void showsTheLines();
  void marksWhatAnEstimateChanges_data();
  void marksWhatAnEstimateChanges();
  void writesTheLinesAnew();

  void movesTheLinesByTheBar();
  void hidesTheBarWhenAllLinesFit();
  void isReadByKeys();
  void isReadByPages();
  void turnsByTheWheel();
  void tellsItsLines();

  void closes_data();
  void closes();
  void opensTheManual();
  void prints();

  void namesEveryControl();
  void tabsInReadingOrder();
  void drawsInTwoColumns();
  void fitsTheSmallestScreen_data();
  void fitsTheSmallestScreen();

 private:
  void Open(double percent = 10);
  void Close();
  template <class Control>
  Control* Find(const char* name) {
    return Named<Control>(*window_, name);
  }
  QString Line(int row, int line) { return list_->item(row * (LinesOfARow + 1) + line)->text(); }
  int Current() { return list_->currentRow(); }

  std::unique_ptr<test::PowerBench> bench_;
  std::unique_ptr<PowerEstimateList> estimates_;
  std::unique_ptr<frmPowerEst> window_;
  int prints_ = 0;
  QListWidget* list_ = nullptr;
  QScrollBar* bar_ = nullptr;
};

void frmPowerEstTest::Open(double percent) {
  Close();
  bench_ = std::make_unique<test::PowerBench>();
  BandSaw saw = test::PowerDesign();
  saw.GeneralInfo.HorsePower = 62.5;
  saw.GulletInfo.Bite = 0.025;
  const auto rows = BuildPowerEstimates(saw, percent, {5, 0.7});
  QVERIFY(rows.has_value());
  estimates_ = std::make_unique<PowerEstimateList>(0.7, DisplayFormat{});
  estimates_->GetPowerReq(*rows, percent);
  window_ = std::make_unique<frmPowerEst>(*estimates_, bench_->Program.Help, [this] { ++prints_; });
  prints_ = 0;
  list_ = Find<QListWidget>("picPowerEst");
  bar_ = Find<QScrollBar>("vscPowerInfo");
  bench_->Show(*window_);
}

void frmPowerEstTest::Close() {
  window_.reset();
  estimates_.reset();
  bench_.reset();
}

// ---- lines

void frmPowerEstTest::showsTheLines() {
  Open(12.9);
  QCOMPARE(Find<QLabel>("lblHeading")->text(),
           QString("Power estimates based on increasing feedrate by 12 percent."));
  QCOMPARE(Find<QLabel>("lblNote")->text(),
           QString("Note: Changes have an asterisk * displayed beside the value."));
  QCOMPARE(list_->count(), Lines);
  const QStringList current = {"Current Power Requirements",
                               "Wheel Diameter: 5.000 ft",
                               "Wheel RPM's: 510 rpms",
                               "Saw Velocity: 8011 fpm",
                               "Tooth Pitch: 2.000 in",
                               "Plate Thickness: 0.065 in",
                               "Tip Kerf: 0.150 in",
                               "Side Clearance: 0.000 in",
                               "Depth of Cut: 10.000 in",
                               "Feed Rate: 100 fpm",
                               "",
                               "Type of Wood: Oak (White)",
                               "Bite: 0.025 in",
                               "Gullet Capacity (Required): 0.250 in²",
                               "Gullet Capacity (Actual): 0.700 in²",
                               "Gullet Feed Index: 70 Percent",
                               "Horsepower: 62.500"};
  for (int line = 0; line < LinesOfARow; ++line) QCOMPARE(Line(0, line), current[line]);
  for (int row = 1; row < 4; ++row) {
    QCOMPARE(list_->item(row * (LinesOfARow + 1) - 1)->text(), QString());
    QCOMPARE(Line(row, 0), QString("Power Estimate # %1").arg(row));
  }
}

void frmPowerEstTest::marksWhatAnEstimateChanges_data() {
  QTest::addColumn<int>("row");
  QTest::addColumn<QStringList>("marked");
  QTest::newRow("the current figures") << 0 << QStringList();
  // 8011 * 0.025 / 110 = 1.82068 in
  QTest::newRow("another pitch") << 1
                                 << QStringList({"Tooth Pitch: 1.821 in*", "Feed Rate: 110 fpm*",
                                                 "Horsepower: 68.750*"});
  // 121 * 2 / 0.025 = 9680 ft/min; / (5 * 3.14159) = 616 rpm; and that is 9676 ft/min
  QTest::newRow("another speed") << 2
                                 << QStringList({"Wheel RPM's: 616 rpms*", "Saw Velocity: 9676 fpm*",
                                                 "Feed Rate: 121 fpm*", "Horsepower: 75.625*"});
  // 133.1 * 2 / 8011 = 0.03322 in
  QTest::newRow("another bite") << 3
                                << QStringList({"Feed Rate: 133 fpm*", "Bite: 0.033 in*",
                                                "Gullet Capacity (Required): 0.332 in²*",
                                                "Gullet Capacity (Actual): 0.700 in²*",
                                                "Horsepower: 83.188*"});
}

void frmPowerEstTest::marksWhatAnEstimateChanges() {
  QFETCH(int, row);
  Open();
  QStringList marked;
  for (int line = 0; line < LinesOfARow; ++line) {
    if (Line(row, line).contains('*')) marked += Line(row, line);
  }
  QTEST(marked, "marked");
}

void frmPowerEstTest::writesTheLinesAnew() {
  Open();
  window_->DisplayPowerSets();
  QCOMPARE(list_->count(), Lines);
}

// ---- reading

void frmPowerEstTest::movesTheLinesByTheBar() {
  Open();
  QVERIFY(bar_->isVisible());
  const auto* contain = Find<QWidget>("picContain");
  QCOMPARE(list_->parentWidget(), contain);
  const int height = list_->visualItemRect(list_->item(Lines - 1)).bottom() + 1;
  QCOMPARE(list_->height(), height);
  QCOMPARE(bar_->minimum(), 0);
  QCOMPARE(bar_->maximum(), height - contain->height());
  for (const int value : {0, 1, 57, bar_->maximum()}) {
    bar_->setValue(value);
    QCOMPARE(list_->y(), -value);
  }
  QCOMPARE(list_->geometry().bottom(), contain->height() - 1);  // the last line is in sight
}

void frmPowerEstTest::hidesTheBarWhenAllLinesFit() {
  Open();
  bar_->setValue(57);
  window_->resize(window_->width(), 2000);
  QTRY_VERIFY(!bar_->isVisible());
  QCOMPARE(bar_->maximum(), 0);
  QCOMPARE(list_->y(), 0);
}

void frmPowerEstTest::isReadByKeys() {
  Open();
  QVERIFY(list_->hasFocus());
  QTest::keyClick(list_, Qt::Key_Down);
  QCOMPARE(Current(), 1);
  for (int i = 0; i < 9; ++i) QTest::keyClick(list_, Qt::Key_Down);
  QCOMPARE(list_->currentItem()->text(), QString("Type of Wood: Oak (White)"));  // past the blank line
  QTest::keyClick(list_, Qt::Key_Up);
  QCOMPARE(list_->currentItem()->text(), QString("Feed Rate: 100 fpm"));
  QTest::keyClick(list_, Qt::Key_End);
  QCOMPARE(Current(), Lines - 1);
  QCOMPARE(bar_->value(), bar_->maximum());
  QTest::keyClick(list_, Qt::Key_Home);
  QCOMPARE(Current(), 0);
  QCOMPARE(bar_->value(), 0);
}

/// Down to the end and up again; each page has its line in sight, and no line is left out between two of
/// them.
void frmPowerEstTest::isReadByPages() {
  Open();
  const auto* contain = Find<QWidget>("picContain");
  const int page = contain->height() / list_->sizeHintForRow(0);
  for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageUp}) {
    const int end = key == Qt::Key_PageDown ? Lines - 1 : 0;
    int steps = 0;
    for (; Current() != end && steps < Lines; ++steps) {
      const int before = Current();
      QTest::keyClick(list_, key);
      QVERIFY(Current() != before && std::abs(Current() - before) <= page);
      const QRect line = list_->visualItemRect(list_->currentItem()).translated(list_->pos());
      QVERIFY(contain->rect().contains(line));
      QVERIFY(!list_->currentItem()->text().isEmpty());
    }
    QVERIFY(steps >= 2);
    QTest::keyClick(list_, key);  // there is nothing beyond
    QCOMPARE(Current(), end);
  }
}

/// The mouse is over the lines, whichever of the two is asked.
void frmPowerEstTest::turnsByTheWheel() {
  Open();
  int value = 0;
  for (QWidget* surface : {Find<QWidget>("picContain"), list_->viewport()}) {
    const QPointF place(20, 20);
    QWheelEvent turn(place, surface->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                     false);
    QSpontaneKeyEvent::setSpontaneous(&turn);  // as from the desktop: others are not handed on
    QApplication::instance()->notify(surface, &turn);
    QVERIFY(bar_->value() > value);
    value = bar_->value();
  }
}

/// A reader of the screen finds a list, and in it each line with what has changed in words.
void frmPowerEstTest::tellsItsLines() {
  Open();
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(list_);
  QVERIFY(list);
  QCOMPARE(list->role(), QAccessible::List);
  QCOMPARE(list->text(QAccessible::Name), QString("Power estimates"));
  QCOMPARE(list->childCount(), Lines);
  const auto spoken = [list](int line) { return list->child(line)->text(QAccessible::Name); };
  QCOMPARE(spoken(0), QString("Current Power Requirements"));
  QCOMPARE(spoken(9), QString("Feed Rate: 100 fpm"));
  QCOMPARE(spoken(LinesOfARow + 1 + 9), QString("Feed Rate: 110 fpm, changed"));
}

// ---- the end

void frmPowerEstTest::closes_data() {
  QTest::addColumn<int>("key");
  QTest::newRow("by OK") << 0;
  QTest::newRow("by Enter") << int(Qt::Key_Return);
  QTest::newRow("by Escape") << int(Qt::Key_Escape);
}

void frmPowerEstTest::closes() {
  QFETCH(int, key);
  Open();
  QVERIFY(estimates_->IsOpen());
  if (key == 0)
    QTest::mouseClick(Find<QPushButton>("cmdOk"), Qt::LeftButton);
  else
    QTest::keyClick(window_->focusWidget(), Qt::Key(key));
  QVERIFY(!window_->isVisible());
  QVERIFY(!estimates_->IsOpen());
}

void frmPowerEstTest::opensTheManual() {
  Open();
  QTest::keyClick(list_, Qt::Key_F1);
  QCOMPARE(bench_->Program.Help.Asked, std::vector<std::string>{"topic 420"});
}

void frmPowerEstTest::prints() {
  Open();
  QTest::mouseClick(Find<QPushButton>("cmdPrint"), Qt::LeftButton);
  QCOMPARE(prints_, 1);
  QVERIFY(window_->isVisible());
  QCOMPARE(test::AccessKeys(*window_).size(), 2);
  list_->setFocus();
  QCOMPARE(test::TabOrder(*window_), QStringList({"picPowerEst", "cmdPrint", "cmdOk"}));
}

// ---- for everybody

void frmPowerEstTest::namesEveryControl() {
  Open();
  QCOMPARE(test::BadlySpoken(*window_, Controls + QStringList("vscPowerInfo")), QStringList());
}

void frmPowerEstTest::tabsInReadingOrder() {
  Open();
  QCOMPARE(test::TabOrder(*window_), Controls);
  QCOMPARE(test::AccessKeys(*window_), QString("PO"));
}

/// Labels begin at the left, what stands beside them in one column; between them nothing is drawn.
void frmPowerEstTest::drawsInTwoColumns() {
  Open();
  const QImage picture = Find<QWidget>("picContain")->grab().toImage();
  const auto inkFrom = [&](int line, int from) {
    const QRect row = list_->visualItemRect(list_->item(line));
    for (int x = from; x < row.right(); ++x) {
      for (int y = row.top() + 2; y < row.bottom() - 1; ++y) {
        if (qGray(picture.pixel(x, y)) < 128) return x;
      }
    }
    return -1;
  };
  const int widest = list_->fontMetrics().horizontalAdvance("Gullet Capacity (Required):");
  const int column = inkFrom(1, widest + 10);
  QVERIFY(column > widest);
  for (const int line : {2, 3, 9, 11, 13}) QVERIFY(std::abs(inkFrom(line, widest + 10) - column) <= 2);
  QVERIFY(inkFrom(13, 0) < 20);
  QCOMPARE(inkFrom(10, 0), -1);  // the blank line
}

void frmPowerEstTest::fitsTheSmallestScreen_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 14; ++points) QTest::addRow("%d points", points) << points;
}

void frmPowerEstTest::fitsTheSmallestScreen() {
  QFETCH(int, points);
  const test::LargeFont font(points);
  Open();
  QVERIFY(window_->width() <= 800 && (points > 10 || window_->height() <= 570));
  QCOMPARE(test::Clipped(*window_, {"lblHeading", "lblNote", "cmdPrint", "cmdOk"}), QStringList());
  QVERIFY(list_->sizeHintForColumn(0) <= list_->viewport()->width());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmPowerEstTest)
#include "frmPowerEst_test.moc"
