#include "entry/YesNoDialog.h"

#include "entry/modHint.h"
#include "entry/modParameter.h"

namespace tarnwick {
namespace {

constexpr std::string_view TrueText = "True";
constexpr std::string_view FalseText = "False";

constexpr ControlHint Hints[] = {
    {"optYes", "Click to select Yes."},
    {"optNo", "Click to select No."},
    {"cmdOk", "Click to accept value."},
    {"cmdCancel", "Click to cancel."},
};

// The one question whose answers have a picture each.
constexpr std::string_view HoleTitle = "Hole Centered";
constexpr std::string_view CenteredKey = "SlotCent";
constexpr std::string_view NotCenteredKey = "SlotNotC";

}  // namespace

YesNoDialog::YesNoDialog(std::string_view prompt, std::string_view key, std::string_view title, bool answer)
    : title_(title),
      prompt_('\n' + std::string(prompt)),
      key_(key),
      helpTopic_(HelpTopicOfTitle(title)),
      answer_(answer) {}

void YesNoDialog::Choose(bool answer) {
  answer_ = answer;
  if (title_ == HoleTitle) key_ = answer ? CenteredKey : NotCenteredKey;
}

void YesNoDialog::PressOk() {
  result_ = answer_ ? TrueText : FalseText;
  open_ = false;
}

void YesNoDialog::PressCancel() {
  result_.clear();
  open_ = false;
}

std::string_view YesNoDialog::Hint(std::string_view control) { return HintOf(Hints, control); }

bool TruthOf(std::string_view result) { return result == TrueText; }

}  // namespace tarnwick
