#include "window/fraGeneral.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>
#include <utility>
#include <vector>

#include "platform/qt/MeasureBox.h"
#include "qt/Controls.h"
#include "shell/modString.h"
#include "support/FullDesign.h"

namespace tarnwick {
namespace {

using test::FullDesign;
using test::Named;

/// Typed boxes: how many characters each takes, and its hint; 0: the words of the comments.
struct TypedRow {
  const char* Name;
  int Most;
  int Hint;
};

const TypedRow TypedBoxes[] = {
    {"txtDesignBy", 50, 37},     {"txtCustName", 50, 38},     {"txtQuantity", 10, 39},
    {"txtAdditional1st", 40, 0}, {"txtAdditional2nd", 40, 0}, {"txtAdditional3rd", 40, 0},
};

/// Boxes that open a dialog, with their hints.
const std::pair<const char*, int> OpenedBoxes[] = {
    {"txtTipType", 40}, {"txtPlateThick", 41}, {"txtKerf", 42}, {"txtJoinStyle", 0}};

const char* const ForeignBoxes[] = {
    "txtGenToothStyle", "txtGenLength",   "txtGenWidth",          "txtGenNumTeeth",
    "txtGenPitch",      "txtGenHook",     "txtGenTeethInSegment", "txtGenSegmentLength",
    "txtGenWheelDia",   "txtGenCenters",  "txtGenRimWidth",       "txtGenShaftSpeed",
    "txtGenDepthOfCut", "txtGenFeedRate", "txtGenWoodType",       "txtGenHorsePower"};

using Report = std::pair<std::string, QString>;

}  // namespace

class fraGeneralTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { panel_.reset(); }

  void namesEveryControl();
  void tellsWhatIsTyped();
  void takesNoMoreCharactersThanTheDesign();
  void showsTheDesign();
  void showsTextsWithoutTheirPadding();
  void firesNothingWhenFilled();
  void keepsTheCaretOfATextThatDoesNotDiffer();
  void tellsTheTickOfTheUserOnly();
  void tellsThePressOfBoxes();
  void leadsFromACaptionIntoItsText();
  void hintsByNumber();
  void tellsThatTypingEnded();
  void hasOkAndCancelAtItsFoot();
  void hasRoomForTheCheckBox();
  void endsWhileSomethingIsTyped();

 private:
  std::unique_ptr<fraGeneral> panel_;
  std::vector<Report> typed_;
  std::vector<std::string> pressed_;
  std::vector<bool> ticked_;
  int ended_ = 0, accepted_ = 0, cancelled_ = 0, buttonHint_ = -1;
};

void fraGeneralTest::init() {
  typed_.clear();
  pressed_.clear();
  ticked_.clear();
  ended_ = accepted_ = cancelled_ = 0;
  buttonHint_ = -1;
  panel_ = std::make_unique<fraGeneral>();
  connect(panel_.get(), &FieldPanel::Typed, this, [this](const PanelField& field, const QString& text) {
    typed_.emplace_back(std::string(field.Control), text);
  });
  connect(panel_.get(), &FieldPanel::Pressed, this,
          [this](const PanelField& field) { pressed_.emplace_back(field.Control); });
  connect(panel_.get(), &FieldPanel::Ticked, this, [this](bool ticked) { ticked_.push_back(ticked); });
  connect(panel_.get(), &FieldPanel::TypingEnded, this, [this] { ++ended_; });
  connect(panel_.get(), &FieldPanel::Accepted, this, [this] { ++accepted_; });
  connect(panel_.get(), &FieldPanel::Cancelled, this, [this] { ++cancelled_; });
  connect(panel_.get(), &FieldPanel::ButtonHovered, this, [this](int text) { buttonHint_ = text; });
  panel_->resize(panel_->width(), 480);
  panel_->show();
  QVERIFY(QTest::qWaitForWindowActive(panel_.get()));
}

void fraGeneralTest::namesEveryControl() {
  QStringList names = {"txtSideClear", "chkBothEdges", "cmdGeneralOK", "cmdGeneralCancel"};
  for (const TypedRow& row : TypedBoxes) names << row.Name;
  for (const auto& [box, hint] : OpenedBoxes) names << box;
  for (const char* box : ForeignBoxes) names << box;
  QCOMPARE(test::BadlySpoken(*panel_, names), QStringList());
  QCOMPARE(Named<QWidget>(*panel_, "txtKerf")->accessibleName(), QString("Cut Width (Kerf)"));
  for (const QString& name : std::as_const(names)) {
    if (name.startsWith("txt")) QVERIFY2(panel_->findChild<QLabel*>("lbl" + name.mid(3)), name.toUtf8());
  }
  QCOMPARE(panel_->objectName(), QString("fraGeneral"));
}

void fraGeneralTest::tellsWhatIsTyped() {
  for (const TypedRow& row : TypedBoxes) {
    typed_.clear();
    auto* box = Named<QLineEdit>(*panel_, row.Name);
    QTest::keyClicks(box, "12");
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(typed_,
             (std::vector<Report>{{row.Name, "1"}, {row.Name, "12"}, {row.Name, "1"}, {row.Name, ""}}));
  }
}

void fraGeneralTest::takesNoMoreCharactersThanTheDesign() {
  for (const TypedRow& row : TypedBoxes) {
    auto* box = Named<QLineEdit>(*panel_, row.Name);
    box->insert(QString(60, '7'));
    QCOMPARE(box->text().size(), qsizetype(row.Most));
  }
}

void fraGeneralTest::showsTheDesign() {
  panel_->Fill(FullDesign(), {});
  const std::pair<const char*, const char*> texts[] = {
      {"txtDesignBy", "A. Filer"},
      {"txtCustName", "North Creek Lumber"},
      {"txtQuantity", "12"},
      {"txtTipType", " Carbide"},
      {"txtKerf", " 0.125 in"},
      {"txtSideClear", " 0.030 in"},
      {"txtJoinStyle", " Overlap Join"},
      {"txtAdditional1st", "Hammer lightly"},
      {"txtAdditional2nd", ""},
      {"txtGenLength", " 20.000 ft"},
      {"txtGenWheelDia", " 5.000 ft"},
      {"txtGenHorsePower", " 150.000"},
  };
  for (const auto& [box, text] : texts) QCOMPARE(Named<QLineEdit>(*panel_, box)->text(), QString(text));
  QVERIFY(Named<QCheckBox>(*panel_, "chkBothEdges")->isChecked());
  panel_->Fill({}, {});
  QCOMPARE(Named<QLineEdit>(*panel_, "txtDesignBy")->text(), QString());
  QCOMPARE(Named<QLineEdit>(*panel_, "txtQuantity")->text(), QString());
  QVERIFY(!Named<QCheckBox>(*panel_, "chkBothEdges")->isChecked());
}

void fraGeneralTest::showsTextsWithoutTheirPadding() {
  BandSaw saw;
  saw.CustomerInfo.DesignBy.Assign(
      "  Z\xFC"
      "rich ");
  panel_->Fill(saw, {});
  QCOMPARE(Named<QLineEdit>(*panel_, "txtDesignBy")->text(), QString("  Zürich"));
}

/// Else a text that was never there would become blanks, and the design a changed one, by opening the panel.
void fraGeneralTest::firesNothingWhenFilled() {
  panel_->Fill(FullDesign(), {});
  panel_->Fill({}, {});
  panel_->Fill(FullDesign(), {.ImpMetric = Metric});
  QVERIFY(typed_.empty());
  QVERIFY(pressed_.empty());
  QVERIFY(ticked_.empty());
  QCOMPARE(ended_, 0);
}

void fraGeneralTest::keepsTheCaretOfATextThatDoesNotDiffer() {
  panel_->Fill(FullDesign(), {});
  auto* customer = Named<QLineEdit>(*panel_, "txtCustName");
  customer->setCursorPosition(5);
  panel_->Fill(FullDesign(), {.ImpMetric = Metric});
  QCOMPARE(customer->cursorPosition(), 5);
}

void fraGeneralTest::tellsTheTickOfTheUserOnly() {
  auto* edges = Named<QCheckBox>(*panel_, "chkBothEdges");
  QTest::keyClick(edges, Qt::Key_Space);
  QTest::mouseClick(edges, Qt::LeftButton, {}, QPoint(8, edges->height() / 2));
  QCOMPARE(ticked_, (std::vector<bool>{true, false}));
}

void fraGeneralTest::tellsThePressOfBoxes() {
  std::vector<std::string> expected;
  for (const auto& [box, hint] : OpenedBoxes) {
    QVERIFY(Named<MeasureBox>(*panel_, box)->Opens());
    QTest::mouseClick(Named<MeasureBox>(*panel_, box), Qt::LeftButton);
    QTest::keyClick(Named<MeasureBox>(*panel_, box), Qt::Key_Return);
    expected.insert(expected.end(), 2, box);
  }
  for (const char* box : ForeignBoxes) {
    QVERIFY(!Named<MeasureBox>(*panel_, box)->Opens());
    QVERIFY(Named<MeasureBox>(*panel_, box)->isEnabled());
    QTest::mouseClick(Named<MeasureBox>(*panel_, box), Qt::LeftButton);  // what there is to say about it
    expected.emplace_back(box);
  }
  QVERIFY(!Named<MeasureBox>(*panel_, "txtSideClear")->Opens());
  QCOMPARE(pressed_, expected);
}

void fraGeneralTest::leadsFromACaptionIntoItsText() {
  QTest::mouseClick(Named<QLabel>(*panel_, "lblCustName"), Qt::LeftButton);
  QVERIFY(Named<QLineEdit>(*panel_, "txtCustName")->hasFocus());
  QVERIFY(pressed_.empty());
  QTest::mouseClick(Named<QLabel>(*panel_, "lblKerf"), Qt::LeftButton);
  QCOMPARE(pressed_, std::vector<std::string>{"txtKerf"});
}

void fraGeneralTest::hintsByNumber() {
  const auto hint = [this](const char* box) { return Named<QWidget>(*panel_, box)->accessibleDescription(); };
  const auto numbered = [](int number) {
    const std::string_view text = NumberedText(number);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  };
  for (const TypedRow& row : TypedBoxes)
    QCOMPARE(hint(row.Name), row.Hint ? numbered(row.Hint) : QString("For additional comments!"));
  for (const auto& [box, number] : OpenedBoxes) QCOMPARE(hint(box), numbered(number));
  QTest::mouseMove(Named<QWidget>(*panel_, "cmdGeneralOK"));
  QTRY_COMPARE(buttonHint_, 72);
  QTest::mouseMove(Named<QWidget>(*panel_, "cmdGeneralCancel"));
  QTRY_COMPARE(buttonHint_, 73);
}

void fraGeneralTest::tellsThatTypingEnded() {
  auto* quantity = Named<QLineEdit>(*panel_, "txtQuantity");
  quantity->setFocus();
  QTest::keyClicks(quantity, "1x");
  QCOMPARE(ended_, 0);
  QTest::keyClick(quantity, Qt::Key_Tab);
  QCOMPARE(ended_, 1);
}

void fraGeneralTest::hasOkAndCancelAtItsFoot() {
  QCOMPARE(test::AccessKeys(*panel_), QString("OC"));
  QTest::mouseClick(Named<QPushButton>(*panel_, "cmdGeneralOK"), Qt::LeftButton);
  QTest::keyClick(Named<QPushButton>(*panel_, "cmdGeneralCancel"), Qt::Key_Space);
  QCOMPARE(accepted_, 1);
  QCOMPARE(cancelled_, 1);
  QCOMPARE(test::Clipped(*panel_, {"cmdGeneralOK", "cmdGeneralCancel"}), QStringList());
}

void fraGeneralTest::hasRoomForTheCheckBox() {
  const auto* edges = Named<QCheckBox>(*panel_, "chkBothEdges");
  QVERIFY(edges->width() >= edges->sizeHint().width());
  QCOMPARE(edges->width(), Named<QWidget>(*panel_, "txtKerf")->width());
  QCOMPARE(edges->x(), Named<QWidget>(*panel_, "txtKerf")->x());
}

void fraGeneralTest::endsWhileSomethingIsTyped() {
  auto* customer = Named<QLineEdit>(*panel_, "txtCustName");
  customer->setFocus();
  QTest::keyClicks(customer, "x");
  panel_.reset();
  QCOMPARE(ended_, 0);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::fraGeneralTest)
#include "fraGeneral_test.moc"
