#include "cli/JsonText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarnwick::cli {
namespace {

std::string Number(double value) {
  std::string json;
  AppendNumber(json, value);
  return json;
}

std::string Text(std::string_view bytes) {
  std::string json;
  AppendFixedText(json, bytes);
  return json;
}

TEST(JsonNumber, IsTheShortestThatReadsBackTheSame) {
  EXPECT_EQ(Number(0), "0");
  EXPECT_EQ(Number(12), "12");
  EXPECT_EQ(Number(-3), "-3");
  EXPECT_EQ(Number(0.1), "0.1");
  EXPECT_EQ(Number(0.6364000000000001), "0.6364000000000001");
  EXPECT_EQ(Number(1e22), "1e+22");
  EXPECT_EQ(Number(5e-324), "5e-324");
}

TEST(JsonNumber, KeepsTheSignOfZero) { EXPECT_EQ(Number(-0.0), "-0.0"); }

TEST(JsonNumber, IsItsBitsWhereJsonHasNoWord) {
  EXPECT_EQ(Number(std::numeric_limits<double>::infinity()), R"({"bits":"7ff0000000000000"})");
  EXPECT_EQ(Number(-std::numeric_limits<double>::infinity()), R"({"bits":"fff0000000000000"})");
  EXPECT_EQ(Number(std::numeric_limits<double>::quiet_NaN()), R"({"bits":"7ff8000000000000"})");
}

TEST(JsonText, IsAStringWithoutThePaddingWhenPrintable) {
  EXPECT_EQ(Text("Oak  "), R"("Oak")");
  EXPECT_EQ(Text("  Oak"), R"("  Oak")");
  EXPECT_EQ(Text(R"(3" \x  )"), R"("3\" \\x")");
}

TEST(JsonText, IsEmptyWhenNeverAssigned) { EXPECT_EQ(Text(std::string(5, '\0')), R"("")"); }

TEST(JsonText, IsItsBytesOtherwise) {
  EXPECT_EQ(Text("   "), R"({"hex":"202020"})");  // not the same as never assigned
  EXPECT_EQ(Text(std::string("A\0\0", 3)), R"({"hex":"410000"})");
  EXPECT_EQ(Text("\xE9 \n"), R"({"hex":"e9200a"})");
}

TEST(JsonString, ReplacesBytesThatAreNoUtf8) {
  std::string json;
  AppendString(json, "a\xFF\n\u00E9");
  EXPECT_EQ(json, "\"a\uFFFD\\n\u00E9\"");
}

}  // namespace
}  // namespace tarnwick::cli
