#pragma once

#include <string>

#include "power/modPowerSheet.h"
#include "print/modPrintPage.h"
#include "print/modPrintSheet.h"

namespace tarnwick {

/// A sheet of power figures below its header.
struct PowerSheetText {
  std::string Heading;  // above the lines
  PowerLines Lines;
  std::string Foot;  // below them; empty: none
};

/// The heading, and below it the lines in two blocks of fifty rows. Where the sheet is too short for the
/// longer block its rows stand closer, with smaller letters where they would touch.
/// @param top  where the header ends
void AppendPowerLines(PrintSheet& sheet, const PowerSheetText& text, const PrintPage& page, double top);

}  // namespace tarnwick
