#include "platform/qt/QuestionWindow.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QString>
#include <QVBoxLayout>

#include "platform/qt/CenterForm.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/PictureBox.h"

namespace tarnwick {
namespace {

constexpr int FootGap = 8;  // below the line of hints

}  // namespace

QuestionWindow::QuestionWindow(const Question& question, HelpViewer& help, QWidget* parent)
    : QDialog(parent) {
  setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
  setWindowTitle(Translated(question.Title));

  lblDisplay_ = new QLabel(Translated(question.Prompt), this);
  lblDisplay_->setObjectName("lblDisplay");
  lblDisplay_->setTextFormat(Qt::PlainText);
  lblDisplay_->setAccessibleName(lblDisplay_->text().simplified());
  PicDisplay_ = new PictureBox(this);
  PicDisplay_->setObjectName("PicDisplay");
  PicDisplay_->setAccessibleName(tr("Picture of the measure"));

  cmdOk_ = AddButton<QPushButton>("cmdOk", tr("&OK"));
  cmdCancel_ = AddButton<QPushButton>("cmdCancel", tr("&Cancel"));
  cmdHelp_ = AddButton<QPushButton>("cmdHelp", tr("&Help"));
  cmdOk_->setDefault(true);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(cmdHelp_, &QPushButton::clicked, this,
          [&help, topic = question.HelpTopic] { help.ShowTopic(topic); });
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, cmdHelp_,
          &QPushButton::click);

  lblStatus_ = new HintLine(
      [hint = question.Hint](const QString& name) { return Translated(hint(name.toStdString())); }, this);
  lblStatus_->setObjectName("lblStatus");
}

void QuestionWindow::Arrange(QLayout* answer) {
  auto* middle = new QHBoxLayout;
  middle->setSpacing(Margin);
  middle->addWidget(PicDisplay_, 1);  // what the window is pulled wider goes to the picture
  middle->addLayout(answer);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(Gap);
  buttons->addStretch();
  for (QPushButton* button : {cmdOk_, cmdCancel_, cmdHelp_}) buttons->addWidget(button);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(Margin, 0, Margin, FootGap);  // the prompt begins with an empty line
  column->setSpacing(Margin);
  column->addWidget(lblDisplay_);
  column->addLayout(middle, 1);
  column->addLayout(buttons);
  column->addWidget(lblStatus_);

  setTabOrder(cmdOk_, cmdCancel_);
  setTabOrder(cmdCancel_, cmdHelp_);
  lblStatus_->Watch(*this);
  CenterForm(*this);
}

}  // namespace tarnwick
