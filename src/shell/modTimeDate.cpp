#include "shell/modTimeDate.h"

#include <array>
#include <cstddef>

namespace tarnwick {
namespace {

constexpr std::array MonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

std::string TimeDateText(const LocalTime& time) {
  if (time.Month < 1 || time.Month > 12) return {};
  const int hour = time.Hour % 12 == 0 ? 12 : time.Hour % 12;
  return std::to_string(hour) + ":" + TwoDigits(time.Minute) + (time.Hour < 12 ? " am  " : " pm  ") +
         MonthNames[static_cast<std::size_t>(time.Month - 1)] + " " + TwoDigits(time.Day) + ", " +
         std::to_string(time.Year);
}

}  // namespace tarnwick
