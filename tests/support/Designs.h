#pragma once

#include "model/modBandSaw.h"

namespace tarnwick::test {

/// A band that somebody could order: 120 teeth of 2 inches, 5 inches wide, no seat, an upright face.
inline BandSaw PlainDesign(std::int16_t style = SquareBack) {
  BandSaw saw;
  saw.ToothStyle = style;
  saw.Length = 20;
  saw.NumTeeth = 120;
  saw.Width = 5;
  saw.ClearAngle = 10;
  saw.GulletInfo.BackAngle = 20;
  saw.GulletInfo.Radius = 0.3;
  saw.GulletInfo.Depth = 0.7;
  return saw;
}

}  // namespace tarnwick::test
