#pragma once

#include <string>
#include <vector>

#include "entry/modFormat.h"
#include "model/modBandSaw.h"
#include "print/modPrintPage.h"
#include "print/modPrintSheet.h"

namespace tarnwick {

/// A row of the information sheet before it has a place.
struct SheetRowText {
  std::string Label;
  std::string Value{};  // as FormatValue shows it, one blank ahead; empty in a heading and in a comment
  bool Heading = false;
  bool operator==(const SheetRowText&) const = default;
};
using SheetSection = std::vector<SheetRowText>;  // its heading first

/// What is known of a design, section by section: teeth, variable pitch, general, machine, power. Order and
/// conditions are not those of the panel, on purpose: measures that the panel leaves out at 0 stand here as 0
/// where the sheet has a place for them.
/// @param withPower  the user's setting; without it there is no power section, whatever the record holds
[[nodiscard]] std::vector<SheetSection> InfoSections(const BandSaw& saw, const DisplayFormat& format,
                                                     bool withPower);

/// A row in its place. Twips from the corner of the sheet.
struct PrintRow {
  double LabelX{}, Top{}, ValueX{}, Bottom{};
  std::string Label, Value;
  bool Heading = false;
  bool operator==(const PrintRow&) const = default;
};

/// Where a row of a column stands, counted from 0.
[[nodiscard]] PrintRow PlaceOfRow(int column, int row, const PrintPage& page);

/// The rows of a sheet, and the size of their letters.
struct PrintRows {
  std::vector<PrintRow> Rows;
  double Points = TextPoints;
};

/// Gives the sections their places: one below the other with an empty row between, in the next column when
/// the sheet ends. Values are wider than the columns stand apart, so a row keeps clear of the texts beside
/// it; on a sheet that is too full for that, letters are smaller.
[[nodiscard]] PrintRows PlaceSections(const std::vector<SheetSection>& sections, const PrintPage& page,
                                      const TextRuler& ruler);

void AppendRows(PrintSheet& sheet, const PrintRows& rows);

}  // namespace tarnwick
