#include "platform/qt/LineIcon.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QTest>
#include <algorithm>

namespace tarnwick {
namespace {

const QColor Ink(12, 96, 200);

QPalette Written(const QColor& text, const QColor& onHighlight = Qt::white) {
  QPalette palette;
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::HighlightedText, onHighlight);
  return palette;
}

QImage Picture(const QIcon& icon, QIcon::Mode mode = QIcon::Normal, qreal ratio = 1) {
  return icon.pixmap(QSize(24, 24), ratio, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The most covered pixel: its colour is the pen's.
QColor PenOf(const QImage& picture) {
  QColor most(Qt::transparent);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor colour = picture.pixelColor(x, y);
      if (colour.alpha() > most.alpha()) most = colour;
    }
  }
  return most;
}

int Covered(const QImage& picture, int least) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += qAlpha(picture.pixel(x, y)) >= least ? 1 : 0;
  }
  return count;
}

QStringList Names() {
  QStringList names = QDir(":/icons").entryList();
  for (QString& name : names) name.chop(static_cast<qsizetype>(qstrlen(".svg")));
  return names;
}

}  // namespace

class LineIconTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { QApplication::setPalette(Written(Qt::black)); }

  void isEmptyForANameWithoutADrawing();
  void drawsEachWithTheInkOfTheText();
  void drawsNoTwoAlike();
  void followsTheDesktop();
  void staysWithAPaletteOfItsOwn();
  void isFadedWhereItCannotBeUsed();
  void isReadableOnAHighlight();
  void isSharpOnAFineScreen();
  void isDrawnWhereItIsAskedFor();
  void isDrawnSharplyByAPainter();
  void tellsItsNameAlsoAsACopy();
};

void LineIconTest::isEmptyForANameWithoutADrawing() {
  QVERIFY(LineIcon("NoSuchIcon").isNull());
  QVERIFY(LineIcon("").isNull());
  QVERIFY(LineIcon("NoSuchIcon", Written(Ink)).isNull());
}

void LineIconTest::drawsEachWithTheInkOfTheText() {
  QVERIFY(!Names().isEmpty());
  for (const QString& name : Names()) {
    const QImage picture = Picture(LineIcon(name, Written(Ink)));
    QCOMPARE(picture.size(), QSize(24, 24));
    const QColor pen = PenOf(picture);
    QVERIFY2(pen.alpha() > 240, qPrintable(name));
    // A pen that covers not quite all of a pixel is rounded by a step or two.
    QVERIFY2(std::abs(pen.red() - Ink.red()) <= 2 && std::abs(pen.green() - Ink.green()) <= 2 &&
                 std::abs(pen.blue() - Ink.blue()) <= 2,
             qPrintable(name));
    QVERIFY2(Covered(picture, 128) > 24, qPrintable(name));
    QVERIFY2(Covered(picture, 1) < 24 * 24 * 3 / 5, qPrintable(name + " is a blot"));
  }
}

void LineIconTest::drawsNoTwoAlike() {
  const QStringList names = Names();
  for (qsizetype i = 0; i < names.size(); ++i) {
    for (qsizetype j = 0; j < i; ++j)
      QVERIFY2(Picture(LineIcon(names[i])) != Picture(LineIcon(names[j])),
               qPrintable(names[i] + " and " + names[j]));
  }
}

void LineIconTest::followsTheDesktop() {
  const QIcon icon = LineIcon("Save");
  QCOMPARE(PenOf(Picture(icon)).rgb(), QColor(Qt::black).rgb());
  QApplication::setPalette(Written(Qt::white));
  QCOMPARE(PenOf(Picture(icon)).rgb(), QColor(Qt::white).rgb());
}

void LineIconTest::staysWithAPaletteOfItsOwn() {
  const QIcon icon = LineIcon("Save", Written(Qt::red));
  QApplication::setPalette(Written(Qt::white));
  QCOMPARE(PenOf(Picture(icon)).rgb(), QColor(Qt::red).rgb());
}

void LineIconTest::isFadedWhereItCannotBeUsed() {
  for (const QColor ink : {QColor(Qt::black), QColor(Qt::white)}) {
    const QIcon icon = LineIcon("Save", Written(ink));
    const QColor pen = PenOf(Picture(icon, QIcon::Disabled));
    QCOMPARE(pen.rgb(), ink.rgb());
    QVERIFY(pen.alpha() > 255 / 4);
    QVERIFY(pen.alpha() < 255 / 2);
    QCOMPARE(Picture(icon, QIcon::Active), Picture(icon));
  }
}

void LineIconTest::isReadableOnAHighlight() {
  const QIcon icon = LineIcon("Save", Written(Qt::black, Qt::yellow));
  QCOMPARE(PenOf(Picture(icon, QIcon::Selected)).rgb(), QColor(Qt::yellow).rgb());
}

void LineIconTest::isSharpOnAFineScreen() {
  const QIcon icon = LineIcon("Save");
  const QPixmap fine = icon.pixmap(QSize(24, 24), 2.0);
  QCOMPARE(fine.size(), QSize(48, 48));
  QCOMPARE(fine.devicePixelRatio(), 2.0);
  // Drawn at that size, not stretched: the same as the icon of twice the size.
  QCOMPARE(fine.toImage().convertToFormat(QImage::Format_ARGB32).copy(), [&icon] {
    QImage twice = icon.pixmap(QSize(48, 48), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
    twice.setDevicePixelRatio(2);
    return twice;
  }());
  QCOMPARE(icon.pixmap(QSize(24, 24), 1.5).size(), QSize(36, 36));
}

void LineIconTest::isDrawnWhereItIsAskedFor() {
  QImage sheet(100, 60, QImage::Format_ARGB32);
  sheet.fill(Qt::transparent);
  QPainter painter(&sheet);
  LineIcon("Save").paint(&painter, QRect(40, 20, 24, 24));
  painter.end();
  QCOMPARE(sheet.copy(40, 20, 24, 24), Picture(LineIcon("Save")));
  QCOMPARE(Covered(sheet, 1), Covered(sheet.copy(40, 20, 24, 24), 1));
}

void LineIconTest::isDrawnSharplyByAPainter() {
  QImage sheet(48, 48, QImage::Format_ARGB32);
  sheet.fill(Qt::transparent);
  sheet.setDevicePixelRatio(2);
  QPainter painter(&sheet);
  LineIcon("Save").paint(&painter, QRect(0, 0, 24, 24));
  painter.end();
  QCOMPARE(sheet, Picture(LineIcon("Save"), QIcon::Normal, 2));
}

void LineIconTest::tellsItsNameAlsoAsACopy() {
  QIcon copy = LineIcon("Save", Written(Ink));
  const QIcon original = copy;
  copy.addPixmap(QPixmap(8, 8));  // parts the two
  QCOMPARE(original.name(), QString("Save"));
  QCOMPARE(copy.name(), QString("Save"));
  QCOMPARE(Picture(copy), Picture(original));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::LineIconTest)
#include "LineIcon_test.moc"
