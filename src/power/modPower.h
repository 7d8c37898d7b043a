#pragma once

#include <cstdint>
#include <string_view>

#include "power/modFeedIndex.h"

namespace tarnwick {

// The arithmetic of sawing power. Everything is in the units that a design keeps, whatever the screen shows:
// inches and square inches, wheel diameter and band length in feet, speeds in feet a minute, rpm.
//
// A figure that cannot be worked out is 0, and so is one that overflows: every screen shows 0 as an empty
// box. Inputs are "missing" when they are exactly 0, so negative ones are worked with as they stand; only
// CalcMaxFeedRate and the kerf of CalcSideClear ask for more. That is meant.
//
// No function reads a global. One that rounds takes `places` (DecimalPlaces), the rounding rule being
// RoundTo; where the gullet's feed index matters too, a PowerSettings carries both.

/// What the power figures need of the user's settings. The power calculator hands in a feed index of its own.
struct PowerSettings {
  std::int16_t DecimalPlaces = 5;
  double GulletFeedIndex = DefaultGulletFeedIndex;  // above 0 and up to 1
};

/// Tooth speed.
///
///   v = diameter * Pi * speed          the wheel's circumference, so many times a minute
///
/// @return ft/min, to the nearest whole number, ties to the even one; 0 without diameter or speed
[[nodiscard]] std::int32_t CalcSawVelocity(double wheelDiameter, std::int32_t shaftSpeed);

/// Power that the cut takes.
///
///   hp = depth * kerf * feed * (energy * 100) / 144       wood sawn in a minute times its energy
///
/// @param wood  a name of the table of woods
/// @return hp, rounded; 0 for a heading or an unknown wood, without kerf, feed rate or depth
[[nodiscard]] double CalcHorsePower(std::string_view wood, double kerf, double feedRate, double depthOfCut,
                                    int places);

/// Feed per tooth: feed * pitch / velocity. inch, rounded; 0 when one of them is missing.
[[nodiscard]] double CalcBite(double feedRate, double pitch, std::int32_t sawVelocity, int places);

/// Gullet capacity that the cut requires: bite * depth. in², rounded; 0 without bite or depth.
[[nodiscard]] double CalcCapacityChecked(double bite, double depthOfCut, int places);

/// The same number without a guard: the estimates use the other one for the current figures, everything else
/// uses this one.
[[nodiscard]] double CalcCapacity(double bite, double depthOfCut, int places);

/// The feed rate that fills the usable gullet: bite * depth = feed index * area, solved for the feed.
///
///   feed = velocity * area * index / (depth * pitch)
///
/// @return ft/min, rounded; 0 unless depth, area, pitch and velocity are all above 0
[[nodiscard]] double CalcMaxFeedRate(double depthOfCut, double gulletArea, double pitch,
                                     std::int32_t sawVelocity, const PowerSettings& settings);

/// Average pitch: length / teeth, rounded; 0 without length or teeth. In feet, as the length is: that there
/// is no factor of 12 is meant.
[[nodiscard]] double CalcPitch(double bandLength, std::int16_t numTeeth, int places);

/// What the tip stands out beside the plate: (kerf - plate) / 2. inch, rounded; 0 without plate or kerf, and
/// for a kerf that is not wider than the plate: never negative by that.
[[nodiscard]] double CalcSideClear(double plateThickness, double kerf, int places);

/// The pitch that keeps `bite` at another feed rate: velocity * bite / feed. inch, rounded; 0 when one of
/// them is missing.
[[nodiscard]] double CalcPitchForBite(double feedRate, std::int32_t sawVelocity, double bite, int places);

/// The wheel speed that keeps `bite` at another feed rate.
///
///   v = feed * pitch / bite,   rpm = v / (diameter * Pi)       each to the nearest, ties to the even one
///
/// @return rpm; 0 when one of them is missing, and when v passes 32 bits or the result 16
[[nodiscard]] std::int16_t CalcShaftSpeedForBite(double feedRate, double pitch, double wheelDiameter,
                                                 double bite);

}  // namespace tarnwick
