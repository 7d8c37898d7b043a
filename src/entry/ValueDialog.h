#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "entry/modParameter.h"
#include "platform/Messages.h"

namespace tarnwick {

/// One question for a value: what the dialog shows, what it does on each key and click, and its answer.
/// frmCDialog is its window.
///
/// The box holds exactly what was typed, or the plain number that a list entry stands for. Nothing is judged
/// here but whether the text is an equation: a negative length is the calculation's business.
class ValueDialog {
 public:
  /// @param key  of the picture; see PictureKey
  ValueDialog(const ParameterRow& row, std::string_view key, const DisplayFormat& format, Messages& messages);

  [[nodiscard]] const std::string& Title() const { return title_; }
  [[nodiscard]] const std::string& Prompt() const { return prompt_; }  // for lblDisplay
  [[nodiscard]] int HelpTopic() const { return helpTopic_; }
  [[nodiscard]] const std::vector<std::string>& List() const { return list_; }
  [[nodiscard]] const std::string& PictureKey() const { return key_; }  // empty: no picture
  /// Whether there is a picture, or a choice that brings one; else its place goes to the list.
  [[nodiscard]] bool ShowsPicture() const;

  /// Whether an entry of the list is a heading, which is no answer.
  [[nodiscard]] bool IsHeading(std::size_t index) const;

  /// What stands in txtValue.
  [[nodiscard]] const std::string& Value() const { return value_; }
  void Type(std::string_view text) { value_ = text; }

  /// A click on an entry of ListValues, or a step to it by keys.
  void SelectEntry(std::size_t index);

  void PressEnter();   // in txtValue
  void PressOk();      // cmdOk, or Enter in ListValues
  void PressCancel();  // cmdCancel, Escape, the window's own button

  [[nodiscard]] bool IsOpen() const { return open_; }

  /// The accepted text: decimal text of a number, or a name. Empty when nothing was accepted.
  [[nodiscard]] const std::string& Result() const { return result_; }

  /// What lblStatus says while the mouse is over this control; empty for a control without a hint.
  [[nodiscard]] static std::string_view Hint(std::string_view control);

 private:
  bool Evaluate();
  void Accept();

  std::string title_, prompt_, key_;
  int helpTopic_;
  StoreRule rule_;
  int decimalPlaces_;
  std::vector<std::string> list_;
  Messages& messages_;

  std::string value_, result_;
  bool open_ = true;
};

/// The dialog of a parameter. The tooth style picks the picture where the gullets differ.
[[nodiscard]] ValueDialog PrepareDialog(Parameter parameter, int toothStyle, const DisplayFormat& format,
                                        Messages& messages);

}  // namespace tarnwick
