#pragma once

#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "print/modPrintPage.h"
#include "print/modPrintSheet.h"

namespace tarnwick {

/// From the design's inches to a sheet's twips: x to the right of the origin, y up from it.
struct PaperMapping {
  double OriginX{}, OriginY{};  // of the design, on the sheet
  double ScaleX{}, ScaleY{};    // twips to the inch of the design

  [[nodiscard]] PaperSpot ToPaper(double x, double y) const {
    return {x * ScaleX + OriginX, OriginY - y * ScaleY};
  }
};

/// A band in true size: its teeth, from the tip to the bottom of the gullet, have their middle at the middle
/// of the frame, and its left end lies a quarter of an inch inside of it.
/// @param decimalPlaces  of the scale
[[nodiscard]] PaperMapping MappingOnPage(const BandSaw& saw, const PrintPage& page, int decimalPlaces);

/// The part of the frame that the paper has room for.
[[nodiscard]] PaperBox DrawingBox(const PrintPage& page);

/// What of a list lies in the box, cut at its border. Lines of the band's long outline are left out: they
/// would only frame the sheet.
/// @param lineThick  the width of the pen, 1 to 20 of the printer's dots
void AppendDrawing(PrintSheet& sheet, const EntityList& list, const PaperMapping& mapping,
                   const PaperBox& box, int lineThick);

}  // namespace tarnwick
