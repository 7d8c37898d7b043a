#pragma once

#include "model/modBandSaw.h"

namespace tarnwick::test {

/// A band at work: 5 ft wheels at 510 rpm, white oak of 10 inches at 100 ft/min.
inline BandSaw PowerDesign() {
  BandSaw saw;
  saw.Length = 40;
  saw.Width = 10;
  saw.Pitch = 2;
  saw.NumTeeth = 240;
  saw.MachineInfo.WheelDia = 5;
  saw.GulletInfo.Area = 1;
  saw.GeneralInfo.PlateThick = 0.065;
  saw.GeneralInfo.Kerf = 0.15;
  saw.GeneralInfo.ShaftSpeed = 510;
  saw.GeneralInfo.DepthOfCut = 10;
  saw.GeneralInfo.FeedRate = 100;
  saw.GeneralInfo.WoodType.Assign("Oak (White)");
  return saw;
}

}  // namespace tarnwick::test
