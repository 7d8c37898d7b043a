#include "qt/DialogBench.h"

namespace tarnwick {

using namespace test;

// Names typed into the dialog, and the hints at its controls.
class frmCDialogNamesTest : public QObject, private DialogBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { End(); }

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
};

// ---- names

void frmCDialogNamesTest::takesANameAsItIs_data() {
  QTest::addColumn<int>("parameter");
  QTest::addColumn<QString>("typed");
  QTest::newRow("style") << int(Parameter::ToothStyle) << "Square Back";
  QTest::newRow("no style") << int(Parameter::ToothStyle) << "2+3";
  QTest::newRow("tip") << int(Parameter::TipType) << "Carbide";
  QTest::newRow("join") << int(Parameter::JoinStyle) << "Overlaped Join";
  QTest::newRow("a wood of nobody's list") << int(Parameter::TypeOfWood) << "Bog oak, 1/2 dry (";
}

void frmCDialogNamesTest::takesANameAsItIs() {
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

void frmCDialogNamesTest::showsThePictureOfTheChoice_data() {
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

void frmCDialogNamesTest::showsThePictureOfTheChoice() {
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

void frmCDialogNamesTest::emptiesThePictureOfAStyleWithoutOne() {
  Open(Parameter::ToothStyle);
  QVERIFY(!PicDisplay_->IsEmpty());
  Click(RowOfEntry("Frost Tooth"));
  QCOMPARE(txtValue_->text(), QString("Frost Tooth"));
  QVERIFY(PicDisplay_->IsEmpty());
  QVERIFY(PicDisplay_->isVisible());
  QTest::keyClick(ListValues_, Qt::Key_Up);
  QCOMPARE(PicDisplay_->Key(), std::string("GuOShape"));
}

void frmCDialogNamesTest::refusesTheHeadingsOfTheWoods() {
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

void frmCDialogNamesTest::hasAnEmptyEntryAheadOfTheHardwoods() {
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

void frmCDialogNamesTest::widensListAndBoxForTheWoods() {
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

void frmCDialogNamesTest::hintsAtTheControlUnderTheMouse_data() {
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

void frmCDialogNamesTest::hintsAtTheControlUnderTheMouse() {
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

void frmCDialogNamesTest::takesTheHintBackWhenTheMouseLeaves() {
  Open(Parameter::GulletDepth);
  auto* cmdOk = Named<QPushButton>(*window_, "cmdOk");
  QTest::mouseMove(window_->windowHandle(), cmdOk->geometry().center());
  QTRY_COMPARE(lblStatus_->text(), QString("Click to accept value in text box."));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(cmdOk, &leave);
  QCOMPARE(lblStatus_->text(), QString());
}

void frmCDialogNamesTest::hintsAtTheControlReachedByTab() {
  Open(Parameter::GulletDepth);
  QTest::keyClick(txtValue_, Qt::Key_Tab);
  QCOMPARE(lblStatus_->text(), QString("Click to accept value in text box."));
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QCOMPARE(lblStatus_->text(), QString("Click to cancel."));
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
  QCOMPARE(lblStatus_->text(), QString());
  QCOMPARE(ListValues_->accessibleDescription(), QString("Click to select value."));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmCDialogNamesTest)
#include "frmCDialogNames_test.moc"
