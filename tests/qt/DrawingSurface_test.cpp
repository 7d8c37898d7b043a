#include "platform/qt/DrawingSurface.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "qt/Pixels.h"

namespace tarnwick {
namespace {

constexpr Colour Ground = Rgb(20, 30, 40);

SurfacePoint PointOf(const QSignalSpy& spy, int call = -1) {
  return spy.at(call < 0 ? spy.size() - 1 : call).at(0).value<SurfacePoint>();
}

}  // namespace

class DrawingSurfaceTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void drawsOnceForManyRedraws();
  void drawsInItsOwnSize();
  void drawsNothingAnewForARectangle();
  void measuresInInchesOf96Pixels();
  void reportsARectangle_data();
  void reportsARectangle();
  void givesARectangleUpOnEscape();
  void keepsToTheButtonThatBegan();
  void reportsADrag();
  void reportsTheWheel();
  void asksForMovesByKeys_data();
  void asksForMovesByKeys();

 private:
  std::unique_ptr<DrawingSurface> surface_;
  int drawn_ = 0;
  PixelSize drawnSize_;
};

void DrawingSurfaceTest::init() {
  surface_ = std::make_unique<DrawingSurface>();
  surface_->resize(480, 288);
  surface_->SetRectangleColour(Qt::red);
  surface_->SetDrawing([this](Canvas& canvas) {
    ++drawn_;
    drawnSize_ = canvas.Size();
    canvas.Clear(Ground);
  });
  surface_->show();
  QVERIFY(QTest::qWaitForWindowExposed(surface_.get()));
  QTRY_VERIFY(drawn_ > 0);
  drawn_ = 0;
}

void DrawingSurfaceTest::drawsOnceForManyRedraws() {
  for (int i = 0; i < 5; ++i) surface_->Redraw();
  QTRY_COMPARE(drawn_, 1);
  QTest::qWait(20);
  QCOMPARE(drawn_, 1);
}

void DrawingSurfaceTest::drawsInItsOwnSize() {
  surface_->resize(300, 200);
  const QImage picture = surface_->grab().toImage();
  QCOMPARE(drawnSize_.Width, 300.0);
  QCOMPARE(drawnSize_.Height, 200.0);
  QCOMPARE(test::CountOf(picture, Ground), 300 * 200);
}

void DrawingSurfaceTest::drawsNothingAnewForARectangle() {
  QTest::mousePress(surface_.get(), Qt::LeftButton, {}, {50, 50});
  QTest::mouseMove(surface_.get(), {150, 120});
  const QImage picture = surface_->grab().toImage();
  QCOMPARE(drawn_, 0);
  int dots = 0;
  for (int x = 50; x <= 150; ++x) dots += picture.pixelColor(x, 50) == Qt::red ? 1 : 0;
  QVERIFY2(dots > 30 && dots < 80, qPrintable(QString::number(dots)));
  QVERIFY(test::NearestTo(picture, {100, 120}, Rgb(255, 0, 0), 2) == 0);
  QVERIFY(test::NearestTo(picture, {150, 80}, Rgb(255, 0, 0), 2) == 0);
  QTest::mouseRelease(surface_.get(), Qt::LeftButton, {}, {150, 120});
  QCOMPARE(test::CountOf(surface_->grab().toImage(), Ground), 480 * 288);
}

void DrawingSurfaceTest::measuresInInchesOf96Pixels() {
  QCOMPARE(surface_->SizeInInches().Width, 5.0);
  QCOMPARE(surface_->SizeInInches().Height, 3.0);
}

void DrawingSurfaceTest::reportsARectangle_data() {
  QTest::addColumn<Qt::MouseButton>("button");
  QTest::newRow("left") << Qt::LeftButton;
  QTest::newRow("right") << Qt::RightButton;
}

void DrawingSurfaceTest::reportsARectangle() {
  QFETCH(Qt::MouseButton, button);
  const QSignalSpy begun(surface_.get(), &DrawingSurface::RectangleBegun);
  const QSignalSpy dragged(surface_.get(), &DrawingSurface::RectangleDragged);
  const QSignalSpy ended(surface_.get(), &DrawingSurface::RectangleEnded);
  QTest::mousePress(surface_.get(), button, {}, {96, 48});
  QTest::mouseMove(surface_.get(), {144, 96});
  QTest::mouseRelease(surface_.get(), button, {}, {192, 144});
  QCOMPARE(PointOf(begun).X, 1.0);
  QCOMPARE(PointOf(begun).Y, 0.5);
  QVERIFY(!dragged.isEmpty());
  QCOMPARE(ended.size(), 1);
  QCOMPARE(PointOf(ended).X, 2.0);
  QCOMPARE(PointOf(ended).Y, 1.5);
}

void DrawingSurfaceTest::givesARectangleUpOnEscape() {
  const QSignalSpy ended(surface_.get(), &DrawingSurface::RectangleEnded);
  QTest::mousePress(surface_.get(), Qt::LeftButton, {}, {96, 48});
  QTest::mouseMove(surface_.get(), {144, 96});
  QTest::keyClick(surface_.get(), Qt::Key_Escape);
  QCOMPARE(test::CountOf(surface_->grab().toImage(), Ground), 480 * 288);
  QTest::mouseRelease(surface_.get(), Qt::LeftButton, {}, {192, 144});
  QVERIFY(ended.isEmpty());
}

void DrawingSurfaceTest::keepsToTheButtonThatBegan() {
  const QSignalSpy begun(surface_.get(), &DrawingSurface::RectangleBegun);
  const QSignalSpy ended(surface_.get(), &DrawingSurface::RectangleEnded);
  QTest::mousePress(surface_.get(), Qt::LeftButton, {}, {96, 48});
  QTest::mousePress(surface_.get(), Qt::RightButton, {}, {120, 60});
  QTest::mouseRelease(surface_.get(), Qt::RightButton, {}, {120, 60});
  QCOMPARE(begun.size(), 1);
  QVERIFY(ended.isEmpty());
  QTest::mouseRelease(surface_.get(), Qt::LeftButton, {}, {192, 144});
  QCOMPARE(ended.size(), 1);
}

void DrawingSurfaceTest::reportsADrag() {
  const QSignalSpy begun(surface_.get(), &DrawingSurface::DragBegun);
  const QSignalSpy dragged(surface_.get(), &DrawingSurface::DraggedTo);
  QTest::mousePress(surface_.get(), Qt::MiddleButton, {}, {96, 96});
  QCOMPARE(surface_->cursor().shape(), Qt::ClosedHandCursor);
  QTest::mouseMove(surface_.get(), {192, 96});
  QTest::mouseRelease(surface_.get(), Qt::MiddleButton, {}, {192, 96});
  QCOMPARE(surface_->cursor().shape(), Qt::CrossCursor);
  QCOMPARE(PointOf(begun).X, 1.0);
  QCOMPARE(PointOf(dragged).X, 2.0);
}

void DrawingSurfaceTest::reportsTheWheel() {
  const QSignalSpy turned(surface_.get(), &DrawingSurface::WheelTurned);
  for (const Qt::KeyboardModifiers keys :
       {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier)}) {
    QWheelEvent event({96, 48}, surface_->mapToGlobal(QPointF(96, 48)), {}, {0, -240}, {}, keys,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(surface_.get(), &event);
  }
  QCOMPARE(turned.size(), 2);
  QCOMPARE(PointOf(turned).X, 1.0);
  QCOMPARE(turned.at(0).at(1).toDouble(), -2.0);
}

void DrawingSurfaceTest::asksForMovesByKeys_data() {
  QTest::addColumn<Qt::Key>("key");
  QTest::addColumn<Qt::Orientation>("bar");
  QTest::addColumn<QAbstractSlider::SliderAction>("step");
  QTest::newRow("left") << Qt::Key_Left << Qt::Horizontal << QAbstractSlider::SliderSingleStepSub;
  QTest::newRow("right") << Qt::Key_Right << Qt::Horizontal << QAbstractSlider::SliderSingleStepAdd;
  QTest::newRow("up") << Qt::Key_Up << Qt::Vertical << QAbstractSlider::SliderSingleStepSub;
  QTest::newRow("down") << Qt::Key_Down << Qt::Vertical << QAbstractSlider::SliderSingleStepAdd;
  QTest::newRow("page up") << Qt::Key_PageUp << Qt::Horizontal << QAbstractSlider::SliderPageStepSub;
  QTest::newRow("page down") << Qt::Key_PageDown << Qt::Horizontal << QAbstractSlider::SliderPageStepAdd;
}

void DrawingSurfaceTest::asksForMovesByKeys() {
  QFETCH(Qt::Key, key);
  QFETCH(Qt::Orientation, bar);
  QFETCH(QAbstractSlider::SliderAction, step);
  const QSignalSpy asked(surface_.get(), &DrawingSurface::MoveAsked);
  QTest::keyClick(surface_.get(), key);
  QCOMPARE(asked.size(), 1);
  QCOMPARE(asked.at(0).at(0).value<Qt::Orientation>(), bar);
  QCOMPARE(asked.at(0).at(1).value<QAbstractSlider::SliderAction>(), step);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::DrawingSurfaceTest)
#include "DrawingSurface_test.moc"
