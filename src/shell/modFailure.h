#pragma once

#include <string_view>
#include <system_error>

#include "platform/Messages.h"

namespace tarnwick {

/// What the user is told of a command that fails and has no words of its own for it.
/// @param activity   the title: what was being done
/// @param procedure  the command's name
[[nodiscard]] Box FailureBox(std::string_view activity, std::error_code failure, std::string_view procedure);

}  // namespace tarnwick
