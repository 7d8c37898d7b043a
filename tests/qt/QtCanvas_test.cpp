#include "platform/qt/QtCanvas.h"

#include <QTest>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>

#include "qt/Pixels.h"

namespace tarnwick {
namespace {

using test::CountOf;
using test::HasStroke;

constexpr Colour Ink = Rgb(0, 255, 255);

/// A black picture of 100 by 80 pixels with what `draw` draws on it in ink.
QImage Drawn(qreal ratio, const std::function<void(Canvas&)>& draw) {
  QImage picture(QSize(100, 80) * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  QPainter painter(&picture);
  QtCanvas canvas(painter, QSizeF(100, 80));
  canvas.Clear(Black);
  canvas.SetPen(Ink, PenStyle::Solid);
  draw(canvas);
  return picture;
}

void Line(Canvas& canvas, Spot from, Spot to) { canvas.Polyline(std::array{from, to}); }

/// The arc of a circle around `center`, as angles on a surface that grows downward.
void CircleArc(Canvas& canvas, Spot center, double radius, double fromDegrees, double toDegrees) {
  const auto at = [&](double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return Spot{center.X + (radius * std::cos(angle)), center.Y - (radius * std::sin(angle))};
  };
  canvas.Arc({center.X - radius, center.Y - radius}, {center.X + radius, center.Y + radius}, at(fromDegrees),
             at(toDegrees));
}

/// Rows in which column `x` shows any ink.
int InkedRows(const QImage& picture, int x) {
  int rows = 0;
  for (int y = 0; y < picture.height(); ++y) rows += picture.pixelColor(x, y).green() > 0 ? 1 : 0;
  return rows;
}

}  // namespace

class QtCanvasTest : public QObject {
  Q_OBJECT

 private slots:
  void clearsToTheBackground();
  void drawsALineOnePixelWide_data();
  void drawsALineOnePixelWide();
  void coversWholePixelsWithLevelAndUprightLines_data();
  void coversWholePixelsWithLevelAndUprightLines();
  void drawsArcsAnticlockwise_data();
  void drawsArcsAnticlockwise();
  void drawsAWholeCircleWhenBothEndsAreOne();
  void keepsVeryLargeArcsTrue();
  void passesOverFiguresThatAreNoNumbers();
  void cutsLinesFarOutsideWithoutBendingThem();
  void leavesGapsInDots();
  void drawsCentreLinesLighterThanTheSaw();
  void keepsTheRhythmOfCentreLinesOnAFineScreen();
  void fillsPolygons();
  void writesTextInTheBoxItMeasured();
};

void QtCanvasTest::clearsToTheBackground() {
  const QImage picture = Drawn(1, [](Canvas& canvas) { canvas.Clear(Rgb(10, 20, 30)); });
  QCOMPARE(CountOf(picture, Rgb(10, 20, 30)), 100 * 80);
}

void QtCanvasTest::drawsALineOnePixelWide_data() {
  QTest::addColumn<double>("ratio");
  QTest::newRow("usual screen") << 1.0;
  QTest::newRow("fine screen") << 2.0;
  QTest::newRow("very fine screen") << 3.0;
}

void QtCanvasTest::drawsALineOnePixelWide() {
  QFETCH(double, ratio);
  const QImage picture = Drawn(ratio, [](Canvas& canvas) { Line(canvas, {10, 40.5}, {90, 40.5}); });
  QCOMPARE(InkedRows(picture, static_cast<int>(50 * ratio)), static_cast<int>(ratio));
  QCOMPARE(picture.pixelColor(static_cast<int>(50 * ratio), static_cast<int>(40.5 * ratio)), ToQt(Ink));
}

void QtCanvasTest::coversWholePixelsWithLevelAndUprightLines_data() {
  QTest::addColumn<double>("ratio");
  QTest::addColumn<int>("weight");
  QTest::newRow("usual screen") << 1.0 << 1;
  QTest::newRow("between") << 1.5 << 2;
  QTest::newRow("fine screen") << 2.0 << 2;
}

// Wherever they lie: a line between two pixels would be grey and twice as wide.
void QtCanvasTest::coversWholePixelsWithLevelAndUprightLines() {
  QFETCH(double, ratio);
  QFETCH(int, weight);
  for (double place = 40; place < 41; place += 0.125) {
    const QImage picture = Drawn(ratio, [&](Canvas& canvas) {
      Line(canvas, {10, place}, {30, place});
      Line(canvas, {place, 60}, {place, 20});
    });
    int inked = 0;
    for (int x = 0; x < picture.width(); ++x) {
      inked += picture.pixelColor(x, static_cast<int>(30 * ratio)) == ToQt(Ink) ? 1 : 0;
    }
    QCOMPARE(inked, weight);
    QCOMPARE(InkedRows(picture, static_cast<int>(20 * ratio)), weight);
    QVERIFY(HasStroke(picture, {place, 21}, Ink) && HasStroke(picture, {29, place}, Ink));
    QCOMPARE(CountOf(picture, Ink) + CountOf(picture, Black), picture.width() * picture.height());
  }
}

void QtCanvasTest::drawsArcsAnticlockwise_data() {
  QTest::addColumn<double>("from");
  QTest::addColumn<double>("to");
  QTest::addColumn<double>("on");
  QTest::addColumn<double>("off");
  QTest::newRow("first quarter") << 0. << 90. << 45. << 225.;
  QTest::newRow("all but it") << 90. << 0. << 225. << 45.;
  QTest::newRow("across the zero") << 330. << 30. << 0. << 180.;
  QTest::newRow("a gullet") << 170. << 330. << 250. << 60.;
  QTest::newRow("angles past a turn") << 350. << 370. << 0. << 90.;
}

void QtCanvasTest::drawsArcsAnticlockwise() {
  QFETCH(double, from);
  QFETCH(double, to);
  QFETCH(double, on);
  QFETCH(double, off);
  const QImage picture = Drawn(1, [&](Canvas& canvas) { CircleArc(canvas, {50, 40}, 30, from, to); });
  const auto at = [](double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return QPointF(50 + (30 * std::cos(angle)), 40 - (30 * std::sin(angle)));
  };
  QVERIFY(HasStroke(picture, at(on), Ink));
  QVERIFY(!HasStroke(picture, at(off), Ink));
}

void QtCanvasTest::drawsAWholeCircleWhenBothEndsAreOne() {
  const QImage picture = Drawn(1, [](Canvas& canvas) { canvas.Arc({20, 10}, {80, 70}, {80, 40}, {80, 40}); });
  for (const QPointF spot : {QPointF(80, 40), QPointF(50, 10), QPointF(20, 40), QPointF(50, 70)}) {
    QVERIFY(HasStroke(picture, spot, Ink));
  }
}

// A curve of a million pixels around: a sixteenth of a degree of it is wider than any screen.
void QtCanvasTest::keepsVeryLargeArcsTrue() {
  const double radius = 1e6;
  const QImage picture = Drawn(1, [&](Canvas& canvas) {
    CircleArc(canvas, {50, 40 + radius}, radius, 89, 91);
    CircleArc(canvas, {20 - radius, 40}, radius, 359, 1);
  });
  for (int x = 0; x < 100; ++x) QVERIFY(HasStroke(picture, QPointF(x + 0.5, 40), Ink));
  for (int y = 0; y < 80; ++y) QVERIFY(HasStroke(picture, QPointF(20, y + 0.5), Ink));
  QCOMPARE(InkedRows(picture, 70), 2);
}

void QtCanvasTest::passesOverFiguresThatAreNoNumbers() {
  const double nan = std::nan("");
  const double huge = 1e300;
  const QImage picture = Drawn(1, [&](Canvas& canvas) {
    Line(canvas, {nan, 10}, {50, 10});
    Line(canvas, {10, 10}, {50, huge * 1e10});
    canvas.Arc({nan, 0}, {10, 10}, {10, 5}, {5, 0});
    canvas.Arc({0, 0}, {0, 0}, {0, 0}, {0, 0});
    canvas.Arc({-huge, -huge}, {huge, huge}, {huge, 0}, {0, nan});
  });
  QCOMPARE(CountOf(picture, Black), 100 * 80);
}

void QtCanvasTest::cutsLinesFarOutsideWithoutBendingThem() {
  const QImage picture = Drawn(1, [](Canvas& canvas) {
    Line(canvas, {-1e9 + 50, -1e9 + 40}, {1e9 + 50, 1e9 + 40});
  });
  for (int step = -30; step <= 30; step += 10)
    QVERIFY(HasStroke(picture, QPointF(50 + step, 40 + step), Ink));
  QVERIFY(!HasStroke(picture, QPointF(60, 20), Ink));
}

void QtCanvasTest::leavesGapsInDots() {
  const QImage picture = Drawn(1, [](Canvas& canvas) {
    canvas.SetPen(Ink, PenStyle::Dots);
    Line(canvas, {0, 40.5}, {100, 40.5});
  });
  int gaps = 0;
  for (int x = 0; x < 100; ++x) gaps += picture.pixelColor(x, 40) == Qt::black ? 1 : 0;
  QVERIFY2(gaps > 30 && gaps < 70, qPrintable(QString::number(gaps)));
}

void QtCanvasTest::drawsCentreLinesLighterThanTheSaw() {
  const QImage picture = Drawn(1, [](Canvas& canvas) {
    canvas.SetPen(Ink, PenStyle::DashDot);
    Line(canvas, {0, 40.5}, {100, 40.5});
    canvas.SetPen(Ink, PenStyle::Solid);
    Line(canvas, {0, 20.5}, {100, 20.5});
  });
  const int centre = picture.pixelColor(5, 40).green();
  QVERIFY2(centre > 100 && centre < 200, qPrintable(QString::number(centre)));
  QCOMPARE(picture.pixelColor(5, 20).green(), 255);
}

void QtCanvasTest::keepsTheRhythmOfCentreLinesOnAFineScreen() {
  for (const double ratio : {1.0, 2.0, 3.0}) {
    const QImage picture = Drawn(ratio, [](Canvas& canvas) {
      canvas.SetPen(Ink, PenStyle::DashDot);
      Line(canvas, {0, 40.5}, {100, 40.5});
    });
    const auto inked = [&](double x) { return test::NearestTo(picture, {x, 40.5}, Ink) < 140; };
    // A dash of 20, a gap of 6, a dot of 3, a gap of 6: not quite three times.
    int strokes = 0;
    for (int x = 1; x < 100; ++x) strokes += inked(x) && !inked(x - 1) ? 1 : 0;
    QVERIFY2(strokes >= 4 && strokes <= 6, qPrintable(QString::number(ratio)));
  }
}

void QtCanvasTest::fillsPolygons() {
  const QImage picture = Drawn(1, [](Canvas& canvas) {
    canvas.Polygon(std::array<Spot, 5>{{{10, 10}, {40, 10}, {40, 30}, {10, 30}, {10, 10}}});
  });
  QCOMPARE(picture.pixelColor(25, 20), ToQt(Ink));
  QCOMPARE(picture.pixelColor(60, 20), QColor(Qt::black));
}

void QtCanvasTest::writesTextInTheBoxItMeasured() {
  PixelSize size;
  const QImage picture = Drawn(1, [&](Canvas& canvas) {
    size = canvas.TextSize("12.5");
    canvas.Text({20, 30}, "12.5");
  });
  QVERIFY(size.Width > 10 && size.Height > 8);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) == Qt::black) continue;
      QVERIFY(QRectF(19, 29, size.Width + 2, size.Height + 2).contains(x, y));
    }
  }
  QVERIFY(CountOf(picture, Black) < 100 * 80);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtCanvasTest)
#include "QtCanvas_test.moc"
