#include <filesystem>

#include "qt/MainWindow.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::Named;

/// Time for the window to note a change.
constexpr int NotingTime = 3 * static_cast<int>(RecoveryInterval.count());

}  // namespace

// What the main window does for a design that would be lost by a crash.
class mainRecoveryTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void bringsTheDesignUpThatACrashHasLeft();
  void goesOnWithTheDesignOfTheCommandLine();
  void asksNothingAfterAGoodEnd();
  void notesAChange();
  void notesAChangeWhileADialogIsOpen();
  void forgetsWhatIsSaved();
  void forgetsWhatIsGivenUpAtTheEnd();
  void notesNothingOnceItIsClosed();

 private:
  void Crash(const BandSaw& saw) {
    OpenDesign design;
    design.Saw = saw;
    design.FileName = "lost.bsw";
    design.Settings.CurrentSawDir = main_->Folder.Path().string() + PathSeparator;
    Recovery(main_->Program.State.Path()).Note(design);
  }
  bool HasCopy() {
    for (const auto& entry : fs::recursive_directory_iterator(main_->Program.State.Path())) {
      if (entry.path().extension() == ".copy") return true;
    }
    return false;
  }
  std::string Stored() { return main_->Folder.File("head.bsw", BandSawText(test::FullDesign())).string(); }
  void Change() {
    main_->Do("mnuItemToothShape");
    main_->User.Acts = {test::Types("15")};
    QTest::mouseClick(Named<QWidget>(*main_->Window, "txtHook"), Qt::LeftButton);
  }

  std::unique_ptr<test::MainWindow> main_;
};

void mainRecoveryTest::bringsTheDesignUpThatACrashHasLeft() {
  BandSaw saw = test::FullDesign();
  saw.ImpMetric = Metric;
  Crash(saw);
  main_->Program.Say.Answers = {Button::Yes};
  main_->OpenFile(Stored());
  QCOMPARE(main_->Program.Say.Shown.size(), std::size_t(1));
  const Box& asked = main_->Program.Say.Shown.front();
  QCOMPARE(asked.Title, std::string("Recovery"));
  QCOMPARE(asked.Text, std::string("A design was open when the program ended unexpectedly.\n"
                                   "Do you wish to recover it?"));
  QVERIFY(asked.Offer == Buttons::YesNo && asked.Default == Button::Yes && asked.Shown == Icon::Question);
  QCOMPARE(main_->Window->windowTitle(), QString("lost.bsw - Tarnwick"));
  QVERIFY(Named<QRadioButton>(*main_->Window, "optMetric")->isChecked());
  QCOMPARE(main_->TextOf("txtHook"), QString(" 28.000 deg"));
  QVERIFY(main_->Drawing() == main_->Drawn(saw));
  QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
  QVERIFY(!SameSaw(main_->Saw(), main_->Design().SawSaved));
}

void mainRecoveryTest::goesOnWithTheDesignOfTheCommandLine() {
  Crash(test::FullDesign());
  main_->Program.Say.Answers = {Button::No};
  main_->OpenFile(Stored());
  QCOMPARE(main_->Window->windowTitle(), QString("head.bsw - Tarnwick"));
  QVERIFY(HasCopy());
}

void mainRecoveryTest::asksNothingAfterAGoodEnd() {
  main_->OpenFile(Stored());
  Change();
  QTRY_VERIFY(HasCopy());
  main_->Program.Say.Answers = {Button::No};
  QVERIFY(main_->Window->close());
  QVERIFY(!HasCopy());
}

void mainRecoveryTest::notesAChange() {
  main_->OpenFile(Stored());
  QTest::qWait(NotingTime);
  QVERIFY(!HasCopy());
  Change();
  QTRY_VERIFY(HasCopy());
  test::Click(*main_->Window, "cmdToothCancel");
  QTRY_VERIFY(!HasCopy());
}

void mainRecoveryTest::notesAChangeWhileADialogIsOpen() {
  main_->OpenFile(Stored());
  main_->User.Acts = {[this](QDialog& dialog) {
    main_->Design().Saw.HookAngle = 15;
    QTRY_VERIFY(HasCopy());
    QVERIFY(dialog.isVisible());
    test::Click(dialog, "cmdCancel");
  }};
  main_->Do("mnuItemOptions");
  QVERIFY(HasCopy());
}

void mainRecoveryTest::forgetsWhatIsSaved() {
  main_->OpenFile(Stored());
  Change();
  QTRY_VERIFY(HasCopy());
  main_->Program.Say.Answers = {Button::Yes};
  main_->Do("mnuItemSave");
  QVERIFY(!HasCopy());
}

void mainRecoveryTest::forgetsWhatIsGivenUpAtTheEnd() {
  main_->OpenFile(Stored());
  Change();
  QTRY_VERIFY(HasCopy());
  main_->Program.Say.Answers = {Button::Cancel};
  QVERIFY(!main_->Window->close());
  QVERIFY(HasCopy());
  main_->Program.Say.Answers = {Button::No};
  QVERIFY(main_->Window->close());
  QVERIFY(!HasCopy());
}

void mainRecoveryTest::notesNothingOnceItIsClosed() {
  main_->OpenFile(Stored());
  Change();
  main_->Program.Say.Answers = {Button::No};
  QVERIFY(main_->Window->close());
  QTest::qWait(NotingTime);
  QVERIFY(!HasCopy());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainRecoveryTest)
#include "mainRecovery_test.moc"
