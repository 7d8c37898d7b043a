#include "platform/qt/HelpFindBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolButton>

namespace tarnwick {

HelpFindBar::HelpFindBar(QTextBrowser& page, QWidget* parent) : QWidget(parent), page_(page) {
  words_ = new QLineEdit(this);
  words_->setObjectName("txtHelpFind");
  words_->setAccessibleName(tr("Words to find on this page"));
  words_->setPlaceholderText(tr("Find on this page"));
  words_->setClearButtonEnabled(true);
  result_ = new QLabel(this);
  result_->setObjectName("lblHelpFind");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(words_);
  const auto add = [&](const char* name, const QString& caption, auto pressed) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(caption);
    connect(button, &QToolButton::clicked, this, pressed);
    row->addWidget(button);
  };
  add("cmdHelpFindPrevious", tr("Previous"), &HelpFindBar::FindPrevious);
  add("cmdHelpFindNext", tr("Next"), &HelpFindBar::FindNext);
  row->addWidget(result_);
  row->addStretch();
  add("cmdHelpFindClose", tr("Close"), &HelpFindBar::hide);
  connect(words_, &QLineEdit::returnPressed, this, &HelpFindBar::FindNext);
  hide();
}

void HelpFindBar::Begin() {
  show();
  words_->setFocus();
  words_->selectAll();
}

void HelpFindBar::Find(Direction direction) {
  const QString words = words_->text();
  if (words.isEmpty()) return Begin();
  const auto flags = direction == Direction::Up ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  const QTextCursor before = page_.textCursor();
  bool found = page_.find(words, flags);
  if (!found) {  // on from the other end
    page_.moveCursor(direction == Direction::Up ? QTextCursor::End : QTextCursor::Start);
    found = page_.find(words, flags);
  }
  if (!found) page_.setTextCursor(before);
  result_->setText(found ? QString() : tr("Not on this page."));
}

}  // namespace tarnwick
