#pragma once

#include "geometry/modTrig.h"

namespace tarnwick {

/// The pitch, in inches, of `teeth` teeth on a band of `length` feet, rounded; 0 when there are no teeth to
/// share the length.
[[nodiscard]] inline double PitchFromLength(const PlaneKit& kit, double length, int teeth) {
  return kit.RoundTo(Quotient(length * InchesPerFoot, teeth)).OrZero();
}

}  // namespace tarnwick
