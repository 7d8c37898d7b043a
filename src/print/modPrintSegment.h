#pragma once

#include "model/modEntity.h"
#include "print/modPrintPage.h"
#include "print/modPrintSaw.h"
#include "print/modPrintSheet.h"

namespace tarnwick {

// A segment of a variable pitch band in true size is longer than a sheet: it goes over as many as it takes,
// to be laid together.

/// How many sheets the pieces of a segment need, at least one.
[[nodiscard]] int SegmentSheets(const EntityList& segment, const PaperMapping& mapping,
                                const PrintPage& page);

/// The part of the segment on a sheet, counted from 1. From the second on a dotted line at the left marks the
/// seam.
/// @param mapping  of the first sheet
void AppendSegmentPart(PrintSheet& sheet, const EntityList& segment, PaperMapping mapping,
                       const PrintPage& page, int number, int lineThick);

}  // namespace tarnwick
