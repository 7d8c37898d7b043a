#pragma once

#include <string>

#include "model/modChecked.h"
#include "platform/Messages.h"

namespace tarnwick {

// Some routines do not skip a failing statement but stop at it, and say so. They write `x = Need(expression)`
// where the others write `Let(x) = expression`, and run under HandleFailure. What they placed before the
// failure stays.

/// A statement's failure on its way to the handler of its routine. It never leaves HandleFailure.
struct StatementFailed {
  Failure Why;
};

/// The number; a failed expression stops the routine.
[[nodiscard]] inline double Need(Checked outcome) {
  if (!outcome.Ok()) throw StatementFailed{outcome.Why()};
  return outcome.OrZero();
}

/// Runs `routine`; a failure that stops it goes to `report` as its number and description. True when it came
/// to its end.
template <class Routine, class Report>
bool HandleFailure(Routine routine, Report report) {
  try {
    routine();
    return true;
  } catch (const StatementFailed& failed) {
    report(failed.Why);
    return false;
  }
}

/// The handler of the placing routines: shows the description of the failure and its number.
template <class Routine>
void PlaceOrReport(Messages& say, Routine routine) {
  HandleFailure(routine, [&say](Failure why) {
    say.Show({.Text = std::string(DescriptionOf(why)) +
                      "\nError Number = " + std::to_string(static_cast<int>(why))});
  });
}

}  // namespace tarnwick
