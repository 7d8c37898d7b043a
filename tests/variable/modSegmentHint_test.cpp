#include "variable/modSegmentHint.h"

#include <gtest/gtest.h>

#include <string>

#include "shell/modString.h"

namespace tarnwick {
namespace {

std::string Indexed(const char* control, int k) { return control + ('(' + std::to_string(k) + ')'); }

TEST(SegmentHints, AreThoseOfTheirNumbers) {
  const std::pair<const char*, int> numbered[] = {
      {"cboPattern", 47},       {"txtSegmentSize", 48}, {"chkVarDepth", 49},       {"txtAverageDepth", 60},
      {"txtAverageSpace", 61},  {"optPattern(0)", 62},  {"optPattern(1)", 63},     {"optPattern(2)", 64},
      {"optPattern(3)", 65},    {"cmdVariableOK", 66},  {"cmdVariableCancel", 67}, {"cmdVariablePrint", 68},
      {"cmdVariableReset", 69},
  };
  for (const auto& [control, number] : numbered)
    EXPECT_EQ(SegmentHint(control), NumberedText(number)) << control;
  for (int k = 0; k < 5; ++k) {
    EXPECT_EQ(SegmentHint(Indexed("txtToothDepth", k)), NumberedText(50 + k));
    EXPECT_EQ(SegmentHint(Indexed("txtToothSpace", k)), NumberedText(55 + k));
  }
}

TEST(SegmentHints, GoOnByPatternBehindTheFifthTooth) {
  EXPECT_EQ(SegmentHint("txtToothDepth(5)"), "Click to activate the sixth gullet depth input box.");
  EXPECT_EQ(SegmentHint("txtToothDepth(6)"), "Click to activate the seventh gullet depth input box.");
  EXPECT_EQ(SegmentHint("txtToothSpace(5)"), "Click to activate the sixth tooth pitch input box.");
  EXPECT_EQ(SegmentHint("txtToothSpace(6)"), "Click to activate the seventh tooth pitch input box.");
}

TEST(SegmentHints, SayTheButtonsSo) {
  EXPECT_EQ(SegmentHint("optPattern(2)"), "Click to select the preset right to left tooth pitch pattern.");
  EXPECT_EQ(SegmentHint("optPattern(3)"), "Click to select the preset mixed tooth pitch pattern.");
  EXPECT_EQ(SegmentHint("cmdVariableOK"), "Click to accept the variable pitch values.");
  EXPECT_EQ(SegmentHint("cmdVariableCancel"), "Click to discard any variable pitch changes.");
  EXPECT_EQ(SegmentHint("cmdVariablePrint"), "Click to print one section of variable pitch teeth.");
  EXPECT_EQ(SegmentHint("cmdVariableReset"), "Click to reset all variable pitch values.");
}

TEST(SegmentHints, OfALabelAreThoseOfItsPitch) {
  for (int k = 0; k < 7; ++k) {
    EXPECT_EQ(SegmentHint(Indexed("lblToothSpace", k)), SegmentHint(Indexed("txtToothSpace", k)));
  }
}

TEST(SegmentHints, AreEmptyForAllElse) {
  for (const char* control : {"", "txtVariableNumTeeth", "txtNumberOfSegments", "txtToothSpace",
                              "txtToothSpace(7)", "lblToothSpace(7)", "lblToothSpace", "optPattern(4)"}) {
    EXPECT_EQ(SegmentHint(control), "") << control;
  }
}

TEST(SegmentFigures, OfTheToothNameTheirEditor) {
  for (const char* control : {"txtVariableNumTeeth", "txtAverageSpace", "txtAverageDepth"}) {
    EXPECT_EQ(SegmentMustUse(control), "To change this value you must use the tooth shape editor.")
        << control;
  }
  for (const char* control : {"", "txtSegmentSize", "txtNumberOfSegments", "txtToothSpace(0)",
                              "txtToothDepth(0)", "cboPattern", "cmdVariableOK"}) {
    EXPECT_EQ(SegmentMustUse(control), "") << control;
  }
}

TEST(SegmentTopics, AreThoseOfTheDialogs) {
  EXPECT_EQ(SegmentTopic("txtToothSpace(3)"), 202);
  EXPECT_EQ(SegmentTopic("lblToothSpace(3)"), 202);
  EXPECT_EQ(SegmentTopic("txtToothDepth(6)"), 213);
  EXPECT_EQ(SegmentTopic("cboPattern"), 0);
  EXPECT_EQ(SegmentTopic(""), 0);
}

}  // namespace
}  // namespace tarnwick
