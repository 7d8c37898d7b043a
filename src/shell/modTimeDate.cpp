#include "shell/modTimeDate.h"

#include <array>
#include <cstddef>

namespace tarnwick {
namespace {

constexpr std::array MonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

bool IsMonth(int month) { return month >= 1 && month <= 12; }
const char* MonthName(int month) { return MonthNames[static_cast<std::size_t>(month - 1)]; }

}  // namespace

std::string TimeDateText(const LocalTime& time) {
  if (!IsMonth(time.Month)) return {};
  const int hour = time.Hour % 12 == 0 ? 12 : time.Hour % 12;
  return std::to_string(hour) + ":" + TwoDigits(time.Minute) + (time.Hour < 12 ? " am  " : " pm  ") +
         MonthName(time.Month) + " " + TwoDigits(time.Day) + ", " + std::to_string(time.Year);
}

std::string PrintDateText(const LocalTime& time) {
  if (!IsMonth(time.Month)) return {};
  return MonthName(time.Month) + (", " + std::to_string(time.Day)) + "/" + TwoDigits(time.Year % 100);
}

}  // namespace tarnwick
