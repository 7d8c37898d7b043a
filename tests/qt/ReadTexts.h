#pragma once

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QToolBar>

#include "qt/Controls.h"

namespace tarnwick::test {

/// What parts of lists say of themselves to those who listen.
inline QStringList SpokenParts(QWidget* control) {
  QStringList texts;
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(control);
  for (int i = 0; access && i < access->childCount(); ++i) {
    if (QAccessibleInterface* part = access->child(i)) texts += part->text(QAccessible::Name);
  }
  return texts;
}

/// All that a control shows and says.
inline QStringList TextsOf(QWidget* control) {
  QStringList texts{control->toolTip(), control->accessibleName(), control->accessibleDescription()};
  if (control->isWindow()) texts += control->windowTitle();
  if (const auto* label = qobject_cast<QLabel*>(control)) texts += label->text();
  if (const auto* button = qobject_cast<QAbstractButton*>(control)) texts += button->text();
  if (const auto* group = qobject_cast<QGroupBox*>(control)) texts += group->title();
  if (const auto* line = qobject_cast<QLineEdit*>(control)) texts += {line->text(), line->placeholderText()};
  if (const auto* tabs = qobject_cast<QTabBar*>(control)) {
    for (int i = 0; i < tabs->count(); ++i) texts += tabs->tabText(i);
  }
  if (const auto* list = qobject_cast<QComboBox*>(control)) {
    for (int i = 0; i < list->count(); ++i) texts += list->itemText(i);
  }
  if (const auto* list = qobject_cast<QListWidget*>(control)) {
    for (int i = 0; i < list->count(); ++i) {
      texts += {list->item(i)->text(), list->item(i)->data(Qt::AccessibleTextRole).toString()};
    }
  }
  if (control->objectName() == "picSawData") texts += SpokenParts(control);
  for (const QAction* action : control->actions()) texts += {action->text(), action->toolTip()};
  return texts;
}

/// All that a window shows and says, what is hidden at the moment included; the pages of the manual are not
/// of the program.
inline QStringList TextsOf(QWidget& window) {
  QStringList texts = TextsOf(&window);
  for (QWidget* control : window.findChildren<QWidget*>()) texts += TextsOf(control);
  texts.removeAll(QString());
  texts.removeDuplicates();
  return texts;
}

}  // namespace tarnwick::test
