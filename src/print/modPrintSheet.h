#pragma once

#include <array>
#include <string>
#include <variant>
#include <vector>

#include "platform/PrintDevice.h"

namespace tarnwick {

// A printed sheet as a list of what is drawn on it. It is made whole before anything goes to a printer.

struct SheetText {
  PaperSpot TopLeft;
  std::string Text;
  PrintFont Font;
};

struct SheetLine {
  PaperSpot From, To;
};

/// Degrees, anticlockwise as the eye sees it.
struct SheetArc {
  PaperSpot Center;
  double Radius{}, Start{}, End{};
};

struct SheetCircle {
  PaperSpot Center;
  double Radius{};
};

struct SheetSolid {
  std::array<PaperSpot, 4> Corners;
};

/// From here on.
struct SheetPen {
  PrintPen Pen;
};

/// From here to the end of the sheet.
struct SheetClip {
  PaperBox Box;
};

using SheetPiece = std::variant<SheetText, SheetLine, SheetArc, SheetCircle, SheetSolid, SheetPen, SheetClip>;
using PrintSheet = std::vector<SheetPiece>;

/// Draws a sheet on the page in hand.
void SendSheet(const PrintSheet& sheet, PrintDevice& device);

}  // namespace tarnwick
