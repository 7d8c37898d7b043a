#include "store/modCodePage.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(CodePageText, TakesWhatEuropeanSawyersWrite) {
  EXPECT_EQ(CodePageText(""), "");
  EXPECT_EQ(CodePageText("Oak 3/4\""), "Oak 3/4\"");
  EXPECT_EQ(CodePageText("S\u00E4ge f\u00FCr B\u00E4ume, \u00D813 \u00BD\u00B0"),
            "S\xE4ge f\xFCr B\xE4ume, \xD8\x31\x33 \xBD\xB0");
  EXPECT_EQ(CodePageText("\u20AC 5 \u2013 \u201Cnew\u201D\u2122 \u0178"), "\x80 5 \x96 \x93new\x94\x99 \x9F");
  EXPECT_EQ(CodePageText(std::string("\n\0\x7F", 3)), std::string("\n\0\x7F", 3));
}

TEST(CodePageText, RefusesCharactersWithoutAPlace) {
  for (const char* text : {"\u4E00", "\u0100", "\u0081", "\u009F", "\U0001F332", "\uFFFD"}) {
    EXPECT_EQ(CodePageText(text), std::nullopt) << text;
  }
}

TEST(CodePageText, RefusesWhatIsNoUtf8) {
  for (const char* text : {"\xE9", "\xC3", "\xC3(", "\xE2\x82", "\xC1\x81", "\xE0\x82\xAC", "\x80", "\xFF"}) {
    EXPECT_EQ(CodePageText(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tarnwick
