// Files that must never be half there.

#include <gtest/gtest.h>

#include <algorithm>

#include "store/modFiles.h"
#include "support/TemporaryFolder.h"
#ifndef _WIN32
#include <sys/stat.h>

#include "support/FullDisk.h"
#include "support/PipeWatch.h"
#endif

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

Names NamesIn(const TemporaryFolder& folder) {
  Names names;
  for (const auto& entry : fs::directory_iterator(folder.Path()))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

TEST(ReplaceWholeFile, PutsANewFileInThePlaceOfTheOldOne) {
  const TemporaryFolder folder;
  const fs::path path = folder.File("a", "something longer");
  EXPECT_FALSE(ReplaceWholeFile(path, "short\r\n"));
  EXPECT_EQ(BytesOf(path), "short\r\n");
  EXPECT_FALSE(ReplaceWholeFile(path, ""));
  EXPECT_EQ(BytesOf(path), "");
  EXPECT_FALSE(ReplaceWholeFile(folder / "b", std::string("\0\xFF", 2)));
  EXPECT_EQ(BytesOf(folder / "b"), std::string("\0\xFF", 2));
  EXPECT_EQ(NamesIn(folder), (Names{"a", "b"}));
}

TEST(ReplaceWholeFile, NeedsAFolderToWriteInto) {
  const TemporaryFolder folder;
  const fs::path path = folder.File("a", "old");
  EXPECT_EQ(ReplaceWholeFile(folder / "missing" / "a", "x"), std::errc::no_such_file_or_directory);
  EXPECT_TRUE(ReplaceWholeFile(path / "a", "x")) << "a file is no folder";
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_EQ(NamesIn(folder), Names{"a"});
}

TEST(ReplaceWholeFile, ReplacesNoFolder) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "empty");
  EXPECT_TRUE(ReplaceWholeFile(folder / "empty", "x"));
  EXPECT_TRUE(fs::is_directory(folder / "empty"));
  EXPECT_EQ(NamesIn(folder), Names{"empty"});
}

#ifndef _WIN32

TEST(ReplaceWholeFile, FollowsALinkToTheEndAndKeepsIt) {
  const TemporaryFolder folder;
  const fs::path target = folder.File("target", "old");
  fs::create_symlink("target", folder / "link");
  fs::create_symlink(folder / "link", folder / "link to a link");
  EXPECT_FALSE(ReplaceWholeFile(folder / "link to a link", "new"));
  EXPECT_EQ(BytesOf(target), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_TRUE(fs::is_symlink(folder / "link to a link"));
  EXPECT_EQ(NamesIn(folder), (Names{"link", "link to a link", "target"}));
}

TEST(ReplaceWholeFile, KeepsPermissions) {
  const TemporaryFolder folder;
  const fs::path path = folder.File("a", "old");
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_FALSE(ReplaceWholeFile(path, "new"));
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(ReplaceWholeFile, LeavesTheOldFileOnAFullDisk) {
  const TemporaryFolder folder;
  const fs::path path = folder.File("a", "old");
  {
    const test::FullDisk full(1000);
    EXPECT_EQ(ReplaceWholeFile(path, std::string(5000, 'x')), std::errc::file_too_large);
  }
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_EQ(NamesIn(folder), Names{"a"});
}

TEST(ReplaceWholeFile, PutsNoFileInThePlaceOfWhatIsNone) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  const test::PipeWatch watch(folder / "pipe");
  EXPECT_TRUE(ReplaceWholeFile(folder / "pipe", "x"));
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
  EXPECT_EQ(NamesIn(folder), Names{"pipe"});
}

#endif

}  // namespace
}  // namespace tarnwick
