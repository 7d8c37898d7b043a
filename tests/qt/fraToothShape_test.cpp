#include "window/fraToothShape.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <memory>

#include "platform/qt/MeasureBox.h"
#include "qt/Controls.h"
#include "shell/modString.h"
#include "support/FullDesign.h"

namespace tarnwick {
namespace {

using test::FullDesign;
using test::Named;

constexpr int Styles = 10;

/// The boxes in the working order, with what each is for the styles from 0 to 9: "+" opens, "s" opens with a
/// seat, "r" is a result, "m" belongs to another editor, "-" is hidden; and its hint.
struct BoxRow {
  const char* Name;
  const char* Caption;
  const char* States;
  int Hint;
};

const BoxRow Boxes[] = {
    {"txtToothStyle", "Tooth Style:", "++++++++++", 1},
    {"txtLength", "Length:", "++++++++++", 2},
    {"txtNumTeeth", "Number Of Teeth:", "++++++++++", 3},
    {"txtPitch", "Tooth Spacing:", "++++++++++", 15},
    {"txtWidth", "Band Saw Width:", "++++++++++", 14},
    {"txtHook", "Hook Angle:", "++++++++++", 4},
    {"txtClear", "Clearance Angle:", "+++++++rr+", 6},
    {"txtFrostWidth", "Frost Notch Width:", "---------+", 0},
    {"txtFrostHeight", "Frost Notch Height:", "---------+", 0},
    {"txtFrostRadius", "Frost Notch Radius:", "---------+", 0},
    {"txtFrostAngle", "Frost Notch Angle:", "---------+", 0},
    {"txtGulletRadius", "Gullet Radius:", "++++---+--", 7},
    {"txt1stGulletRad", "1st Gullet Radius:", "----+++-++", 8},
    {"txt2ndGulletRad", "2nd Gullet Radius:", "----+++--+", 9},
    {"txt3rdGulletRad", "3rd Gullet Radius:", "-----+---+", 10},
    {"txtGulletBottomAngle", "Gullet Bottom Angle:", "------+---", 13},
    {"txtGulletWidth", "Gullet Width:", "----+++-++", 16},
    {"txtGulletBackAngle", "Gullet Back Angle:", "+++++++--+", 17},
    {"txtGulletDepth", "Gullet Depth:", "++++++++++", 11},
    {"txtGulletBackRadius", "Gullet Back Radius:", "--+-+++--+", 12},
    {"txtTipClearance", "Tip Clearance:", "++++++++++", 18},
    {"txtSeat", "Seat:", "++++++++++", 19},
    {"txtSeatWidth", "Seat Width:", "ssssssssss", 20},
    {"txtSeatHeight", "Seat Height:", "ssssssssss", 21},
    {"txtToothTipType", "Type of Tip:", "mmmmmmmmmm", 104},
    {"txtToothPlateThick", "Plate Thickness:", "mmmmmmmmmm", 104},
    {"txtToothKerf", "Cut Width (Kerf):", "mmmmmmmmmm", 104},
    {"txtSharpAngle", "Sharpness Angle:", "rrrrrrrrrr", 0},
    {"txtFaceLength", "Face Length:", "rrrrrrrrrr", 0},
    {"txtGulletArea", "Gullet Area:", "rrrrrrrrrr", 45},
    {"txtAreaBelowTip", "Area Below Tip:", "rrrrrrrrrr", 46},
};

QString CaptionOf(const char* box) { return "lbl" + QString(box).mid(3); }

}  // namespace

class fraToothShapeTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { panel_.reset(); }

  void hasABoxAndACaptionForEachMeasure();
  void showsTheBoxesOfAStyle_data();
  void showsTheBoxesOfAStyle();
  void beginsWithTheBoxesOfASquareBack();
  void showsTheDesign();
  void showsNothingForABlankDesign();
  void followsTheUnits();
  void keepsWhatDoesNotDiffer();
  void firesNothingWhenFilled();
  void tellsThePressOfEveryBox();
  void tellsThePressOfACaption();
  void tellsWhatTheMouseIsOver();
  void tellsWhatTabReaches();
  void hintsByNumber();
  void hasOkAndCancelAtItsFoot();
  void tabsInTheWorkingOrder();
  void bringsTheBoxOfTheFocusIntoSight();
  void keepsStillUnderTheMouse();
  void linesUp_data();
  void linesUp();
  void givesTheBoxesTheirShareOfTheWidth();
  void endsWithTheFocusInABox();

 private:
  void Note(const PanelField* field) { over_ = field ? std::string(field->Control) : std::string(); }

  std::unique_ptr<fraToothShape> panel_;
  std::vector<std::string> pressed_;
  std::string over_ = "?";
  int buttonHint_ = -1;
  int accepted_ = 0, cancelled_ = 0;
};

void fraToothShapeTest::init() {
  pressed_.clear();
  over_ = "?";
  buttonHint_ = -1;
  accepted_ = cancelled_ = 0;
  panel_ = std::make_unique<fraToothShape>();
  connect(panel_.get(), &FieldPanel::Pressed, this,
          [this](const PanelField& field) { pressed_.emplace_back(field.Control); });
  connect(panel_.get(), &FieldPanel::Hovered, this, &fraToothShapeTest::Note);
  connect(panel_.get(), &FieldPanel::ButtonHovered, this, [this](int text) { buttonHint_ = text; });
  connect(panel_.get(), &FieldPanel::Accepted, this, [this] { ++accepted_; });
  connect(panel_.get(), &FieldPanel::Cancelled, this, [this] { ++cancelled_; });
  panel_->resize(panel_->width(), 480);
  panel_->Fill(FullDesign(), {});
  panel_->show();
  QVERIFY(QTest::qWaitForWindowActive(panel_.get()));
}

void fraToothShapeTest::hasABoxAndACaptionForEachMeasure() {
  QStringList names;
  for (const BoxRow& row : Boxes) {
    names << row.Name;
    QCOMPARE(Named<QLabel>(*panel_, CaptionOf(row.Name).toUtf8())->text(), QString(row.Caption));
    QCOMPARE(Named<MeasureBox>(*panel_, row.Name)->accessibleName(), QString(row.Caption).chopped(1));
  }
  QCOMPARE(panel_->findChildren<MeasureBox*>().size(), names.size());
  names << "cmdToothOK"
        << "cmdToothCancel";
  QCOMPARE(test::BadlySpoken(*panel_, names), QStringList());
  QCOMPARE(panel_->objectName(), QString("fraToothShape"));
}

void fraToothShapeTest::showsTheBoxesOfAStyle_data() {
  QTest::addColumn<int>("style");
  QTest::addColumn<bool>("seat");
  for (int style = 0; style < Styles; ++style) {
    QTest::addRow("style %d without a seat", style) << style << false;
    QTest::addRow("style %d with a seat", style) << style << true;
  }
}

void fraToothShapeTest::showsTheBoxesOfAStyle() {
  QFETCH(int, style);
  QFETCH(bool, seat);
  BandSaw saw = FullDesign(static_cast<std::int16_t>(style));
  saw.SeatInfo.State = seat ? True : False;
  panel_->Fill(saw, {});
  for (const BoxRow& row : Boxes) {
    const char state = row.States[style];
    const bool opens = state == '+' || (state == 's' && seat);
    const auto* box = Named<MeasureBox>(*panel_, row.Name);
    const auto* caption = Named<QLabel>(*panel_, CaptionOf(row.Name).toUtf8());
    QVERIFY2(box->isVisible() == (state != '-'), row.Name);
    QVERIFY2(caption->isVisible() == (state != '-'), row.Name);
    QVERIFY2(box->isEnabled() && caption->isEnabled(), row.Name);
    if (state == '-') continue;
    QVERIFY2(box->Opens() == opens, row.Name);
    QCOMPARE(caption->cursor().shape(), opens ? Qt::PointingHandCursor : Qt::ArrowCursor);
  }
}

void fraToothShapeTest::beginsWithTheBoxesOfASquareBack() {
  panel_ = std::make_unique<fraToothShape>();
  panel_->show();
  for (const BoxRow& row : Boxes)
    QVERIFY2(Named<QWidget>(*panel_, row.Name)->isVisible() == (row.States[1] != '-'), row.Name);
  QVERIFY(!Named<MeasureBox>(*panel_, "txtSeatWidth")->Opens());
  panel_->ShowStyleFields(FrostTooth);
  QVERIFY(Named<MeasureBox>(*panel_, "txtFrostAngle")->isVisible());
}

void fraToothShapeTest::showsTheDesign() {
  const std::pair<const char*, const char*> texts[] = {
      {"txtToothStyle", " Triple Radius"},
      {"txtLength", " 20.000 ft"},
      {"txtNumTeeth", " 120"},
      {"txtPitch", " 2.000 in"},
      {"txtWidth", " 5.000 in"},
      {"txtHook", " 25.000 deg"},
      {"txtClear", " 10.000 deg"},
      {"txt1stGulletRad", " 0.250 in"},
      {"txtGulletArea", " 0.512 in²"},
      {"txtSeat", " Yes"},
      {"txtSeatWidth", " 0.100 in"},
      {"txtToothTipType", " Carbide"},
  };
  for (const auto& [box, text] : texts) {
    QCOMPARE(Named<QLineEdit>(*panel_, box)->text(), QString(text));
    QCOMPARE(Named<QLineEdit>(*panel_, box)->cursorPosition(), 0);
  }
}

void fraToothShapeTest::showsNothingForABlankDesign() {
  panel_->Fill({}, {});
  for (const char* box : {"txtToothStyle", "txtLength", "txtNumTeeth", "txtHook", "txtGulletArea"})
    QCOMPARE(Named<QLineEdit>(*panel_, box)->text(), QString());
}

void fraToothShapeTest::followsTheUnits() {
  panel_->Fill(FullDesign(), {.ImpMetric = Metric});
  QCOMPARE(Named<QLineEdit>(*panel_, "txtWidth")->text(), QString(" 12.700 cm"));
  QCOMPARE(Named<QLineEdit>(*panel_, "txtTipClearance")->text(), QString(" 0.508 mm"));
}

void fraToothShapeTest::keepsWhatDoesNotDiffer() {
  auto* width = Named<QLineEdit>(*panel_, "txtWidth");
  width->setCursorPosition(3);
  panel_->Fill(FullDesign(), {});
  QCOMPARE(width->cursorPosition(), 3);
}

void fraToothShapeTest::firesNothingWhenFilled() {
  panel_->Fill({}, {});
  panel_->Fill(FullDesign(FrostTooth), {.ImpMetric = Metric});
  QVERIFY(pressed_.empty());
  QCOMPARE(over_, std::string("?"));
}

void fraToothShapeTest::tellsThePressOfEveryBox() {
  panel_->Fill(FullDesign(FrostTooth), {});
  std::vector<std::string> expected;
  for (const BoxRow& row : Boxes) {
    if (row.States[FrostTooth] == '-') continue;
    auto* box = Named<MeasureBox>(*panel_, row.Name);
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClick(box, Qt::Key_Space);
    expected.insert(expected.end(), 2, row.Name);
  }
  QCOMPARE(pressed_, expected);
}

void fraToothShapeTest::tellsThePressOfACaption() {
  auto* hook = Named<QLabel>(*panel_, "lblHook");
  QTest::mousePress(hook, Qt::LeftButton);
  QVERIFY(pressed_.empty());
  QVERIFY(Named<MeasureBox>(*panel_, "txtHook")->hasFocus());
  QTest::mouseRelease(hook, Qt::LeftButton);
  QTest::mouseClick(Named<QLabel>(*panel_, "lblToothKerf"), Qt::LeftButton);
  QTest::mouseClick(hook, Qt::RightButton);
  QTest::mousePress(hook, Qt::LeftButton);
  QTest::mouseRelease(hook, Qt::LeftButton, {}, QPoint(-50, 5));
  QCOMPARE(pressed_, (std::vector<std::string>{"txtHook", "txtToothKerf"}));
}

void fraToothShapeTest::tellsWhatTheMouseIsOver() {
  for (const char* control : {"txtWidth", "lblClear"}) {
    auto* widget = Named<QWidget>(*panel_, control);
    QTest::mouseMove(widget);
    QTRY_COMPARE(QString::fromStdString(over_).mid(3), QString(control).mid(3));
  }
  QTest::mouseMove(panel_.get(), QPoint(2, panel_->height() - 2));
  QTRY_COMPARE(over_, std::string());
  QTest::mouseMove(Named<QWidget>(*panel_, "cmdToothOK"));
  QTRY_COMPARE(buttonHint_, 70);
  QTest::mouseMove(Named<QWidget>(*panel_, "cmdToothCancel"));
  QTRY_COMPARE(buttonHint_, 71);
  QTest::mouseMove(panel_.get(), QPoint(2, panel_->height() - 2));
  QTRY_COMPARE(buttonHint_, 0);
}

void fraToothShapeTest::tellsWhatTabReaches() {
  auto* length = Named<QWidget>(*panel_, "txtLength");
  length->setFocus();
  QCOMPARE(over_, std::string("?"));  // a panel that comes up says nothing
  QTest::keyClick(length, Qt::Key_Tab);
  QCOMPARE(over_, std::string("txtNumTeeth"));
  QTest::keyClick(panel_->focusWidget(), Qt::Key_Backtab);
  QCOMPARE(over_, std::string("txtLength"));
  Named<QWidget>(*panel_, "txtAreaBelowTip")->setFocus();
  QTest::keyClick(panel_->focusWidget(), Qt::Key_Tab);
  QCOMPARE(over_, std::string());
  QCOMPARE(buttonHint_, 70);
}

void fraToothShapeTest::hintsByNumber() {
  for (const BoxRow& row : Boxes) {
    const std::string_view text = NumberedText(row.Hint);
    QCOMPARE(Named<QWidget>(*panel_, row.Name)->accessibleDescription(),
             QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  }
}

void fraToothShapeTest::hasOkAndCancelAtItsFoot() {
  QCOMPARE(test::AccessKeys(*panel_), QString("OC"));
  QTest::mouseClick(Named<QPushButton>(*panel_, "cmdToothOK"), Qt::LeftButton);
  QCOMPARE(accepted_, 1);
  QTest::mouseClick(Named<QPushButton>(*panel_, "cmdToothCancel"), Qt::LeftButton);
  QCOMPARE(cancelled_, 1);
  QTest::keyClick(panel_.get(), Qt::Key_O, Qt::AltModifier);
  QTRY_COMPARE(accepted_, 2);
  QTest::keyClick(panel_.get(), Qt::Key_C, Qt::AltModifier);
  QTRY_COMPARE(cancelled_, 2);
  for (const int height : {120, 480, 1000}) {
    panel_->resize(panel_->width(), height);
    QTest::qWait(10);
    QCOMPARE(test::Clipped(*panel_, {"cmdToothOK", "cmdToothCancel"}), QStringList());
  }
}

void fraToothShapeTest::tabsInTheWorkingOrder() {
  Named<QWidget>(*panel_, "txtToothStyle")->setFocus();
  QStringList expected, order;
  for (const BoxRow& row : Boxes) {
    if (row.States[TripleRadius] != '-') expected << row.Name;
  }
  expected << "cmdToothOK"
           << "cmdToothCancel";
  for (int i = 0; i < expected.size(); ++i) {
    order << panel_->focusWidget()->objectName();
    QTest::keyClick(panel_->focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(order, expected);
  QCOMPARE(panel_->focusWidget()->objectName(), QString("txtToothStyle"));
}

void fraToothShapeTest::bringsTheBoxOfTheFocusIntoSight() {
  auto* last = Named<QWidget>(*panel_, "txtAreaBelowTip");
  QVERIFY(last->visibleRegion().isEmpty());
  Named<QWidget>(*panel_, "cmdToothOK")->setFocus();
  QTest::keyClick(panel_->focusWidget(), Qt::Key_Backtab);
  QVERIFY(last->hasFocus());
  QTRY_COMPARE(last->visibleRegion().boundingRect(), last->rect());
}

/// A box that is cut by the edge is pressed where it is.
void fraToothShapeTest::keepsStillUnderTheMouse() {
  panel_->resize(panel_->width(), 300);
  QTest::qWait(10);
  auto* box = Named<QWidget>(*panel_, "txtGulletDepth");
  auto* fields = panel_->findChild<QScrollArea*>();
  QScrollBar* bar = fields->verticalScrollBar();
  bar->setValue(box->y() + 4 - fields->viewport()->height());  // its upper edge peeps in
  const int before = bar->value();
  QVERIFY(before > 0);
  QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, 2));
  QCOMPARE(bar->value(), before);
  QCOMPARE(pressed_, std::vector<std::string>{"txtGulletDepth"});
}

void fraToothShapeTest::linesUp_data() {
  QTest::addColumn<int>("style");
  for (int style = 0; style < Styles; ++style) QTest::addRow("style %d", style) << style;
}

/// Captions end at one line, boxes begin and end at one line, and nothing lies upon its neighbour or is cut.
void fraToothShapeTest::linesUp() {
  QFETCH(int, style);
  panel_->Fill(FullDesign(static_cast<std::int16_t>(style)), {});
  QTest::qWait(10);
  const auto* first = Named<QWidget>(*panel_, "txtToothStyle");
  const auto* firstCaption = Named<QWidget>(*panel_, "lblToothStyle");
  int bottom = 0;
  for (const BoxRow& row : Boxes) {
    const auto* box = Named<MeasureBox>(*panel_, row.Name);
    if (!box->isVisible()) continue;
    const auto* caption = Named<QLabel>(*panel_, CaptionOf(row.Name).toUtf8());
    QCOMPARE(box->x(), first->x());
    QCOMPARE(box->width(), first->width());
    QCOMPARE(caption->geometry().right(), firstCaption->geometry().right());
    QVERIFY2(caption->width() >= caption->sizeHint().width(), row.Name);
    QVERIFY2(box->fontMetrics().horizontalAdvance(box->text()) < box->width() - 8, row.Name);
    QVERIFY2(box->y() > bottom, row.Name);
    bottom = box->geometry().bottom();
  }
}

void fraToothShapeTest::givesTheBoxesTheirShareOfTheWidth() {
  const auto* box = Named<QWidget>(*panel_, "txtPitch");
  const int least = panel_->LeastWidth(), before = box->width();
  QCOMPARE(panel_->width(), least);
  panel_->SetWidth(least + 100, 80);
  QTest::qWait(10);
  QCOMPARE(panel_->width(), least + 100);
  QCOMPARE(box->width(), before + 80);
  const QPoint right = box->mapTo(panel_.get(), QPoint(box->width(), 0));
  QVERIFY(right.x() < panel_->width());
  const auto* cancel = Named<QWidget>(*panel_, "cmdToothCancel");
  QCOMPARE(cancel->mapTo(panel_.get(), QPoint(cancel->width(), 0)).x(), right.x());
  panel_->SetWidth(least, 0);
  QTest::qWait(10);
  QCOMPARE(box->width(), before);
}

void fraToothShapeTest::endsWithTheFocusInABox() {
  Named<QWidget>(*panel_, "txtPitch")->setFocus();
  panel_.reset();
  QVERIFY(pressed_.empty());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::fraToothShapeTest)
#include "fraToothShape_test.moc"
