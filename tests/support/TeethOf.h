#pragma once

#include "model/modBandSaw.h"

namespace tarnwick::test {

/// A band with every measure of its teeth set.
inline BandSaw TeethOf(int style) {
  BandSaw saw;
  saw.ContainsInfo.Teeth = True;
  saw.ToothStyle = static_cast<std::int16_t>(style);
  saw.Length = 20;
  saw.Width = 5;
  saw.NumTeeth = 120;
  saw.Pitch = 2;
  saw.HookAngle = 25;
  saw.ClearAngle = 12;
  saw.TipClear = 0.03;
  saw.SeatInfo = {True, 0.06, 0.175};
  BandSaw::Gullet& gullet = saw.GulletInfo;
  gullet.Sharpangle = 53;
  gullet.Radius = 0.5;
  gullet.Radius1 = 0.25;
  gullet.Radius2 = 0.75;
  gullet.Radius3 = 0.375;
  gullet.Width = 0.8;
  gullet.BottomAngle = 7;
  gullet.BackAngle = 35;
  gullet.BackRadius = 0.125;
  gullet.Depth = 0.7;
  gullet.Area = 0.9;
  gullet.FaceLength = 0.4;
  gullet.FrostWidth = 0.1;
  gullet.FrostHeight = 0.2;
  gullet.FrostRadius = 0.05;
  gullet.FrostAngle = 20;
  return saw;
}

}  // namespace tarnwick::test
