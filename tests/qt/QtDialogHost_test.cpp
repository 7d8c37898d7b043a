#include "platform/qt/QtDialogHost.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "entry/Questions.h"
#include "platform/qt/QtMessages.h"
#include "qt/Controls.h"
#include "support/CollectedMessages.h"
#include "support/RecordingHelpViewer.h"

namespace tarnwick {
namespace {

using test::Named;

/// Lets `user` at the dialog that will be open.
void Await(const std::function<void(QWidget&)>& user) {
  QTimer::singleShot(0, qApp, [user] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || !QTest::qWaitForWindowActive(dialog)) qFatal("no dialog is open");
    user(*dialog);
  });
}

}  // namespace

class QtDialogHostTest : public QObject {
  Q_OBJECT

 private slots:
  void asksForAMeasureOfADesign();
  void leavesTheDesignWhenCancelled();
  void asksForTheSeat();
  void standsAboveTheWindowInUse();
  void standsAloneWithoutAWindow();
  void asksAnewEachTime();

 private:
  test::RecordingHelpViewer help_;
  QtDialogHost host_{help_};
};

void QtDialogHostTest::asksForAMeasureOfADesign() {
  CollectedMessages messages;
  int saved = 0;
  const Questions ask{host_, messages, {.ImpMetric = Metric}, [&saved] { ++saved; }};
  BandSaw saw;
  Await([](QWidget& dialog) {
    QCOMPARE(dialog.windowTitle(), QString("Band Saw Width"));
    QTest::keyClicks(Named<QLineEdit>(dialog, "txtValue"), "20+5.4");
    QTest::keyClick(Named<QLineEdit>(dialog, "txtValue"), Qt::Key_Return);
  });
  QVERIFY(ask.Ask(Parameter::BandWidth, saw));
  QCOMPARE(saw.Width, 10.0);
  QCOMPARE(saved, 1);
}

void QtDialogHostTest::leavesTheDesignWhenCancelled() {
  CollectedMessages messages;
  int saved = 0;
  const Questions ask{host_, messages, {}, [&saved] { ++saved; }};
  BandSaw saw;
  saw.Width = 9;
  Await([](QWidget& dialog) {
    QTest::keyClicks(Named<QLineEdit>(dialog, "txtValue"), "12");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  QVERIFY(!ask.Ask(Parameter::BandWidth, saw));
  QCOMPARE(saw.Width, 9.0);
  QCOMPARE(saved, 1);
}

void QtDialogHostTest::asksForTheSeat() {
  CollectedMessages messages;
  const Questions ask{host_, messages, {}, [] {}};
  Flag seat = False;
  Await([](QWidget& dialog) {
    QVERIFY(Named<QRadioButton>(dialog, "optNo")->isChecked());
    QTest::keyClick(Named<QRadioButton>(dialog, "optNo"), Qt::Key_Up);
    QTest::mouseClick(Named<QPushButton>(dialog, "cmdOk"), Qt::LeftButton);
  });
  QVERIFY(ask.AskSeat(seat));
  QCOMPARE(seat, True);
}

void QtDialogHostTest::standsAboveTheWindowInUse() {
  QWidget window;
  window.show();
  QVERIFY(QTest::qWaitForWindowActive(&window));
  CollectedMessages messages;
  ValueDialog question = PrepareDialog(Parameter::Pitch, 1, {}, messages);
  Await([&window](QWidget& dialog) {
    QCOMPARE(dialog.parentWidget(), &window);
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    dialog.close();
  });
  host_.Run(question);
  QVERIFY(!question.IsOpen());
}

void QtDialogHostTest::standsAloneWithoutAWindow() {
  CollectedMessages messages;
  YesNoDialog question(SeatPrompt, SeatKey, SeatTitle, true);
  Await([](QWidget& dialog) {
    QCOMPARE(dialog.parentWidget(), nullptr);
    dialog.close();
  });
  host_.Run(question);
  QVERIFY(!question.IsOpen());
}

void QtDialogHostTest::asksAnewEachTime() {
  CollectedMessages messages;
  for (const char* typed : {"3", "4"}) {
    ValueDialog question = PrepareDialog(Parameter::Pitch, 1, {}, messages);
    Await([typed](QWidget& dialog) {
      QCOMPARE(Named<QLineEdit>(dialog, "txtValue")->text(), QString());
      QTest::keyClicks(Named<QLineEdit>(dialog, "txtValue"), typed);
      QTest::keyClick(Named<QLineEdit>(dialog, "txtValue"), Qt::Key_Return);
    });
    host_.Run(question);
    QCOMPARE(QString::fromStdString(question.Result()), QString(" ") + typed);
  }
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtDialogHostTest)
#include "QtDialogHost_test.moc"
