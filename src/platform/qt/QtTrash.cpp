#include "platform/qt/QtTrash.h"

#include <QFile>
#include <QString>

#include "platform/qt/QtText.h"

namespace tarnwick {

void QtTrash::Remove(const std::string& path) {
  const QString file = ToQt(path);
  if (!QFile::moveToTrash(file)) QFile::remove(file);
}

}  // namespace tarnwick
