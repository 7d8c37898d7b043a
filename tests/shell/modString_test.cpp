#include "shell/modString.h"

#include <gtest/gtest.h>

#include <map>
#include <string_view>

namespace tarnwick {
namespace {

const std::map<int, std::string_view> Texts = {
    {1, "Click to activate tooth style input box."},
    {2, "Click to activate bandSaw length input box."},
    {3, "Click to activate number of teeth input box."},
    {4, "Click to activate hook angle input box."},
    {5, "Hint: Add one degree to hook if BandSaw has a seat."},
    {6, "Click to activate clearance angle input box."},
    {7, "Click to activate gullet radius input box."},
    {8, "Click to activate the first gullet radius input box."},
    {9, "Click to activate the second gullet radius input box."},
    {10, "Click to activate the third gullet radius input box."},
    {11, "Click to activate the gullet depth input box."},
    {12, "Click to activate the back radius input box."},
    {13, "Click to activate the bottom angle input box."},
    {14, "Click to activate the bandsaw width input box."},
    {15, "Click to activate the tooth pitch input box."},
    {16, "Click to activate the gullet width input box."},
    {17, "Click to activate the tooth back angle input box."},
    {18, "Click to activate the tip clearance input box."},
    {19, "Click to activate the seat input box."},
    {20, "Click to activate the seat width input box."},
    {21, "Click to activate the seat height input box."},
    {22, "Click to start a new blank bandsaw."},
    {23, "Click to start a new bandsaw step by step."},
    {24, "Click to open an existing bandsaw file."},
    {25, "Click to save the current bandsaw file."},
    {26, "Click to print the bandsaw infomation."},
    {27, "Click to display the main information window."},
    {28, "Click to display the general information window."},
    {29, "Click to display the tooth shape editor window."},
    {30, "Click to display the variable pitch editor window."},
    {31, "Click to display the power requirements window."},
    {32, "Click to open bandsaw length calculator window."},
    {33, "Click to fit bandsaw to the display window."},
    {34, "Click to view bandsaw at one to one scale."},
    {35, "Check to turn on quick click display."},
    {36, "Check to turn off quick click display."},
    {37, "Type the name of the bandsaws designer here."},
    {38, "Type the name of the company the bandsaw is for."},
    {39, "Type the number of bandsaws required."},
    {40, "Click to activate the type of tip input box."},
    {41, "Click to activate the plate thickness input box."},
    {42, "Click to activate the tip kerf input box."},
    {43, "Click to change to imperial measurements."},
    {44, "Click to change to metric measurements."},
    {45, "The area or average area of the tooth gullet."},
    {46, "The area or average area of gullet below tip."},
    {47, "Select the number of teeth in segment."},
    {48, "The length of one segment of variable pitch teeth."},
    {49, "Check if you want variable depth gullets."},
    {50, "Click to activate the first gullet depth input box."},
    {51, "Click to activate the second gullet depth input box."},
    {52, "Click to activate the third gullet depth input box."},
    {53, "Click to activate the fourth gullet depth input box."},
    {54, "Click to activate the fifth gullet depth input box."},
    {55, "Click to activate the first tooth pitch  input box."},
    {56, "Click to activate the second tooth pitch input box."},
    {57, "Click to activate the third tooth pitch input box."},
    {58, "Click to activate the fourth tooth pitch input box."},
    {59, "Click to activate the fifth tooth pitch input box."},
    {60, "Displays the average gullet depth."},
    {61, "Displays the average tooth pitch."},
    {62, "Click to select no preset tooth pitch pattern."},
    {63, "Click to select the preset left to right tooth pitch pattern."},
    {64, "Click to select the preset right to left tooth pitch pattern."},
    {65, "Click to select the preset mixed tooth pitch pattern."},
    {66, "Click to accept the variable pitch values."},
    {67, "Click to discard any variable pitch changes."},
    {68, "Click to print one section of variable pitch teeth."},
    {69, "Click to reset all variable pitch values."},
    {70, "Click to accept the tooth shape values."},
    {71, "Click to discard any tooth shape changes."},
    {72, "Click to accept the general information values."},
    {73, "Click to discard any general information changes."},
    {74, "Click to accept the power requirement values."},
    {75, "Click to discard any power requirement changes."},
    {76, "Click to select calculated values."},
    {77, "Click to quit bandsaw calculator."},
    {78, "Click to select center to center between wheels!"},
    {79, "Click to select plate thickness!"},
    {80, "Click to select wheel rim width."},
    {81, "Select to choose your own bandsaw length value."},
    {82, "Select to choose the inside bandsaw length."},
    {83, "Select to choose the middle of the bandsaw length."},
    {84, "Select to choose the outside of the bandsaw length."},
    {100, "To change this value you must use the tooth shape editor."},
    {101, "To change this value you must use the bandsaw length calculator."},
    {102, "To change this value you must use the variable pitch editor."},
    {103, "To change this value you must use the power requirements editor."},
    {104, "To change this value you must use the general information editor."},
    {200, "Turn Quick Click Display On"},
    {201, "Turn Quick Click Display Off"},
};

TEST(NumberedTexts, AreTheSystemsOwn) {
  for (const auto& [number, text] : Texts) EXPECT_EQ(NumberedText(number), text) << number;
}

TEST(NumberedTexts, AreEmptyForEveryOtherNumber) {
  for (int number = -300; number <= 300; ++number) {
    if (!Texts.contains(number)) {
      EXPECT_EQ(NumberedText(number), "") << number;
    }
  }
}

TEST(NumberedTexts, HaveTheirNames) {
  EXPECT_EQ(NumberedText(QuickOnHint), "Check to turn on quick click display.");
  EXPECT_EQ(NumberedText(QuickOffHint), "Check to turn off quick click display.");
  EXPECT_EQ(NumberedText(QuickOnText), "Turn Quick Click Display On");
  EXPECT_EQ(NumberedText(QuickOffText), "Turn Quick Click Display Off");
}

}  // namespace
}  // namespace tarnwick
