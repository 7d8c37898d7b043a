#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "model/modBandSaw.h"
#include "power/modPower.h"

namespace tarnwick {

/// One column of power figures, as the estimates and the power calculator's paper show them. Units as in
/// BandSaw.
struct PowerEstimate {
  double Marker{};  // 4 in an estimate, 0 in a row of the calculator; nobody reads it
  double WheelDia{};
  double CenterToCenter{};  // the calculator's rows alone
  double Width{};
  double Length{};
  double Pitch{};
  std::int16_t NumTeeth{};
  double PlateThick{};
  double Kerf{};
  double SideClear{};
  std::int32_t ShaftSpeed{};
  std::int32_t SawVelocity{};
  double DepthOfCut{};
  double FeedRate{};
  FixedText<30> WoodType;
  double HorsePower{};
  double Bite{};
  double GulletArea{};
  double AreaBelowTip{};  // actual capacity, feed index * GulletArea; the estimates alone
  double Capacity{};      // required capacity
  double FeedIndex{};     // the calculator's rows alone

  bool operator==(const PowerEstimate&) const = default;
};

/// The current figures, and three ways to a higher feed rate: by the pitch, by the wheel's speed, by the
/// bite.
using PowerEstimates = std::array<PowerEstimate, 4>;
enum PowerEstimateRow : std::size_t { CurrentFigures = 0, ByPitch = 1, ByWheelSpeed = 2, ByBite = 3 };

/// What the record has of both kinds of columns, as it stands there.
[[nodiscard]] PowerEstimate StoredFigures(const BandSaw& saw);

/// Figures for feed rates that rise by `percent` from one to the next.
///
/// The current row shows the stored figures, but for its tooth speed and required capacity, which are worked
/// out. The increase compounds, each row on the row before it: the last feeds at (1 + percent / 100) cubed
/// times the current rate. Apart from feed rate and horsepower a row changes what it is named for and what
/// follows from that, always from the current pitch, speed and bite.
///
/// @return nullopt for a percent that is not above 0
[[nodiscard]] std::optional<PowerEstimates> BuildPowerEstimates(const BandSaw& saw, double percent,
                                                                const PowerSettings& settings);

}  // namespace tarnwick
