#include "entry/frmCDialog.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "entry/modCalculate.h"
#include "entry/modPresetList.h"
#include "platform/qt/PictureBox.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtText.h"
#include "qt/Controls.h"
#include "support/CollectedMessages.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {
namespace {

using test::Named;

const QStringList Controls = {"lblDisplay", "PicDisplay", "ListValues", "txtValue",
                              "cmdOk",      "cmdCancel",  "cmdHelp",    "lblStatus"};

const DisplayFormat MetricFormat{.ImpMetric = Metric};

/// Looks at the window while a message is shown.
class WatchedMessages final : public Messages {
 public:
  Button Show(const Box& box) override {
    Look(box);
    return box.Default;
  }
  std::function<void(const Box&)> Look;
};

}  // namespace

class frmCDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void asksForEachParameter_data();
  void asksForEachParameter();
  void listsMetricValues();
  void picksThePictureByTheToothStyle();
  void hasAPictureForEveryKey_data() { asksForEachParameter_data(); }
  void hasAPictureForEveryKey();

  void showsTheNumberWithoutItsUnitAfterAClick();
  void readsFeetAndInchesOfAnEntry();
  void readsAClickOnTheChosenEntryAgain();
  void choosesNothingByItself();
  void countsAStepByKeysAsAClick();
  void stepsIntoTheListFromTheBox();
  void takesADoubleClickForAClickAndOk();
  void forgetsTheChoiceWhenTyped();

  void evaluatesOnEnter_data();
  void evaluatesOnEnter();
  void evaluatesOnOk();
  void acceptsTheNumberOfAnEntry();
  void acceptsOnEnterInTheList();
  void staysWhenTheBoxIsEmpty();
  void clearsARefusedEquation_data();
  void clearsARefusedEquation();
  void keepsTheTextWhileTheMessageIsShown();
  void showsTheMessageAboveItself();
  void judgesNoRange();

  void givesNothingWhenCancelled_data();
  void givesNothingWhenCancelled();
  void opensItsHelpTopic_data();
  void opensItsHelpTopic();

  void takesANameAsItIs_data();
  void takesANameAsItIs();
  void showsThePictureOfTheChoice_data();
  void showsThePictureOfTheChoice();
  void emptiesThePictureOfAStyleWithoutOne();
  void refusesTheHeadingsOfTheWoods();
  void hasAnEmptyEntryAheadOfTheHardwoods();
  void widensListAndBoxForTheWoods();

  void hintsAtTheControlUnderTheMouse_data();
  void hintsAtTheControlUnderTheMouse();
  void takesTheHintBackWhenTheMouseLeaves();
  void hintsAtTheControlReachedByTab();

  void namesEveryControl();
  void tabsInReadingOrder();
  void hasAccessKeys();
  void alignsListAndBox();
  void clipsNothing_data();
  void clipsNothing();

 private:
  void Open(Parameter parameter, const DisplayFormat& format = {}, int toothStyle = SquareBack);
  void Open(Parameter parameter, Messages& messages);
  void Show(ValueDialog dialog);

  void Type(const char* text) { QTest::keyClicks(txtValue_, text); }
  void Press(const char* button) { QTest::mouseClick(Named<QPushButton>(*window_, button), Qt::LeftButton); }
  QPoint PlaceOf(int row);
  void Click(int row) { QTest::mouseClick(ListValues_->viewport(), Qt::LeftButton, {}, PlaceOf(row)); }
  void DoubleClick(int row);
  int RowOfEntry(const char* text);
  QString ChosenEntry();

  void IsOpenAndEmpty();
  void IsClosedWith(const char* result);

  CollectedMessages messages_;
  test::RecordingHelpViewer help_;
  std::unique_ptr<ValueDialog> dialog_;
  std::unique_ptr<frmCDialog> window_;
  QListWidget* ListValues_ = nullptr;
  QLineEdit* txtValue_ = nullptr;
  PictureBox* PicDisplay_ = nullptr;
  QLabel* lblStatus_ = nullptr;
};

void frmCDialogTest::init() {
  messages_ = {};
  help_ = {};
}

void frmCDialogTest::cleanup() {
  window_.reset();
  dialog_.reset();
}

void frmCDialogTest::Show(ValueDialog dialog) {
  window_.reset();
  dialog_ = std::make_unique<ValueDialog>(std::move(dialog));
  window_ = std::make_unique<frmCDialog>(*dialog_, help_);
  ListValues_ = Named<QListWidget>(*window_, "ListValues");
  txtValue_ = Named<QLineEdit>(*window_, "txtValue");
  PicDisplay_ = Named<PictureBox>(*window_, "PicDisplay");
  lblStatus_ = Named<QLabel>(*window_, "lblStatus");
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void frmCDialogTest::Open(Parameter parameter, const DisplayFormat& format, int toothStyle) {
  Show(PrepareDialog(parameter, toothStyle, format, messages_));
}

void frmCDialogTest::Open(Parameter parameter, Messages& messages) {
  Show(PrepareDialog(parameter, SquareBack, {}, messages));
}

QPoint frmCDialogTest::PlaceOf(int row) {
  QListWidgetItem* entry = ListValues_->item(row);
  ListValues_->scrollToItem(entry);
  return ListValues_->visualItemRect(entry).center();
}

void frmCDialogTest::DoubleClick(int row) {
  Click(row);
  QTest::mouseDClick(ListValues_->viewport(), Qt::LeftButton, {}, PlaceOf(row));
}

int frmCDialogTest::RowOfEntry(const char* text) {
  const QList<QListWidgetItem*> found = ListValues_->findItems(text, Qt::MatchExactly);
  return found.size() == 1 ? ListValues_->row(found.first()) : -1;
}

QString frmCDialogTest::ChosenEntry() {
  const QList<QListWidgetItem*> chosen = ListValues_->selectedItems();
  return chosen.isEmpty() ? QString() : chosen.first()->text();
}

void frmCDialogTest::IsOpenAndEmpty() {
  QVERIFY(window_->isVisible());
  QVERIFY(dialog_->IsOpen());
  QVERIFY(dialog_->Result().empty());
  QCOMPARE(txtValue_->text(), QString());
}

void frmCDialogTest::IsClosedWith(const char* result) {
  QTRY_VERIFY(!window_->isVisible());  // a button pressed by its access key takes a moment
  QVERIFY(!dialog_->IsOpen());
  QCOMPARE(ToQt(dialog_->Result()), QString(result));
}

// ---- what it shows

void frmCDialogTest::asksForEachParameter_data() {
  QTest::addColumn<int>("parameter");
  for (const ParameterRow& row : Parameters()) {
    QTest::newRow(std::string(row.Title).c_str()) << static_cast<int>(row.Id);
  }
}

void frmCDialogTest::asksForEachParameter() {
  QFETCH(int, parameter);
  const ParameterRow& row = RowOf(Parameter(parameter));
  for (const DisplayFormat& format : {DisplayFormat(), MetricFormat}) {
    Open(row.Id, format, TripleRadius);
    QCOMPARE(window_->windowTitle(), ToQt(row.Title));
    QCOMPARE(Named<QLabel>(*window_, "lblDisplay")->text(), "\n" + ToQt(row.Prompt));
    QCOMPARE(PicDisplay_->Key(), std::string(PictureKey(row.Id, TripleRadius)));
    const std::vector<std::string> list = ShowListValues(row.List, format);
    QCOMPARE(ListValues_->count(), static_cast<int>(list.size()));
    for (int i = 0; i < ListValues_->count(); ++i) {
      QCOMPARE(ListValues_->item(i)->text(), ToQt(list[static_cast<std::size_t>(i)]));
    }
    IsOpenAndEmpty();
    QVERIFY(txtValue_->hasFocus());
    QCOMPARE(ListValues_->currentRow(), -1);
    QCOMPARE(ListValues_->verticalScrollBar()->value(), 0);
    QCOMPARE(lblStatus_->text(), QString());
  }
}

void frmCDialogTest::listsMetricValues() {
  Open(Parameter::SeatWidth, MetricFormat);
  QCOMPARE(ListValues_->count(), 25);
  QCOMPARE(ListValues_->item(0)->text(), QString(" 0.125 mm"));
  Click(0);
  QCOMPARE(txtValue_->text(), QString(" .125"));
  Open(Parameter::BandWidth, MetricFormat);
  QCOMPARE(ListValues_->item(0)->text(), QString(" 10 cm"));
  QCOMPARE(ListValues_->item(ListValues_->count() - 1)->text(), QString(" 50 cm"));
}

void frmCDialogTest::picksThePictureByTheToothStyle() {
  Open(Parameter::SecondGulletRadius, {}, DoubleRadius);
  QCOMPARE(PicDisplay_->Key(), std::string("GuDRad2"));
  Open(Parameter::SecondGulletRadius, {}, FlatBottom);
  QCOMPARE(PicDisplay_->Key(), std::string("GuFRad2"));
  Open(Parameter::SecondGulletRadius, {}, SquareBack);
  QCOMPARE(PicDisplay_->Key(), std::string());
  QVERIFY(PicDisplay_->IsEmpty());
}

void frmCDialogTest::hasAPictureForEveryKey() {
  QFETCH(int, parameter);
  for (int style = 0; style <= FrostTooth; ++style) {
    const std::string_view key = PictureKey(Parameter(parameter), style);
    Open(Parameter(parameter), {}, style);
    QCOMPARE(PicDisplay_->IsEmpty(), key.empty());
  }
}

// ---- the list

void frmCDialogTest::showsTheNumberWithoutItsUnitAfterAClick() {
  Open(Parameter::BandWidth);
  Click(RowOfEntry(" 12 in"));
  QCOMPARE(txtValue_->text(), QString(" 12"));
  QCOMPARE(ChosenEntry(), QString(" 12 in"));
  QVERIFY(window_->isVisible());
  QVERIFY(dialog_->IsOpen());
  QVERIFY(dialog_->Result().empty());
  QVERIFY(messages_.Shown.empty());
}

void frmCDialogTest::readsFeetAndInchesOfAnEntry() {
  Open(Parameter::WheelDiameter);
  Click(RowOfEntry(" 1 ft  3 in"));
  QCOMPARE(txtValue_->text(), QString(" 1.25"));
  Press("cmdOk");
  IsClosedWith(" 1.25");
}

void frmCDialogTest::readsAClickOnTheChosenEntryAgain() {
  Open(Parameter::BandWidth);
  Click(2);
  txtValue_->setFocus();
  txtValue_->selectAll();
  Type("99");
  Click(2);
  QCOMPARE(txtValue_->text(), QString(" 6"));
  Click(2);
  QCOMPARE(txtValue_->text(), QString(" 6"));
}

void frmCDialogTest::choosesNothingByItself() {
  Open(Parameter::BandWidth);
  QTest::keyClick(txtValue_, Qt::Key_Backtab);
  QVERIFY(ListValues_->hasFocus());
  QCOMPARE(ChosenEntry(), QString());
  QCOMPARE(txtValue_->text(), QString());
  QTest::keyClick(ListValues_, Qt::Key_Tab);
  QVERIFY(txtValue_->hasFocus());
  QCOMPARE(ChosenEntry(), QString());
  QCOMPARE(txtValue_->text(), QString());
  QTest::keyClick(txtValue_, Qt::Key_Backtab);
  QTest::keyClick(ListValues_, Qt::Key_Down);
  QCOMPARE(ChosenEntry(), QString(" 4 in"));
  QCOMPARE(txtValue_->text(), QString(" 4"));
}

void frmCDialogTest::countsAStepByKeysAsAClick() {
  Open(Parameter::BandWidth);
  Click(0);
  QTest::keyClick(ListValues_, Qt::Key_Down);
  QCOMPARE(txtValue_->text(), QString(" 5"));
  QTest::keyClick(ListValues_, Qt::Key_Down);
  QCOMPARE(txtValue_->text(), QString(" 6"));
  QTest::keyClick(ListValues_, Qt::Key_Up);
  QCOMPARE(txtValue_->text(), QString(" 5"));
  QTest::keyClick(ListValues_, Qt::Key_End);
  QCOMPARE(txtValue_->text(), QString(" 20"));
  QTest::keyClick(ListValues_, Qt::Key_Home);
  QCOMPARE(txtValue_->text(), QString(" 4"));
  QTest::keyClick(ListValues_, Qt::Key_Return);
  IsClosedWith(" 4");
}

void frmCDialogTest::stepsIntoTheListFromTheBox() {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up}) {
    Open(Parameter::BandWidth);
    QTest::keyClick(txtValue_, key);
    QVERIFY(ListValues_->hasFocus());
    QCOMPARE(txtValue_->text(), QString(" 4"));
  }
  QTest::keyClick(ListValues_, Qt::Key_Down);
  QCOMPARE(txtValue_->text(), QString(" 5"));
}

void frmCDialogTest::takesADoubleClickForAClickAndOk() {
  Open(Parameter::BandWidth);
  DoubleClick(3);
  IsClosedWith(" 7");
  Open(Parameter::ToothStyle);
  DoubleClick(1);
  IsClosedWith("Round Back");
}

void frmCDialogTest::forgetsTheChoiceWhenTyped() {
  Open(Parameter::BandWidth);
  Click(4);
  txtValue_->setFocus();
  Type("1");
  QCOMPARE(txtValue_->text(), QString(" 81"));
  QCOMPARE(ChosenEntry(), QString());
  QTest::keyClick(txtValue_, Qt::Key_Down);
  QCOMPARE(txtValue_->text(), QString(" 8"));
}

// ---- equations

void frmCDialogTest::evaluatesOnEnter_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("result");
  const auto row = [](const char* typed, const char* result) { QTest::newRow(typed) << typed << result; };
  row("12", " 12");
  row("12 3/4", " 12.75");
  row("(10+2)/4", " 3");
  row("2 ft", " 2");
  row("5 ft 6 in", " 5.5");
  row("1,5*2", " 3");
}

void frmCDialogTest::evaluatesOnEnter() {
  QFETCH(QString, typed);
  QFETCH(QString, result);
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    Open(Parameter::BandLength);
    QTest::keyClicks(txtValue_, typed);
    QTest::keyClick(txtValue_, enter);
    QCOMPARE(txtValue_->text(), result);
    IsClosedWith(result.toUtf8().constData());
    QVERIFY(messages_.Shown.empty());
  }
}

void frmCDialogTest::evaluatesOnOk() {
  Open(Parameter::BandLength);
  Type("12 3/4");
  Press("cmdOk");
  IsClosedWith(" 12.75");
}

void frmCDialogTest::acceptsTheNumberOfAnEntry() {
  Open(Parameter::BandWidth);
  Click(0);
  Press("cmdOk");
  IsClosedWith(" 4");
}

void frmCDialogTest::acceptsOnEnterInTheList() {
  Open(Parameter::BandWidth);
  Click(1);
  QTest::keyClick(ListValues_, Qt::Key_Enter);
  IsClosedWith(" 5");
}

void frmCDialogTest::staysWhenTheBoxIsEmpty() {
  for (const Parameter parameter : {Parameter::BandWidth, Parameter::ToothStyle, Parameter::TypeOfWood}) {
    Open(parameter);
    Press("cmdOk");
    IsOpenAndEmpty();
    QTest::keyClick(txtValue_, Qt::Key_Return);
    IsOpenAndEmpty();
    ListValues_->setFocus();
    QTest::keyClick(ListValues_, Qt::Key_Return);
    IsOpenAndEmpty();
    QVERIFY(messages_.Shown.empty());
  }
}

void frmCDialogTest::clearsARefusedEquation_data() {
  QTest::addColumn<QString>("typed");
  QTest::newRow("letters") << "wide";
  QTest::newRow("an open bracket") << "(2+3";
  QTest::newRow("a name of another dialog") << "Square Back";
}

void frmCDialogTest::clearsARefusedEquation() {
  QFETCH(QString, typed);
  Open(Parameter::BandWidth);
  QTest::keyClicks(txtValue_, typed);
  QTest::keyClick(txtValue_, Qt::Key_Return);
  IsOpenAndEmpty();
  QVERIFY(txtValue_->hasFocus());
  QCOMPARE(messages_.Texts(), std::vector<std::string>{"Not a valid equation!"});

  QTest::keyClicks(txtValue_, typed);
  Press("cmdOk");
  IsOpenAndEmpty();
  QVERIFY(txtValue_->hasFocus());
  QCOMPARE(messages_.Shown.size(), std::size_t{2});

  Type("7");
  QTest::keyClick(txtValue_, Qt::Key_Return);
  IsClosedWith(" 7");
  QCOMPARE(messages_.Shown.size(), std::size_t{2});
}

void frmCDialogTest::keepsTheTextWhileTheMessageIsShown() {
  WatchedMessages messages;
  QString seen;
  messages.Look = [&](const Box&) { seen = txtValue_->text(); };
  Open(Parameter::BandWidth, messages);
  Type("wide");
  QTest::keyClick(txtValue_, Qt::Key_Return);
  QCOMPARE(seen, QString("wide"));
  IsOpenAndEmpty();
}

void frmCDialogTest::showsTheMessageAboveItself() {
  QtMessages messages;
  Open(Parameter::BandWidth, messages);
  Type("wide");
  const QWidget* owner = nullptr;
  QString text;
  QTimer::singleShot(0, this, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    owner = box->parentWidget();
    text = box->text();
    box->button(QMessageBox::Ok)->click();
  });
  QTest::keyClick(txtValue_, Qt::Key_Return);
  QCOMPARE(owner, window_.get());
  QCOMPARE(text, QString("Not a valid equation!"));
  IsOpenAndEmpty();
}

void frmCDialogTest::judgesNoRange() {
  Open(Parameter::BandWidth);
  Type("0");
  QTest::keyClick(txtValue_, Qt::Key_Return);
  IsClosedWith(" 0");
  Open(Parameter::BandWidth);
  Type("-3");
  QTest::keyClick(txtValue_, Qt::Key_Return);
  IsClosedWith("-3");
}

// ---- cancel, help

void frmCDialogTest::givesNothingWhenCancelled_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("cmdCancel") << 0;
  QTest::newRow("Escape in the box") << 1;
  QTest::newRow("Escape in the list") << 2;
  QTest::newRow("the window's button") << 3;
  QTest::newRow("access key") << 4;
  QTest::newRow("Enter on cmdCancel") << 5;
}

void frmCDialogTest::givesNothingWhenCancelled() {
  QFETCH(int, way);
  Open(Parameter::BandWidth);
  Click(3);
  QCOMPARE(txtValue_->text(), QString(" 7"));
  if (way == 0) Press("cmdCancel");
  if (way == 1) QTest::keyClick(txtValue_, Qt::Key_Escape);
  if (way == 2) QTest::keyClick(ListValues_, Qt::Key_Escape);
  if (way == 3) QVERIFY(window_->close());
  if (way == 4) QTest::keyClick(window_.get(), Qt::Key_C, Qt::AltModifier);
  if (way == 5) {
    Named<QPushButton>(*window_, "cmdCancel")->setFocus();
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  }
  IsClosedWith("");
}

void frmCDialogTest::opensItsHelpTopic_data() {
  QTest::addColumn<int>("parameter");
  QTest::addColumn<QString>("asked");
  QTest::newRow("gullet depth") << int(Parameter::GulletDepth) << "topic 213";
  QTest::newRow("tooth space") << int(Parameter::ToothSpace) << "topic 202";
  QTest::newRow("frost notch") << int(Parameter::FrostNotchWidth) << "topic 0";
  QTest::newRow("wheel speed") << int(Parameter::WheelRpm) << "topic 407";
}

void frmCDialogTest::opensItsHelpTopic() {
  QFETCH(int, parameter);
  QFETCH(QString, asked);
  Open(Parameter(parameter));
  Type("7");
  Press("cmdHelp");
  QTest::keyClick(window_.get(), Qt::Key_H, Qt::AltModifier);
  QTest::keyClick(txtValue_, Qt::Key_F1);
  QTest::keyClick(ListValues_, Qt::Key_F1);
  QTRY_COMPARE(help_.Asked, std::vector<std::string>(4, asked.toStdString()));
  QVERIFY(window_->isVisible());
  QCOMPARE(txtValue_->text(), QString("7"));
}

// ---- names

void frmCDialogTest::takesANameAsItIs_data() {
  QTest::addColumn<int>("parameter");
  QTest::addColumn<QString>("typed");
  QTest::newRow("style") << int(Parameter::ToothStyle) << "Square Back";
  QTest::newRow("no style") << int(Parameter::ToothStyle) << "2+3";
  QTest::newRow("tip") << int(Parameter::TipType) << "Carbide";
  QTest::newRow("join") << int(Parameter::JoinStyle) << "Overlaped Join";
  QTest::newRow("a wood of nobody's list") << int(Parameter::TypeOfWood) << "Bog oak, 1/2 dry (";
}

void frmCDialogTest::takesANameAsItIs() {
  QFETCH(int, parameter);
  QFETCH(QString, typed);
  for (const bool byEnter : {true, false}) {
    Open(Parameter(parameter));
    QTest::keyClicks(txtValue_, typed);
    if (byEnter)
      QTest::keyClick(txtValue_, Qt::Key_Return);
    else
      Press("cmdOk");
    IsClosedWith(typed.toUtf8().constData());
    QVERIFY(messages_.Shown.empty());
  }
}

void frmCDialogTest::showsThePictureOfTheChoice_data() {
  QTest::addColumn<int>("parameter");
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("key");
  const auto row = [](Parameter parameter, const char* name, const char* key) {
    QTest::newRow(name) << int(parameter) << name << key;
  };
  row(Parameter::ToothStyle, "Square Back", "SqrBack");
  row(Parameter::ToothStyle, "Round Back", "RndBack");
  row(Parameter::ToothStyle, "Double Radius", "GuDouble");
  row(Parameter::ToothStyle, "Triple Radius", "GuTriple");
  row(Parameter::ToothStyle, "Flat Bottom", "GuFlatBo");
  row(Parameter::ToothStyle, "Narrow Style", "GuNarrow");
  row(Parameter::ToothStyle, "O Shape", "GuOShape");
  row(Parameter::TipType, "None", "TipNone");
  row(Parameter::TipType, "Stellite", "TipStel");
  row(Parameter::TipType, "Swagged", "TipSwag");
  row(Parameter::TipType, "Carbide", "TipCarb");
  row(Parameter::JoinStyle, "Right Angle Join", "RightAng");
  row(Parameter::JoinStyle, "Overlaped Join", "Overlap");
}

void frmCDialogTest::showsThePictureOfTheChoice() {
  QFETCH(int, parameter);
  QFETCH(QString, name);
  QFETCH(QString, key);
  Open(Parameter(parameter));
  Click(RowOfEntry(name.toUtf8().constData()));
  QCOMPARE(txtValue_->text(), name);
  QCOMPARE(PicDisplay_->Key(), key.toStdString());
  QVERIFY(!PicDisplay_->IsEmpty());
  Press("cmdOk");
  IsClosedWith(name.toUtf8().constData());
}

void frmCDialogTest::emptiesThePictureOfAStyleWithoutOne() {
  Open(Parameter::ToothStyle);
  QVERIFY(!PicDisplay_->IsEmpty());
  Click(RowOfEntry("Frost Tooth"));
  QCOMPARE(txtValue_->text(), QString("Frost Tooth"));
  QVERIFY(PicDisplay_->IsEmpty());
  QVERIFY(PicDisplay_->isVisible());
  QTest::keyClick(ListValues_, Qt::Key_Up);
  QCOMPARE(PicDisplay_->Key(), std::string("GuOShape"));
}

void frmCDialogTest::refusesTheHeadingsOfTheWoods() {
  Open(Parameter::TypeOfWood);
  for (const char* heading : {"Softwoods:", "Hardwoods:"}) {
    Click(RowOfEntry("Cypress"));
    Click(RowOfEntry(heading));
    QCOMPARE(txtValue_->text(), QString("Cypress"));
    DoubleClick(RowOfEntry(heading));
    QCOMPARE(txtValue_->text(), QString("Cypress"));
    QVERIFY(window_->isVisible());
  }
  // Keys pass over them.
  Click(RowOfEntry("Alder"));
  QTest::keyClick(ListValues_, Qt::Key_Up);
  QCOMPARE(ListValues_->currentRow(), RowOfEntry("Hardwoods:") - 1);
  QTest::keyClick(ListValues_, Qt::Key_Home);
  QCOMPARE(txtValue_->text(), QString("Cedar (Eastern Red)"));
}

void frmCDialogTest::hasAnEmptyEntryAheadOfTheHardwoods() {
  Open(Parameter::TypeOfWood);
  const int heading = RowOfEntry("Hardwoods:");
  QVERIFY(heading > 0);
  QCOMPARE(ListValues_->item(heading - 1)->text(), QString());
  Click(RowOfEntry("Cypress"));
  Click(heading - 1);
  QCOMPARE(txtValue_->text(), QString());
  Press("cmdOk");
  IsOpenAndEmpty();
  QCOMPARE(RowOfEntry("Oak (Southern Red)"), -1);
}

void frmCDialogTest::widensListAndBoxForTheWoods() {
  Open(Parameter::GulletDepth);
  QVERIFY(PicDisplay_->isVisible());
  const int list = ListValues_->width();
  const int box = txtValue_->width();
  Open(Parameter::TypeOfWood);
  QVERIFY(!PicDisplay_->isVisible());
  QVERIFY(ListValues_->width() > list * 3 / 2);
  QVERIFY(txtValue_->width() > box * 3 / 2);
}

// ---- hints

void frmCDialogTest::hintsAtTheControlUnderTheMouse_data() {
  QTest::addColumn<QString>("control");
  QTest::addColumn<QString>("hint");
  QTest::newRow("cmdOk") << "cmdOk"
                         << "Click to accept value in text box.";
  QTest::newRow("cmdCancel") << "cmdCancel"
                             << "Click to cancel.";
  QTest::newRow("ListValues") << "ListValues"
                              << "Click to select value.";
  QTest::newRow("txtValue") << "txtValue"
                            << "Enter value here. Press enter to calculate.";
  QTest::newRow("cmdHelp") << "cmdHelp"
                           << "";
  QTest::newRow("PicDisplay") << "PicDisplay"
                              << "";
  QTest::newRow("lblDisplay") << "lblDisplay"
                              << "";
}

void frmCDialogTest::hintsAtTheControlUnderTheMouse() {
  QFETCH(QString, control);
  QFETCH(QString, hint);
  Open(Parameter::GulletDepth);
  auto* widget = Named<QWidget>(*window_, control.toUtf8().constData());
  const QPoint middle = widget->mapTo(window_.get(), widget->rect().center());
  const QPoint margin(3, window_->height() / 2);
  QTest::mouseMove(window_->windowHandle(), margin);
  QTest::mouseMove(window_->windowHandle(), middle);
  QTRY_COMPARE(lblStatus_->text(), hint);
  QTest::mouseMove(window_->windowHandle(), middle + QPoint(2, 2));
  QTRY_COMPARE(lblStatus_->text(), hint);
  QTest::mouseMove(window_->windowHandle(), margin);
  QTRY_COMPARE(lblStatus_->text(), QString());

  QWidget* surface = window_->childAt(middle);  // of a list: the part that takes the mouse
  QTest::mouseMove(surface);
  QTRY_COMPARE(lblStatus_->text(), hint);
}

void frmCDialogTest::takesTheHintBackWhenTheMouseLeaves() {
  Open(Parameter::GulletDepth);
  auto* cmdOk = Named<QPushButton>(*window_, "cmdOk");
  QTest::mouseMove(window_->windowHandle(), cmdOk->geometry().center());
  QTRY_COMPARE(lblStatus_->text(), QString("Click to accept value in text box."));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(cmdOk, &leave);
  QCOMPARE(lblStatus_->text(), QString());
}

void frmCDialogTest::hintsAtTheControlReachedByTab() {
  Open(Parameter::GulletDepth);
  QTest::keyClick(txtValue_, Qt::Key_Tab);
  QCOMPARE(lblStatus_->text(), QString("Click to accept value in text box."));
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QCOMPARE(lblStatus_->text(), QString("Click to cancel."));
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QCOMPARE(lblStatus_->text(), QString());
  QCOMPARE(ListValues_->accessibleDescription(), QString("Click to select value."));
}

// ---- order and looks

void frmCDialogTest::namesEveryControl() {
  Open(Parameter::GulletDepth);
  QCOMPARE(window_->objectName(), QString("frmCDialog"));
  QCOMPARE(test::BadlySpoken(*window_, Controls), QStringList());
}

void frmCDialogTest::tabsInReadingOrder() {
  Open(Parameter::GulletDepth);
  QCOMPARE(test::TabOrder(*window_),
           QStringList({"txtValue", "cmdOk", "cmdCancel", "cmdHelp", "ListValues"}));
}

void frmCDialogTest::hasAccessKeys() {
  Open(Parameter::GulletDepth);
  QCOMPARE(test::AccessKeys(*window_), QString("OCH"));
  Type("7");
  QTest::keyClick(window_.get(), Qt::Key_O, Qt::AltModifier);
  IsClosedWith(" 7");
}

void frmCDialogTest::alignsListAndBox() {
  for (const Parameter parameter : {Parameter::GulletDepth, Parameter::TypeOfWood, Parameter::JoinStyle}) {
    Open(parameter);
    QCOMPARE(txtValue_->x(), ListValues_->x());
    QCOMPARE(txtValue_->width(), ListValues_->width());
    QVERIFY(txtValue_->y() > ListValues_->geometry().bottom());
    QCOMPARE(txtValue_->geometry().right(), Named<QWidget>(*window_, "cmdHelp")->geometry().right());
  }
  Open(Parameter::GulletDepth);
  QCOMPARE(PicDisplay_->y(), ListValues_->y());
  QCOMPARE(PicDisplay_->geometry().bottom(), txtValue_->geometry().bottom());
}

void frmCDialogTest::clipsNothing_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 14; ++points) QTest::addRow("%d points", points) << points;
}

void frmCDialogTest::clipsNothing() {
  QFETCH(int, points);
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPointSize(points);
  QApplication::setFont(font);
  for (const ParameterRow& row : Parameters()) {
    Open(row.Id, {}, TripleRadius);
    QCOMPARE(test::Clipped(*window_, Controls).join(", "), QString());
    const int rows = ListValues_->viewport()->height() / ListValues_->sizeHintForRow(0);
    QVERIFY2(rows >= 10 && rows <= 13, qPrintable(QString::number(rows)));
    QVERIFY(ListValues_->sizeHintForColumn(0) <= ListValues_->viewport()->width());
    for (const char* control : {"cmdOk", "cmdCancel", "ListValues", "txtValue"}) {
      const QString hint = ToQt(ValueDialog::Hint(control));
      QVERIFY2(lblStatus_->fontMetrics().horizontalAdvance(hint) <= lblStatus_->contentsRect().width(),
               control);
    }
  }
  QApplication::setFont(before);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmCDialogTest)
#include "frmCDialog_test.moc"
