#include "variable/modVariable.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "geometry/modBand.h"
#include "geometry/modOneTooth.h"
#include "geometry/modPitch.h"
#include "geometry/modTooth.h"
#include "support/AllTeeth.h"
#include "support/Outline.h"
#include "support/Pieces.h"
#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::AllOf;
using test::Near;
using test::Same;
using test::Workbench;

const std::string HandlerText = "Error in function CalculateVariableSaw  Error Number";

// Average pitch two inches: what the pitches of a segment of n differ from it, together nothing.
constexpr double Differences[8][7] = {
    {},
    {},
    {},
    {-0.125, 0.0625, 0.0625},
    {-0.125, 0.0625, 0.125, -0.0625},
    {-0.125, 0.0625, 0.125, -0.0625, 0},
    {-0.125, 0.0625, 0.125, -0.0625, -0.125, 0.125},
    {-0.125, 0.0625, 0.125, -0.0625, -0.125, 0.125, 0},
};

/// A round back band of segments of n teeth, no seat; five eighths deep.
BandSaw VariableDesign(int n, int segments, std::int16_t style = RoundBack) {
  BandSaw saw;
  saw.ToothStyle = style;
  saw.NumTeeth = static_cast<std::int16_t>(n * segments);
  saw.Length = saw.NumTeeth / 6.0;
  saw.Width = 5;
  saw.HookAngle = 20;
  saw.ClearAngle = 12;
  saw.GulletInfo.Radius = 0.25;
  saw.GulletInfo.Depth = 0.625;
  saw.GulletInfo.BackAngle = 15;
  saw.GulletInfo.BackRadius = 0.125;
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = static_cast<std::int16_t>(n);
  for (std::size_t k = 0; k < 7 && n >= 3 && n <= 7; ++k)
    saw.GeneralInfo.VarPitch[k] = static_cast<int>(k) < n ? 2 + Differences[n][k] : 0;
  return saw;
}

/// The design's one tooth, ready to be laid out.
struct Layout : Workbench {
  explicit Layout(const BandSaw& saw, std::int16_t direction = 1) : Workbench(saw) {
    Settings.TeethDirection = direction;
    if (Saw.NumTeeth > 0) Saw.Pitch = PitchFromLength(Kit, Saw.Length, Saw.NumTeeth);
    CalculateTooth(Work);
  }

  CalculationSettings Settings;
  Teeth Placed;
};

struct WholeBand : Layout {
  explicit WholeBand(const BandSaw& saw, std::int16_t direction = 1) : Layout(saw, direction) {
    Placed = AllOf(LayOutVariableBand(Kit, Saw, Tooth, Settings, Say));
  }
};

struct OneSegment : Layout {
  explicit OneSegment(const BandSaw& saw, std::int16_t direction = 1) : Layout(saw, direction) {
    Placed = AllOf(LayOutVariableSegment(Kit, Saw, Tooth, Settings, Say));
  }
};

// ---- who may

struct GateRow {
  int Style, Teeth;
  VariablePitchAnswer Want;
};
class CanBeVariable : public testing::TestWithParam<GateRow> {};

TEST_P(CanBeVariable, GoesByStyleAndCount) {
  EXPECT_EQ(CanUseVariablePitch(GetParam().Style, GetParam().Teeth), GetParam().Want);
}

using enum VariablePitchAnswer;
INSTANTIATE_TEST_SUITE_P(Bands, CanBeVariable,
                         testing::Values(GateRow{0, 60, StyleNotAllowed}, GateRow{7, 60, StyleNotAllowed},
                                         GateRow{8, 60, StyleNotAllowed}, GateRow{8, 61, StyleNotAllowed},
                                         GateRow{1, 9, Allowed}, GateRow{2, 8, Allowed},
                                         GateRow{4, 25, Allowed}, GateRow{5, 6, Allowed},
                                         GateRow{6, 49, Allowed}, GateRow{9, 7, Allowed},
                                         GateRow{3, 7, Allowed}, GateRow{1, 11, TeethNotDivisible},
                                         GateRow{9, 121, TeethNotDivisible}, GateRow{1, 1, TeethNotDivisible},
                                         GateRow{1, 2, TeethNotDivisible}, GateRow{1, 0, Allowed}),
                         [](const auto& row) {
                           return "Style" + std::to_string(row.param.Style) + "Teeth" +
                                  std::to_string(row.param.Teeth);
                         });

// ---- where the teeth stand

class SegmentOf : public testing::TestWithParam<int> {};

/// The pitch between tooth i and the next one of a band.
double PitchBehind(const BandSaw& saw, int i) {
  const int n = saw.GeneralInfo.NumVariables;
  return saw.GeneralInfo.VarPitch[static_cast<std::size_t>((i + n - 1) % n)];
}

TEST_P(SegmentOf, PutsTheTeethTheirPitchesApart) {
  const BandSaw saw = VariableDesign(GetParam(), 4);
  const WholeBand band(saw);
  ASSERT_EQ(band.Placed.size(), static_cast<std::size_t>(saw.NumTeeth) + 1);
  EXPECT_TRUE(band.Say.Shown.empty());
  double tip = -saw.GeneralInfo.VarPitch[static_cast<std::size_t>(GetParam()) - 1] / 2;
  for (int i = 0; i <= saw.NumTeeth; ++i) {
    const ToothProfile& tooth = band.Placed[static_cast<std::size_t>(i)];
    if (i > 0) {  // the first one's face was cut off
      EXPECT_NEAR(tooth.FaceLine.Start.X, tip, 5e-5) << "tooth " << i;
    }
    tip += PitchBehind(saw, i);
    if (i < saw.NumTeeth) {
      EXPECT_NEAR(tooth.TopLine.End.X, tip, 5e-5) << "the top of tooth " << i;
    }
  }
  EXPECT_NEAR(band.Placed.front().JoinPoint.X, 0, 5e-5);
  EXPECT_NEAR(band.Placed.back().JoinPoint.X, saw.Length * 12, 5e-5);
}

TEST_P(SegmentOf, TurnsAroundForRightToLeftTeeth) {
  const BandSaw saw = VariableDesign(GetParam(), 3);
  const WholeBand band(saw);
  const WholeBand turned(saw, RightToLeft);
  ASSERT_EQ(turned.Placed.size(), band.Placed.size());
  const double length = saw.Length * 12;
  for (std::size_t i = 1; i + 1 < band.Placed.size(); ++i) {
    const ToothProfile& mirrored = turned.Placed[band.Placed.size() - 1 - i];
    EXPECT_NEAR(mirrored.FaceLine.Start.X, length - band.Placed[i].FaceLine.Start.X, 1e-4) << i;
    EXPECT_NEAR(mirrored.TopLine.End.X, length - band.Placed[i].TopLine.End.X, 1e-4) << i;
  }
}

TEST_P(SegmentOf, GivesTheOtherEdgeTheSameTeeth) {
  BandSaw saw = VariableDesign(GetParam(), 2);
  saw.BothEdges = True;
  const WholeBand band(saw);
  const std::size_t count = static_cast<std::size_t>(saw.NumTeeth) + 1;
  ASSERT_EQ(band.Placed.size(), 2 * count);
  EXPECT_EQ(band.Placed.front().BothEdges, True);
  for (std::size_t i = 0; i < count; ++i) {
    EXPECT_NEAR(band.Placed[count + i].TopLine.End.X, band.Placed[i].TopLine.End.X, 5e-5);
    EXPECT_NEAR(band.Placed[count + i].TopLine.End.Y, 5 - band.Placed[i].TopLine.End.Y, 5e-5);
  }
}

TEST_P(SegmentOf, StartsFurtherInWithAnOverlap) {
  BandSaw saw = VariableDesign(GetParam(), 2);
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.GeneralInfo.PlateThick = 0.05;  // laps over by 0.3125 at each end
  const WholeBand band(saw);
  const double lastPitch = saw.GeneralInfo.VarPitch[static_cast<std::size_t>(GetParam()) - 1];
  EXPECT_NEAR(band.Placed[1].FaceLine.Start.X, lastPitch / 2 + 0.3125, 5e-5);
}

INSTANTIATE_TEST_SUITE_P(Teeth, SegmentOf, testing::Range(3, 8));

// With equal pitches nothing sets the band apart from a plain one, but that each corner of back and top is
// fitted anew, on lines as they were rounded.
TEST(VariableBand, OfEqualPitchesIsAPlainBand) {
  BandSaw saw = VariableDesign(3, 4);
  for (std::size_t k = 0; k < 3; ++k) saw.GeneralInfo.VarPitch[k] = 2;
  saw.DesignInfo.VarArea = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
  const WholeBand band(saw);
  Layout plain(saw);
  plain.Placed = AllOf(LayOutBand(plain.Kit, plain.Saw, plain.Tooth, plain.Settings));
  ASSERT_EQ(band.Placed.size(), plain.Placed.size());
  for (std::size_t i = 0; i < plain.Placed.size(); ++i) {
    test::ForEachPiece(plain.Placed[i], band.Placed[i],
                       [&](const char* name, const auto& want, const auto& got) {
                         if constexpr (test::IsLine<decltype(want)>) {
                           EXPECT_TRUE(Near(got, want, 2e-4)) << name << " of tooth " << i;
                         } else {
                           EXPECT_TRUE(Near(got.Center(), want.Center(), 2e-4)) << name << " of tooth " << i;
                         }
                       });
  }
  const double area = plain.Tooth.Area;
  EXPECT_GT(area, 0);
  const SegmentMeasures want{area, area, area, 9, 9, 9, 9, 9, 9, 9};
  EXPECT_EQ(band.Saw.DesignInfo.VarArea, want) << "entries past the segment keep what they held";
}

TEST(VariableBand, TakesTheBaseAreaForEveryToothOfOneDepth) {
  const WholeBand band(VariableDesign(5, 2));
  for (std::size_t k = 0; k < 5; ++k) EXPECT_EQ(band.Saw.DesignInfo.VarArea[k], band.Tooth.Area) << k;
  EXPECT_EQ(band.Saw.DesignInfo.VarArea[5], 0);
}

// ---- depth

TEST(VariableDepth, IsRaisedToTheLeastAndWrittenBack) {
  BandSaw saw = VariableDesign(3, 2);
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.VarDepth = {0.7, 0.1, 0.8, 0.05};
  const WholeBand band(saw);
  const double least = band.Saw.GulletInfo.MinDepth;
  ASSERT_GT(least, 0.1);
  ASSERT_LT(least, 0.625);
  const SegmentMeasures want{0.7, least, 0.8, 0.05};
  EXPECT_EQ(band.Saw.GeneralInfo.VarDepth, want) << "entries past the segment are not looked at";
}

// Tooth 1 is the segment's first, tooth 3 its last, and so is tooth 0.
TEST(VariableDepth, LowersTheGulletOfEachTooth) {
  BandSaw saw = VariableDesign(3, 2);
  saw.GulletInfo.BackRadius = 0;
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.VarDepth = {0.625, 0.7, 0.8};
  const WholeBand band(saw);
  const double base = band.Tooth.GulletArc.CenterY;
  EXPECT_NEAR(band.Placed[1].GulletArc.CenterY, base, 2e-5);
  EXPECT_NEAR(band.Placed[2].GulletArc.CenterY, base - 0.075, 2e-5);
  EXPECT_NEAR(band.Placed[3].GulletArc.CenterY, base - 0.175, 2e-5);
  EXPECT_NEAR(band.Placed[0].TopLine.End.X, band.Placed[1].FaceLine.Start.X, 5e-5);
  const SegmentMeasures& area = band.Saw.DesignInfo.VarArea;
  EXPECT_NEAR(area[0], band.Tooth.Area, 5e-4);
  EXPECT_GT(area[1], area[0]);
  EXPECT_GT(area[2], area[1]);
  EXPECT_EQ(area[3], 0);
}

TEST(VariableDepth, TouchesNoFigureOfTheBaseTooth) {
  BandSaw saw = VariableDesign(4, 2);
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.VarDepth = {0.6, 0.7, 0.8, 0.9};
  Layout band(saw);
  const BandSaw before = band.Saw;
  EXPECT_EQ(LayOutVariableBand(band.Kit, band.Saw, band.Tooth, band.Settings, band.Say).Size(), 9U);
  EXPECT_EQ(band.Saw.GulletInfo.Area, before.GulletInfo.Area);
  EXPECT_EQ(band.Saw.GulletInfo.AreaBelowTip, before.GulletInfo.AreaBelowTip);
  EXPECT_EQ(band.Saw.GulletInfo.Depth, before.GulletInfo.Depth);
  EXPECT_EQ(band.Saw.GeneralInfo.VarPitch, before.GeneralInfo.VarPitch);
}

TEST(VariableDepth, LeavesAllFrostTeethAlike) {
  for (const double secondRadius : {0.0, 0.5}) {
    BandSaw saw = VariableDesign(4, 2, FrostTooth);
    saw.GulletInfo.Radius1 = 0.25;
    saw.GulletInfo.Radius2 = secondRadius;
    saw.GulletInfo.FrostRadius = 0.05;
    saw.GulletInfo.FrostHeight = 0.15;
    saw.GulletInfo.FrostWidth = 0.125;
    saw.GulletInfo.FrostAngle = 25;
    saw.GulletInfo.Depth = 0.9;
    saw.GulletInfo.BackRadius = 0;
    saw.GeneralInfo.VarPitch = {2, 2, 2, 2};
    saw.GeneralInfo.VariableDepth = True;
    saw.GeneralInfo.VarDepth = {0.9, 1.0, 1.1, 1.2};
    const WholeBand band(saw);
    for (std::size_t i = 2; i + 1 < band.Placed.size(); ++i) {
      const double dx = band.Placed[i].FaceLine.Start.X - band.Placed[1].FaceLine.Start.X;
      const auto moved = [dx](Point p) { return Point{p.X + dx, p.Y}; };
      test::ForEachPiece(band.Placed[1], band.Placed[i],
                         [&](const char* name, const auto& want, const auto& got) {
                           if constexpr (test::IsLine<decltype(want)>) {
                             EXPECT_TRUE(Near(got, {moved(want.Start), moved(want.End)}, 5e-5)) << name;
                           } else if (want.Radius > 0) {
                             EXPECT_TRUE(Near(got.Center(), moved(want.Center()), 5e-5)) << name;
                           }
                         });
    }
    for (std::size_t k = 1; k < 4; ++k)
      EXPECT_EQ(band.Saw.DesignInfo.VarArea[k], band.Saw.DesignInfo.VarArea[0]);
  }
}

// ---- counts that do not fit

struct ErrorRow {
  const char* Name;
  int NumVariables, NumTeeth;
  const char* Number;  // nullptr: no message
  friend void PrintTo(const ErrorRow& row, std::ostream* out) { *out << row.Name; }
};
class OddSegment : public testing::TestWithParam<ErrorRow> {};

TEST_P(OddSegment, StopsWithTheNumberOfItsFailure) {
  BandSaw saw = VariableDesign(3, 4);
  saw.GeneralInfo.VarPitch.fill(2);
  saw.GeneralInfo.VarDepth.fill(0.1);
  saw.GeneralInfo.VariableDepth = True;
  saw.GeneralInfo.NumVariables = static_cast<std::int16_t>(GetParam().NumVariables);
  saw.NumTeeth = static_cast<std::int16_t>(GetParam().NumTeeth);
  saw.Length = saw.NumTeeth / 6.0;
  const bool works = GetParam().Number == nullptr;
  const std::vector<std::string> want =
      works ? std::vector<std::string>{} : std::vector{HandlerText + GetParam().Number};
  const WholeBand band(saw);
  EXPECT_EQ(band.Say.Texts(), want);
  EXPECT_EQ(band.Placed.size(), static_cast<std::size_t>(GetParam().NumTeeth) + 1);
  EXPECT_EQ(band.Saw.GeneralInfo.VarDepth[0] > 0.1, works) << "a layout that fails writes nothing back";
  const OneSegment segment(saw);
  EXPECT_EQ(segment.Say.Texts(), want);
}

INSTANTIATE_TEST_SUITE_P(
    Counts, OddSegment,
    testing::Values(ErrorRow{"NoTeeth", 3, 0, "11"}, ErrorRow{"NoTeethAndNoSegment", 0, 0, "11"},
                    ErrorRow{"NoSegment", 0, 12, "9"}, ErrorRow{"NegativeSegment", -1, 12, "9"},
                    ErrorRow{"SegmentOfOne", 1, 12, nullptr}, ErrorRow{"SegmentOfTwo", 2, 12, nullptr},
                    ErrorRow{"SegmentOfEight", 8, 16, nullptr}, ErrorRow{"SegmentOfNine", 9, 18, nullptr},
                    ErrorRow{"SegmentOfTen", 10, 20, "9"}, ErrorRow{"SegmentOfEleven", 11, 22, "9"},
                    ErrorRow{"SegmentLongerThanTwiceTheBand", 7, 1, "9"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(VariableBand, LeavesTheTeethThatStandWhenItStops) {
  BandSaw saw = VariableDesign(3, 4);
  saw.GeneralInfo.VarPitch.fill(2);
  saw.GeneralInfo.NumVariables = 10;
  saw.NumTeeth = 20;
  const WholeBand band(saw);
  ASSERT_EQ(band.Placed.size(), 21U);
  EXPECT_GT(band.Placed[10].GulletArc.Radius, 0) << "the segment was placed";
  EXPECT_EQ(band.Placed[11].GulletArc.Radius, 0);
  EXPECT_GT(band.Placed[0].FaceLine.Start.Y, 0) << "and its end was not cut";
}

struct RestRow {
  int Teeth, Variables, Placed;  // how many teeth behind the first were placed
};
class CountThatIsNoMultiple : public testing::TestWithParam<RestRow> {};

TEST_P(CountThatIsNoMultiple, LeavesTeethEmptyOrOverrunsWithoutAWord) {
  BandSaw saw = VariableDesign(GetParam().Variables, 1);
  saw.NumTeeth = static_cast<std::int16_t>(GetParam().Teeth);
  saw.Length = saw.NumTeeth / 6.0;
  const WholeBand band(saw);
  EXPECT_TRUE(band.Say.Shown.empty());
  ASSERT_EQ(band.Placed.size(), static_cast<std::size_t>(GetParam().Teeth) + 1);
  for (int i = 1; i <= GetParam().Teeth; ++i) {
    EXPECT_EQ(band.Placed[static_cast<std::size_t>(i)].GulletArc.Radius > 0, i <= GetParam().Placed)
        << "tooth " << i;
  }
}

// A count over n goes to the nearest whole number of segments, half to the even one.
INSTANTIATE_TEST_SUITE_P(Rests, CountThatIsNoMultiple,
                         testing::Values(RestRow{10, 4, 8}, RestRow{14, 4, 14}, RestRow{11, 4, 11},
                                         RestRow{9, 4, 8}, RestRow{13, 5, 13}, RestRow{12, 5, 10}),
                         [](const auto& row) {
                           return std::to_string(row.param.Teeth) + "By" +
                                  std::to_string(row.param.Variables);
                         });

// ---- one segment

TEST_P(SegmentOf, AloneHasTheStartOfTheNext) {
  BandSaw saw = VariableDesign(GetParam(), 4);
  saw.BothEdges = True;
  const OneSegment segment(saw);
  const std::size_t n = static_cast<std::size_t>(GetParam());
  ASSERT_EQ(segment.Placed.size(), n + 2) << "no second edge";
  double tip = segment.Placed[1].FaceLine.Start.X;
  EXPECT_NEAR(tip, saw.GeneralInfo.VarPitch[n - 1] / 2, 5e-5);
  for (std::size_t i = 2; i <= n + 1; ++i) {
    tip += saw.GeneralInfo.VarPitch[i - 2];
    EXPECT_NEAR(segment.Placed[i].FaceLine.Start.X, tip, 5e-5) << i;
  }
  EXPECT_NEAR(segment.Placed.front().JoinPoint.X, 0, 5e-5);
  EXPECT_NEAR(segment.Placed.back().JoinPoint.X,
              segment.Placed.back().FaceLine.Start.X + saw.GeneralInfo.VarPitch[n - 1] / 2, 5e-5)
      << "cut half a last pitch behind its tip";
}

TEST_P(SegmentOf, AloneTurnsAround) {
  const BandSaw saw = VariableDesign(GetParam(), 4);
  const OneSegment segment(saw);
  const OneSegment turned(saw, RightToLeft);
  ASSERT_EQ(turned.Placed.size(), segment.Placed.size());
  const double length = segment.Placed.back().JoinPoint.X;
  for (std::size_t i = 1; i + 1 < segment.Placed.size(); ++i) {
    EXPECT_NEAR(turned.Placed[turned.Placed.size() - 1 - i].FaceLine.Start.X,
                length - segment.Placed[i].FaceLine.Start.X, 1e-4);
  }
}

TEST(BuildSegmentEntities, DrawsPiecesOnceWithoutNotchOutlineAndHeader) {
  const PlaneKit kit(5);
  const ToothProfile tooth = test::FullTooth();
  const EntityList list = BuildSegmentEntities(kit, BandTeeth(kit, {tooth, tooth, tooth}), 2);
  ASSERT_EQ(list.Entities.size(), 2U * 11U) << "of as many teeth as asked for";
  EXPECT_EQ(list.Header.MaxX, 0);
  EXPECT_EQ(list.Header.MaxY, 0);
  std::size_t i = 0;
  const auto line = [&](const ToothLine& want) {
    const auto* got = std::get_if<LineEntity>(&list.Entities[i++]);
    ASSERT_NE(got, nullptr) << i;
    EXPECT_EQ(got->Corner1X, want.Start.X) << i;
    EXPECT_EQ(got->Corner4Y, want.End.Y) << i;
    EXPECT_FALSE(got->IsOutline);
  };
  const auto arc = [&](const ToothArc& want) {
    const auto* got = std::get_if<ArcEntity>(&list.Entities[i++]);
    ASSERT_NE(got, nullptr) << i;
    EXPECT_EQ(got->CenterX, want.CenterX) << i;
    EXPECT_EQ(got->Radius, want.Radius) << i;
  };
  line(tooth.FaceLine);
  line(tooth.SeatLine);
  line(tooth.DropLine);
  arc(tooth.FirstArc);
  line(tooth.BottomLine);
  arc(tooth.SecondArc);
  arc(tooth.ThirdArc);
  arc(tooth.GulletArc);
  line(tooth.BackLine);
  arc(tooth.BackArc);
  line(tooth.TopLine);
}

TEST(CalculateSegment, DrawsNTeethAndTwo) {
  BandSaw saw = VariableDesign(4, 3);
  test::CollectedMessages say;
  const EntityList list = CalculateSegment(saw, {}, say);
  // Four whole teeth of face, gullet, back, fillet and top; the first and the last share one between them.
  EXPECT_GE(list.Count(), 4U * 5U + 5U);
  EXPECT_LE(list.Count(), 4U * 5U + 7U);
  for (const Entity& entity : list.Entities) {
    const auto* line = std::get_if<LineEntity>(&entity);
    EXPECT_FALSE(line != nullptr && line->IsOutline);
  }
  EXPECT_EQ(list.Header.MaxX, 0);
  EXPECT_TRUE(say.Shown.empty());
  EXPECT_EQ(saw.Pitch, 2) << "the average";
  EXPECT_GT(saw.DesignInfo.VarArea[3], 0);
}

TEST(CalculateSegment, AsksAFrostToothForThePlainRadius) {
  BandSaw saw = VariableDesign(4, 3, FrostTooth);
  saw.GulletInfo.Radius1 = 0.25;
  saw.GulletInfo.FrostRadius = 0.05;
  saw.GulletInfo.FrostAngle = 25;
  test::CollectedMessages say;
  BandSaw with = saw;
  EXPECT_GT(CalculateSegment(with, {}, say).Count(), 0U);
  saw.GulletInfo.Radius = 0;
  BandSaw band = saw;
  EXPECT_EQ(CalculateSegment(saw, {}, say).Count(), 0U);
  EXPECT_GT(CalculateSaw(band, {}, say).Count(), 0U) << "a whole band does not ask for it";
}

// ---- styles that cannot be variable

class StyleWithoutABack : public testing::TestWithParam<std::int16_t> {};

TEST_P(StyleWithoutABack, LosesItsSegmentInBandAndPicture) {
  for (const bool segment : {false, true}) {
    BandSaw saw = VariableDesign(4, 3, GetParam());
    saw.GulletInfo.Radius1 = 0.25;
    saw.GeneralInfo.VariableDepth = True;
    saw.GeneralInfo.VarDepth.fill(0.75);
    saw.DesignInfo.SegmentLength = 8;
    saw.DesignInfo.VarPattern = 2;
    test::CollectedMessages say;
    const EntityList list = segment ? CalculateSegment(saw, {}, say) : CalculateSaw(saw, {}, say);
    EXPECT_EQ(saw.GeneralInfo.VariablePitch, False);
    EXPECT_EQ(saw.GeneralInfo.VariableDepth, False);
    EXPECT_EQ(saw.GeneralInfo.NumVariables, 0);
    EXPECT_EQ(saw.DesignInfo.SegmentLength, 0);
    EXPECT_EQ(saw.DesignInfo.VarPattern, 0);
    for (std::size_t k = 0; k < 7; ++k) {
      EXPECT_EQ(saw.GeneralInfo.VarPitch[k], 0);
      EXPECT_EQ(saw.GeneralInfo.VarDepth[k], 0);
    }
    EXPECT_EQ(saw.GeneralInfo.VarDepth[7], 0.75) << "the spare elements stay";
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, StyleWithoutABack,
                         testing::Values(std::int16_t{NarrowStyle}, std::int16_t{OShape}));

}  // namespace
}  // namespace tarnwick
