#pragma once

#include <array>
#include <optional>

#include "model/modBandSaw.h"

namespace tarnwick {

// The length of the band that runs around the two wheels of a band mill. Wheel diameters, distances between
// centres and lengths of band are in feet, as a design keeps them.

/// The rows of lengths that a design may take one from: values of `MachineInfo.InCenterOut`.
enum LengthRow : int {
  OwnLength = 0,      // the user's own value
  InsideLength = 1,   // of the plate,
  MiddleLength = 2,   //
  OutsideLength = 3,  //
};
inline constexpr int LengthRows = 4;

/// The nearest diameter that a wheel can have: 0.5 to 15 ft.
[[nodiscard]] double ClampWheelDia(double d);

/// The nearest distance that the centres of two wheels of diameter `d` can have: 1.02 to 6 diameters.
[[nodiscard]] double ClampCenters(double d, double c);

/// Length of a band around two wheels of diameter `d`, their centres `c` apart.
///
///   L = c + c + d * Pi         two straights and two half turns
///
/// @param places  DecimalPlaces
/// @return ft, the circumference rounded and the sum rounded; 0 when the sum overflows
[[nodiscard]] double BandLength(double d, double c, int places);

/// A length for each LengthRow; nullopt for a row that has none, which OwnLength always is.
using RowLengths = std::array<std::optional<double>, LengthRows>;

/// The lengths inside, in the middle and outside of the plate.
///
/// Row i runs on wheels of WheelDia + i * PlateThick. The plate's inches are added to the wheel's feet just
/// as they stand, and i runs from 1, so that the inside holds one plate already: both are meant.
///
/// @return the inside alone for a design without a plate; nullopt altogether without wheels or their centres
[[nodiscard]] std::optional<RowLengths> CalcLengths(const BandSaw& saw, int places);

}  // namespace tarnwick
