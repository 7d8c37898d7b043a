#include "platform/qt/QtMessages.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace tarnwick {
namespace {

/// Shows `box` and lets `user` at it; the answer.
Button AnswerOf(const Box& box, const std::function<void(QMessageBox&)>& user) {
  QtMessages messages;
  bool seen = false;
  QTimer::singleShot(0, [&] {
    auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!shown) return;
    seen = true;
    user(*shown);
  });
  const Button answer = messages.Show(box);
  if (!seen) qFatal("no box was shown");
  return answer;
}

void Press(QMessageBox& box, QMessageBox::StandardButton button) {
  QTest::mouseClick(box.button(button), Qt::LeftButton);
}

}  // namespace

class QtMessagesTest : public QObject {
  Q_OBJECT

 private slots:
  void showsPlainTextAsItStands();
  void offersTheButtonsAsked_data();
  void offersTheButtonsAsked();
  void answersWithTheButtonPressed();
  void takesEnterForTheDefault();
  void takesEscapeForCancelOrElseForTheDefault_data();
  void takesEscapeForCancelOrElseForTheDefault();
  void showsTheIcon();
};

void QtMessagesTest::showsPlainTextAsItStands() {
  const std::string text = "     <b>Saw</b> & file\n\nDo you want to save?     ";
  AnswerOf({.Title = "Save File.", .Text = text}, [&](QMessageBox& box) {
    QCOMPARE(box.windowTitle(), QString("Save File."));
    QCOMPARE(box.text(), QString::fromStdString(text));
    QCOMPARE(box.textFormat(), Qt::PlainText);
    box.close();
  });
}

void QtMessagesTest::offersTheButtonsAsked_data() {
  QTest::addColumn<int>("offer");
  QTest::addColumn<int>("buttons");
  QTest::newRow("OK") << int(Buttons::Ok) << int(QMessageBox::Ok);
  QTest::newRow("Yes, No") << int(Buttons::YesNo) << int(QMessageBox::Yes | QMessageBox::No);
  QTest::newRow("Yes, No, Cancel") << int(Buttons::YesNoCancel)
                                   << int(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

void QtMessagesTest::offersTheButtonsAsked() {
  QFETCH(int, offer);
  QFETCH(int, buttons);
  AnswerOf({.Text = "?", .Offer = Buttons(offer), .Default = offer ? Button::No : Button::Ok},
           [&](QMessageBox& box) {
             QCOMPARE(int(box.standardButtons()), buttons);
             box.close();
           });
}

void QtMessagesTest::answersWithTheButtonPressed() {
  const Box box{.Text = "?", .Offer = Buttons::YesNoCancel, .Default = Button::Cancel};
  QCOMPARE(AnswerOf(box, [](QMessageBox& b) { Press(b, QMessageBox::Yes); }), Button::Yes);
  QCOMPARE(AnswerOf(box, [](QMessageBox& b) { Press(b, QMessageBox::No); }), Button::No);
  QCOMPARE(AnswerOf(box, [](QMessageBox& b) { Press(b, QMessageBox::Cancel); }), Button::Cancel);
}

void QtMessagesTest::takesEnterForTheDefault() {
  for (const Button button : {Button::Yes, Button::No, Button::Cancel}) {
    QCOMPARE(AnswerOf({.Text = "?", .Offer = Buttons::YesNoCancel, .Default = button},
                      [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
             button);
  }
}

void QtMessagesTest::takesEscapeForCancelOrElseForTheDefault_data() {
  QTest::addColumn<int>("offer");
  QTest::addColumn<int>("default_");
  QTest::addColumn<int>("answer");
  QTest::newRow("OK") << int(Buttons::Ok) << int(Button::Ok) << int(Button::Ok);
  QTest::newRow("Yes, No") << int(Buttons::YesNo) << int(Button::Yes) << int(Button::Yes);
  QTest::newRow("Yes, No, default No") << int(Buttons::YesNo) << int(Button::No) << int(Button::No);
  QTest::newRow("with Cancel") << int(Buttons::YesNoCancel) << int(Button::Yes) << int(Button::Cancel);
}

void QtMessagesTest::takesEscapeForCancelOrElseForTheDefault() {
  QFETCH(int, offer);
  QFETCH(int, default_);
  QFETCH(int, answer);
  const Box box{.Text = "?", .Offer = Buttons(offer), .Default = Button(default_)};
  QCOMPARE(int(AnswerOf(box, [](QMessageBox& b) { QTest::keyClick(&b, Qt::Key_Escape); })), answer);
  QCOMPARE(int(AnswerOf(box, [](QMessageBox& b) { b.close(); })), answer);
}

void QtMessagesTest::showsTheIcon() {
  AnswerOf({.Text = "!", .Shown = Icon::Warning}, [](QMessageBox& box) {
    QCOMPARE(box.icon(), QMessageBox::Warning);
    box.close();
  });
  AnswerOf({.Text = "!"}, [](QMessageBox& box) {
    QCOMPARE(box.icon(), QMessageBox::NoIcon);
    box.close();
  });
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtMessagesTest)
#include "QtMessages_test.moc"
