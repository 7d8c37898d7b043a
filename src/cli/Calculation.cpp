#include "cli/Calculation.h"

#include "geometry/modTooth.h"
#include "platform/CollectedMessages.h"

namespace tarnwick::cli {
namespace {

/// Why a design is beyond what this version calculates.
Problem NotYetCalculated(const BandSaw& saw, Scope scope) {
  if (saw.ToothStyle >= DoubleRadius && saw.ToothStyle <= FrostTooth) {
    return std::string(ToothStyleName(saw.ToothStyle)) + " teeth cannot be calculated yet";
  }
  if (scope == Scope::Segment || saw.GeneralInfo.VariablePitch != False) {
    return "a variable pitch band cannot be calculated yet";
  }
  return {};
}

}  // namespace

EntityList Calculate(Design& design, Scope scope, const CalculationSettings& settings) {
  if (!design.Failed) design.Failed = NotYetCalculated(design.Saw, scope);
  if (design.Failed) return {};
  CollectedMessages messages;
  EntityList drawing = CalculateSaw(design.Saw, settings, messages);
  for (const Box& box : messages.Shown) design.Notes.push_back(box.Text);
  return drawing;
}

}  // namespace tarnwick::cli
