#include "shell/modWindowSize.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(MainWindowSize, LiesBetween800By600AndTheWorkArea) {
  const WindowLimits limits = MainWindowLimits(1920, {1920, 1040});
  EXPECT_EQ(limits.Least, (WindowSize{800, 600}));
  EXPECT_EQ(limits.Most, (WindowSize{1920, 1040}));
}

TEST(MainWindowSize, CannotBeLessThanTheWorkAreaOfASmallScreen) {
  const WindowLimits limits = MainWindowLimits(800, {800, 570});
  EXPECT_EQ(limits.Least, (WindowSize{800, 570}));
  EXPECT_EQ(limits.Most, (WindowSize{800, 570}));
}

TEST(MainWindowSize, IsNeverHigherThanTheWorkArea) {
  const WindowLimits limits = MainWindowLimits(960, {960, 500});
  EXPECT_EQ(limits.Least, (WindowSize{800, 500}));
  EXPECT_EQ(limits.Most, (WindowSize{960, 500}));
}

TEST(MainWindowSize, GoesByTheWholeScreenNotByTheWorkArea) {
  EXPECT_EQ(MainWindowLimits(801, {700, 600}).Least, (WindowSize{800, 600}));
}

}  // namespace
}  // namespace tarnwick
