#pragma once

#include <QAbstractButton>
#include <QCursor>
#include <QMenu>
#include <QPointer>
#include <QToolButton>
#include <filesystem>

#include "model/modZoom.h"
#include "qt/MainWindow.h"
#include "shell/frmAnime.h"
#include "support/OpenPath.h"

namespace tarnwick::test {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

inline std::string Question(const char* first) {
  return std::string(first) + "\n\nDo you want to save this file?              ";
}

/// What cannot be picked while a file is read or written.
inline const char* const Locked[] = {"mnuItemAbout",      "mnuItemSplash",  "mnuItemNew",
                                     "mnuItemStepByStep", "mnuItemOptions", "mnuItemPrintShape"};

/// The main window with somebody at work on designs.
class DocumentsBench {
 protected:
  /// Around each test.
  void Begin() { main_ = std::make_unique<MainWindow>(); }
  void End() { main_.reset(); }

  OpenDesign& Design() { return main_->Design(); }
  QString Caption() { return main_->Window->windowHandle()->title(); }
  std::string Folder() { return main_->Folder.Path().string() + PathSeparator; }
  std::string Path(const char* name) { return Folder() + name; }
  std::string Stored(const char* name, const BandSaw& saw = test::FullDesign()) {
    return main_->Folder.File(name, BandSawText(saw)).string();
  }
  void Choose(std::initializer_list<std::optional<std::string>> paths) { main_->Program.Files.Paths = paths; }
  void Answer(std::initializer_list<Button> answers) { main_->Program.Say.Answers = answers; }
  std::vector<Box>& Boxes() { return main_->Program.Say.Shown; }

  /// By the panel, as a user does.
  void ChangeHook(const char* degrees) {
    main_->Do("mnuItemToothShape");
    main_->User.Acts = {test::Types(degrees)};
    QTest::mouseClick(Named<QWidget>(*main_->Window, "txtHook"), Qt::LeftButton);
    test::Click(*main_->Window, "cmdToothOK");
  }
  void Press(const char* button) {
    QTest::mouseClick(Named<QToolButton>(*main_->Window, button), Qt::LeftButton);
  }
  QStringList RecentFiles() {
    QStringList shown;
    const auto* file = Named<QMenu>(*main_->Window, "mnuFile");
    for (const QAction* item : file->actions()) {
      if (item->objectName().startsWith("mnuRecentFiles(") && !item->isSeparator() && item->isVisible())
        shown += item->text();
    }
    return shown;
  }
  QString Row(const char* caption) {
    for (const InfoRow& row : BuildSawInfo(main_->Saw(), Design().Format(), 100)) {
      if (row.Caption == caption) return ToQt(row.Value);
    }
    return {};
  }

  std::unique_ptr<test::MainWindow> main_;
};

}  // namespace tarnwick::test
