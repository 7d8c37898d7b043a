#include "window/fraMain.h"

#include <QAccessible>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/RowList.h"
#include "qt/Controls.h"
#include "support/FullDesign.h"

namespace tarnwick {
namespace {

using test::FullDesign;
using test::Named;

constexpr int Height = 300;  // of the panel: too low for all the rows

}  // namespace

class fraMainTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void namesItsControls();
  void showsTheRowsOfADesign();
  void showsNoRowsForABlankDesign();
  void isBlackOnWhite();
  void setsHeadingsApart();
  void scrollsByTheFormula();
  void runsFromZeroDownward();
  void scrollsToTheLastRow();
  void scrollsByTheWheel();
  void goesBackToTheTopWhenMadeAnew();
  void makesTheRowsAsWideAsTheFrame();

  void liftsOutTheRowUnderTheMouse();
  void paintsTheRowInInverse();
  void liftsOutNothingWhileAButtonIsDown();
  void liftsOutNothingAfterTheRowsAreMadeAnew();
  void pointsAHandWhereARowOpens();
  void passesOverBlankRows();

  void tellsAPressOnceTheButtonIsUp();
  void tellsTheRowThatWasPressed();
  void tellsTheRightRowWhenScrolled();
  void tellsNothingOfOtherButtonsAndPlaces();

  void walksByKeys();
  void pagesByKeys();
  void pressesByKeys();
  void bringsTheRowOfTheKeysIntoSight();
  void goesOnFromTheSameRowAfterADialog();
  void showsARowWhenReachedByTab();
  void keepsQuietWithoutRows();

  void readsItsRowsAloud();
  void pressesARowForPeopleWhoListen();

  void leavesTheWayBackWithoutQuickClick();
  void fitsTheLettersIntoTheRows();
  void movesTheValuesWithTheWidth();

 private:
  [[nodiscard]] QPoint PlaceOf(RowCode code) const;
  [[nodiscard]] QPoint PlaceOfRow(int place) const;
  void MoveTo(QPoint place) { QTest::mouseMove(rows_, place); }
  [[nodiscard]] std::string Lifted() const {
    return rows_->Highlighted() ? rows_->Highlighted()->Caption : "";
  }
  void Key(Qt::Key key) { QTest::keyClick(rows_, key); }

  std::unique_ptr<fraMain> panel_;
  RowList* rows_ = nullptr;
  QScrollBar* bar_ = nullptr;
  QWidget* slide_ = nullptr;
  std::vector<std::string> pressed_;
  std::vector<std::string> hovered_;
};

void fraMainTest::init() {
  pressed_.clear();
  hovered_.clear();
  panel_ = std::make_unique<fraMain>();
  rows_ = Named<RowList>(*panel_, "picSawData");
  bar_ = Named<QScrollBar>(*panel_, "vscSawInfo");
  slide_ = Named<QWidget>(*panel_, "PicSlide");
  connect(panel_.get(), &fraMain::RowPressed, this,
          [this](const InfoRow& row) { pressed_.push_back(row.Caption); });
  connect(panel_.get(), &fraMain::RowHovered, this,
          [this](const InfoRow* row) { hovered_.push_back(row ? row->Caption : ""); });
  panel_->resize(panel_->width(), Height);
  panel_->show();
  QVERIFY(QTest::qWaitForWindowActive(panel_.get()));
  panel_->ShowSawInfo(FullDesign(), {});
  QTest::mouseMove(panel_.get(), QPoint(1, 1));
  QTest::qWait(10);
  hovered_.clear();
}

void fraMainTest::cleanup() { panel_.reset(); }

QPoint fraMainTest::PlaceOfRow(int place) const { return {40, static_cast<int>((place + 0.5) * 250 / 15)}; }

QPoint fraMainTest::PlaceOf(RowCode code) const {
  for (const InfoRow& row : panel_->Rows()) {
    if (row.Code == code) return PlaceOfRow(row.Row - 1);
  }
  qFatal("there is no such row");
}

// ---- rows

void fraMainTest::namesItsControls() {
  QCOMPARE(test::BadlySpoken(*panel_, {"picSawData", "vscSawInfo", "cmdQuickClick"}), QStringList());
  QCOMPARE(slide_->parentWidget()->objectName(), QString("picSawInfo"));
  QCOMPARE(rows_->parentWidget(), slide_);
}

void fraMainTest::showsTheRowsOfADesign() {
  QVERIFY(panel_->Rows().size() > 40);
  QCOMPARE(panel_->Rows()[0].Caption, std::string("Band Saw Teeth:"));
  QCOMPARE(panel_->Rows()[2].Value, std::string(" 20.000 ft"));
  panel_->ShowSawInfo(FullDesign(), {.ImpMetric = Metric});
  QCOMPARE(panel_->Rows()[3].Value, std::string(" 12.700 cm"));
}

void fraMainTest::showsNoRowsForABlankDesign() {
  panel_->ShowSawInfo({}, {});
  QVERIFY(panel_->Rows().empty());
  QCOMPARE(bar_->minimum(), 0);
  QVERIFY(rows_->height() >= slide_->height());  // its whole frame takes the focus
}

void fraMainTest::isBlackOnWhite() {
  const QImage picture = slide_->grab().toImage();
  QCOMPARE(picture.pixelColor(picture.width() - 2, 5), QColor(Qt::white));
  QCOMPARE(picture.pixelColor(2, 0), QColor(Qt::white));
  int darkest = 255;
  for (int x = 0; x < picture.width() / 2; ++x)
    for (int y = 0; y < 30; ++y) darkest = std::min(darkest, picture.pixelColor(x, y).lightness());
  QVERIFY(darkest < 40);
}

void fraMainTest::setsHeadingsApart() {
  const auto ink = [this](const char* caption, bool header) {
    panel_->ShowSawInfo({}, {});
    rows_->ShowRows({{.Row = 1,
                      .Code = RowCode::Header,
                      .Caption = caption,
                      .Value = {},
                      .Header = header,
                      .Box = {0, 0, 200, RowHeight}}},
                    0);
    const QImage picture = rows_->grab(QRect(0, 0, 200, 16)).toImage();
    int dark = 0;
    for (int x = 0; x < picture.width(); ++x)
      for (int y = 0; y < picture.height(); ++y) dark += 255 - picture.pixelColor(x, y).lightness();
    return dark;
  };
  QVERIFY(ink("Length", true) > 1.15 * ink("Length", false));
}

void fraMainTest::scrollsByTheFormula() {
  QCOMPARE(rows_->y(), 1);  // 12 units of 15 to the pixel
  for (const int value : {-1, -2, -3, -7, -20}) {
    bar_->setValue(value);
    QCOMPARE(rows_->y(), static_cast<int>(std::lround((value * 250.0 + 12) / 15)));
  }
}

void fraMainTest::runsFromZeroDownward() {
  QCOMPARE(bar_->value(), 0);
  QCOMPARE(bar_->maximum(), 0);
  QVERIFY(bar_->minimum() < -10);
  QVERIFY(bar_->invertedAppearance());
  bar_->triggerAction(QAbstractSlider::SliderPageStepAdd);
  QVERIFY(bar_->value() < 0);
  // A press below the thumb moves down, above it up.
  bar_->setValue(0);
  QTest::mouseClick(bar_, Qt::LeftButton, {}, QPoint(bar_->width() / 2, bar_->height() - 40));
  QVERIFY(bar_->value() < 0);
  const int down = bar_->value();
  QTest::mouseClick(bar_, Qt::LeftButton, {}, QPoint(bar_->width() / 2, 20));
  QVERIFY(bar_->value() > down);
}

void fraMainTest::scrollsToTheLastRow() {
  bar_->setValue(bar_->minimum());
  const int foot = rows_->y() + static_cast<int>(panel_->Rows().back().Box.Bottom);
  QVERIFY(foot <= slide_->height());
  QVERIFY(foot > slide_->height() - 20);
  panel_->resize(panel_->width(), 2000);
  QTest::qWait(10);
  QCOMPARE(bar_->minimum(), 0);
  QCOMPARE(rows_->y(), 1);
}

void fraMainTest::scrollsByTheWheel() {
  const auto turn = [this](int angle) {
    QWheelEvent wheel(QPointF(10, 10), rows_->mapToGlobal(QPointF(10, 10)), {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    for (QWidget* widget : {static_cast<QWidget*>(rows_), slide_, slide_->parentWidget()}) {
      QCoreApplication::sendEvent(widget, &wheel);
      QVERIFY(!wheel.isAccepted());  // a real turn goes on to the widget below; one that is made up does not
    }
    QCoreApplication::sendEvent(panel_.get(), &wheel);
    QVERIFY(wheel.isAccepted());
  };
  turn(-120);  // toward the hand
  QVERIFY(bar_->value() < 0);
  const int once = bar_->value();
  turn(-120);
  QCOMPARE(bar_->value(), 2 * once);
  turn(120);
  QCOMPARE(bar_->value(), once);
}

void fraMainTest::goesBackToTheTopWhenMadeAnew() {
  bar_->setValue(-5);
  panel_->ShowSawInfo(FullDesign(), {});
  QCOMPARE(bar_->value(), 0);
  QCOMPARE(rows_->y(), 1);
}

void fraMainTest::makesTheRowsAsWideAsTheFrame() {
  QCOMPARE(panel_->Rows()[3].Box.Right, double(slide_->width()));
  panel_->SetWidth(panel_->LeastWidth() + 120, 90);
  QTest::qWait(10);
  QCOMPARE(rows_->width(), slide_->width());
  QCOMPARE(panel_->Rows()[3].Box.Right, double(slide_->width()));
  MoveTo({slide_->width() - 3, PlaceOf(RowCode::Width).y()});
  QTRY_COMPARE(Lifted(), std::string("Band Saw Width:"));
}

// ---- the row lifted out

void fraMainTest::liftsOutTheRowUnderTheMouse() {
  MoveTo(PlaceOf(RowCode::Length));
  QTRY_COMPARE(Lifted(), std::string("Length:"));
  MoveTo(PlaceOf(RowCode::HookAngle));
  QTRY_COMPARE(Lifted(), std::string("Hook Angle:"));
  QTest::mouseMove(panel_.get(), QPoint(1, 1));
  QTRY_COMPARE(Lifted(), std::string());
  QCOMPARE(hovered_, (std::vector<std::string>{"Length:", "Hook Angle:", ""}));
}

void fraMainTest::paintsTheRowInInverse() {
  MoveTo(PlaceOf(RowCode::Length));
  QTRY_COMPARE(Lifted(), std::string("Length:"));
  const int y = PlaceOf(RowCode::Length).y();
  QImage picture = rows_->grab().toImage();
  QCOMPARE(picture.pixelColor(1, y), QColor(Qt::black));
  QCOMPARE(picture.pixelColor(rows_->width() - 1, y), QColor(Qt::black));
  QCOMPARE(picture.pixelColor(1, y + 17), QColor(Qt::white));
  QCOMPARE(picture.pixelColor(1, y - 17), QColor(Qt::white));
  MoveTo(PlaceOf(RowCode::Width));
  QTRY_COMPARE(Lifted(), std::string("Band Saw Width:"));
  picture = rows_->grab().toImage();
  QCOMPARE(picture.pixelColor(1, y), QColor(Qt::white));
}

void fraMainTest::liftsOutNothingWhileAButtonIsDown() {
  MoveTo(PlaceOf(RowCode::Length));
  QTRY_COMPARE(Lifted(), std::string("Length:"));
  QMouseEvent drag(QEvent::MouseMove, PlaceOf(RowCode::Pitch), rows_->mapToGlobal(PlaceOf(RowCode::Pitch)),
                   Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(rows_, &drag);
  QCOMPARE(Lifted(), std::string("Length:"));
}

void fraMainTest::liftsOutNothingAfterTheRowsAreMadeAnew() {
  MoveTo(PlaceOf(RowCode::Length));
  QTRY_COMPARE(Lifted(), std::string("Length:"));
  panel_->ShowSawInfo(FullDesign(), {});
  QCOMPARE(Lifted(), std::string());
  QCOMPARE(hovered_.back(), std::string());
}

void fraMainTest::pointsAHandWhereARowOpens() {
  const std::pair<RowCode, bool> opens[] = {{RowCode::ToothStyle, true},  {RowCode::Length, true},
                                            {RowCode::SharpAngle, false}, {RowCode::Seat, true},
                                            {RowCode::GulletArea, false}, {RowCode::ClearAngle, true}};
  for (const auto& [code, does] : opens) {
    bar_->setValue(-(PlaceOf(code).y() / 17 - 2));
    MoveTo(PlaceOf(code));
    QTRY_VERIFY(rows_->Highlighted() && rows_->Highlighted()->Code == code);
    QCOMPARE(rows_->cursor().shape(), does ? Qt::PointingHandCursor : Qt::ArrowCursor);
  }
  panel_->ShowSawInfo(FullDesign(NarrowStyle), {});  // its clearance is a result
  MoveTo(PlaceOf(RowCode::Length));
  MoveTo(PlaceOf(RowCode::ClearAngle));
  QTRY_COMPARE(Lifted(), std::string("Clearance Angle:"));
  QCOMPARE(rows_->cursor().shape(), Qt::ArrowCursor);
}

void fraMainTest::passesOverBlankRows() {
  bar_->setValue(bar_->minimum());
  MoveTo(PlaceOf(RowCode::WheelDia));
  QTRY_COMPARE(Lifted(), std::string("Wheel Diameter:"));
  const int heading = PlaceOf(RowCode::WheelDia).y() - 17;
  MoveTo({40, heading - 17});
  QTRY_COMPARE(Lifted(), std::string());
  Named<RowList>(*panel_, "picSawData")->setFocus();
  MoveTo(PlaceOf(RowCode::WheelDia));
  QTRY_COMPARE(Lifted(), std::string("Wheel Diameter:"));
  Key(Qt::Key_Up);
  QCOMPARE(Lifted(), std::string("Machine Information:"));
  Key(Qt::Key_Up);
  QCOMPARE(Lifted(), std::string("Side Clearance:"));
  Key(Qt::Key_Down);
  QCOMPARE(Lifted(), std::string("Machine Information:"));
}

// ---- presses

void fraMainTest::tellsAPressOnceTheButtonIsUp() {
  QTest::mousePress(rows_, Qt::LeftButton, {}, PlaceOf(RowCode::Length));
  QVERIFY(pressed_.empty());
  QTest::mouseRelease(rows_, Qt::LeftButton, {}, PlaceOf(RowCode::Length));
  QCOMPARE(pressed_, std::vector<std::string>{"Length:"});
}

void fraMainTest::tellsTheRowThatWasPressed() {
  QTest::mousePress(rows_, Qt::LeftButton, {}, PlaceOf(RowCode::Length));
  QTest::mouseRelease(rows_, Qt::LeftButton, {}, PlaceOf(RowCode::Pitch));
  QCOMPARE(pressed_, std::vector<std::string>{"Length:"});
}

void fraMainTest::tellsTheRightRowWhenScrolled() {
  bar_->setValue(bar_->minimum());
  const QPoint place = PlaceOf(RowCode::HorsePower);
  QVERIFY(rows_->visibleRegion().contains(place));
  QTest::mouseClick(panel_->childAt(rows_->mapTo(panel_.get(), place)), Qt::LeftButton, {}, place);
  QCOMPARE(pressed_, std::vector<std::string>{"Horsepower:"});
}

void fraMainTest::tellsNothingOfOtherButtonsAndPlaces() {
  QTest::mouseClick(rows_, Qt::RightButton, {}, PlaceOf(RowCode::Length));
  QTest::mouseClick(rows_, Qt::MiddleButton, {}, PlaceOf(RowCode::Length));
  panel_->ShowSawInfo({}, {});
  QTest::mouseClick(rows_, Qt::LeftButton, {}, QPoint(40, 40));
  QVERIFY(pressed_.empty());
}

// ---- keys

void fraMainTest::walksByKeys() {
  rows_->setFocus(Qt::OtherFocusReason);
  QCOMPARE(Lifted(), std::string());
  Key(Qt::Key_Down);  // shows where one is
  QCOMPARE(Lifted(), std::string("Band Saw Teeth:"));
  Key(Qt::Key_Down);
  QCOMPARE(Lifted(), std::string("Tooth Style:"));
  Key(Qt::Key_Down);
  QCOMPARE(Lifted(), std::string("Length:"));
  Key(Qt::Key_Up);
  QCOMPARE(Lifted(), std::string("Tooth Style:"));
  Key(Qt::Key_End);
  QCOMPARE(Lifted(), std::string("Horsepower:"));
  Key(Qt::Key_Down);
  QCOMPARE(Lifted(), std::string("Horsepower:"));
  Key(Qt::Key_Home);
  Key(Qt::Key_Up);
  QCOMPARE(Lifted(), std::string("Band Saw Teeth:"));
  QCOMPARE(hovered_.back(), std::string("Band Saw Teeth:"));
}

void fraMainTest::pagesByKeys() {
  rows_->setFocus(Qt::OtherFocusReason);
  Key(Qt::Key_Home);
  Key(Qt::Key_PageDown);
  const int page = static_cast<int>(slide_->height() / (250 / 15.0)) - 1;
  QVERIFY(std::abs(rows_->Highlighted()->Row - 1 - page) <= 1);
  Key(Qt::Key_PageUp);
  QCOMPARE(Lifted(), std::string("Band Saw Teeth:"));
}

void fraMainTest::pressesByKeys() {
  rows_->setFocus(Qt::OtherFocusReason);
  Key(Qt::Key_Return);  // nothing is lifted out to be pressed
  QVERIFY(pressed_.empty());
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  Key(Qt::Key_Down);
  Key(Qt::Key_Space);
  Key(Qt::Key_Enter);
  QCOMPARE(pressed_, (std::vector<std::string>{"Tooth Style:", "Length:", "Length:"}));
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
  QCoreApplication::sendEvent(rows_, &again);
  QCOMPARE(pressed_.size(), std::size_t(3));
}

void fraMainTest::bringsTheRowOfTheKeysIntoSight() {
  rows_->setFocus(Qt::OtherFocusReason);
  for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_Down}) {
    Key(key);
    const RowBox& box = rows_->Highlighted()->Box;
    QVERIFY(box.Top + rows_->y() >= 0);
    QVERIFY(box.Bottom + rows_->y() <= slide_->height() + 1);
  }
}

void fraMainTest::goesOnFromTheSameRowAfterADialog() {
  rows_->setFocus(Qt::OtherFocusReason);
  for (int i = 0; i < 4; ++i) Key(Qt::Key_Down);
  QCOMPARE(Lifted(), std::string("Band Saw Width:"));
  panel_->ShowSawInfo(FullDesign(), {});
  QCOMPARE(Lifted(), std::string());
  Key(Qt::Key_Down);
  QCOMPARE(Lifted(), std::string("Band Saw Width:"));
}

void fraMainTest::showsARowWhenReachedByTab() {
  auto* other = new QPushButton("other", panel_.get());
  other->show();
  other->setFocus();
  rows_->setFocus(Qt::TabFocusReason);
  QCOMPARE(Lifted(), std::string("Band Saw Teeth:"));
  const QImage ringed = panel_->grab().toImage();
  other->setFocus();
  QCOMPARE(Lifted(), std::string());
  const QWidget* frame = slide_->parentWidget();
  const QPoint edge = frame->mapTo(panel_.get(), QPoint(1, frame->height() / 2));
  QVERIFY(ringed.pixelColor(edge) != panel_->grab().toImage().pixelColor(edge));
}

void fraMainTest::keepsQuietWithoutRows() {
  panel_->ShowSawInfo({}, {});
  hovered_.clear();
  rows_->setFocus(Qt::TabFocusReason);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown,
                            Qt::Key_PageUp, Qt::Key_Return, Qt::Key_Space})
    Key(key);
  QVERIFY(pressed_.empty());
  QVERIFY(hovered_.empty());
}

// ---- people who listen

void fraMainTest::readsItsRowsAloud() {
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(rows_);
  QVERIFY(list);
  QCOMPARE(list->role(), QAccessible::List);
  QCOMPARE(list->childCount(), static_cast<int>(panel_->Rows().size()));
  QAccessibleInterface* length = list->child(2);
  QCOMPARE(length->role(), QAccessible::ListItem);
  QCOMPARE(length->text(QAccessible::Name), QString("Length: 20.000 ft"));
  QCOMPARE(list->indexOfChild(length), 2);
  QCOMPARE(length->parent(), list);
  const QPoint middle = rows_->mapToGlobal(PlaceOf(RowCode::Length));
  QCOMPARE(list->childAt(middle.x(), middle.y()), length);
  QVERIFY(!length->state().focused);
  rows_->setFocus(Qt::OtherFocusReason);
  for (int i = 0; i < 3; ++i) Key(Qt::Key_Down);
  QVERIFY(length->state().focused);
  QCOMPARE(list->focusChild(), length);
  panel_->ShowSawInfo({}, {});
  QCOMPARE(list->childCount(), 0);
  QVERIFY(!length->isValid());
  QCOMPARE(length->text(QAccessible::Name), QString());
}

void fraMainTest::pressesARowForPeopleWhoListen() {
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(rows_);
  QAccessibleActionInterface* length = list->child(2)->actionInterface();
  QVERIFY(length);
  QCOMPARE(length->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
  length->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(pressed_, std::vector<std::string>{"Length:"});
  QVERIFY(list->child(0)->actionInterface()->actionNames().isEmpty());
}

// ---- the rest

void fraMainTest::leavesTheWayBackWithoutQuickClick() {
  auto* way = Named<QPushButton>(*panel_, "cmdQuickClick");
  QVERIFY(!way->isVisible());
  panel_->ShowQuickClick(false);
  QVERIFY(!rows_->isVisible());
  QVERIFY(way->isVisible());
  QCOMPARE(way->text(), QString("Turn Quick Click Display On"));
  QCOMPARE(test::Clipped(*panel_, {"cmdQuickClick"}), QStringList());
  int asked = 0;
  connect(panel_.get(), &fraMain::QuickClickAsked, this, [&asked] { ++asked; });
  QTest::mouseClick(way, Qt::LeftButton);
  QTest::keyClick(way, Qt::Key_Space);
  QCOMPARE(asked, 2);
  panel_->ShowQuickClick(true);
  QVERIFY(rows_->isVisible());
  QVERIFY(!way->isVisible());
  QCOMPARE(rows_->width(), slide_->width());
}

void fraMainTest::fitsTheLettersIntoTheRows() {
  // No ink between the rows: the first and the last line of pixels of a row stay white.
  rows_->ShowRows({{.Row = 1,
                    .Code = RowCode::Length,
                    .Caption = "Åjgpq(Kerf)",
                    .Value = " jgq²",
                    .Header = false,
                    .Box = {0, 0, 200, RowHeight}}},
                  0);
  const QImage picture = rows_->grab(QRect(0, 0, 200, 34)).toImage();
  for (int x = 0; x < picture.width(); ++x) {
    QCOMPARE(picture.pixelColor(x, 0), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(x, 17), QColor(Qt::white));
  }
}

/// The first column that is not white right of `from` in the row of the length.
static int InkAfter(const QImage& picture, int from, int top) {
  for (int x = from; x < picture.width(); ++x)
    for (int y = top; y < top + 16; ++y)
      if (picture.pixelColor(x, y).lightness() < 128) return x;
  return -1;
}

void fraMainTest::movesTheValuesWithTheWidth() {
  const int top = PlaceOf(RowCode::Length).y() - 8;
  const int before = InkAfter(rows_->grab().toImage(), 80, top);
  panel_->SetWidth(panel_->LeastWidth() + 100, 80);
  QTest::qWait(10);
  QCOMPARE(InkAfter(rows_->grab().toImage(), 80, top), before + 20);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::fraMainTest)
#include "fraMain_test.moc"
