#pragma once

#include <QDialog>
#include <QString>
#include <string>
#include <string_view>

#include "platform/HelpViewer.h"
#include "platform/qt/HintLine.h"
#include "platform/qt/NamedControls.h"

class QLabel;
class QLayout;
class QPushButton;

namespace tarnwick {

class PictureBox;

/// What the dialogs of one question have in common: the prompt above, the picture at the left, room for the
/// answer at the right, OK, Cancel and Help below, a line of hints at the foot. A question blocks the window
/// that asks it.
class QuestionWindow : public QDialog {
  Q_OBJECT

 protected:
  /// What stays the same while a question is open.
  struct Question {
    std::string Title, Prompt;
    int HelpTopic = 0;
    std::string_view (*Hint)(std::string_view control) = nullptr;
  };

  QuestionWindow(const Question& question, HelpViewer& help, QWidget* parent);

  /// A button or an option, spoken as it is written.
  template <class Button>
  Button* AddButton(const char* name, const QString& caption) {
    auto* button = new Button(caption, this);
    button->setObjectName(name);
    button->setAccessibleName(Spoken(caption));
    return button;
  }

  /// Puts the controls in their places, in the order in which Tab reaches them: those of the answer first.
  void Arrange(QLayout* answer);

  QLabel* lblDisplay_ = nullptr;
  PictureBox* PicDisplay_ = nullptr;
  QPushButton* cmdOk_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
  QPushButton* cmdHelp_ = nullptr;
  HintLine* lblStatus_ = nullptr;
};

}  // namespace tarnwick
