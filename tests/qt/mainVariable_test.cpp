#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>

#include "model/modZoom.h"
#include "platform/qt/MeasureBox.h"
#include "qt/MainWindow.h"
#include "support/FieldChanges.h"
#include "support/VariableRows.h"
#include "window/fraMain.h"

namespace tarnwick {
namespace {

using nlohmann::json;
using test::Named;

constexpr int Rows = 7;

const char* const Changed = "Bandsaw has been changed!\nDo you wish to keep the existing changes?\n";
const char* const UseTooth = "To change this value you must use the tooth shape editor.";

QByteArray Indexed(const char* name, int k) { return QString("%1(%2)").arg(name).arg(k).toUtf8(); }

std::string Bytes(const BandSaw& saw) { return BandSawText(saw); }

/// 240 teeth of 2 inches, all alike.
BandSaw ConstantDesign(int style = DoubleRadius) { return test::FullDesign(style); }

BandSaw WithTeeth(std::int16_t teeth) {
  BandSaw saw = ConstantDesign();
  saw.NumTeeth = teeth;
  saw.Length = teeth / 6.0;
  return saw;
}

struct Hinted {
  const char* Control;
  const char* Status;
  int Topic = 0;
};

const Hinted Hints[] = {
    {"txtVariableNumTeeth", ""},
    {"cboPattern", "Select the number of teeth in segment."},
    {"txtNumberOfSegments", ""},
    {"txtSegmentSize", "The length of one segment of variable pitch teeth."},
    {"optPattern(0)", "Click to select no preset tooth pitch pattern."},
    {"optPattern(1)", "Click to select the preset left to right tooth pitch pattern."},
    {"optPattern(2)", "Click to select the preset right to left tooth pitch pattern."},
    {"optPattern(3)", "Click to select the preset mixed tooth pitch pattern."},
    {"chkVarDepth", "Check if you want variable depth gullets."},
    {"txtToothSpace(0)", "Click to activate the first tooth pitch  input box.", 202},
    {"lblToothSpace(0)", "Click to activate the first tooth pitch  input box.", 202},
    {"txtToothSpace(1)", "Click to activate the second tooth pitch input box.", 202},
    {"txtToothSpace(2)", "Click to activate the third tooth pitch input box.", 202},
    {"txtToothSpace(3)", "Click to activate the fourth tooth pitch input box.", 202},
    {"txtToothSpace(4)", "Click to activate the fifth tooth pitch input box.", 202},
    {"txtToothSpace(5)", "Click to activate the sixth tooth pitch input box.", 202},
    {"txtToothSpace(6)", "Click to activate the seventh tooth pitch input box.", 202},
    {"txtToothDepth(0)", "Click to activate the first gullet depth input box.", 213},
    {"txtToothDepth(1)", "Click to activate the second gullet depth input box.", 213},
    {"txtToothDepth(2)", "Click to activate the third gullet depth input box.", 213},
    {"txtToothDepth(3)", "Click to activate the fourth gullet depth input box.", 213},
    {"txtToothDepth(4)", "Click to activate the fifth gullet depth input box.", 213},
    {"txtToothDepth(5)", "Click to activate the sixth gullet depth input box.", 213},
    {"txtToothDepth(6)", "Click to activate the seventh gullet depth input box.", 213},
    {"txtAverageSpace", "Displays the average tooth pitch."},
    {"txtAverageDepth", "Displays the average gullet depth."},
    {"cmdVariableReset", "Click to reset all variable pitch values."},
    {"cmdVariableOK", "Click to accept the variable pitch values."},
    {"cmdVariableCancel", "Click to discard any variable pitch changes."},
};

struct Refusal {
  const char* Name;
  BandSaw Saw;
  const char* Title;
  const char* Text;
};

const char* const NotDivisible = "Number of teeth must be divisible by 3, 4, or 5.";

std::vector<Refusal> Refusals() {
  BandSaw noStyle = ConstantDesign();  // a file can hold one that has lost it
  noStyle.ToothStyle = NoStyle;
  noStyle.ContainsInfo.Teeth = True;
  return {
      {"no teeth", {}, "Variable Pitch", "Bandsaw must have teeth before adjusting pitch!"},
      {"11 teeth", WithTeeth(11), "Tarnwick", NotDivisible},
      {"121 teeth", WithTeeth(121), "Tarnwick", NotDivisible},
      {"Narrow Style", ConstantDesign(NarrowStyle), "Tarnwick",
       "Variable pitch not available with the Narrow style tooth shape."},
      {"O Shape", ConstantDesign(OShape), "Tarnwick",
       "Variable pitch not available with the O shape tooth shape."},
      {"no style", noStyle, "Tarnwick", "Variable pitch not available with this tooth shape."},
  };
}

}  // namespace

// The variable pitch editor in the real window, with real dialogs, clicks and keys.
class mainVariableTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void comesOutAsComputed_data();
  void comesOutAsComputed();

  void opensByMenuAndToolBar();
  void offersTheCountsThatDivide_data();
  void offersTheCountsThatDivide();
  void saysWhyItDoesNotOpen_data();
  void saysWhyItDoesNotOpen();
  void asksAboutChanges_data();
  void asksAboutChanges();
  void staysWhereItShowsAlready();
  void asksWhereItShowsAlready();
  void letsOtherEditorsAsk();

  void acceptsTheSegment();
  void acceptsAtAnotherScale();
  void cancels();
  void cancelsToTheLastOk();
  void bringsTheUnitsBack();
  void resets();

  void drawsEachEditAtOnce();
  void viewsOneSegment();
  void viewsNoSegmentOfAConstantBand();
  void speaksMetric();
  void followsAnotherBandLength();

  void isEmptiedByStyles_data();
  void isEmptiedByStyles();
  void isEmptiedByNewAndOpen();

  void hintsAtEverything();
  void namesTheOwnerOfAFigure();
  void opensTheHelpOfTheFocus();
  void isWorkedByKeysOnASmallScreen();
  void isReachedByTheMouseOnASmallScreen();

 private:
  template <class Control>
  Control* The(const QByteArray& name) {
    return Named<Control>(*main_->Window, name.constData());
  }
  MeasureBox* Box(const char* name, int k) { return The<MeasureBox>(Indexed(name, k)); }

  void OpenPanel(const BandSaw& saw) {
    main_->Open(saw);
    main_->Do("mnuItemVariable");
    QCOMPARE(main_->Panel(), QString("fraVariable"));
  }

  // What a user does.
  bool Click(const QByteArray& control) {
    auto* widget = The<QWidget>(control);
    if (!main_->BringUp(widget)) return false;
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
    return true;
  }
  bool Enter(const char* box, int k, const QString& text) {
    main_->User.Acts = {test::Types(text)};
    return Click(Indexed(box, k)) && main_->User.Acts.empty();
  }
  bool Choose(int entry);
  bool Take(const json& step);
  bool Ask(const char* box, const json& step);
  bool CanTake(const json& step);

  json Seen();
  void ExpectEmpty();
  QString RowText();
  BandSaw WithoutSegmentLength(BandSaw saw) {
    saw.DesignInfo.SegmentLength = main_->Design().SawEdit.DesignInfo.SegmentLength;
    return saw;
  }
  void Resize(int width, int height) {
    main_->Window->resize(width, height);
    QApplication::processEvents();
  }

  std::unique_ptr<test::MainWindow> main_;
};

// ---- what a user does

/// By the keys of the list, as these can choose the entry again that is chosen.
bool mainVariableTest::Choose(int entry) {
  auto* list = The<QComboBox>("cboPattern");
  if (!main_->BringUp(list)) return false;
  list->setFocus();
  QTest::keyClick(list, Qt::Key_F4);
  QAbstractItemView* open = list->view();
  if (!QTest::qWaitFor([open] { return open->isVisible(); })) return false;
  QTest::keyClick(open, Qt::Key_Home);
  for (int i = 0; i < entry; ++i) QTest::keyClick(open, Qt::Key_Down);
  QTest::keyClick(open, Qt::Key_Return);
  return QTest::qWaitFor([open] { return !open->isVisible(); }) && main_->Window->focusWidget() == list;
}

/// A box that is hidden cannot be pressed; one that does not open asks nothing.
bool mainVariableTest::Ask(const char* name, const json& step) {
  const int k = step[1].get<int>();
  if (!Box(name, k)->isVisible()) return true;
  if (Box(name, k)->Opens()) {
    const auto typed = step[2].is_null() ? test::Cancels() : test::Types(ToQt(step[2].get<std::string>()));
    main_->User.Acts = {typed};
  }
  return Click(Indexed(name, k)) && main_->User.Acts.empty();
}

/// A check box cannot be ticked when it is.
bool mainVariableTest::CanTake(const json& step) {
  return step[0] != "tick" || step[1].get<bool>() != The<QCheckBox>("chkVarDepth")->isChecked();
}

bool mainVariableTest::Take(const json& step) {
  const std::string what = step[0].get<std::string>();
  if (what == "open") return main_->Do("mnuItemVariable"), true;
  if (what == "entry") return Choose(step[1].get<int>());
  if (what == "pattern") return Click(Indexed("optPattern", step[1].get<int>()));
  if (what == "tick") return Click("chkVarDepth");
  if (what == "reset") return Click("cmdVariableReset");
  if (what == "units") return Click(step[1].get<int>() == Metric ? "optMetric" : "optImperial");
  return Ask(what == "pitch" ? "txtToothSpace" : "txtToothDepth", step);
}

json mainVariableTest::Seen() {
  const auto* list = The<QComboBox>("cboPattern");
  QStringList entries;
  for (int entry = 0; entry < list->count(); ++entry) entries += list->itemText(entry);
  json seen{{"cboPattern", list->currentText().toStdString()},
            {"entries", entries.join(", ").toStdString()},
            {"chkVarDepth", The<QCheckBox>("chkVarDepth")->isChecked()}};
  for (int index = 0; index < Patterns; ++index) {
    if (The<QRadioButton>(Indexed("optPattern", index))->isChecked()) seen["optPattern"] = index;
  }
  for (const char* box :
       {"txtAverageSpace", "txtAverageDepth", "txtVariableNumTeeth", "txtNumberOfSegments", "txtSegmentSize"})
    seen[box] = main_->TextOf(box).toStdString();
  for (int k = 0; k < Rows; ++k) {
    for (const char* name : {"txtToothSpace", "txtToothDepth"}) {
      const MeasureBox* box = Box(name, k);
      seen[Indexed(name, k).toStdString()] =
          test::BoxMark(box->isVisible(), box->Opens(), box->text().toStdString());
    }
  }
  return seen;
}

void mainVariableTest::ExpectEmpty() {
  const auto* panel = The<QWidget>("fraVariable");
  const auto boxes = panel->findChildren<MeasureBox*>();
  QCOMPARE(boxes.size(), 2 * Rows + 5);
  for (const MeasureBox* box : boxes) QVERIFY2(box->text().isEmpty(), qPrintable(box->objectName()));
  QCOMPARE(The<QComboBox>("cboPattern")->count(), 0);
  QVERIFY(The<QRadioButton>("optPattern(0)")->isChecked());
  QVERIFY(!The<QCheckBox>("chkVarDepth")->isChecked());
}

QString mainVariableTest::RowText() {
  QString text;
  for (const InfoRow& row : The<fraMain>("fraMain")->Rows()) text += ToQt(row.Caption + row.Value + '\n');
  return text;
}

// ---- against what was worked out apart from the program

void mainVariableTest::comesOutAsComputed_data() {
  QTest::addColumn<std::size_t>("row");
  for (std::size_t row = 0; row < test::VariableRows().size(); ++row) {
    const std::string name = test::VariableRows()[row]["name"];
    if (name == "opens on 121 teeth") continue;                                            // it does not
    if (name.starts_with("random") && name.back() != '0' && name.back() != '5') continue;  // enough of them
    QTest::newRow(name.c_str()) << row;
  }
}

/// Every control and every field after each step, the drawing too; and Cancel takes it all back.
void mainVariableTest::comesOutAsComputed() {
  QFETCH(std::size_t, row);
  const json& story = test::VariableRows().at(row);
  main_->OpenBlank();
  Config& settings = main_->Design().Settings;
  settings.Calculation.DecimalPlaces = story["DecimalPlaces"].get<std::int16_t>();
  settings.Calculation.DisplayPlaces = story["DisplayPlaces"].get<std::int16_t>();
  BandSaw saw = test::DesignOf(story);
  saw.ImpMetric = story["ImpMetric"].get<std::int16_t>();
  main_->Program.Files.Paths = {main_->Folder.File("story.bsw", BandSawText(saw)).string()};
  main_->Do("mnuItemOpen");
  const BandSaw opened = main_->Saw();
  json seen, stored;
  for (const json& step : story["steps"]) {
    if (!CanTake(step["do"])) break;
    seen.update(step["seen"]);
    stored.update(step["stored"]);
    QVERIFY2(Take(step["do"]), step["do"].dump().c_str());
    const json now = Seen();
    QVERIFY2(now == seen, (step["do"].dump() + json::diff(seen, now).dump()).c_str());
    const std::string differing = test::DifferingFields(main_->Saw(), stored);
    QVERIFY2(differing.empty(), (step["do"].dump() + differing).c_str());
    QVERIFY2(main_->Drawing() == main_->Drawn(main_->Saw()), step["do"].dump().c_str());
  }
  QVERIFY(Click("cmdVariableCancel"));
  QVERIFY(SameSaw(main_->Saw(), opened));
  QVERIFY(main_->Drawing() == main_->Drawn(opened));
  QVERIFY(!main_->User.Seen.contains("not expected") && !main_->User.Seen.contains("left open"));
}

// ---- opening

void mainVariableTest::opensByMenuAndToolBar() {
  main_->Open(ConstantDesign());
  const BandSaw before = main_->Saw();
  const std::string drawn = main_->Drawing();
  const QString scale = main_->TextOf("txtScale");
  QCOMPARE(Named<QAction>(*main_->Window, "mnuItemVariable")->text(), QString("Variable Pitch"));
  for (const bool byButton : {false, true}) {
    if (byButton) {
      QVERIFY(Click("tlbVariable"));
    } else {
      main_->Do("mnuItemVariable");
    }
    QCOMPARE(main_->Panel(), QString("fraVariable"));
    QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(before));
    QCOMPARE(test::ChangedFields(before, main_->Saw()), std::set<std::string>{"DesignInfo.SegmentLength"});
    QCOMPARE(main_->Saw().DesignInfo.SegmentLength, 6.0);
    QCOMPARE(The<QComboBox>("cboPattern")->currentText(), QString("3 Teeth"));
    QVERIFY(The<QRadioButton>("optPattern(0)")->isChecked());
    QCOMPARE(main_->TextOf("txtToothSpace(0)"), QString(" 2.000 in"));
    QCOMPARE(main_->TextOf("txtNumberOfSegments"), QString(" 80"));
    QVERIFY(main_->Drawing() == drawn);
    QCOMPARE(main_->TextOf("txtScale"), scale);
    QVERIFY(!The<QWidget>("cmdVariablePrint")->isVisible() || The<QWidget>("cmdVariablePrint")->isEnabled());
    QVERIFY(Click("cmdVariableCancel"));
  }
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainVariableTest::offersTheCountsThatDivide_data() {
  QTest::addColumn<int>("teeth");
  QTest::addColumn<QString>("entries");
  QTest::newRow("100") << 100 << "None, 4 Teeth, 5 Teeth";
  QTest::newRow("98") << 98 << "None, 7 Teeth";
  QTest::newRow("420") << 420 << "None, 3 Teeth, 4 Teeth, 5 Teeth, 6 Teeth, 7 Teeth";
}

void mainVariableTest::offersTheCountsThatDivide() {
  QFETCH(int, teeth);
  QFETCH(QString, entries);
  OpenPanel(WithTeeth(static_cast<std::int16_t>(teeth)));
  const json seen = Seen();
  QCOMPARE(ToQt(seen["entries"].get<std::string>()), entries);
  QCOMPARE(ToQt(seen["cboPattern"].get<std::string>()), entries.split(", ").at(1));
}

void mainVariableTest::saysWhyItDoesNotOpen_data() {
  QTest::addColumn<int>("number");
  int number = 0;
  for (const Refusal& refusal : Refusals()) QTest::newRow(refusal.Name) << number++;
}

void mainVariableTest::saysWhyItDoesNotOpen() {
  QFETCH(int, number);
  const Refusal refusal = Refusals()[static_cast<std::size_t>(number)];
  main_->Open(refusal.Saw);
  main_->Program.Say.Shown.clear();  // an O tooth may have said what it thinks of its measures
  const BandSaw before = main_->Saw();
  for (const char* way : {"mnuItemVariable", "tlbVariable"}) {
    main_->Program.Say.Shown.clear();
    if (QByteArray(way).startsWith("tlb")) {
      QVERIFY(Click(way));
    } else {
      main_->Do(way);
    }
    QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(1));
    const tarnwick::Box& said = main_->Program.Say.Shown.front();
    QCOMPARE(said.Title, std::string(refusal.Title));
    QCOMPARE(said.Text, std::string(refusal.Text));
    QVERIFY(said.Offer == Buttons::Ok);
    QCOMPARE(main_->Panel(), QString("fraMain"));
    QVERIFY(Bytes(main_->Saw()) == Bytes(before));
    QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(before));
    ExpectEmpty();
  }
}

void mainVariableTest::asksAboutChanges_data() {
  QTest::addColumn<int>("answer");
  QTest::newRow("yes") << static_cast<int>(Button::Yes);
  QTest::newRow("no") << static_cast<int>(Button::No);
  QTest::newRow("cancel") << static_cast<int>(Button::Cancel);
}

void mainVariableTest::asksAboutChanges() {
  QFETCH(int, answer);
  const auto said = static_cast<Button>(answer);
  main_->Open(ConstantDesign());
  const BandSaw before = main_->Saw();
  const std::string drawn = main_->Drawing();
  main_->Do("mnuItemToothShape");
  main_->User.Acts = {test::Types("15"), test::Types("0.7")};
  QVERIFY(Click("txtHook"));
  QVERIFY(Click("txtGulletDepth"));
  QVERIFY(Click("optMetric"));
  const BandSaw edited = main_->Saw();

  main_->Program.Say.Answers = {said};
  main_->Do("mnuItemVariable");
  QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(1));
  const tarnwick::Box& asked = main_->Program.Say.Shown.front();
  QCOMPARE(asked.Title, std::string("Changed"));
  QCOMPARE(asked.Text, std::string(Changed));
  QVERIFY(asked.Offer == Buttons::YesNoCancel && asked.Shown == Icon::Question);
  QVERIFY(asked.Default == Button::No);  // the other editors' is Cancel

  const bool stays = said == Button::Cancel;
  const BandSaw& now = said == Button::No ? before : edited;
  QCOMPARE(main_->Panel(), QString(stays ? "fraToothShape" : "fraVariable"));
  QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(stays ? before : now));
  QVERIFY(Bytes(stays ? main_->Saw() : WithoutSegmentLength(main_->Saw())) == Bytes(now));
  QVERIFY(main_->Drawing() == main_->Drawn(now));
  QCOMPARE(main_->Drawing() == drawn, said == Button::No);
  QCOMPARE(The<QRadioButton>("optMetric")->isChecked(), said != Button::No);
  if (!stays)
    QCOMPARE(main_->TextOf("txtAverageDepth"), QString(said == Button::No ? " 0.800 in" : " 1.778 cm"));
}

void mainVariableTest::staysWhereItShowsAlready() {
  OpenPanel(test::VariableDesign());
  const BandSaw before = main_->Saw();
  const json seen = Seen();
  main_->Do("mnuItemVariable");
  QVERIFY(Click("tlbVariable"));
  QVERIFY(main_->Program.Say.Shown.empty());
  QCOMPARE(main_->Panel(), QString("fraVariable"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QVERIFY(Seen() == seen);
}

void mainVariableTest::asksWhereItShowsAlready() {
  OpenPanel(test::VariableDesign());
  const BandSaw before = main_->Saw();
  const std::string drawn = main_->Drawing();
  const json seen = Seen();
  QVERIFY(Click("optPattern(3)"));
  QVERIFY(Click("chkVarDepth"));
  const BandSaw edited = main_->Saw();
  const json changed = Seen();
  QVERIFY(changed != seen);
  for (const Button answer : {Button::Yes, Button::Cancel, Button::Yes}) {
    main_->Program.Say.Answers = {answer};
    main_->Do("mnuItemVariable");
    QVERIFY(main_->Program.Say.Answers.empty());
    QCOMPARE(main_->Panel(), QString("fraVariable"));
    QVERIFY(Bytes(main_->Saw()) == Bytes(edited));
    QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(before));
    QVERIFY(Seen() == changed);
  }
  main_->Program.Say.Answers = {Button::No};
  main_->Do("mnuItemVariable");
  QCOMPARE(main_->Panel(), QString("fraVariable"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  QVERIFY(main_->Drawing() == drawn);
  QVERIFY(Seen() == seen);
  QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(4));
}

/// Opening the panel of a constant band has noted the length of its segment: that counts as a change.
void mainVariableTest::letsOtherEditorsAsk() {
  OpenPanel(ConstantDesign());
  main_->Program.Say.Answers = {Button::Cancel, Button::No};
  main_->Do("mnuItemGeneral");
  QCOMPARE(main_->Panel(), QString("fraVariable"));
  main_->Do("mnuItemGeneral");
  QCOMPARE(main_->Panel(), QString("fraGeneral"));
  QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(2));
  QVERIFY(main_->Program.Say.Shown[0].Default == Button::Cancel);
  QCOMPARE(main_->Saw().DesignInfo.SegmentLength, 0.0);
}

// ---- leaving

void mainVariableTest::acceptsTheSegment() {
  OpenPanel(ConstantDesign());
  QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
  QVERIFY(Click("optPattern(3)"));
  QVERIFY(Click("chkVarDepth"));
  const BandSaw edited = main_->Saw();
  const std::string drawn = main_->Drawing();
  main_->Program.Time.Waited.clear();
  QVERIFY(Click("cmdVariableOK"));
  QCOMPARE(main_->Program.Time.Waited.size(), std::size_t(1));  // the button is seen to come up
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(edited));
  QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(edited));
  QVERIFY(!SameSaw(main_->Saw(), main_->Design().SawSaved));
  QVERIFY(main_->Drawing() == drawn);
  QVERIFY(RowText().contains("Variable Pitch:\nTeeth in Segment: 3\nLength of Segment: 6.000 in\n"));
  QVERIFY(RowText().contains("    Pitch: 1.782 in\n"));

  const QString scale = main_->TextOf("txtScale");
  const QImage picture = main_->Picture();
  QVERIFY(scale != "1.0");
  main_->Do("mnuItemAll");
  QCOMPARE(main_->TextOf("txtScale"), scale);
  QVERIFY(main_->Picture() == picture);
  main_->Do("mnuItemGeneral");
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainVariableTest::acceptsAtAnotherScale() {
  OpenPanel(ConstantDesign());
  main_->Do("mnuItemOut");
  const QString scale = main_->TextOf("txtScale");
  QVERIFY(scale != "1.0");
  QVERIFY(Click("optPattern(1)"));
  const QImage picture = main_->Picture();
  QVERIFY(Click("cmdVariableOK"));
  QCOMPARE(main_->TextOf("txtScale"), scale);
  QVERIFY(main_->Picture() == picture);
}

void mainVariableTest::cancels() {
  for (const char* view : {"mnuItemFullScale", "mnuItemAll"}) {
    main_ = std::make_unique<test::MainWindow>();
    main_->Open(ConstantDesign());
    main_->Do(view);
    const BandSaw before = main_->Saw();
    const QImage picture = main_->Picture();
    const QString rows = RowText(), scale = main_->TextOf("txtScale");
    main_->Do("mnuItemVariable");
    QVERIFY(Choose(3));
    QVERIFY(Click("chkVarDepth"));
    QVERIFY(main_->Picture() != picture);
    main_->Program.Time.Waited.clear();
    QVERIFY(Click("cmdVariableCancel"));
    QCOMPARE(main_->Program.Time.Waited.size(), std::size_t(1));
    QCOMPARE(main_->Panel(), QString("fraMain"));
    QVERIFY(Bytes(main_->Saw()) == Bytes(before));
    QVERIFY(main_->Drawing() == main_->Drawn(before));
    QVERIFY(main_->Picture() == picture);
    QCOMPARE(main_->TextOf("txtScale"), scale);
    QCOMPARE(RowText(), rows);
    main_->Do("mnuItemVariable");
    QCOMPARE(The<QComboBox>("cboPattern")->currentText(), QString("3 Teeth"));
    QVERIFY(!The<QCheckBox>("chkVarDepth")->isChecked());
    QVERIFY(main_->Program.Say.Shown.empty());
  }
}

void mainVariableTest::cancelsToTheLastOk() {
  OpenPanel(ConstantDesign());
  QVERIFY(Click("optPattern(1)"));
  QVERIFY(Click("cmdVariableOK"));
  const BandSaw accepted = main_->Saw();
  main_->Do("mnuItemVariable");
  QVERIFY(Click("optPattern(2)"));
  QVERIFY(Click("cmdVariableCancel"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(accepted));
  QVERIFY(main_->Drawing() == main_->Drawn(accepted));
  main_->Do("mnuItemVariable");
  QVERIFY(The<QRadioButton>("optPattern(1)")->isChecked());
}

void mainVariableTest::bringsTheUnitsBack() {
  OpenPanel(ConstantDesign());
  QVERIFY(Click("optMetric"));
  QVERIFY(Click("cmdVariableCancel"));
  QVERIFY(The<QRadioButton>("optImperial")->isChecked());
  QCOMPARE(main_->Design().ImpMetric, std::int16_t{Imperial});
  QVERIFY(RowText().contains("Length: 40.000 ft\n"));
  main_->Do("mnuItemVariable");
  QCOMPARE(main_->TextOf("txtAverageSpace"), QString(" 2.000 in"));
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainVariableTest::resets() {
  main_->Open(ConstantDesign());
  const std::string constant = main_->Drawing();
  main_->Do("mnuItemVariable");
  QVERIFY(Choose(4));
  QVERIFY(Click("optPattern(2)"));
  QVERIFY(Click("chkVarDepth"));
  QVERIFY(Enter("txtToothSpace", 1, "2.2"));
  QVERIFY(main_->Drawing() != constant);
  QVERIFY(Click("cmdVariableReset"));
  QCOMPARE(main_->Panel(), QString("fraVariable"));
  QVERIFY(The<QRadioButton>("optPattern(0)")->isChecked());
  QVERIFY(!The<QCheckBox>("chkVarDepth")->isChecked());
  QCOMPARE(The<QComboBox>("cboPattern")->currentText(), QString("None"));
  for (int k = 0; k < Rows; ++k) QVERIFY(!Box("txtToothSpace", k)->isVisible());
  QVERIFY(main_->Drawing() == constant);
  const BandSaw::General& general = main_->Saw().GeneralInfo;
  QCOMPARE(general.VariablePitch, False);
  QCOMPARE(general.VariableDepth, False);
  QCOMPARE(general.NumVariables, std::int16_t{0});
  for (int k = 0; k < Rows; ++k) QCOMPARE(general.VarPitch[static_cast<std::size_t>(k)], 2.0);
  QCOMPARE(main_->Saw().DesignInfo.VarPattern, std::int16_t{0});
}

// ---- the drawing, units

void mainVariableTest::drawsEachEditAtOnce() {
  OpenPanel(ConstantDesign());
  QImage picture = main_->Picture();
  const auto isDrawn = [&] {
    const QImage before = picture;
    picture = main_->Picture();
    return picture != before && main_->Drawing() == main_->Drawn(main_->Saw());
  };
  QVERIFY(Choose(2));
  QVERIFY(isDrawn());
  QVERIFY(Click("optPattern(3)"));
  QVERIFY(isDrawn());
  QVERIFY(Enter("txtToothSpace", 0, "2.4"));
  QVERIFY(isDrawn());
  QVERIFY(Click("chkVarDepth"));
  QVERIFY(isDrawn());
  QVERIFY(Enter("txtToothDepth", 0, "0.9"));
  QVERIFY(isDrawn());
  QVERIFY(Click("cmdVariableReset"));
  QVERIFY(isDrawn());
}

void mainVariableTest::viewsOneSegment() {
  OpenPanel(ConstantDesign());
  QVERIFY(Choose(3));
  auto* box = Box("txtToothSpace", 0);
  box->setFocus();
  QTest::keyClick(box, Qt::Key_S, Qt::ControlModifier);
  const double segment = main_->Saw().DesignInfo.SegmentLength, pitch = main_->Saw().Pitch;
  QCOMPARE(segment, 10.0);
  const auto* surface = The<DrawingSurface>("PicEditor");
  const Mapping mapping = main_->Design().View.CurrentMapping();
  const double left = -mapping.OriginX / mapping.PixelsPerUnit;
  const double right = (surface->width() - mapping.OriginX) / mapping.PixelsPerUnit;
  const double middle = (mapping.OriginY - surface->height() / 2.0) / mapping.PixelsPerUnit;
  QVERIFY(std::abs(right - left - (segment + pitch)) < 0.01);
  QVERIFY(std::abs((left + right) / 2 - (pitch / 2 + segment) / 2) < 0.02);
  QVERIFY(std::abs(middle - (main_->Saw().Width - main_->Saw().GulletInfo.Depth / 2)) < 0.02);
  QVERIFY(left < 0 && right > segment);  // from the first tip to the first of the next segment
  const QImage picture = main_->Picture();
  const QString scale = main_->TextOf("txtScale");
  main_->Do("mnuItemAll");
  QVERIFY(Click("tlbViewVar"));
  QCOMPARE(main_->TextOf("txtScale"), scale);
  QVERIFY(main_->Picture() == picture);
  QVERIFY(Click("optPattern(2)"));  // edits leave the view as it is
  QCOMPARE(main_->TextOf("txtScale"), scale);
  QVERIFY(main_->Picture() != picture);
  QVERIFY(Click("cmdVariableOK"));
  QCOMPARE(main_->TextOf("txtScale"), scale);
}

void mainVariableTest::viewsNoSegmentOfAConstantBand() {
  OpenPanel(ConstantDesign());
  const QImage picture = main_->Picture();
  main_->Do("mnuItemVarSegment");
  QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
  QVERIFY(main_->Picture() == picture);
}

void mainVariableTest::speaksMetric() {
  OpenPanel(ConstantDesign());
  QVERIFY(Click("optPattern(1)"));
  QVERIFY(Click("chkVarDepth"));
  const std::string drawn = main_->Drawing();
  QVERIFY(Click("optMetric"));
  QVERIFY(main_->Drawing() == drawn);
  QCOMPARE(main_->TextOf("txtToothSpace(0)"), QString(" 5.654 cm"));
  QCOMPARE(main_->TextOf("txtToothDepth(0)"), QString(" 2.262 cm"));
  QCOMPARE(main_->TextOf("txtAverageSpace"), QString(" 5.080 cm"));
  QCOMPARE(main_->TextOf("txtAverageDepth"), QString(" 2.032 cm"));
  QCOMPARE(main_->TextOf("txtSegmentSize"), QString(" 15.240 cm"));
  QCOMPARE(main_->TextOf("txtVariableNumTeeth"), QString(" 240"));
  main_->User.Acts = {[](QDialog& dialog) {
    QVERIFY(dialog.windowTitle() == "Tooth Space");
    test::Types("5.4")(dialog);
  }};
  QVERIFY(Click("txtToothSpace(0)"));
  QCOMPARE(main_->TextOf("txtToothSpace(0)"), QString(" 5.400 cm"));
  QVERIFY(std::abs(main_->Saw().GeneralInfo.VarPitch[0] - 5.4 / 2.54) < 1e-5);
  QVERIFY(Enter("txtToothDepth", 1, "2"));
  QCOMPARE(main_->TextOf("txtToothDepth(1)"), QString(" 2.000 cm"));
  QVERIFY(Click("cmdVariableOK"));
  QVERIFY(RowText().contains("Length of Segment: 15.240 cm\n"));
  QVERIFY(The<QRadioButton>("optMetric")->isChecked());
}

/// The calculator can be opened beside the panel.
void mainVariableTest::followsAnotherBandLength() {
  OpenPanel(ConstantDesign());
  QVERIFY(Click("optPattern(3)"));
  main_->User.Acts = {[](QDialog& calculator) {
    test::Click(calculator, "chkLength(1)");
    test::Click(calculator, "cmdOk");
  }};
  main_->Do("mnuItemBandLength");
  QCOMPARE(main_->User.Seen.size(), 1);
  const BandSaw& saw = main_->Saw();
  QVERIFY(saw.NumTeeth != 240);
  QCOMPARE(main_->Panel(), QString("fraVariable"));
  QCOMPARE(main_->TextOf("txtVariableNumTeeth"), QString(" %1").arg(saw.NumTeeth));
  const DisplayFormat format = main_->Design().Format();
  QCOMPARE(main_->TextOf("txtAverageSpace"), ToQt(FormatNumber(saw.Pitch, Inches, format)));
  const int count = The<QComboBox>("cboPattern")->count();
  for (int entry = 1; entry < count; ++entry) {
    const QString text = The<QComboBox>("cboPattern")->itemText(entry);
    QCOMPARE(saw.NumTeeth % text.left(1).toInt(), 0);
    QVERIFY(Choose(entry));
    double sum = 0;
    for (int k = 0; k < saw.GeneralInfo.NumVariables; ++k)
      sum += saw.GeneralInfo.VarPitch[static_cast<std::size_t>(k)];
    QVERIFY(std::abs(sum - saw.GeneralInfo.NumVariables * saw.Pitch) < 1e-9);
  }
}

// ---- emptied

void mainVariableTest::isEmptiedByStyles_data() {
  QTest::addColumn<QString>("style");
  QTest::addColumn<QString>("refusal");
  QTest::newRow("narrow") << "Narrow Style"
                          << "Variable pitch not available with the Narrow style tooth shape.";
  QTest::newRow("O") << "O Shape"
                     << "Variable pitch not available with the O shape tooth shape.";
}

void mainVariableTest::isEmptiedByStyles() {
  QFETCH(QString, style);
  QFETCH(QString, refusal);
  OpenPanel(test::VariableDesign());
  QVERIFY(Click("cmdVariableOK"));
  QCOMPARE(main_->TextOf("txtToothSpace(0)"), QString(" 1.900 in"));
  main_->Do("mnuItemToothShape");
  main_->User.Acts = {test::Types(style)};
  QVERIFY(Click("txtToothStyle"));
  ExpectEmpty();
  const BandSaw& saw = main_->Saw();
  QCOMPARE(saw.GeneralInfo.VariablePitch, False);
  QCOMPARE(saw.GeneralInfo.VariableDepth, False);
  QCOMPARE(saw.GeneralInfo.NumVariables, std::int16_t{0});
  QCOMPARE(saw.DesignInfo.SegmentLength, 0.0);
  QVERIFY(!RowText().contains("Variable Pitch:") || main_->Panel() != "fraMain");

  main_->Program.Say.Shown.clear();
  main_->Program.Say.Answers = {Button::Yes};
  main_->Do("mnuItemVariable");
  QCOMPARE(main_->Program.Say.Texts(), (std::vector<std::string>{Changed, refusal.toStdString()}));
  QCOMPARE(main_->Panel(), QString("fraToothShape"));

  main_->User.Acts = {test::Types("Double Radius")};
  QVERIFY(Click("txtToothStyle"));
  ExpectEmpty();
  main_->Program.Say.Answers = {Button::Yes};
  main_->Do("mnuItemVariable");
  QCOMPARE(main_->Panel(), QString("fraVariable"));
  QCOMPARE(main_->TextOf("txtToothSpace(0)"), QString(" 2.000 in"));
}

void mainVariableTest::isEmptiedByNewAndOpen() {
  BandSaw other = WithTeeth(98);
  other.GeneralInfo.VariablePitch = True;
  other.GeneralInfo.NumVariables = 7;
  other.GeneralInfo.VarPitch = {2, 2.1, 1.9, 2, 2.1, 1.9, 2};
  other.DesignInfo.VarPattern = MixedPattern;
  OpenPanel(test::VariableDesign());
  QVERIFY(Click("optPattern(1)"));
  main_->Program.Say.Answers = {Button::No};
  main_->Do("mnuItemNew");
  QCOMPARE(main_->Panel(), QString("fraMain"));
  ExpectEmpty();
  QVERIFY(main_->Design().Lines.Entities.empty() || main_->Drawing() == main_->Drawn({}));

  main_->Program.Files.Paths = {main_->Folder.File("other.bsw", BandSawText(other)).string()};
  main_->Do("mnuItemOpen");
  ExpectEmpty();
  main_->Do("mnuItemVariable");
  QCOMPARE(The<QComboBox>("cboPattern")->currentText(), QString("7 Teeth"));
  QVERIFY(The<QRadioButton>("optPattern(3)")->isChecked());
  QCOMPARE(main_->TextOf("txtToothSpace(6)"), QString(" 2.000 in"));

  main_->Program.Files.Paths = {main_->Folder.File("plain.bsw", BandSawText(ConstantDesign())).string()};
  main_->Program.Say.Answers = {Button::No};
  main_->Do("mnuItemOpen");
  QCOMPARE(main_->Panel(), QString("fraMain"));
  ExpectEmpty();
  main_->Do("mnuItemVariable");
  QCOMPARE(The<QComboBox>("cboPattern")->currentText(), QString("3 Teeth"));
  QVERIFY(The<QRadioButton>("optPattern(0)")->isChecked());
}

// ---- hints, help, keys

void mainVariableTest::hintsAtEverything() {
  OpenPanel(WithTeeth(98));
  for (const Hinted& row : Hints) {
    auto* control = The<QWidget>(row.Control);
    QVERIFY2(main_->BringUp(control), row.Control);
    main_->PointAt(control);
    QVERIFY2(main_->Status() == row.Status, qPrintable(row.Control + (": " + main_->Status())));
    QCOMPARE(main_->Hint(), QString());
    main_->Program.Help.Asked.clear();
    QTest::keyClick(The<QWidget>("PicEditor"), Qt::Key_F1);  // the focus stands somewhere else
    QCOMPARE(main_->Program.Help.Asked, std::vector<std::string>{"topic " + std::to_string(row.Topic)});
  }
  main_->PointAt(QPoint(60, 300));
  QCOMPARE(main_->Status(), QString());
  QVERIFY(main_->User.Seen.empty());
}

void mainVariableTest::namesTheOwnerOfAFigure() {
  OpenPanel(ConstantDesign());
  for (const char* box : {"txtVariableNumTeeth", "txtAverageSpace", "txtAverageDepth"}) {
    main_->PointAt(The<QWidget>(box));
    QVERIFY(Click(box));
    QCOMPARE(main_->Status(), QString(UseTooth));
    main_->PointAt(QPoint(60, 300));
    QCOMPARE(main_->Status(), QString());
    QTest::keyClick(The<QWidget>(box), Qt::Key_Return);
    QCOMPARE(main_->Status(), QString(UseTooth));
  }
  // What is worked out here asks nothing and says nothing.
  for (const char* box : {"txtSegmentSize", "txtNumberOfSegments", "txtToothSpace(2)", "txtToothDepth(0)"}) {
    main_->PointAt(The<QWidget>(box));
    const QString hint = main_->Status();
    QVERIFY(Click(box));
    QCOMPARE(main_->Status(), hint);
  }
  QVERIFY(main_->User.Seen.empty());
}

void mainVariableTest::opensTheHelpOfTheFocus() {
  OpenPanel(WithTeeth(98));
  for (const Hinted& row : Hints) {
    auto* control = The<QWidget>(row.Control);
    if (QByteArray(row.Control).startsWith("lbl")) continue;
    main_->PointAt(QPoint(60, 300));
    control->setFocus();
    main_->Program.Help.Asked.clear();
    QTest::keyClick(control, Qt::Key_F1);
    QVERIFY2(main_->Program.Help.Asked == std::vector<std::string>{"topic " + std::to_string(row.Topic)},
             row.Control);
  }
}

void mainVariableTest::isWorkedByKeysOnASmallScreen() {
  main_->Open(WithTeeth(84));
  Resize(800, 600);
  const auto key = [this](Qt::Key what) { QTest::keyClick(main_->Window->focusWidget(), what); };
  const auto reaches = [this](const QByteArray& name) {
    auto* control = The<QWidget>(name);
    return main_->TabTo(control) && control->visibleRegion().boundingRect() == control->rect();
  };
  const auto focus = [this] { return main_->Window->focusWidget()->objectName(); };

  key(Qt::Key_F10);
  for (int i = 0; i < 20 && focus() != "tlbVariable"; ++i) key(Qt::Key_Right);
  QCOMPARE(focus(), QString("tlbVariable"));
  key(Qt::Key_Return);
  QCOMPARE(main_->Panel(), QString("fraVariable"));

  QVERIFY(reaches("cboPattern"));
  for (int i = 0; i < 3; ++i) key(Qt::Key_Down);
  QCOMPARE(The<QComboBox>("cboPattern")->currentText(), QString("7 Teeth"));
  QVERIFY(reaches("optPattern(1)"));
  key(Qt::Key_Down);
  QVERIFY(The<QRadioButton>("optPattern(3)")->isChecked());
  QVERIFY(reaches("chkVarDepth"));
  key(Qt::Key_Space);
  QVERIFY(The<QCheckBox>("chkVarDepth")->isChecked());
  for (int k = 0; k < Rows; ++k) {
    QVERIFY(reaches(Indexed("txtToothSpace", k)));
    QCOMPARE(main_->Status(), ToQt(Hints[k == 0 ? 9 : 10 + k].Status));
    QVERIFY(reaches(Indexed("txtToothDepth", k)));
    QCOMPARE(main_->Status(), ToQt(Hints[17 + k].Status));
  }
  QVERIFY(reaches("txtToothSpace(2)"));
  main_->User.Acts = {test::TypesAndEnters("2.1")};
  key(Qt::Key_Return);
  QCOMPARE(main_->TextOf("txtToothSpace(2)"), QString(" 2.100 in"));
  QCOMPARE(focus(), QString("txtToothSpace(2)"));
  QVERIFY(reaches("txtToothDepth(6)"));
  main_->User.Acts = {test::TypesAndEnters(".6")};
  key(Qt::Key_Space);
  QCOMPARE(main_->TextOf("txtToothDepth(6)"), QString(" 0.600 in"));
  QVERIFY(reaches("cmdVariableReset"));
  QVERIFY(reaches("cmdVariableCancel"));
  QVERIFY(reaches("optImperial"));
  const BandSaw edited = main_->Saw();
  QVERIFY(reaches("cmdVariableOK"));
  key(Qt::Key_Return);
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(Bytes(main_->Design().SawEdit) == Bytes(edited));
  QVERIFY(!main_->User.Seen.contains("not expected"));
}

void mainVariableTest::isReachedByTheMouseOnASmallScreen() {
  OpenPanel(WithTeeth(98));
  QVERIFY(Click("chkVarDepth"));
  QVERIFY(Click("optMetric"));
  Resize(800, 600);
  const QRect inside = main_->Window->rect();
  for (const Hinted& row : Hints) {
    auto* control = The<QWidget>(row.Control);
    QVERIFY2(main_->BringUp(control), row.Control);
    const QRect place(control->mapTo(main_->Window.get(), QPoint()), control->size());
    QVERIFY2(inside.contains(place), row.Control);
    QVERIFY2(control->isEnabled(), row.Control);
    if (const auto* box = qobject_cast<MeasureBox*>(control))
      QVERIFY2(box->fontMetrics().horizontalAdvance(box->text()) + 4 <= box->width(), row.Control);
    else
      QVERIFY2(control->width() >= control->minimumSizeHint().width(), row.Control);
  }
  QVERIFY(The<QWidget>("cmdVariableOK")->isVisible());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainVariableTest)
#include "mainVariable_test.moc"
