#include "entry/frmBDialog.h"

#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/qt/PictureBox.h"

namespace tarnwick {

frmBDialog::frmBDialog(YesNoDialog& dialog, HelpViewer& help, QWidget* parent)
    : QuestionWindow({dialog.Title(), dialog.Prompt(), dialog.HelpTopic(), &YesNoDialog::Hint}, help, parent),
      dialog_(dialog) {
  setObjectName("frmBDialog");
  MakeAnswer();
  PicDisplay_->ShowPicture(dialog_.PictureKey());
  QRadioButton* set = dialog_.Answer() ? optYes_ : optNo_;
  set->setChecked(true);
  set->setFocus();
  for (const QRadioButton* option : {optYes_, optNo_}) {
    connect(option, &QRadioButton::clicked, this, &frmBDialog::Choose);
    connect(option, &QRadioButton::toggled, this, &frmBDialog::Choose);
  }
  connect(cmdOk_, &QPushButton::clicked, this, &frmBDialog::PressOk);
}

void frmBDialog::MakeAnswer() {
  optYes_ = AddButton<QRadioButton>("optYes", tr("&Yes"));
  optNo_ = AddButton<QRadioButton>("optNo", tr("&No"));
  auto* column = new QVBoxLayout;
  column->addStretch();
  column->addWidget(optYes_);
  column->addWidget(optNo_);
  column->addStretch();
  setTabOrder(optYes_, optNo_);
  setTabOrder(optNo_, cmdOk_);
  Arrange(column);
}

void frmBDialog::Choose() {
  dialog_.Choose(optYes_->isChecked());
  PicDisplay_->ShowPicture(dialog_.PictureKey());
}

/// An access key holds its option down for a moment before that is chosen; a quick hand presses Enter
/// meanwhile.
void frmBDialog::PressOk() {
  for (QRadioButton* option : {optYes_, optNo_}) {
    if (option->isDown()) option->setChecked(true);
  }
  dialog_.PressOk();
  accept();
}

void frmBDialog::reject() {
  dialog_.PressCancel();
  QuestionWindow::reject();
}

}  // namespace tarnwick
