#include "power/frmPower.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "platform/qt/MeasureBox.h"
#include "platform/qt/QtText.h"
#include "power/frmPowerEst.h"
#include "qt/Controls.h"
#include "qt/PowerWindow.h"

namespace tarnwick {
namespace {

using test::Cancels;
using test::Named;
using test::Types;
using test::TypesAndEnters;
using Texts = QMap<QString, QString>;

/// In the order in which Tab reaches them.
const QStringList Boxes = {"txtRPMs",          "txtMaxDepth",     "txtFeedRate",     "txtSpecificEnergy",
                           "txtHPSawOD",       "txtToothPitch",   "txtHPPlateThick", "txtHPToothWidth",
                           "txtSideClearance", "txtHPGulletArea", "txtSawVelocity",  "txtBite",
                           "txtHorsePower",    "txtMaxFeedRate",  "txtAreaBelowTip", "txtCapacity"};
const QStringList Asking = {"txtRPMs", "txtMaxDepth", "txtFeedRate", "txtSpecificEnergy"};
const QStringList Others = {"cboPercent", "cmdView", "cmdPrint", "cmdOk", "cmdCancel"};

/// The windows of PowerDesign: 5 ft * 3.14159 * 510 = 8011 ft/min; (0.15 - 0.065) / 2 = 0.0425 in;
/// 10 * 0.15 * 100 * 60 / 144 = 62.5 hp; 8011 * 1 * 0.7 / (10 * 2) = 280.385 ft/min. No bite is stored.
const Texts Opened = {{"txtHPSawOD", " 5.000 ft"},
                      {"txtHPToothWidth", " 0.150 in"},
                      {"txtHPPlateThick", " 0.065 in"},
                      {"txtHPGulletArea", " 1.000 in²"},
                      {"txtAreaBelowTip", " 0.700 in²"},
                      {"txtCapacity", ""},
                      {"txtBite", ""},
                      {"txtRPMs", " 510 rpms"},
                      {"txtMaxDepth", " 10.000 in"},
                      {"txtFeedRate", " 100 fpm"},
                      {"txtSpecificEnergy", "Oak (White)"},
                      {"txtToothPitch", " 2.000 in"},
                      {"txtSawVelocity", " 8011 fpm"},
                      {"txtSideClearance", " 0.043 in"},
                      {"txtHorsePower", " 62.500"},
                      {"txtMaxFeedRate", " 280 fpm"}};

}  // namespace

class frmPowerTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void hasItsFramesAndCaptions();
  void showsADesign();
  void showsASample_data();
  void showsASample();

  void asksByAClick_data();
  void asksByAClick();
  void asksByKeys_data();
  void asksByKeys();
  void asksByItsCaption_data();
  void asksByItsCaption();
  void asksNothingElsewhere_data();
  void asksNothingElsewhere();
  void keepsTheFigureWhenCancelled();
  void asksForTheWood();
  void selectsNoText();

  void takesAnotherFeedIndex();
  void choosesNoEntryForAnUnlistedIndex();
  void choosesNothingByAPassingWheel();

  void completesAPercentByEnter_data();
  void completesAPercentByEnter();
  void completesAPercentWhenItsBoxIsLeft();
  void offersTenPercents();
  void viewsNothingWithoutAPercent();
  void viewsTheEstimates();
  void prints();

  void accepts_data();
  void accepts();
  void cancels_data();
  void cancels();
  void opensTheManual();

  void namesEveryControl();
  void tabsInReadingOrder();
  void hasAccessKeys();
  void alignsItsBoxes();
  void fitsTheSmallestScreen_data();
  void fitsTheSmallestScreen();
  void scrollsWhereTheLettersAreTooLarge();

 private:
  void Open(const BandSaw& saw);
  void Open() { Open(test::PowerDesign()); }
  template <class Control>
  Control* Find(const QString& name) {
    return Named<Control>(*window_, qPrintable(name));
  }
  QString Text(const QString& box) { return test::TextOf(*window_, box); }
  Texts AllTexts();
  void Press(const QString& control) { QTest::mouseClick(Find<QWidget>(control), Qt::LeftButton); }
  void TypePercent(const QString& text);
  QString Percent() { return Find<QComboBox>("cboPercent")->currentText(); }

  std::unique_ptr<test::PowerBench> bench_;
  std::unique_ptr<PowerEditor> editor_;
  std::unique_ptr<frmPower> window_;
  int prints_ = 0;
};

void frmPowerTest::init() { bench_ = std::make_unique<test::PowerBench>(); }

void frmPowerTest::cleanup() {
  window_.reset();
  editor_.reset();
  bench_.reset();
}

void frmPowerTest::Open(const BandSaw& saw) {
  window_.reset();
  editor_ = std::make_unique<PowerEditor>(bench_->Program.Process, bench_->Dialogs, bench_->Windows);
  editor_->GetSawPowerData(saw);
  window_ = std::make_unique<frmPower>(*editor_, bench_->Program.Help, [this] { ++prints_; });
  prints_ = 0;
  bench_->Show(*window_);
}

Texts frmPowerTest::AllTexts() {
  Texts texts;
  for (const QString& box : Boxes) texts[box] = Text(box);
  return texts;
}

void frmPowerTest::TypePercent(const QString& text) {
  auto* box = Find<QComboBox>("cboPercent");
  QTest::mouseClick(box->lineEdit(), Qt::LeftButton);
  box->lineEdit()->selectAll();
  if (text.isEmpty())
    QTest::keyClick(window_->focusWidget(), Qt::Key_Delete);
  else
    QTest::keyClicks(window_->focusWidget(), text);
}

// ---- what it shows

void frmPowerTest::hasItsFramesAndCaptions() {
  Open();
  QCOMPARE(window_->windowTitle(), QString("Power Requirements"));
  QStringList frames;
  for (const auto* frame : window_->findChildren<QGroupBox*>()) frames += frame->title();
  QVERIFY(frames.contains("Power Requirements:"));
  QVERIFY(frames.contains("Gullet Capacity:"));
  QVERIFY(frames.contains("Estimated Feed Rates:"));
  const Texts captions = {{"lblHPSawOD", "Wheel Diameter:"},
                          {"lblHPToothWidth", "Kerf (Tooth Width):"},
                          {"lblHPPlateThick", "Plate Thickness:"},
                          {"lblHPGulletArea", "Total Gullet Area:"},
                          {"lblAreaBelowTip", "Actual:"},
                          {"lblCapacity", "Required:"},
                          {"lblBite", "Bite (Feed Per Tooth):"},
                          {"lblRPMs", "Shaft Speed (RPM's):"},
                          {"lblMaxDepth", "Depth of Cut (MAX):"},
                          {"lblFeedRate", "Feed Rate (FPM): "},
                          {"lblSpecificEnergy", "Type of Wood:"},
                          {"lblToothPitch", "Tooth Pitch:"},
                          {"lblSawVelocity", "Tooth Speed (FPM):"},
                          {"lblSideClearance", "Side Clearance:"},
                          {"lblHorsePower", "Horse Power:"},
                          {"lblMaxFeedRate", "Maximum Feed Rate:"},
                          {"lblPercent", "Increase Feed Rate "},
                          {"lblFeedIndex", "Values based on the selected percent of the total gullet area."}};
  for (auto caption = captions.begin(); caption != captions.end(); ++caption) {
    QCOMPARE(Find<QLabel>(caption.key())->text(), caption.value());
    QVERIFY(Find<QLabel>(caption.key())->isVisible());
  }
  for (const char* box : {"txtAreaBelowTip", "txtCapacity", "cboFeedIndex"}) {
    QCOMPARE(qobject_cast<QGroupBox*>(Find<QWidget>(box)->parentWidget())->title(),
             QString("Gullet Capacity:"));
  }
  QCOMPARE(Find<QPushButton>("cmdView")->text(), QString("View Results"));
  QCOMPARE(Find<QPushButton>("cmdOk")->text(), QString("&OK"));
  QCOMPARE(Find<QPushButton>("cmdCancel")->text(), QString("&Cancel"));
}

void frmPowerTest::showsADesign() {
  Open();
  QCOMPARE(AllTexts(), Opened);
  QCOMPARE(Find<QComboBox>("cboFeedIndex")->currentText(), QString("70 Percent"));
  QCOMPARE(Percent(), QString());
}

void frmPowerTest::showsASample_data() {
  QTest::addColumn<int>("units");
  QTest::addColumn<Texts>("texts");
  // 6 ft at 530 rpm, 254 teeth on 37 ft, 18 in of Douglas fir at 100 ft/min.
  QTest::newRow("square-back")
      << int(Imperial)
      << Texts{{"txtHPSawOD", " 6.000 ft"},     {"txtRPMs", " 530 rpms"},
               {"txtSawVelocity", " 9990 fpm"}, {"txtToothPitch", " 1.748 in"},
               {"txtMaxDepth", " 18.000 in"},   {"txtFeedRate", " 100 fpm"},
               {"txtHorsePower", " 75.938"},    {"txtBite", " 0.017 in"},
               {"txtCapacity", " 0.315 in²"},   {"txtSideClearance", " 0.035 in"},
               {"txtMaxFeedRate", " 110 fpm"},  {"txtSpecificEnergy", "Douglas Fir (Coast)"}};
  QTest::newRow("square-back, metric")
      << int(Metric)
      << Texts{
             {"txtHPSawOD", " 1.829 m"},       {"txtRPMs", " 530 rpms"},      {"txtSawVelocity", " 3045 mpm"},
             {"txtToothPitch", " 4.440 cm"},   {"txtMaxDepth", " 45.720 cm"}, {"txtFeedRate", " 30 mpm"},
             {"txtHPToothWidth", " 3.429 mm"}, {"txtHorsePower", " 75.938"},  {"txtBite", " 0.444 mm"}};
}

void frmPowerTest::showsASample() {
  QFETCH(int, units);
  QFETCH(Texts, texts);
  bench_->Program.Process.Design.ImpMetric = static_cast<std::int16_t>(units);
  Open(bench_->Sample("square-back"));
  for (auto text = texts.begin(); text != texts.end(); ++text) QCOMPARE(Text(text.key()), text.value());
}

// ---- boxes

void frmPowerTest::asksByAClick_data() {
  QTest::addColumn<QString>("box");
  QTest::addColumn<QString>("typed");
  QTest::addColumn<Texts>("changed");
  // 100 * 2 / 8011 = 0.02496 in; times the depth it is the capacity.
  QTest::newRow("Wheel RPMs") << "txtRPMs"
                              << "600"
                              << Texts{{"txtRPMs", " 600 rpms"},
                                       {"txtSawVelocity", " 9425 fpm"},
                                       {"txtBite", " 0.021 in"},
                                       {"txtCapacity", " 0.212 in²"},
                                       {"txtMaxFeedRate", " 330 fpm"}};
  QTest::newRow("Maximum Depth of Cut") << "txtMaxDepth"
                                        << "20"
                                        << Texts{{"txtMaxDepth", " 20.000 in"},
                                                 {"txtBite", " 0.025 in"},
                                                 {"txtCapacity", " 0.499 in²"},
                                                 {"txtHorsePower", " 125.000"},
                                                 {"txtMaxFeedRate", " 140 fpm"}};
  QTest::newRow("Feed Rate") << "txtFeedRate"
                             << "2*75"
                             << Texts{{"txtFeedRate", " 150 fpm"},
                                      {"txtBite", " 0.037 in"},
                                      {"txtCapacity", " 0.374 in²"},
                                      {"txtHorsePower", " 93.750"}};
  QTest::newRow("Type of Wood") << "txtSpecificEnergy"
                                << "Aspen"
                                << Texts{{"txtSpecificEnergy", "Aspen"}, {"txtHorsePower", " 36.458"}};
}

void frmPowerTest::asksByAClick() {
  QFETCH(QString, box);
  QFETCH(QString, typed);
  QFETCH(Texts, changed);
  Open();
  bench_->User.Acts = {Types(typed)};
  Press(box);
  QCOMPARE(bench_->User.Seen, QStringList(QString("frmCDialog: ") + QTest::currentDataTag()));
  Texts expected = Opened;
  expected.insert(changed);
  QCOMPARE(AllTexts(), expected);
  QVERIFY(window_->isVisible());
}

void frmPowerTest::asksByKeys_data() {
  QTest::addColumn<int>("key");
  QTest::newRow("Return") << int(Qt::Key_Return);
  QTest::newRow("Enter") << int(Qt::Key_Enter);
  QTest::newRow("Space") << int(Qt::Key_Space);
}

void frmPowerTest::asksByKeys() {
  QFETCH(int, key);
  Open();
  bench_->User.Acts = {TypesAndEnters("600")};
  QVERIFY(Find<QWidget>("txtRPMs")->hasFocus());
  QTest::keyClick(window_->focusWidget(), Qt::Key(key));
  QCOMPARE(Text("txtRPMs"), QString(" 600 rpms"));
  QVERIFY(window_->isVisible());
}

void frmPowerTest::asksByItsCaption_data() {
  QTest::addColumn<QString>("box");
  QTest::newRow("lblRPMs") << "txtRPMs";
  QTest::newRow("lblMaxDepth") << "txtMaxDepth";
  QTest::newRow("lblFeedRate") << "txtFeedRate";
}

void frmPowerTest::asksByItsCaption() {
  QFETCH(QString, box);
  Open();
  bench_->User.Acts = {Types("321")};
  auto* caption = Find<QLabel>(QTest::currentDataTag());
  QTest::mousePress(caption, Qt::LeftButton);
  QVERIFY(bench_->User.Seen.isEmpty());  // a dialog that opened now would take the release
  QTest::mouseRelease(caption, Qt::LeftButton);
  QVERIFY(Text(box).startsWith(" 321"));
  QCOMPARE(window_->focusWidget()->objectName(), box);
}

void frmPowerTest::asksNothingElsewhere_data() {
  QTest::addColumn<QString>("control");
  for (const QString& box : Boxes) {
    const QString caption = "lbl" + box.mid(3);
    if (!Asking.contains(box)) QTest::newRow(qPrintable(box)) << box;
    if (!Asking.contains(box) || box == "txtSpecificEnergy") QTest::newRow(qPrintable(caption)) << caption;
  }
}

void frmPowerTest::asksNothingElsewhere() {
  QFETCH(QString, control);
  Open();
  Press(control);
  if (control.startsWith("txt")) QTest::keyClick(Find<QWidget>(control), Qt::Key_Space);
  QTest::qWait(5);
  QCOMPARE(bench_->User.Seen, QStringList());
  QCOMPARE(AllTexts(), Opened);
}

void frmPowerTest::keepsTheFigureWhenCancelled() {
  Open();
  for (const QString& box : Asking) {
    bench_->User.Acts = {Cancels()};
    Press(box);
  }
  QCOMPARE(bench_->User.Seen.size(), 4);
  QCOMPARE(AllTexts(), Opened);
}

void frmPowerTest::asksForTheWood() {
  Open();
  bench_->User.Acts = {[](QDialog& dialog) {
    auto* list = Named<QListWidget>(dialog, "ListValues");
    QListWidgetItem* beech = list->findItems("Beech", Qt::MatchExactly).value(0);
    list->scrollToItem(beech);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(beech).center());
    test::Click(dialog, "cmdOk");
  }};
  Press("txtSpecificEnergy");
  QCOMPARE(Text("txtSpecificEnergy"), QString("Beech"));
  QCOMPARE(Text("txtHorsePower"), QString(" 58.333"));  // 10 * 0.15 * 100 * 56 / 144
  QCOMPARE(editor_->Saw().GeneralInfo.WoodType.Trimmed(), std::string("Beech"));
}

void frmPowerTest::selectsNoText() {
  Open();
  for (const QString& name : Boxes) {
    auto* box = Find<QLineEdit>(name);
    box->selectAll();
    if (Asking.contains(name)) bench_->User.Acts = {Cancels()};
    Press(name);
    QVERIFY2(!box->hasSelectedText(), qPrintable(name));
  }
}

// ---- the gullet feed index

void frmPowerTest::takesAnotherFeedIndex() {
  Open();
  auto* list = Find<QComboBox>("cboFeedIndex");
  QCOMPARE(list->count(), 19);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Up);
  QTest::keyClick(list, Qt::Key_Up);
  QCOMPARE(list->currentText(), QString("60 Percent"));
  QCOMPARE(bench_->Settings().GulletFeedIndex, 0.6);
  Texts expected = Opened;
  expected["txtAreaBelowTip"] = " 0.600 in²";
  expected["txtMaxFeedRate"] = " 240 fpm";
  QCOMPARE(AllTexts(), expected);
  Press("cmdCancel");
  QCOMPARE(bench_->Settings().GulletFeedIndex, 0.6);  // Cancel does not take it back
}

void frmPowerTest::choosesNoEntryForAnUnlistedIndex() {
  bench_->Settings().GulletFeedIndex = 0.72;
  Open();
  QCOMPARE(Find<QComboBox>("cboFeedIndex")->currentIndex(), -1);
  QCOMPARE(Text("txtAreaBelowTip"), QString(" 0.720 in²"));
  bench_->User.Acts = {Types("600")};
  Press("txtRPMs");
  QCOMPARE(Find<QComboBox>("cboFeedIndex")->currentIndex(), -1);
  QCOMPARE(bench_->Settings().GulletFeedIndex, 0.72);
}

void frmPowerTest::choosesNothingByAPassingWheel() {
  Open();
  auto* list = Find<QComboBox>("cboFeedIndex");
  const QPointF place = list->rect().center();
  QWheelEvent turn(place, list->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                   false);
  QApplication::sendEvent(list, &turn);
  QCOMPARE(list->currentText(), QString("70 Percent"));
  QCOMPARE(bench_->Settings().GulletFeedIndex, 0.7);
}

// ---- estimates

void frmPowerTest::completesAPercentByEnter_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("shown");
  QTest::newRow("a whole number") << "10"
                                  << "10 Percent";
  QTest::newRow("a fraction") << "12.5"
                              << "12 Percent";
  QTest::newRow("a complete one") << "15 Percent"
                                  << "15 Percent";
  QTest::newRow("the beginning of an entry") << "1"
                                             << "1 Percent";
  QTest::newRow("nothing") << ""
                           << "";
}

void frmPowerTest::completesAPercentByEnter() {
  QFETCH(QString, typed);
  Open();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    TypePercent(typed);
    QTest::keyClick(window_->focusWidget(), key);
    QTEST(Percent(), "shown");
    QVERIFY(window_->isVisible());  // Enter ends the typing, not the window
    QVERIFY(editor_->IsOpen());
  }
}

void frmPowerTest::completesAPercentWhenItsBoxIsLeft() {
  Open();
  TypePercent("12.5");
  QCOMPARE(Percent(), QString("12.5"));
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QCOMPARE(Percent(), QString("12 Percent"));
  TypePercent("7.9");
  Find<QWidget>("txtRPMs")->setFocus();
  QCOMPARE(Percent(), QString("7 Percent"));
}

void frmPowerTest::offersTenPercents() {
  Open();
  auto* list = Find<QComboBox>("cboPercent");
  QCOMPARE(list->count(), 10);
  QCOMPARE(list->itemText(0), QString("5 Percent"));
  QCOMPARE(list->itemText(9), QString("50 Percent"));
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Down);
  QCOMPARE(Percent(), QString("10 Percent"));
  QCOMPARE(editor_->PercentText(), std::string("10 Percent"));
}

void frmPowerTest::viewsNothingWithoutAPercent() {
  Open();
  for (const char* percent : {"", "0", "-5", "ten"}) {
    TypePercent(percent);
    bench_->Program.Say = {};
    Press("cmdView");
    QCOMPARE(bench_->Program.Say.Shown.size(), std::size_t{1});
    const Box& box = bench_->Program.Say.Shown.front();
    QCOMPARE(box.Title, std::string("Select Percent"));
    QCOMPARE(box.Text, std::string("You must first select a percent from the above list."));
    QVERIFY(box.Shown == Icon::Information);
  }
  QCOMPARE(bench_->User.Seen, QStringList());
}

void frmPowerTest::viewsTheEstimates() {
  Open();
  TypePercent("12.5");
  QString heading, feedRate;
  bench_->User.Acts = {[&](QDialog& dialog) {
    heading = Named<QLabel>(dialog, "lblHeading")->text();
    feedRate = Named<QListWidget>(dialog, "picPowerEst")
                   ->findItems("Feed Rate:", Qt::MatchStartsWith)
                   .value(1)
                   ->text();
    QCOMPARE(dialog.parentWidget(), window_.get());
    test::Click(dialog, "cmdOk");
  }};
  Press("cmdView");
  QCOMPARE(bench_->User.Seen, QStringList("frmPowerEst: Power Estimates"));
  QCOMPARE(heading, QString("Power estimates based on increasing feedrate by 12 percent."));
  QCOMPARE(feedRate, QString("Feed Rate: 112 fpm*"));
  QCOMPARE(Percent(), QString("12 Percent"));
  QVERIFY(window_->isVisible());
}

void frmPowerTest::prints() {
  Open();
  auto* button = Find<QPushButton>("cmdPrint");
  QCOMPARE(button->text(), QString("Print Results"));
  QVERIFY(button->isVisible());
  QVERIFY(button->x() > Find<QWidget>("cmdView")->x());
  Press("cmdPrint");
  QCOMPARE(prints_, 1);
  Find<QWidget>("cmdView")->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QVERIFY(button->hasFocus());
}

// ---- the end

void frmPowerTest::accepts_data() {
  QTest::addColumn<QString>("control");
  QTest::addColumn<int>("key");
  QTest::newRow("by OK") << "cmdOk" << 0;
  QTest::newRow("by Enter on a result") << "txtHorsePower" << int(Qt::Key_Return);
  QTest::newRow("by Enter on the feed index") << "cboFeedIndex" << int(Qt::Key_Enter);
  QTest::newRow("by its key") << "txtRPMs" << int(Qt::Key_O);
}

void frmPowerTest::accepts() {
  QFETCH(QString, control);
  QFETCH(int, key);
  Open();
  bench_->User.Acts = {Types("150")};
  Press("txtFeedRate");
  bench_->Activate(*window_);
  Find<QWidget>(control)->setFocus();
  if (key == 0)
    Press(control);
  else
    QTest::keyClick(Find<QWidget>(control), Qt::Key(key),
                    key == Qt::Key_O ? Qt::AltModifier : Qt::NoModifier);
  QTRY_VERIFY(!window_->isVisible());
  QVERIFY(editor_->IsAccepted());
  QCOMPARE(editor_->Saw().GeneralInfo.FeedRate, 150.0);
}

void frmPowerTest::cancels_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"Cancel", "Escape", "close", "Alt+C"}) QTest::newRow(how) << how;
}

void frmPowerTest::cancels() {
  QFETCH(QString, how);
  Open();
  bench_->Program.Store.Written.clear();
  if (how == "Cancel") Press("cmdCancel");
  if (how == "Escape") QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  if (how == "close") window_->close();
  if (how == "Alt+C") QTest::keyClick(window_->focusWidget(), Qt::Key_C, Qt::AltModifier);
  QTRY_VERIFY(!window_->isVisible());
  QVERIFY(!editor_->IsAccepted());
  QVERIFY(!editor_->IsOpen());
  QVERIFY(!bench_->Program.Store.Saved().empty());  // the settings
}

void frmPowerTest::opensTheManual() {
  Open();
  const std::vector<std::pair<QString, std::string>> topics = {
      {"txtRPMs", "topic 407"},    {"txtMaxDepth", "topic 409"},   {"txtFeedRate", "topic 410"},
      {"txtHPSawOD", "topic 500"}, {"txtToothPitch", "topic 202"}, {"txtSpecificEnergy", "topic 412"},
      {"txtBite", "topic 400"},    {"cboPercent", "topic 400"},    {"cmdOk", "topic 400"}};
  for (const auto& [control, topic] : topics) {
    bench_->Program.Help.Asked.clear();
    Find<QWidget>(control)->setFocus();
    QTest::keyClick(window_->focusWidget(), Qt::Key_F1);
    QCOMPARE(bench_->Program.Help.Asked, std::vector<std::string>{topic});
  }
}

// ---- for everybody

void frmPowerTest::namesEveryControl() {
  Open();
  QCOMPARE(test::BadlySpoken(*window_, Boxes + Others + QStringList("cboFeedIndex")), QStringList());
  QCOMPARE(Find<QWidget>("txtCapacity")->accessibleName(), QString("Gullet Capacity, Required"));
  QCOMPARE(Find<QLabel>("lblPercent")->buddy(), Find<QWidget>("cboPercent"));  // a list goes by its caption
  QCOMPARE(Find<QLabel>("lblFeedIndex")->buddy(), Find<QWidget>("cboFeedIndex"));
}

void frmPowerTest::tabsInReadingOrder() {
  Open();
  QStringList order = Boxes;
  order.insert(order.indexOf("txtAreaBelowTip"), "cboFeedIndex");
  QCOMPARE(test::TabOrder(*window_, 40), order + Others);
}

void frmPowerTest::hasAccessKeys() {
  Open();
  QCOMPARE(test::AccessKeys(*window_), QString("OC"));
}

void frmPowerTest::alignsItsBoxes() {
  Open();
  const auto place = [this](const QString& name) {
    auto* control = Find<QWidget>(name);
    return QRect(control->mapTo(window_.get(), QPoint()), control->size());
  };
  const QStringList left = Boxes.mid(0, 10), right = Boxes.mid(10, 4);
  for (const QStringList& column : {left, right, Boxes.mid(14, 2)}) {
    for (const QString& box : column) {
      QCOMPARE(place(box).left(), place(column.first()).left());
      QCOMPARE(place(box).right(), place(column.first()).right());
      const QString caption = "lbl" + box.mid(3);
      QCOMPARE(place(caption).right(), place("lbl" + column.first().mid(3)).right());
      QCOMPARE(place(caption).center().y(), place(box).center().y());
    }
  }
  for (int row = 0; row < 4; ++row) QCOMPARE(place(left[row]).top(), place(right[row]).top());
  for (const QString& box : Boxes) QCOMPARE(Find<MeasureBox>(box)->Opens(), Asking.contains(box));
}

void frmPowerTest::fitsTheSmallestScreen_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 12; ++points) QTest::addRow("%d points", points) << points;
}

/// 800 by 600 pixels, less a title bar.
void frmPowerTest::fitsTheSmallestScreen() {
  QFETCH(int, points);
  const test::LargeFont font(points);
  BandSaw saw = test::PowerDesign();
  saw.GeneralInfo.WoodType.Assign("Cedar (Northern White)");
  Open(saw);
  QVERIFY2(window_->width() <= 800 && window_->height() <= 570,
           qPrintable(QString("%1 x %2").arg(window_->width()).arg(window_->height())));
  QVERIFY(test::ShowsAll(*window_));
  QCOMPARE(test::Cramped(*window_), QStringList());
  QCOMPARE(test::Clipped(*window_, QStringList{"cboFeedIndex"} + Others), QStringList());
}

void frmPowerTest::scrollsWhereTheLettersAreTooLarge() {
  const test::LargeFont font(26);
  Open();
  const QRect screen = window_->screen()->availableGeometry();
  QVERIFY(window_->width() <= screen.width() && window_->height() <= screen.height());
  const auto* area = window_->findChild<QScrollArea*>();
  QVERIFY(area->verticalScrollBar()->maximum() > 0);
  QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
  QCOMPARE(test::Cramped(*window_), QStringList());
  for (const QString& name : Boxes) {
    QCOMPARE(window_->focusWidget()->objectName(), name == "txtAreaBelowTip" ? "cboFeedIndex" : name);
    if (name == "txtAreaBelowTip") QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    const auto* box = window_->focusWidget();  // Tab brings it into sight
    QVERIFY(area->viewport()->rect().contains(QRect(box->mapTo(area->viewport(), QPoint()), box->size())));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  }
  QVERIFY(window_->rect().contains(Find<QWidget>("cmdCancel")->geometry()));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmPowerTest)
#include "frmPower_test.moc"
