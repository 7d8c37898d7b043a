#include "print/modPrintSheet.h"

#include <gtest/gtest.h>

#include "support/RecordingPrintDevice.h"

namespace tarnwick {
namespace {

/// What the device got of a sheet.
PrintSheet Sent(const PrintSheet& sheet) {
  test::Texts log;
  test::RecordingPrintDevice device(log);
  EXPECT_TRUE(device.Choose("Alpha"));
  EXPECT_FALSE(device.Begin("a"));
  SendSheet(sheet, device);
  EXPECT_FALSE(device.End());  // which fails the test when a clip is left
  return device.Jobs.front().Pages.front();
}

TEST(SendSheet, SendsEveryKindOfPieceAsItIs) {
  const PrintSheet sheet{SheetText{{1, 2}, "in²", {9, true}},
                         SheetPen{{7, true}},
                         SheetLine{{3, 4}, {5, 6}},
                         SheetClip{{10, 20, 30, 40}},
                         SheetArc{{7, 8}, 9, 10, 350},
                         SheetCircle{{11, 12}, 13},
                         SheetSolid{{{{1, 1}, {2, 1}, {2, 2}, {1, 2}}}}};
  const PrintSheet sent = Sent(sheet);
  ASSERT_EQ(sent.size(), sheet.size());
  const auto& text = std::get<SheetText>(sent[0]);
  EXPECT_EQ(text.TopLeft, (PaperSpot{1, 2}));
  EXPECT_EQ(text.Text, "in²");
  EXPECT_EQ(text.Font, (PrintFont{9, true}));
  EXPECT_EQ(std::get<SheetPen>(sent[1]).Pen, (PrintPen{7, true}));
  const auto& line = std::get<SheetLine>(sent[2]);
  EXPECT_EQ(line.From, (PaperSpot{3, 4}));
  EXPECT_EQ(line.To, (PaperSpot{5, 6}));
  EXPECT_EQ(std::get<SheetClip>(sent[3]).Box, (PaperBox{10, 20, 30, 40}));
  const auto& arc = std::get<SheetArc>(sent[4]);
  EXPECT_EQ(arc.Center, (PaperSpot{7, 8}));
  EXPECT_EQ(arc.Radius, 9);
  EXPECT_EQ(arc.Start, 10);
  EXPECT_EQ(arc.End, 350);
  const auto& circle = std::get<SheetCircle>(sent[5]);
  EXPECT_EQ(circle.Center, (PaperSpot{11, 12}));
  EXPECT_EQ(circle.Radius, 13);
  EXPECT_EQ(std::get<SheetSolid>(sent[6]).Corners[2], (PaperSpot{2, 2}));
}

TEST(SendSheet, SendsNothingOfAnEmptySheet) { EXPECT_TRUE(Sent({}).empty()); }

}  // namespace
}  // namespace tarnwick
