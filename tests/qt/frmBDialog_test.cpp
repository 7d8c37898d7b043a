#include "entry/frmBDialog.h"

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <algorithm>
#include <memory>

#include "entry/modParameter.h"
#include "platform/qt/PictureBox.h"
#include "qt/Controls.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {
namespace {

using test::Named;

const QStringList Controls = {"lblDisplay", "PicDisplay", "optYes",  "optNo",
                              "cmdOk",      "cmdCancel",  "cmdHelp", "lblStatus"};

}  // namespace

class frmBDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { help_ = {}; }
  void cleanup();

  void asksTheSeatQuestion();
  void opensOnThePresentState();
  void answersByMouse();
  void answersByKeys();
  void keepsUpWithQuickHands();
  void keepsOneOptionSet();
  void givesNothingWhenCancelled_data();
  void givesNothingWhenCancelled();
  void opensItsHelpTopic();
  void swapsThePictureOfTheHole();
  void keepsThePictureOfAnotherQuestion();
  void hintsAtTheControlUnderTheMouse_data();
  void hintsAtTheControlUnderTheMouse();
  void namesEveryControl();
  void tabsInReadingOrder();
  void hasAccessKeys();
  void clipsNothing_data();
  void clipsNothing();

 private:
  void Open(YesNoDialog dialog);
  void OpenSeat(bool answer = true) { Open({SeatPrompt, SeatKey, SeatTitle, answer}); }
  void Click(QRadioButton* option);
  void Press(const char* button) { QTest::mouseClick(Named<QPushButton>(*window_, button), Qt::LeftButton); }
  void IsClosedWith(const char* result);

  test::RecordingHelpViewer help_;
  std::unique_ptr<YesNoDialog> dialog_;
  std::unique_ptr<frmBDialog> window_;
  QRadioButton* optYes_ = nullptr;
  QRadioButton* optNo_ = nullptr;
  PictureBox* PicDisplay_ = nullptr;
  QLabel* lblStatus_ = nullptr;
};

void frmBDialogTest::cleanup() {
  window_.reset();
  dialog_.reset();
}

void frmBDialogTest::Open(YesNoDialog dialog) {
  window_.reset();
  dialog_ = std::make_unique<YesNoDialog>(std::move(dialog));
  window_ = std::make_unique<frmBDialog>(*dialog_, help_);
  optYes_ = Named<QRadioButton>(*window_, "optYes");
  optNo_ = Named<QRadioButton>(*window_, "optNo");
  PicDisplay_ = Named<PictureBox>(*window_, "PicDisplay");
  lblStatus_ = Named<QLabel>(*window_, "lblStatus");
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void frmBDialogTest::Click(QRadioButton* option) {
  QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
}

void frmBDialogTest::IsClosedWith(const char* result) {
  QTRY_VERIFY(!window_->isVisible());  // a button pressed by its access key takes a moment
  QVERIFY(!dialog_->IsOpen());
  QCOMPARE(QString::fromStdString(dialog_->Result()), QString(result));
}

void frmBDialogTest::asksTheSeatQuestion() {
  OpenSeat();
  QCOMPARE(window_->windowTitle(), QString("Seat"));
  QCOMPARE(Named<QLabel>(*window_, "lblDisplay")->text(),
           QString("\nDoes Band Saw Have a Seat?\nSelect Yes or No!"));
  QCOMPARE(PicDisplay_->Key(), std::string("Seat"));
  QVERIFY(!PicDisplay_->IsEmpty());
  QCOMPARE(lblStatus_->text(), QString());
  QVERIFY(dialog_->IsOpen());
}

void frmBDialogTest::opensOnThePresentState() {
  for (const bool state : {true, false}) {
    OpenSeat(state);
    QCOMPARE(optYes_->isChecked(), state);
    QCOMPARE(optNo_->isChecked(), !state);
    QVERIFY((state ? optYes_ : optNo_)->hasFocus());
    Press("cmdOk");
    IsClosedWith(state ? "True" : "False");
  }
}

void frmBDialogTest::answersByMouse() {
  OpenSeat(false);
  Click(optYes_);
  QVERIFY(window_->isVisible());
  Press("cmdOk");
  IsClosedWith("True");
  OpenSeat(true);
  Click(optNo_);
  Press("cmdOk");
  IsClosedWith("False");
}

void frmBDialogTest::answersByKeys() {
  OpenSeat(true);
  QTest::keyClick(optYes_, Qt::Key_Down);
  QVERIFY(optNo_->isChecked());
  QTest::keyClick(optNo_, Qt::Key_Return);
  IsClosedWith("False");
  OpenSeat(false);
  QTest::keyClick(window_.get(), Qt::Key_Y, Qt::AltModifier);
  QTest::keyClick(window_.get(), Qt::Key_O, Qt::AltModifier);
  IsClosedWith("True");
}

void frmBDialogTest::keepsUpWithQuickHands() {
  OpenSeat(false);
  QTest::keyClick(window_.get(), Qt::Key_Y, Qt::AltModifier);
  QTest::keyClick(optNo_, Qt::Key_Return);
  IsClosedWith("True");
  OpenSeat(true);
  QTest::keyClick(window_.get(), Qt::Key_N, Qt::AltModifier);
  QTest::keyClick(optYes_, Qt::Key_Enter);
  IsClosedWith("False");
}

void frmBDialogTest::keepsOneOptionSet() {
  OpenSeat(true);
  Click(optYes_);
  QVERIFY(optYes_->isChecked());
  Click(optNo_);
  QVERIFY(!optYes_->isChecked());
}

void frmBDialogTest::givesNothingWhenCancelled_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("cmdCancel") << 0;
  QTest::newRow("Escape") << 1;
  QTest::newRow("the window's button") << 2;
}

void frmBDialogTest::givesNothingWhenCancelled() {
  QFETCH(int, way);
  OpenSeat(false);
  Click(optYes_);
  if (way == 0) Press("cmdCancel");
  if (way == 1) QTest::keyClick(optYes_, Qt::Key_Escape);
  if (way == 2) QVERIFY(window_->close());
  IsClosedWith("");
}

void frmBDialogTest::opensItsHelpTopic() {
  OpenSeat();
  Press("cmdHelp");
  QTest::keyClick(optYes_, Qt::Key_F1);
  QCOMPARE(help_.Asked, std::vector<std::string>(2, "topic 216"));
  QVERIFY(window_->isVisible());
}

void frmBDialogTest::swapsThePictureOfTheHole() {
  Open({"Is the hole centered?", "", "Hole Centered", true});
  QCOMPARE(PicDisplay_->Key(), std::string());
  Click(optYes_);  // set already, and clicked all the same
  QCOMPARE(PicDisplay_->Key(), std::string("SlotCent"));
  QVERIFY(!PicDisplay_->IsEmpty());
  Click(optNo_);
  QCOMPARE(PicDisplay_->Key(), std::string("SlotNotC"));
  QVERIFY(!PicDisplay_->IsEmpty());
  QTest::keyClick(optNo_, Qt::Key_Up);
  QCOMPARE(PicDisplay_->Key(), std::string("SlotCent"));
}

void frmBDialogTest::keepsThePictureOfAnotherQuestion() {
  OpenSeat(true);
  Click(optNo_);
  QCOMPARE(PicDisplay_->Key(), std::string("Seat"));
}

void frmBDialogTest::hintsAtTheControlUnderTheMouse_data() {
  QTest::addColumn<QString>("control");
  QTest::addColumn<QString>("hint");
  QTest::newRow("optYes") << "optYes"
                          << "Click to select Yes.";
  QTest::newRow("optNo") << "optNo"
                         << "Click to select No.";
  QTest::newRow("cmdOk") << "cmdOk"
                         << "Click to accept value.";
  QTest::newRow("cmdCancel") << "cmdCancel"
                             << "Click to cancel.";
  QTest::newRow("cmdHelp") << "cmdHelp"
                           << "";
}

void frmBDialogTest::hintsAtTheControlUnderTheMouse() {
  QFETCH(QString, control);
  QFETCH(QString, hint);
  OpenSeat();
  auto* widget = Named<QWidget>(*window_, control.toUtf8().constData());
  const QPoint margin(3, window_->height() / 2);
  QTest::mouseMove(window_->windowHandle(), margin);
  QTest::mouseMove(window_->windowHandle(), widget->mapTo(window_.get(), widget->rect().center()));
  QTRY_COMPARE(lblStatus_->text(), hint);
  QTest::mouseMove(window_->windowHandle(), margin);
  QTRY_COMPARE(lblStatus_->text(), QString());
}

void frmBDialogTest::namesEveryControl() {
  OpenSeat();
  QCOMPARE(window_->objectName(), QString("frmBDialog"));
  QCOMPARE(test::BadlySpoken(*window_, Controls), QStringList());
}

void frmBDialogTest::tabsInReadingOrder() {
  OpenSeat(true);
  QCOMPARE(test::TabOrder(*window_), QStringList({"optYes", "cmdOk", "cmdCancel", "cmdHelp"}));
}

void frmBDialogTest::hasAccessKeys() {
  OpenSeat();
  QString keys = test::AccessKeys(*window_);
  std::sort(keys.begin(), keys.end());
  QCOMPARE(keys, QString("CHNOY"));
}

void frmBDialogTest::clipsNothing_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 14; ++points) QTest::addRow("%d points", points) << points;
}

void frmBDialogTest::clipsNothing() {
  QFETCH(int, points);
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPointSize(points);
  QApplication::setFont(font);
  OpenSeat();
  QCOMPARE(test::Clipped(*window_, Controls).join(", "), QString());
  QApplication::setFont(before);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmBDialogTest)
#include "frmBDialog_test.moc"
