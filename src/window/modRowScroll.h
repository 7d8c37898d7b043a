#pragma once

#include "window/modDisplay.h"

namespace tarnwick {

// How the bar beside the rows of the information panel moves them. It runs downward from 0 to a negative
// number, one for each row that is out of sight.

/// Top of the surface with the rows within its frame, in pixels of 1/96 inch. At 0 a little air is above it.
[[nodiscard]] double TopOfRows(int bar);

/// The bar at its lowest: the last row is in sight.
/// @param shown  height of the frame, in pixels
[[nodiscard]] int LowestBar(double heightOfRows, double shown);

/// The bar moved no further than it takes to see a row whole.
[[nodiscard]] int BarToSee(const RowBox& row, int bar, double shown);

/// Rows that a frame shows at a time, but one: what is read last stays in sight when a page is turned.
[[nodiscard]] int RowsOfPage(double shown);

}  // namespace tarnwick
