#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QToolButton>

#include "platform/qt/ToolBar.h"
#include "qt/MainWindow.h"
#include "shell/modString.h"
#include "shell/modToolCommands.h"

namespace tarnwick {
namespace {

using test::Named;

enum class Kind { Item, Menu, Separator };
enum class Shown { Yes, No };

struct Row {
  const char* Name;
  Kind What;
  const char* Caption = "";
  const char* Key = "";
  Shown Seen = Shown::Yes;
};

constexpr Kind Menu = Kind::Menu, Separator = Kind::Separator, Item = Kind::Item;

/// A menu with what it holds, in its order; those within it follow as menus of their own.
struct MenuRows {
  const char* Name;
  const char* Caption;
  std::vector<Row> Rows;
};

const MenuRows Menus[] = {
    {"mnuFile",
     "&File",
     {{"mnuItemNew", Item, "&New"},
      {"mnuItemStepByStep", Item, "Ne&w Step by Step"},
      {"mnuItemOpen", Item, "&Open"},
      {"mnuItemSave", Item, "&Save"},
      {"mnuItemSaveAs", Item, "Save &As"},
      {"mnuItemFileSep4", Separator},
      {"mnuItemExport", Menu, "Export"},
      {"mnuItemFileSep1", Separator},
      {"mnuItemPrint", Item, "&Print"},
      {"mnuItemPrintOnly", Menu, "P&rint Outs"},
      {"mnuSepFile2", Separator, "", "", Shown::No},
      {"mnuRecentFiles(0)", Separator, "", "", Shown::No},
      {"mnuItemFileSep3", Separator},
      {"mnuItemExit", Item, "E&xit"}}},
    {"mnuItemExport",
     "Export",
     {{"mnuItemExportDxf", Item, "Drawing to a Dxf File"},
      {"mnuItemSaveText", Item, "Information to a Text File"},
      {"mnuItemExportPdf", Item, "Print Outs to a Pdf File"}}},
    {"mnuItemPrintOnly",
     "P&rint Outs",
     {{"mnuItemPrintInfo", Item, "&Information Sheet"},
      {"mnuItemPrintShape", Item, "&Toothshape"},
      {"mnuItemPrintVariable", Item, "&Variable Pitch Segment"}}},
    {"mnuView",
     "&View",
     {{"mnuItemAll", Item, "View All", "Ctrl+A"},
      {"mnuItemFullScale", Item, "View Full Scale 1/1", "Ctrl+F"},
      {"mnuItemVarSegment", Item, "View Variable Segment", "Ctrl+S"},
      {"mnuItemLast", Item, "Last View", "Ctrl+L"},
      {"mnuItemIn", Item, "Zoom In", "Ctrl+I"},
      {"mnuItemOut", Item, "Zoom Out", "Ctrl+O"},
      {"mnuItemViewSep1", Separator},
      {"mnuItemTeethDirection", Menu, "Direction of Teeth"}}},
    {"mnuItemTeethDirection",
     "Direction of Teeth",
     {{"mnuItemLeftRight", Item, "Left to Right"}, {"mnuItemRightLeft", Item, "Right to Left"}}},
    {"mnuDesign",
     "&Design",
     {{"mnuItemMain", Item, "Main Screen"},
      {"mnuItemGeneral", Item, "General Information"},
      {"mnuItemToothShape", Item, "Tooth Shape Editor"},
      {"mnuItemVariable", Item, "Variable Pitch"},
      {"mnuItemPower", Item, "Power Requirements"}}},
    {"mnuTables", "Ta&bles", {{"mnuItemPlateGauge", Item, "Plate Gauge"}}},
    {"mnuTools",
     "&Tools",
     {{"mnuItemBandLength", Item, "Band Length Calculator"},
      {"mnuItemPowerCalc", Item, "Power Calculator"},
      {"mnuItemCalculator", Item, "Calculator", "", Shown::No},
      {"mnuItemToolsSep1", Separator},
      {"mnuItemOptions", Item, "&Options"}}},
    {"mnuHelp",
     "&Help",
     {{"mnuItemContents", Item, "&Contents"},
      {"mnuItemSearch", Item, "&Search For Help On..."},
      {"mnuItemTech", Item, "Obtain Technical Help..."},
      {"mnuItemSplash", Item, "Splash"},
      {"mnuSepHelp1", Separator},
      {"mnuItemAbout", Item, "&About"}}},
};

const char* const MenusOfTheBar[] = {"mnuFile", "mnuView", "mnuDesign", "mnuTables", "mnuTools", "mnuHelp"};

QString NameOf(const QAction* action) {
  return action->menu() ? action->menu()->objectName() : action->objectName();
}

}  // namespace

// What can be asked for by menu and tool bar, and what these say of it.
class mainMenuTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void hasItsMenusInOrder();
  void hasTheItemsOfEachMenu_data();
  void hasTheItemsOfEachMenu();
  void namesEachCommandOnce();
  void hasNoKeysButThoseOfTheView();
  void viewsByKeysWhereverTheFocusIs();
  void marksTheAccessKeysApart();

  void hintsAtEachButton_data();
  void hintsAtEachButton();
  void hintsAtTheItemsOfAMenu();
  void movesTheFocusToTheDrawing();

  void turnsTheTeeth();
  void startsWithTheDirectionOfTheSettings();

  void opensTheManual_data();
  void opensTheManual();
  void showsWhatTheProgramIs();
  void showsItsPicture();

 private:
  QString Status() { return main_->Status(); }
  bool IsChecked(const char* item) { return Named<QAction>(*main_->Window, item)->isChecked(); }

  std::unique_ptr<test::MainWindow> main_;
};

// ---- the table

void mainMenuTest::hasItsMenusInOrder() {
  main_->OpenBlank();
  QStringList names, expected;
  for (const QAction* action : main_->Window->menuBar()->actions()) names += NameOf(action);
  for (const char* menu : MenusOfTheBar) expected += menu;
  QCOMPARE(names, expected);
}

void mainMenuTest::hasTheItemsOfEachMenu_data() {
  QTest::addColumn<int>("number");
  for (int i = 0; i < static_cast<int>(std::size(Menus)); ++i) QTest::newRow(Menus[i].Name) << i;
}

void mainMenuTest::hasTheItemsOfEachMenu() {
  QFETCH(int, number);
  const MenuRows& expected = Menus[number];
  main_->OpenBlank();
  const auto* menu = Named<QMenu>(*main_->Window, expected.Name);
  QCOMPARE(menu->title(), QString(expected.Caption));
  QStringList names, wanted;
  for (const QAction* action : menu->actions()) names += NameOf(action);
  for (const Row& row : expected.Rows) wanted += row.Name;
  QCOMPARE(names, wanted);
  for (std::size_t i = 0; i < expected.Rows.size(); ++i) {
    const Row& row = expected.Rows[i];
    const QAction* action = menu->actions()[static_cast<qsizetype>(i)];
    QCOMPARE(action->isSeparator(), row.What == Separator);
    QCOMPARE(action->menu() != nullptr, row.What == Menu);
    QCOMPARE(action->isVisible(), row.Seen == Shown::Yes);
    QCOMPARE(action->text(), QString(row.Caption));
    QCOMPARE(action->shortcut().toString(QKeySequence::PortableText), QString(row.Key));
    if (row.Seen == Shown::Yes) QVERIFY2(action->isEnabled(), row.Name);
  }
  if (QString(expected.Name) == "mnuTools")
    QVERIFY(!Named<QAction>(*main_->Window, "mnuItemCalculator")->isEnabled());
}

void mainMenuTest::namesEachCommandOnce() {
  main_->OpenBlank();
  QSet<QString> names;
  for (const QAction* action : main_->Window->findChildren<QAction*>()) {
    if (action->objectName().isEmpty()) continue;
    QVERIFY2(!names.contains(action->objectName()), qPrintable(action->objectName()));
    names.insert(action->objectName());
  }
  QVERIFY(names.size() > 25);
}

void mainMenuTest::hasNoKeysButThoseOfTheView() {
  main_->OpenBlank();
  QStringList keys;
  for (const QAction* action : main_->Window->findChildren<QAction*>()) {
    for (const QKeySequence& key : action->shortcuts()) {
      if (!key.isEmpty()) keys += key.toString(QKeySequence::PortableText);
    }
  }
  keys.sort();
  QCOMPARE(keys, QStringList({"Ctrl+A", "Ctrl+F", "Ctrl+I", "Ctrl+L", "Ctrl+O", "Ctrl+S"}));
}

// On other programs' keys for saving and opening lie views here. A dialog for a file would end the test.
void mainMenuTest::viewsByKeysWhereverTheFocusIs() {
  main_->Open(test::VariableDesign());
  struct Place {
    const char* Panel;
    const char* Control;
  };
  for (const Place& place : {Place{"mnuItemMain", "PicEditor"}, Place{"mnuItemMain", "picSawData"},
                             Place{"mnuItemToothShape", "txtHook"}, Place{"mnuItemGeneral", "txtKerf"},
                             Place{"mnuItemMain", "optImperial"}, Place{"mnuItemMain", "hscDisplay"}}) {
    main_->Do(place.Panel);
    auto* control = Named<QWidget>(*main_->Window, place.Control);
    main_->Do("mnuItemFullScale");
    QVERIFY2(main_->TabTo(control), place.Control);
    QTest::keyClick(main_->Window->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    const QString segment = main_->TextOf("txtScale");
    QVERIFY2(segment != "1.0", place.Control);
    QTest::keyClick(main_->Window->focusWidget(), Qt::Key_O, Qt::ControlModifier);
    QVERIFY2(main_->TextOf("txtScale") != segment, place.Control);
    QTest::keyClick(main_->Window->focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
    QTest::keyClick(main_->Window->focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QVERIFY2(main_->TextOf("txtScale") != "1.0", place.Control);
  }
  QVERIFY(main_->Program.Say.Shown.empty());
}

void mainMenuTest::marksTheAccessKeysApart() {
  main_->OpenBlank();
  const auto keys = [](const QList<QAction*>& actions) {
    QStringList found;
    for (const QAction* action : actions) {
      const qsizetype mark = action->text().indexOf('&');
      if (mark >= 0 && action->isVisible()) found += action->text().mid(mark + 1, 1).toUpper();
    }
    return found;
  };
  QStringList window = keys(main_->Window->menuBar()->actions());
  for (const char* option : {"optImperial", "optMetric"})
    window += Named<QRadioButton>(*main_->Window, option)->text().mid(1, 1).toUpper();
  QCOMPARE(QSet<QString>(window.begin(), window.end()).size(), window.size());
  for (const MenuRows& menu : Menus) {
    const QStringList within = keys(Named<QMenu>(*main_->Window, menu.Name)->actions());
    QVERIFY2(QSet<QString>(within.begin(), within.end()).size() == within.size(), menu.Name);
  }
}

// ---- hints

void mainMenuTest::hintsAtEachButton_data() {
  QTest::addColumn<QString>("button");
  QTest::addColumn<QString>("hint");
  const auto row = [](const char* button, const char* hint) { QTest::newRow(button) << button << hint; };
  row("tlbNew", "Click to start a new blank bandsaw.");
  row("tlbStepByStep", "Click to start a new bandsaw step by step.");
  row("tlbOpen", "Click to open an existing bandsaw file.");
  row("tlbSave", "Click to save the current bandsaw file.");
  row("tlbMain", "Click to display the main information window.");
  row("tlbGeneral", "Click to display the general information window.");
  row("tlbTeeth", "Click to display the tooth shape editor window.");
  row("tlbVariable", "Click to display the variable pitch editor window.");
  row("tlbPower", "Click to display the power requirements window.");
  row("tlbMachine", "Click to open bandsaw length calculator window.");
  row("tlbViewAll", "Click to fit bandsaw to the display window.");
  row("tlbViewOne", "Click to view bandsaw at one to one scale.");
  row("tlbViewVar", "View Variable Segment");
  row("tlbViewPlus", "Zoom In");
  row("tlbViewMinus", "Zoom Out");
}

void mainMenuTest::hintsAtEachButton() {
  QFETCH(QString, button);
  QFETCH(QString, hint);
  main_->OpenBlank();
  const auto* bar = Named<ToolBar>(*main_->Window, "tlbViewer");
  auto* control = bar->findChild<QToolButton*>(button);
  QVERIFY(control && main_->BringUp(control));
  main_->PointAt(control);
  QCOMPARE(Status(), hint);
  QCOMPARE(main_->Hint(), QString());
  main_->PointAt(QPoint(60, 300));
  QCOMPARE(Status(), QString());
}

void mainMenuTest::hintsAtTheItemsOfAMenu() {
  main_->OpenBlank();
  QTest::keyClick(main_->Window.get(), Qt::Key_F, Qt::AltModifier);
  QTRY_VERIFY(QApplication::activePopupWidget());
  QWidget* menu = QApplication::activePopupWidget();
  QCOMPARE(Status(), QString("Click to start a new blank bandsaw."));
  QTest::keyClick(menu, Qt::Key_Down);
  QCOMPARE(Status(), QString("Click to start a new bandsaw step by step."));
  QTest::keyClick(menu, Qt::Key_Down);
  QCOMPARE(Status(), QString("Click to open an existing bandsaw file."));
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Down);
  QCOMPARE(Named<QMenu>(*main_->Window, "mnuFile")->activeAction()->objectName(), QString("mnuItemSaveAs"));
  QCOMPARE(Status(), QString());
  QTest::keyClick(menu, Qt::Key_Up);
  QCOMPARE(Status(), QString("Click to save the current bandsaw file."));
  QTest::keyClick(menu, Qt::Key_Escape);
  QCOMPARE(Status(), QString());
}

void mainMenuTest::movesTheFocusToTheDrawing() {
  main_->Open(test::FullDesign());
  auto* rows = Named<QWidget>(*main_->Window, "picSawData");
  for (const ToolCommand& command : ToolCommands) {
    auto* button = main_->Window->findChild<QToolButton*>(ToQt(command.Button));
    if (!button) continue;
    rows->setFocus();
    QCOMPARE(main_->Window->focusWidget(), rows);
    main_->Program.Files.Paths = {std::nullopt};
    main_->User.Acts = {test::Cancels()};
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(main_->Window->focusWidget()->objectName(), QString("PicEditor"));
    main_->Do("mnuItemMain");
  }
}

// ---- direction of teeth

void mainMenuTest::turnsTheTeeth() {
  main_->Open(test::FullDesign());
  const std::string leftToRight = main_->Drawing();
  const QImage picture = main_->Picture();
  QVERIFY(IsChecked("mnuItemLeftRight") && !IsChecked("mnuItemRightLeft"));
  main_->Do("mnuItemLeftRight");
  QVERIFY(IsChecked("mnuItemLeftRight") && !IsChecked("mnuItemRightLeft"));
  QVERIFY(main_->Drawing() == leftToRight);
  for (int i = 0; i < 2; ++i) {
    main_->Do("mnuItemRightLeft");
    QVERIFY(!IsChecked("mnuItemLeftRight") && IsChecked("mnuItemRightLeft"));
    QVERIFY(main_->Drawing() != leftToRight);
    QVERIFY(main_->Picture() != picture);
  }
  main_->Do("mnuItemLeftRight");
  QVERIFY(main_->Drawing() == leftToRight);
  main_->Do("mnuItemRightLeft");
  QVERIFY(SameSaw(main_->Saw(), main_->Design().SawSaved));  // it is the program's, not the design's
  main_->Window->close();
  QCOMPARE(main_->Program.Store.Settings()["TeethDirection"], std::string(" 2"));
}

void mainMenuTest::startsWithTheDirectionOfTheSettings() {
  main_->OpenBlank();
  main_->Do("mnuItemRightLeft");
  main_->Window->close();
  auto next = std::make_unique<test::MainWindow>();
  next->Program.Store.Settings() = main_->Program.Store.Settings();
  main_ = std::move(next);
  main_->OpenBlank();
  QVERIFY(!IsChecked("mnuItemLeftRight") && IsChecked("mnuItemRightLeft"));
}

// ---- help

void mainMenuTest::opensTheManual_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<QString>("asked");
  QTest::newRow("contents") << "mnuItemContents"
                            << "contents";
  QTest::newRow("search") << "mnuItemSearch"
                          << "search";
  QTest::newRow("technical help") << "mnuItemTech"
                                  << "support";
}

void mainMenuTest::opensTheManual() {
  QFETCH(QString, item);
  QFETCH(QString, asked);
  main_->OpenBlank();
  main_->Do(item.toUtf8().constData());
  QCOMPARE(main_->Program.Help.Asked, std::vector<std::string>{asked.toStdString()});
}

void mainMenuTest::showsWhatTheProgramIs() {
  main_->OpenBlank();
  QString text;
  bool modal = false;
  main_->User.Acts = {[&](QDialog& about) {
    text = Named<QLabel>(about, "lblAbout")->text();
    modal = about.isModal();
    test::Click(about, "cmdOk");
  }};
  main_->Do("mnuItemAbout");
  QCOMPARE(main_->User.Seen, QStringList("frmAbout: About Tarnwick"));
  QVERIFY(modal);
  QVERIFY(text.startsWith("Tarnwick for Windows Version: 2.1\n\n"));
}

void mainMenuTest::showsItsPicture() {
  main_->OpenBlank();
  main_->User.Acts = {[](QDialog& splash) {
                        QVERIFY(splash.isModal());
                        QTest::keyClick(&splash, Qt::Key_Space);
                      },
                      [](QDialog& splash) { QTest::mouseClick(&splash, Qt::LeftButton); }};
  main_->Do("mnuItemSplash");
  main_->Do("mnuItemSplash");
  QCOMPARE(main_->User.Seen, QStringList({"frmSplash: Tarnwick", "frmSplash: Tarnwick"}));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainMenuTest)
#include "mainMenu_test.moc"
