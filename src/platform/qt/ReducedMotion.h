#pragma once

namespace tarnwick {

/// Whether the user has told the desktop that nothing need move on the screen.
[[nodiscard]] bool ReducedMotion();

}  // namespace tarnwick
