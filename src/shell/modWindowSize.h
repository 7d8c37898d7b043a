#pragma once

#include <algorithm>

namespace tarnwick {

/// Outer size of a window, frame included, in device-independent pixels.
struct WindowSize {
  int Width{}, Height{};
  bool operator==(const WindowSize&) const = default;
};

/// Between which sizes the main window can be drawn.
struct WindowLimits {
  WindowSize Least, Most;
};

/// The main window opens filling the work area and never grows beyond it. It can be made as small as 800 x
/// 600; on a screen no wider than that it always fills the work area. A wide screen may be lower than 600 (a
/// laptop with large letters): its work area is high enough then, or the foot of the window would lie below.
[[nodiscard]] constexpr WindowLimits MainWindowLimits(int screenWidth, WindowSize workArea) {
  constexpr WindowSize smallest{800, 600};
  if (screenWidth <= smallest.Width) return {workArea, workArea};
  return {{smallest.Width, std::min(smallest.Height, workArea.Height)}, workArea};
}

/// What parts of the main window gain when it is wider than the smallest one, in device-independent pixels.
struct LayoutShares {
  double Status{};  // lblStatus beside lblHint
  double Values{};  // value boxes and value column, out of the panel's own share
  double Panel{};   // the panel at the right
};

/// Two fifths, a fifth and a quarter of the extra width, by the rounding rule at `places` in window units, of
/// which a pixel has 15.
[[nodiscard]] LayoutShares SharesOf(int width, int leastWidth, int places);

}  // namespace tarnwick
