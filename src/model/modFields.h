#pragma once

#include "model/modBandSaw.h"

namespace tarnwick {

/// The field table: calls `visit(name, field)` for every field of the record in the order of its image in a
/// file.
///
/// `name` is the member's path, "GulletInfo.Radius". The one place that knows the order: packing, unpacking,
/// JSON and the tests all go through it. `Saw` is BandSaw or const BandSaw.
template <class Saw, class Visit>
void ForEachField(Saw& saw, Visit&& visit) {
  visit("ContainsInfo.General", saw.ContainsInfo.General);
  visit("ContainsInfo.Teeth", saw.ContainsInfo.Teeth);
  visit("ContainsInfo.Power", saw.ContainsInfo.Power);
  visit("ContainsInfo.Machine", saw.ContainsInfo.Machine);
  visit("ContainsInfo.Spare", saw.ContainsInfo.Spare);
  visit("ToothStyle", saw.ToothStyle);
  visit("Length", saw.Length);
  visit("Width", saw.Width);
  visit("Pitch", saw.Pitch);
  visit("NumTeeth", saw.NumTeeth);
  visit("TipClear", saw.TipClear);
  visit("HookAngle", saw.HookAngle);
  visit("ClearAngle", saw.ClearAngle);
  visit("SeatInfo.State", saw.SeatInfo.State);
  visit("SeatInfo.Width", saw.SeatInfo.Width);
  visit("SeatInfo.Height", saw.SeatInfo.Height);
  visit("GulletInfo.Radius", saw.GulletInfo.Radius);
  visit("GulletInfo.Depth", saw.GulletInfo.Depth);
  visit("GulletInfo.MinDepth", saw.GulletInfo.MinDepth);
  visit("GulletInfo.Area", saw.GulletInfo.Area);
  visit("GulletInfo.BackAngle", saw.GulletInfo.BackAngle);
  visit("GulletInfo.BackRadius", saw.GulletInfo.BackRadius);
  visit("GulletInfo.Radius1", saw.GulletInfo.Radius1);
  visit("GulletInfo.Radius2", saw.GulletInfo.Radius2);
  visit("GulletInfo.Radius3", saw.GulletInfo.Radius3);
  visit("GulletInfo.Width", saw.GulletInfo.Width);
  visit("GulletInfo.Bite", saw.GulletInfo.Bite);
  visit("GulletInfo.Capacity", saw.GulletInfo.Capacity);
  visit("GulletInfo.AreaBelowTip", saw.GulletInfo.AreaBelowTip);
  visit("GulletInfo.BottomAngle", saw.GulletInfo.BottomAngle);
  visit("GulletInfo.Sharpangle", saw.GulletInfo.Sharpangle);
  visit("GulletInfo.SpareByte", saw.GulletInfo.SpareByte);
  visit("GulletInfo.FaceLength", saw.GulletInfo.FaceLength);
  visit("GulletInfo.FrostWidth", saw.GulletInfo.FrostWidth);
  visit("GulletInfo.FrostHeight", saw.GulletInfo.FrostHeight);
  visit("GulletInfo.FrostRadius", saw.GulletInfo.FrostRadius);
  visit("GulletInfo.FrostAngle", saw.GulletInfo.FrostAngle);
  visit("GulletInfo.Spare", saw.GulletInfo.Spare);
  visit("BothEdges", saw.BothEdges);
  visit("GeneralInfo.TipSize", saw.GeneralInfo.TipSize);
  visit("GeneralInfo.TipType", saw.GeneralInfo.TipType);
  visit("GeneralInfo.PlateThick", saw.GeneralInfo.PlateThick);
  visit("GeneralInfo.Kerf", saw.GeneralInfo.Kerf);
  visit("GeneralInfo.SideClear", saw.GeneralInfo.SideClear);
  visit("GeneralInfo.TopBevel", saw.GeneralInfo.TopBevel);
  visit("GeneralInfo.Tension", saw.GeneralInfo.Tension);
  visit("GeneralInfo.SpareText1", saw.GeneralInfo.SpareText1);
  visit("GeneralInfo.SpareText2", saw.GeneralInfo.SpareText2);
  visit("GeneralInfo.SpareText3", saw.GeneralInfo.SpareText3);
  visit("GeneralInfo.Quantity", saw.GeneralInfo.Quantity);
  visit("GeneralInfo.ShaftSpeed", saw.GeneralInfo.ShaftSpeed);
  visit("GeneralInfo.DepthOfCut", saw.GeneralInfo.DepthOfCut);
  visit("GeneralInfo.FeedRate", saw.GeneralInfo.FeedRate);
  visit("GeneralInfo.WoodType", saw.GeneralInfo.WoodType);
  visit("GeneralInfo.HorsePower", saw.GeneralInfo.HorsePower);
  visit("GeneralInfo.SavedAs", saw.GeneralInfo.SavedAs);
  visit("GeneralInfo.VariablePitch", saw.GeneralInfo.VariablePitch);
  visit("GeneralInfo.NumVariables", saw.GeneralInfo.NumVariables);
  visit("GeneralInfo.VarPitch", saw.GeneralInfo.VarPitch);
  visit("GeneralInfo.VariableDepth", saw.GeneralInfo.VariableDepth);
  visit("GeneralInfo.VarDepth", saw.GeneralInfo.VarDepth);
  visit("DesignInfo.SegmentLength", saw.DesignInfo.SegmentLength);
  visit("DesignInfo.VarPattern", saw.DesignInfo.VarPattern);
  visit("DesignInfo.VarArea", saw.DesignInfo.VarArea);
  visit("DesignInfo.SawVelocity", saw.DesignInfo.SawVelocity);
  visit("DesignInfo.MaxFeedRate", saw.DesignInfo.MaxFeedRate);
  visit("DesignInfo.JoinStyle", saw.DesignInfo.JoinStyle);
  visit("DesignInfo.Comment1", saw.DesignInfo.Comment1);
  visit("DesignInfo.Comment2", saw.DesignInfo.Comment2);
  visit("DesignInfo.Comment3", saw.DesignInfo.Comment3);
  visit("DesignInfo.SpareText4", saw.DesignInfo.SpareText4);
  visit("DesignInfo.SpareText5", saw.DesignInfo.SpareText5);
  visit("MachineInfo.WheelDia", saw.MachineInfo.WheelDia);
  visit("MachineInfo.Width", saw.MachineInfo.Width);
  visit("MachineInfo.CenterToCenter", saw.MachineInfo.CenterToCenter);
  visit("MachineInfo.InCenterOut", saw.MachineInfo.InCenterOut);
  visit("MachineInfo.Spare", saw.MachineInfo.Spare);
  visit("CustomerInfo.CustName", saw.CustomerInfo.CustName);
  visit("CustomerInfo.DesignBy", saw.CustomerInfo.DesignBy);
  visit("CustomerInfo.Spare", saw.CustomerInfo.Spare);
  visit("ImpMetric", saw.ImpMetric);
}

}  // namespace tarnwick
