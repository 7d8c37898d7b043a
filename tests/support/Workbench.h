#pragma once

#include "geometry/modToothWork.h"
#include "model/modBandSaw.h"
#include "support/CollectedMessages.h"

namespace tarnwick::test {

/// One tooth under calculation, with all that a step of it works on, at five places.
struct Workbench {
  BandSaw Saw;
  ToothProfile Tooth;
  PlaneKit Kit{5};
  CollectedMessages Say;
  ToothWork Work{Saw, Tooth, Kit, Say};

  Workbench() = default;
  explicit Workbench(const BandSaw& saw) : Saw(saw) {}
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;
};

}  // namespace tarnwick::test
