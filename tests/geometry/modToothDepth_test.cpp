#include "geometry/modToothDepth.h"

#include <gtest/gtest.h>

#include "support/Shapes.h"
#include "support/Workbench.h"

namespace tarnwick {
namespace {

using test::Near;
using test::Same;
using test::Workbench;

void LayFace(Workbench& bench, Flag seat) {
  bench.Saw.SeatInfo.State = seat;
  bench.Tooth.FaceLine = {{0, 5}, {-0.1, 4.5}};
  bench.Tooth.SeatLine = {{-0.1, 4.5}, {0.25, 4.25}};
  bench.Tooth.DropLine = {{0.25, 4.25}, {0.25, 4}};
  bench.Tooth.FirstArc = {1, 4, 0.5, 180, 300};
  bench.Tooth.SecondArc = {2, 3, 0.5, 180, 300};
  bench.Tooth.ThirdArc = {3, 2, 0.5, 180, 300};
}

TEST(LowerGullet, MovesTheArcsNamedAndTheEndOfTheDrop) {
  Workbench bench;
  LayFace(bench, True);
  LowerGullet(bench.Work, 0.5, 0.125, {&bench.Tooth.FirstArc, &bench.Tooth.SecondArc});
  EXPECT_TRUE(Same(bench.Tooth.FirstArc, {0.875, 3.5, 0.5, 180, 300}));
  EXPECT_TRUE(Same(bench.Tooth.SecondArc, {1.875, 2.5, 0.5, 180, 300}));
  EXPECT_TRUE(Same(bench.Tooth.ThirdArc, {3, 2, 0.5, 180, 300}));
  EXPECT_TRUE(Same(bench.Tooth.DropLine, {{0.25, 4.25}, {0.125, 3.5}}));
  EXPECT_TRUE(Same(bench.Tooth.SeatLine, {{-0.1, 4.5}, {0.25, 4.25}}));
  EXPECT_TRUE(Same(bench.Tooth.FaceLine, {{0, 5}, {-0.1, 4.5}}));
}

TEST(LowerGullet, MovesTheEndOfTheFaceAndCollapsesSeatAndDropWithoutASeat) {
  Workbench bench;
  LayFace(bench, False);
  LowerGullet(bench.Work, 0.5, 0.125, {&bench.Tooth.FirstArc});
  const Point end{-0.225, 4};
  EXPECT_TRUE(Near(bench.Tooth.FaceLine, {{0, 5}, end}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.SeatLine, {end, end}, 1e-12));
  EXPECT_TRUE(Near(bench.Tooth.DropLine, {end, end}, 1e-12));
}

}  // namespace
}  // namespace tarnwick
