#include "shell/modTimeDate.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

struct TimeRow {
  const char* Name;
  LocalTime Time;
  const char* Want;
  friend void PrintTo(const TimeRow& row, std::ostream* out) { *out << row.Name; }
};
class TimeDate : public testing::TestWithParam<TimeRow> {};

TEST_P(TimeDate, IsShownInEnglish) { EXPECT_EQ(TimeDateText(GetParam().Time), GetParam().Want); }

INSTANTIATE_TEST_SUITE_P(
    Times, TimeDate,
    testing::Values(TimeRow{"Afternoon", {2026, 11, 21, 15, 5}, "3:05 pm  Nov 21, 2026"},
                    TimeRow{"Morning", {2026, 1, 2, 9, 59}, "9:59 am  Jan 02, 2026"},
                    TimeRow{"Midnight", {2026, 12, 31, 0, 0}, "12:00 am  Dec 31, 2026"},
                    TimeRow{"Noon", {2026, 5, 1, 12, 0}, "12:00 pm  May 01, 2026"},
                    TimeRow{"JustBeforeNoon", {2026, 2, 28, 11, 59}, "11:59 am  Feb 28, 2026"},
                    TimeRow{"LastMinute", {2026, 9, 9, 23, 59}, "11:59 pm  Sep 09, 2026"},
                    TimeRow{"NoSuchMonth", {2026, 13, 1, 1, 1}, ""}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(PrintDate, HasItsCommaBehindTheMonthAndTwoDigitsOfTheYear) {
  EXPECT_EQ(PrintDateText({2026, 11, 21, 15, 5}), "Nov, 21/26");
  EXPECT_EQ(PrintDateText({2007, 5, 1, 0, 0}), "May, 1/07");
  EXPECT_EQ(PrintDateText({2100, 12, 31, 0, 0}), "Dec, 31/00");
  EXPECT_EQ(PrintDateText({2026, 0, 1, 0, 0}), "");
}

}  // namespace
}  // namespace tarnwick
