#include "geometry/modHandler.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;

TEST(Need, GivesTheNumber) { EXPECT_EQ(Need(Quotient(3, 4)), 0.75); }

TEST(Need, StopsTheRoutineAtAFailure) {
  double before = 1, target = 2, after = 3;
  Failure told = Failure::None;
  const bool came = HandleFailure(
      [&] {
        before = Need(10);
        target = Need(Quotient(1, 0));
        after = Need(30);
      },
      [&](Failure why) { told = why; });
  EXPECT_FALSE(came);
  EXPECT_EQ(told, Failure::DivisionByZero);
  EXPECT_EQ(before, 10) << "what was placed before stays";
  EXPECT_EQ(target, 2);
  EXPECT_EQ(after, 3);
}

TEST(HandleFailure, SaysNothingOfARoutineThatComesToItsEnd) {
  int reports = 0;
  EXPECT_TRUE(HandleFailure([] {}, [&](Failure) { ++reports; }));
  EXPECT_EQ(reports, 0);
}

struct MessageRow {
  Failure Why;
  const char* Text;
};
class MessageOf : public testing::TestWithParam<MessageRow> {};

TEST_P(MessageOf, AFailureIsItsDescriptionAndItsNumber) {
  CollectedMessages say;
  double target = 0;
  PlaceOrReport(say, [&] { target = Need(Checked::Failed(GetParam().Why)); });
  EXPECT_EQ(target, 0);
  ASSERT_EQ(say.Texts(), std::vector<std::string>{GetParam().Text});
  EXPECT_EQ(say.Shown.front().Title, "Tarnwick");
  EXPECT_EQ(say.Shown.front().Offer, Buttons::Ok);
}

INSTANTIATE_TEST_SUITE_P(
    Failures, MessageOf,
    testing::Values(MessageRow{Failure::InvalidCall, "Invalid procedure call or argument\nError Number = 5"},
                    MessageRow{Failure::Overflow, "Overflow\nError Number = 6"},
                    MessageRow{Failure::Subscript, "Subscript out of range\nError Number = 9"},
                    MessageRow{Failure::DivisionByZero, "Division by zero\nError Number = 11"}),
    [](const auto& row) { return "Number" + std::to_string(static_cast<int>(row.param.Why)); });

}  // namespace
}  // namespace tarnwick
