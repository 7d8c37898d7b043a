#pragma once

#include <string>

#include "cli/Options.h"
#include "cli/Output.h"

namespace tarnwick::cli {

/// Draws the machine of a design where the options say, and prints the lengths of the bands that run on it as
/// a line of JSON. A design without wheels or without their centres has none: it says so, its drawing is
/// empty, and that is no failure.
[[nodiscard]] Problem WriteMachine(const Options& options, Output& output, const std::string& name);

}  // namespace tarnwick::cli
