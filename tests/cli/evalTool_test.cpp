// The command that shows what a typed text stands for, from outside.

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"
#include "support/ToolRun.h"

namespace tarnwick::cli {
namespace {

using test::RunTool;
using test::TemporaryFolder;
using test::ToolRun;

TEST(ToolEval, PrintsTheNumberOfEachTextInOrder) {
  const ToolRun run =
      RunTool(TemporaryFolder(), {"eval", "12 3/4 in", "5 ft 6 in", "(10+2)/4", "12,5", "3 in²"});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out, "12.75\n5.5\n3\n12.5\n3\n");
  EXPECT_EQ(run.Err, "");
}

TEST(ToolEval, PrintsTheRefusalInItsPlaceAndFails) {
  const ToolRun run = RunTool(TemporaryFolder(), {"eval", "1+1", "abc", "(1+2", "2*2"});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Out, "2\nNot a valid equation!\nNot a valid equation!\n4\n");
  EXPECT_EQ(run.Err, "");
}

TEST(ToolEval, TakesATextThatBeginsWithAMinus) {
  const ToolRun run = RunTool(TemporaryFolder(), {"eval", "-5", "-(2+3)*2", "-.5", "2*-3"});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out, "-5\n-10\n-0.5\n-3\n");
}

TEST(ToolEval, PrintsEveryDigitThatTellsTheNumber) {
  const ToolRun run = RunTool(TemporaryFolder(), {"eval", "1/3", ".1+.2", "10/0", "0-1/0", "0/0", ""});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out, "0.3333333333333333\n0.30000000000000004\ninf\n-inf\nnan\n0\n");
}

TEST(ToolEval, FoldsFeetAndInchesAtTheDecimalPlacesGiven) {
  EXPECT_EQ(RunTool(TemporaryFolder(), {"eval", "1 ft 1 in"}).Out, "1.08333\n");
  EXPECT_EQ(RunTool(TemporaryFolder(), {"eval", "--decimal-places", "8", "1 ft 1 in"}).Out, "1.08333333\n");
}

TEST(ToolEval, WantsAText) {
  const ToolRun run = RunTool(TemporaryFolder(), {"eval"});
  EXPECT_EQ(run.Code, 2);
  EXPECT_EQ(run.Out, "");
  EXPECT_NE(run.Err, "");
}

}  // namespace
}  // namespace tarnwick::cli
