#pragma once

#include "support/Designs.h"

namespace tarnwick::test {

/// A band with something to show in every section of the information panel and in every box of the editors.
inline BandSaw FullDesign(std::int16_t style = TripleRadius) {
  BandSaw saw = PlainDesign(style);
  saw.Pitch = 2;
  saw.HookAngle = 25;
  saw.TipClear = 0.02;
  saw.BothEdges = True;
  saw.SeatInfo = {.State = True, .Width = 0.1, .Height = 0.12};
  BandSaw::Gullet& gullet = saw.GulletInfo;
  gullet.Radius1 = 0.25;
  gullet.Radius2 = 0.5;
  gullet.Radius3 = 0.3;
  gullet.Width = 0.6;
  gullet.BackRadius = 0.2;
  gullet.Area = 0.512;
  gullet.AreaBelowTip = 0.3;
  gullet.FaceLength = 0.42;
  gullet.Sharpangle = 55;
  BandSaw::General& general = saw.GeneralInfo;
  general.Quantity = 12;
  general.TipType = 3;
  general.PlateThick = 0.065;
  general.Kerf = 0.125;
  general.SideClear = 0.03;
  general.ShaftSpeed = 500;
  general.DepthOfCut = 24;
  general.FeedRate = 200;
  general.HorsePower = 150;
  saw.DesignInfo.SawVelocity = 9000;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.MachineInfo.WheelDia = 5;
  saw.MachineInfo.CenterToCenter = 8;
  saw.MachineInfo.Width = 5;
  saw.CustomerInfo.DesignBy.Assign("A. Filer");
  saw.CustomerInfo.CustName.Assign("North Creek Lumber");
  saw.DesignInfo.Comment1.Assign("Hammer lightly");
  saw.ContainsInfo.Teeth = saw.ContainsInfo.General = True;
  saw.ContainsInfo.Machine = saw.ContainsInfo.Power = True;
  return saw;
}

}  // namespace tarnwick::test
