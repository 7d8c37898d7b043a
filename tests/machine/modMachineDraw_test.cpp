#include "machine/modMachineDraw.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "machine/modMachineSvg.h"
#include "support/CollectedMessages.h"
#include "support/Machines.h"
#include "support/RecordingCanvas.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;
using test::Machine;
using test::RecordingCanvas;
using Kind = RecordingCanvas::Kind;

class MachineDrawing : public testing::Test {
 protected:
  void Draw(const BandSaw& saw, PixelSize size = {700, 960}) {
    BandSaw copy = saw;
    BuildMachineLists(copy, view_, {}, say_);
    canvas_ = std::make_unique<RecordingCanvas>(size);
    DrawMachine(view_, zoom_, *canvas_, colours_, {});
  }

  std::ptrdiff_t CountOf(Kind kind) const {
    return std::count_if(canvas_->Calls.begin(), canvas_->Calls.end(),
                         [kind](const auto& call) { return call.What == kind; });
  }
  const RecordingCanvas::Call& First(Kind kind) const {
    return *std::find_if(canvas_->Calls.begin(), canvas_->Calls.end(),
                         [kind](const auto& call) { return call.What == kind; });
  }

  MachineView view_;
  MachineZoom zoom_;
  DisplaySettings colours_;
  CollectedMessages say_;
  std::unique_ptr<RecordingCanvas> canvas_;
};

TEST_F(MachineDrawing, OfNoWheelsIsAClearedSurface) {
  Draw(BandSaw{});
  ASSERT_EQ(canvas_->Calls.size(), 1U);
  EXPECT_EQ(canvas_->Calls[0].What, Kind::Clear);
  EXPECT_EQ(canvas_->Calls[0].Ink, colours_.BackGroundColor);
}

TEST_F(MachineDrawing, ShowsEveryPiece) {
  Draw(Machine(5, 10, 0.05));
  EXPECT_EQ(CountOf(Kind::Line), 2 * 12 * 2 + 4 + 4);
  EXPECT_EQ(CountOf(Kind::Arc), 2 * (4 + 12 * 2) + 2);
  EXPECT_EQ(CountOf(Kind::Text), 1);
  EXPECT_EQ(CountOf(Kind::Polygon), 2 + 1);  // two arrows, and the patch below the text
}

TEST_F(MachineDrawing, TakesTheColoursOfTheOtherDrawings) {
  Draw(Machine(5, 10));
  for (const auto& call : canvas_->Calls) {
    if (call.What != Kind::Line && call.What != Kind::Arc) continue;
    EXPECT_EQ(call.Ink, colours_.SawLineColor);
  }
  EXPECT_EQ(First(Kind::Text).Ink, colours_.TextColor);
}

TEST_F(MachineDrawing, StandsInTheMiddleAboveTheBottomEdge) {
  Draw(Machine(5, 10));
  // 180 in of mill on nineteen twentieths of 10 in of surface; the lower wheel ends at 97 % of it.
  const double pixels = zoom_.Scale * 96;
  EXPECT_NEAR(pixels, 960 * 0.95 / 180, 1e-4);
  const auto& rim = First(Kind::Arc);
  EXPECT_NEAR(rim.Spots[1].Y, 960 * 0.97, 0.01);
  const double middle = (rim.Spots[0].X + rim.Spots[1].X) / 2;
  EXPECT_NEAR(middle, 350 + 10.5 * pixels, 0.01);  // the dimension at its left counts
}

TEST_F(MachineDrawing, LiesWithinItsSurface) {
  for (const PixelSize size : {PixelSize{700, 960}, {280, 388}}) {
    for (double d = 0.5; d <= 15; d += 0.5) {
      for (const double c : {d, 2 * d, 6 * d}) {
        Draw(Machine(d, c, 0.1), size);
        for (const auto& call : canvas_->Calls) {
          for (const Spot& spot : call.Spots) {
            EXPECT_TRUE(spot.X >= 0 && spot.X <= size.Width && spot.Y >= 0 && spot.Y <= size.Height)
                << d << ' ' << c << ' ' << size.Width;
          }
        }
      }
    }
  }
}

TEST_F(MachineDrawing, WritesOnAPatchOfTheBackground) {
  Draw(Machine(5, 10));
  const auto text = std::find_if(canvas_->Calls.begin(), canvas_->Calls.end(),
                                 [](const auto& call) { return call.What == Kind::Text; });
  const auto patch = text - 1;
  ASSERT_EQ(patch->What, Kind::Polygon);
  EXPECT_EQ(patch->Ink, colours_.BackGroundColor);
  EXPECT_EQ(text->Words, "10.000 ft");
  EXPECT_LT(patch->Spots[0].X, text->Spots[0].X);
  EXPECT_EQ(patch->Spots[0].Y, text->Spots[0].Y);
  EXPECT_EQ((text + 1)->Ink, colours_.SawLineColor);  // the arrows
}

TEST_F(MachineDrawing, WritesBesideTheBand) {
  for (const double times : {1.02, 2.0, 4.0, 6.0}) {
    Draw(Machine(5, 5 * times, 0.05), {440, 560});
    const auto text = std::find_if(canvas_->Calls.begin(), canvas_->Calls.end(),
                                   [](const auto& call) { return call.What == Kind::Text; });
    const double left = text->Spots[0].X, right = left + canvas_->TextSize(text->Words).Width;
    const double band = First(Kind::Arc).Spots[0].X - 0.05 * zoom_.Scale * 96;
    EXPECT_LT(right + 3, band) << times;  // with its patch
    const auto line = text - 2;           // of the dimension; the patch lies between
    ASSERT_EQ(line->What, Kind::Line);
    EXPECT_GT(line->Spots[0].X, left) << times;
    EXPECT_LT(line->Spots[0].X, right) << times;
  }
}

TEST_F(MachineDrawing, FollowsTheSizeOfTheSurface) {
  Draw(Machine(5, 10), {700, 960});
  const double before = zoom_.Scale;
  Draw(Machine(5, 10), {350, 480});
  EXPECT_NEAR(zoom_.Scale, before / 2, 1e-6);
}

TEST_F(MachineDrawing, StaysWhenTheWheelsAreTakenAway) {
  Draw(Machine(5, 10));
  const auto rim = First(Kind::Arc).Spots;
  Draw(Machine(0, 10));
  EXPECT_EQ(First(Kind::Arc).Spots, rim);
}

TEST_F(MachineDrawing, AsksNobodyAnything) {
  BandSaw saw = Machine(5, 10);
  BuildMachineLists(saw, view_, {}, say_);
  CalculationSettings tiny;
  tiny.MemorySize = 8;
  RecordingCanvas canvas({700, 960});
  DrawMachine(view_, zoom_, canvas, colours_, tiny);
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(MachineDrawing, IsAPictureOnASheet) {
  BandSaw saw = Machine(5, 10, 0.05);
  BuildMachineLists(saw, view_, {}, say_);
  const std::string svg = MachineSvgText(view_, {});
  EXPECT_NE(svg.find("width=\"7in\" height=\"10in\""), std::string::npos);
  EXPECT_NE(svg.find("10.000 ft"), std::string::npos);
  EXPECT_NE(svg.find("fill=\"#ffffff\""), std::string::npos);
}

TEST_F(MachineDrawing, IsAnEmptySheetWithoutWheels) {
  const std::string svg = MachineSvgText({}, {});
  EXPECT_NE(svg.find("width=\"7in\" height=\"10in\""), std::string::npos);
  EXPECT_EQ(svg.find("<path"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick
