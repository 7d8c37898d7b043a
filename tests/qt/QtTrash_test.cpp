#include "platform/qt/QtTrash.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "support/OrdinaryUser.h"

namespace tarnwick {

class QtTrashTest : public QObject {
  Q_OBJECT

 private slots:
  void init();

  void putsAFileIntoTheTrash();
  void keepsFilesOfOneNameApart();
  void makesTheTrashOfANewUser();
  void deletesWhereThereIsNoTrash();
  void leavesAFileThatCannotBeRemoved();
  void leavesTheRestOfTheFolder();

 private:
  QString File(const QString& name, const QByteArray& bytes = "bytes");
  [[nodiscard]] QStringList InTrash() const {
    return QDir(data_->filePath("Trash/files")).entryList(QDir::Files | QDir::Hidden);
  }

  std::unique_ptr<QTemporaryDir> data_, work_;
  QtTrash trash_;
};

/// The trash is on the same disk as the home: a file from another would go to a trash of that.
void QtTrashTest::init() {
  data_ = std::make_unique<QTemporaryDir>(QDir::homePath() + "/data-XXXXXX");
  work_ = std::make_unique<QTemporaryDir>(QDir::homePath() + "/work-XXXXXX");
  QVERIFY(data_->isValid() && work_->isValid());
  qputenv("XDG_DATA_HOME", QFile::encodeName(data_->path()));
}

QString QtTrashTest::File(const QString& name, const QByteArray& bytes) {
  QFile file(work_->filePath(name));
  if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("no file");
  return file.fileName();
}

void QtTrashTest::putsAFileIntoTheTrash() {
  const QString path = File("Säge & Blatt.bsw", "a design");
  trash_.Remove(path.toStdString());
  QVERIFY(!QFile::exists(path));
  QCOMPARE(InTrash(), QStringList("Säge & Blatt.bsw"));
  QFile kept(data_->filePath("Trash/files/Säge & Blatt.bsw"));
  QVERIFY(kept.open(QFile::ReadOnly));
  QCOMPARE(kept.readAll(), QByteArray("a design"));
}

void QtTrashTest::keepsFilesOfOneNameApart() {
  trash_.Remove(File("one.bsw", "first").toStdString());
  trash_.Remove(File("one.bsw", "second").toStdString());
  QVERIFY(!QFile::exists(work_->filePath("one.bsw")));
  QCOMPARE(InTrash().size(), 2);
}

void QtTrashTest::makesTheTrashOfANewUser() {
  const QString folder = data_->filePath("share/of/his");
  qputenv("XDG_DATA_HOME", QFile::encodeName(folder));
  trash_.Remove(File("saw.bsw").toStdString());
  QVERIFY(QFile::exists(folder + "/Trash/files/saw.bsw"));
}

void QtTrashTest::deletesWhereThereIsNoTrash() {
  QFile inTheWay(data_->filePath("Trash"));
  QVERIFY(inTheWay.open(QFile::WriteOnly));
  const QString path = File("one.bsw");
  trash_.Remove(path.toStdString());
  QVERIFY(!QFile::exists(path));
}

void QtTrashTest::leavesAFileThatCannotBeRemoved() {
  const test::OrdinaryUser ordinary;
  const QString path = File("one.bsw");
  QVERIFY(QFile::setPermissions(work_->path(), QFile::ReadOwner | QFile::ExeOwner));
  trash_.Remove(path.toStdString());
  QVERIFY(QFile::exists(path));
  QCOMPARE(InTrash(), QStringList());
  QVERIFY(QFile::setPermissions(work_->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void QtTrashTest::leavesTheRestOfTheFolder() {
  const QString path = File("one.bsw"), other = File("two.bsw");
  trash_.Remove(path.toStdString());
  trash_.Remove(work_->filePath("never.bsw").toStdString());
  QVERIFY(QFile::exists(other));
  QCOMPARE(InTrash(), QStringList("one.bsw"));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::QtTrashTest)
#include "QtTrash_test.moc"
