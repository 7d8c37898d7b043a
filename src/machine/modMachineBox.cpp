#include "machine/modMachineBox.h"

#include "shell/modString.h"

namespace tarnwick {
namespace {

constexpr MachineBox Boxes[] = {
    {Parameter::WheelDiameter, "txtWheelDia", "Wheel Diameter:"},
    {Parameter::RimWidth, "txtRimWidth", "Rim Width:"},
    {Parameter::CenterToCenter, "txtCenters", "Center to Center:"},
    {Parameter::PlateThickness, "txtPlateThick", "Plate Thickness:"},
};

constexpr int FirstRowHint = 81;  // of txtLength(0); the other rows follow

/// A text of the list of hints.
struct NumberedHint {
  std::string_view Measure;  // its control without the prefix
  int Number;
};
constexpr NumberedHint MeasureHints[] = {{"Centers", 78}, {"PlateThick", 79}, {"RimWidth", 80}};

bool IsRowOf(std::string_view array, std::string_view control) {
  return control.size() == array.size() + 3 && control.substr(0, array.size()) == array &&
         control[array.size()] == '(' && control.back() == ')';
}

}  // namespace

std::span<const MachineBox> MachineBoxes() { return Boxes; }

std::string MachineBoxText(Parameter measure, const BandSaw& saw, const DisplayFormat& format) {
  const ParameterRow& row = RowOf(measure);
  BandSaw copy = saw;  // the table leads to fields that can be written
  const double value = std::get<double& (*)(BandSaw&)>(row.Field)(copy);
  return value > 0 ? FormatNumber(value, row.Kind, format) : std::string();
}

std::string_view BandCalcHint(std::string_view control) {
  if (control == "cmdOk") return NumberedText(76);
  if (control == "cmdCancel") return NumberedText(77);
  if (IsRowOf("chkLength", control)) return "Check to select bandsaw length.";
  if (IsRowOf("txtLength", control)) return NumberedText(FirstRowHint + (control[control.size() - 2] - '0'));
  if (control.size() < 3) return {};
  const std::string_view measure = control.substr(3);  // box and label alike
  if (measure == "WheelDia") return "Click to select wheel diameter!";
  for (const NumberedHint& hint : MeasureHints)
    if (hint.Measure == measure) return NumberedText(hint.Number);
  return {};
}

}  // namespace tarnwick
