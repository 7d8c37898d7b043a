#include "entry/frmCDialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "platform/qt/Language.h"
#include "platform/qt/PictureBox.h"
#include "platform/qt/PresetList.h"

namespace tarnwick {
namespace {

constexpr int Gap = 6;         // between list and box
constexpr int WideFactor = 2;  // where there is no picture

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

}  // namespace

frmCDialog::frmCDialog(ValueDialog& dialog, HelpViewer& help, QWidget* parent)
    : QuestionWindow({dialog.Title(), dialog.Prompt(), dialog.HelpTopic(), &ValueDialog::Hint}, help, parent),
      dialog_(dialog) {
  setObjectName("frmCDialog");
  MakeAnswer();
  BindAnswer();
  ShowAnswer();
  txtValue_->setFocus();
}

void frmCDialog::MakeAnswer() {
  ListValues_ = new PresetList(this);
  ListValues_->setObjectName("ListValues");
  ListValues_->setAccessibleName(tr("Values to choose from"));
  for (std::size_t i = 0; i < dialog_.List().size(); ++i) {
    if (dialog_.IsHeading(i))
      ListValues_->AddHeading(dialog_.List()[i]);
    else
      ListValues_->AddEntry(dialog_.List()[i]);
  }
  txtValue_ = new QLineEdit(this);
  txtValue_->setObjectName("txtValue");
  txtValue_->setAccessibleName(tr("Value"));
  txtValue_->installEventFilter(this);

  auto* column = new QVBoxLayout;
  column->setSpacing(Gap);
  column->addWidget(ListValues_, 1);
  column->addWidget(txtValue_);
  const int width = ListValues_->sizeHint().width();
  PicDisplay_->setVisible(dialog_.ShowsPicture());
  ListValues_->setMinimumWidth(dialog_.ShowsPicture() ? width : WideFactor * width);
  setTabOrder(ListValues_, txtValue_);
  setTabOrder(txtValue_, cmdOk_);
  Arrange(column);
}

void frmCDialog::BindAnswer() {
  connect(txtValue_, &QLineEdit::textChanged, this, [this](const QString& text) {
    const std::string typed = ValueOf(text);
    if (typed == dialog_.Value()) return;
    dialog_.Type(typed);
    ListValues_->clearSelection();  // what is typed is not what was chosen
  });
  connect(ListValues_, &QListWidget::itemSelectionChanged, this, [this] {
    const QList<QListWidgetItem*> chosen = ListValues_->selectedItems();
    if (!chosen.isEmpty()) SelectEntry(ListValues_->row(chosen.first()));
  });
  // A click on the entry that is chosen already counts as well.
  connect(ListValues_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* entry) { SelectEntry(ListValues_->row(entry)); });
  connect(ListValues_, &QListWidget::itemDoubleClicked, this, [this] { PressOk(); });
  connect(cmdOk_, &QPushButton::clicked, this, &frmCDialog::PressOk);
}

/// A name of the list is known by what the list shows for it.
std::string frmCDialog::ValueOf(const QString& text) const {
  const std::vector<std::string>& names = dialog_.List();
  const auto named = std::find_if(names.begin(), names.end(),
                                  [&text](const std::string& name) { return Translated(name) == text; });
  return named == names.end() ? text.toStdString() : *named;
}

void frmCDialog::SelectEntry(int row) {
  dialog_.SelectEntry(static_cast<std::size_t>(row));
  ShowAnswer();
}

void frmCDialog::PressOk() {
  dialog_.PressOk();
  Answered();
}

void frmCDialog::PressEnter() {
  dialog_.PressEnter();
  Answered();
}

void frmCDialog::Answered() {
  ShowAnswer();
  if (dialog_.IsOpen())
    txtValue_->setFocus();
  else
    accept();
}

void frmCDialog::ShowAnswer() {
  const std::vector<std::string>& names = dialog_.List();
  const bool isName = std::find(names.begin(), names.end(), dialog_.Value()) != names.end();
  txtValue_->setText(isName ? Translated(dialog_.Value()) : QString::fromStdString(dialog_.Value()));
  PicDisplay_->ShowPicture(dialog_.PictureKey());
}

void frmCDialog::reject() {
  dialog_.PressCancel();
  QuestionWindow::reject();
}

/// Enter means what it means where it is pressed, and never reaches the default button a second time.
void frmCDialog::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(*event) && txtValue_->hasFocus())
    PressEnter();
  else if (IsEnter(*event) && ListValues_->hasFocus())
    PressOk();
  else
    QuestionWindow::keyPressEvent(event);
}

/// An arrow key in the box steps into the list above it.
bool frmCDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtValue_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      ListValues_->setFocus(Qt::OtherFocusReason);
      return QApplication::sendEvent(ListValues_, event);
    }
  }
  return QuestionWindow::eventFilter(watched, event);
}

}  // namespace tarnwick
