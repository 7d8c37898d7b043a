#include "window/modPieceBox.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarnwick {
namespace {

void ExpectBox(const PieceBox& box, double minX, double minY, double maxX, double maxY) {
  EXPECT_NEAR(box.MinX, minX, 1e-12);
  EXPECT_NEAR(box.MinY, minY, 1e-12);
  EXPECT_NEAR(box.MaxX, maxX, 1e-12);
  EXPECT_NEAR(box.MaxY, maxY, 1e-12);
}

/// Of a circle of radius 2 about (10, 20).
ArcEntity Arc(double start, double end) { return {10, 20, 2, start, end}; }

const double Root2 = std::sqrt(2.0);

TEST(PieceBox, OfALineReachesFromEndToEnd) {
  ExpectBox(BoxOf(LineEntity{3, -1, 1, 4, false, false}), 1, -1, 3, 4);
}

TEST(PieceBox, OfAnArcInOneQuadrantIsThatOfItsEnds) {
  ExpectBox(BoxOf(Arc(45, 90)), 10, 20 + Root2, 10 + Root2, 22);
  ExpectBox(BoxOf(Arc(0.5, 89.5)), 10 + 2 * std::cos(89.5 * std::acos(-1.0) / 180),
            20 + 2 * std::sin(0.5 * std::acos(-1.0) / 180), 10 + 2 * std::cos(0.5 * std::acos(-1.0) / 180),
            20 + 2 * std::sin(89.5 * std::acos(-1.0) / 180));
}

TEST(PieceBox, OfAnArcTakesInWhatItPasses) {
  ExpectBox(BoxOf(Arc(45, 135)), 10 - Root2, 20 + Root2, 10 + Root2, 22);
  ExpectBox(BoxOf(Arc(135, 225)), 8, 20 - Root2, 10 - Root2, 20 + Root2);
  ExpectBox(BoxOf(Arc(225, 315)), 10 - Root2, 18, 10 + Root2, 20 - Root2);
  ExpectBox(BoxOf(Arc(315, 45)), 10 + Root2, 20 - Root2, 12, 20 + Root2);
  ExpectBox(BoxOf(Arc(45, 315)), 8, 18, 10 + Root2, 22);
  ExpectBox(BoxOf(Arc(90, 45)), 8, 18, 12, 22);
}

TEST(PieceBox, OfAnArcTurnsAngleByAngle) {
  ExpectBox(BoxOf(Arc(-45, 45)), 10 + Root2, 20 - Root2, 12, 20 + Root2);
  ExpectBox(BoxOf(Arc(315, 405)), 10 + Root2, 20 - Root2, 12, 20 + Root2);
}

TEST(PieceBox, OfAnArcThatEndsWhereItStartsIsThatOfTheCircle) {
  ExpectBox(BoxOf(Arc(45, 45)), 8, 18, 12, 22);
  ExpectBox(BoxOf(Arc(0, 360)), 8, 18, 12, 22);
  ExpectBox(CircleBoxOf(Arc(45, 90)), 8, 18, 12, 22);
  ExpectBox(BoxOf(CircleEntity{10, 20, 2}), 8, 18, 12, 22);
}

TEST(PieceBox, OfAFigureHoldsItsCorners) {
  ExpectBox(BoxOf(SolidEntity{0, 0, 4, 1, 2, 5, -1, 3}), -1, 0, 4, 5);
}

}  // namespace
}  // namespace tarnwick
