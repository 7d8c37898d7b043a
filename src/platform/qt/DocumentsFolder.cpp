#include "platform/qt/DocumentsFolder.h"

#include <QDir>
#include <QStandardPaths>

namespace tarnwick {

std::string DocumentsFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const bool exists = !documents.isEmpty() && QDir(documents).exists();
  return QDir::toNativeSeparators(exists ? documents : QDir::homePath()).toStdString();
}

}  // namespace tarnwick
