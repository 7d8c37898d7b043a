#include "geometry/modBand.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/AllTeeth.h"
#include "support/Pieces.h"
#include "support/Shapes.h"

namespace tarnwick {
namespace {

using test::AllOf;
using test::At;
using test::ForEachPiece;
using test::FullTooth;
using test::IsLine;
using test::Near;
using test::Same;

const PlaneKit Kit(5);

/// A square tooth an inch deep on a band of 5 inches, tip at X = 0: face down, half round gullet, upright
/// back, level top to the next tip at 1.75.
ToothProfile PlainTooth() {
  ToothProfile tooth;
  tooth.Style = SquareBack;
  tooth.FaceLine = {{0, 5}, {0, 4.5}};
  tooth.SeatLine = {{0, 4.5}, {0, 4.5}};
  tooth.DropLine = {{0, 4.5}, {0, 4.5}};
  tooth.GulletArc = {0.5, 4.5, 0.5, 180, 360};
  tooth.BackLine = {{1, 4.5}, {1, 5}};
  tooth.TopLine = {{1, 5}, {1.75, 5}};
  return tooth;
}

BandSaw PlainSaw(int teeth) {
  BandSaw saw;
  saw.ToothStyle = SquareBack;
  saw.NumTeeth = static_cast<std::int16_t>(teeth);
  saw.Pitch = 1.75;
  saw.Length = teeth * 1.75 / 12;
  saw.Width = 5;
  return saw;
}

Teeth LaidOut(const BandSaw& saw, const CalculationSettings& settings = {}, Flag bothEdges = False,
              ToothProfile first = PlainTooth()) {
  first.BothEdges = bothEdges;
  return AllOf(LayOutBand(Kit, saw, first, settings));
}

// ---- laying out

TEST(LayOutBand, PutsTheTeethAPitchApartFromTheMiddleOfTheFirst) {
  const Teeth teeth = LaidOut(PlainSaw(4));
  ASSERT_GE(teeth.size(), 5u);
  // the first tooth stands at -0.875; two moves, the second by nothing, take a unit each
  for (std::size_t i = 1; i < 4; ++i)
    EXPECT_TRUE(At(teeth[i].FaceLine.Start, {-0.87498 + 1.75 * static_cast<double>(i), 5})) << i;
  EXPECT_TRUE(Near(teeth[0].JoinPoint, {0, 4.5 - 0.330719}, 5e-5)) << "the first join lies on X = 0";
  EXPECT_TRUE(Near(teeth[4].JoinPoint, {7, 4.5 - 0.330719}, 5e-5));
  EXPECT_TRUE(Same(teeth[0].FaceLine, ToothLine{})) << "what lies before the join is gone";
  EXPECT_TRUE(Same(teeth[4].TopLine, ToothLine{})) << "what lies behind it too";
}

TEST(LayOutBand, ShiftsTheFirstToothByTheAllowanceOfAnOverlap) {
  BandSaw saw = PlainSaw(4);
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.GeneralInfo.PlateThick = 0.05;
  const Teeth teeth = LaidOut(saw);
  EXPECT_NEAR(teeth[0].JoinPoint.X, 0, 5e-5);
  EXPECT_NEAR(teeth[4].JoinPoint.X, 7 + 0.625, 5e-5);
  EXPECT_TRUE(At(teeth[1].FaceLine.Start, {0.3125 - 0.87498 + 1.75, 5}));
}

TEST(LayOutBand, StartsLaterTeethFromTheRoundedFirst) {
  ToothProfile first = PlainTooth();
  first.FaceLine.End = {0.000019, 4.5};  // -0.874981 is cut to -0.87498, and to -0.87497 by the second move
  const Teeth teeth = LaidOut(PlainSaw(2), {}, False, first);
  EXPECT_TRUE(At(teeth[1].FaceLine.End, {0.87503, 4.5}));
}

TEST(LayOutBand, MakesASingleToothOfTwoEnds) {
  const Teeth teeth = LaidOut(PlainSaw(1));
  EXPECT_TRUE(Same(teeth[0].FaceLine, ToothLine{}));
  EXPECT_FALSE(Same(teeth[0].TopLine, ToothLine{}));
  EXPECT_FALSE(Same(teeth[1].FaceLine, ToothLine{}));
  EXPECT_TRUE(Same(teeth[1].TopLine, ToothLine{}));
}

TEST(LayOutBand, TurnsTheBandAroundForRightToLeftTeeth) {
  CalculationSettings settings;
  settings.TeethDirection = RightToLeft;
  const Teeth teeth = LaidOut(PlainSaw(4), settings);
  EXPECT_NEAR(teeth[0].JoinPoint.X, 0, 2e-5) << "the left end is at X = 0";
  EXPECT_NEAR(teeth[4].JoinPoint.X, 7, 5e-5);
  const ToothLine face = teeth[2].FaceLine;
  EXPECT_TRUE(Near(face.Start, {7 - (-0.875 + 3.5), 5}, 5e-5)) << "tooth 2 of 4 stays tooth 2, mirrored";
  EXPECT_GT(face.Start.X, teeth[2].TopLine.End.X) << "the teeth point the other way";
}

TEST(LayOutBand, DropsTheNotchesOfABandTurnedAround) {
  ToothProfile first = PlainTooth();
  first.FrostArc = {0.25, 4.75, 0.125, 90, 180};
  first.FrostFaceLine = {{0, 5}, {0, 4.75}};
  first.FrostBottomLine = {{0.25, 4.5}, {0.5, 4.5}};
  CalculationSettings settings;
  settings.TeethDirection = RightToLeft;
  const Teeth turned = LaidOut(PlainSaw(4), settings, False, first);
  const Teeth straight = LaidOut(PlainSaw(4), {}, False, first);
  EXPECT_GT(straight[2].FrostArc.Radius, 0);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(turned[i].FrostArc.Radius, 0) << i;
}

TEST(LayOutBand, GivesTheOtherEdgeTheSameTeethUpsideDown) {
  const Teeth teeth = LaidOut(PlainSaw(3), {}, True);
  ASSERT_GE(teeth.size(), 8u);
  for (std::size_t i = 1; i < 3; ++i) {
    SCOPED_TRACE(i);
    const ToothProfile &upper = teeth[i], &lower = teeth[4 + i];
    EXPECT_TRUE(Near(lower.FaceLine.Start, {upper.FaceLine.Start.X, 0}, 3e-5)) << "tip height becomes 0";
    EXPECT_TRUE(Near(lower.FaceLine.End, {upper.FaceLine.End.X, 0.5}, 3e-5));
    EXPECT_TRUE(Near(lower.GulletArc.Center(), {upper.GulletArc.CenterX, 0.5}, 3e-5));
    EXPECT_EQ(lower.GulletArc.StartAngle, 360) << "the full turn stays what it is";
    EXPECT_EQ(lower.GulletArc.EndAngle, 180);
  }
}

TEST(LayOutBand, TurnsAroundBeforeItAddsTheOtherEdge) {
  CalculationSettings settings;
  settings.TeethDirection = RightToLeft;
  const Teeth teeth = LaidOut(PlainSaw(3), settings, True);
  for (std::size_t i = 1; i < 3; ++i)
    EXPECT_NEAR(teeth[4 + i].FaceLine.Start.X, teeth[i].FaceLine.Start.X, 3e-5) << i;
  EXPECT_NEAR(teeth[4].JoinPoint.X, 0, 3e-5);
}

TEST(AddOtherEdge, TakesTheHeightOfTheTopWhereTheFaceIsGone) {
  ToothProfile first = PlainTooth();
  first.FaceLine = {};
  first.JoinPoint = {1, 4};
  BandTeeth teeth(Kit, {first});
  AddOtherEdge(teeth, 0);
  ASSERT_EQ(teeth.Size(), 2U);
  EXPECT_TRUE(Near(teeth.Tooth(1).TopLine.End, {1.75, 0}, 3e-5));
  EXPECT_TRUE(Near(teeth.Tooth(1).JoinPoint, {1, 1}, 3e-5));
}

TEST(MirrorBandX, ReversesTheOrder) {
  Teeth teeth(3, PlainTooth());
  for (std::size_t i = 0; i < 3; ++i) {
    const double x = static_cast<double>(i);
    teeth[i].FaceLine = {{10 + x, 5}, {10 + x, 4}};
    teeth[i].JoinPoint = {12 * x + 1, 3};
  }
  BandTeeth band(Kit, teeth);
  MirrorBandX(band, 2);
  for (std::size_t i = 0; i < 3; ++i) {
    const double was = 10 + static_cast<double>(2 - i);
    EXPECT_TRUE(Near(band.Tooth(i).FaceLine.Start, {25 - was, 5}, 2e-5)) << i;
  }
  EXPECT_NEAR(band.Tooth(0).JoinPoint.X, 0, 2e-5);
}

// ---- the drawing of a band

std::string NameOf(const Entity& entity, const ToothProfile& tooth) {
  std::string found = "?";
  ForEachPiece(tooth, [&](const char* name, const auto& piece) {
    if constexpr (IsLine<decltype(piece)>) {
      if (const auto* line = std::get_if<LineEntity>(&entity);
          line && line->Corner1X == piece.Start.X && line->Corner1Y == piece.Start.Y &&
          line->Corner4X == piece.End.X && line->Corner4Y == piece.End.Y)
        found = name;
    } else {
      if (const auto* arc = std::get_if<ArcEntity>(&entity);
          arc && arc->CenterX == piece.CenterX && arc->CenterY == piece.CenterY &&
          arc->Radius == piece.Radius && arc->StartAngle == piece.StartAngle &&
          arc->EndAngle == piece.EndAngle)
        found = name;
    }
  });
  return found;
}

TEST(BuildBandEntities, DrawsThePiecesOfAToothInTheOrderOfTheCutting) {
  BandSaw saw;
  const ToothProfile tooth = FullTooth();
  const EntityList list = BuildBandEntities(Kit, saw, BandTeeth(Kit, {tooth}));
  const std::vector<std::string> order{"FaceLine",  "SeatLine",        "DropLine",  "FrostFaceLine",
                                       "FrostArc",  "FrostBottomLine", "FirstArc",  "SecondArc",
                                       "ThirdArc",  "BottomLine",      "SecondArc", "ThirdArc",
                                       "GulletArc", "BackLine",        "BackArc",   "TopLine"};
  ASSERT_EQ(list.Count(), order.size() + 3);
  for (std::size_t i = 0; i < order.size(); ++i) {
    EXPECT_EQ(NameOf(list.Entities[i], tooth), order[i]) << i;
    if (const auto* line = std::get_if<LineEntity>(&list.Entities[i])) {
      EXPECT_FALSE(line->IsOutline);
      EXPECT_FALSE(line->IsDotted);
    }
  }
}

TEST(BuildBandEntities, LeavesOutWhatDoesNotExist) {
  BandSaw saw;
  ToothProfile tooth;
  tooth.FaceLine = {{1, 1}, {1.000001, 1}};  // shorter than the rounding sees
  tooth.SeatLine = {{1, 1}, {1, 1}};
  tooth.DropLine = {{1, 1}, {1.00001, 1}};
  tooth.GulletArc = {1, 1, 0, 180, 270};
  tooth.FirstArc = {1, 1, -0.5, 180, 270};
  tooth.SecondArc = {1, 1, 0.00001, 180, 270};
  const EntityList list = BuildBandEntities(Kit, saw, BandTeeth(Kit, {tooth}));
  ASSERT_EQ(list.Count(), 1u + 2 + 3) << "the drop line, the second arc twice, the outline";
  EXPECT_EQ(std::get<LineEntity>(list.Entities[0]).Corner4X, 1.00001);
  EXPECT_EQ(std::get<ArcEntity>(list.Entities[1]).Radius, 0.00001);
  EXPECT_EQ(std::get<ArcEntity>(list.Entities[2]).Radius, 0.00001);
}

std::vector<LineEntity> OutlineOf(const EntityList& list) {
  std::vector<LineEntity> outline;
  for (const Entity& entity : list.Entities)
    if (const auto* line = std::get_if<LineEntity>(&entity); line && line->IsOutline)
      outline.push_back(*line);
  return outline;
}

void ExpectLine(const LineEntity& line, Point from, Point to, bool dotted) {
  EXPECT_TRUE(At({line.Corner1X, line.Corner1Y}, from));
  EXPECT_TRUE(At({line.Corner4X, line.Corner4Y}, to));
  EXPECT_EQ(line.IsDotted, dotted);
}

/// Empty teeth with join points: a drawing of the outline alone.
BandTeeth JoinsOnly(int count, Flag bothEdges) {
  Teeth teeth(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < teeth.size(); ++i) {
    teeth[i].JoinPoint = {10.0 * static_cast<double>(i) + 0.5, 4 - 0.25 * static_cast<double>(i)};
    teeth[i].BothEdges = bothEdges;
  }
  return {Kit, teeth};
}

TEST(BandOutline, HasTwoEndsAndTheBackEdge) {
  BandSaw saw = PlainSaw(2);
  const std::vector<LineEntity> outline = OutlineOf(BuildBandEntities(Kit, saw, JoinsOnly(3, False)));
  ASSERT_EQ(outline.size(), 3u);
  ExpectLine(outline[0], {0.5, 4}, {0.5, 0}, false);
  ExpectLine(outline[1], {20.5, 3.5}, {20.5, 0}, false);
  ExpectLine(outline[2], {0, 0}, {20.5, 0}, false);
}

TEST(BandOutline, MarksTheEndsOfTheLapOfAnOverlap) {
  BandSaw saw = PlainSaw(2);
  saw.Length = 1.5;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  const std::vector<LineEntity> outline = OutlineOf(BuildBandEntities(Kit, saw, JoinsOnly(3, False)));
  ASSERT_EQ(outline.size(), 5u);
  ExpectLine(outline[3], {18.5, 4}, {18.5, 0}, true);
  ExpectLine(outline[4], {2.5, 3.5}, {2.5, 0}, true);
}

TEST(BandOutline, RunsBetweenTheEdgesWhenBothHaveTeeth) {
  BandSaw saw = PlainSaw(2);
  const std::vector<LineEntity> outline = OutlineOf(BuildBandEntities(Kit, saw, JoinsOnly(6, True)));
  ASSERT_EQ(outline.size(), 2u);
  ExpectLine(outline[0], {0.5, 4}, {30.5, 3.25}, false);
  ExpectLine(outline[1], {20.5, 3.5}, {50.5, 2.75}, false);
}

TEST(BandOutline, MarksTheLapBetweenTheEdgesToo) {
  BandSaw saw = PlainSaw(2);
  saw.Length = 1.5;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  const std::vector<LineEntity> outline = OutlineOf(BuildBandEntities(Kit, saw, JoinsOnly(6, True)));
  ASSERT_EQ(outline.size(), 4u);
  ExpectLine(outline[2], {18.5, 4}, {48.5, 3.25}, true);
  ExpectLine(outline[3], {2.5, 3.5}, {32.5, 2.75}, true);
}

TEST(BandOutline, IsDrawnEvenWhereItHasNoLength) {
  BandSaw saw = PlainSaw(0);
  EXPECT_EQ(OutlineOf(BuildBandEntities(Kit, saw, BandTeeth(Kit, Teeth(1)))).size(), 3u);
}

TEST(BuildBandEntities, PutsWidthAndLengthIntoTheHeader) {
  BandSaw saw = PlainSaw(2);
  saw.Width = 5.1234567;
  const EntityList list = BuildBandEntities(Kit, saw, JoinsOnly(3, False));
  EXPECT_EQ(list.Header.MaxY, 5.12345);
  EXPECT_EQ(list.Header.MaxX, 20.5);
  EXPECT_EQ(list.Header.ViewCenterX, 10.25);
  EXPECT_EQ(list.Header.ViewCenterY, 2.56172) << "half of the rounded width, rounded";
}

TEST(BuildBandEntities, TakesTheLengthFromTheSecondEdgeWhereThereIsOne) {
  const EntityList list = BuildBandEntities(Kit, PlainSaw(2), JoinsOnly(6, True));
  EXPECT_EQ(list.Header.MaxX, 50.5);
}

}  // namespace
}  // namespace tarnwick
