// Holds the printed sheets against those that were worked out apart from the program: data/print.jsonl, made
// by reference/print_sheet.py. Every text must agree to the last character, every place to a hundredth of a
// twip.

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <variant>
#include <vector>

#include "cli/JsonReader.h"
#include "geometry/modTooth.h"
#include "print/modPrint.h"
#include "print/modPrintRow.h"
#include "print/modPrintSaw.h"
#include "print/modPrintSegment.h"
#include "support/CollectedMessages.h"
#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

using nlohmann::json;

constexpr double Hair = 0.01;  // twips

std::vector<json> RowsOf(const std::string& op) {
  std::ifstream file(TARNWICK_TEST_DATA_DIR "/print.jsonl");
  std::vector<json> rows;
  for (std::string line; std::getline(file, line);) {
    json row = json::parse(line);
    if (row["op"] == op) rows.push_back(std::move(row));
  }
  return rows;
}

PrintPage PageOf(const json& row) {
  return PageFor({.Paper = row.value("paper", 1),
                  .Turned = row["landscape"] ? PaperOrientation::Landscape : PaperOrientation::Portrait});
}

BandSaw SawOf(const json& row) {
  const cli::JsonDesign design = cli::ReadDesignJson(row["saw"].dump());
  EXPECT_FALSE(design.Failed) << *design.Failed;
  return design.Saw;
}

TEST(PrintTable, HasTheRowsOfTheInformationSheet) {
  const std::vector<json> rows = RowsOf("Information");
  ASSERT_GE(rows.size(), 200U);
  for (const json& row : rows) {
    const DisplayFormat format{row["metric"], row["display"], row["places"]};
    const PrintRows printed =
        PlaceSections(InfoSections(SawOf(row), format, row["power"]), PageOf(row), test::EvenRuler());
    ASSERT_EQ(printed.Rows.size(), row["rows"].size()) << row;
    EXPECT_EQ(printed.Points, row["points"]) << row;
    for (std::size_t i = 0; i < printed.Rows.size(); ++i) {
      const PrintRow& got = printed.Rows[i];
      const json want = row["rows"][i];
      EXPECT_EQ(json({got.LabelX, got.Top, got.ValueX, got.Bottom, got.Label, got.Value, got.Heading}), want)
          << row["saw"];
    }
  }
}

/// A piece as the table writes it; nothing for pens and clips.
json PieceOf(const SheetPiece& piece) {
  if (const auto* line = std::get_if<SheetLine>(&piece)) {
    return {"LINE", line->From.X, line->From.Y, line->To.X, line->To.Y};
  }
  if (const auto* arc = std::get_if<SheetArc>(&piece)) {
    return {"ARC", arc->Center.X, arc->Center.Y, arc->Radius, arc->Start, arc->End};
  }
  return {};
}

std::vector<json> PiecesOf(const PrintSheet& sheet) {
  std::vector<json> pieces;
  for (const SheetPiece& piece : sheet) {
    if (json found = PieceOf(piece); !found.is_null()) pieces.push_back(std::move(found));
  }
  return pieces;
}

void ExpectPiece(const json& got, const json& want) {
  const bool isSeam = want[0] == "SEAM";
  const json meant = isSeam ? json({"LINE", want[1], want[2], want[1], want[3]}) : want;
  ASSERT_EQ(got.size(), meant.size());
  ASSERT_EQ(got[0], meant[0]);
  for (std::size_t i = 1; i < got.size(); ++i) EXPECT_NEAR(double(got[i]), double(meant[i]), Hair) << want;
}

void ExpectSheet(const PrintSheet& sheet, const json& want) {
  const std::vector<json> pieces = PiecesOf(sheet);
  ASSERT_EQ(pieces.size(), want.size());
  for (std::size_t i = 0; i < pieces.size(); ++i) ExpectPiece(pieces[i], want[i]);
}

CalculationSettings SettingsOf(const json& row) {
  CalculationSettings settings;
  const json& given = row["settings"];
  settings.DecimalPlaces = given.value("DecimalPlaces", settings.DecimalPlaces);
  settings.TeethDirection = given.value("TeethDirection", settings.TeethDirection);
  return settings;
}

TEST(PrintTable, HasThePiecesOfTheDrawings) {
  const std::vector<json> rows = RowsOf("Drawing");
  ASSERT_GE(rows.size(), 60U);
  for (const json& row : rows) {
    SCOPED_TRACE(row["saw"].dump());
    BandSaw saw = SawOf(row);
    const CalculationSettings settings = SettingsOf(row);
    test::CollectedMessages say;
    const bool isSegment = row["kind"] == "segment";
    const EntityList list =
        isSegment ? CalculateSegment(saw, settings, say) : CalculateSaw(saw, settings, say);
    const PrintPage page = PageOf(row);
    const PaperMapping mapping = MappingOnPage(saw, page, settings.DecimalPlaces);
    const int sheets = isSegment ? SegmentSheets(list, mapping, page) : 1;
    ASSERT_EQ(static_cast<std::size_t>(sheets), row["sheets"].size());
    for (int number = 1; number <= sheets; ++number) {
      PrintSheet sheet;
      if (isSegment) {
        AppendSegmentPart(sheet, list, mapping, page, number, 1);
      } else {
        AppendDrawing(sheet, list, mapping, DrawingBox(page), 1);
      }
      ExpectSheet(sheet, row["sheets"][static_cast<std::size_t>(number - 1)]);
    }
  }
}

TEST(PrintTable, HasTheTextsOfTheHeaders) {
  const std::vector<json> rows = RowsOf("Header");
  ASSERT_GE(rows.size(), 40U);
  for (const json& row : rows) {
    const std::vector<std::string> c = row["customer"];
    PrintSheet sheet;
    const double end = AppendHeader(
        sheet, {row["title"], row["date"], {c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8]}},
        PageLabel(1, 2), PageOf(row), test::EvenRuler());
    EXPECT_EQ(end, row["end"]);
    const auto texts = test::PiecesOf<SheetText>(sheet);
    ASSERT_EQ(texts.size(), row["texts"].size()) << row;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const json want = row["texts"][i];
      EXPECT_NEAR(texts[i].TopLeft.X, want[0], Hair) << row;
      EXPECT_NEAR(texts[i].TopLeft.Y, want[1], Hair) << row;
      EXPECT_EQ(texts[i].Text, want[2]);
      EXPECT_EQ(texts[i].Font, (PrintFont{want[3], want[4]})) << row;
    }
  }
}

}  // namespace
}  // namespace tarnwick
