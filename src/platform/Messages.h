#pragma once

#include <string>

namespace tarnwick {

/// Answers of a message box, and the buttons that it offers.
enum class Button { Ok, Yes, No, Cancel };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Information, Question, Warning, Error };

/// A message to the user. Texts are plain: every blank and line break is shown as it stands.
struct Box {
  std::string Title = "Tarnwick";
  std::string Text;
  Buttons Offer = Buttons::Ok;
  Icon Shown = Icon::None;
  Button Default = Button::Ok;
};

/// Port: where the system speaks to the user. It shows and answers, it never decides.
class Messages {
 public:
  virtual ~Messages() = default;

  /// Shows `box` and waits for the button pressed. Closing the box counts as Cancel where that is offered,
  /// else as the default.
  virtual Button Show(const Box& box) = 0;
};

}  // namespace tarnwick
