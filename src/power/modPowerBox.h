#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "entry/modFormat.h"
#include "entry/modParameter.h"
#include "model/modBandSaw.h"

namespace tarnwick {

/// The boxes of the power windows, named for their controls: HPSawOD is "txtHPSawOD".
enum class PowerBox {
  HPSawOD,         // MachineInfo.WheelDia
  Centers,         // MachineInfo.CenterToCenter
  Length,          //
  ToothPitch,      // Pitch
  NumTeeth,        //
  HPPlateThick,    // GeneralInfo.PlateThick
  HPToothWidth,    // GeneralInfo.Kerf
  SideClearance,   // GeneralInfo.SideClear
  RPMs,            // GeneralInfo.ShaftSpeed
  SawVelocity,     // DesignInfo.SawVelocity
  MaxDepth,        // GeneralInfo.DepthOfCut
  FeedRate,        // GeneralInfo.FeedRate
  SpecificEnergy,  // GeneralInfo.WoodType
  Bite,            // GulletInfo.Bite
  HPGulletArea,    // GulletInfo.Area
  AreaBelowTip,    // actual gullet capacity: feed index * GulletInfo.Area, unrounded, kept nowhere
  Capacity,        // GulletInfo.Capacity, the required one
  HorsePower,      // GeneralInfo.HorsePower
  MaxFeedRate,     // DesignInfo.MaxFeedRate
};
inline constexpr std::size_t PowerBoxCount = 19;

/// A box as it stands in one of the windows. The caption's label is named as the box, with "lbl" for "txt".
struct PowerBoxRow {
  PowerBox Box;
  std::string_view Control;
  std::string_view Caption;
  std::string_view Frame;          // caption of the frame that it stands in; empty: the window's own
  std::optional<Parameter> Asked;  // what a click asks for; nullopt: a result, or another editor's
  bool LabelAsks = false;          // a click on the caption does what one on the box does
};

/// The boxes of frmPower, in the order in which they stand.
[[nodiscard]] std::span<const PowerBoxRow> PowerEditorBoxes();

/// The boxes that each side of frmPowerCalc has.
[[nodiscard]] std::span<const PowerBoxRow> PowerCalculatorBoxes();

/// Whether there is anything to show: a number that is not 0, a wood that has a name.
[[nodiscard]] bool HasPowerFigure(PowerBox box, const BandSaw& saw, double feedIndex);

/// What a box shows of a design when it shows it: the number with its unit, the teeth as a plain count, the
/// wood's trimmed name (UTF-8). Zero is shown too; see HasPowerFigure.
[[nodiscard]] std::string PowerFigureText(PowerBox box, const BandSaw& saw, double feedIndex,
                                          const DisplayFormat& format);

/// The same with the empty text for what is not there.
[[nodiscard]] std::string PowerBoxText(PowerBox box, const BandSaw& saw, double feedIndex,
                                       const DisplayFormat& format);

}  // namespace tarnwick
