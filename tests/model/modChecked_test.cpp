#include "model/modChecked.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace tarnwick {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Huge = std::numeric_limits<double>::max();

TEST(Checked, WorksLikeANumberWhileNothingFails) {
  const Checked x = 3.0;
  EXPECT_EQ((x + 1).OrZero(), 4);
  EXPECT_EQ((x - 1).OrZero(), 2);
  EXPECT_EQ((2 * x).OrZero(), 6);
  EXPECT_EQ((-x).OrZero(), -3);
  EXPECT_EQ(Quotient(x, 2).OrZero(), 1.5);
  EXPECT_EQ(Root(Checked(6.25)).OrZero(), 2.5);
  EXPECT_EQ(Magnitude(-x).OrZero(), 3);
  EXPECT_TRUE(x.Ok());
  EXPECT_EQ(x.Why(), Failure::None);
}

TEST(Checked, FailsOnAZeroDivisorWhateverIsDivided) {
  EXPECT_EQ(Quotient(1, 0).Why(), Failure::DivisionByZero);
  EXPECT_EQ(Quotient(0, 0).Why(), Failure::DivisionByZero);
  EXPECT_EQ(Quotient(-1, -0.0).Why(), Failure::DivisionByZero);
}

TEST(Checked, FailsOnTheRootOfANegativeNumber) {
  EXPECT_EQ(Root(Checked(-1e-300)).Why(), Failure::InvalidCall);
  EXPECT_EQ(Root(Checked(0)).OrZero(), 0);
}

TEST(Checked, FailsOnWhatIsTooLarge) {
  EXPECT_EQ(Checked(Infinity).Why(), Failure::Overflow);
  EXPECT_EQ(Checked(std::numeric_limits<double>::quiet_NaN()).Why(), Failure::Overflow);
  EXPECT_EQ((Checked(Huge) * 2).Why(), Failure::Overflow);
  EXPECT_EQ((Checked(Huge) + Huge).Why(), Failure::Overflow);
  EXPECT_EQ((Checked(-Huge) - Huge).Why(), Failure::Overflow);
  EXPECT_EQ(Quotient(Huge, 1e-10).Why(), Failure::Overflow);
}

TEST(Checked, CarriesTheFirstFailureThroughTheStatement) {
  const Checked failed = Quotient(1, 0);
  EXPECT_EQ((failed + 1).Why(), Failure::DivisionByZero);
  EXPECT_EQ((1 - failed).Why(), Failure::DivisionByZero);
  EXPECT_EQ((0 * failed).Why(), Failure::DivisionByZero);
  EXPECT_EQ((-failed).Why(), Failure::DivisionByZero);
  EXPECT_EQ(Magnitude(failed).Why(), Failure::DivisionByZero);
  EXPECT_EQ(Root(failed).Why(), Failure::DivisionByZero);
  EXPECT_EQ(Quotient(failed, 0).Why(), Failure::DivisionByZero);
  EXPECT_EQ(Quotient(1, failed).Why(), Failure::DivisionByZero);
  EXPECT_EQ((failed + Root(Checked(-1))).Why(), Failure::DivisionByZero);
  EXPECT_EQ((Root(Checked(-1)) + failed).Why(), Failure::InvalidCall);
}

TEST(Checked, IsZeroWhereANeverAssignedNumberIsRead) {
  EXPECT_EQ(Quotient(5, 0).OrZero(), 0);
  EXPECT_EQ(Checked::Failed(Failure::Subscript).OrZero(), 0);
}

TEST(Let, KeepsWhatTheTargetHeldWhenTheStatementFails) {
  double target = 7;
  Let(target) = Quotient(1, 0);
  EXPECT_EQ(target, 7);
  Let(target) = Quotient(1, 4);
  EXPECT_EQ(target, 0.25);
}

TEST(LetWhole, CutsTowardZero) {
  std::int16_t target = 1;
  Let(target) = Checked(2.9);
  EXPECT_EQ(target, 2);
  Let(target) = Checked(-2.9);
  EXPECT_EQ(target, -2);
}

TEST(LetWhole, TakesTheWholeRangeAndNothingBeyond) {
  std::int16_t target = 1;
  Let(target) = Checked(32767.9);
  EXPECT_EQ(target, 32767);
  Let(target) = Checked(-32768.9);
  EXPECT_EQ(target, -32768);
  target = 1;
  Let(target) = Checked(32768);
  EXPECT_EQ(target, 1);
  Let(target) = Checked(-32769);
  EXPECT_EQ(target, 1);
  Let(target) = Checked(1e300);
  EXPECT_EQ(target, 1);
  Let(target) = Quotient(1, 0);
  EXPECT_EQ(target, 1);
}

TEST(Failure, HasTheNumberThatAUserIsShown) {
  EXPECT_EQ(static_cast<int>(Failure::DivisionByZero), 11);
  EXPECT_EQ(static_cast<int>(Failure::Subscript), 9);
  EXPECT_EQ(static_cast<int>(Failure::Overflow), 6);
  EXPECT_EQ(static_cast<int>(Failure::InvalidCall), 5);
}

TEST(Failure, HasAName) {
  EXPECT_EQ(DescriptionOf(Failure::DivisionByZero), "Division by zero");
  EXPECT_EQ(DescriptionOf(Failure::Overflow), "Overflow");
  EXPECT_EQ(DescriptionOf(Failure::Subscript), "Subscript out of range");
  EXPECT_EQ(DescriptionOf(Failure::None), "");
}

}  // namespace
}  // namespace tarnwick
