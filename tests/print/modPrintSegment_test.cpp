#include "print/modPrintSegment.h"

#include <gtest/gtest.h>

#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

using test::PiecesOf;

const PrintPage Upright = PageFor({});
const PrintPage Turned = PageFor({.Turned = PaperOrientation::Landscape});

BandSaw Band() {
  BandSaw saw;
  saw.Width = 5;
  saw.GulletInfo.Depth = 0.75;
  return saw;
}

PaperMapping MappingOn(const PrintPage& page) { return MappingOnPage(Band(), page, 5); }

EntityList SegmentUpTo(double end) {
  EntityList list;
  list.Entities = {LineEntity{0, 4, end / 2, 5}, LineEntity{end / 2, 5, end, 4}};
  return list;
}

struct CountRow {
  double End;  // in
  int Upright, Turned;
};

TEST(SegmentSheets, AreAsManyAsTheFrameHoldsOfIt) {
  // 7 inches a sheet upright, 10 lying; the first begins a quarter inch before the segment.
  const CountRow rows[] = {{0.5, 1, 1},    {6.75, 1, 1},  {6.7501, 2, 1}, {9.75, 2, 1},
                           {9.7501, 2, 2}, {13.75, 2, 2}, {13.76, 3, 2},  {69.75, 10, 7}};
  for (const auto& row : rows) {
    const EntityList segment = SegmentUpTo(row.End);
    EXPECT_EQ(SegmentSheets(segment, MappingOn(Upright), Upright), row.Upright) << row.End;
    EXPECT_EQ(SegmentSheets(segment, MappingOn(Turned), Turned), row.Turned) << row.End;
  }
}

TEST(SegmentSheets, AreOneForNothing) { EXPECT_EQ(SegmentSheets({}, MappingOn(Upright), Upright), 1); }

TEST(SegmentSheets, AskForAPieceOfEveryKind) {
  EntityList list;
  const auto sheetsFor = [&](const Entity& entity) {
    list.Entities = {LineEntity{0, 4, 1, 4}, entity, LineEntity{0, 4, 1, 4}};
    return SegmentSheets(list, MappingOn(Upright), Upright);
  };
  EXPECT_EQ(sheetsFor(ArcEntity{6, 4, 1, 90, 270}), 1) << "the arc bulges to the left";
  EXPECT_EQ(sheetsFor(ArcEntity{6, 4, 1, 270, 90}), 2);
  EXPECT_EQ(sheetsFor(CircleEntity{6, 4, 1}), 2);
  EXPECT_EQ(sheetsFor(SolidEntity{1, 4, 7, 4, 7, 3, 1, 3}), 2);
  EXPECT_EQ(sheetsFor(TextEntity{7, 4, 0.1, 0, {}}), 2);
}

TEST(SegmentSheets, EndSomewhereForAbsurdMeasures) {
  EXPECT_EQ(SegmentSheets(SegmentUpTo(1e300), MappingOn(Upright), Upright), 32767);
}

PrintSheet Part(const EntityList& segment, const PrintPage& page, int number) {
  PrintSheet sheet;
  AppendSegmentPart(sheet, segment, MappingOn(page), page, number, 3);
  return sheet;
}

TEST(SegmentPart, HasNoSeamOnTheFirstSheet) {
  const PrintSheet sheet = Part(SegmentUpTo(12), Upright, 1);
  EXPECT_TRUE(std::holds_alternative<SheetClip>(sheet[0]));
  EXPECT_EQ(PiecesOf<SheetLine>(sheet).size(), 2U);
}

TEST(SegmentPart, HasADottedSeamOnEveryOtherSheet) {
  const struct {
    const PrintPage& Page;
    double Foot;
  } rows[] = {{Upright, 15840 - 1440}, {Turned, 11520 - 1440}};
  for (const auto& [page, foot] : rows) {
    const PrintSheet sheet = Part(SegmentUpTo(12), page, 2);
    ASSERT_GE(sheet.size(), 5U);
    EXPECT_EQ(std::get<SheetPen>(sheet[0]).Pen, (PrintPen{1, true}));
    EXPECT_EQ(std::get<SheetLine>(sheet[1]).From, (PaperSpot{720, 1440}));
    EXPECT_EQ(std::get<SheetLine>(sheet[1]).To, (PaperSpot{720, foot}));
    EXPECT_EQ(std::get<SheetPen>(sheet[2]).Pen, (PrintPen{1, false}));
    EXPECT_EQ(std::get<SheetClip>(sheet[3]).Box, DrawingBox(page));
    EXPECT_EQ(std::get<SheetPen>(sheet[4]).Pen, (PrintPen{3, false}));
  }
}

TEST(SegmentPart, GoesOnWhereTheSheetBeforeEnds) {
  const EntityList segment = SegmentUpTo(12);
  const SheetLine first = PiecesOf<SheetLine>(Part(segment, Upright, 1))[1];
  const SheetLine second = PiecesOf<SheetLine>(Part(segment, Upright, 2))[1];  // behind the seam
  EXPECT_NEAR(second.From.X, first.From.X - 10080, 1e-6);
  EXPECT_NEAR(second.To.X, first.To.X - 10080, 1e-6);
  EXPECT_EQ(second.From.Y, first.From.Y);
}

TEST(SegmentPart, HasOnlyThePiecesOfItsSheet) {
  EntityList list;
  for (int i = 0; i < 14; ++i) list.Entities.push_back(LineEntity{i + 0.1, 4, i + 0.9, 4});
  EXPECT_EQ(PiecesOf<SheetLine>(Part(list, Upright, 1)).size(), 7U) << "0 to 6.75 in";
  EXPECT_EQ(PiecesOf<SheetLine>(Part(list, Upright, 2)).size(), 1U + 8U) << "the seam; 6.75 to 13.75 in";
  EXPECT_EQ(PiecesOf<SheetLine>(Part(list, Upright, 3)).size(), 1U + 1U) << "the seam; the rest of the last";
}

}  // namespace
}  // namespace tarnwick
