#pragma once

#include <string>

#include "platform/Clock.h"

namespace tarnwick {

/// The clock of the status bar, in English in every country: "3:05 pm  Nov 21, 2026", two blanks between.
/// Midnight is 12:00 am, noon 12:00 pm. Empty for a month that does not exist.
[[nodiscard]] std::string TimeDateText(const LocalTime& time);

/// The date of a print-out: "Nov, 21/26", the day without a zero ahead. Empty for a month that does not
/// exist.
[[nodiscard]] std::string PrintDateText(const LocalTime& time);

}  // namespace tarnwick
