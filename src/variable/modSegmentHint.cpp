#include "variable/modSegmentHint.h"

#include <algorithm>
#include <iterator>

#include "entry/modParameter.h"
#include "shell/modString.h"

namespace tarnwick {
namespace {

struct HintRow {
  std::string_view Control;
  int Number;
  std::string_view Text = {};  // of a hint without a number
};

constexpr int Unnumbered = 0;
constexpr int UseToothShape = 100;

constexpr HintRow Hints[] = {
    {"cboPattern", 47},
    {"txtSegmentSize", 48},
    {"chkVarDepth", 49},
    {"txtToothDepth(0)", 50},
    {"txtToothDepth(1)", 51},
    {"txtToothDepth(2)", 52},
    {"txtToothDepth(3)", 53},
    {"txtToothDepth(4)", 54},
    {"txtToothDepth(5)", Unnumbered, "Click to activate the sixth gullet depth input box."},
    {"txtToothDepth(6)", Unnumbered, "Click to activate the seventh gullet depth input box."},
    {"txtToothSpace(0)", 55},
    {"txtToothSpace(1)", 56},
    {"txtToothSpace(2)", 57},
    {"txtToothSpace(3)", 58},
    {"txtToothSpace(4)", 59},
    {"txtToothSpace(5)", Unnumbered, "Click to activate the sixth tooth pitch input box."},
    {"txtToothSpace(6)", Unnumbered, "Click to activate the seventh tooth pitch input box."},
    {"txtAverageDepth", 60},
    {"txtAverageSpace", 61},
    {"optPattern(0)", 62},
    {"optPattern(1)", 63},
    {"optPattern(2)", 64},
    {"optPattern(3)", 65},
    {"cmdVariableOK", 66},
    {"cmdVariableCancel", 67},
    {"cmdVariablePrint", 68},
    {"cmdVariableReset", 69},
};

/// Figures of the tooth that all are made from.
constexpr std::string_view ToothFigures[] = {"txtVariableNumTeeth", "txtAverageSpace", "txtAverageDepth"};

constexpr std::string_view Label = "lblToothSpace(", Pitch = "txtToothSpace(", Depth = "txtToothDepth(";

bool Begins(std::string_view control, std::string_view with) {
  return control.substr(0, with.size()) == with;
}

/// A label has the hint of the pitch beside it.
bool Means(std::string_view control, std::string_view hinted) {
  if (!Begins(control, Label)) return control == hinted;
  return Begins(hinted, Pitch) && control.substr(Label.size()) == hinted.substr(Pitch.size());
}

}  // namespace

std::string_view SegmentHint(std::string_view control) {
  const auto found = std::find_if(std::begin(Hints), std::end(Hints),
                                  [control](const HintRow& row) { return Means(control, row.Control); });
  if (found == std::end(Hints)) return {};
  return found->Number == Unnumbered ? found->Text : NumberedText(found->Number);
}

std::string_view SegmentMustUse(std::string_view control) {
  const bool isTooths =
      std::find(std::begin(ToothFigures), std::end(ToothFigures), control) != std::end(ToothFigures);
  return isTooths ? NumberedText(UseToothShape) : std::string_view();
}

int SegmentTopic(std::string_view control) {
  if (Begins(control, Pitch) || Begins(control, Label)) return RowOf(Parameter::ToothSpace).HelpTopic;
  return Begins(control, Depth) ? RowOf(Parameter::GulletDepth).HelpTopic : 0;
}

}  // namespace tarnwick
