#pragma once

#include <string>
#include <vector>

#include "cli/ExitCode.h"

namespace tarnwick::cli {

/// Runs another program of ours that stands in the folder of this one, with this one's standard streams.
/// @param name       of its file, without the extension that programs have on Windows
/// @param arguments  all but its own name
/// @return what it tells the shell; SomeFailed when it is not there, and the user has been told
[[nodiscard]] ExitCode RunSibling(const std::string& name, const std::vector<std::string>& arguments);

}  // namespace tarnwick::cli
