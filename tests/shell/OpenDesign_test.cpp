#include "shell/OpenDesign.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "geometry/modTooth.h"
#include "model/modZoom.h"
#include "store/modSave.h"
#include "support/CollectedMessages.h"
#include "support/Designs.h"
#include "support/OpenPath.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::PlainDesign;
using test::TemporaryFolder;

/// An open design on a surface of 10 by 7 inches.
class Open : public testing::Test {
 protected:
  Open() { design_.View.SetSurface({10, 7}); }

  std::string Stored(const char* name, const BandSaw& saw) const {
    return folder_.File(name, BandSawText(saw)).string();
  }
  bool OpenPath(const std::string& path) { return test::OpenPath(design_, path, say_); }

  TemporaryFolder folder_;
  CollectedMessages say_;
  OpenDesign design_;
};

TEST_F(Open, StartsBlankAndUntitled) {
  EXPECT_EQ(design_.Caption(), "untitled.bsw - Tarnwick");
  EXPECT_TRUE(SameSaw(design_.Saw, BandSaw{}));
  EXPECT_TRUE(design_.Lines.Entities.empty());
  EXPECT_EQ(design_.View.ScaleText(), "1.0");
}

TEST_F(Open, ReadsANameInAnyScript) {
  std::filesystem::create_directory(folder_ / "Säge 木");
  const std::filesystem::path path =
      folder_.File("Säge 木/Weiß.bsw", BandSawText(PlainDesign())).make_preferred();
  ASSERT_TRUE(OpenPath(PathText(path)));
  EXPECT_EQ(design_.Caption(), "Weiß.bsw - Tarnwick");
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(Open, CalculatesTheDesignAndItsDrawing) {
  BandSaw expected = PlainDesign();
  const EntityList drawing = CalculateSaw(expected, design_.Settings.Calculation, say_);
  ASSERT_TRUE(OpenPath(Stored("head.bsw", PlainDesign())));
  EXPECT_TRUE(SameSaw(design_.Saw, expected));
  EXPECT_EQ(design_.Lines.Count(), drawing.Count());
  EXPECT_EQ(design_.Saw.Pitch, 2);
}

TEST_F(Open, CountsAsUnchangedWithAllThatTheCalculationCorrected) {
  ASSERT_TRUE(OpenPath(Stored("head.bsw", PlainDesign())));
  EXPECT_TRUE(SameSaw(design_.Saw, design_.SawSaved));
  EXPECT_TRUE(SameSaw(design_.Saw, design_.SawEdit));
}

TEST_F(Open, ShowsTrueSizeAndLimitsZoomingByTheBand) {
  ASSERT_TRUE(OpenPath(Stored("head.bsw", PlainDesign())));
  EXPECT_EQ(design_.View.ScaleText(), "1.0");
  const Extents extents = ComputeExtents(design_.Lines);
  EXPECT_DOUBLE_EQ(design_.View.FullScale(), 200 / (extents.MaxX - extents.MinX));
}

TEST_F(Open, TakesAnIncompleteFileWithAMessage) {
  const std::string text = BandSawText(PlainDesign());
  const std::string path = folder_.File("torn.bsw", text.substr(0, 1500)).string();
  EXPECT_TRUE(OpenPath(path));
  EXPECT_EQ(design_.FileName, "torn.bsw");
  EXPECT_EQ(design_.Saw.NumTeeth, 120);
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"File is incomplete. What could be read is shown."});
}

TEST_F(Open, OnlyReadsARefusedFileAndBlanksTheDesign) {
  ASSERT_TRUE(OpenPath(Stored("head.bsw", PlainDesign())));
  const std::string path = folder_.File("list.bsw", "Shopping list").string();
  EXPECT_FALSE(OpenPath(path));
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"Not a valid Band Saw File     "});
  EXPECT_EQ(test::BytesOf(path), "Shopping list");
  EXPECT_TRUE(SameSaw(design_.Saw, BandSaw{}));
  EXPECT_TRUE(design_.Lines.Entities.empty());
}

TEST_F(Open, ClearsTheDesignButNeitherItsNameNorTheView) {
  ASSERT_TRUE(OpenPath(Stored("head.bsw", PlainDesign())));
  ASSERT_TRUE(design_.ViewAll());
  const double scale = design_.View.Scale();
  design_.ClearSaw();
  EXPECT_TRUE(SameSaw(design_.Saw, BandSaw{}));
  EXPECT_TRUE(design_.Lines.Entities.empty());
  EXPECT_EQ(design_.FileName, "head.bsw");
  EXPECT_EQ(design_.View.Scale(), scale);
}

TEST_F(Open, ViewsTheWholeBandInTheMiddle) {
  ASSERT_TRUE(OpenPath(Stored("head.bsw", PlainDesign())));
  ASSERT_TRUE(design_.ViewAll());
  const Extents extents = ComputeExtents(design_.Lines);
  const Spot middle = design_.View.CurrentMapping().ToSurface(extents.CenterX, extents.CenterY);
  EXPECT_NEAR(middle.X, 5 * PixelsPerInch, 2);
  EXPECT_NEAR(middle.Y, 3.5 * PixelsPerInch, 2);
}

TEST_F(Open, ShowsTheTeethOfAWideBandAtTrueSize) {
  BandSaw saw = PlainDesign();
  saw.Width = 12;
  ASSERT_TRUE(OpenPath(Stored("wide.bsw", saw)));
  const Spot teeth = design_.View.CurrentMapping().ToSurface(0, 12 - 0.35);
  EXPECT_NEAR(teeth.Y, 3.5 * PixelsPerInch, 2);
}

TEST_F(Open, HasNoSegmentToShowOfABandOfEvenPitch) {
  ASSERT_TRUE(OpenPath(Stored("head.bsw", PlainDesign())));
  EXPECT_FALSE(design_.ViewSegment());
}

}  // namespace
}  // namespace tarnwick
