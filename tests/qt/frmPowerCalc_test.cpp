#include "power/frmPowerCalc.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <memory>

#include "platform/qt/MeasureBox.h"
#include "qt/Controls.h"
#include "qt/PowerWindow.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::Cancels;
using test::Named;
using test::Types;
using Texts = QMap<QString, QString>;

const QStringList Boxes = {"txtHPSawOD",        "txtCenters",      "txtLength",       "txtToothPitch",
                           "txtNumTeeth",       "txtHPPlateThick", "txtHPToothWidth", "txtSideClearance",
                           "txtRPMs",           "txtSawVelocity",  "txtMaxDepth",     "txtFeedRate",
                           "txtSpecificEnergy", "txtBite",         "txtHPGulletArea", "txtCapacity",
                           "txtHorsePower"};
const QStringList Results = {"txtSideClearance", "txtSawVelocity", "txtBite",
                             "txtHPGulletArea",  "txtCapacity",    "txtHorsePower"};
const QStringList ButtonNames = {"cmdCopy", "cmdNew", "cmdOpen", "cmdSave", "cmdPrint", "cmdExit"};

QString On(const QString& control, int side) { return QString("%1(%2)").arg(control).arg(side); }

QStringList SideControls(int side) {
  QStringList names;
  for (const QString& box : Boxes) names += On(box, side);
  return names + QStringList(On("cmdClear", side));
}

/// What a design shows as it comes: nothing is worked out yet.
const Texts Taken = {{"txtHPSawOD", " 5.000 ft"},
                     {"txtCenters", ""},
                     {"txtLength", " 40.000 ft"},
                     {"txtToothPitch", " 2.000 in"},
                     {"txtNumTeeth", " 240"},
                     {"txtHPPlateThick", " 0.065 in"},
                     {"txtHPToothWidth", " 0.150 in"},
                     {"txtSideClearance", ""},
                     {"txtRPMs", " 510 rpms"},
                     {"txtSawVelocity", ""},
                     {"txtMaxDepth", " 10.000 in"},
                     {"txtFeedRate", " 100 fpm"},
                     {"txtSpecificEnergy", "Oak (White)"},
                     {"txtBite", ""},
                     {"txtHPGulletArea", " 1.000 in²"},
                     {"txtCapacity", ""},
                     {"txtHorsePower", ""}};
/// And what is worked out of it.
const Texts Figures = {{"txtSawVelocity", " 8011 fpm"},
                       {"txtBite", " 0.025 in"},
                       {"txtCapacity", " 0.250 in²"},
                       {"txtHorsePower", " 62.500"}};

}  // namespace

class frmPowerCalcTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void hasItsFramesAndCaptions();
  void takesTheDesignAsTheFirstCalculation();
  void showsASample();

  void asksByAClick_data();
  void asksByAClick();
  void asksByKeys();
  void asksNothingForResults();
  void keepsTheOtherSide();
  void showsNoPitchWithoutTeeth();

  void clearsOneSide();
  void copiesTheFirstOverTheSecond();
  void beginsAnew();
  void savesAndOpens();
  void keepsAllWhenNoFileIsChosen();
  void keepsAllWhenTheFileIsRefused();
  void showsAnyNameInItsTitle();
  void takesAFeedIndexOfItsOwn();

  void exits_data();
  void exits();
  void pressesNoButtonByEnterElsewhere();
  void pressesTheButtonThatHasTheFocus();
  void prints();
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
  QString Text(const QString& box, int side) { return test::TextOf(*window_, On(box, side)); }
  Texts TextsOf(int side);
  static Texts With(Texts texts, const Texts& changed) {
    texts.insert(changed);
    return texts;
  }
  void Press(const QString& control) { QTest::mouseClick(Find<QWidget>(control), Qt::LeftButton); }
  void Enter(const QString& box, int side, const QString& typed);

  static const Texts& Empty();

  std::unique_ptr<test::PowerBench> bench_;
  std::unique_ptr<PowerCalculator> calculator_;
  std::unique_ptr<frmPowerCalc> window_;
  int prints_ = 0;
};

void frmPowerCalcTest::init() { bench_ = std::make_unique<test::PowerBench>(); }

void frmPowerCalcTest::cleanup() {
  window_.reset();
  calculator_.reset();
  bench_.reset();
}

void frmPowerCalcTest::Open(const BandSaw& saw) {
  window_.reset();
  calculator_ = std::make_unique<PowerCalculator>(bench_->Program.Process, bench_->Dialogs);
  calculator_->GetSawPowerData(saw);
  window_ = std::make_unique<frmPowerCalc>(*calculator_, bench_->Program.Help, [this] { ++prints_; });
  prints_ = 0;
  bench_->Show(*window_);
}

Texts frmPowerCalcTest::TextsOf(int side) {
  Texts texts;
  for (const QString& box : Boxes) texts[box] = Text(box, side);
  return texts;
}

const Texts& frmPowerCalcTest::Empty() {
  static const Texts none = [] {
    Texts texts;
    for (const QString& box : Boxes) texts[box] = QString("");
    return texts;
  }();
  return none;
}

void frmPowerCalcTest::Enter(const QString& box, int side, const QString& typed) {
  bench_->User.Acts = {Types(typed)};
  Press(On(box, side));
}

// ---- what it shows

void frmPowerCalcTest::hasItsFramesAndCaptions() {
  Open();
  QCOMPARE(window_->windowTitle(), QString("Power Calculator"));
  QStringList frames;
  for (const auto* frame : window_->findChildren<QGroupBox*>()) frames += frame->title();
  frames.sort();
  QCOMPARE(frames,
           QStringList({"First Power Calculation:", "Gullet Feed Index:", "Second Power Calculation:"}));
  QCOMPARE(Find<QLabel>("lblFeedIndex")->text(), QString("Percentage of usable gullet:"));
  const Texts captions = {{"lblCenters", "Wheels Center to Center:"}, {"lblLength", "Length:"},
                          {"lblNumTeeth", "Number of Teeth:"},        {"lblCapacity", "Gullet Capacity:"},
                          {"lblFeedRate", "Feed Rate (FPM): "},       {"lblHorsePower", "Horse Power:"}};
  for (int side = 0; side < 2; ++side) {
    for (auto caption = captions.begin(); caption != captions.end(); ++caption) {
      QCOMPARE(Find<QLabel>(On(caption.key(), side))->text(), caption.value());
    }
    QCOMPARE(Find<QPushButton>(On("cmdClear", side))->text(), QString("Clear "));
    const QString title = side == 0 ? "First Power Calculation:" : "Second Power Calculation:";
    for (const QString& control : SideControls(side)) {
      QCOMPARE(qobject_cast<QGroupBox*>(Find<QWidget>(control)->parentWidget())->title(), title);
    }
  }
}

void frmPowerCalcTest::takesTheDesignAsTheFirstCalculation() {
  Open();
  QCOMPARE(TextsOf(0), Taken);
  QCOMPARE(TextsOf(1), Empty());
  QCOMPARE(Find<QComboBox>("cboFeedIndex")->currentText(), QString("70 Percent"));
}

void frmPowerCalcTest::showsASample() {
  bench_->Program.Process.Design.ImpMetric = Metric;
  Open(bench_->Sample("square-back"));
  const Texts texts = {{"txtHPSawOD", " 1.829 m"},
                       {"txtCenters", " 2.766 m"},
                       {"txtLength", " 11.278 m"},
                       {"txtToothPitch", " 4.440 cm"},
                       {"txtNumTeeth", " 254"},
                       {"txtHPPlateThick", " 1.651 mm"},
                       {"txtHPToothWidth", " 3.429 mm"},
                       {"txtSideClearance", " 0.889 mm"},
                       {"txtRPMs", " 530 rpms"},
                       {"txtSawVelocity", " 3045 mpm"},
                       {"txtMaxDepth", " 45.720 cm"},
                       {"txtFeedRate", " 30 mpm"},
                       {"txtSpecificEnergy", "Douglas Fir (Coast)"},
                       {"txtHorsePower", " 75.938"}};
  for (auto text = texts.begin(); text != texts.end(); ++text) QCOMPARE(Text(text.key(), 0), text.value());
}

// ---- boxes

void frmPowerCalcTest::asksByAClick_data() {
  QTest::addColumn<QString>("box");
  QTest::addColumn<QString>("typed");
  QTest::addColumn<Texts>("changed");
  const auto row = [](const char* title, const char* box, const char* typed, const Texts& changed) {
    QTest::newRow(title) << box << typed << With(Figures, changed);
  };
  row("Wheel RPMs", "txtRPMs", "600",
      {{"txtRPMs", " 600 rpms"},
       {"txtSawVelocity", " 9425 fpm"},
       {"txtBite", " 0.021 in"},
       {"txtCapacity", " 0.212 in²"}});
  row("Feed Rate", "txtFeedRate", "150",
      {{"txtFeedRate", " 150 fpm"},
       {"txtBite", " 0.037 in"},
       {"txtCapacity", " 0.374 in²"},
       {"txtHorsePower", " 93.750"}});
  row("Maximum Depth of Cut", "txtMaxDepth", "20",
      {{"txtMaxDepth", " 20.000 in"}, {"txtCapacity", " 0.499 in²"}, {"txtHorsePower", " 125.000"}});
  row("Type of Wood", "txtSpecificEnergy", "Aspen",
      {{"txtSpecificEnergy", "Aspen"}, {"txtHorsePower", " 36.458"}});
  row("Plate Thickness", "txtHPPlateThick", "0.07",
      {{"txtHPPlateThick", " 0.070 in"}, {"txtSideClearance", " 0.040 in"}});
  row("Tip Kerf", "txtHPToothWidth", "0.165",
      {{"txtHPToothWidth", " 0.165 in"}, {"txtSideClearance", " 0.050 in"}, {"txtHorsePower", " 68.750"}});
  row("Band Saw Length", "txtLength", "44",
      {{"txtLength", " 44.000 ft"},
       {"txtToothPitch", " 2.200 in"},
       {"txtBite", " 0.027 in"},
       {"txtCapacity", " 0.275 in²"}});
  row("Number of Teeth", "txtNumTeeth", "200",
      {{"txtNumTeeth", " 200"},
       {"txtToothPitch", " 2.400 in"},
       {"txtBite", " 0.030 in"},
       {"txtCapacity", " 0.300 in²"}});
  row("Tooth Pitch", "txtToothPitch", "1.75",
      {{"txtToothPitch", " 1.750 in"},
       {"txtNumTeeth", " 274"},  // the whole part of 274.28571
       {"txtBite", " 0.022 in"},
       {"txtCapacity", " 0.218 in²"}});
}

void frmPowerCalcTest::asksByAClick() {
  QFETCH(QString, box);
  QFETCH(QString, typed);
  QFETCH(Texts, changed);
  Open();
  Enter(box, 0, typed);
  QCOMPARE(bench_->User.Seen, QStringList(QString("frmCDialog: ") + QTest::currentDataTag()));
  QCOMPARE(TextsOf(0), With(Taken, changed));
  QCOMPARE(TextsOf(1), Empty());
}

void frmPowerCalcTest::asksByKeys() {
  Open();
  QVERIFY(Find<QWidget>("txtHPSawOD(0)")->hasFocus());
  bench_->User.Acts = {test::TypesAndEnters("6"), test::TypesAndEnters("9"), Cancels()};
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  QCOMPARE(Text("txtHPSawOD", 0), QString(" 6.000 ft"));
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Space);
  QCOMPARE(Text("txtCenters", 0), QString(" 9.000 ft"));
  QCOMPARE(Text("txtLength", 0), QString(" 36.850 ft"));  // 2 * 9 + 3.14159 * 6 = 36.84955
  QTest::keyClick(window_->focusWidget(), Qt::Key_Enter);
  QCOMPARE(Text("txtCenters", 0), QString(" 9.000 ft"));
  QVERIFY(!Find<QLineEdit>("txtCenters(0)")->hasSelectedText());
}

void frmPowerCalcTest::asksNothingForResults() {
  Open();
  for (const QString& box : Results) {
    Press(On(box, 0));
    Press(On("lbl" + box.mid(3), 1));
  }
  Press("lblRPMs(0)");  // captions ask nothing here
  QTest::qWait(5);
  QCOMPARE(bench_->User.Seen, QStringList());
  QCOMPARE(TextsOf(0), Taken);
}

void frmPowerCalcTest::keepsTheOtherSide() {
  Open();
  Enter("txtRPMs", 1, "500");
  Enter("txtHPSawOD", 1, "6");
  QCOMPARE(TextsOf(0), Taken);
  QCOMPARE(TextsOf(1),
           With(Empty(),
                {{"txtRPMs", " 500 rpms"}, {"txtHPSawOD", " 6.000 ft"}, {"txtSawVelocity", " 9425 fpm"}}));
}

void frmPowerCalcTest::showsNoPitchWithoutTeeth() {
  Open();
  Enter("txtLength", 1, "40");
  QCOMPARE(TextsOf(1), With(Empty(), {{"txtLength", " 40.000 ft"}}));
  QVERIFY(bench_->Program.Say.Shown.empty());
}

// ---- buttons

void frmPowerCalcTest::clearsOneSide() {
  Open();
  Press("cmdCopy");
  Press("cmdClear(0)");
  QCOMPARE(TextsOf(0), Empty());
  QCOMPARE(TextsOf(1), Taken);
  Press("cmdClear(1)");
  QCOMPARE(TextsOf(1), Empty());
}

void frmPowerCalcTest::copiesTheFirstOverTheSecond() {
  Open();
  Enter("txtRPMs", 1, "500");
  Press("cmdCopy");
  QCOMPARE(TextsOf(0), Taken);
  QCOMPARE(TextsOf(1), Taken);
}

void frmPowerCalcTest::beginsAnew() {
  Open();
  Press("cmdCopy");
  Press("cmdNew");
  QCOMPARE(TextsOf(0), Empty());
  QCOMPARE(TextsOf(1), Empty());
  QCOMPARE(window_->windowTitle(), QString("Power Calculator"));
}

void frmPowerCalcTest::savesAndOpens() {
  const test::TemporaryFolder folder;
  const std::string path = (folder.Path() / "oak.bsp").string();
  Open();
  Enter("txtRPMs", 1, "500");
  bench_->Program.Files.Paths = {path, path};
  Press("cmdSave");
  QCOMPARE(std::filesystem::file_size(path), std::uintmax_t{6705});
  QCOMPARE(window_->windowTitle(), QString("oak.bsp - Power Calculator"));
  Press("cmdNew");
  Press("cmdOpen");
  QCOMPARE(window_->windowTitle(), QString("oak.bsp - Power Calculator"));
  QCOMPARE(TextsOf(0), With(Taken, Figures));
  QCOMPARE(TextsOf(1), With(Empty(), {{"txtRPMs", " 500 rpms"}}));
}

void frmPowerCalcTest::keepsAllWhenNoFileIsChosen() {
  Open();
  bench_->Program.Files.Paths = {std::nullopt, std::nullopt};
  Press("cmdOpen");
  Press("cmdSave");
  QCOMPARE(bench_->Program.Files.Modes, std::vector<std::string>({"open", "save"}));
  QCOMPARE(TextsOf(0), Taken);
  QCOMPARE(window_->windowTitle(), QString("Power Calculator"));
}

void frmPowerCalcTest::keepsAllWhenTheFileIsRefused() {
  const test::TemporaryFolder folder;
  Open();
  bench_->Program.Files.Paths = {folder.File("no.bsp", std::string(6705, 'x')).string()};
  Press("cmdOpen");
  QCOMPARE(bench_->Program.Say.Texts(), std::vector<std::string>{"Not a valid Power File     "});
  QCOMPARE(TextsOf(0), Taken);
  QCOMPARE(window_->windowTitle(), QString("Power Calculator"));
}

void frmPowerCalcTest::showsAnyNameInItsTitle() {
  const test::TemporaryFolder folder;
  Open();
  bench_->Program.Files.Paths = {(folder.Path() / "a [*] & b.bsp").string()};
  Press("cmdSave");
  QCOMPARE(window_->windowTitle(), QString("a [*][*] & b.bsp - Power Calculator"));  // shown with one of them
}

void frmPowerCalcTest::takesAFeedIndexOfItsOwn() {
  Open();
  auto* list = Find<QComboBox>("cboFeedIndex");
  QCOMPARE(list->count(), 19);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down);
  QCOMPARE(list->currentText(), QString("75 Percent"));
  QCOMPARE(calculator_->FeedIndex(), 0.75);
  QCOMPARE(bench_->Settings().GulletFeedIndex, 0.7);
  QCOMPARE(TextsOf(0), With(Taken, Figures));  // both sides are worked out
}

// ---- the end

void frmPowerCalcTest::exits_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"Exit", "Escape", "close", "Alt+X"}) QTest::newRow(how) << how;
}

void frmPowerCalcTest::exits() {
  QFETCH(QString, how);
  Open();
  Enter("txtRPMs", 0, "600");
  bench_->Activate(*window_);
  if (how == "Exit") Press("cmdExit");
  if (how == "Escape") QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  if (how == "close") window_->close();
  if (how == "Alt+X") QTest::keyClick(window_->focusWidget(), Qt::Key_X, Qt::AltModifier);
  QTRY_VERIFY(!window_->isVisible());
  QVERIFY(!calculator_->IsOpen());
  QVERIFY(bench_->Program.Say.Shown.empty());  // nothing is asked
  QVERIFY(bench_->Program.Files.Modes.empty());
}

void frmPowerCalcTest::pressesNoButtonByEnterElsewhere() {
  Open();
  for (const char* control : {"txtHorsePower(0)", "txtBite(1)", "cboFeedIndex"}) {
    Find<QWidget>(control)->setFocus();
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    QVERIFY(window_->isVisible());
    QCOMPARE(TextsOf(0), Taken);
  }
}

void frmPowerCalcTest::pressesTheButtonThatHasTheFocus() {
  Open();
  Find<QWidget>("cmdCopy")->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  QCOMPARE(TextsOf(1), Taken);
  Find<QWidget>("cmdClear(0)")->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Space);
  QCOMPARE(TextsOf(0), Empty());
  QCOMPARE(TextsOf(1), Taken);
  Find<QWidget>("cmdExit")->setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Enter);
  QVERIFY(!window_->isVisible());
}

void frmPowerCalcTest::prints() {
  Open();
  Press("cmdPrint");
  QCOMPARE(prints_, 1);
  Find<QWidget>("cmdCopy")->setFocus();
  QCOMPARE(test::TabOrder(*window_, 6),
           QStringList({"cmdCopy", "cmdNew", "cmdOpen", "cmdSave", "cmdPrint", "cmdExit"}));
  QString keys = test::AccessKeys(*window_);
  std::sort(keys.begin(), keys.end());
  QCOMPARE(keys, QString("CNOPSX"));
}

void frmPowerCalcTest::opensTheManual() {
  Open();
  const std::vector<std::pair<QString, std::string>> topics = {{"txtCenters(0)", "topic 501"},
                                                               {"txtNumTeeth(1)", "topic 203"},
                                                               {"txtHPToothWidth(1)", "topic 36"},
                                                               {"txtHorsePower(0)", "topic 430"},
                                                               {"cmdSave", "topic 430"}};
  for (const auto& [control, topic] : topics) {
    bench_->Program.Help.Asked.clear();
    Find<QWidget>(control)->setFocus();
    QTest::keyClick(window_->focusWidget(), Qt::Key_F1);
    QCOMPARE(bench_->Program.Help.Asked, std::vector<std::string>{topic});
  }
}

// ---- for everybody

void frmPowerCalcTest::namesEveryControl() {
  Open();
  QCOMPARE(test::BadlySpoken(*window_,
                             SideControls(0) + SideControls(1) + QStringList("cboFeedIndex") + ButtonNames),
           QStringList());
  QCOMPARE(Find<QWidget>("txtFeedRate(1)")->accessibleName(),
           QString("Feed Rate (FPM) of the second calculation"));
}

void frmPowerCalcTest::tabsInReadingOrder() {
  Open();
  QCOMPARE(test::TabOrder(*window_, 60),
           SideControls(0) + SideControls(1) + QStringList("cboFeedIndex") + ButtonNames);
}

void frmPowerCalcTest::hasAccessKeys() {
  Open();
  QCOMPARE(test::AccessKeys(*window_), QString("CNOSPX"));
}

void frmPowerCalcTest::alignsItsBoxes() {
  Open();
  const auto place = [this](const QString& name) {
    auto* control = Find<QWidget>(name);
    return QRect(control->mapTo(window_.get(), QPoint()), control->size());
  };
  for (const QString& box : Boxes) {
    QCOMPARE(place(On(box, 0)).size(), place(On(box, 1)).size());
    QCOMPARE(place(On(box, 0)).top(), place(On(box, 1)).top());
    for (int side = 0; side < 2; ++side) {
      QCOMPARE(place(On(box, side)).left(), place(On(Boxes.first(), side)).left());
      QCOMPARE(place(On(box, side)).width(), place(On(Boxes.first(), side)).width());
      QCOMPARE(Find<MeasureBox>(On(box, side))->Opens(), !Results.contains(box));
    }
  }
  QCOMPARE(Find<QWidget>("fraPowerCalc(0)")->size(), Find<QWidget>("fraPowerCalc(1)")->size());
  QCOMPARE(place("fraPowerCalc(0)").top(), place("fraPowerCalc(1)").top());
}

void frmPowerCalcTest::fitsTheSmallestScreen_data() {
  QTest::addColumn<int>("points");
  for (int points = 8; points <= 9; ++points) QTest::addRow("%d points", points) << points;
}

/// 800 by 600 pixels, less a title bar.
void frmPowerCalcTest::fitsTheSmallestScreen() {
  QFETCH(int, points);
  const test::LargeFont font(points);
  BandSaw saw = test::PowerDesign();
  saw.GeneralInfo.WoodType.Assign("Cedar (Northern White)");
  Open(saw);
  Press("cmdCopy");
  QVERIFY2(window_->width() <= 800 && window_->height() <= 570,
           qPrintable(QString("%1 x %2").arg(window_->width()).arg(window_->height())));
  QVERIFY(test::ShowsAll(*window_));
  QCOMPARE(test::Cramped(*window_), QStringList());
  QCOMPARE(test::Clipped(*window_, {"cmdClear(0)", "cmdClear(1)", "cboFeedIndex"}), QStringList());
  for (const QString& name : ButtonNames) {  // these are slim
    const auto* button = Find<QPushButton>(name);
    QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) + 16 <= button->width());
  }
}

void frmPowerCalcTest::scrollsWhereTheLettersAreTooLarge() {
  const test::LargeFont font(20);
  Open();
  const QRect screen = window_->screen()->availableGeometry();
  QVERIFY(window_->width() <= screen.width() && window_->height() <= screen.height());
  const auto* area = window_->findChild<QScrollArea*>();
  QVERIFY(area->verticalScrollBar()->maximum() > 0);
  QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
  QCOMPARE(test::Cramped(*window_), QStringList());
  for (const QString& name : SideControls(0) + SideControls(1)) {
    const auto* control = window_->focusWidget();  // Tab brings it into sight
    QCOMPARE(control->objectName(), name);
    const QRect place(control->mapTo(area->viewport(), QPoint()), control->size());
    QVERIFY2(area->viewport()->rect().contains(place), qPrintable(name));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(test::Clipped(*window_, QStringList("cboFeedIndex") + ButtonNames), QStringList());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmPowerCalcTest)
#include "frmPowerCalc_test.moc"
