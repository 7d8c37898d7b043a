#include "geometry/modCrossing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>

#include "support/Shapes.h"

namespace tarnwick {
namespace {

using test::Near;

const PlaneKit Kit(5);
constexpr Point Untouched{77, 88};
// What five places leave of a crossing after a chain of rounded distances and angles.
constexpr double Rounded = 5e-5;

// ---- a line and an arc

struct ArcRow {
  const char* Name;
  ToothLine Line;
  ToothArc Arc;
  std::optional<Point> Want;
  friend void PrintTo(const ArcRow& row, std::ostream* out) { *out << row.Name; }
};
class LineAndArc : public testing::TestWithParam<ArcRow> {};

TEST_P(LineAndArc, CrossWithinTheSweep) {
  const ArcRow& row = GetParam();
  Point out = Untouched;
  EXPECT_EQ(LineMeetsArc(Kit, row.Line, row.Arc, out), row.Want.has_value());
  EXPECT_TRUE(Near(out, row.Want.value_or(Untouched), Rounded));
}

std::string NameOf(const testing::TestParamInfo<ArcRow>& row) { return row.param.Name; }

// A circle of radius 1 on (0, 5). The upright line at X = 0.5 crosses it at 60 degrees (upper) and at 300
// degrees (lower); seen from the line's end, the lower crossing is the near one.
constexpr ToothLine Upright{{0.5, 8}, {0.5, 0}};
const Point Upper{0.5, 5 + std::sqrt(0.75)};
const Point Lower{0.5, 5 - std::sqrt(0.75)};
constexpr ToothArc Arc(double start, double end) { return {0, 5, 1, start, end}; }

INSTANTIATE_TEST_SUITE_P(StartBehindTheLowerCrossing, LineAndArc,
                         testing::Values(ArcRow{"EndsBeforeTheUpper", Upright, Arc(310, 40), std::nullopt},
                                         ArcRow{"EndsBeforeItsStart", Upright, Arc(340, 320), Lower},
                                         ArcRow{"ShortOne", Upright, Arc(310, 350), std::nullopt},
                                         ArcRow{"EndsBetween", Upright, Arc(310, 120), Upper}),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(StartBeforeTheUpperCrossing, LineAndArc,
                         testing::Values(ArcRow{"EndsBeforeItsStart", Upright, Arc(50, 20), Lower},
                                         ArcRow{"ShortOne", Upright, Arc(20, 50), std::nullopt},
                                         ArcRow{"EndsBehindTheLower", Upright, Arc(20, 330), Lower},
                                         ArcRow{"EndsBetween", Upright, Arc(20, 120), Upper}),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(StartBetweenTheCrossings, LineAndArc,
                         testing::Values(ArcRow{"GulletOfATooth", Upright, Arc(180, 350), Lower},
                                         ArcRow{"EndsBeforeItsStart", Upright, Arc(180, 100), Lower},
                                         ArcRow{"EndsInTheNextTurn", Upright, Arc(180, 20), Lower},
                                         ArcRow{"ShortOne", Upright, Arc(100, 200), std::nullopt}),
                         NameOf);

INSTANTIATE_TEST_SUITE_P(
    LineLeftOfTheCentre, LineAndArc,
    testing::Values(ArcRow{"Lower", {{-0.5, 8}, {-0.5, 0}}, Arc(180, 350), Point{-0.5, 5 - std::sqrt(0.75)}},
                    ArcRow{"NotInTheSweep", {{-0.5, 8}, {-0.5, 0}}, Arc(250, 350), std::nullopt}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    LinesElsewhere, LineAndArc,
    testing::Values(
        ArcRow{"PassesTheCircle", {{2, 8}, {2, 0}}, Arc(180, 350), std::nullopt},
        ArcRow{"PassesItOnTheOtherSide", {{-2, 8}, {-2, 0}}, Arc(180, 350), std::nullopt},
        ArcRow{"EndsInsideTheCircle", {{0.5, 8}, {0.5, 4.8}}, Arc(180, 350), Lower},
        ArcRow{
            "EndsAboveTheCircle", {{0.5, 8}, {0.5, 7}}, {0, 9, 1, 180, 350}, Point{0.5, 9 - std::sqrt(0.75)}},
        ArcRow{"FallsToTheLeft", {{2, 8}, {0, 0}}, {1.2, 5, 1, 180, 350}, Point{1.004809, 4.019235}},
        ArcRow{"FallsToTheRight", {{-2, 8}, {0, 0}}, {-1.2, 5, 1, 190, 360}, Point{-1.004809, 4.019235}},
        ArcRow{"FallsToTheRightInsideTheCircle",
               {{-2, 8}, {-1.15, 4.6}},
               {-1.2, 5, 1, 190, 360},
               Point{-1.004809, 4.019235}}),
    NameOf);

// A line through the centre: the upper crossing lies straight above the line's end, the lower one is taken
// for the end itself.
constexpr ToothLine Through{{0, 8}, {0, 0}};
INSTANTIATE_TEST_SUITE_P(LineThroughTheCentre, LineAndArc,
                         testing::Values(ArcRow{"LowerIsTheEndOfTheLine", Through, Arc(180, 350),
                                                Point{0, 0}},
                                         ArcRow{"Upper", Through, Arc(310, 120), Point{0, 6}}),
                         NameOf);

TEST(LineMeetsArc, LeavesTheCrossingAloneWhenTheArcEndsJustAtIt) {
  Point out = Untouched;
  EXPECT_TRUE(LineMeetsArc(Kit, Through, Arc(180, 270), out));
  EXPECT_EQ(out, Untouched);
}

// ---- a line and a piece of the outline

struct SegmentRow {
  const char* Name;
  ToothLine Line, Segment;
  std::optional<Point> Want;
  friend void PrintTo(const SegmentRow& row, std::ostream* out) { *out << row.Name; }
};
class LineAndSegment : public testing::TestWithParam<SegmentRow> {};

TEST_P(LineAndSegment, CrossBetweenItsEnds) {
  const SegmentRow& row = GetParam();
  for (const bool turned : {false, true}) {
    const ToothLine segment = turned ? ToothLine{row.Segment.End, row.Segment.Start} : row.Segment;
    Point out = Untouched;
    EXPECT_EQ(LineMeetsSegment(Kit, row.Line, segment, out), row.Want.has_value());
    EXPECT_TRUE(Near(out, row.Want.value_or(Untouched), Rounded)) << (turned ? "turned" : "as it stands");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineAndSegment,
    testing::Values(SegmentRow{"Rising", Upright, {{0, 2}, {1, 4}}, Point{0.5, 3}},
                    SegmentRow{"Falling", Upright, {{0, 4}, {1, 2}}, Point{0.5, 3}},
                    SegmentRow{"Level", Upright, {{0, 2}, {1, 2}}, Point{0.5, 2}},
                    // twelve times steeper than wide: the last place of the distance counts twelvefold
                    SegmentRow{"Steep", Upright, {{0.25, 1}, {0.75, 7}}, Point{0.5, 3.99986}},
                    SegmentRow{"ToTheRight", Upright, {{1, 2}, {2, 4}}, std::nullopt},
                    SegmentRow{"ToTheLeft", Upright, {{-1, 2}, {0.4, 4}}, std::nullopt},
                    SegmentRow{"BegunOnTheLine", Upright, {{0.5, 2}, {1, 3}}, std::nullopt},
                    SegmentRow{"AlongTheLine", Upright, {{0.5, 2}, {0.5, 3}}, std::nullopt},
                    SegmentRow{"AboveTheLinesStart", Upright, {{0, 20}, {1, 20}}, Point{0.5, 20}},
                    SegmentRow{"LineFallsToTheLeft", {{2, 8}, {0, 0}}, {{0, 3}, {2, 5}}, Point{1, 4}},
                    SegmentRow{"LineFallsToTheRight", {{-2, 8}, {0, 0}}, {{-2, 5}, {0, 3}}, Point{-1, 4}},
                    SegmentRow{
                        "LineFallsToTheRightOnALevel", {{-2, 8}, {0, 0}}, {{-2, 4}, {0, 4}}, Point{-1, 4}},
                    SegmentRow{"SegmentUpright", {{-2, 8}, {0, 0}}, {{-1, 3}, {-1, 5}}, Point{-1, 4}}),
    [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace tarnwick
