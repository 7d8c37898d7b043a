#include <QAbstractButton>
#include <QCursor>
#include <QMenu>
#include <QPointer>
#include <QToolButton>
#include <filesystem>

#include "model/modZoom.h"
#include "qt/MainWindow.h"
#include "shell/frmAnime.h"
#include "support/OpenPath.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::Named;
using Texts = std::vector<std::string>;

std::string Question(const char* first) {
  return std::string(first) + "\n\nDo you want to save this file?              ";
}

/// What cannot be picked while a file is read or written.
const char* const Locked[] = {"mnuItemAbout",      "mnuItemSplash",  "mnuItemNew",
                              "mnuItemStepByStep", "mnuItemOptions", "mnuItemPrintShape"};

}  // namespace

// A day at the desk: designs begun, opened, saved, exported and left, by menu and tool bar.
class mainDocumentTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { main_ = std::make_unique<test::MainWindow>(); }
  void cleanup() { main_.reset(); }

  void beginsANewDesign();
  void asksInTheWordsOfTheCommand_data();
  void asksInTheWordsOfTheCommand();
  void savesBeforeItLeaves();
  void buildsADesignStepByStep();
  void givesUpStepByStep();

  void opensADesign();
  void opensAMetricDesign();
  void opensFromEveryPanel();
  void removesWhatIsNoBandSaw();
  void growsTheRecentFiles();
  void opensARecentFile();
  void showsTheRecentFilesOfYesterday();
  void showsNamesAsTheyAre();
  void showsAPathThatFitsTheScreenWhole();
  void shortensALongPathInItsMiddle();

  void savesUnderItsName();
  void savesUnderAnotherName();
  void tellsWhatCannotBeSaved();
  void exportsDrawingAndListing();

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

 private:
  OpenDesign& Design() { return main_->Design(); }
  QString Caption() { return main_->Window->windowHandle()->title(); }
  std::string Folder() { return main_->Folder.Path().string() + PathSeparator; }
  std::string Path(const char* name) { return Folder() + name; }
  std::string Stored(const char* name, const BandSaw& saw = test::FullDesign()) {
    return main_->Folder.File(name, BandSawText(saw)).string();
  }
  void Choose(std::initializer_list<std::optional<std::string>> paths) { main_->Program.Files.Paths = paths; }
  void Answer(std::initializer_list<Button> answers) { main_->Program.Say.Answers = answers; }
  std::vector<Box>& Boxes() { return main_->Program.Say.Shown; }

  /// By the panel, as a user does.
  void ChangeHook(const char* degrees) {
    main_->Do("mnuItemToothShape");
    main_->User.Acts = {test::Types(degrees)};
    QTest::mouseClick(Named<QWidget>(*main_->Window, "txtHook"), Qt::LeftButton);
    test::Click(*main_->Window, "cmdToothOK");
  }
  void Press(const char* button) {
    QTest::mouseClick(Named<QToolButton>(*main_->Window, button), Qt::LeftButton);
  }
  QStringList RecentFiles() {
    QStringList shown;
    const auto* file = Named<QMenu>(*main_->Window, "mnuFile");
    for (const QAction* item : file->actions()) {
      if (item->objectName().startsWith("mnuRecentFiles(") && !item->isSeparator() && item->isVisible())
        shown += item->text();
    }
    return shown;
  }
  QString Row(const char* caption) {
    for (const InfoRow& row : BuildSawInfo(main_->Saw(), Design().Format(), 100)) {
      if (row.Caption == caption) return ToQt(row.Value);
    }
    return {};
  }

  std::unique_ptr<test::MainWindow> main_;
};

// ---- new

void mainDocumentTest::beginsANewDesign() {
  main_->Open(test::FullDesign());
  main_->Do("mnuItemAll");
  const QString scale = main_->TextOf("txtScale");
  main_->Do("mnuItemGeneral");
  Press("tlbNew");
  QCOMPARE(Caption(), QString("untitled.bsw - Tarnwick"));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QVERIFY(SameSaw(main_->Saw(), BandSaw{}));
  QVERIFY(Design().Lines.Entities.empty());
  QCOMPARE(main_->TextOf("txtScale"), scale);  // the view survives
  main_->Do("mnuItemToothShape");
  QCOMPARE(main_->TextOf("txtLength"), QString());
  QVERIFY(Boxes().empty());
  main_->Window->close();
  QVERIFY(Boxes().empty());
}

void mainDocumentTest::asksInTheWordsOfTheCommand_data() {
  QTest::addColumn<QString>("command");
  QTest::addColumn<QString>("first");
  QTest::newRow("new") << "mnuItemNew"
                       << "     Bandsaw file has changed!";
  QTest::newRow("step by step") << "mnuItemStepByStep"
                                << "     Bandaw file has changed!";
  QTest::newRow("open") << "mnuItemOpen"
                        << "     Bandsaw file has changed!";
  QTest::newRow("recent") << "mnuRecentFiles(2)"
                          << "     Bandsaw file has changed!";
  QTest::newRow("exit") << "mnuItemExit"
                        << "     Saw file has changed!";
}

void mainDocumentTest::asksInTheWordsOfTheCommand() {
  QFETCH(QString, command);
  QFETCH(QString, first);
  main_->OpenFile(Stored("other.bsw"));
  Choose({Stored("head.bsw")});
  main_->Do("mnuItemOpen");
  ChangeHook("15");
  for (const Button answer : {Button::Cancel, Button::Yes}) {
    Boxes().clear();
    Answer({answer});
    Choose({std::nullopt});  // Yes leads to a dialog for the place, and that is cancelled
    main_->Do(command.toUtf8().constData());
    QCOMPARE(Boxes().size(), std::size_t(1));
    const Box& asked = Boxes().front();
    QCOMPARE(asked.Title, std::string("Save File."));
    QCOMPARE(asked.Text, Question(first.toUtf8().constData()));
    QVERIFY(asked.Offer == Buttons::YesNoCancel && asked.Shown == Icon::Question);
    QVERIFY(main_->Window->isVisible());
    QCOMPARE(main_->Saw().HookAngle, 15.0);
    QCOMPARE(Caption(), QString("head.bsw - Tarnwick"));
  }
}

void mainDocumentTest::savesBeforeItLeaves() {
  main_->OpenFile(Stored("head.bsw"));
  ChangeHook("15");
  Answer({Button::Yes});
  Choose({Path("kept.bsw"), std::nullopt});
  main_->Do("mnuItemOpen");
  QVERIFY(!main_->Program.Files.Asked[0].WarnBeforeReplacing);
  QCOMPARE(main_->Program.Files.Modes, (Texts{"save", "open"}));
  // The file was not chosen after all: the caption tells that the design was saved on the way.
  QCOMPARE(Caption(), QString("kept.bsw - Tarnwick Viewer"));
  QCOMPARE(RecentFiles(), QStringList({ToQt(Path("kept.bsw")), ToQt(Path("head.bsw"))}));
  BandSaw saved;
  QVERIFY(OpenBandSaw(saved, Path("kept.bsw"), main_->Program.Say));
  QCOMPARE(saved.HookAngle, 15.0);
  main_->Do("mnuItemNew");
  QCOMPARE(Caption(), QString("untitled.bsw - Tarnwick"));
}

void mainDocumentTest::buildsADesignStepByStep() {
  main_->OpenFile(Stored("head.bsw"));
  using test::Cancels;
  using test::Types;
  main_->User.Acts = {Types("Square Back"), Cancels(),   Types("40"), Types("10"), Types("2"),
                      Types("20"),          Types("8"),  Cancels(),   Cancels(),   Cancels(),
                      Types(".35"),         Types(".8"), Types("15")};
  Press("tlbStepByStep");
  QVERIFY(main_->User.Acts.empty());
  QVERIFY(!main_->User.Seen.contains("not expected"));
  QCOMPARE(Caption(), QString("untitled.bsw - Tarnwick"));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QCOMPARE(main_->Saw().HookAngle, 20.0);
  QCOMPARE(Row("Hook Angle:"), QString(" 20.000 deg"));
  QVERIFY(!Design().Lines.Entities.empty());
  OpenDesign all = Design();
  all.ViewAll();
  QCOMPARE(main_->TextOf("txtScale"), ToQt(all.View.ScaleText()));
  Answer({Button::Cancel});
  main_->Window->close();  // what the questions made counts as a change
  QCOMPARE(Boxes().size(), std::size_t(1));
  QVERIFY(main_->Window->isVisible());
}

void mainDocumentTest::givesUpStepByStep() {
  main_->OpenFile(Stored("head.bsw"));
  main_->User.Acts = {test::Types("Square Back"), test::Escapes(), test::Escapes()};
  main_->Do("mnuItemStepByStep");
  QCOMPARE(main_->User.Seen, QStringList({"frmCDialog: BandSaw Tooth Style", "frmCDialog: Wheel Diameter",
                                          "frmCDialog: Band Saw Length"}));
  QVERIFY(SameSaw(main_->Saw(), BandSaw{}));
  main_->Window->close();
  QVERIFY(Boxes().empty());
  QVERIFY(!main_->Window->isVisible());
}

// ---- open

void mainDocumentTest::opensADesign() {
  main_->OpenBlank();
  const QImage blank = main_->Picture();
  Choose({Stored("head.bsw")});
  Press("tlbOpen");
  const FileQuestion& asked = main_->Program.Files.Asked.front();
  QCOMPARE(asked.Filter, std::string("Band Saw Files (*.bsw)|*.bsw"));
  QCOMPARE(asked.Name, std::string("untitled.bsw"));
  QCOMPARE(Caption(), QString("head.bsw - Tarnwick"));
  QCOMPARE(main_->Panel(), QString("fraMain"));
  QCOMPARE(Row("Hook Angle:"), QString(" 28.000 deg"));
  QCOMPARE(main_->TextOf("txtHook"), QString(" 28.000 deg"));
  QVERIFY(main_->Drawing() == main_->Drawn(test::FullDesign()));
  QVERIFY(main_->Picture() != blank);
  QCOMPARE(main_->TextOf("txtScale"), QString("1.0"));
  QVERIFY(SameSaw(main_->Saw(), Design().SawSaved) && SameSaw(main_->Saw(), Design().SawEdit));
  QCOMPARE(RecentFiles(), QStringList(ToQt(Path("head.bsw"))));

  // Unchanged as it is, to open it again is asked about.
  Choose({Path("head.bsw")});
  Answer({Button::Cancel});
  main_->Do("mnuItemOpen");
  QCOMPARE(Boxes().size(), std::size_t(1));
  QCOMPARE(Boxes().front().Title, std::string("File open!"));
  QCOMPARE(Boxes().front().Text, std::string("     File already open!  Save file before opening?"));

  Choose({std::nullopt});
  main_->Do("mnuItemOpen");
  QCOMPARE(Caption(), QString("head.bsw - Tarnwick"));
}

void mainDocumentTest::opensAMetricDesign() {
  main_->OpenBlank();
  BandSaw metric = test::FullDesign();
  metric.ImpMetric = Metric;
  Choose({Stored("metric.bsw", metric)});
  main_->Do("mnuItemOpen");
  QVERIFY(Named<QRadioButton>(*main_->Window, "optMetric")->isChecked());
  QCOMPARE(Row("Band Saw Width:"), QString(" 25.400 cm"));
  main_->Do("mnuItemNew");
  QVERIFY(Named<QRadioButton>(*main_->Window, "optImperial")->isChecked());
  QVERIFY(Boxes().empty());
}

void mainDocumentTest::opensFromEveryPanel() {
  main_->OpenBlank();
  Stored("one.bsw");
  Stored("two.bsw");
  const char* file = "one.bsw";
  for (const char* panel : {"mnuItemMain", "mnuItemGeneral", "mnuItemToothShape"}) {
    main_->Do(panel);
    Choose({Path(file)});
    main_->Do("mnuItemOpen");
    QCOMPARE(main_->Panel(), QString("fraMain"));
    QCOMPARE(Caption(), ToQt(file) + " - Tarnwick");
    file = QString(file) == "one.bsw" ? "two.bsw" : "one.bsw";
  }
  QVERIFY(Boxes().empty());
}

void mainDocumentTest::removesWhatIsNoBandSaw() {
  main_->OpenFile(Stored("head.bsw"));
  Choose({main_->Folder.File("list.bsw", "Shopping list").string()});
  main_->Do("mnuItemOpen");
  QCOMPARE(main_->Program.Say.Texts(), Texts{"Not a valid Band Saw File     "});
  QCOMPARE(main_->Program.Bin.Removed, Texts{Path("list.bsw")});
  QCOMPARE(Caption(), QString("untitled.bsw - Tarnwick"));
  QVERIFY(Design().Lines.Entities.empty());
  QCOMPARE(RecentFiles(), QStringList(ToQt(Path("head.bsw"))));

  // The same by the menu of recent files: it stays, and its entry too.
  main_->Folder.File("head.bsw", "Shopping list");
  main_->Do("mnuRecentFiles(1)");
  QCOMPARE(Boxes().size(), std::size_t(2));
  QVERIFY(fs::exists(Path("head.bsw")));
  QCOMPARE(RecentFiles(), QStringList(ToQt(Path("head.bsw"))));
  main_->Window->close();
  QCOMPARE(Boxes().size(), std::size_t(2));
}

// ---- recent files

void mainDocumentTest::growsTheRecentFiles() {
  main_->OpenBlank();
  const auto* line = Named<QAction>(*main_->Window, "mnuRecentFiles(0)");
  QVERIFY(!line->isVisible());
  QStringList expected;
  for (const char* name : {"1.bsw", "2.bsw", "3.bsw", "4.bsw", "5.bsw", "6.bsw", "3.bsw"}) {
    Choose({Stored(name)});
    main_->Do("mnuItemOpen");
    expected.removeAll(ToQt(Path(name)));
    expected.prepend(ToQt(Path(name)));
    while (expected.size() > 5) expected.removeLast();
    QCOMPARE(RecentFiles(), expected);
    QVERIFY(line->isVisible());
  }
  // Between its line and the next one.
  QStringList names;
  for (const QAction* item : Named<QMenu>(*main_->Window, "mnuFile")->actions()) names += item->objectName();
  const qsizetype at = names.indexOf("mnuRecentFiles(0)");
  QCOMPARE(names.mid(at, 8),
           QStringList({"mnuRecentFiles(0)", "mnuRecentFiles(1)", "mnuRecentFiles(2)", "mnuRecentFiles(3)",
                        "mnuRecentFiles(4)", "mnuRecentFiles(5)", "mnuItemFileSep3", "mnuItemExit"}));
}

void mainDocumentTest::opensARecentFile() {
  BandSaw other = test::FullDesign();
  other.HookAngle = 12;
  main_->OpenFile(Stored("other.bsw", other));
  Choose({Stored("head.bsw")});
  main_->Do("mnuItemOpen");
  main_->Do("mnuRecentFiles(1)");  // the one that is open
  QCOMPARE(Caption(), QString("head.bsw - Tarnwick"));
  QVERIFY(Boxes().empty());
  main_->Do("mnuRecentFiles(2)");
  QCOMPARE(Caption(), QString("other.bsw - Tarnwick"));
  QCOMPARE(main_->Saw().HookAngle, 12.0);
  QCOMPARE(RecentFiles(), QStringList({ToQt(Path("other.bsw")), ToQt(Path("head.bsw"))}));

  ChangeHook("15");
  Answer({Button::No});
  main_->Do("mnuRecentFiles(1)");  // the one that is open, and changed
  QCOMPARE(Boxes().front().Title, std::string("File open!"));
  QCOMPARE(main_->Saw().HookAngle, 12.0);
}

void mainDocumentTest::showsTheRecentFilesOfYesterday() {
  main_->OpenFile(Stored("head.bsw"));
  main_->Window->close();
  auto today = std::make_unique<test::MainWindow>();
  today->Program.Store.Settings() = main_->Program.Store.Settings();
  const QStringList yesterday = RecentFiles();
  std::swap(main_, today);
  main_->OpenBlank();
  QCOMPARE(RecentFiles(), yesterday);
  QVERIFY(Named<QAction>(*main_->Window, "mnuRecentFiles(0)")->isVisible());
  main_->Do("mnuRecentFiles(1)");
  QCOMPARE(Caption(), QString("head.bsw - Tarnwick"));
}

void mainDocumentTest::showsNamesAsTheyAre() {
  main_->OpenBlank();
  Choose({Stored("head[*] & tail.bsw")});
  main_->Do("mnuItemOpen");
  QCOMPARE(Caption(), QString("head[*] & tail.bsw - Tarnwick"));
  // The menu shows one "&" for two, and takes a single one for an access key.
  QVERIFY(RecentFiles().front().endsWith("head[*] && tail.bsw"));
  main_->Do("mnuItemNew");
  main_->Do("mnuRecentFiles(1)");
  QCOMPARE(Caption(), QString("head[*] & tail.bsw - Tarnwick"));
}

void mainDocumentTest::showsAPathThatFitsTheScreenWhole() {
  main_->OpenBlank();
  const int letters = main_->Window->screen()->availableSize().width() * 3 / 4 /
                      main_->Window->fontMetrics().horizontalAdvance('x');
  const auto rest = static_cast<std::size_t>(letters) - Path("/head.bsw").size();
  const std::string folder = Path(std::string(rest, 'x').c_str());
  fs::create_directory(folder);
  const std::string path = folder + PathSeparator + "head.bsw";
  fs::copy_file(Stored("head.bsw"), path);
  Choose({path});
  main_->Do("mnuItemOpen");
  QCOMPARE(RecentFiles(), QStringList{ToQt(path)});
}

void mainDocumentTest::shortensALongPathInItsMiddle() {
  main_->OpenBlank();
  const std::string folder = Path(std::string(200, 'x').c_str());
  fs::create_directory(folder);
  const std::string path = folder + PathSeparator + "head.bsw";
  fs::copy_file(Stored("head.bsw"), path);
  Choose({path});
  main_->Do("mnuItemOpen");
  const QString shown = RecentFiles().front();
  QVERIFY(shown.startsWith(ToQt(Folder())) && shown.endsWith("head.bsw"));
  QVERIFY(shown.size() < ToQt(path).size());
  const auto* file = Named<QMenu>(*main_->Window, "mnuFile");
  QVERIFY(file->sizeHint().width() <= main_->Window->screen()->availableSize().width());
  main_->Do("mnuItemNew");
  main_->Do("mnuRecentFiles(1)");
  QCOMPARE(Design().SawDir(), folder + PathSeparator);
}

// ---- save

void mainDocumentTest::savesUnderItsName() {
  main_->OpenFile(Stored("head.bsw"));
  ChangeHook("15");
  Answer({Button::No});
  Press("tlbSave");
  QCOMPARE(Boxes().front().Text,
           Path("head.bsw") + "\nThis file already exists.\nDo you want to replace it?");
  QVERIFY(!SameSaw(main_->Saw(), Design().SawSaved));
  Answer({Button::Yes});
  main_->Do("mnuItemSave");
  BandSaw saved;
  QVERIFY(OpenBandSaw(saved, Path("head.bsw"), main_->Program.Say));
  QVERIFY(SameSaw(saved, main_->Saw()));
  main_->Window->close();
  QCOMPARE(Boxes().size(), std::size_t(2));
}

void mainDocumentTest::savesUnderAnotherName() {
  main_->OpenBlank();
  main_->Do("mnuItemToothShape");
  Choose({Path("first")});
  main_->Do("mnuItemSave");
  QCOMPARE(main_->Program.Files.Asked.front().Filter, std::string("All Files (*.bsw)|*.bsw"));
  QCOMPARE(Caption(), QString("first.bsw - Tarnwick"));
  QCOMPARE(main_->Panel(), QString("fraToothShape"));
  QCOMPARE(RecentFiles(), QStringList());  // a first save is not put there
  Choose({Path("second.bsw")});
  main_->Do("mnuItemSaveAs");
  QCOMPARE(Caption(), QString("second.bsw - Tarnwick"));
  QCOMPARE(main_->Panel(), QString("fraToothShape"));
  QCOMPARE(RecentFiles(), QStringList(ToQt(Path("second.bsw"))));
  QVERIFY(fs::exists(Path("first.bsw")) && fs::exists(Path("second.bsw")));
  QVERIFY(Boxes().empty());
}

void mainDocumentTest::tellsWhatCannotBeSaved() {
  main_->OpenFile(Stored("head.bsw"));
  ChangeHook("15");
  Choose({Path("no folder") + PathSeparator + "head.bsw"});
  main_->Do("mnuItemSaveAs");
  QCOMPARE(Boxes().size(), std::size_t(1));
  QCOMPARE(Boxes().front().Title, std::string("Saving"));
  QVERIFY(ToQt(Boxes().front().Text).endsWith("\nSub Program mnuItemSaveAs"));
  QVERIFY(!SameSaw(main_->Saw(), Design().SawSaved));
  QVERIFY(Named<QAction>(*main_->Window, "mnuItemNew")->isEnabled());
  QCOMPARE(Named<QWidget>(*main_->Window, "PicEditor")->cursor().shape(), Qt::CrossCursor);
  QVERIFY(!Named<QWidget>(*main_->Window, "frmAnime")->isVisible());
}

void mainDocumentTest::exportsDrawingAndListing() {
  main_->OpenFile(Stored("head.rig.bsw"));
  Choose({Path("head"), Path("head.txt")});
  main_->Do("mnuItemExportDxf");
  main_->Do("mnuItemSaveText");
  QCOMPARE(main_->Program.Files.Asked[0].Name, std::string("head.dxf"));
  QCOMPARE(main_->Program.Files.Asked[1].Name, std::string("head.txt"));
  QVERIFY(test::BytesOf(Path("head.dxf")) == main_->Drawing());
  const std::string listing = test::BytesOf(Path("head.txt"));
  QVERIFY(listing.find("head.rig.bsw,") == 0);
  QVERIFY(listing.find("Hook Angle:,         28.000 deg,") != std::string::npos);
  QVERIFY(Boxes().empty());
  QVERIFY(SameSaw(main_->Saw(), Design().SawSaved));
}

// ---- while a command is at work

void mainDocumentTest::locksWhatMustWait() {
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
void mainDocumentTest::startsNothingElseMeanwhile() {
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

void mainDocumentTest::keepsTheFocusInTheToothShape() {
  main_->OpenFile(Stored("head.bsw"));
  main_->Do("mnuItemToothShape");
  auto* hook = Named<QWidget>(*main_->Window, "txtHook");
  hook->setFocus();
  Answer({Button::Yes});
  main_->Do("mnuItemSave");
  QVERIFY(hook->hasFocus());
}

void mainDocumentTest::showsTheAnimationOverTheDrawing() {
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

void mainDocumentTest::closes_data() {
  QTest::addColumn<int>("answer");
  QTest::addColumn<bool>("goes");
  QTest::newRow("yes") << static_cast<int>(Button::Yes) << true;
  QTest::newRow("no") << static_cast<int>(Button::No) << true;
  QTest::newRow("cancel") << static_cast<int>(Button::Cancel) << false;
}

void mainDocumentTest::closes() {
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

void mainDocumentTest::staysWhenNothingWasSaved() {
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

void mainDocumentTest::asksAgainAfterTheCommand_data() {
  QTest::addColumn<bool>("animated");
  QTest::newRow("while the animation plays") << true;
  QTest::newRow("while a button comes up") << false;
}

void mainDocumentTest::asksAgainAfterTheCommand() {
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

void mainDocumentTest::takesItsWindowsAlongInOrder() {
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

QTEST_MAIN(tarnwick::mainDocumentTest)
#include "mainDocument_test.moc"
