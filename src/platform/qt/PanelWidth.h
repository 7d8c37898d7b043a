#pragma once

#include <QFontInfo>
#include <QWidget>

namespace tarnwick {

/// A panel at the right of the main window is at least this wide, whatever it shows.
[[nodiscard]] inline int LeastPanelWidth(const QWidget& panel) {
  constexpr int ems = 26;
  return ems * QFontInfo(panel.font()).pixelSize();
}

/// Space about what a panel shows.
inline constexpr int PanelMargin = 8;

}  // namespace tarnwick
