#include "window/modGroupReach.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarnwick {
namespace {

constexpr Mapping Halves{.PixelsPerUnit = 2, .OriginX = 100, .OriginY = 0};  // an inch is two pixels

/// Groups of a line from x + 1 to x and a circle of radius 1.5 about x, with x = 0, 10, 20 ... behind a line
/// that does not belong to them.
EntityList Groups(int times) {
  EntityList list;
  list.Entities.emplace_back(LineEntity{-500, 0, 500, 0});
  for (int i = 0; i < times; ++i) {
    const double x = 10.0 * i;
    list.Entities.emplace_back(LineEntity{x + 1, 0, x, 0});
    list.Entities.emplace_back(ArcEntity{x, 0, 1.5, 0, 360});
  }
  list.Repetitions = {{1, 2, static_cast<std::size_t>(times)}};
  return list;
}

struct ReachRow {
  double Pixel;
  std::size_t Reaching, Beyond;
};
class ReachOfGroups : public testing::TestWithParam<ReachRow> {};

// The groups cover the pixels 97 to 103, 117 to 123 and so on, the last one 2077 to 2083.
TEST_P(ReachOfGroups, FindsTheFirstAtAPixel) {
  const EntityList list = Groups(100);
  const GroupReach reach(list, list.Repetitions[0], Halves);
  EXPECT_EQ(reach.FirstReaching(GetParam().Pixel), GetParam().Reaching);
  EXPECT_EQ(reach.FirstBeyond(GetParam().Pixel), GetParam().Beyond);
}

INSTANTIATE_TEST_SUITE_P(Pixels, ReachOfGroups,
                         testing::Values(ReachRow{-1000, 0, 0}, ReachRow{96.9, 0, 0}, ReachRow{97, 0, 1},
                                         ReachRow{103, 0, 1}, ReachRow{103.1, 1, 1}, ReachRow{117, 1, 2},
                                         ReachRow{1100, 50, 51}, ReachRow{1110, 51, 51},
                                         ReachRow{2083, 99, 100}, ReachRow{2083.1, 100, 100}));

TEST(ReachOfGroups, GoesOnFromWhereItIsTold) {
  const EntityList list = Groups(100);
  const GroupReach reach(list, list.Repetitions[0], Halves);
  for (std::size_t from = 0; from <= 100; ++from) {
    EXPECT_EQ(reach.FirstReaching(1110, from), std::max<std::size_t>(from, 51)) << from;
    EXPECT_EQ(reach.FirstBeyond(1110, from), std::max<std::size_t>(from, 51)) << from;
  }
}

TEST(ReachOfGroups, KnowsASingleGroup) {
  const EntityList list = Groups(1);
  const GroupReach reach(list, list.Repetitions[0], Halves);
  EXPECT_EQ(reach.FirstReaching(100), 0U);
  EXPECT_EQ(reach.FirstReaching(104), 1U);
}

}  // namespace
}  // namespace tarnwick
