#include "platform/qt/QtFileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QString>
#include <QStringList>

#include "platform/qt/Language.h"
#include "platform/qt/QtText.h"
#include "platform/qt/WindowInUse.h"

namespace tarnwick {
namespace {

/// "Words (*.ext)|*.ext" in the toolkit's way, where the pattern is looked for in the words themselves.
QStringList NameFilters(const std::string& filter) {
  QStringList filters;
  const QStringList parts = ToQt(filter).split('|');
  for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
    const QString pattern = "(" + QString(parts[at + 1]).replace(';', ' ') + ")";
    const QString words = Translated(parts[at].toStdString());
    filters.append(words.endsWith(pattern) ? words : words + " " + pattern);
  }
  return filters;
}

void OpenOn(QFileDialog& dialog, const FileQuestion& question) {
  const QString folder = ToQt(question.Folder), name = ToQt(question.Name);
  const bool isThere = !folder.isEmpty() && QFileInfo(folder).isDir();
  if (isThere) dialog.setDirectory(folder);
  // A desktop's dialog finds a name by its whole path alone.
  if (!name.isEmpty()) dialog.selectFile(isThere ? QDir(folder).absoluteFilePath(name) : name);
}

std::optional<std::string> Ask(QFileDialog& dialog, const FileQuestion& question) {
  dialog.setNameFilters(NameFilters(question.Filter));
  OpenOn(dialog, question);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return QDir::toNativeSeparators(dialog.selectedFiles().constFirst()).toStdString();
}

}  // namespace

std::optional<std::string> QtFileDialogs::AskOpen(const FileQuestion& question) {
  QFileDialog dialog(WindowInUse(), QFileDialog::tr("Open"));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Ask(dialog, question);
}

std::optional<std::string> QtFileDialogs::AskSave(const FileQuestion& question) {
  QFileDialog dialog(WindowInUse(), QFileDialog::tr("Save As"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.WarnBeforeReplacing);
  return Ask(dialog, question);
}

}  // namespace tarnwick
