#include "model/modFixedText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarnwick {
namespace {

TEST(FixedText, IsZeroBytesUntilItIsAssigned) {
  const FixedText<5> text;
  EXPECT_EQ(text.View(), std::string_view("\0\0\0\0\0", 5));
  EXPECT_EQ(text.Trimmed(), "");
}

TEST(FixedText, PadsAShortTextWithBlanks) {
  FixedText<5> text;
  text.Assign("oak");
  EXPECT_EQ(text.View(), "oak  ");
  text.Assign("");
  EXPECT_EQ(text.View(), "     ");
}

TEST(FixedText, CutsALongText) {
  FixedText<5> text;
  text.Assign("birch wood");
  EXPECT_EQ(text.View(), "birch");
}

TEST(FixedText, LeavesNothingOfALongerTextBehind) {
  FixedText<5> text;
  text.Assign("birch");
  text.Assign("ash");
  EXPECT_EQ(text.View(), "ash  ");
}

TEST(FixedText, IsTrimmedAtBothEnds) {
  FixedText<12> text;
  text.Assign("  red oak ");
  EXPECT_EQ(text.Trimmed(), "red oak");
  text.Bytes[11] = '\0';
  EXPECT_EQ(text.Trimmed(), "red oak");
}

TEST(FixedText, ComparesEveryByte) {
  FixedText<5> blank, never;
  blank.Assign("");
  EXPECT_FALSE(blank == never);
  never.Assign("     ");
  EXPECT_TRUE(blank == never);
}

}  // namespace
}  // namespace tarnwick
