#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace tarnwick::test {

/// The control of this name.
template <typename Control>
Control* Named(const QWidget& window, const char* name) {
  auto* control = window.findChild<Control*>(name);
  if (!control) qFatal("there is no %s", name);
  return control;
}

/// The names of those of `names` that have no accessible name, or share theirs.
inline QStringList BadlySpoken(const QWidget& window, const QStringList& names) {
  QStringList bad;
  QSet<QString> spoken;
  for (const QString& name : names) {
    const auto* control = window.findChild<QWidget*>(name);
    const QString text = control ? control->accessibleName() : QString();
    if (text.isEmpty() || spoken.contains(text)) bad.append(name);
    spoken.insert(text);
  }
  return bad;
}

/// The letters that press a button together with Alt, in the order of the buttons' making.
inline QString AccessKeys(const QWidget& window) {
  QString keys;
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    const QRegularExpressionMatch match = QRegularExpression("&(\\w)").match(button->text());
    if (match.hasMatch()) keys += match.captured(1).toUpper();
  }
  return keys;
}

/// The names of those visible controls that have less room than they ask for, or that stick out of the
/// window.
inline QStringList Clipped(const QWidget& window, const QStringList& names) {
  QStringList clipped;
  for (const QString& name : names) {
    const auto* control = window.findChild<QWidget*>(name);
    if (!control || !control->isVisible()) continue;
    const QSize wanted = control->sizeHint();
    const QRect place(control->mapTo(&window, QPoint()), control->size());
    const bool fits = control->width() >= wanted.width() && control->height() >= wanted.height();
    if (!fits || !window.rect().contains(place))
      clipped.append(QString("%1: %2 x %3 of %4 x %5")
                         .arg(name)
                         .arg(control->width())
                         .arg(control->height())
                         .arg(wanted.width())
                         .arg(wanted.height()));
  }
  return clipped;
}

/// The names of the controls that Tab reaches, beginning where the focus is; no more than `most`.
inline QStringList TabOrder(QWidget& window, int most = 20) {
  QStringList order;
  for (int i = 0; i < most; ++i) {
    const QString name = window.focusWidget()->objectName();
    if (order.contains(name)) break;
    order.append(name);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  }
  return order;
}

}  // namespace tarnwick::test
