#include "platform/qt/QtTrash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QString>

#include "platform/qt/QtText.h"

namespace tarnwick {

void QtTrash::Remove(const std::string& path) {
  const QString file = ToQt(path);
  // A new user has no such folder yet, and the toolkit makes the trash in it, but not the folder.
  QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
  if (!QFile::moveToTrash(file)) QFile::remove(file);
}

}  // namespace tarnwick
