#pragma once

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QWindow>
#include <functional>
#include <memory>

#include "entry/modParameter.h"
#include "platform/qt/QtHelpViewer.h"
#include "platform/qt/QtText.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::test {

inline constexpr auto ContentsAddress = "contents.html";

/// The help window, wherever it is; none before the first question.
inline QWidget* Window() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "frmHelp") return window;
  }
  return nullptr;
}

template <typename Control>
Control* Find(const char* name) {
  auto* found = Window()->findChild<Control*>(name);
  if (!found) qFatal("no control %s", name);
  return found;
}

inline QTextBrowser* Page() { return Find<QTextBrowser>("txtHelpPage"); }
inline QString Title() { return Page()->documentTitle(); }
inline QString Address() { return Page()->source().fileName(); }

inline void Press(const char* button) { QTest::mouseClick(Find<QToolButton>(button), Qt::LeftButton); }

inline void ShowPane(const char* caption) {
  auto* panes = Find<QTabWidget>("tabHelp");
  for (int i = 0; i < panes->count(); ++i) {
    if (panes->tabText(i) == caption) return panes->setCurrentIndex(i);
  }
  qFatal("no pane %s", caption);
}

/// Shows `dialog` until `user` is done with it.
inline void WhileAsking(QDialog& dialog, const std::function<void()>& user) {
  bool done = false;
  QTimer::singleShot(0, [&] {
    user();
    done = true;
    dialog.reject();
  });
  dialog.exec();
  if (!done) qFatal("the dialog did not wait");
}

/// Whether a key press gets through to the window.
inline bool TakesKeys(QWidget& window) {
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window)) return false;
  auto* words = Find<QLineEdit>("txtHelpIndex");
  ShowPane("&Index");
  words->setFocus();
  words->clear();
  for (const char key : {'s', 'a', 'w'}) QTest::keyClick(window.windowHandle(), key);
  return words->text() == "saw";
}

/// The manual as a program shows it, its files in a folder of their own.
class HelpBench {
 protected:
  /// Around each test.
  void Begin();
  void End();

  /// Asks for a word, and opens the first page that is found.
  void SearchTheText();

  [[nodiscard]] QString Cache() const { return QString::fromStdString(folder_->Path().string()); }
  HelpFiles Files() const { return {.CacheFolder = Cache()}; }

  std::unique_ptr<test::TemporaryFolder> folder_;
  std::unique_ptr<QtHelpViewer> help_;
};

inline void HelpBench::Begin() {
  folder_ = std::make_unique<test::TemporaryFolder>();
  help_ = std::make_unique<QtHelpViewer>(Files());
}

inline void HelpBench::End() {
  help_.reset();
  folder_.reset();
}

inline void HelpBench::SearchTheText() {
  help_->ShowContents();
  ShowPane("&Search");
  QTest::keyClicks(Find<QLineEdit>("txtHelpSearch"), "gullet");
  auto* pages = Find<QListWidget>("lstHelpSearch");
  QTRY_VERIFY(pages->count() > 0);
  QCOMPARE(Find<QLabel>("lblHelpSearch")->text(), QString("Pages found: %1").arg(pages->count()));
  QCOMPARE(Address(), QString(ContentsAddress));  // nothing opens by itself
  QTest::mouseClick(pages->viewport(), Qt::LeftButton, {}, pages->visualItemRect(pages->item(0)).center());
  QVERIFY(Page()->toPlainText().contains("gullet", Qt::CaseInsensitive));
  QCOMPARE(Title(), pages->item(0)->text());
}

}  // namespace tarnwick::test
