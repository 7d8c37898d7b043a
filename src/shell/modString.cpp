#include "shell/modString.h"

#include <iterator>

namespace tarnwick {
namespace {

constexpr std::string_view Hints[] = {
    "",
    "Click to activate tooth style input box.",
    "Click to activate bandSaw length input box.",  // spelt so
    "Click to activate number of teeth input box.",
    "Click to activate hook angle input box.",
    "Hint: Add one degree to hook if BandSaw has a seat.",
    "Click to activate clearance angle input box.",
    "Click to activate gullet radius input box.",
    "Click to activate the first gullet radius input box.",
    "Click to activate the second gullet radius input box.",
    "Click to activate the third gullet radius input box.",  // 10
    "Click to activate the gullet depth input box.",
    "Click to activate the back radius input box.",
    "Click to activate the bottom angle input box.",
    "Click to activate the bandsaw width input box.",
    "Click to activate the tooth pitch input box.",
    "Click to activate the gullet width input box.",
    "Click to activate the tooth back angle input box.",
    "Click to activate the tip clearance input box.",
    "Click to activate the seat input box.",
    "Click to activate the seat width input box.",  // 20
    "Click to activate the seat height input box.",
    "Click to start a new blank bandsaw.",
    "Click to start a new bandsaw step by step.",
    "Click to open an existing bandsaw file.",
    "Click to save the current bandsaw file.",
    "Click to print the bandsaw infomation.",  // spelt so
    "Click to display the main information window.",
    "Click to display the general information window.",
    "Click to display the tooth shape editor window.",
    "Click to display the variable pitch editor window.",  // 30
    "Click to display the power requirements window.",
    "Click to open bandsaw length calculator window.",
    "Click to fit bandsaw to the display window.",
    "Click to view bandsaw at one to one scale.",
    "Check to turn on quick click display.",
    "Check to turn off quick click display.",
    "Type the name of the bandsaws designer here.",  // spelt so
    "Type the name of the company the bandsaw is for.",
    "Type the number of bandsaws required.",
    "Click to activate the type of tip input box.",  // 40
    "Click to activate the plate thickness input box.",
    "Click to activate the tip kerf input box.",
    "Click to change to imperial measurements.",
    "Click to change to metric measurements.",
    "The area or average area of the tooth gullet.",
    "The area or average area of gullet below tip.",
    "Select the number of teeth in segment.",
    "The length of one segment of variable pitch teeth.",
    "Check if you want variable depth gullets.",
    "Click to activate the first gullet depth input box.",  // 50
    "Click to activate the second gullet depth input box.",
    "Click to activate the third gullet depth input box.",
    "Click to activate the fourth gullet depth input box.",
    "Click to activate the fifth gullet depth input box.",
    "Click to activate the first tooth pitch  input box.",  // the double blank is its own
    "Click to activate the second tooth pitch input box.",
    "Click to activate the third tooth pitch input box.",
    "Click to activate the fourth tooth pitch input box.",
    "Click to activate the fifth tooth pitch input box.",
    "Displays the average gullet depth.",  // 60
    "Displays the average tooth pitch.",
    "Click to select no preset tooth pitch pattern.",
    "Click to select the preset left to right tooth pitch pattern.",
    "Click to select the preset right to left tooth pitch pattern.",
    "Click to select the preset mixed tooth pitch pattern.",
    "Click to accept the variable pitch values.",
    "Click to discard any variable pitch changes.",
    "Click to print one section of variable pitch teeth.",
    "Click to reset all variable pitch values.",
    "Click to accept the tooth shape values.",  // 70
    "Click to discard any tooth shape changes.",
    "Click to accept the general information values.",
    "Click to discard any general information changes.",
    "Click to accept the power requirement values.",
    "Click to discard any power requirement changes.",
    "Click to select calculated values.",
    "Click to quit bandsaw calculator.",
    "Click to select center to center between wheels!",
    "Click to select plate thickness!",
    "Click to select wheel rim width.",  // 80
    "Select to choose your own bandsaw length value.",
    "Select to choose the inside bandsaw length.",
    "Select to choose the middle of the bandsaw length.",
    "Select to choose the outside of the bandsaw length.",
};
static_assert(std::size(Hints) == 85);

constexpr int FirstMustUse = 100;
constexpr std::string_view MustUse[] = {
    "To change this value you must use the tooth shape editor.",
    "To change this value you must use the bandsaw length calculator.",
    "To change this value you must use the variable pitch editor.",
    "To change this value you must use the power requirements editor.",
    "To change this value you must use the general information editor.",
};

}  // namespace

std::string_view NumberedText(int number) {
  if (number == QuickOnText) return "Turn Quick Click Display On";
  if (number == QuickOffText) return "Turn Quick Click Display Off";
  if (number >= 0 && number < static_cast<int>(std::size(Hints))) return Hints[number];
  const int mustUse = number - FirstMustUse;
  if (mustUse >= 0 && mustUse < static_cast<int>(std::size(MustUse))) return MustUse[mustUse];
  return {};
}

}  // namespace tarnwick
