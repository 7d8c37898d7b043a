#pragma once

namespace tarnwick {

// Distances that all windows keep, in device-independent pixels.

inline constexpr int Margin = 12;  // along the edge of a window, and between groups
inline constexpr int Gap = 8;      // between neighbours, such as a caption and its box
inline constexpr int RowGap = 3;   // between rows of boxes

}  // namespace tarnwick
