#include "machine/frmGauge.h"

#include <QApplication>
#include <QPalette>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>

#include "machine/modGauge.h"
#include "machine/modGaugeDraw.h"
#include "platform/qt/QtMachineHost.h"
#include "qt/Controls.h"
#include "qt/Pixels.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {

using test::Named;

class frmGaugeTest : public QObject {
  Q_OBJECT

 private slots:
  void init();

  void comesUpByItsHost();
  void showsTheTable();
  void rulesItsLines();
  void speaksItsTable();
  void followsTheColoursOfTheDesktop();
  void growsWithTheFont();
  void closes_data();
  void closes();
  void opensTheManual();
  void namesEveryControl();

 private:
  QWidget* Table() { return Named<QWidget>(*window_, "picGauge"); }

  test::RecordingHelpViewer help_;
  std::unique_ptr<frmGauge> window_;
};

void frmGaugeTest::init() {
  help_ = {};
  window_ = std::make_unique<frmGauge>(DisplayFormat{.ImpMetric = Metric}, help_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void frmGaugeTest::comesUpByItsHost() {
  window_.reset();
  QString shown;
  QTimer::singleShot(0, this, [&shown] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog) qFatal("no dialog is open");
    shown = dialog->objectName();
    dialog->close();
  });
  QtMachineHost(help_).ShowPlateGauges({});
  QCOMPARE(shown, QString("frmGauge"));
}

void frmGaugeTest::showsTheTable() {
  QCOMPARE(window_->windowTitle(), QString("Plate Gauge"));
  QVERIFY(window_->isModal());
  const PixelSize size = GaugeSize(1.0 / 15);
  QVERIFY(Table()->width() >= size.Width);
  QVERIFY(Table()->height() >= size.Height);
  QVERIFY(window_->rect().contains(QRect(Table()->mapTo(window_.get(), QPoint()), Table()->size())));
}

void frmGaugeTest::rulesItsLines() {
  const QImage picture = Table()->grab().toImage();
  const QColor mid = window_->palette().color(QPalette::Mid);
  const double unit = picture.width() / (GaugeLines[GaugeColumns] + GaugeLines[0]);
  const Colour line = Rgb(static_cast<std::uint8_t>(mid.red()), static_cast<std::uint8_t>(mid.green()),
                          static_cast<std::uint8_t>(mid.blue()));
  for (const double x : GaugeLines) {
    QVERIFY(test::NearestTo(picture, {x * unit, (GaugeTop + GaugeRowHeight * 1.5) * unit}, line) < 10);
  }
  for (int row = 0; row <= 14; ++row) {
    QVERIFY(test::NearestTo(picture, {1210 * unit, (GaugeTop + row * GaugeRowHeight) * unit}, line) < 10);
  }
}

void frmGaugeTest::speaksItsTable() {
  const QStringList lines = Table()->accessibleDescription().split('\n');
  QCOMPARE(lines.size(), 14);
  QCOMPARE(lines.first(), QString("GA, Inches, Millimeters"));
  QCOMPARE(lines[1], QString("20 ga, 0.035 in, 0.889 mm"));
  QCOMPARE(lines.last(), QString("8 ga, 0.165 in, 4.191 mm"));
}

void frmGaugeTest::followsTheColoursOfTheDesktop() {
  QPalette dark = window_->palette();
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  window_->setPalette(dark);
  const QImage picture = Table()->grab().toImage();
  QVERIFY(test::CountOf(picture, Black) > picture.width() * picture.height() / 2);
  QVERIFY(test::CountOf(picture, White) > 50);
}

void frmGaugeTest::growsWithTheFont() {
  const QSize before = Table()->size();
  QFont large = window_->font();
  large.setPointSizeF(large.pointSizeF() * 2);
  window_->setFont(large);
  QVERIFY(Table()->width() > before.width());
  QVERIFY(Table()->height() > before.height());
}

void frmGaugeTest::closes_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"button", "Enter", "Escape"}) QTest::newRow(how) << how;
}

void frmGaugeTest::closes() {
  QFETCH(QString, how);
  if (how == "button") QTest::mouseClick(Named<QPushButton>(*window_, "cmdOk"), Qt::LeftButton);
  if (how == "Enter") QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  if (how == "Escape") QTest::keyClick(window_.get(), Qt::Key_Escape);
  QVERIFY(!window_->isVisible());
}

void frmGaugeTest::opensTheManual() {
  QTest::keyClick(window_.get(), Qt::Key_F1);
  QCOMPARE(help_.Asked, std::vector<std::string>{"topic 520"});
}

void frmGaugeTest::namesEveryControl() {
  QCOMPARE(test::BadlySpoken(*window_, {"picGauge", "cmdOk"}), QStringList());
  QCOMPARE(test::TabOrder(*window_), QStringList{"cmdOk"});
  QCOMPARE(test::AccessKeys(*window_), QString("O"));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmGaugeTest)
#include "frmGauge_test.moc"
