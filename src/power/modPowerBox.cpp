#include "power/modPowerBox.h"

#include "model/modDecim.h"
#include "store/modCodePage.h"

namespace tarnwick {
namespace {

using enum PowerBox;

constexpr std::string_view GulletFrame = "Gullet Capacity:";

// "Feed Rate (FPM): " ends with a blank on purpose. The wood's caption asks nothing, the three others do.
constexpr PowerBoxRow EditorRows[] = {
    {HPSawOD, "txtHPSawOD", "Wheel Diameter:", "", {}},
    {ToothPitch, "txtToothPitch", "Tooth Pitch:", "", {}},
    {HPPlateThick, "txtHPPlateThick", "Plate Thickness:", "", {}},
    {HPToothWidth, "txtHPToothWidth", "Kerf (Tooth Width):", "", {}},
    {SideClearance, "txtSideClearance", "Side Clearance:", "", {}},
    {RPMs, "txtRPMs", "Shaft Speed (RPM's):", "", Parameter::WheelRpm, true},
    {SawVelocity, "txtSawVelocity", "Tooth Speed (FPM):", "", {}},
    {MaxDepth, "txtMaxDepth", "Depth of Cut (MAX):", "", Parameter::DepthOfCut, true},
    {FeedRate, "txtFeedRate", "Feed Rate (FPM): ", "", Parameter::FeedRate, true},
    {SpecificEnergy, "txtSpecificEnergy", "Type of Wood:", "", Parameter::TypeOfWood},
    {Bite, "txtBite", "Bite (Feed Per Tooth):", "", {}},
    {HorsePower, "txtHorsePower", "Horse Power:", "", {}},
    {MaxFeedRate, "txtMaxFeedRate", "Maximum Feed Rate:", "", {}},
    {HPGulletArea, "txtHPGulletArea", "Total Gullet Area:", "", {}},
    {AreaBelowTip, "txtAreaBelowTip", "Actual:", GulletFrame, {}},
    {Capacity, "txtCapacity", "Required:", GulletFrame, {}},
};

constexpr PowerBoxRow CalculatorRows[] = {
    {HPSawOD, "txtHPSawOD", "Wheel Diameter:", "", Parameter::WheelDiameter},
    {Centers, "txtCenters", "Wheels Center to Center:", "", Parameter::CenterToCenter},
    {Length, "txtLength", "Length:", "", Parameter::BandLength},
    {ToothPitch, "txtToothPitch", "Tooth Pitch:", "", Parameter::Pitch},
    {NumTeeth, "txtNumTeeth", "Number of Teeth:", "", Parameter::NumTeeth},
    {HPPlateThick, "txtHPPlateThick", "Plate Thickness:", "", Parameter::PlateThickness},
    {HPToothWidth, "txtHPToothWidth", "Kerf (Tooth Width):", "", Parameter::TipKerf},
    {SideClearance, "txtSideClearance", "Side Clearance:", "", {}},
    {RPMs, "txtRPMs", "Shaft Speed (RPM's):", "", Parameter::WheelRpm},
    {SawVelocity, "txtSawVelocity", "Tooth Speed (FPM):", "", {}},
    {MaxDepth, "txtMaxDepth", "Depth of Cut (MAX):", "", Parameter::DepthOfCut},
    {FeedRate, "txtFeedRate", "Feed Rate (FPM): ", "", Parameter::FeedRate},
    {SpecificEnergy, "txtSpecificEnergy", "Type of Wood:", "", Parameter::TypeOfWood},
    {Bite, "txtBite", "Bite (Feed Per Tooth):", "", {}},
    {HPGulletArea, "txtHPGulletArea", "Total Gullet Area:", "", {}},
    {Capacity, "txtCapacity", "Gullet Capacity:", "", {}},
    {HorsePower, "txtHorsePower", "Horse Power:", "", {}},
};

struct Figure {
  double Value;
  UnitKind Kind;
};

Figure FigureOf(PowerBox box, const BandSaw& saw, double feedIndex) {
  switch (box) {
    case HPSawOD:
      return {saw.MachineInfo.WheelDia, Feet};
    case Centers:
      return {saw.MachineInfo.CenterToCenter, Feet};
    case Length:
      return {saw.Length, Feet};
    case ToothPitch:
      return {saw.Pitch, Inches};
    case NumTeeth:
      return {static_cast<double>(saw.NumTeeth), PlainNumber};
    case HPPlateThick:
      return {saw.GeneralInfo.PlateThick, FineInches};
    case HPToothWidth:
      return {saw.GeneralInfo.Kerf, FineInches};
    case SideClearance:
      return {saw.GeneralInfo.SideClear, FineInches};
    case RPMs:
      return {static_cast<double>(saw.GeneralInfo.ShaftSpeed), RevolutionsPerMinute};
    case SawVelocity:
      return {static_cast<double>(saw.DesignInfo.SawVelocity), FeetPerMinute};
    case MaxDepth:
      return {saw.GeneralInfo.DepthOfCut, Inches};
    case FeedRate:
      return {saw.GeneralInfo.FeedRate, FeetPerMinute};
    case Bite:
      return {saw.GulletInfo.Bite, FineInches};
    case HPGulletArea:
      return {saw.GulletInfo.Area, SquareInches};
    case AreaBelowTip:
      return {feedIndex * saw.GulletInfo.Area, SquareInches};
    case Capacity:
      return {saw.GulletInfo.Capacity, SquareInches};
    case HorsePower:
      return {saw.GeneralInfo.HorsePower, PlainNumber};
    case MaxFeedRate:
      return {saw.DesignInfo.MaxFeedRate, FeetPerMinute};
    case SpecificEnergy:
      break;
  }
  return {};
}

std::string Wood(const BandSaw& saw) { return Utf8OfCodePage(saw.GeneralInfo.WoodType.Trimmed()); }

}  // namespace

std::span<const PowerBoxRow> PowerEditorBoxes() { return EditorRows; }
std::span<const PowerBoxRow> PowerCalculatorBoxes() { return CalculatorRows; }

bool HasPowerFigure(PowerBox box, const BandSaw& saw, double feedIndex) {
  return box == SpecificEnergy ? !Wood(saw).empty() : FigureOf(box, saw, feedIndex).Value != 0;
}

std::string PowerFigureText(PowerBox box, const BandSaw& saw, double feedIndex, const DisplayFormat& format) {
  if (box == SpecificEnergy) return Wood(saw);
  const Figure figure = FigureOf(box, saw, feedIndex);
  if (box == NumTeeth) return DecimalText(figure.Value);
  return FormatNumber(figure.Value, figure.Kind, format);
}

std::string PowerBoxText(PowerBox box, const BandSaw& saw, double feedIndex, const DisplayFormat& format) {
  return HasPowerFigure(box, saw, feedIndex) ? PowerFigureText(box, saw, feedIndex, format) : std::string();
}

}  // namespace tarnwick
