#include "store/modFiles.h"

#include <gtest/gtest.h>

#include "support/FolderAsFile.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::FolderAsFile;
using test::TemporaryFolder;

TEST(FileExists, IsWhetherAFileCanBeOpened) {
  const TemporaryFolder folder;
  EXPECT_TRUE(FileExists(folder.File("there.bsw", "")));
  EXPECT_FALSE(FileExists(folder / "missing.bsw"));
  EXPECT_FALSE(FileExists(folder / "missing" / "there.bsw"));
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(FileExists(folder.Path()));  // a folder is no file
}

TEST(ReadFile, GivesAllBytes) {
  const TemporaryFolder folder;
  const std::string bytes = std::string("\r\n\0\x1A\xFF", 5) + std::string(200000, 'x');
  const FileBytes read = ReadFile(folder.File("a", bytes), 1000000);
  EXPECT_FALSE(read.Error);
  EXPECT_EQ(read.Bytes, bytes);
}

TEST(ReadFile, StopsAtTheMostThatIsWanted) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadFile(folder.File("a", "0123456789"), 4).Bytes, "0123");
}

TEST(ReadFile, SaysWhyThereAreNoBytes) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadFile(folder / "missing", 10).Error, std::errc::no_such_file_or_directory);
  EXPECT_EQ(ReadFile(folder.Path(), 10).Error, FolderAsFile);
  const FileBytes empty = ReadFile(folder.File("empty", ""), 10);
  EXPECT_FALSE(empty.Error);
  EXPECT_EQ(empty.Bytes, "");
}

TEST(WriteWholeFile, ReplacesALongerFile) {
  const TemporaryFolder folder;
  const fs::path path = folder.File("a", "something longer");
  EXPECT_FALSE(WriteWholeFile(path, "short\r\n"));
  EXPECT_EQ(BytesOf(path), "short\r\n");
}

TEST(WriteWholeFile, BreaksAwayFromAFileWithTwoNames) {
  const TemporaryFolder folder;
  const fs::path path = folder.File("a", "old");
  fs::create_hard_link(path, folder / "b");
  EXPECT_FALSE(WriteWholeFile(path, "new"));
  EXPECT_EQ(BytesOf(path), "new");
  EXPECT_EQ(BytesOf(folder / "b"), "old");  // the old file was deleted, not overwritten
}

TEST(WriteWholeFile, DeletesNoFolder) {
  const TemporaryFolder folder;
  const fs::path inner = folder / "empty-folder";
  fs::create_directory(inner);
  EXPECT_EQ(WriteWholeFile(inner, "x"), FolderAsFile);
  EXPECT_TRUE(fs::is_directory(inner));
}

TEST(WriteWholeFile, NeedsAFolderToWriteInto) {
  const TemporaryFolder folder;
  EXPECT_EQ(WriteWholeFile(folder / "missing" / "a", "x"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(WriteWholeFile("", "x"), std::errc::no_such_file_or_directory);
}

#ifndef _WIN32  // links, pipes, permissions, and devices that have a place among the files

TEST(ReadFile, NeedsNoEnd) { EXPECT_EQ(ReadFile("/dev/zero", 70000).Bytes, std::string(70000, '\0')); }

TEST(WriteWholeFile, WritesThroughALinkAndKeepsIt) {
  const TemporaryFolder folder;
  const fs::path target = folder.File("target", "old");
  fs::create_symlink(target, folder / "link");
  EXPECT_FALSE(WriteWholeFile(folder / "link", "new"));
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(BytesOf(target), "new");
}

TEST(WriteWholeFile, DeletesNoDevice) {
  EXPECT_FALSE(WriteWholeFile("/dev/null", "x"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(WriteWholeFile, SeesAFullDisk) {
  EXPECT_EQ(WriteWholeFile("/dev/full", "x"), std::errc::no_space_on_device);
  EXPECT_EQ(WriteWholeFile("/dev/full", std::string(1000000, 'x')), std::errc::no_space_on_device);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

#endif

}  // namespace
}  // namespace tarnwick
