#pragma once

class QWidget;

namespace tarnwick {

/// The window that a box or a dialog belongs above; nullptr while the program has no window yet.
[[nodiscard]] QWidget* WindowInUse();

}  // namespace tarnwick
