#include "entry/ValueDialog.h"

#include <algorithm>

#include "entry/modCalculate.h"
#include "entry/modHint.h"
#include "entry/modPresetList.h"
#include "model/modDecim.h"
#include "power/modWood.h"

namespace tarnwick {
namespace {

constexpr ControlHint Hints[] = {
    {"cmdOk", "Click to accept value in text box."},
    {"cmdCancel", "Click to cancel."},
    {"ListValues", "Click to select value."},
    {"txtValue", "Enter value here. Press enter to calculate."},
};

}  // namespace

ValueDialog::ValueDialog(const ParameterRow& row, std::string_view key, const DisplayFormat& format,
                         Messages& messages)
    : title_(row.Title),
      prompt_('\n' + std::string(row.Prompt)),
      key_(key),
      helpTopic_(HelpTopicOfTitle(row.Title)),
      rule_(row.Store),
      decimalPlaces_(format.DecimalPlaces),
      list_(ShowListValues(row.List, format)),
      messages_(messages) {}

bool ValueDialog::ShowsPicture() const { return !key_.empty() || !ChoiceNames(rule_).empty(); }

/// "Softwoods:" and "Hardwoods:" stand in the list, and are no wood.
bool ValueDialog::IsHeading(std::size_t index) const {
  const auto woods = Woods();
  return rule_ == StoreRule::Text && std::any_of(woods.begin(), woods.end(), [&](const Wood& wood) {
           return wood.IsHeading() && wood.Name == list_[index];
         });
}

/// Puts the number that the text stands for in its place; a text that is no equation goes.
bool ValueDialog::Evaluate() {
  double number = 0;
  const bool isEquation = EvaluateEquation(value_, number, decimalPlaces_, messages_);
  value_ = isEquation ? PlainText(number) : std::string();
  return isEquation;
}

void ValueDialog::SelectEntry(std::size_t index) {
  if (index >= list_.size()) return;
  const std::string& entry = list_[index];
  if (!IsChoice(rule_)) {
    value_ = entry;
    (void)Evaluate();
    return;
  }
  if (IsHeading(index)) return;
  value_ = entry;
  if (const ChoiceName* choice = FindChoice(rule_, entry)) key_ = choice->Key;
}

void ValueDialog::PressEnter() {
  if (value_.empty()) return;
  if (IsChoice(rule_) || Evaluate()) PressOk();  // a name is no equation
}

void ValueDialog::PressOk() {
  if (value_.empty()) return;
  if (IsChoice(rule_) || Evaluate()) Accept();
}

void ValueDialog::Accept() {
  result_ = value_;
  open_ = false;
}

void ValueDialog::PressCancel() {
  result_.clear();
  open_ = false;
}

std::string_view ValueDialog::Hint(std::string_view control) { return HintOf(Hints, control); }

ValueDialog PrepareDialog(Parameter parameter, int toothStyle, const DisplayFormat& format,
                          Messages& messages) {
  return {RowOf(parameter), PictureKey(parameter, toothStyle), format, messages};
}

}  // namespace tarnwick
