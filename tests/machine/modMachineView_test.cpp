#include "machine/modMachineView.h"

#include <gtest/gtest.h>

#include <limits>

#include "dxf/modDXF.h"
#include "machine/modWheel.h"
#include "support/CollectedMessages.h"
#include "support/Machines.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;
using test::Machine;

class MachineLists : public testing::Test {
 protected:
  void Build(const BandSaw& saw) {
    saw_ = saw;
    BuildMachineLists(saw_, view_, settings_, say_);
  }

  /// The band's six pieces stand at the end of the wheel list.
  template <class Kind>
  const Kind& OfBand(std::size_t i) const {
    return std::get<Kind>(view_.Wheels.Entities.at(view_.Wheels.Count() - 6 + i));
  }
  template <class Kind>
  const Kind& OfDimension(std::size_t i) const {
    return std::get<Kind>(view_.Dimension.Entities.at(i));
  }

  static void ExpectLine(const LineEntity& line, double x1, double y1, double x2, double y2) {
    EXPECT_EQ(line.Corner1X, x1);
    EXPECT_EQ(line.Corner1Y, y1);
    EXPECT_EQ(line.Corner4X, x2);
    EXPECT_EQ(line.Corner4Y, y2);
    EXPECT_FALSE(line.IsOutline);
    EXPECT_FALSE(line.IsDotted);
  }

  BandSaw saw_;
  MachineView view_;
  MachineSettings settings_;
  CollectedMessages say_;
};

// ---- corrections

TEST_F(MachineLists, CorrectTheRecord) {
  Build(Machine(20, 40));
  EXPECT_EQ(saw_.MachineInfo.WheelDia, 15);
  EXPECT_EQ(saw_.MachineInfo.CenterToCenter, 40);
  Build(Machine(5, 1));
  EXPECT_EQ(saw_.MachineInfo.CenterToCenter, 5 * 1.02);
  Build(Machine(5, 40));
  EXPECT_EQ(saw_.MachineInfo.CenterToCenter, 30);
  Build(Machine(0.1, 0.1));
  EXPECT_EQ(saw_.MachineInfo.WheelDia, 0.5);
  EXPECT_EQ(saw_.MachineInfo.CenterToCenter, 0.5 * 1.02);
}

TEST_F(MachineLists, CorrectWheelsThatHaveNoCentresYet) {
  Build(Machine(20, 0));
  EXPECT_EQ(saw_.MachineInfo.WheelDia, 15);
  EXPECT_EQ(saw_.MachineInfo.CenterToCenter, 0);
  EXPECT_TRUE(view_.Wheels.Entities.empty());
}

TEST_F(MachineLists, StayAsTheyWereWithoutWheelsOrCentres) {
  Build(Machine(5, 10));
  const std::size_t wheels = view_.Wheels.Count(), dimension = view_.Dimension.Count();
  constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
  for (const BandSaw& saw : {Machine(0, 10), Machine(-1, 10), Machine(4, 0), Machine(4, -1),
                             Machine(NoNumber, 10), Machine(4, NoNumber)}) {
    Build(saw);
    EXPECT_EQ(view_.Wheels.Count(), wheels);
    EXPECT_EQ(view_.Dimension.Count(), dimension);
    EXPECT_EQ(view_.WheelDia, 5);
    EXPECT_EQ(std::get<CircleEntity>(view_.Wheels.Entities[0]).Radius, 30);
  }
  EXPECT_EQ(Machine(0, 10).MachineInfo.CenterToCenter, 10);
}

TEST_F(MachineLists, AreMadeWholeEachTime) {
  Build(Machine(5, 10, 0.05));
  const std::size_t count = view_.Wheels.Count();
  Build(Machine(5, 10, 0.05));
  EXPECT_EQ(view_.Wheels.Count(), count);
  EXPECT_EQ(view_.Dimension.Count(), 7U);
}

// ---- the pieces

TEST_F(MachineLists, HoldTwoWheelsAndTheBand) {
  Build(Machine(5, 10, 0.05));
  EXPECT_EQ(view_.Wheels.Count(), 2 * (4 + 4 * 12) + 6U);
  EXPECT_EQ(view_.WheelDia, 5);
  const std::size_t upper = 4 + 4 * 12;
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(std::get<CircleEntity>(view_.Wheels.Entities[i]).CenterY, 0);
    EXPECT_EQ(std::get<CircleEntity>(view_.Wheels.Entities[upper + i]).CenterY, 120);
  }
  EXPECT_TRUE(say_.Shown.empty());
}

TEST_F(MachineLists, LeadTheBandAroundBothWheels) {
  Build(Machine(5, 10, 0.05));
  ExpectLine(OfBand<LineEntity>(0), 30, 0, 30, 120);
  ExpectLine(OfBand<LineEntity>(1), 30.05, 0, 30.05, 120);
  ExpectLine(OfBand<LineEntity>(2), -30, 0, -30, 120);
  ExpectLine(OfBand<LineEntity>(3), -30.05, 0, -30.05, 120);
  const auto& lower = OfBand<ArcEntity>(4);
  EXPECT_EQ(lower.CenterX, 0);
  EXPECT_EQ(lower.CenterY, 0);
  EXPECT_EQ(lower.Radius, 30.05);
  EXPECT_EQ(lower.StartAngle, 180);
  EXPECT_EQ(lower.EndAngle, 360);
  const auto& upper = OfBand<ArcEntity>(5);
  EXPECT_EQ(upper.CenterX, 0);
  EXPECT_EQ(upper.CenterY, 120);
  EXPECT_EQ(upper.Radius, 30.05);
  EXPECT_EQ(upper.StartAngle, 0);
  EXPECT_EQ(upper.EndAngle, 180);
}

TEST_F(MachineLists, ShowABandWithoutAPlateToo) {
  Build(Machine(5, 10));
  ExpectLine(OfBand<LineEntity>(1), 30, 0, 30, 120);
  EXPECT_EQ(OfBand<ArcEntity>(4).Radius, 30);
}

TEST_F(MachineLists, DimensionTheCentres) {
  Build(Machine(5, 10));
  ASSERT_EQ(view_.Dimension.Count(), 7U);
  ExpectLine(OfDimension<LineEntity>(0), -1, 0, -51, 0);
  ExpectLine(OfDimension<LineEntity>(1), -1, 120, -51, 120);
  ExpectLine(OfDimension<LineEntity>(2), -48, 0, -48, 58.5);
  ExpectLine(OfDimension<LineEntity>(3), -48, 61.5, -48, 120);
  const auto& text = OfDimension<TextEntity>(4);
  EXPECT_EQ(text.Corner1X, -48);
  EXPECT_EQ(text.Corner1Y, 60);
  EXPECT_EQ(text.TextHeight, 0.25);
  EXPECT_EQ(text.TextAngle, 0);
  EXPECT_EQ(text.Text.View(), " 10.000 ft          ");
}

TEST_F(MachineLists, PointTheArrowsAtTheCentres) {
  Build(Machine(5, 10));
  const auto expectArrow = [](const SolidEntity& arrow, double tip, double base) {
    EXPECT_EQ(arrow.Corner1X, -48);
    EXPECT_EQ(arrow.Corner1Y, tip);
    EXPECT_EQ(arrow.Corner2X, -47.5);
    EXPECT_EQ(arrow.Corner2Y, base);
    EXPECT_EQ(arrow.Corner3X, -48.5);
    EXPECT_EQ(arrow.Corner3Y, base);
    EXPECT_EQ(arrow.Corner4X, -48);
    EXPECT_EQ(arrow.Corner4Y, tip);
  };
  expectArrow(OfDimension<SolidEntity>(5), 0, 3);
  expectArrow(OfDimension<SolidEntity>(6), 120, 117);
}

TEST_F(MachineLists, WriteTheDistanceInTheUnitsInUse) {
  settings_.ImpMetric = Metric;
  settings_.Calculation.DisplayPlaces = 2;
  Build(Machine(5, 10));
  EXPECT_EQ(OfDimension<TextEntity>(4).Text.Trimmed(), "3.05 m");
  ExpectLine(OfDimension<LineEntity>(1), -1, 120, -51, 120);  // the drawing stays in inches
}

TEST_F(MachineLists, LeaveTheRimOutOfAccount) {
  const auto drawing = [this] {
    return DxfText(MergedLists(view_, MemorySizeRange.Least, say_), {}).value();
  };
  BandSaw saw = Machine(5, 10, 0.05);
  Build(saw);
  const std::string before = drawing();
  saw.MachineInfo.Width = 12;
  Build(saw);
  EXPECT_EQ(drawing(), before);
  EXPECT_EQ(saw_.MachineInfo.Width, 12);
}

TEST_F(MachineLists, HaveNoHeader) {
  Build(Machine(5, 10));
  for (const EntityList* list : {&view_.Wheels, &view_.Dimension}) {
    EXPECT_EQ(list->Header.MaxX, 0);
    EXPECT_EQ(list->Header.MaxY, 0);
    EXPECT_EQ(list->Header.ViewCenterX, 0);
    EXPECT_EQ(list->Header.ViewCenterY, 0);
  }
}

TEST_F(MachineLists, TellOfAMemoryTooSmallForTheBand) {
  settings_.Calculation.MemorySize = 8 * (2 * (4 + 4 * 12) + 5);
  Build(Machine(5, 10));
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"Increase dxf memory!"});
  EXPECT_EQ(view_.Wheels.Count(), 2 * (4 + 4 * 12));  // the band is missing
  EXPECT_EQ(view_.Dimension.Count(), 7U);
}

TEST_F(MachineLists, NeverNeedMoreThanTheLeastMemory) {
  settings_.Calculation.MemorySize = MemorySizeRange.Least;
  for (double d = 0.5; d <= 15; d += 0.25) {
    Build(Machine(d, 3 * d, 0.05));
    EXPECT_EQ(MergedLists(view_, MemorySizeRange.Least, say_).Count(),
              view_.Wheels.Count() + view_.Dimension.Count());
  }
  EXPECT_TRUE(say_.Shown.empty());
}

// ---- both lists in one

TEST_F(MachineLists, MergeWheelsFirst) {
  Build(Machine(5, 10));
  const EntityList merged = MergedLists(view_, settings_.Calculation.MemorySize, say_);
  ASSERT_EQ(merged.Count(), view_.Wheels.Count() + 7);
  EXPECT_TRUE(std::holds_alternative<CircleEntity>(merged.Entities.front()));
  EXPECT_TRUE(std::holds_alternative<SolidEntity>(merged.Entities.back()));
  EXPECT_EQ(merged.Header.MaxX, 0);
}

TEST_F(MachineLists, StayShortWhenTheMemoryDoes) {
  Build(Machine(5, 10));
  const EntityList merged = MergedLists(view_, 8 * 110, say_);
  EXPECT_EQ(merged.Count(), view_.Wheels.Count());
  EXPECT_EQ(say_.Texts(), std::vector<std::string>{"Increase dxf memory!"});
}

// ---- the scale

class MachineZoomTest : public MachineLists {
 protected:
  EntityList Merged() { return MergedLists(view_, settings_.Calculation.MemorySize, say_); }
};

TEST_F(MachineZoomTest, FitsTheHeight) {
  Build(Machine(5, 10));
  MachineZoom zoom;
  ZoomAllMachine(Merged(), {960, 480}, zoom);
  EXPECT_NEAR(zoom.Box.MinY, -30, 2e-6);
  EXPECT_EQ(zoom.Box.MaxY, 150);
  EXPECT_NEAR(zoom.Box.MinX, -51, 2e-6);
  EXPECT_EQ(zoom.Box.MaxX, 30);
  EXPECT_NEAR(zoom.Scale, 5 / 180.0 * 0.95, 1e-6);
  EXPECT_EQ(zoom.Scale, RoundTo(zoom.Scale, 6));
}

TEST_F(MachineZoomTest, DoesNotAskAboutTheWidth) {
  Build(Machine(5, 10));
  MachineZoom narrow, wide;
  ZoomAllMachine(Merged(), {10, 480}, narrow);
  ZoomAllMachine(Merged(), {9600, 480}, wide);
  EXPECT_EQ(narrow.Scale, wide.Scale);
}

TEST_F(MachineZoomTest, FitsTheWidthOfWhatIsWider) {
  EntityList list;
  list.Entities = {LineEntity{0, 0, 40, 20, false, false}};
  MachineZoom zoom;
  ZoomAllMachine(list, {192, 9600}, zoom);
  EXPECT_EQ(zoom.Scale, RoundTo(2 / 40.0 * 0.95, 6));
}

TEST_F(MachineZoomTest, KeepsTheScaleOfAPictureWithoutWidth) {
  MachineZoom zoom{.Scale = 0.125, .Box = {}};
  ZoomAllMachine({}, {960, 480}, zoom);
  EXPECT_EQ(zoom.Scale, 0.125);
}

TEST_F(MachineZoomTest, SeesEveryMillHigherThanWide) {
  for (double d = 0.5; d <= 15; d += 0.5) {
    for (const double c : {d, 3 * d, 9 * d}) {
      Build(Machine(d, c, 0.05));
      MachineZoom zoom;
      ZoomAllMachine(Merged(), {700, 1000}, zoom);
      const double width = zoom.Box.MaxX - zoom.Box.MinX, height = zoom.Box.MaxY - zoom.Box.MinY;
      EXPECT_LT(width / height, 0.7) << d << ' ' << c;
    }
  }
}

}  // namespace
}  // namespace tarnwick
