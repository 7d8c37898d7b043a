#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <string>

#include "cli/Design.h"
#include "geometry/modTooth.h"
#include "platform/qt/QtDialogHost.h"
#include "platform/qt/QtHosts.h"
#include "qt/MainWindow.h"
#include "support/PowerDesign.h"
#include "support/TestProgram.h"

namespace tarnwick::test {

/// What every power window is tested with: a program, its hosts, and somebody who answers questions.
struct PowerBench {
  TestProgram Program;
  QtDialogHost Dialogs{Program.Help};
  QtHosts Hosts{Program.Process};
  PowerHost& Windows = Hosts.All().Power;
  DialogUser User;

  PowerBench() { Program.Start(); }

  Config& Settings() { return Program.Process.Design.Settings; }

  /// A design of samples/, calculated as the main window has it.
  BandSaw Sample(const char* name) {
    const cli::Design read = cli::ReadDesign(std::string(TARNWICK_SAMPLES_DIR "/") + name + ".json");
    if (read.Failed) qFatal("%s: %s", name, read.Failed->c_str());
    BandSaw saw = read.Saw;
    CollectedMessages ignored;
    (void)CalculateSaw(saw, Settings().Calculation, ignored);
    return saw;
  }

  /// Brings the window up; from here on questions are answered, and it is none.
  void Show(QDialog& window) {
    User.Window = &window;
    window.show();
    Activate(window);
  }

  /// As the desktop does when a question above the window has been answered.
  static void Activate(QDialog& window) {
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) qFatal("the window does not come up");
  }
};

inline QString TextOf(const QWidget& window, const QString& box) {
  return Named<QLineEdit>(window, qPrintable(box))->text();
}

/// The names of those boxes and captions that have a name and less room than their text takes.
inline QStringList Cramped(const QWidget& window) {
  QStringList cramped;
  for (const auto* box : window.findChildren<QLineEdit*>()) {
    const int room = box->contentsRect().width() - box->textMargins().left();
    if (box->fontMetrics().horizontalAdvance(box->text().trimmed()) > room) cramped += box->objectName();
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    const bool isOfOneLine = !label->wordWrap();
    if (isOfOneLine && label->isVisible() && label->width() < label->sizeHint().width())
      cramped += label->objectName();
  }
  return cramped;
}

/// Whether the boxes of the window show whole: no bar has come up to move them.
inline bool ShowsAll(const QWidget& window) {
  for (const auto* area : window.findChildren<QScrollArea*>()) {
    if (area->verticalScrollBar()->maximum() > 0 || area->horizontalScrollBar()->maximum() > 0) return false;
  }
  return true;
}

/// Sets the font of the program while it lives.
class LargeFont {
 public:
  explicit LargeFont(int points) {
    QFont font = before_;
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  ~LargeFont() { QApplication::setFont(before_); }
  LargeFont(const LargeFont&) = delete;
  LargeFont& operator=(const LargeFont&) = delete;

 private:
  QFont before_ = QApplication::font();
};

}  // namespace tarnwick::test
