#include "platform/qt/QtFileDialogs.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "qt/Controls.h"

namespace tarnwick {
namespace {

using test::Named;

using Answer = std::optional<std::string>;

/// Lets `user` at the file dialog that will be open.
void Await(const std::function<void(QFileDialog&)>& user) {
  QTimer::singleShot(0, qApp, [user] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog || !QTest::qWaitForWindowActive(dialog)) qFatal("no file dialog is open");
    user(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
}

/// Presses a button of the question that a file dialog will ask.
void AwaitQuestion(QMessageBox::StandardButton button, bool& asked) {
  QTimer::singleShot(0, qApp, [button, &asked] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    asked = box != nullptr;
    if (box) box->button(button)->click();
  });
}

QLineEdit* NameBox(const QFileDialog& dialog) { return Named<QLineEdit>(dialog, "fileNameEdit"); }

void Type(QFileDialog& dialog, const QString& name) {
  NameBox(dialog)->selectAll();
  for (const QChar& letter : name)
    QTest::sendKeyEvent(QTest::Click, NameBox(dialog), Qt::Key_unknown, letter, Qt::NoModifier);
}

void PressEnter(QFileDialog& dialog) { QTest::keyClick(NameBox(dialog), Qt::Key_Return); }

}  // namespace

class QtFileDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();

  void opensTheFileChosen();
  void opensOnlyWhatIsThere();
  void savesUnderTheNameTyped();
  void opensOnFolderAndName();
  void opensSomewhereWhenTheFolderIsGone();
  void givesNothingWhenCancelled();
  void translatesFilters_data();
  void translatesFilters();
  void showsFilesOfTheFilterAlone();
  void warnsBeforeReplacingWhereAsked_data();
  void warnsBeforeReplacingWhereAsked();
  void keepsWhatIsNotReplaced();
  void standsAboveTheWindowInUse();

 private:
  [[nodiscard]] FileQuestion Question(std::string name = {}) const {
    return {"Band Saw Files (*.bsw)|*.bsw", folder_.path().toStdString() + "/", std::move(name), true};
  }
  [[nodiscard]] Answer Path(const char* name) const {
    return QDir::toNativeSeparators(folder_.filePath(name)).toStdString();
  }

  QTemporaryDir folder_;
  QtFileDialogs dialogs_;
};

void QtFileDialogsTest::initTestCase() {
  for (const char* name : {"one.bsw", "Säge.bsw", "notes.txt"}) {
    QFile file(folder_.filePath(name));
    QVERIFY(file.open(QFile::WriteOnly));
  }
}

void QtFileDialogsTest::opensTheFileChosen() {
  Await([](QFileDialog& dialog) {
    QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(dialog.windowTitle(), QString("Open"));
    Type(dialog, "Säge.bsw");
    PressEnter(dialog);
  });
  QCOMPARE(dialogs_.AskOpen(Question()), Path("Säge.bsw"));
}

void QtFileDialogsTest::opensOnlyWhatIsThere() {
  bool asked = false;
  Await([&asked](QFileDialog& dialog) {
    Type(dialog, "never.bsw");
    AwaitQuestion(QMessageBox::Ok, asked);
    PressEnter(dialog);
    QVERIFY(dialog.isVisible());
  });
  QCOMPARE(dialogs_.AskOpen(Question()), Answer());
  QVERIFY(asked);
}

void QtFileDialogsTest::savesUnderTheNameTyped() {
  for (const char* name : {"new.bsw", "new", "new.txt"}) {
    Await([name](QFileDialog& dialog) {
      QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
      QCOMPARE(dialog.windowTitle(), QString("Save As"));
      Type(dialog, name);
      PressEnter(dialog);
    });
    QCOMPARE(dialogs_.AskSave(Question()), Path(name));  // nothing is added
  }
}

void QtFileDialogsTest::opensOnFolderAndName() {
  const auto look = [this](QFileDialog& dialog) {
    QCOMPARE(dialog.directory().path(), folder_.path());
    QCOMPARE(NameBox(dialog)->text(), QString("untitled.bsw"));
    PressEnter(dialog);
  };
  Await(look);
  QCOMPARE(dialogs_.AskSave(Question("untitled.bsw")), Path("untitled.bsw"));
  bool asked = false;
  Await([&](QFileDialog& dialog) {
    AwaitQuestion(QMessageBox::Ok, asked);
    look(dialog);
  });
  QCOMPARE(dialogs_.AskOpen(Question("untitled.bsw")), Answer());
  QVERIFY(asked);  // it is a name to begin from; there is no such file
}

void QtFileDialogsTest::opensSomewhereWhenTheFolderIsGone() {
  FileQuestion question = Question("one.bsw");
  for (const char* folder : {"", "/no/such/folder/"}) {
    question.Folder = folder;
    Await([](QFileDialog& dialog) {
      QVERIFY(dialog.directory().exists());
      QCOMPARE(NameBox(dialog)->text(), QString("one.bsw"));
    });
    QCOMPARE(dialogs_.AskSave(question), Answer());
  }
}

void QtFileDialogsTest::givesNothingWhenCancelled() {
  Await([](QFileDialog& dialog) { QTest::keyClick(NameBox(dialog), Qt::Key_Escape); });
  QCOMPARE(dialogs_.AskOpen(Question("one.bsw")), Answer());
  Await([](QFileDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel),
                      Qt::LeftButton);
  });
  QCOMPARE(dialogs_.AskSave(Question("one.bsw")), Answer());
}

void QtFileDialogsTest::translatesFilters_data() {
  QTest::addColumn<QString>("filter");
  QTest::addColumn<QStringList>("shown");
  QTest::newRow("designs") << "Band Saw Files (*.bsw)|*.bsw" << QStringList{"Band Saw Files (*.bsw)"};
  QTest::newRow("a name of our own") << "All Files (*.bsw)|*.bsw" << QStringList{"All Files (*.bsw)"};
  QTest::newRow("two") << "DXF Files (*.dxf)|*.dxf|All Files (*.*)|*.*"
                       << QStringList{"DXF Files (*.dxf)", "All Files (*.*)"};
  QTest::newRow("its end marked") << "Text Files (*.txt)|*.txt|" << QStringList{"Text Files (*.txt)"};
  QTest::newRow("words alone") << "Drawings|*.dxf;*.svg" << QStringList{"Drawings (*.dxf *.svg)"};
}

void QtFileDialogsTest::translatesFilters() {
  QFETCH(QString, filter);
  FileQuestion question = Question();
  question.Filter = filter.toStdString();
  Await([](QFileDialog& dialog) {
    QTEST(dialog.nameFilters(), "shown");
    QCOMPARE(Named<QComboBox>(dialog, "fileTypeCombo")->currentIndex(), 0);
  });
  QCOMPARE(dialogs_.AskSave(question), Answer());
}

void QtFileDialogsTest::showsFilesOfTheFilterAlone() {
  Await([](QFileDialog& dialog) {
    const auto* list = Named<QAbstractItemView>(dialog, "listView");
    const auto rows = [list] {
      QStringList names;
      for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
        names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
      names.sort();
      return names;
    };
    QTRY_COMPARE(rows(), QStringList({"Säge.bsw", "one.bsw"}));
  });
  QCOMPARE(dialogs_.AskOpen(Question()), Answer());
}

void QtFileDialogsTest::warnsBeforeReplacingWhereAsked_data() {
  QTest::addColumn<bool>("warns");
  QTest::newRow("warns") << true;
  QTest::newRow("does not warn") << false;
}

void QtFileDialogsTest::warnsBeforeReplacingWhereAsked() {
  QFETCH(bool, warns);
  FileQuestion question = Question("one.bsw");
  question.WarnBeforeReplacing = warns;
  bool asked = false;
  Await([&](QFileDialog& dialog) {
    AwaitQuestion(QMessageBox::Yes, asked);
    PressEnter(dialog);
    QCoreApplication::processEvents();
  });
  QCOMPARE(dialogs_.AskSave(question), Path("one.bsw"));
  QCOMPARE(asked, warns);
}

void QtFileDialogsTest::keepsWhatIsNotReplaced() {
  bool asked = false;
  Await([&](QFileDialog& dialog) {
    AwaitQuestion(QMessageBox::No, asked);
    PressEnter(dialog);
    QVERIFY(dialog.isVisible());
  });
  QCOMPARE(dialogs_.AskSave(Question("one.bsw")), Answer());
  QVERIFY(asked);
}

void QtFileDialogsTest::standsAboveTheWindowInUse() {
  QMainWindow owner;
  owner.show();
  QVERIFY(QTest::qWaitForWindowActive(&owner));
  Await([&owner](QFileDialog& dialog) { QCOMPARE(dialog.parentWidget(), &owner); });
  QCOMPARE(dialogs_.AskOpen(Question()), Answer());
}

}  // namespace tarnwick

int main(int argc, char** argv) {
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);  // whatever the desktop has
  QApplication application(argc, argv);
  tarnwick::QtFileDialogsTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "QtFileDialogs_test.moc"
