#pragma once

#include <string>
#include <vector>

#include "cli/ExitCode.h"

namespace tarnwick::cli {

/// Prints one line for each text: the number that it stands for, or the refusal.
[[nodiscard]] ExitCode PrintValues(const std::vector<std::string>& texts, int decimalPlaces);

}  // namespace tarnwick::cli
