#pragma once

#include "model/modBandSaw.h"
#include "support/RandomDesigns.h"

namespace tarnwick::test {

/// A band that nobody could order: one in five of its measures is zero, below it, tiny or huge, one in five
/// of its angles of any size.
inline BandSaw DegenerateDesign(Dice& dice, std::int16_t style) {
  static constexpr double lengths[] = {0,   0,   -1,   -0.25, 1e-12, 1e-6,  0.00004, 0.5,   3,
                                       100, 1e6, 1e15, 1e100, 1e160, 1e300, -1e6,    -1e300};
  static constexpr double angles[] = {0,   90,  -90, 45,  -45,  89.999, 0.00001, 180, 270,  359.5,
                                      360, 361, 540, 720, -270, -360,   -400,    1e6, 1e300};
  static constexpr std::int16_t counts[] = {0, 0, 1, 2, -1, -300, 500};
  static constexpr std::int16_t joins[] = {0, 1, 2, -1};
  BandSaw saw = PlausibleDesign(dice, style);
  BandSaw::Gullet& gullet = saw.GulletInfo;
  for (double* measure :
       {&saw.Length, &saw.Width, &saw.Pitch, &saw.TipClear, &saw.SeatInfo.Width, &saw.SeatInfo.Height,
        &gullet.Radius, &gullet.Radius1, &gullet.Radius2, &gullet.Radius3, &gullet.Width, &gullet.Depth,
        &gullet.BackRadius, &gullet.FrostWidth, &gullet.FrostHeight, &gullet.FrostRadius,
        &saw.GeneralInfo.PlateThick})
    if (dice.Chance(0.2)) *measure = dice.Choice(lengths);
  for (double* angle :
       {&saw.HookAngle, &saw.ClearAngle, &gullet.BackAngle, &gullet.BottomAngle, &gullet.FrostAngle})
    if (dice.Chance(0.2)) *angle = dice.Choice(angles);
  if (dice.Chance(0.2)) saw.NumTeeth = dice.Choice(counts);
  if (dice.Chance(0.2)) saw.DesignInfo.JoinStyle = dice.Choice(joins);
  if (dice.Chance(0.2)) saw.BothEdges = True;
  return saw;
}

}  // namespace tarnwick::test
