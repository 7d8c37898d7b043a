#include <QComboBox>
#include <QListWidget>
#include <algorithm>
#include <filesystem>

#include "qt/Desk.h"
#include "store/modPowerFile.h"
#include "window/fraMain.h"

namespace tarnwick {
namespace {

using test::Cancels;
using test::Click;
using test::Desk;
using test::DialogUser;
using test::Named;
using test::Types;
using Texts = std::vector<std::string>;

std::string Bytes(const BandSaw& saw) { return BandSawText(saw); }

/// The image of a design, as it lies in every file.
std::string Image(const BandSaw& saw) { return BandSawText(saw).substr(50); }

/// All that the power figures take, and none of them yet.
BandSaw ReadySaw() {
  BandSaw saw = test::FullDesign();
  saw.ContainsInfo.Power = False;
  saw.GeneralInfo.ShaftSpeed = 0;
  saw.GeneralInfo.DepthOfCut = 0;
  saw.GeneralInfo.FeedRate = 0;
  saw.GeneralInfo.WoodType = {};
  saw.GeneralInfo.HorsePower = 0;
  saw.DesignInfo.SawVelocity = 0;
  saw.GulletInfo.Bite = 0;
  return saw;
}

/// The same at work in white oak.
BandSaw WorkingSaw() {
  BandSaw saw = ReadySaw();
  saw.GeneralInfo.ShaftSpeed = 510;
  saw.GeneralInfo.DepthOfCut = 10;
  saw.GeneralInfo.FeedRate = 100;
  saw.GeneralInfo.WoodType.Assign("Oak (White)");
  return saw;
}

/// Steps down a list by the keys till it shows that entry.
void Choose(QWidget& window, const char* list, const QString& entry) {
  auto* box = Named<QComboBox>(window, list);
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Home);
  for (int i = 0; i < box->count() && box->currentText() != entry; ++i) QTest::keyClick(box, Qt::Key_Down);
}

/// Chooses an entry of a question's list by the mouse.
DialogUser::Act Picks(const QString& entry) {
  return [entry](QDialog& dialog) {
    auto* list = Named<QListWidget>(dialog, "ListValues");
    QListWidgetItem* item = list->findItems(entry, Qt::MatchExactly).value(0);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    Click(dialog, "cmdOk");
  };
}

}  // namespace

// The power of the open design, and the power calculator, from the main window: by menu, keys and tool bar.
class mainPowerTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    main_ = std::make_unique<test::MainWindow>();
    asked_.clear();
  }
  void cleanup() { main_.reset(); }

  void opensTheEditor_data();
  void opensTheEditor();
  void namesWhatIsMissingOneByOne();
  void refusesWithoutAQuestion();

  void asksAboutChanges_data();
  void asksAboutChanges();
  void opensOnTheLastOkWhateverItLacks();
  void writesTheSettingsBeforeItOpens();
  void leavesTheDesignAloneMeanwhile();

  void bringsThePowerIntoTheDesign();
  void keepsThePowerInTheFile();
  void takesThePowerOutOfTheDesign();
  void asksAboutThePowerNext_data();
  void asksAboutThePowerNext();
  void keepsTheFeedIndexButNoEdits_data();
  void keepsTheFeedIndexButNoEdits();
  void remembersTheFeedIndexTillTheNextStart();
  void showsTheUnitsOfTheDesign();
  void viewsEstimatesAboveTheEditor();
  void startsNothingElseMeanwhile();

  void opensTheCalculator_data();
  void opensTheCalculator();
  void takesAnyDesignIntoTheCalculator();
  void calculatesApartFromTheDesign();
  void beginsWithTheFeedIndexOfTheProgram();
  void keepsCalculationsByteForByte();
  void keepsItsCalculationsWhenAFileIsRefused();

 private:
  OpenDesign& Design() { return main_->Design(); }
  std::vector<Box>& Boxes() { return main_->Program.Say.Shown; }
  void Answer(Button button) { main_->Program.Say.Answers = {button}; }
  double Index() { return Design().Settings.GulletFeedIndex; }
  bool HasWrittenSettings() { return !main_->Program.Store.Saved().empty(); }

  /// Plans what is done in the window that the next command opens.
  void Plan(const std::function<void(Desk&)>& work) {
    main_->User.Acts.push_back([this, work](QDialog& window) {
      Desk desk(window);
      work(desk);
      asked_ += desk.Others.Seen;
    });
  }
  /// Does it in the power window. Whatever is left open at the end is closed by Cancel.
  void InPower(const std::function<void(Desk&)>& work) {
    Plan([work](Desk& desk) {
      work(desk);
      if (desk.Window.isVisible()) desk.Press("cmdCancel");
    });
    main_->Do("mnuItemPower");
  }
  void InCalculator(const std::function<void(Desk&)>& work) {
    Plan([work](Desk& desk) {
      work(desk);
      if (desk.Window.isVisible()) desk.Press("cmdExit");
    });
    main_->Do("mnuItemPowerCalc");
  }

  /// By the panel of an editor.
  void AnswerBox(const char* box, const QString& text) {
    main_->User.Acts.push_back(Types(text));
    QTest::mouseClick(Named<QWidget>(*main_->Window, box), Qt::LeftButton);
  }

  /// The rows of power as the panel shows them.
  QStringList PowerRows();

  std::unique_ptr<test::MainWindow> main_;
  QStringList asked_;  // what the windows asked in turn
};

QStringList mainPowerTest::PowerRows() {
  QStringList rows;
  bool within = false;
  for (const InfoRow& row : Named<fraMain>(*main_->Window, "fraMain")->Rows()) {
    if (row.Header) within = row.Caption == "Power Requirements:";
    if (within && !row.Header && row.Code != RowCode::Blank) rows += ToQt(row.Caption + row.Value);
  }
  return rows;
}

// ---- the editor opens, or tells why not

void mainPowerTest::opensTheEditor_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"mouse", "keys", "button"}) QTest::newRow(how) << how;
}

void mainPowerTest::opensTheEditor() {
  QFETCH(QString, how);
  main_->Open(WorkingSaw());
  main_->Do("mnuItemGeneral");
  const std::string before = Bytes(main_->Saw());
  Plan([this](Desk& desk) {
    QCOMPARE(desk.Window.parentWidget(), main_->Window.get());
    QVERIFY(desk.Window.isModal());
    QCOMPARE(desk.Text("txtHPSawOD"), QString(" 5.000 ft"));
    QCOMPARE(desk.Text("txtToothPitch"), QString(" 2.000 in"));
    QCOMPARE(desk.Text("txtRPMs"), QString(" 510 rpms"));
    QCOMPARE(desk.Text("txtSawVelocity"), QString(" 8011 fpm"));
    QCOMPARE(desk.Text("txtSideClearance"), QString(" 0.030 in"));
    QCOMPARE(desk.Text("txtSpecificEnergy"), QString("Oak (White)"));
    QCOMPARE(desk.Text("txtHorsePower"), QString(" 52.083"));  // 10 * 0.125 * 100 * 60 / 144
    QCOMPARE(desk.Text("txtBite"), QString());                 // as stored
    QCOMPARE(Named<QComboBox>(desk.Window, "cboFeedIndex")->currentText(), QString("70 Percent"));
    desk.Press("cmdCancel");
  });
  test::Pick(*main_->Window, how, "mnuDesign", "mnuItemPower", "tlbPower");
  QCOMPARE(main_->User.Seen, QStringList("frmPower: Power Requirements"));
  QVERIFY(Boxes().empty());
  QVERIFY(Bytes(main_->Saw()) == before);
  QCOMPARE(main_->Panel(), QString("fraGeneral"));
}

/// Somebody fills in what the program asks for, and asks again.
void mainPowerTest::namesWhatIsMissingOneByOne() {
  BandSaw saw = ReadySaw();
  saw.GeneralInfo.Kerf = saw.GeneralInfo.PlateThick = saw.GeneralInfo.SideClear = 0;
  saw.MachineInfo.WheelDia = 0;
  main_->Open(saw);
  main_->Program.Store.Written.clear();
  const auto refusal = [this] {
    Boxes().clear();
    main_->Do("mnuItemPower");
    if (Boxes().size() != 1) return std::string("none, or more than one");
    const Box& box = Boxes().front();
    const bool isPlain =
        box.Title == "Information Required" && box.Shown == Icon::Information && box.Offer == Buttons::Ok;
    return isPlain ? box.Text : box.Title;
  };
  QCOMPARE(refusal(), std::string("Tooth width (Kerf) is required to calculate power requirements."));
  QVERIFY(!HasWrittenSettings());
  main_->Do("mnuItemGeneral");
  AnswerBox("txtKerf", ".125");
  QCOMPARE(refusal(), std::string("Plate thickness is required to calculate power requirements."));
  AnswerBox("txtPlateThick", ".065");
  Click(*main_->Window, "cmdGeneralOK");
  QCOMPARE(refusal(), std::string("Wheel diameter is required to calculate power requirements."));
  Plan([](Desk& desk) {
    desk.Enter("txtWheelDia", "5");
    desk.Press("cmdOk");
  });
  main_->Do("mnuItemBandLength");
  main_->User.Seen.clear();
  Boxes().clear();
  Answer(Button::Yes);  // the wheel is a change since the last OK
  InPower([](Desk& desk) { QCOMPARE(desk.Text("txtHPSawOD"), QString(" 5.000 ft")); });
  QCOMPARE(main_->User.Seen, QStringList("frmPower: Power Requirements"));
  QCOMPARE(main_->Program.Say.Texts(),
           Texts{"Bandsaw has been changed!\nDo you wish to keep the existing changes?"});
}

/// What is missing is told first: nobody is asked about changes, nothing is written, the panel stays.
void mainPowerTest::refusesWithoutAQuestion() {
  main_->OpenBlank();
  main_->Do("mnuItemToothShape");
  AnswerBox("txtHook", "15");
  QVERIFY(!SameSaw(main_->Saw(), Design().SawEdit));
  main_->Program.Store.Written.clear();
  const std::string saw = Bytes(main_->Saw()), edit = Bytes(Design().SawEdit);
  main_->Do("mnuItemPower");
  QCOMPARE(main_->Program.Say.Texts(), Texts{"Teeth are required to calculate power requirements."});
  QVERIFY(Bytes(main_->Saw()) == saw && Bytes(Design().SawEdit) == edit);
  QVERIFY(!HasWrittenSettings());
  QCOMPARE(main_->Panel(), QString("fraToothShape"));
}

// ---- changes since the last OK

void mainPowerTest::asksAboutChanges_data() {
  QTest::addColumn<int>("answer");
  QTest::newRow("Yes") << int(Button::Yes);
  QTest::newRow("No") << int(Button::No);
  QTest::newRow("Cancel") << int(Button::Cancel);
}

void mainPowerTest::asksAboutChanges() {
  QFETCH(int, answer);
  const Button button{answer};
  main_->Open(WorkingSaw());
  const BandSaw accepted = main_->Saw();
  const std::string drawn = main_->Drawing();
  main_->Do("mnuItemToothShape");
  Click(*main_->Window, "optMetric");
  AnswerBox("txtHook", "15");
  AnswerBox("txtPitch", "5");
  const BandSaw edited = main_->Saw();
  QVERIFY(!SameSaw(edited, accepted));
  main_->Program.Store.Written.clear();
  const BandSaw& kept = button == Button::No ? accepted : edited;

  if (button != Button::Cancel) {
    Plan([this, &kept](Desk& desk) {
      QCOMPARE(desk.Text("txtToothPitch"), QString(kept.ImpMetric == Metric ? " 5.017 cm" : " 2.000 in"));
      QVERIFY(Bytes(main_->Saw()) == Bytes(kept));
      QVERIFY(Bytes(Design().SawEdit) == Bytes(kept));
      desk.Press("cmdCancel");
    });
  }
  Answer(button);
  QTest::mouseClick(Named<QToolButton>(*main_->Window, "tlbPower"), Qt::LeftButton);
  QCOMPARE(Boxes().size(), std::size_t(1));
  const Box& box = Boxes().front();
  QCOMPARE(box.Title, std::string("Changed"));
  QCOMPARE(box.Text, std::string("Bandsaw has been changed!\nDo you wish to keep the existing changes?"));
  QVERIFY(box.Offer == Buttons::YesNoCancel && box.Default == Button::Cancel);

  QCOMPARE(main_->User.Seen.contains("frmPower: Power Requirements"), button != Button::Cancel);
  QVERIFY(main_->User.Acts.empty());
  QCOMPARE(HasWrittenSettings(), button != Button::Cancel);
  QVERIFY(Bytes(main_->Saw()) == Bytes(kept));
  QVERIFY(Bytes(Design().SawEdit) == Bytes(button == Button::Cancel ? accepted : kept));
  QCOMPARE(main_->Panel(), QString("fraToothShape"));
  QCOMPARE(main_->TextOf("txtHook"), QString(button == Button::No ? " 28.000 deg" : " 15.000 deg"));
  QCOMPARE(Named<QRadioButton>(*main_->Window, "optMetric")->isChecked(), button != Button::No);
  QCOMPARE(main_->Drawing() == drawn, button == Button::No);
}

/// What is required was there when it was looked for; No takes it away, and the window opens all the same.
void mainPowerTest::opensOnTheLastOkWhateverItLacks() {
  BandSaw saw = WorkingSaw();
  saw.GeneralInfo.Kerf = 0;
  main_->Open(saw);
  main_->Do("mnuItemGeneral");
  AnswerBox("txtKerf", ".125");
  Answer(Button::No);
  InPower([](Desk& desk) {
    QCOMPARE(desk.Text("txtHPToothWidth"), QString());
    QCOMPARE(desk.Text("txtHorsePower"), QString());
    QCOMPARE(desk.Text("txtSawVelocity"), QString(" 8011 fpm"));
  });
  QCOMPARE(main_->User.Seen.last(), QString("frmPower: Power Requirements"));
  QCOMPARE(main_->TextOf("txtKerf"), QString());
}

void mainPowerTest::writesTheSettingsBeforeItOpens() {
  main_->Open(WorkingSaw());
  main_->Program.Store.Written.clear();
  InPower([this](Desk& desk) {
    QVERIFY(HasWrittenSettings());
    main_->Program.Store.Written.clear();
    desk.Press("cmdOk");
  });
  QVERIFY(!HasWrittenSettings());  // OK writes none
}

void mainPowerTest::leavesTheDesignAloneMeanwhile() {
  main_->Open(WorkingSaw());
  const std::string saw = Bytes(main_->Saw());
  const QStringList rows = PowerRows();
  InPower([&](Desk& desk) {
    desk.Enter("txtFeedRate", "200");
    QCOMPARE(desk.Text("txtFeedRate"), QString(" 200 fpm"));
    QVERIFY(Bytes(main_->Saw()) == saw && Bytes(Design().SawEdit) == saw);
    QCOMPARE(PowerRows(), rows);
  });
}

// ---- what comes back

void mainPowerTest::bringsThePowerIntoTheDesign() {
  main_->Open(ReadySaw());
  const BandSaw before = main_->Saw();
  const std::string drawn = main_->Drawing();
  QCOMPARE(PowerRows(), QStringList());
  main_->Do("mnuItemGeneral");
  InPower([](Desk& desk) {
    desk.Enter("txtRPMs", "510");
    desk.Others.Acts = {Types("10")};
    desk.Press("lblMaxDepth");
    desk.Enter("txtFeedRate", "100");
    desk.Others.Acts = {Picks("Oak (White)")};
    desk.Press("txtSpecificEnergy");
    QCOMPARE(desk.Text("txtBite"), QString(" 0.025 in"));
    desk.Press("cmdOk");
  });
  QCOMPARE(asked_, QStringList({"frmCDialog: Wheel RPMs", "frmCDialog: Maximum Depth of Cut",
                                "frmCDialog: Feed Rate", "frmCDialog: Type of Wood"}));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QCOMPARE(PowerRows(), QStringList({"Wheel RPMs: 510 rpms", "Tooth Speed: 8011 fpm",
                                     "Depth of Cut (Max): 10.000 in", "Feed Rate: 100 fpm", "Bite: 0.025 in",
                                     "Type of Wood: Oak (White)", "Horsepower: 52.083"}));
  const BandSaw& saw = main_->Saw();
  QCOMPARE(saw.ContainsInfo.Power, True);
  QCOMPARE(saw.DesignInfo.SawVelocity, 8011);
  QCOMPARE(saw.GulletInfo.Bite, 0.02496);  // 100 * 2 / 8011
  QCOMPARE(saw.GulletInfo.Capacity, 0.2496);
  QCOMPARE(saw.GeneralInfo.HorsePower, 52.08333);
  QVERIFY(saw.DesignInfo.MaxFeedRate > 0);
  QVERIFY(Bytes(Design().SawEdit) == Bytes(before));  // as it was when the window opened
  QVERIFY(Bytes(Design().SawSaved) == Bytes(before));
  QVERIFY(main_->Drawing() == drawn);
  Answer(Button::Yes);
  main_->Do("mnuItemGeneral");
  QCOMPARE(main_->TextOf("txtGenHorsePower"), QString(" 52.083"));
}

void mainPowerTest::keepsThePowerInTheFile() {
  main_->Open(ReadySaw());
  InPower([](Desk& desk) {
    desk.Enter("txtRPMs", "510");
    desk.Enter("txtMaxDepth", "10");
    desk.Enter("txtFeedRate", "100");
    desk.Enter("txtSpecificEnergy", "Oak (White)");
    desk.Press("cmdOk");
  });
  const QStringList rows = PowerRows();
  QCOMPARE(rows.size(), 7);
  Answer(Button::Yes);  // replaces the file
  main_->Do("mnuItemSave");
  const std::string file = (main_->Folder.Path() / "head.bsw").string();
  BandSaw read;
  QVERIFY(OpenBandSaw(read, file, main_->Program.Say));
  QCOMPARE(read.ContainsInfo.Power, True);
  QCOMPARE(read.GeneralInfo.HorsePower, 52.08333);
  main_->Do("mnuItemNew");
  QCOMPARE(PowerRows(), QStringList());
  main_->Program.Files.Paths = {file};
  main_->Do("mnuItemOpen");
  QCOMPARE(PowerRows(), rows);
}

void mainPowerTest::takesThePowerOutOfTheDesign() {
  main_->Open(test::FullDesign());  // its "Cedar" is in no list
  QCOMPARE(PowerRows().size(), 7);
  QCOMPARE(main_->Saw().ContainsInfo.Power, True);
  InPower([](Desk& desk) {
    QCOMPARE(desk.Text("txtSpecificEnergy"), QString("Cedar"));
    QCOMPARE(desk.Text("txtHorsePower"), QString());
    desk.Press("cmdOk");
  });
  QCOMPARE(main_->Saw().ContainsInfo.Power, False);
  QCOMPARE(PowerRows(), QStringList());
  QCOMPARE(main_->Saw().GeneralInfo.FeedRate, 200.0);  // the conditions stay
}

void mainPowerTest::asksAboutThePowerNext_data() {
  QTest::addColumn<QString>("command");
  for (const char* command : {"mnuItemMain", "mnuItemGeneral", "mnuItemToothShape", "mnuItemPower"})
    QTest::newRow(command) << command;
}

/// Coming back does not renew the state of the last OK: the next command asks, and No takes the power away.
void mainPowerTest::asksAboutThePowerNext() {
  QFETCH(QString, command);
  const bool isPower = command == "mnuItemPower";
  main_->Open(ReadySaw());
  const BandSaw before = main_->Saw();
  InPower([](Desk& desk) {
    desk.Enter("txtRPMs", "510");
    desk.Press("cmdOk");
  });
  QCOMPARE(main_->Saw().GeneralInfo.ShaftSpeed, 510);
  QVERIFY(Boxes().empty());
  Answer(Button::No);
  if (isPower) {
    InPower([](Desk& desk) { QCOMPARE(desk.Text("txtRPMs"), QString()); });
  } else {
    main_->Do(command.toUtf8().constData());
  }
  QCOMPARE(Boxes().size(), std::size_t(1));
  QCOMPARE(Boxes().front().Title, std::string("Changed"));
  QVERIFY(Bytes(main_->Saw()) == Bytes(before));
  if (isPower)
    InPower([](Desk&) {});
  else
    main_->Do(command.toUtf8().constData());
  QCOMPARE(Boxes().size(), std::size_t(1));  // nothing is left to ask about
}

void mainPowerTest::keepsTheFeedIndexButNoEdits_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"Cancel", "Escape", "close"}) QTest::newRow(how) << how;
}

void mainPowerTest::keepsTheFeedIndexButNoEdits() {
  QFETCH(QString, how);
  main_->Open(WorkingSaw());
  main_->Do("mnuItemGeneral");
  const std::string before = Bytes(main_->Saw());
  InPower([&](Desk& desk) {
    desk.Enter("txtRPMs", "600");
    desk.Enter("txtSpecificEnergy", "Aspen");
    Choose(desk.Window, "cboFeedIndex", "40 Percent");
    QCOMPARE(Index(), 0.4);  // at once
    main_->Program.Store.Written.clear();
    if (how == "Cancel") desk.Press("cmdCancel");
    if (how == "Escape") QTest::keyClick(desk.Window.focusWidget(), Qt::Key_Escape);
    if (how == "close") desk.Window.close();
    QVERIFY(!desk.Window.isVisible());
  });
  QVERIFY(Bytes(main_->Saw()) == before);
  QVERIFY(Bytes(Design().SawEdit) == before);
  QCOMPARE(main_->Panel(), QString("fraGeneral"));
  QCOMPARE(Index(), 0.4);
  const auto& saved = main_->Program.Store.Saved();
  QVERIFY(std::count(saved.begin(), saved.end(), test::MemoryStore::Setting("GulletFeedIndex", " .4")) == 1);
  InPower([](Desk& desk) {
    QCOMPARE(Named<QComboBox>(desk.Window, "cboFeedIndex")->currentText(), QString("40 Percent"));
    QCOMPARE(desk.Text("txtRPMs"), QString(" 510 rpms"));
  });
  QVERIFY(Boxes().empty());
}

void mainPowerTest::remembersTheFeedIndexTillTheNextStart() {
  main_->Open(WorkingSaw());
  InPower([](Desk& desk) {
    Choose(desk.Window, "cboFeedIndex", "55 Percent");
    desk.Press("cmdOk");
  });
  Answer(Button::No);
  main_->Window->close();
  QVERIFY(!main_->Window->isVisible());

  const auto store = main_->Program.Store.Sections;
  main_ = std::make_unique<test::MainWindow>();
  main_->Program.Store.Sections = store;
  main_->Open(WorkingSaw());
  QCOMPARE(Index(), 0.55);
  QString shown;
  InPower([&](Desk& desk) { shown = Named<QComboBox>(desk.Window, "cboFeedIndex")->currentText(); });
  QCOMPARE(shown, QString("55 Percent"));
}

void mainPowerTest::showsTheUnitsOfTheDesign() {
  BandSaw saw = WorkingSaw();
  saw.ImpMetric = Metric;
  main_->Open(saw);
  InPower([](Desk& desk) {
    QCOMPARE(desk.Text("txtHPSawOD"), QString(" 1.524 m"));
    QCOMPARE(desk.Text("txtHPToothWidth"), QString(" 3.175 mm"));
    QCOMPARE(desk.Text("txtFeedRate"), QString(" 30 mpm"));
    desk.Enter("txtMaxDepth", "12");  // inches, whatever shows
    QCOMPARE(desk.Text("txtMaxDepth"), QString(" 30.480 cm"));
    desk.Press("cmdOk");
  });
  QCOMPARE(main_->Saw().GeneralInfo.DepthOfCut, 12.0);
  QVERIFY(PowerRows().contains("Depth of Cut (Max): 30.480 cm"));
}

void mainPowerTest::viewsEstimatesAboveTheEditor() {
  main_->Open(WorkingSaw());
  const std::string before = Bytes(main_->Saw());
  QStringList feedRates;
  InPower([&](Desk& desk) {
    desk.Press("cmdView");
    QCOMPARE(main_->Program.Say.Texts(), Texts{"You must first select a percent from the above list."});
    QCOMPARE(Boxes().front().Title, std::string("Select Percent"));
    Choose(desk.Window, "cboPercent", "10 Percent");
    desk.Others.Acts = {[&](QDialog& list) {
      QCOMPARE(list.parentWidget(), &desk.Window);
      QCOMPARE(Named<QLabel>(list, "lblHeading")->text(),
               QString("Power estimates based on increasing feedrate by 10 percent."));
      const auto* lines = Named<QListWidget>(list, "picPowerEst");
      for (const QListWidgetItem* line : lines->findItems("Feed Rate:", Qt::MatchStartsWith))
        feedRates += line->text();
      QTest::keyClick(list.focusWidget(), Qt::Key_Return);
    }};
    desk.Press("cmdView");
    QVERIFY(desk.Window.isVisible());
  });
  QCOMPARE(asked_, QStringList("frmPowerEst: Power Estimates"));
  QCOMPARE(feedRates, QStringList({"Feed Rate: 100 fpm", "Feed Rate: 110 fpm*", "Feed Rate: 121 fpm*",
                                   "Feed Rate: 133 fpm*"}));
  QVERIFY(Bytes(main_->Saw()) == before);
}

void mainPowerTest::startsNothingElseMeanwhile() {
  main_->Open(WorkingSaw());
  const std::string before = Bytes(main_->Saw());
  InPower([&](Desk& desk) {
    for (const char* command : {"mnuItemNew", "mnuItemGeneral", "mnuItemPower", "mnuItemPowerCalc"})
      main_->Do(command);
    QTest::qWait(5);
    QCOMPARE(QApplication::activeModalWidget(), &desk.Window);
  });
  QCOMPARE(main_->User.Seen, QStringList("frmPower: Power Requirements"));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(Bytes(main_->Saw()) == before);
}

// ---- the calculator

void mainPowerTest::opensTheCalculator_data() {
  QTest::addColumn<QString>("how");
  for (const char* how : {"mouse", "keys"}) QTest::newRow(how) << how;
}

void mainPowerTest::opensTheCalculator() {
  QFETCH(QString, how);
  BandSaw saw = WorkingSaw();
  saw.DesignInfo.SawVelocity = 8000;  // shown as it is stored
  main_->Open(saw);
  Plan([this](Desk& desk) {
    QCOMPARE(desk.Window.parentWidget(), main_->Window.get());
    QVERIFY(desk.Window.isModal());
    QCOMPARE(desk.Text("txtHPSawOD(0)"), QString(" 5.000 ft"));
    QCOMPARE(desk.Text("txtCenters(0)"), QString(" 8.000 ft"));
    QCOMPARE(desk.Text("txtLength(0)"), QString(" 40.000 ft"));
    QCOMPARE(desk.Text("txtNumTeeth(0)"), QString(" 240"));
    QCOMPARE(desk.Text("txtSawVelocity(0)"), QString(" 8000 fpm"));
    QCOMPARE(desk.Text("txtHorsePower(0)"), QString());
    for (const auto* box : desk.Window.findChildren<QLineEdit*>()) {
      if (box->objectName().endsWith("(1)")) QCOMPARE(box->text(), QString());
    }
    desk.Press("cmdExit");
  });
  test::Pick(*main_->Window, how, "mnuTools", "mnuItemPowerCalc");
  QCOMPARE(main_->User.Seen, QStringList("frmPowerCalc: Power Calculator"));
}

/// A blank design, and one that has changed: nothing is missing here, and nothing asked.
void mainPowerTest::takesAnyDesignIntoTheCalculator() {
  main_->OpenBlank();
  InCalculator([](Desk& desk) {
    for (const auto* box : desk.Window.findChildren<QLineEdit*>()) QCOMPARE(box->text(), QString());
  });
  main_->Do("mnuItemToothShape");
  AnswerBox("txtLength", "30");
  QVERIFY(!SameSaw(main_->Saw(), Design().SawEdit));
  const std::string edit = Bytes(Design().SawEdit);
  InCalculator([](Desk& desk) { QCOMPARE(desk.Text("txtLength(0)"), QString(" 30.000 ft")); });
  QVERIFY(Boxes().empty());
  QVERIFY(Bytes(Design().SawEdit) == edit);
  QCOMPARE(main_->Panel(), QString("fraToothShape"));
}

void mainPowerTest::calculatesApartFromTheDesign() {
  main_->Open(WorkingSaw());
  main_->Do("mnuItemGeneral");
  const std::string before = Bytes(main_->Saw());
  InCalculator([&](Desk& desk) {
    desk.Enter("txtFeedRate(0)", "200");
    QCOMPARE(desk.Text("txtBite(0)"), QString(" 0.050 in"));
    desk.Press("cmdCopy");
    desk.Enter("txtToothPitch(1)", "1.5");
    QCOMPARE(desk.Text("txtNumTeeth(1)"), QString(" 320"));
    QCOMPARE(desk.Text("txtBite(1)"), QString(" 0.037 in"));  // 200 * 1.5 / 8011
    QCOMPARE(desk.Text("txtToothPitch(0)"), QString(" 2.000 in"));
    desk.Press("cmdClear(0)");
    QCOMPARE(desk.Text("txtFeedRate(0)"), QString());
    QVERIFY(Bytes(main_->Saw()) == before);
  });
  QVERIFY(Bytes(main_->Saw()) == before);
  QVERIFY(Bytes(Design().SawEdit) == before && Bytes(Design().SawSaved) == before);
  QCOMPARE(main_->Panel(), QString("fraGeneral"));
  QVERIFY(Boxes().empty());
  main_->Do("mnuItemMain");
  QVERIFY(Boxes().empty());  // nothing has changed
}

void mainPowerTest::beginsWithTheFeedIndexOfTheProgram() {
  main_->Open(WorkingSaw());
  InPower([](Desk& desk) { Choose(desk.Window, "cboFeedIndex", "45 Percent"); });
  const auto shown = [](Desk& desk) { return Named<QComboBox>(desk.Window, "cboFeedIndex")->currentText(); };
  InCalculator([&](Desk& desk) {
    QCOMPARE(shown(desk), QString("45 Percent"));
    Choose(desk.Window, "cboFeedIndex", "90 Percent");
    QCOMPARE(shown(desk), QString("90 Percent"));
    desk.Enter("txtRPMs(0)", "600");  // a question writes the settings
    QCOMPARE(shown(desk), QString("90 Percent"));
  });
  QCOMPARE(Index(), 0.45);
  QCOMPARE(main_->Program.Store.Settings()["GulletFeedIndex"], std::string(" .45"));
  InCalculator([&](Desk& desk) { QCOMPARE(shown(desk), QString("45 Percent")); });
  InPower([&](Desk& desk) { QCOMPARE(shown(desk), QString("45 Percent")); });
}

void mainPowerTest::keepsCalculationsByteForByte() {
  BandSaw saw = WorkingSaw();
  saw.CustomerInfo.Spare.Assign("a file keeps every byte");
  main_->Open(saw);
  const std::string taken = Image(main_->Saw()), empty = Image({});
  const auto path = [this](const char* name) { return (main_->Folder.Path() / name).string(); };
  const auto file = [this](const char* name) { return test::BytesOf(main_->Folder / name); };
  const std::string header = "Bandsaw Power File   Version: 1.01                     ";
  InCalculator([&](Desk& desk) {
    main_->Program.Files.Paths = {path("taken")};  // the extension is added
    desk.Press("cmdSave");
    QCOMPARE(file("taken.bsp").size(), std::size_t(6705));
    QVERIFY(file("taken.bsp") == header + taken + empty);
    QCOMPARE(desk.Window.windowTitle(), QString("taken.bsp - Power Calculator"));

    desk.Press("cmdCopy");
    desk.Enter("txtSpecificEnergy(1)", "Aspen");
    desk.Enter("txtRPMs(0)", "600");
    const QString first = desk.Text("txtHorsePower(0)"), second = desk.Text("txtHorsePower(1)");
    QVERIFY(first != second);
    main_->Program.Files.Paths = {path("two.bsp")};
    desk.Press("cmdSave");
    desk.Press("cmdNew");
    QCOMPARE(desk.Window.windowTitle(), QString("Power Calculator"));
    QCOMPARE(desk.Text("txtHorsePower(0)") + desk.Text("txtHorsePower(1)"), QString());

    main_->Program.Files.Paths = {path("two.bsp"), path("again.bsp")};
    desk.Press("cmdOpen");
    QCOMPARE(desk.Window.windowTitle(), QString("two.bsp - Power Calculator"));
    QCOMPARE(desk.Text("txtHorsePower(0)"), first);
    QCOMPARE(desk.Text("txtHorsePower(1)"), second);
    QCOMPARE(desk.Text("txtRPMs(0)"), QString(" 600 rpms"));
    desk.Press("cmdSave");
    QVERIFY(file("again.bsp") == file("two.bsp"));
    QCOMPARE(file("again.bsp").substr(0, 55), header);
  });
  QCOMPARE(main_->Program.Files.Modes, (Texts{"save", "save", "open", "save"}));
  QCOMPARE(main_->Program.Files.Asked[0].Filter, std::string("Bandsaw Power Files (*.bsp)|*.bsp"));
  QVERIFY(Boxes().empty());
  QVERIFY(Image(main_->Saw()) == taken);
  QCOMPARE(main_->Window->windowHandle()->title(), QString("head.bsw - Tarnwick"));  // no document of its own
}

void mainPowerTest::keepsItsCalculationsWhenAFileIsRefused() {
  main_->Open(WorkingSaw());
  const std::string other = main_->Folder.File("list.bsp", "Shopping list").string();
  std::string newer = PowerFileText({});
  newer.replace(30, 4, "1.02");
  const std::string later = main_->Folder.File("later.bsp", newer).string();
  InCalculator([&](Desk& desk) {
    const QString caption = desk.Window.windowTitle();
    main_->Program.Files.Paths = {other, later, std::nullopt};
    for (int i = 0; i < 3; ++i) {
      desk.Press("cmdOpen");
      QCOMPARE(desk.Text("txtLength(0)"), QString(" 40.000 ft"));
      QCOMPARE(desk.Window.windowTitle(), caption);
    }
  });
  QCOMPARE(main_->Program.Say.Texts(), (Texts{"Not a valid Power File     ",
                                              "File was saved in a newer version of this program!\n"
                                              "Some information may not be available to the version\n"
                                              "you are currently using!\n"
                                              "Contact www.tarnwick.example for an update."}));
  QVERIFY(std::filesystem::exists(other) && std::filesystem::exists(later));  // nothing is ever removed here
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainPowerTest)
#include "mainPower_test.moc"
