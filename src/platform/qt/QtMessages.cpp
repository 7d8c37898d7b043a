#include "platform/qt/QtMessages.h"

#include <QMessageBox>
#include <QPushButton>
#include <vector>

#include "platform/qt/Language.h"
#include "platform/qt/WindowInUse.h"

namespace tarnwick {
namespace {

QMessageBox::StandardButton StandardOf(Button button) {
  switch (button) {
    case Button::Ok:
      return QMessageBox::Ok;
    case Button::Yes:
      return QMessageBox::Yes;
    case Button::No:
      return QMessageBox::No;
    case Button::Cancel:
      return QMessageBox::Cancel;
  }
  return QMessageBox::NoButton;
}

std::vector<Button> Offered(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return {Button::Ok};
    case Buttons::YesNo:
      return {Button::Yes, Button::No};
    case Buttons::YesNoCancel:
      return {Button::Yes, Button::No, Button::Cancel};
  }
  return {};
}

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::None:
      return QMessageBox::NoIcon;
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Warning:
      return QMessageBox::Warning;
    case Icon::Error:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

Button QtMessages::Show(const Box& box) {
  QMessageBox shown(WindowInUse());
  shown.setWindowTitle(Translated(box.Title));
  shown.setTextFormat(Qt::PlainText);
  shown.setText(Translated(box.Text));
  shown.setIcon(IconOf(box.Shown));
  const Button closed = box.Offer == Buttons::YesNoCancel ? Button::Cancel : box.Default;
  Button answer = closed;
  for (const Button button : Offered(box.Offer)) {
    QPushButton* made = shown.addButton(StandardOf(button));
    if (button == box.Default) shown.setDefaultButton(made);
    if (button == closed) shown.setEscapeButton(made);
    QObject::connect(made, &QPushButton::clicked, made, [&answer, button] { answer = button; });
  }
  shown.exec();
  return answer;
}

}  // namespace tarnwick
