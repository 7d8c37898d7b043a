#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QTest>
#include <algorithm>
#include <vector>

#include "qt/PrintedFile.h"

namespace tarnwick::test {

/// A job as a printer got it.
struct PrintedJob {
  QString Printer, Title, Options;
  int Copies{};
  PrintedFile File;
};

/// The printers Alpha and Beta of support/private_printers.py. They are the only ones of the process as long
/// as this lives; there can be one in a process.
class PrivatePrinters {
 public:
  PrivatePrinters() {
    server_.start("python3", {"-B", TARNWICK_TEST_DATA_DIR "/../support/private_printers.py"});
    qputenv("CUPS_SERVER", Line().toUtf8());
    folder_ = Line();
  }
  ~PrivatePrinters() { Stop(); }
  PrivatePrinters(const PrivatePrinters&) = delete;
  PrivatePrinters& operator=(const PrivatePrinters&) = delete;

  /// The jobs that have come out since this was asked last, once none waits any more.
  std::vector<PrintedJob> Jobs() {
    if (!QTest::qWaitFor([] { return OutputOf("lpstat", {"-o"}).isEmpty(); }, Patience))
      qFatal("a job hangs");
    std::vector<QFileInfo> files;
    for (const QFileInfo& file : QDir(folder_).entryInfoList({"*.pdf"})) {
      if (NumberOf(file) > seen_) files.push_back(file);
    }
    std::sort(files.begin(), files.end(), [](auto& a, auto& b) { return NumberOf(a) < NumberOf(b); });
    std::vector<PrintedJob> jobs;
    for (const QFileInfo& file : files) {
      jobs.push_back(JobOf(file));
      seen_ = NumberOf(file);
    }
    return jobs;
  }

  void Command(const QString& program, const QStringList& arguments) {
    (void)OutputOf("/usr/sbin/" + program, arguments);
  }

  void Stop() {
    server_.closeWriteChannel();
    server_.waitForFinished();
  }

 private:
  static constexpr int Patience = 30'000;  // ms that a machine under load may take

  QString Line() {
    while (!server_.canReadLine()) {
      if (!server_.waitForReadyRead(Patience))
        qFatal("no printers: %s", server_.readAllStandardError().constData());
    }
    return QString::fromUtf8(server_.readLine()).trimmed();
  }

  static int NumberOf(const QFileInfo& file) { return file.baseName().section('-', -1).toInt(); }

  static PrintedJob JobOf(const QFileInfo& file) {
    QFile notes(file.path() + '/' + file.completeBaseName() + ".txt");
    if (!notes.open(QIODevice::ReadOnly)) qFatal("a job without its options");
    const QString text = QString::fromUtf8(notes.readAll());
    const auto value = [&text](const char* name) {
      return QRegularExpression(QString("^%1=(.*)$").arg(name), QRegularExpression::MultilineOption)
          .match(text)
          .captured(1);
    };
    return {file.baseName().section('-', 0, -2), value("title"), value("options"), value("copies").toInt(),
            PrintedFile(file.filePath())};
  }

  QProcess server_;
  QString folder_;
  int seen_ = 0;
};

}  // namespace tarnwick::test
