#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include "qt/MainWindow.h"

namespace tarnwick::test {

/// Somebody at a window that opens others: what these ask is answered one by one.
struct Desk {
  QDialog& Window;
  DialogUser Others;

  explicit Desk(QDialog& window) : Window(window) { Others.Window = &window; }

  void Press(const char* control) { QTest::mouseClick(Named<QWidget>(Window, control), Qt::LeftButton); }
  /// A click on a box, and what is typed into its question.
  void Enter(const char* box, const QString& typed) {
    Others.Acts.push_back(Types(typed));
    Press(box);
  }
  QString Text(const char* box) { return Named<QLineEdit>(Window, box)->text(); }

  /// Presses Tab until the focus is there.
  bool TabTo(const char* control) {
    for (int i = 0; i < 30 && Window.focusWidget()->objectName() != control; ++i) Key(Qt::Key_Tab);
    return Window.focusWidget()->objectName() == control;
  }
  void Key(Qt::Key key) { QTest::keyClick(Window.focusWidget(), key); }
};

/// Picks a command as a user does: by the "mouse", by "keys", or by its "button" of the tool bar.
inline void Pick(frmMain& window, const QString& how, const char* menu, const char* item,
                 const char* button = "") {
  auto* list = Named<QMenu>(window, menu);
  auto* bar = window.menuBar();
  auto* action = Named<QAction>(window, item);
  if (how == "button") {
    QTest::mouseClick(Named<QToolButton>(window, button), Qt::LeftButton);
  } else if (how == "mouse") {
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(list->menuAction()).center());
    QTRY_VERIFY(list->isVisible());
    QTest::mouseClick(list, Qt::LeftButton, {}, list->actionGeometry(action).center());
  } else {
    const QString caption = list->menuAction()->text();
    const int key = caption[caption.indexOf('&') + 1].toUpper().unicode();
    QTest::keyClick(&window, Qt::Key(key), Qt::AltModifier);
    QTRY_VERIFY(list->isVisible());
    for (int i = 0; i < 20 && list->activeAction() != action; ++i) QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
  }
}

}  // namespace tarnwick::test
