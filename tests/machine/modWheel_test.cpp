#include "machine/modWheel.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnwick {
namespace {

const PlaneKit Kit(5);
constexpr double HairsBreadth =
    2e-4;  // what the roundings of a turn amount to at the rim of the largest wheel

double FromCenter(double x, double y) { return std::hypot(x, y); }

TEST(PlaceWheel, TakesRimAndHubFromItsSize) {
  const WheelPicture wheel = PlaceWheel(5, Kit);
  EXPECT_EQ(wheel.Dia, 60);
  EXPECT_EQ(wheel.Radius, 30);
  EXPECT_EQ(wheel.RimInner, 28.75);
  EXPECT_EQ(wheel.HubRadius, 1.11803 * 2.6);  // of a bore of 3.92699 in², times the factor of 5 ft
  EXPECT_EQ(wheel.OuterHubRadius(), 1.11803 * 2.6 * 1.75);
  EXPECT_EQ(wheel.SpokeWidth, 2.08333);  // 3.75 / 1.8
  EXPECT_EQ(wheel.SpokeCount, 12);
}

TEST(PlaceWheel, GivesTheSmallestWheelTheFewestSpokes) {
  const WheelPicture wheel = PlaceWheel(0.5, Kit);
  EXPECT_EQ(wheel.Radius, 3);
  EXPECT_EQ(wheel.RimInner, 2.875);
  EXPECT_EQ(wheel.HubRadius, 0.35355 * 0.8);
  EXPECT_EQ(wheel.SpokeWidth, 0.41666);
  EXPECT_EQ(wheel.SpokeCount, 5);  // four and a bit by the perimeter of the hub
}

struct CountRow {
  double WheelDia;
  int Spokes;
};

TEST(PlaceWheel, CountsWholeSpokesByTheHubsPerimeter) {
  for (const CountRow& row :
       {CountRow{0.5, 5}, {0.75, 5}, {1, 5}, {1.5, 6}, {2, 7}, {3, 9}, {4, 11}, {5, 12}, {15, 12}})
    EXPECT_EQ(PlaceWheel(row.WheelDia, Kit).SpokeCount, row.Spokes) << row.WheelDia;
}

TEST(PlaceWheel, MakesAsManySpokesAsItCounts) {
  for (double d = 0.5; d <= 15; d += 0.125) {
    const WheelPicture wheel = PlaceWheel(d, Kit);
    EXPECT_EQ(wheel.Spokes.size(), static_cast<std::size_t>(wheel.SpokeCount)) << d;
    EXPECT_GE(wheel.SpokeCount, 5) << d;
    EXPECT_LE(wheel.SpokeCount, 12) << d;
  }
}

TEST(PlaceWheel, LeadsEachSideFromTheHubByAnArcIntoTheRim) {
  for (double d = 0.5; d <= 15; d += 0.125) {
    const WheelPicture wheel = PlaceWheel(d, Kit);
    for (const WheelSpoke& spoke : wheel.Spokes) {
      for (std::size_t i = 0; i < 2; ++i) {
        const auto& [foot, top] = spoke.Sides[i];
        const ToothArc& arc = spoke.Ends[i];
        EXPECT_NEAR(FromCenter(foot.X, foot.Y), wheel.OuterHubRadius(), HairsBreadth) << d;
        // The arc goes on where its side ends, square to its radius there, and touches the rim from within.
        EXPECT_NEAR(FromCenter(top.X - arc.CenterX, top.Y - arc.CenterY), arc.Radius, HairsBreadth) << d;
        EXPECT_NEAR((top.X - arc.CenterX) * (top.X - foot.X) + (top.Y - arc.CenterY) * (top.Y - foot.Y), 0,
                    HairsBreadth * wheel.Radius)
            << d;
        EXPECT_NEAR(FromCenter(arc.CenterX, arc.CenterY) + arc.Radius, wheel.RimInner, HairsBreadth) << d;
        const Point end = i == 0 ? EndOf(arc) : StartOf(arc);
        EXPECT_NEAR(FromCenter(end.X, end.Y), wheel.RimInner, HairsBreadth) << d;
      }
    }
  }
}

TEST(PlaceWheel, SetsNeighbouringSpokesApart) {
  for (double d = 0.5; d <= 15; d += 0.125) {
    const WheelPicture wheel = PlaceWheel(d, Kit);
    const double half = 180.0 / wheel.SpokeCount;  // of the angle between two spokes
    const double footAngle = AngleFromLegs(wheel.SpokeWidth / 2, wheel.OuterHubRadius()).OrZero();
    EXPECT_LT(footAngle, half) << d;
    const ToothArc& right = wheel.Spokes.front().Ends[1];
    EXPECT_LT(90 - Kit.Direction({}, right.Center()), half) << d;
  }
}

TEST(PlaceWheel, SpreadsTheSpokesEvenly) {
  const WheelPicture wheel = PlaceWheel(5, Kit);
  for (std::size_t i = 0; i < wheel.Spokes.size(); ++i) {
    const auto& [left, right] = wheel.Spokes[i].Sides;
    const Point middle{(left.End.X + right.End.X) / 2, (left.End.Y + right.End.Y) / 2};
    double angle = Kit.Direction({}, middle) - 90;
    if (angle < -1) angle += 360;
    EXPECT_NEAR(angle, static_cast<double>(i) * 30, 1e-3);
  }
}

TEST(AddWheel, ListsFourCirclesThenTheSpokes) {
  const WheelPicture wheel = PlaceWheel(1, Kit);
  EntityList list;
  AddWheel(wheel, 7.5, list);
  ASSERT_EQ(list.Count(), 4U + 4U * 5);
  const double radii[] = {wheel.Radius, wheel.RimInner, wheel.OuterHubRadius(), wheel.HubRadius};
  for (std::size_t i = 0; i < 4; ++i) {
    const auto& circle = std::get<CircleEntity>(list.Entities[i]);
    EXPECT_EQ(circle.CenterX, 0);
    EXPECT_EQ(circle.CenterY, 7.5);
    EXPECT_EQ(circle.Radius, radii[i]);
  }
  for (std::size_t i = 4; i < list.Count(); ++i) {
    const bool isLine = i % 4 < 2;
    EXPECT_EQ(std::holds_alternative<LineEntity>(list.Entities[i]), isLine) << i;
    EXPECT_EQ(std::holds_alternative<ArcEntity>(list.Entities[i]), !isLine) << i;
  }
}

TEST(AddWheel, MovesEveryPieceUpward) {
  const WheelPicture wheel = PlaceWheel(2, Kit);
  EntityList lower, upper;
  AddWheel(wheel, 0, lower);
  AddWheel(wheel, 36, upper);
  ASSERT_EQ(lower.Count(), upper.Count());
  for (std::size_t i = 4; i < lower.Count(); ++i) {
    if (const auto* line = std::get_if<LineEntity>(&lower.Entities[i])) {
      const auto& moved = std::get<LineEntity>(upper.Entities[i]);
      EXPECT_EQ(moved.Corner1X, line->Corner1X);
      EXPECT_EQ(moved.Corner1Y, line->Corner1Y + 36);
      EXPECT_EQ(moved.Corner4X, line->Corner4X);
      EXPECT_EQ(moved.Corner4Y, line->Corner4Y + 36);
    } else {
      const auto& arc = std::get<ArcEntity>(lower.Entities[i]);
      const auto& moved = std::get<ArcEntity>(upper.Entities[i]);
      EXPECT_EQ(moved.CenterX, arc.CenterX);
      EXPECT_EQ(moved.CenterY, arc.CenterY + 36);
      EXPECT_EQ(moved.StartAngle, arc.StartAngle);
      EXPECT_EQ(moved.EndAngle, arc.EndAngle);
      EXPECT_EQ(moved.Radius, arc.Radius);
    }
  }
}

}  // namespace
}  // namespace tarnwick
