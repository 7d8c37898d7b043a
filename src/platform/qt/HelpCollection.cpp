#include "platform/qt/HelpCollection.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QHelpLink>
#include <QSaveFile>
#include <QStandardPaths>

#include "platform/qt/QtText.h"
#include "version.h"

namespace tarnwick {
namespace {

constexpr qsizetype NameLength = 16;  // digits of the hash that tell one manual from another

QString FolderInCache(const HelpFiles& files, const QByteArray& manual) {
  const QString cache = files.CacheFolder.isEmpty()
                            ? QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
                            : files.CacheFolder;
  const QByteArray hash = QCryptographicHash::hash(manual, QCryptographicHash::Sha256).toHex();
  return cache + "/help/" + ToQt(FullVersion) + '-' + QString::fromLatin1(hash.left(NameLength));
}

/// Writes the bytes whole or not at all; a file that has them already is left alone.
bool KeepFile(const QString& path, const QByteArray& bytes) {
  QFile kept(path);
  if (kept.open(QIODevice::ReadOnly) && kept.readAll() == bytes) return true;
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

}  // namespace

HelpCollection::HelpCollection(const HelpFiles& files) {
  QFile file(files.Manual);
  if (!file.open(QIODevice::ReadOnly)) {
    Fail(file.errorString());
    return;
  }
  const QByteArray manual = file.readAll();
  if (OpenIn(FolderInCache(files, manual), manual)) return;
  temporary_ = std::make_unique<QTemporaryDir>();
  if (!temporary_->isValid()) {
    Fail(temporary_->errorString());
    return;
  }
  OpenIn(temporary_->path(), manual);
}

bool HelpCollection::Fail(const QString& why) {
  failure_ = why;
  engine_.reset();
  lock_.reset();
  return false;
}

bool HelpCollection::OpenIn(const QString& folder, const QByteArray& manual) {
  folder_ = folder;
  if (!QDir().mkpath(folder)) return Fail(QString("%1 cannot be made.").arg(folder));
  lock_ = std::make_unique<QLockFile>(folder + "/lock");
  // It is held as long as the program runs; one left by a crash is known by its process.
  lock_->setStaleLockTime(0);
  if (!lock_->tryLock()) return Fail(QString("%1 is in use or cannot be written.").arg(folder));
  const QString kept = folder + "/tarnwick.qch";
  if (!KeepFile(kept, manual)) return Fail(QString("%1 cannot be written.").arg(kept));

  engine_ = std::make_unique<QHelpEngine>(folder + "/tarnwick.qhc");
  engine_->setReadOnly(false);
  engine_->setUsesFilterEngine(true);
  if (!engine_->setupData()) return Fail(engine_->error());
  const QString name = QHelpEngineCore::namespaceName(kept);
  if (!engine_->registeredDocumentations().contains(name) && !engine_->registerDocumentation(kept)) {
    return Fail(engine_->error());
  }
  failure_.clear();
  return true;
}

QUrl HelpCollection::PageOf(const QString& name) const {
  if (!engine_) return {};
  const QList<QHelpLink> pages = engine_->documentsForIdentifier(name);
  return pages.isEmpty() ? QUrl() : pages.first().url;
}

}  // namespace tarnwick
