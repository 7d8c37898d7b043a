#include "platform/qt/ToolBar.h"

#include <QAction>
#include <QActionEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>
#include <QShortcut>
#include <QStyleOptionToolButton>
#include <QToolButton>
#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "platform/qt/Language.h"
#include "platform/qt/LineIcon.h"
#include "platform/qt/NamedControls.h"
#include "platform/qt/QtText.h"
#include "shell/modString.h"
#include "shell/modToolCommands.h"

namespace tarnwick {
namespace {

constexpr int IconSide = 24;

/// Looks and sounds as its command does at the moment.
class Button final : public QToolButton {
 public:
  Button(QWidget& work, QAction* command, const QString& hint, QWidget* parent)
      : QToolButton(parent), work_(work), hint_(hint) {
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
    setDefaultAction(command);
    ShowCommand();
  }

 protected:
  void actionEvent(QActionEvent* event) override {
    QToolButton::actionEvent(event);
    if (event->action() == defaultAction() && event->type() != QEvent::ActionRemoved) ShowCommand();
  }

  void nextCheckState() override {
    work_.setFocus(Qt::OtherFocusReason);  // first: the command may open a window that takes it
    QToolButton::nextCheckState();
  }

  void initStyleOption(QStyleOptionToolButton* option) const override {
    QToolButton::initStyleOption(option);
    option->icon = LineIcon(icon().name(), palette());
  }

  /// Only keys bring the focus here. Styles show it faintly on a button without an edge, if at all.
  void paintEvent(QPaintEvent* event) override {
    QToolButton::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }

 private:
  void ShowCommand() {
    const QString caption = Spoken(defaultAction()->text());
    const QString key = defaultAction()->shortcut().toString(QKeySequence::NativeText);
    setToolTip(key.isEmpty() ? caption : caption + " (" + key + ")");
    setAccessibleName(caption);
    setAccessibleDescription(hint_.isEmpty() ? caption : hint_);
  }

  QWidget& work_;
  QString hint_;
};

}  // namespace

ToolBar::ToolBar(QWidget& work, QWidget* parent) : QToolBar(parent), work_(work) {
  setObjectName("tlbViewer");
  setAccessibleName(tr("Tool bar"));
  setWindowTitle(accessibleName());
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);  // the toolkit's would hide the bar
  setIconSize(QSize(IconSide, IconSide));
  auto* key = new QShortcut(Qt::Key_F10, this);
  connect(key, &QShortcut::activated, this, [this] {
    if (QToolButton* stop = Stop()) ComeTo(stop);
  });
}

// ---- making

void ToolBar::Add(const QString& name, QAction* command, const QString& icon, const QString& hint) {
  command->setIcon(LineIcon(icon));
  auto* button = new Button(work_, command, hint, this);
  button->setObjectName(name);
  button->installEventFilter(this);
  addWidget(button);
  buttons_.append(button);
  KeepOneStop();
}

void ToolBar::BeginGroup() {
  if (!buttons_.isEmpty()) addSeparator();
}

void ToolBar::AddCommandsOf(const QObject& window) {
  std::optional<ToolGroup> group;
  for (const ToolCommand& row : ToolCommands) {
    auto* command = window.findChild<QAction*>(ToQt(row.Item));
    if (!command) continue;
    if (group != row.Group) BeginGroup();
    group = row.Group;
    Add(ToQt(row.Button), command, ToQt(row.Icon()), Translated(NumberedText(row.Hint)));
  }
}

// ---- keyboard

QList<QToolButton*> ToolBar::Usable() const {
  QList<QToolButton*> usable;
  std::copy_if(buttons_.begin(), buttons_.end(), std::back_inserter(usable),
               [](const QToolButton* button) { return button->isEnabled(); });
  return usable;
}

/// Tab comes to the button that was used last, or to another as long as that one cannot be used.
QToolButton* ToolBar::Stop() const {
  const QList<QToolButton*> usable = Usable();
  return usable.contains(lastUsed_) ? lastUsed_ : usable.value(0);
}

void ToolBar::KeepOneStop() {
  if (!lastUsed_) lastUsed_ = buttons_.value(0);
  const QToolButton* stop = Stop();
  for (QToolButton* button : std::as_const(buttons_))
    button->setFocusPolicy(button == stop ? Qt::TabFocus : Qt::NoFocus);
}

void ToolBar::ComeTo(QToolButton* button) {
  lastUsed_ = button;
  KeepOneStop();
  button->setFocus(Qt::TabFocusReason);
}

bool ToolBar::TakeKey(const QKeyEvent& key, QToolButton* button) {
  const QList<QToolButton*> usable = Usable();
  const qsizetype place = usable.indexOf(button);
  const qsizetype count = usable.size();
  if (place < 0) return false;
  const bool mirrored = isRightToLeft();
  switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
      const bool onwards = (key.key() == Qt::Key_Right) != mirrored;
      ComeTo(usable[(place + (onwards ? 1 : count - 1)) % count]);
      return true;
    }
    case Qt::Key_Up:
    case Qt::Key_Down:
      return true;  // the toolkit would leave the bar
    case Qt::Key_Home:
      ComeTo(usable.first());
      return true;
    case Qt::Key_End:
      ComeTo(usable.last());
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      button->click();
      return true;
    case Qt::Key_Escape:
      work_.setFocus(Qt::OtherFocusReason);
      return true;
    default:
      return false;
  }
}

bool ToolBar::eventFilter(QObject* watched, QEvent* event) {
  auto* const button = qobject_cast<QToolButton*>(watched);
  if (!button || !buttons_.contains(button)) return QToolBar::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::Enter:
    case QEvent::FocusIn:
      emit Pointed(button->accessibleDescription());
      break;
    case QEvent::Leave:
    case QEvent::FocusOut:
      emit Pointed({});
      break;
    case QEvent::EnabledChange:
      KeepOneStop();
      break;
    case QEvent::KeyPress:
      if (TakeKey(*static_cast<QKeyEvent*>(event), button)) return true;
      break;
    default:
      break;
  }
  return QToolBar::eventFilter(watched, event);
}

}  // namespace tarnwick
