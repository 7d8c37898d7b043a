#include "platform/qt/PanelFrame.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/PanelWidth.h"
#include "platform/qt/TabStep.h"
#include "shell/modString.h"

namespace tarnwick {
namespace {

constexpr int HeadingGap = 10;  // above a heading

}  // namespace

PanelFrame::PanelFrame(QWidget* parent) : QWidget(parent) {
  area_ = new QScrollArea(this);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  page_ = new QWidget(area_);
  area_->setWidget(page_);
  area_->setWidgetResizable(true);
  area_->verticalScrollBar()->setAccessibleName(tr("Move the boxes"));

  auto* edge = new QFrame(this);
  edge->setFrameStyle(QFrame::HLine | QFrame::Plain);
  edge->setForegroundRole(QPalette::Mid);
  foot_ = new QHBoxLayout;
  foot_->setSpacing(Gap);
  foot_->addStretch();
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(area_, 1);
  column->addWidget(edge);
  column->addLayout(foot_);
}

int PanelFrame::LeastWidth() const { return LeastPanelWidth(*this); }

void PanelFrame::SetFrameWidth(int panel) {
  const int bar = area_->verticalScrollBar()->sizeHint().width();  // shown or not, nothing moves
  setFixedWidth(panel);
  page_->setFixedWidth(panel - bar);
  foot_->setContentsMargins(PanelMargin, Gap, PanelMargin + bar, Gap);
}

QPushButton* PanelFrame::AddButton(const char* name, const QString& caption, const QString& spoken, int hint,
                                   Side side) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setAccessibleName(spoken);
  button->setAccessibleDescription(Translated(NumberedText(hint)));
  button->setAutoDefault(true);  // Enter presses the one that has the focus
  Watch(button);
  if (side == Side::Left) {
    foot_->insertWidget(leftButtons_++, button);
  } else {
    foot_->addWidget(button);
  }
  return button;
}

QLabel* PanelFrame::MakeHeading(const QString& text) {
  auto* heading = new QLabel(text, page_);
  heading->setTextFormat(Qt::PlainText);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  heading->setContentsMargins(0, HeadingGap, 0, 0);
  return heading;
}

// ---- what is pointed at

void PanelFrame::Watch(QWidget* control) {
  control->installEventFilter(this);
  watched_.push_back(control);
}

void PanelFrame::EndWatching() {
  for (QWidget* control : watched_) {
    control->disconnect(this);
    control->removeEventFilter(this);
  }
}

bool PanelFrame::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Enter:
      TellHover(watched, true);
      break;
    case QEvent::Leave:
      TellHover(watched, false);
      break;
    case QEvent::FocusIn:
      if (!IsTabStep(*event)) break;  // a box that moved under the mouse would miss its release
      TellHover(watched, true);
      if (auto* control = qobject_cast<QWidget*>(watched); control && page_->isAncestorOf(control)) {
        area_->ensureWidgetVisible(control, 0, HeadingGap);
      }
      break;
    case QEvent::FocusOut:
      if (IsTabStep(*event)) TellHover(watched, false);
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tarnwick
