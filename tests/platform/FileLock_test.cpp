#include "platform/FileLock.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/TemporaryFolder.h"
#ifndef _WIN32
#include <sys/stat.h>

#include "support/KilledProcess.h"
#endif

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

TEST(FileLock, IsHeldByOneAtATime) {
  const TemporaryFolder folder;
  FileLock mine, other;
  EXPECT_FALSE(mine.Held());
  ASSERT_TRUE(mine.Take(folder / "lock"));
  EXPECT_TRUE(mine.Held());
  EXPECT_FALSE(other.Take(folder / "lock"));
  EXPECT_FALSE(other.Held());
  mine.Release();
  EXPECT_TRUE(other.Take(folder / "lock"));
}

TEST(FileLock, LeavesItsFileUnlessAskedToRemoveIt) {
  const TemporaryFolder folder;
  FileLock lock;
  ASSERT_TRUE(lock.Take(folder / "lock"));
  lock.Release();
  EXPECT_TRUE(fs::exists(folder / "lock"));
  lock.ReleaseAndRemove();  // it is not held any more, so it is not for this one to remove
  EXPECT_TRUE(fs::exists(folder / "lock"));
  ASSERT_TRUE(lock.Take(folder / "lock"));
  lock.ReleaseAndRemove();
  EXPECT_FALSE(fs::exists(folder / "lock"));
  EXPECT_FALSE(lock.Held());
}

TEST(FileLock, IsLetGoAtTheEndOfItsScope) {
  const TemporaryFolder folder;
  {
    FileLock gone;
    ASSERT_TRUE(gone.Take(folder / "lock"));
  }
  FileLock lock;
  EXPECT_TRUE(lock.Take(folder / "lock"));
}

TEST(FileLock, TakesAFileThatWasLeftBehind) {
  const TemporaryFolder folder;
  FileLock lock;
  EXPECT_TRUE(lock.Take(folder.File("lock", "of yesterday")));
}

TEST(FileLock, GoesFromHandToHand) {
  const TemporaryFolder folder;
  FileLock first, other;
  ASSERT_TRUE(first.Take(folder / "lock"));
  FileLock second(std::move(first));
  FileLock third;
  ASSERT_TRUE(third.Take(folder / "another"));
  third = std::move(second);
  EXPECT_TRUE(third.Held());
  EXPECT_FALSE(other.Take(folder / "lock"));
  EXPECT_TRUE(other.Take(folder / "another"));
  third.ReleaseAndRemove();
  EXPECT_FALSE(fs::exists(folder / "lock"));
}

TEST(FileLock, IsNotTakenWhereThereCannotBeAFile) {
  const TemporaryFolder folder;
  FileLock lock;
  EXPECT_FALSE(lock.Take(folder / "missing/lock"));
  EXPECT_FALSE(lock.Take(folder.Path()));
  EXPECT_FALSE(lock.Held());
}

#ifndef _WIN32

TEST(FileLock, FollowsNoLink) {
  const TemporaryFolder folder;
  fs::create_symlink(folder.File("document", "x"), folder / "lock");
  EXPECT_FALSE(FileLock().Take(folder / "lock"));
}

TEST(FileLock, IsNobodyElsesToOpen) {
  const TemporaryFolder folder;
  FileLock lock;
  ASSERT_TRUE(lock.Take(folder / "lock"));
  EXPECT_EQ(fs::status(folder / "lock").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(FileLock, IsFreeOnceItsProcessIsKilled) {
  const TemporaryFolder folder;
  FileLock inOther, lock;
  test::KilledProcess other([&] { static_cast<void>(inOther.Take(folder / "lock")); });
  ASSERT_TRUE(other.Ready());
  EXPECT_FALSE(lock.Take(folder / "lock"));
  other.Kill();
  EXPECT_TRUE(lock.Take(folder / "lock"));
}

#endif

}  // namespace
}  // namespace tarnwick
