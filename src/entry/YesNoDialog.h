#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// One question that is answered by yes or no; frmBDialog is its window.
class YesNoDialog {
 public:
  /// @param answer  the option that is set at the beginning
  YesNoDialog(std::string_view prompt, std::string_view key, std::string_view title, bool answer);

  [[nodiscard]] const std::string& Title() const { return title_; }
  [[nodiscard]] const std::string& Prompt() const { return prompt_; }  // for lblDisplay
  [[nodiscard]] int HelpTopic() const { return helpTopic_; }
  [[nodiscard]] const std::string& PictureKey() const { return key_; }

  [[nodiscard]] bool Answer() const { return answer_; }  // the state of optYes
  void Choose(bool answer);

  void PressOk();
  void PressCancel();

  [[nodiscard]] bool IsOpen() const { return open_; }

  /// The accepted truth value as text; empty when nothing was accepted.
  [[nodiscard]] const std::string& Result() const { return result_; }

  /// What lblStatus says while the mouse is over this control; empty for a control without a hint.
  [[nodiscard]] static std::string_view Hint(std::string_view control);

 private:
  std::string title_, prompt_, key_;
  int helpTopic_;
  bool answer_;
  std::string result_;
  bool open_ = true;
};

/// The truth value in a YesNoDialog's result.
[[nodiscard]] bool TruthOf(std::string_view result);

}  // namespace tarnwick
