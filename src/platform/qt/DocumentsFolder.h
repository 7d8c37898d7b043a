#pragma once

#include <string>

namespace tarnwick {

/// Where the desktop keeps the user's documents; the home folder where it keeps none.
[[nodiscard]] std::string DocumentsFolder();

}  // namespace tarnwick
