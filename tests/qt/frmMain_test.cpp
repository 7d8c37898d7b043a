#include "window/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QWheelEvent>
#include <filesystem>
#include <memory>
#include <optional>

#include "platform/qt/DrawingSurface.h"
#include "platform/qt/QtHosts.h"
#include "qt/Pixels.h"
#include "store/modSave.h"
#include "support/Designs.h"
#include "support/OpenPath.h"
#include "support/TemporaryFolder.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using test::HasStroke;
using test::PlainDesign;

const DisplaySettings Display;

}  // namespace

// The window is played upon like a user does. What it should show comes from an open design of the test's
// own, seen on a surface of the same size.
class frmMainTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { window_.reset(); }

  void startsWithABlankDesign();
  void opensTheNamedDesignOnce();
  void opensItWithoutBeingActivated();
  void putsARefusedFileIntoTheTrash();
  void keepsAMarkInAFileName();
  void fillsTheWorkArea();
  void cannotBeMadeSmallerThan800By600();

  void namesEveryControl();
  void hasTheCommandsOfTheMenu();
  void reachesACommandThroughTheMenuByKeys();
  void exitsByTheMenu();
  void tellsTimeAndDate();

  void followsEachViewCommand_data();
  void followsEachViewCommand();
  void zoomsIntoARectangle();
  void changesNothingOnAClick();
  void zoomsAboutThePointer();
  void dragsWithTheMiddleButton();
  void scrollsByTheBars();
  void scrollsByKeys();
  void remembersOneViewForOneScroll();

  void drawsTheBand();
  void drawsTheCentreLines();
  void drawsAnewAfterAResize();

 private:
  std::string Stored(const char* name, const BandSaw& saw) {
    return folder_->File(name, BandSawText(saw)).string();
  }
  void Open(const std::string& path = {});
  /// The same design in the same size, without a window.
  OpenDesign Expected(const std::string& path);
  void CompareView(const OpenDesign& expected);
  void Press(Qt::Key letter) { QTest::keyClick(window_.get(), letter, Qt::ControlModifier); }
  QImage Picture() { return PicEditor_->grab().toImage(); }

  std::unique_ptr<test::TemporaryFolder> folder_;
  std::string head_;  // path of a plain design
  std::unique_ptr<test::TestProgram> program_;
  std::unique_ptr<QtHosts> hosts_;
  std::unique_ptr<frmMain> window_;
  DrawingSurface* PicEditor_ = nullptr;
  QScrollBar* hscDisplay_ = nullptr;
  QScrollBar* vscDisplay_ = nullptr;
  QLineEdit* txtScale_ = nullptr;
};

void frmMainTest::init() {
  folder_ = std::make_unique<test::TemporaryFolder>();
  head_ = Stored("head.bsw", PlainDesign());
  program_ = std::make_unique<test::TestProgram>();
  hosts_ = std::make_unique<QtHosts>(program_->Process);
}

void frmMainTest::Open(const std::string& path) {
  program_->Start(path);
  window_ = std::make_unique<frmMain>(program_->Process, hosts_->All());
  PicEditor_ = window_->findChild<DrawingSurface*>("PicEditor");
  hscDisplay_ = window_->findChild<QScrollBar*>("hscDisplay");
  vscDisplay_ = window_->findChild<QScrollBar*>("vscDisplay");
  txtScale_ = window_->findChild<QLineEdit*>("txtScale");
  QVERIFY(PicEditor_ && hscDisplay_ && vscDisplay_ && txtScale_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  QTest::qWait(20);  // the design is opened when the window is there
}

OpenDesign frmMainTest::Expected(const std::string& path) {
  OpenDesign design;
  CollectedMessages ignored;
  design.View.SetSurface(PicEditor_->SizeInInches());
  design.ViewOneToOne();
  if (!path.empty()) test::OpenPath(design, path, ignored);
  return design;
}

void frmMainTest::CompareView(const OpenDesign& expected) {
  QCOMPARE(txtScale_->text(), QString::fromStdString(expected.View.ScaleText()));
  QCOMPARE(hscDisplay_->value(), expected.View.Horizontal());
  QCOMPARE(vscDisplay_->value(), expected.View.Vertical());
}

// ---- start

void frmMainTest::startsWithABlankDesign() {
  Open();
  QCOMPARE(window_->windowTitle(), QString("untitled.bsw - Tarnwick"));
  QCOMPARE(txtScale_->text(), QString("1.0"));
  CompareView(Expected({}));
  QVERIFY(program_->Say.Shown.empty());
  QCOMPARE(test::CountOf(Picture(), Display.SawLineColor), 0);
}

void frmMainTest::opensTheNamedDesignOnce() {
  Open(head_);
  QCOMPARE(window_->windowTitle(), QString("head.bsw - Tarnwick"));
  CompareView(Expected(head_));
  Press(Qt::Key_A);
  const QString scale = txtScale_->text();
  std::filesystem::remove(head_);
  QEvent again(QEvent::WindowActivate);
  QApplication::sendEvent(window_.get(), &again);
  QTest::qWait(20);
  QCOMPARE(txtScale_->text(), scale);
  QVERIFY(program_->Say.Shown.empty());
}

void frmMainTest::opensItWithoutBeingActivated() {
  program_->Start(head_);
  window_ = std::make_unique<frmMain>(program_->Process, hosts_->All());
  window_->setAttribute(Qt::WA_ShowWithoutActivating);
  window_->show();
  QTRY_COMPARE(window_->windowTitle(), QString("head.bsw - Tarnwick"));
}

void frmMainTest::putsARefusedFileIntoTheTrash() {
  const std::string path = folder_->File("list.bsw", "Shopping list").string();
  Open(path);
  QVERIFY((program_->Say.Texts() == std::vector<std::string>{"Not a valid Band Saw File     "}));
  QCOMPARE(window_->windowTitle(), QString("untitled.bsw - Tarnwick"));
  CompareView(Expected({}));
  QCOMPARE(program_->Bin.Removed, std::vector<std::string>{path});
  QVERIFY(program_->Process.Design.Settings.Recent.empty());
}

void frmMainTest::keepsAMarkInAFileName() {
  Open(Stored("head[*] & tail.bsw", PlainDesign()));
  QCOMPARE(window_->windowTitle(), QString("head[*][*] & tail.bsw - Tarnwick"));
  QCOMPARE(window_->windowHandle()->title(), QString("head[*] & tail.bsw - Tarnwick"));
}

void frmMainTest::fillsTheWorkArea() {
  Open();
  QCOMPARE(window_->frameGeometry(), window_->screen()->availableGeometry());
  QVERIFY(!window_->isMaximized());
}

void frmMainTest::cannotBeMadeSmallerThan800By600() {
  Open();
  window_->resize(100, 100);
  QCOMPARE(window_->frameSize(), QSize(800, 600));
  window_->resize(5000, 5000);
  QCOMPARE(window_->frameSize(), window_->screen()->availableSize());
}

// ---- controls

void frmMainTest::namesEveryControl() {
  Open();
  QSet<QString> names, spoken;
  for (const char* name : {"PicEditor", "hscDisplay", "vscDisplay", "txtScale", "panTimeDate"}) {
    const auto* control = window_->findChild<QWidget*>(name);
    QVERIFY2(control, name);
    QVERIFY2(!control->accessibleName().isEmpty(), name);
    names.insert(name);
    spoken.insert(control->accessibleName());
  }
  QCOMPARE(spoken.size(), names.size());
  QCOMPARE(PicEditor_->cursor().shape(), Qt::CrossCursor);
  QVERIFY(PicEditor_->hasFocus());
}

void frmMainTest::hasTheCommandsOfTheMenu() {
  Open();
  struct Item {
    const char* Name;
    const char* Caption;
    const char* Key;
  };
  for (const Item& item : {Item{"mnuItemExit", "E&xit", ""}, Item{"mnuItemAll", "View All", "Ctrl+A"},
                           Item{"mnuItemFullScale", "View Full Scale 1/1", "Ctrl+F"},
                           Item{"mnuItemVarSegment", "View Variable Segment", "Ctrl+S"},
                           Item{"mnuItemLast", "Last View", "Ctrl+L"}, Item{"mnuItemIn", "Zoom In", "Ctrl+I"},
                           Item{"mnuItemOut", "Zoom Out", "Ctrl+O"}}) {
    const auto* action = window_->findChild<QAction*>(item.Name);
    QVERIFY2(action, item.Name);
    QCOMPARE(action->text(), QString(item.Caption));
    QCOMPARE(action->shortcut().toString(QKeySequence::PortableText), QString(item.Key));
  }
  QCOMPARE(window_->findChild<QMenu*>("mnuFile")->title(), QString("&File"));
  QCOMPARE(window_->findChild<QMenu*>("mnuView")->title(), QString("&View"));
}

void frmMainTest::reachesACommandThroughTheMenuByKeys() {
  Open(head_);
  QTest::keyClick(window_.get(), Qt::Key_V, Qt::AltModifier);
  QTRY_VERIFY(QApplication::activePopupWidget());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  OpenDesign expected = Expected(head_);
  QVERIFY(expected.ViewAll());
  CompareView(expected);
}

void frmMainTest::exitsByTheMenu() {
  Open();
  QTest::keyClick(window_.get(), Qt::Key_F, Qt::AltModifier);
  QTRY_VERIFY(QApplication::activePopupWidget());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_X);
  QTRY_VERIFY(!window_->isVisible());
}

void frmMainTest::tellsTimeAndDate() {
  Open();
  const auto* panel = window_->findChild<QLineEdit*>("panTimeDate");
  QCOMPARE(panel->text(), QString("3:05 pm  Nov 21, 2026"));
  program_->Time.Time.Minute = 6;
  QTRY_COMPARE_WITH_TIMEOUT(panel->text(), QString("3:06 pm  Nov 21, 2026"), 3000);
}

// ---- view

void frmMainTest::followsEachViewCommand_data() {
  QTest::addColumn<QString>("keys");
  QTest::newRow("view all") << "A";
  QTest::newRow("full scale") << "AF";
  QTest::newRow("zoom in") << "I";
  QTest::newRow("zoom out") << "OO";
  QTest::newRow("in from everything, to the limit") << "A" + QString(40, 'I');
  QTest::newRow("out as far as it goes") << QString(40, 'O');
  QTest::newRow("last view") << "AIL";
  QTest::newRow("last view twice") << "AILL";
  QTest::newRow("no segment to view") << "AS";
}

void frmMainTest::followsEachViewCommand() {
  QFETCH(QString, keys);
  Open(head_);
  OpenDesign expected = Expected(head_);
  for (const QChar key : keys) {
    Press(Qt::Key(key.unicode()));
    switch (key.unicode()) {
      case 'A':
        expected.ViewAll();
        break;
      case 'F':
        expected.ViewOneToOne();
        break;
      case 'S':
        expected.ViewSegment();
        break;
      case 'L':
        expected.View.ShowLastView();
        break;
      case 'I':
        expected.View.ZoomIn();
        break;
      case 'O':
        expected.View.ZoomOut();
        break;
    }
  }
  CompareView(expected);
}

void frmMainTest::zoomsIntoARectangle() {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    Open(head_);
    const QPoint from(600, 200), to(696, 272);
    const Mapping before = Expected(head_).View.CurrentMapping();
    QTest::mousePress(PicEditor_, button, {}, from);
    QTest::mouseMove(PicEditor_, to);
    QTest::mouseRelease(PicEditor_, button, {}, to);

    OpenDesign expected = Expected(head_);
    expected.View.BeginRectangle({600 / 96., 200 / 96.});
    QCOMPARE(expected.View.EndRectangle({696 / 96., 272 / 96.}), Viewport::Gesture::Zoomed);
    CompareView(expected);

    // What was in the middle of the rectangle is in the middle of the surface now.
    const QPointF middle = QRectF(from, to).center();
    const Spot now =
        expected.View.CurrentMapping().ToSurface((middle.x() - before.OriginX) / before.PixelsPerUnit,
                                                 (before.OriginY - middle.y()) / before.PixelsPerUnit);
    QVERIFY(std::abs(now.X - PicEditor_->width() / 2.) < 2);
    QVERIFY(std::abs(now.Y - PicEditor_->height() / 2.) < 2);
  }
}

void frmMainTest::changesNothingOnAClick() {
  Open(head_);
  const QImage before = Picture();
  QTest::mouseClick(PicEditor_, Qt::LeftButton, {}, {300, 200});
  QTest::mousePress(PicEditor_, Qt::LeftButton, {}, {300, 200});
  QTest::mouseRelease(PicEditor_, Qt::LeftButton, {}, {304, 196});
  CompareView(Expected(head_));
  QCOMPARE(Picture(), before);
}

void frmMainTest::zoomsAboutThePointer() {
  Open(head_);
  const QPointF place(700, 300);
  QWheelEvent event(place, PicEditor_->mapToGlobal(place), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(PicEditor_, &event);
  OpenDesign expected = Expected(head_);
  QVERIFY(expected.View.ZoomAbout({700 / 96., 300 / 96.}, 1.25));
  CompareView(expected);
}

void frmMainTest::dragsWithTheMiddleButton() {
  Open(head_);
  const OpenDesign before = Expected(head_);
  QTest::mousePress(PicEditor_, Qt::MiddleButton, {}, {400, 300});
  for (int x = 400; x >= 208; x -= 16) QTest::mouseMove(PicEditor_, {x, 348});
  QTest::mouseRelease(PicEditor_, Qt::MiddleButton, {}, {208, 348});
  QCOMPARE(hscDisplay_->value(), before.View.Horizontal() + 100);  // two inches to the left
  QCOMPARE(vscDisplay_->value(), before.View.Vertical() - 25);     // half an inch down
  QTest::mouseMove(PicEditor_, {500, 500});
  QCOMPARE(hscDisplay_->value(), before.View.Horizontal() + 100);
}

void frmMainTest::scrollsByTheBars() {
  Open(head_);
  OpenDesign expected = Expected(head_);
  const QImage before = Picture();
  QTest::mouseClick(hscDisplay_, Qt::LeftButton, {}, {hscDisplay_->width() - 40, hscDisplay_->height() / 2});
  expected.View.Scroll(expected.View.Horizontal() + expected.View.PageStepAcross(), expected.View.Vertical());
  CompareView(expected);
  QVERIFY(Picture() != before);
  QTest::mouseClick(vscDisplay_, Qt::LeftButton, {}, {vscDisplay_->width() / 2, 40});
  expected.View.Scroll(expected.View.Horizontal(), expected.View.Vertical() - expected.View.PageStepDown());
  CompareView(expected);
}

void frmMainTest::scrollsByKeys() {
  Open(head_);
  OpenDesign expected = Expected(head_);
  QTest::keyClick(PicEditor_, Qt::Key_Right);
  QTest::keyClick(PicEditor_, Qt::Key_Right);
  QTest::keyClick(PicEditor_, Qt::Key_Up);
  expected.View.Scroll(expected.View.Horizontal() + 50, expected.View.Vertical() - 25);
  CompareView(expected);
}

void frmMainTest::remembersOneViewForOneScroll() {
  Open(head_);
  const OpenDesign expected = Expected(head_);
  QTest::keyClick(PicEditor_, Qt::Key_Right);
  Press(Qt::Key_L);
  CompareView(expected);
}

// ---- picture

void frmMainTest::drawsTheBand() {
  Open(head_);
  for (const char* keys : {"F", "A", "I"}) {
    Press(Qt::Key(keys[0]));
    const QImage picture = Picture();
    OpenDesign expected = Expected(head_);
    if (keys[0] != 'F') expected.ViewAll();
    if (keys[0] == 'I') expected.View.ZoomIn();
    const Mapping mapping = expected.View.CurrentMapping();
    int seen = 0;
    for (const Entity& entity : expected.Lines.Entities) {
      const auto* line = std::get_if<LineEntity>(&entity);
      if (!line || line->IsOutline) continue;
      const Spot middle =
          mapping.ToSurface((line->Corner1X + line->Corner4X) / 2, (line->Corner1Y + line->Corner4Y) / 2);
      if (!QRectF(picture.rect()).contains(middle.X, middle.Y)) continue;
      ++seen;
      QVERIFY(HasStroke(picture, {middle.X, middle.Y}, Display.SawLineColor));
    }
    QVERIFY2(seen > 5, keys);
    QCOMPARE(picture.pixelColor(picture.width() - 3, 3), ToQt(Display.BackGroundColor));
  }
}

void frmMainTest::drawsTheCentreLines() {
  Open();
  const QImage picture = Picture();
  const Mapping mapping = Expected({}).View.CurrentMapping();
  int across = 0, down = 0;
  for (int x = 0; x < picture.width(); ++x) {
    across += HasStroke(picture, {x + 0.5, mapping.OriginY}, Display.CenterLineColor) ? 1 : 0;
  }
  for (int y = 0; y < picture.height(); ++y) {
    down += HasStroke(picture, {mapping.OriginX, y + 0.5}, Display.CenterLineColor) ? 1 : 0;
  }
  QVERIFY(across > picture.width() / 2 && across < picture.width());
  QVERIFY(down > picture.height() / 2 && down < picture.height());
  QCOMPARE(test::NearestTo(picture, {mapping.OriginX + 40, mapping.OriginY + 40}, Display.BackGroundColor),
           0);
}

void frmMainTest::drawsAnewAfterAResize() {
  Open(head_);
  Press(Qt::Key_A);
  window_->resize(900, 700);
  const QImage picture = Picture();
  QCOMPARE(picture.size(), PicEditor_->size());
  // The middle of the band is still in the middle.
  const int y = picture.height() / 2;
  bool band = false;
  for (int dy = -20; dy <= 20; ++dy)
    band |= HasStroke(picture, {picture.width() / 2., y + double(dy)}, Display.SawLineColor);
  QVERIFY(band);
  QCOMPARE(hscDisplay_->pageStep(), static_cast<int>(std::nearbyint(45 * PicEditor_->SizeInInches().Width)));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmMainTest)
#include "frmMain_test.moc"
