#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "entry/modFormat.h"

namespace tarnwick {

inline constexpr std::size_t GaugeColumns = 3;
inline constexpr std::size_t GaugeCount = 13;

/// The texts of a row: gauge, inches, millimetres.
using GaugeRow = std::array<std::string, GaugeColumns>;

/// Sheet gauges and their thickness: the heading, then one row for each gauge. Both systems stand side by
/// side, so nothing is converted, whatever units are in use; only the shown decimals count.
[[nodiscard]] std::array<GaugeRow, GaugeCount + 1> GaugeTable(const DisplayFormat& format);

}  // namespace tarnwick
