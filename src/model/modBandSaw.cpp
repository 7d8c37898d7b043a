#include "model/modBandSaw.h"

#include <algorithm>

namespace tarnwick {
namespace {

bool SameUsed(const SegmentMeasures& a, const SegmentMeasures& b) {
  return std::equal(a.begin(), a.begin() + UsedSegmentMeasures, b.begin());
}

bool SameContains(const BandSaw::Contains& a, const BandSaw::Contains& b) {
  return a.General == b.General && a.Teeth == b.Teeth && a.Power == b.Power && a.Machine == b.Machine;
}

bool SameTooth(const BandSaw& a, const BandSaw& b) {
  return a.ToothStyle == b.ToothStyle && a.Length == b.Length && a.Width == b.Width && a.Pitch == b.Pitch &&
         a.NumTeeth == b.NumTeeth && a.TipClear == b.TipClear && a.HookAngle == b.HookAngle &&
         a.ClearAngle == b.ClearAngle && a.SeatInfo == b.SeatInfo;
}

bool SameGullet(const BandSaw::Gullet& a, const BandSaw::Gullet& b) {
  return a.Radius == b.Radius && a.Depth == b.Depth && a.MinDepth == b.MinDepth && a.Area == b.Area &&
         a.BackAngle == b.BackAngle && a.BackRadius == b.BackRadius && a.Radius1 == b.Radius1 &&
         a.Radius2 == b.Radius2 && a.Radius3 == b.Radius3 && a.Width == b.Width && a.Bite == b.Bite &&
         a.Capacity == b.Capacity && a.AreaBelowTip == b.AreaBelowTip && a.BottomAngle == b.BottomAngle &&
         a.Sharpangle == b.Sharpangle;
}

bool SameGeneral(const BandSaw::General& a, const BandSaw::General& b) {
  return a.TipSize == b.TipSize && a.TipType == b.TipType && a.PlateThick == b.PlateThick &&
         a.Kerf == b.Kerf && a.SideClear == b.SideClear && a.TopBevel == b.TopBevel &&
         a.Tension == b.Tension && a.SpareText1 == b.SpareText1 && a.SpareText2 == b.SpareText2 &&
         a.SpareText3 == b.SpareText3 && a.Quantity == b.Quantity && a.ShaftSpeed == b.ShaftSpeed &&
         a.DepthOfCut == b.DepthOfCut && a.FeedRate == b.FeedRate && a.WoodType == b.WoodType &&
         a.HorsePower == b.HorsePower && a.SavedAs == b.SavedAs && a.VariablePitch == b.VariablePitch &&
         a.NumVariables == b.NumVariables && SameUsed(a.VarPitch, b.VarPitch) &&
         a.VariableDepth == b.VariableDepth && SameUsed(a.VarDepth, b.VarDepth);
}

bool SameDesign(const BandSaw::Design& a, const BandSaw::Design& b) {
  return a.SegmentLength == b.SegmentLength && a.JoinStyle == b.JoinStyle && a.SawVelocity == b.SawVelocity &&
         a.Comment1 == b.Comment1 && a.Comment2 == b.Comment2 && a.Comment3 == b.Comment3;
}

bool SameMachine(const BandSaw::Machine& a, const BandSaw::Machine& b) {
  return a.WheelDia == b.WheelDia && a.Width == b.Width && a.CenterToCenter == b.CenterToCenter &&
         a.InCenterOut == b.InCenterOut;
}

}  // namespace

bool SameSaw(const BandSaw& a, const BandSaw& b) {
  return SameContains(a.ContainsInfo, b.ContainsInfo) && SameTooth(a, b) &&
         SameGullet(a.GulletInfo, b.GulletInfo) && a.BothEdges == b.BothEdges &&
         SameGeneral(a.GeneralInfo, b.GeneralInfo) && SameDesign(a.DesignInfo, b.DesignInfo) &&
         SameMachine(a.MachineInfo, b.MachineInfo) && a.CustomerInfo.CustName == b.CustomerInfo.CustName &&
         a.CustomerInfo.DesignBy == b.CustomerInfo.DesignBy && a.ImpMetric == b.ImpMetric;
}

void ResetVariablePitch(BandSaw& saw) {
  saw.GeneralInfo.VariablePitch = False;
  saw.GeneralInfo.VariableDepth = False;
  saw.GeneralInfo.NumVariables = 0;
  saw.DesignInfo.SegmentLength = 0;
  std::fill_n(saw.GeneralInfo.VarPitch.begin(), UsedSegmentMeasures, 0.0);
  std::fill_n(saw.GeneralInfo.VarDepth.begin(), UsedSegmentMeasures, 0.0);
  saw.DesignInfo.VarPattern = 0;
}

const char* ToothStyleName(int style) {
  switch (style) {
    case SquareBack:
      return "Square Back";
    case RoundBack:
      return "Round Back";
    case DoubleRadius:
      return "Double Radius";
    case TripleRadius:
      return "Triple Radius";
    case FlatBottom:
      return "Flat Bottom";
    case NarrowStyle:
      return "Narrow Style";
    case OShape:
      return "O Shape";
    case FrostTooth:
      return "Frost Tooth";
    default:
      return nullptr;
  }
}

}  // namespace tarnwick
