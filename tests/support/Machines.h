#pragma once

#include "model/modBandSaw.h"

namespace tarnwick::test {

/// A design of which nothing but the mill is known.
inline BandSaw Machine(double wheelDia, double centers, double plate = 0) {
  BandSaw saw;
  saw.MachineInfo.WheelDia = wheelDia;
  saw.MachineInfo.CenterToCenter = centers;
  saw.GeneralInfo.PlateThick = plate;
  return saw;
}

}  // namespace tarnwick::test
