#pragma once

#include <functional>
#include <string>

#include "entry/modFormat.h"
#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "model/modSettings.h"
#include "platform/Messages.h"
#include "print/modPrintHeader.h"
#include "print/modPrintPage.h"
#include "print/modPrintPower.h"
#include "print/modPrintSheet.h"
#include "store/modCfg.h"

namespace tarnwick {

/// What goes to a printer in one go: sheets, counted from 1, each made when its turn comes.
struct PrintJob {
  std::string Title;
  int Sheets{};
  std::function<PrintSheet(int)> Sheet;
};

/// The paper in use, and what all sheets have at their head.
struct Stationery {
  PrintPage Page;
  PrintHeader Header;
  const TextRuler& Ruler;
};

/// A design with what its sheets need of the settings.
struct SawPrint {
  const BandSaw& Saw;
  const EntityList& Lines;    // the whole band
  const EntityList& Segment;  // of a variable pitch band
  DisplayFormat Format;
  int LineThick = LeastLineThick;
  bool WithPower = false;
};

/// The segment as it is printed; nothing of a band that has none. Takes a copy: laying a segment out corrects
/// the design, which is to be printed as it stands.
[[nodiscard]] EntityList SegmentToPrint(BandSaw saw, const CalculationSettings& settings, Messages& messages);

// The jobs. They refer to what they are given, which has to outlive them.

/// The information, or the drawing, or one after the other.
[[nodiscard]] PrintJob SawJob(const SawPrint& print, const Stationery& stationery, SawPages pages);

/// One segment of a variable pitch band over as many sheets as it takes.
[[nodiscard]] PrintJob SegmentJob(const SawPrint& print, const Stationery& stationery);

/// One sheet of power figures.
[[nodiscard]] PrintJob PowerJob(const PowerSheetText& text, const Stationery& stationery);

/// Everything that can be printed of a design: both sheets of the saw, and the segment where there is one.
[[nodiscard]] PrintJob AllSheetsJob(const SawPrint& print, const Stationery& stationery);

}  // namespace tarnwick
