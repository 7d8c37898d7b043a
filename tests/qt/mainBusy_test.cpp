#include "qt/DocumentsBench.h"

namespace tarnwick {

using namespace test;

// The main window while a command is at work, and when it is left.
class mainBusyTest : public QObject, private DocumentsBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { End(); }

  void locksWhatMustWait();
  void startsNothingElseMeanwhile();
  void keepsTheFocusInTheToothShape();
  void showsTheAnimationOverTheDrawing();
  void closes_data();
  void closes();
  void staysWhenNothingWasSaved();
  void asksAgainAfterTheCommand_data();
  void asksAgainAfterTheCommand();
  void takesItsWindowsAlongInOrder();
};

// ---- while a command is at work

void mainBusyTest::locksWhatMustWait() {
  main_->OpenBlank();
  main_->Do("mnuItemToothShape");
  int looked = 0;
  main_->Program.Time.Meanwhile = [&] {
    ++looked;
    for (const QAction* item : main_->Window->findChildren<QAction*>()) {
      const bool waits = std::any_of(std::begin(Locked), std::end(Locked),
                                     [&](const char* name) { return item->objectName() == name; });
      const bool never = item->objectName() == "mnuItemCalculator";
      if (item->objectName().startsWith("mnuItem"))
        QVERIFY2(item->isEnabled() == (!waits && !never), qPrintable(item->objectName()));
    }
    QVERIFY(!Named<QWidget>(*main_->Window, "fraToothShape")->isEnabled());
    QVERIFY(Named<QWidget>(*main_->Window, "fraGeneral")->isEnabled());
    QVERIFY(!Named<QWidget>(*main_->Window, "tlbNew")->isEnabled());
    QCOMPARE(main_->Window->cursor().shape(), Qt::WaitCursor);
    QCOMPARE(Named<QWidget>(*main_->Window, "PicEditor")->cursor().shape(), Qt::WaitCursor);
  };
  Choose({Stored("head.bsw"), Path("copy.bsw")});
  main_->Do("mnuItemOpen");
  QCOMPARE(looked, 30);
  main_->Do("mnuItemSaveAs");
  QCOMPARE(looked, 60);
  for (const char* item : Locked) QVERIFY(Named<QAction>(*main_->Window, item)->isEnabled());
  QVERIFY(Named<QWidget>(*main_->Window, "fraToothShape")->isEnabled());
  QCOMPARE(main_->Window->cursor().shape(), Qt::ArrowCursor);
  QCOMPARE(Named<QWidget>(*main_->Window, "PicEditor")->cursor().shape(), Qt::CrossCursor);
}

// Helpers for people who do not see press what they like at any moment.
void mainBusyTest::startsNothingElseMeanwhile() {
  main_->OpenFile(Stored("head.bsw"));
  int tried = 0;
  const auto press = [&] {
    if (tried++ % 10 != 0) return;
    for (QAction* item : main_->Window->findChildren<QAction*>()) {
      if (item->objectName() != "mnuItemExit") item->trigger();
    }
    for (auto* button : main_->Window->findChildren<QAbstractButton*>()) {
      if (button->isVisible()) button->click();
    }
  };
  main_->Program.Time.Meanwhile = press;
  Choose({Stored("next.bsw")});
  main_->Do("mnuItemOpen");
  QCOMPARE(tried, 30);
  QCOMPARE(Caption(), QString("next.bsw - Tarnwick"));
  QVERIFY(SameSaw(main_->Saw(), main_->Calculated(test::FullDesign())));
  QVERIFY(main_->Drawing() == main_->Drawn(test::FullDesign()));
  QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(Named<QAction>(*main_->Window, "mnuItemLeftRight")->isChecked());
  QVERIFY(Named<QRadioButton>(*main_->Window, "optImperial")->isChecked());
  QCOMPARE(main_->Program.Files.Asked.size(), std::size_t(1));
  QVERIFY(Boxes().empty());
  QVERIFY(main_->User.Seen.empty());

  // Nor in the moment in which a button comes up.
  tried = 0;
  main_->Do("mnuItemGeneral");
  QCOMPARE(tried, 1);
  QCOMPARE(main_->Panel(), QString("fraGeneral"));
  QVERIFY(Boxes().empty());
}

void mainBusyTest::keepsTheFocusInTheToothShape() {
  main_->OpenFile(Stored("head.bsw"));
  main_->Do("mnuItemToothShape");
  auto* hook = Named<QWidget>(*main_->Window, "txtHook");
  hook->setFocus();
  Answer({Button::Yes});
  main_->Do("mnuItemSave");
  QVERIFY(hook->hasFocus());
}

void mainBusyTest::showsTheAnimationOverTheDrawing() {
  main_->OpenBlank();
  const auto* surface = Named<QWidget>(*main_->Window, "PicEditor");
  const auto* anime = Named<QWidget>(*main_->Window, "frmAnime");
  QVERIFY(!anime->isVisible());
  int seen = 0;
  main_->Program.Time.Meanwhile = [&] {
    seen += anime->isVisible() ? 1 : 0;
    const QRect place(anime->mapTo(main_->Window.get(), QPoint()), anime->size());
    const QRect whole(surface->mapTo(main_->Window.get(), QPoint()), surface->size());
    QVERIFY((place.center() - whole.center()).manhattanLength() <= 2);
  };
  Choose({Stored("head.bsw")});
  main_->Do("mnuItemOpen");
  QCOMPARE(seen, 30);
  QVERIFY(!anime->isVisible());
  QVERIFY(surface->updatesEnabled());
}

// ---- close

void mainBusyTest::closes_data() {
  QTest::addColumn<int>("answer");
  QTest::addColumn<bool>("goes");
  QTest::newRow("yes") << static_cast<int>(Button::Yes) << true;
  QTest::newRow("no") << static_cast<int>(Button::No) << true;
  QTest::newRow("cancel") << static_cast<int>(Button::Cancel) << false;
}

void mainBusyTest::closes() {
  QFETCH(int, answer);
  QFETCH(bool, goes);
  main_->OpenFile(Stored("head.bsw"));
  ChangeHook("15");
  main_->Program.Store.Settings().clear();
  Answer({static_cast<Button>(answer)});
  Choose({Path("kept.bsw")});
  QCOMPARE(main_->Window->close(), goes);
  QCOMPARE(main_->Window->isVisible(), !goes);
  QCOMPARE(main_->Program.Store.Settings().empty(), !goes);
  QCOMPARE(fs::exists(Path("kept.bsw")), static_cast<Button>(answer) == Button::Yes);
  QCOMPARE(main_->Saw().HookAngle, 15.0);
  BandSaw before;
  QVERIFY(OpenBandSaw(before, Path("head.bsw"), main_->Program.Say));
  QCOMPARE(before.HookAngle, 28.0);
}

void mainBusyTest::staysWhenNothingWasSaved() {
  main_->OpenFile(Stored("head.bsw"));
  ChangeHook("15");
  Answer({Button::Yes, Button::Yes, Button::Ok});
  Choose({std::nullopt, Path("no folder") + PathSeparator + "kept.bsw"});
  QVERIFY(!main_->Window->close());
  QVERIFY(!main_->Window->close());
  QCOMPARE(Boxes().back().Title, std::string("Saving"));
  QVERIFY(ToQt(Boxes().back().Text).endsWith("\nSub Program SaveBeforeLeaving"));
  QVERIFY(main_->Window->isVisible());
  main_->Program.Store.FinishFailure = std::make_error_code(std::errc::permission_denied);
  Answer({Button::No});
  QVERIFY(main_->Window->close());  // what becomes of the settings does not hold it back
  QCOMPARE(Boxes().back().Title, std::string("Error"));
  QCOMPARE(Boxes().back().Text, std::string("Unable to save config file"));
}

void mainBusyTest::asksAgainAfterTheCommand_data() {
  QTest::addColumn<bool>("animated");
  QTest::newRow("while the animation plays") << true;
  QTest::newRow("while a button comes up") << false;
}

void mainBusyTest::asksAgainAfterTheCommand() {
  QFETCH(bool, animated);
  main_->OpenFile(Stored("head.bsw"));
  ChangeHook("15");
  bool asked = false;
  main_->Program.Time.Meanwhile = [&] {
    if (std::exchange(asked, true)) return;
    QVERIFY(!main_->Window->close());
    QVERIFY(Boxes().empty());
  };
  Choose({Path("kept.bsw")});
  main_->Do(animated ? "mnuItemSaveAs" : "mnuItemGeneral");
  QVERIFY(asked);
  QVERIFY(main_->Window->isVisible());
  QTRY_VERIFY(!main_->Window->isVisible());
  QCOMPARE(Boxes().size(), std::size_t(animated ? 0 : 1));  // saved, there is nothing to ask
}

void mainBusyTest::takesItsWindowsAlongInOrder() {
  main_->OpenBlank();
  struct Watch final : QObject {
    QStringList Closed;
    bool eventFilter(QObject* watched, QEvent* event) override {
      if (event->type() == QEvent::Close) Closed += watched->objectName();
      return false;
    }
  } watch;
  const QStringList order = {"frmAbout",  "frmBandCalc", "frmBDialog", "frmCDialog",  "frmCfg",   "frmColor",
                             "frmDialog", "frmGauge",    "frmPower",   "frmPowerEst", "frmSplash"};
  std::vector<std::unique_ptr<QWidget>> windows;
  for (auto name = order.rbegin(); name != order.rend(); ++name) {
    windows.push_back(std::make_unique<QWidget>());
    windows.back()->setObjectName(*name);
    windows.back()->installEventFilter(&watch);
    windows.back()->show();
  }
  main_->Window->close();
  QCOMPARE(watch.Closed, order);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainBusyTest)
#include "mainBusy_test.moc"
