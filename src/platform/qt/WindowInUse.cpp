#include "platform/qt/WindowInUse.h"

#include <QApplication>
#include <QWidget>

namespace tarnwick {

QWidget* WindowInUse() {
  // A dialog blocks what lies below it, so nothing else can be in use; and without a window manager no window
  // may ever be the active one.
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}

}  // namespace tarnwick
