#pragma once

#include <QHelpEngine>
#include <QLockFile>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>

namespace tarnwick {

/// Where the manual lies, and where it may be unpacked.
struct HelpFiles {
  QString Manual = ":/help/tarnwick.qch";
  QString CacheFolder{};  // empty: the user's own for this program
};

/// The manual, unpacked to where it can be read and searched: the help engine wants files, and writes beside
/// them.
///
/// They lie in a folder of the cache that is named for the program's version and the manual's bytes, so that
/// an upgrade starts with a fresh one. One program at a time works in it; a second program, and one that
/// cannot write there, takes a temporary folder.
class HelpCollection {
 public:
  explicit HelpCollection(const HelpFiles& files);

  /// None when the manual could not be opened anywhere; `Failure` then says why.
  [[nodiscard]] QHelpEngine* Engine() const { return engine_.get(); }
  [[nodiscard]] const QString& Failure() const { return failure_; }
  /// The folder in use.
  [[nodiscard]] const QString& Folder() const { return folder_; }

  /// The page that bears this name in the manual's list of keywords; an empty address when none does.
  [[nodiscard]] QUrl PageOf(const QString& name) const;

 private:
  bool OpenIn(const QString& folder, const QByteArray& manual);
  bool Fail(const QString& why);

  QString folder_;
  QString failure_;
  std::unique_ptr<QTemporaryDir> temporary_;  // these three go in turn: the engine before its files
  std::unique_ptr<QLockFile> lock_;
  std::unique_ptr<QHelpEngine> engine_;
};

}  // namespace tarnwick
