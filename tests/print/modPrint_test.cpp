#include "print/modPrint.h"

#include <gtest/gtest.h>

#include <string>

#include "support/FullDesign.h"
#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

using test::FindText;
using test::PiecesOf;

/// A design with a band of one line, and a segment that needs three sheets upright.
class PrintJobs : public testing::Test {
 protected:
  PrintJobs() {
    lines_.Entities = {LineEntity{0, 4, 1, 5}};
    segment_.Entities = {LineEntity{0, 4, 8, 5}, LineEntity{8, 5, 16, 4}};
  }

  BandSaw Saw = test::FullDesign();
  Stationery Paper{PageFor({}), {"oak.bsw", "Nov, 21/26", {}}, ruler_};

  [[nodiscard]] SawPrint Print() const {
    return {.Saw = Saw, .Lines = lines_, .Segment = segment_, .Format = {}, .LineThick = 3};
  }

 private:
  test::EvenRuler ruler_;
  EntityList lines_, segment_;
};

bool IsInfo(const PrintSheet& sheet) { return FindText(sheet, "Band Saw Teeth:") != nullptr; }
std::size_t LinesOn(const PrintSheet& sheet) { return PiecesOf<SheetLine>(sheet).size(); }

TEST_F(PrintJobs, OfTheSawAreTheSheetsChosen) {
  const struct {
    SawPages Pages;
    int Sheets;
    bool InfoFirst;
    const char* LastLabel;
  } rows[] = {{SawPages::Both, 2, true, "Page 2 of 2"},
              {SawPages::Info, 1, true, "Page 1 of 1"},
              {SawPages::Drawing, 1, false, "Page 1 of 1"}};
  const SawPrint print = Print();
  for (const auto& row : rows) {
    const PrintJob job = SawJob(print, Paper, row.Pages);
    EXPECT_EQ(job.Title, "oak.bsw");
    ASSERT_EQ(job.Sheets, row.Sheets);
    const PrintSheet first = job.Sheet(1), last = job.Sheet(job.Sheets);
    EXPECT_EQ(IsInfo(first), row.InfoFirst);
    EXPECT_EQ(LinesOn(first), row.InfoFirst ? 0U : 1U);
    EXPECT_EQ(LinesOn(last), row.Pages == SawPages::Info ? 0U : 1U);
    EXPECT_TRUE(FindText(last, row.LastLabel)) << row.LastLabel;
    for (const PrintSheet& sheet : {first, last}) {
      EXPECT_TRUE(FindText(sheet, "oak.bsw"));
      EXPECT_TRUE(FindText(sheet, "Nov, 21/26"));
    }
  }
}

TEST_F(PrintJobs, DrawTheBandInTrueSizeWithTheChosenPen) {
  const SawPrint print = Print();
  const PrintSheet sheet = SawJob(print, Paper, SawPages::Drawing).Sheet(1);
  EXPECT_EQ(PiecesOf<SheetPen>(sheet).at(0).Pen, (PrintPen{3, false}));
  const SheetLine line = PiecesOf<SheetLine>(sheet).at(0);
  EXPECT_DOUBLE_EQ(line.To.X - line.From.X, 1440);
  EXPECT_DOUBLE_EQ(line.From.Y - line.To.Y, 1440);
  EXPECT_DOUBLE_EQ(line.From.X, 720 + 360);
}

TEST_F(PrintJobs, LeavePowerOutUnlessItIsWanted) {
  SawPrint print = Print();
  EXPECT_FALSE(FindText(SawJob(print, Paper, SawPages::Info).Sheet(1), "Power Requirements:"));
  print.WithPower = true;
  EXPECT_TRUE(FindText(SawJob(print, Paper, SawPages::Info).Sheet(1), "Power Requirements:"));
}

TEST_F(PrintJobs, OfASegmentAreItsTilesWithTheirOwnLabel) {
  const SawPrint print = Print();
  const PrintJob job = SegmentJob(print, Paper);
  ASSERT_EQ(job.Sheets, 3);
  for (int number = 1; number <= job.Sheets; ++number) {
    const PrintSheet sheet = job.Sheet(number);
    const SheetText* label = FindText(sheet, "Pg " + std::to_string(number) + " of 3");
    ASSERT_TRUE(label);
    EXPECT_DOUBLE_EQ(label->TopLeft.Y, 662.5);
    EXPECT_FALSE(FindText(sheet, "Page " + std::to_string(number) + " of 3"));
    EXPECT_TRUE(FindText(sheet, "oak.bsw"));
  }
  // Eight inches are 1.25 beyond the first sheet, and the second begins where that ends.
  EXPECT_DOUBLE_EQ(PiecesOf<SheetLine>(job.Sheet(2)).at(1).To.X, 720 + 1.25 * 1440);
  EXPECT_EQ(LinesOn(job.Sheet(1)), 1U) << "no seam ahead of the first";
  EXPECT_EQ(LinesOn(job.Sheet(3)), 2U) << "the seam, and the end";
}

TEST_F(PrintJobs, OfPowerAreOneSheetBelowItsHeader) {
  const PowerSheetText text{"Heading", {{PowerLine::Role::Figure, "Bite:", " 0.025 in"}}, "Foot"};
  const PrintJob job = PowerJob(text, Paper);
  ASSERT_EQ(job.Sheets, 1);
  const PrintSheet sheet = job.Sheet(1);
  const SheetText *label = FindText(sheet, "Page 1 of 1"), *heading = FindText(sheet, "Heading"),
                  *line = FindText(sheet, "Bite:");
  ASSERT_TRUE(label && heading && line && FindText(sheet, "Foot"));
  EXPECT_GE(heading->TopLeft.Y, label->TopLeft.Y + SheetRow);
  EXPECT_GE(line->TopLeft.Y, heading->TopLeft.Y + SheetRow);
}

TEST_F(PrintJobs, OfAllSheetsHaveTheSegmentOnlyOfAVariableBand) {
  const SawPrint print = Print();
  Saw.GeneralInfo.VariablePitch = False;
  EXPECT_EQ(AllSheetsJob(print, Paper).Sheets, 2);
  Saw.GeneralInfo.VariablePitch = True;
  const PrintJob job = AllSheetsJob(print, Paper);
  ASSERT_EQ(job.Sheets, 5);
  EXPECT_TRUE(IsInfo(job.Sheet(1)));
  EXPECT_TRUE(FindText(job.Sheet(2), "Page 2 of 2"));
  EXPECT_TRUE(FindText(job.Sheet(3), "Pg 1 of 3"));
  EXPECT_TRUE(FindText(job.Sheet(5), "Pg 3 of 3"));
}

}  // namespace
}  // namespace tarnwick
