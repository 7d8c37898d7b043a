#include "geometry/modPieceList.h"

#include <gtest/gtest.h>

#include <limits>
#include <variant>

namespace tarnwick {
namespace {

const PlaneKit Kit(5);

TEST(PieceList, AddsALineFromItsFirstToItsFourthCorner) {
  EntityList list;
  PieceList(Kit, list, 4).Add(ToothLine{{1, 2}, {3, 4}});
  ASSERT_EQ(list.Entities.size(), 1U);
  const auto& line = std::get<LineEntity>(list.Entities[0]);
  EXPECT_EQ(line.Corner1X, 1);
  EXPECT_EQ(line.Corner1Y, 2);
  EXPECT_EQ(line.Corner4X, 3);
  EXPECT_EQ(line.Corner4Y, 4);
  EXPECT_FALSE(line.IsOutline);
  EXPECT_FALSE(line.IsDotted);
}

TEST(PieceList, AddsAnArcAsItStands) {
  EntityList list;
  PieceList(Kit, list, 4).Add(ToothArc{1, 2, 0.5, 30, 40});
  ASSERT_EQ(list.Entities.size(), 1U);
  const auto& arc = std::get<ArcEntity>(list.Entities[0]);
  EXPECT_EQ(arc.CenterX, 1);
  EXPECT_EQ(arc.CenterY, 2);
  EXPECT_EQ(arc.Radius, 0.5);
  EXPECT_EQ(arc.StartAngle, 30);
  EXPECT_EQ(arc.EndAngle, 40);
}

TEST(PieceList, LeavesOutWhatDoesNotExist) {
  EntityList list;
  PieceList pieces(Kit, list, 4);
  pieces.Add(ToothLine{{1, 2}, {1, 2}});
  pieces.Add(ToothLine{{1, 2}, {1, 2.000004}});  // no way apart at five places
  pieces.Add(ToothArc{1, 2, 0, 30, 40});
  pieces.Add(ToothArc{1, 2, -0.5, 30, 40});
  pieces.Add(ToothArc{1, 2, std::numeric_limits<double>::infinity(), 30, 40});
  pieces.Add(ToothArc{1, 2, std::numeric_limits<double>::quiet_NaN(), 30, 40});
  EXPECT_EQ(list.Count(), 0U);
}

TEST(PieceList, AddsLinesOfTheOutlineWhateverTheirLength) {
  EntityList list;
  PieceList pieces(Kit, list, 4);
  pieces.AddLine({1, 2}, {1, 2}, LineRole::Outline);
  pieces.AddLine({1, 2}, {1, 0}, LineRole::LapEnd);
  ASSERT_EQ(list.Entities.size(), 2U);
  const auto& outline = std::get<LineEntity>(list.Entities[0]);
  EXPECT_TRUE(outline.IsOutline);
  EXPECT_FALSE(outline.IsDotted);
  const auto& lapEnd = std::get<LineEntity>(list.Entities[1]);
  EXPECT_TRUE(lapEnd.IsOutline);
  EXPECT_TRUE(lapEnd.IsDotted);
}

TEST(PieceList, CountsWhatFindsNoRoom) {
  EntityList list;
  PieceList pieces(Kit, list, 1);
  pieces.AddLine({1, 2}, {1, 0}, LineRole::Outline);
  pieces.Add(ToothArc{1, 2, 0.5, 30, 40});
  pieces.Add(ToothLine{{1, 2}, {3, 4}});
  EXPECT_EQ(list.Entities.size(), 1U);
  EXPECT_EQ(list.Lost, 2U);
  EXPECT_EQ(list.Count(), 3U);
}

TEST(RoomFor, HoldsThreeMoreThanTheTeethMayHave) {
  EXPECT_EQ(RoomFor(4, 16), 67U);
  EXPECT_EQ(RoomFor(5, 12), 63U);
  EXPECT_EQ(RoomFor(0, 16), 3U);
}

TEST(RoomFor, KeepsTheTwoPlacesOfAFreshListWhenNoSizeCanBeMade) {
  EXPECT_EQ(RoomFor(-1, 16), 2U);
  EXPECT_EQ(RoomFor(-32768, 12), 2U);
}

}  // namespace
}  // namespace tarnwick
