#pragma once

#include <functional>
#include <string>

#include "cli/Design.h"
#include "cli/Options.h"

namespace tarnwick::cli {

/// Works through all designs, each on its own: one that fails is named on standard error with what is wrong,
/// and the others are done all the same.
[[nodiscard]] ExitCode RunCommand(const Options& options);

/// Runs `work` on each design; no failure of one keeps the next from its turn.
[[nodiscard]] ExitCode ForEachDesign(const Options& options,
                                     const std::function<Problem(const std::string& name)>& work);

/// Messages of reading and calculating that have no place in the output; they are no failure.
void TellNotes(const std::string& name, const Design& design);

using CommandRunner = ExitCode (*)(const Options& options);

/// The whole tool, from the command line to the exit code of the process. Throws nothing.
[[nodiscard]] int RunTool(int argc, const char* const* argv, CommandRunner run = RunCommand) noexcept;

}  // namespace tarnwick::cli
