#include "qt/DialogBench.h"

namespace tarnwick {

using namespace test;

// What the dialog for a value shows, lists and takes.
class frmCDialogTest : public QObject, private DialogBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { End(); }

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
  void namesEveryControl();
  void tabsInReadingOrder();
  void hasAccessKeys();
  void alignsListAndBox();
  void clipsNothing_data();
  void clipsNothing();
};

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
