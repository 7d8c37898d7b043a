#include "platform/qt/CenterForm.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>
#include <memory>

#include "entry/Questions.h"
#include "entry/frmBDialog.h"
#include "entry/frmCDialog.h"
#include "entry/modParameter.h"
#include "platform/CollectedMessages.h"
#include "shell/frmCfg.h"
#include "shell/frmColor.h"
#include "support/RecordingHelpViewer.h"
#include "support/ScriptedColorDialog.h"

namespace tarnwick {

class CenterFormTest : public QObject {
  Q_OBJECT

 private slots:
  void opensInTheMiddle_data();
  void opensInTheMiddle();
  void opensOnTheScreenOfItsWindow();
  void beginsAtTheTopLeftWhenItIsTooLarge();
  void staysWhereItWasMovedTo();
  void centresEveryDialog();

 private:
  static void IsInTheMiddle(const QWidget& form, const QScreen& screen);
};

void CenterFormTest::IsInTheMiddle(const QWidget& form, const QScreen& screen) {
  const QRect area = screen.availableGeometry(), frame = form.frameGeometry();
  QVERIFY(frame.height() > form.height());  // its title bar counts
  QVERIFY(area.contains(frame));
  QVERIFY(std::abs((frame.left() - area.left()) - (area.right() - frame.right())) <= 1);
  QVERIFY(std::abs((frame.top() - area.top()) - (area.bottom() - frame.bottom())) <= 1);
}

void CenterFormTest::opensInTheMiddle_data() {
  QTest::addColumn<QSize>("size");
  QTest::newRow("small") << QSize(200, 100);
  QTest::newRow("odd") << QSize(301, 213);
  QTest::newRow("large") << QSize(1200, 800);
}

void CenterFormTest::opensInTheMiddle() {
  QFETCH(QSize, size);
  QMainWindow owner;
  owner.setGeometry(20, 500, 300, 200);
  owner.show();
  QVERIFY(QTest::qWaitForWindowExposed(&owner));
  QDialog form(&owner);
  CenterForm(form);
  form.resize(size);
  form.show();
  QVERIFY(QTest::qWaitForWindowExposed(&form));
  IsInTheMiddle(form, *owner.screen());
}

void CenterFormTest::opensOnTheScreenOfItsWindow() {
  QCOMPARE(QGuiApplication::screens().size(), 2);
  for (QScreen* screen : QGuiApplication::screens()) {
    QMainWindow owner;
    owner.setGeometry(QRect(screen->geometry().topLeft() + QPoint(30, 30), QSize(200, 200)));
    owner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&owner));
    QCOMPARE(owner.screen(), screen);
    QDialog form(&owner);
    CenterForm(form);
    form.resize(301, 200);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    IsInTheMiddle(form, *screen);
  }
}

void CenterFormTest::beginsAtTheTopLeftWhenItIsTooLarge() {
  QDialog form;
  CenterForm(form);
  form.resize(5000, 4000);
  form.show();
  QVERIFY(QTest::qWaitForWindowExposed(&form));
  QCOMPARE(form.frameGeometry().topLeft(), form.screen()->availableGeometry().topLeft());
}

void CenterFormTest::staysWhereItWasMovedTo() {
  QDialog form;
  CenterForm(form);
  form.show();
  QVERIFY(QTest::qWaitForWindowExposed(&form));
  form.move(11, 12);
  form.hide();
  form.show();
  QVERIFY(QTest::qWaitForWindowExposed(&form));
  QCOMPARE(form.pos(), QPoint(11, 12));
}

void CenterFormTest::centresEveryDialog() {
  QMainWindow owner;
  owner.setGeometry(20, 500, 300, 200);
  owner.show();
  QVERIFY(QTest::qWaitForWindowExposed(&owner));
  CollectedMessages messages;
  test::ScriptedColorDialog colours;
  test::RecordingHelpViewer help;
  Config settings;
  OptionsDialog options(
      settings, [] {}, messages);
  DxfColorChoice colour(5);
  YesNoDialog yesNo{SeatPrompt, SeatKey, SeatTitle, true};
  ValueDialog value = PrepareDialog(Parameter::BandWidth, SquareBack, {}, messages);
  const std::unique_ptr<QDialog> forms[] = {std::make_unique<frmCfg>(options, colours, help, &owner),
                                            std::make_unique<frmColor>(colour, help, &owner),
                                            std::make_unique<frmBDialog>(yesNo, help, &owner),
                                            std::make_unique<frmCDialog>(value, help, &owner)};
  for (const auto& form : forms) {
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));
    IsInTheMiddle(*form, *owner.screen());
    form->hide();
  }
}

}  // namespace tarnwick

// A desk of two screens.
int main(int argc, char** argv) {
  QTemporaryFile desk;
  if (!desk.open()) return 1;
  desk.write(R"({"screens": [{"name": "left", "x": 0, "y": 0, "width": 1280, "height": 900},
                             {"name": "right", "x": 1280, "y": 100, "width": 800, "height": 600}]})");
  desk.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + desk.fileName().toUtf8());
  QApplication application(argc, argv);
  tarnwick::CenterFormTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "CenterForm_test.moc"
