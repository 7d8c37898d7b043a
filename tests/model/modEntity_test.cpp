#include "model/modEntity.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/CollectedMessages.h"

namespace tarnwick {
namespace {

using test::CollectedMessages;

/// A list of `count` lines; the first corner of each tells its number.
EntityList Lines(int count, double first = 0) {
  EntityList list;
  for (int i = 0; i < count; ++i) list.Entities.push_back(LineEntity{first + i, 0, 1, 1});
  return list;
}

double NumberOf(const Entity& entity) { return std::get<LineEntity>(entity).Corner1X; }

TEST(EntityList, IsEmptyWhenItIsFresh) {
  const EntityList list;
  EXPECT_EQ(list.Count(), 0u);
  EXPECT_EQ(list.Header.MaxX, 0);
  EXPECT_EQ(list.Header.MaxY, 0);
  EXPECT_EQ(list.Header.ViewCenterX, 0);
  EXPECT_EQ(list.Header.ViewCenterY, 0);
}

TEST(Entity, IsNamedAsInADrawing) {
  EXPECT_EQ(LineEntity::Kind, "LINE");
  EXPECT_EQ(ArcEntity::Kind, "ARC");
  EXPECT_EQ(CircleEntity::Kind, "CIRCLE");
  EXPECT_EQ(TextEntity::Kind, "TEXT");
  EXPECT_EQ(SolidEntity::Kind, "SOLID");
}

TEST(AppendEntities, PutsTheSourceBehindTheTarget) {
  EntityList target = Lines(3);
  const EntityList source = Lines(4, 100);
  CollectedMessages say;
  AppendEntities(target, source, 128000, say);
  ASSERT_EQ(target.Count(), 7u);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(NumberOf(target.Entities[static_cast<std::size_t>(i)]), i);
  for (int i = 3; i < 7; ++i) EXPECT_EQ(NumberOf(target.Entities[static_cast<std::size_t>(i)]), 97 + i);
  EXPECT_EQ(source.Count(), 4u);
  EXPECT_TRUE(say.Shown.empty());
}

TEST(AppendEntities, KeepsTheHeaderOfATargetThatHoldsSomething) {
  EntityList target = Lines(1);
  target.Header = {10, 2, 5, 1};
  EntityList source = Lines(1);
  source.Header = {30, 4, 15, 2};
  CollectedMessages say;
  AppendEntities(target, source, 128000, say);
  EXPECT_EQ(target.Header.MaxX, 10);
  EXPECT_EQ(target.Header.MaxY, 2);
  EXPECT_EQ(target.Header.ViewCenterX, 5);
  EXPECT_EQ(target.Header.ViewCenterY, 1);
}

TEST(AppendEntities, TakesOverTheHeaderIntoAnEmptyTarget) {
  EntityList target;
  target.Header = {10, 2, 5, 1};
  EntityList source = Lines(2);
  source.Header = {30, 4, 15, 2};
  CollectedMessages say;
  AppendEntities(target, source, 128000, say);
  EXPECT_EQ(target.Count(), 2u);
  EXPECT_EQ(target.Header.MaxX, 30);
  EXPECT_EQ(target.Header.MaxY, 4);
  EXPECT_EQ(target.Header.ViewCenterX, 15);
  EXPECT_EQ(target.Header.ViewCenterY, 2);
}

TEST(AppendEntities, ChangesNothingWithAnEmptySource) {
  EntityList target = Lines(3);
  CollectedMessages say;
  AppendEntities(target, EntityList{}, 128000, say);
  EXPECT_EQ(target.Count(), 3u);
  EntityList empty;
  AppendEntities(empty, EntityList{}, 128000, say);
  EXPECT_EQ(empty.Count(), 0u);
  EXPECT_TRUE(say.Shown.empty());
}

struct LimitRow {
  const char* Name;
  int MemorySize, InTarget, InSource;
  bool Passes;
  friend void PrintTo(const LimitRow& row, std::ostream* out) { *out << row.Name; }
};
class MergedList : public testing::TestWithParam<LimitRow> {};

TEST_P(MergedList, IsRefusedAboveAnEighthOfTheMemorySize) {
  const LimitRow& row = GetParam();
  EntityList target = Lines(row.InTarget);
  CollectedMessages say;
  AppendEntities(target, Lines(row.InSource, 5000), row.MemorySize, say);
  if (row.Passes) {
    EXPECT_EQ(target.Count(), static_cast<std::size_t>(row.InTarget + row.InSource));
    EXPECT_TRUE(say.Shown.empty());
    return;
  }
  EXPECT_EQ(target.Count(), static_cast<std::size_t>(row.InTarget));
  ASSERT_EQ(say.Texts(), std::vector<std::string>{"Increase dxf memory!"});
  EXPECT_EQ(say.Shown[0].Offer, Buttons::Ok);
}

INSTANTIATE_TEST_SUITE_P(Limits, MergedList,
                         testing::Values(LimitRow{"OneThousandPass", 8000, 400, 600, true},
                                         LimitRow{"OneMoreIsRefused", 8000, 400, 601, false},
                                         LimitRow{"TheTargetAloneMayFillIt", 8000, 1000, 0, true},
                                         LimitRow{"AFractionOfAnEntityDoesNotCount", 8007, 1, 1000, false},
                                         LimitRow{"TheNextWholeOneDoes", 8008, 1, 1000, true}),
                         [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace tarnwick
