#include "cli/Calculation.h"

#include "geometry/modTooth.h"
#include "platform/CollectedMessages.h"

namespace tarnwick::cli {

EntityList Calculate(Design& design, Scope scope, const CalculationSettings& settings) {
  if (design.Failed) return {};
  CollectedMessages messages;
  EntityList drawing = scope == Scope::Segment ? CalculateSegment(design.Saw, settings, messages)
                                               : CalculateSaw(design.Saw, settings, messages);
  for (const Box& box : messages.Shown) design.Notes.push_back(box.Text);
  return drawing;
}

}  // namespace tarnwick::cli
