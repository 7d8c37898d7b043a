#include "shell/OneCommand.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <system_error>
#include <vector>

#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

class Commands : public testing::Test {
 protected:
  test::CollectedMessages say_;
  OneCommand commands_{say_};
};

TEST_F(Commands, RunOneAfterTheOther) {
  int ran = 0;
  commands_.Run("first", [&] {
    EXPECT_TRUE(commands_.IsRunning());
    ++ran;
  });
  EXPECT_FALSE(commands_.IsRunning());
  commands_.Run("second", [&] { ++ran; });
  EXPECT_EQ(ran, 2);
}

TEST_F(Commands, AreIgnoredWhileOneRuns) {
  commands_.Run("outer", [&] {
    commands_.Run("inner", [] { FAIL(); });
    EXPECT_TRUE(commands_.IsRunning());
  });
}

TEST_F(Commands, EndWithAMessageWhenMemoryRunsOut) {
  commands_.Run("mnuItemStepByStep", []() -> void { throw std::bad_alloc(); });
  ASSERT_EQ(say_.Shown.size(), 1u);
  EXPECT_EQ(say_.Shown[0].Title, "Error");
  const std::error_code failure = std::make_error_code(std::errc::not_enough_memory);
  EXPECT_EQ(say_.Shown[0].Text, "Error Number: " + std::to_string(failure.value()) + '\n' +
                                    failure.message() + "\nSub Program mnuItemStepByStep");
  EXPECT_FALSE(commands_.IsRunning());
}

TEST_F(Commands, EndWithTheNumberOfWhatTheSystemRefuses) {
  const std::error_code failure = std::make_error_code(std::errc::permission_denied);
  commands_.Run("mnuItemOpen", [&]() -> void { throw std::system_error(failure); });
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"Error Number: " + std::to_string(failure.value()) + '\n' +
                                                   failure.message() + "\nSub Program mnuItemOpen"});
}

TEST_F(Commands, EndWithAMessageInsteadOfTheProgram) {
  const std::error_code failure = std::make_error_code(std::errc::invalid_argument);
  commands_.Run("mnuItemAll", [] { (void)std::vector<int>().at(1); });
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"Error Number: " + std::to_string(failure.value()) + '\n' +
                                                   failure.message() + "\nSub Program mnuItemAll"});
  EXPECT_FALSE(commands_.IsRunning());
}

}  // namespace
}  // namespace tarnwick
