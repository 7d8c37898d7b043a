#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "model/modBandSaw.h"
#include "model/modDecim.h"

namespace tarnwick::fuzz {

/// Teeth of the longest band that is worked out here.
inline constexpr int MostTeeth = 24;

/// Takes teeth off a long band. Thousands of them take a second and show what two dozen show; the program
/// itself is held to no more than its count of teeth can say.
inline void KeepBandShort(BandSaw& saw) {
  const double teeth = saw.Pitch > 0 ? saw.Length * InchesPerFoot / saw.Pitch : 0;
  if (teeth > MostTeeth && teeth <= std::numeric_limits<std::int16_t>::max() + 1.0) {
    saw.Length = std::fmod(teeth, MostTeeth) * saw.Pitch / InchesPerFoot;
  }
  // Also where the pitch does not tell: a count that no number holds leaves this one standing.
  if (saw.NumTeeth > MostTeeth) saw.NumTeeth = static_cast<std::int16_t>(saw.NumTeeth % MostTeeth);
}

}  // namespace tarnwick::fuzz
