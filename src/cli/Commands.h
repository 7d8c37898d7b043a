#pragma once

#include "cli/Options.h"

namespace tarnwick::cli {

/// Works through all designs, each on its own: one that fails is named on standard error with what is wrong,
/// and the others are done all the same.
[[nodiscard]] ExitCode RunCommand(const Options& options);

/// The whole tool, from the command line to the exit code of the process. Throws nothing.
[[nodiscard]] int RunTool(int argc, const char* const* argv) noexcept;

}  // namespace tarnwick::cli
