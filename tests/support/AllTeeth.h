#pragma once

#include "geometry/modBandTeeth.h"

namespace tarnwick::test {

/// Every tooth of a band, made.
inline Teeth AllOf(const BandTeeth& band) {
  Teeth teeth;
  teeth.reserve(band.Size());
  for (std::size_t i = 0; i < band.Size(); ++i) teeth.push_back(band.Tooth(i));
  return teeth;
}

}  // namespace tarnwick::test
