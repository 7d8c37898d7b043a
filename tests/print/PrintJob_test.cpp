#include "print/PrintJob.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

using test::PrintedJob;
using test::Texts;

class RunPrintJobTest : public testing::Test {
 protected:
  RunPrintJobTest() { EXPECT_TRUE(device_.Choose("Alpha")); }

  std::error_code Run(int sheets) {
    log_.clear();
    const PrintJob job{"oak.bsw", sheets, [](int number) {
                         return PrintSheet{SheetText{{}, "sheet " + std::to_string(number), {}}};
                       }};
    return RunPrintJob(job, device_,
                       [this](int sheet) { log_.push_back("turn of " + std::to_string(sheet)); });
  }

  Texts log_;
  test::RecordingPrintDevice device_{log_};
};

TEST_F(RunPrintJobTest, PrintsSheetAfterSheetAndEnds) {
  EXPECT_FALSE(Run(3));
  EXPECT_EQ(log_,
            (Texts{"turn of 1", "begin oak.bsw", "turn of 2", "new page", "turn of 3", "new page", "end"}));
  ASSERT_EQ(device_.Jobs.size(), 1U);
  EXPECT_EQ(device_.Jobs[0].Is, PrintedJob::Fate::Ended);
  ASSERT_EQ(device_.Jobs[0].Pages.size(), 3U);
  EXPECT_EQ(test::TextsOf(device_.Jobs[0].Pages[2]), Texts{"sheet 3"});
}

TEST_F(RunPrintJobTest, CancelsWhatCannotBegin) {
  device_.FailsToBegin = std::make_error_code(std::errc::permission_denied);
  EXPECT_EQ(Run(2), std::errc::permission_denied);
  EXPECT_EQ(log_, (Texts{"turn of 1", "begin oak.bsw", "cancel"}));
}

TEST_F(RunPrintJobTest, CancelsAtAPageThatDoesNotCome) {
  device_.TurnsThatWork = 1;
  device_.FailsToTurn = std::make_error_code(std::errc::io_error);
  EXPECT_EQ(Run(5), std::errc::io_error);
  EXPECT_EQ(log_, (Texts{"turn of 1", "begin oak.bsw", "turn of 2", "new page", "turn of 3", "new page",
                         "cancel"}));
  EXPECT_EQ(device_.Jobs[0].Is, PrintedJob::Fate::Cancelled);
}

TEST_F(RunPrintJobTest, CancelsWhatCannotEnd) {
  device_.FailsToEnd = std::make_error_code(std::errc::no_space_on_device);
  EXPECT_EQ(Run(1), std::errc::no_space_on_device);
  EXPECT_EQ(log_, (Texts{"turn of 1", "begin oak.bsw", "end", "cancel"}));
}

TEST_F(RunPrintJobTest, CancelsWhenAnExceptionComesThrough) {
  device_.Throws = true;
  EXPECT_THROW(static_cast<void>(Run(2)), std::system_error);
  EXPECT_EQ(log_, (Texts{"turn of 1", "begin oak.bsw", "cancel"}));
  device_.Throws = false;
  EXPECT_FALSE(Run(1)) << "the next job finds the printer free";
}

TEST_F(RunPrintJobTest, NeedsNobodyToTell) {
  EXPECT_FALSE(RunPrintJob({"a", 2, [](int) { return PrintSheet(); }}, device_, {}));
  EXPECT_EQ(device_.Jobs.back().Pages.size(), 2U);
}

}  // namespace
}  // namespace tarnwick
