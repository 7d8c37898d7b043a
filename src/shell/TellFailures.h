#pragma once

#include <functional>
#include <string_view>

#include "platform/Messages.h"

namespace tarnwick {

/// Does what may fail. A failure that it has no words for (of memory, of the system, of its own) ends it and
/// is told by its number.
/// @param activity   title of the message: what was being done
/// @param procedure  the command's name
void TellFailures(Messages& say, std::string_view activity, std::string_view procedure,
                  const std::function<void()>& act);

}  // namespace tarnwick
