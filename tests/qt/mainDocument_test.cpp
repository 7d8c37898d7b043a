#include "qt/DocumentsBench.h"

namespace tarnwick {

using namespace test;

// A day at the desk: designs begun, opened, saved and exported, by menu and tool bar.
class mainDocumentTest : public QObject, private DocumentsBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { End(); }

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

}  // namespace tarnwick

QTEST_MAIN(tarnwick::mainDocumentTest)
#include "mainDocument_test.moc"
