#include "qt/HelpBench.h"

namespace tarnwick {

using namespace test;

// The manual above a dialog that waits, and the files that it is read from.
class HelpAndDialogsTest : public QObject, private HelpBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { End(); }

  void isUsableAboveTheDialogThatAskedForIt();
  void staysAboveTheDialogAndBesideIt();
  void staysUsableWhenADialogOpens();
  void staysUsableBetweenNestedDialogs();
  void waitsForABoxOfItsOwn();
  void unpacksOnceAndKeepsItForLater();
  void worksWithoutAFolderToKeepThingsIn();
  void letsTwoProgramsReadAtOnce();
  void mendsADamagedCopy();
  void saysWhyThereIsNoManual();
  void namesEveryControl();
};

// ---- dialogs

void HelpAndDialogsTest::isUsableAboveTheDialogThatAskedForIt() {
  QWidget desk;
  desk.show();
  QDialog dialog(&desk);
  WhileAsking(dialog, [&] {
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    help_->ShowTopic(213);
    QVERIFY(QTest::qWaitForWindowActive(Window()));
    QVERIFY(TakesKeys(*Window()));
    help_->ShowTopic(200);
    QTest::mouseClick(Window()->windowHandle(), Qt::LeftButton, {},
                      Find<QToolButton>("cmdHelpBack")->mapTo(Window(), QPoint(5, 5)));
    const QString gullet = Address();
    help_->ShowTopic(213);
    QCOMPARE(Address(), gullet);
  });
  QVERIFY(Window()->isVisible());  // it stays when the dialog goes
  QVERIFY(TakesKeys(*Window()));
}

void HelpAndDialogsTest::staysAboveTheDialogAndBesideIt() {
  QWidget desk;
  desk.show();
  for (const QPoint corner : {QPoint(10, 20), QPoint(900, 400)}) {
    QDialog dialog(&desk);
    dialog.resize(300, 200);
    dialog.move(corner);
    WhileAsking(dialog, [&] {
      help_->ShowTopic(213);
      QCOMPARE(Window()->windowType(), Qt::Dialog);
      QCOMPARE(Window()->windowHandle()->transientParent(), dialog.windowHandle());
      QVERIFY(!Window()->frameGeometry().intersects(dialog.frameGeometry()));
      QVERIFY(Window()->screen()->availableGeometry().contains(Window()->frameGeometry()));
    });
    const QPoint place = Window()->pos();
    help_->ShowTopic(200);  // a window like any other again, where it was
    QCOMPARE(Window()->windowType(), Qt::Window);
    QVERIFY(!Window()->windowHandle()->transientParent());
    QCOMPARE(Window()->pos(), place);
    Window()->close();
  }
}

void HelpAndDialogsTest::staysUsableWhenADialogOpens() {
  help_->ShowTopic(213);
  for (int time = 0; time < 2; ++time) {
    QMessageBox box;
    WhileAsking(box, [&] {
      QVERIFY(QTest::qWaitForWindowExposed(&box));
      QVERIFY(TakesKeys(*Window()));
    });
  }
  QVERIFY(TakesKeys(*Window()));
}

void HelpAndDialogsTest::staysUsableBetweenNestedDialogs() {
  QWidget desk;
  desk.show();
  QDialog outer(&desk);
  WhileAsking(outer, [&] {
    help_->ShowTopic(213);
    {
      QMessageBox inner(&outer);
      WhileAsking(inner, [&] { QVERIFY(TakesKeys(*Window())); });
    }
    QVERIFY(TakesKeys(*Window()));
    // Opened anew above the outer one, and above a second inner one.
    Window()->close();
    QMessageBox inner(&outer);
    WhileAsking(inner, [&] {
      help_->ShowTopic(213);
      QVERIFY(TakesKeys(*Window()));
    });
    QVERIFY(TakesKeys(*Window()));
  });
  QVERIFY(TakesKeys(*Window()));
}

void HelpAndDialogsTest::waitsForABoxOfItsOwn() {
  help_->ShowContents();
  QMessageBox box(Window());
  WhileAsking(box, [&] {
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QString before = Address();
    QTest::mouseClick(Window()->windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(Address(), before);
  });
  QVERIFY(TakesKeys(*Window()));
}

// ---- files

namespace {

QStringList FoldersOf(const QString& cache) {
  return QDir(cache + "/help").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

}  // namespace

void HelpAndDialogsTest::unpacksOnceAndKeepsItForLater() {
  QVERIFY(FoldersOf(Cache()).isEmpty());  // nothing before the first question
  help_->ShowTopic(213);
  QCOMPARE(FoldersOf(Cache()).size(), 1);
  const QString kept = Cache() + "/help/" + FoldersOf(Cache()).first() + "/tarnwick.qch";
  const QDateTime time = QFileInfo(kept).lastModified();
  QVERIFY(time.isValid());
  help_ = std::make_unique<QtHelpViewer>(Files());
  help_->ShowTopic(213);
  QVERIFY(!Title().isEmpty());
  QCOMPARE(FoldersOf(Cache()).size(), 1);
  QCOMPARE(QFileInfo(kept).lastModified(), time);
}

void HelpAndDialogsTest::worksWithoutAFolderToKeepThingsIn() {
  folder_->File("no-folder", "a file stands in the way");
  help_ = std::make_unique<QtHelpViewer>(HelpFiles{.CacheFolder = Cache() + "/no-folder"});
  SearchTheText();
}

void HelpAndDialogsTest::letsTwoProgramsReadAtOnce() {
  QtHelpViewer other(Files());
  other.ShowTopic(200);
  QWidget* otherWindow = Window();
  otherWindow->setObjectName("other");
  SearchTheText();
  QVERIFY(otherWindow->isVisible());
  QCOMPARE(FoldersOf(Cache()).size(), 1);
}

void HelpAndDialogsTest::mendsADamagedCopy() {
  help_->ShowTopic(213);
  help_.reset();
  const QString folder = Cache() + "/help/" + FoldersOf(Cache()).first();
  for (const char* name : {"/tarnwick.qch", "/tarnwick.qhc"}) {
    QFile file(folder + name);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("no manual");
    file.close();
    help_ = std::make_unique<QtHelpViewer>(Files());
    SearchTheText();
    help_.reset();
  }
}

void HelpAndDialogsTest::saysWhyThereIsNoManual() {
  help_ = std::make_unique<QtHelpViewer>(HelpFiles{.Manual = Cache() + "/none", .CacheFolder = Cache()});
  help_->ShowTopic(213);
  QVERIFY(Window()->isVisible());
  QVERIFY(Page()->toPlainText().startsWith("The manual cannot be opened."));
  const QString why = Page()->toPlainText();
  help_->ShowSearch();
  help_->ShowContents();
  help_->ShowSupport();
  QCOMPARE(Page()->toPlainText(), why);
  folder_->File("broken.qch", "no manual");
  help_ =
      std::make_unique<QtHelpViewer>(HelpFiles{.Manual = Cache() + "/broken.qch", .CacheFolder = Cache()});
  help_->ShowTopic(213);
  QVERIFY(Page()->toPlainText().startsWith("The manual cannot be opened."));
}

void HelpAndDialogsTest::namesEveryControl() {
  help_->ShowContents();
  QSet<QString> names;
  QSet<QString> spoken;
  for (QWidget* control : Window()->findChildren<QWidget*>()) {
    const QWidget* parent = control->parentWidget();
    if (control->objectName().startsWith("qt_") || parent->inherits("QLineEdit") ||
        parent->inherits("QTabBar")) {
      continue;  // parts of a control
    }
    if (control->focusPolicy() == Qt::NoFocus && !qobject_cast<QToolButton*>(control)) continue;
    const QString name = control->objectName();
    QVERIFY2(!name.isEmpty(), control->metaObject()->className());
    QVERIFY2(!names.contains(name), qPrintable(name));
    names.insert(name);
    if (qobject_cast<QTabWidget*>(control)) continue;  // its tabs have names
    const QAccessibleInterface* said = QAccessible::queryAccessibleInterface(control);
    QVERIFY2(said && !said->text(QAccessible::Name).isEmpty(), qPrintable(name));
    QVERIFY2(!spoken.contains(said->text(QAccessible::Name)), qPrintable(name));
    spoken.insert(said->text(QAccessible::Name));
  }
  QCOMPARE(spoken.size(), 6 + 3 + 7);  // tools; find bar; boxes, lists and the page
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::HelpAndDialogsTest)
#include "HelpAndDialogs_test.moc"
