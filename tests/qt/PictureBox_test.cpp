#include "platform/qt/PictureBox.h"

#include <QImage>
#include <QPalette>
#include <QSet>
#include <QTest>

namespace tarnwick {
namespace {

const QColor Desk(40, 44, 48);

QImage Grab(PictureBox& box, QSize size = QSize(322, 242)) {
  QPalette dark;
  dark.setColor(QPalette::Window, Desk);
  box.setPalette(dark);
  box.setAutoFillBackground(true);
  box.resize(size);
  return box.grab().toImage();
}

/// How many colours the picture has.
int Colours(const QImage& picture) {
  QSet<QRgb> colours;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
  }
  return static_cast<int>(colours.size());
}

}  // namespace

class PictureBoxTest : public QObject {
  Q_OBJECT

 private slots:
  void isAnEmptyPlaceWithoutAPicture();
  void hasALightSheetOnADarkDesktop();
  void changesWithTheKey();
  void keepsItsAspect();
  void isSharpOnAFineScreen();
};

void PictureBoxTest::isAnEmptyPlaceWithoutAPicture() {
  for (const char* key : {"", "NoSuchPicture"}) {
    PictureBox box;
    box.ShowPicture("SqrBack");
    box.ShowPicture(key);
    QVERIFY(box.IsEmpty());
    QCOMPARE(box.Key(), std::string(key));
    const QImage picture = Grab(box);
    QCOMPARE(Colours(picture), 1);
    QCOMPARE(picture.pixelColor(0, 0), Desk);
  }
}

void PictureBoxTest::hasALightSheetOnADarkDesktop() {
  PictureBox box;
  box.ShowPicture("SqrBack");
  QVERIFY(!box.IsEmpty());
  const QImage picture = Grab(box);
  QVERIFY(Colours(picture) > 3);
  QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::white));
  for (const QPoint edge : {QPoint(0, 0), QPoint(0, 241), QPoint(321, 0), QPoint(321, 241)}) {
    QVERIFY(picture.pixelColor(edge) != Desk);
    QVERIFY(picture.pixelColor(edge) != QColor(Qt::white));
  }
}

void PictureBoxTest::changesWithTheKey() {
  PictureBox box;
  box.ShowPicture("SqrBack");
  const QImage square = Grab(box);
  box.ShowPicture("RndBack");
  const QImage round = Grab(box);
  QVERIFY(square != round);
  box.ShowPicture("SqrBack");
  QCOMPARE(Grab(box), square);
}

void PictureBoxTest::keepsItsAspect() {
  PictureBox box;
  box.ShowPicture("GuDepth");
  const QImage wide = Grab(box, QSize(642, 242));
  const QImage plain = Grab(box);
  // The drawing stands in the middle of a wider sheet as it is.
  int different = 0;
  for (int y = 2; y < 240; ++y) {
    for (int x = 2; x < 320; ++x) different += wide.pixel(x + 160, y) != plain.pixel(x, y) ? 1 : 0;
  }
  QCOMPARE(different, 0);
}

void PictureBoxTest::isSharpOnAFineScreen() {
  PictureBox box;
  box.ShowPicture("GuDepth");
  const QImage twice = Grab(box, QSize(642, 482));
  box.resize(322, 242);
  QImage fine(644, 484, QImage::Format_RGB32);
  fine.setDevicePixelRatio(2);
  box.render(&fine);
  int different = 0;
  for (int y = 2; y < 480; ++y) {
    for (int x = 2; x < 640; ++x) different += fine.pixel(x + 1, y + 1) != twice.pixel(x, y) ? 1 : 0;
  }
  QCOMPARE(different, 0);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::PictureBoxTest)
#include "PictureBox_test.moc"
