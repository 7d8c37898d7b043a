#include "shell/frmAnime.h"

#include <QApplication>
#include <QImageReader>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <functional>
#include <memory>
#include <vector>

namespace tarnwick {
namespace {

/// Waiting takes no time, but the user may do something in it.
class ScriptedClock final : public Clock {
 public:
  LocalTime Now() override { return {}; }
  void Wait(std::chrono::milliseconds time) override {
    Waited.push_back(time);
    if (During) During(static_cast<int>(Waited.size()));
  }

  std::vector<std::chrono::milliseconds> Waited;
  std::function<void(int wait)> During;  // from 1
};

class Place final : public QWidget {
 public:
  int Painted = 0;

 protected:
  void paintEvent(QPaintEvent*) override {
    ++Painted;
    QPainter(this).fillRect(rect(), Qt::black);
  }
};

/// A desktop that is to stand still.
class StillStyle final : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
  }
};

/// All pictures as the drawing has them, each of `width` pixels.
std::vector<QImage> Drawn(int width, int height) {
  QImageReader reader(":/drawings/Animation.svg");
  reader.setScaledSize(QSize(6 * width, 5 * height));
  const QImage sheet = reader.read().convertToFormat(QImage::Format_RGB32);
  std::vector<QImage> frames;
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 6; ++x) frames.push_back(sheet.copy(x * width, y * height, width, height));
  }
  return frames;
}

}  // namespace

class frmAnimeTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void playsThirtyFramesOfFortyMilliseconds();
  void showsTheFramesInTheirOrder();
  void isSharpOnAFineScreen();
  void standsInTheMiddleOfItsPlace();
  void keepsItsPlaceFromRepainting();
  void goesWithItsPlace();
  void endsAtOnce_data();
  void endsAtOnce();
  void goesOnWhileAKeyIsHeld();
  void excludesOtherInput();
  void endsByAKeyThatIsAShortcut();
  void leavesInputAloneAfterwards();
  void asksAgainForAWindowsClosing_data();
  void asksAgainForAWindowsClosing();
  void playsOnceAtATime();
  void playsAgain();
  void doesNotBeginOnAStillDesktop();
  void doesNotBeginUnseen();
  void isNamed();

 private:
  void Key(Qt::Key key) { QTest::keyClick(window_->windowHandle(), key); }

  ScriptedClock clock_;
  std::unique_ptr<QMainWindow> window_;
  Place* place_ = nullptr;
  std::unique_ptr<frmAnime> anime_;
};

void frmAnimeTest::init() {
  clock_ = {};
  window_ = std::make_unique<QMainWindow>();
  auto* middle = new QWidget;
  place_ = new Place;
  place_->setParent(middle);
  place_->setGeometry(40, 30, 401, 301);
  window_->setCentralWidget(middle);
  window_->resize(500, 400);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  anime_ = std::make_unique<frmAnime>(*place_, clock_);
}

void frmAnimeTest::cleanup() {
  anime_.reset();
  window_.reset();
}

void frmAnimeTest::playsThirtyFramesOfFortyMilliseconds() {
  int seen = 0;
  clock_.During = [&](int) { seen += anime_->isVisible() ? 1 : 0; };
  QVERIFY(!anime_->isVisible());
  anime_->Play();
  QCOMPARE(clock_.Waited, std::vector<std::chrono::milliseconds>(30, std::chrono::milliseconds(40)));
  QCOMPARE(seen, 30);
  QVERIFY(anime_->isVisible());  // until the file is read
  anime_->Hide();
  QVERIFY(!anime_->isVisible());
}

void frmAnimeTest::showsTheFramesInTheirOrder() {
  const std::vector<QImage> drawn = Drawn(127, 69);
  std::vector<QImage> shown;
  clock_.During = [&](int) {
    shown.push_back(anime_->grab().toImage().convertToFormat(QImage::Format_RGB32));
  };
  anime_->Play();
  QCOMPARE(shown.size(), drawn.size());
  for (std::size_t frame = 0; frame < drawn.size(); ++frame) {
    QVERIFY2(shown[frame] == drawn[frame], qPrintable(QString::number(frame)));
    QVERIFY(frame == 0 || shown[frame] != shown[frame - 1]);
  }
}

void frmAnimeTest::isSharpOnAFineScreen() {
  const std::vector<QImage> drawn = Drawn(254, 138);
  clock_.During = [&](int wait) {
    if (wait != 9) return;
    QImage fine(254, 138, QImage::Format_RGB32);
    fine.setDevicePixelRatio(2);
    anime_->render(&fine);
    fine.setDevicePixelRatio(1);
    QCOMPARE(fine, drawn[8]);
  };
  anime_->Play();
  QCOMPARE(clock_.Waited.size(), std::size_t{30});
}

void frmAnimeTest::standsInTheMiddleOfItsPlace() {
  anime_->Play();
  QCOMPARE(anime_->size(), QSize(127, 69));
  const QPoint corner = anime_->mapToGlobal(QPoint()) - place_->mapToGlobal(QPoint());
  QCOMPARE(corner, QPoint((401 - 127) / 2, (301 - 69) / 2));
}

void frmAnimeTest::keepsItsPlaceFromRepainting() {
  clock_.During = [&](int wait) {
    if (wait == 1) place_->Painted = 0;
    place_->repaint();
  };
  anime_->Play();
  QCOMPARE(place_->Painted, 0);
  anime_->Hide();
  QTRY_VERIFY(place_->Painted > 0);
}

// A window that has just come up may get its size from the desktop while the first file is read.
void frmAnimeTest::goesWithItsPlace() {
  int before = 0, painted = 0;
  QPoint off;
  place_->Painted = 0;
  place_->resize(351, 251);  // and nothing is painted before there is time for it
  QCOMPARE(place_->Painted, 0);
  clock_.During = [&](int wait) {
    if (wait == 1) QVERIFY(place_->Painted > 0);
    if (wait == 3) {
      before = place_->Painted;
      place_->resize(301, 201);
    }
    QApplication::processEvents();
    if (wait != 5) return;
    painted = place_->Painted - before;
    off = anime_->mapTo(window_.get(), anime_->rect().center()) -
          place_->mapTo(window_.get(), place_->rect().center());
  };
  anime_->Play();
  QVERIFY(painted > 0);
  QCOMPARE(off, QPoint());
}

void frmAnimeTest::endsAtOnce_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("key") << 0;
  QTest::newRow("Escape") << 1;
  QTest::newRow("click on it") << 2;
  QTest::newRow("click beside it") << 3;
  QTest::newRow("other button") << 4;
}

void frmAnimeTest::endsAtOnce() {
  QFETCH(int, way);
  clock_.During = [&](int wait) {
    if (wait != 4) return;
    const QPoint middle = anime_->mapTo(window_.get(), anime_->rect().center());
    if (way == 0) Key(Qt::Key_A);
    if (way == 1) Key(Qt::Key_Escape);
    if (way == 2) QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {}, middle);
    if (way == 3) QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
    if (way == 4) QTest::mouseClick(window_->windowHandle(), Qt::RightButton, {}, middle);
  };
  anime_->Play();
  QCOMPARE(clock_.Waited.size(), std::size_t{4});
  QVERIFY(window_->isVisible());
}

void frmAnimeTest::goesOnWhileAKeyIsHeld() {
  clock_.During = [&](int) {
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true),
        up(QEvent::KeyRelease, Qt::Key_Return, {});
    QApplication::sendEvent(window_.get(), &held);
    QApplication::sendEvent(window_.get(), &up);
  };
  anime_->Play();
  QCOMPARE(clock_.Waited.size(), std::size_t{30});
}

void frmAnimeTest::excludesOtherInput() {
  auto* button = new QPushButton("&Button", window_.get());
  button->setGeometry(0, 0, 80, 30);
  button->show();
  button->setFocus();
  int pressed = 0;
  connect(button, &QPushButton::clicked, this, [&pressed] { ++pressed; });
  clock_.During = [&](int wait) {
    if (wait != 2) return;
    QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {}, QPoint(20, 15));
    QTest::mouseDClick(window_->windowHandle(), Qt::LeftButton, {}, QPoint(20, 15));
    Key(Qt::Key_Space);
    QTest::keyClick(window_->windowHandle(), Qt::Key_B, Qt::AltModifier);
  };
  anime_->Play();
  QTest::qWait(150);  // as long as a button stays down that was pressed by its letter
  QCOMPARE(pressed, 0);
}

void frmAnimeTest::endsByAKeyThatIsAShortcut() {
  int done = 0;
  connect(new QShortcut(QKeySequence("Ctrl+O"), window_.get()), &QShortcut::activated, this,
          [&done] { ++done; });
  clock_.During = [&](int wait) {
    if (wait == 5) QTest::keyClick(window_->windowHandle(), Qt::Key_O, Qt::ControlModifier);
  };
  anime_->Play();
  QCOMPARE(done, 0);
  QVERIFY(clock_.Waited.size() <= 5);
  QTest::keyClick(window_->windowHandle(), Qt::Key_O, Qt::ControlModifier);
  QCOMPARE(done, 1);
}

void frmAnimeTest::leavesInputAloneAfterwards() {
  anime_->Play();
  auto* button = new QPushButton("Button", window_.get());
  button->setGeometry(0, 0, 80, 30);
  button->show();
  int pressed = 0;
  connect(button, &QPushButton::clicked, this, [&pressed] { ++pressed; });
  QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {}, QPoint(20, 15));
  QCOMPARE(pressed, 1);
}

void frmAnimeTest::asksAgainForAWindowsClosing_data() {
  QTest::addColumn<bool>("byDesktop");
  QTest::newRow("by the window") << false;
  QTest::newRow("by the desktop") << true;
}

void frmAnimeTest::asksAgainForAWindowsClosing() {
  QFETCH(bool, byDesktop);
  clock_.During = [&](int wait) {
    if (wait != 3) return;
    QVERIFY(!(byDesktop ? window_->windowHandle()->close() : window_->close()));
  };
  anime_->Play();
  QCOMPARE(clock_.Waited.size(), std::size_t{3});
  QCoreApplication::processEvents();
  QVERIFY(window_->isVisible());  // the file is not read yet
  anime_->Hide();
  QVERIFY(window_->isVisible());
  QTRY_VERIFY(!window_->isVisible());
}

void frmAnimeTest::playsOnceAtATime() {
  clock_.During = [&](int wait) {
    if (wait < 100) anime_->Play();
  };
  anime_->Play();
  QCOMPARE(clock_.Waited.size(), std::size_t{30});
}

void frmAnimeTest::playsAgain() {
  clock_.During = [&](int wait) {
    if (wait == 1) Key(Qt::Key_A);
  };
  anime_->Play();
  anime_->Hide();
  anime_->Hide();
  anime_->Play();
  QCOMPARE(clock_.Waited.size(), std::size_t{31});
  QVERIFY(anime_->isVisible());
}

void frmAnimeTest::doesNotBeginOnAStillDesktop() {
  const QString before = QApplication::style()->name();
  QApplication::setStyle(new StillStyle);
  anime_->Play();
  QVERIFY(!anime_->isVisible());
  QVERIFY(clock_.Waited.empty());
  QVERIFY(place_->updatesEnabled());
  anime_->Hide();
  QApplication::setStyle(before);
}

void frmAnimeTest::doesNotBeginUnseen() {
  window_->hide();
  anime_->Play();
  QVERIFY(clock_.Waited.empty());
}

void frmAnimeTest::isNamed() {
  QCOMPARE(anime_->objectName(), QString("frmAnime"));
  QVERIFY(!anime_->accessibleName().isEmpty());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmAnimeTest)
#include "frmAnime_test.moc"
