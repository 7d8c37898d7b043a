#pragma once

#include <QList>
#include <QString>
#include <QToolBar>

class QAction;
class QKeyEvent;
class QToolButton;

namespace tarnwick {

/// The tool bar of a window: one button for each command that is used often. It stays where it is.
///
/// By keyboard it is one stop of the Tab key, and F10 comes straight to it; arrows, Home and End go along it,
/// Space and Enter press, Escape goes back to the work.
class ToolBar final : public QToolBar {
  Q_OBJECT

 public:
  /// @param work  gets the focus before a button's command runs; it outlives the bar
  ToolBar(QWidget& work, QWidget* parent);

  /// A button at the end of the bar. Caption, shortcut and state stay those of the command.
  /// @param name  the button's own
  /// @param icon  the name of a line drawing; the command shows it in its menu too
  /// @param hint  what Pointed tells of it; empty: the command's caption
  void Add(const QString& name, QAction* command, const QString& icon, const QString& hint = {});

  /// What is added from here on stands a little apart; nothing at the start of the bar.
  void BeginGroup();

  /// A button for each command of the program's tool bar that `window` has under its name.
  void AddCommandsOf(const QObject& window);

 signals:
  /// The mouse, or the focus by keyboard, came to a button: its hint. Empty when it left.
  void Pointed(const QString& hint);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] QList<QToolButton*> Usable() const;
  [[nodiscard]] QToolButton* Stop() const;
  void KeepOneStop();
  void ComeTo(QToolButton* button);
  bool TakeKey(const QKeyEvent& key, QToolButton* button);

  QWidget& work_;
  QList<QToolButton*> buttons_;
  QToolButton* lastUsed_ = nullptr;  // by keyboard; at first the first one
};

}  // namespace tarnwick
