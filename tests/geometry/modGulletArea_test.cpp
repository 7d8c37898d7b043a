#include "geometry/modGulletArea.h"

#include <gtest/gtest.h>

#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Workbench;

TEST(Sweep, IsTheTurnFromStartToEnd) {
  EXPECT_EQ(Sweep({0, 0, 1, 180, 330}), 150);
  EXPECT_EQ(Sweep({0, 0, 1, 300, 40}), 100);
  EXPECT_EQ(Sweep({0, 0, 1, 90, 90}), 0);
  EXPECT_EQ(Sweep({0, 0, 1, 0, 360}), 360);
}

/// An upright face half an inch high, a half circle of an inch, an upright back.
void LayTooth(Workbench& bench) {
  bench.Saw.ToothStyle = SquareBack;
  bench.Tooth.Style = SquareBack;
  bench.Tooth.FaceLine = {{0, 5}, {0, 4.5}};
  bench.Tooth.SeatLine = {{0, 4.5}, {0, 4.5}};
  bench.Tooth.DropLine = {{0, 4.5}, {0, 4.5}};
  bench.Tooth.GulletArc = {0.5, 4.5, 0.5, 180, 360};
  bench.Tooth.BackLine = {{1, 4.5}, {1, 5}};
  bench.Tooth.TopLine = {{1, 5}, {2, 5}};
}

// Between face and back 0.49999 (half a square inch, less what the turns take), in the half circle 0.39262
// (0.01745 for a degree, less the same), at the face's corner 0.12499; below the tip
// (0.39262 + 0.12499) * 1.1.
TEST(GulletArea, AddsTheFiguresOfASquareToothWithoutASeat) {
  Workbench bench;
  LayTooth(bench);
  GulletArea(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.Area, 0.89261, 1e-9);
  EXPECT_NEAR(bench.Saw.GulletInfo.AreaBelowTip, 0.56937, 1e-9);
  EXPECT_EQ(bench.Tooth.Area, bench.Saw.GulletInfo.Area);
}

TEST(GulletArea, IsTheSameForARoundBack) {
  Workbench bench;
  LayTooth(bench);
  bench.Saw.ToothStyle = RoundBack;
  bench.Tooth.Style = RoundBack;
  GulletArea(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.Area, 0.89261, 1e-9);
}

// 0.47499 + 0.31802 in all; above the seat 0.375; at the seat's corner 0.09.
TEST(GulletArea, TakesTheCornerBelowASeat) {
  Workbench bench;
  LayTooth(bench);
  bench.Saw.SeatInfo.State = True;
  bench.Tooth.FaceLine.End = {0, 4.7};
  bench.Tooth.SeatLine = {{0, 4.7}, {0.1, 4.7}};
  bench.Tooth.DropLine = {{0.1, 4.7}, {0.1, 4.5}};
  bench.Tooth.GulletArc = {0.55, 4.5, 0.45, 180, 360};
  GulletArea(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.Area, 0.79301, 1e-9);
  EXPECT_NEAR(bench.Saw.GulletInfo.AreaBelowTip, 0.55881, 1e-9);
}

// No arc: 1.99999 between face and back, all of it above the seat, 0.47499 at the face's corner. A tenth more
// of that is 0.52249, but three tenths of the whole are more.
TEST(GulletArea, IsThreeTenthsBelowTheTipAtLeast) {
  Workbench bench;
  LayTooth(bench);
  bench.Tooth.FaceLine = {{0, 5}, {0, 3.1}};
  bench.Tooth.SeatLine = {{0, 3}, {0, 3}};
  bench.Tooth.DropLine = {{0, 3}, {0, 3}};
  bench.Tooth.GulletArc = {};
  bench.Tooth.BackLine = {{1, 3}, {1, 5}};
  GulletArea(bench.Work);
  EXPECT_NEAR(bench.Saw.GulletInfo.Area, 1.99999, 1e-9);
  EXPECT_NEAR(bench.Saw.GulletInfo.AreaBelowTip, 0.599997, 1e-9) << "as it is, not rounded";
}

}  // namespace
}  // namespace tarnwick
