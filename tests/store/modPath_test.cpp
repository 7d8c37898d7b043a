#include "store/modPath.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

/// Paths below are written with "/"; on a platform of backslashes they mean those.
std::string Native(std::string path) {
  for (char& c : path) {
    if (c == '/') c = PathSeparator;
  }
  return path;
}

struct PathRow {
  const char* Name;
  const char* Path;
  const char* File;
  const char* Folder;
  friend void PrintTo(const PathRow& row, std::ostream* out) { *out << row.Name; }
};
class PathParts : public testing::TestWithParam<PathRow> {};

TEST_P(PathParts, AreNameAndFolder) {
  const std::string path = Native(GetParam().Path);
  EXPECT_EQ(FileNameOf(path), Native(GetParam().File));
  EXPECT_EQ(FolderOf(path), Native(GetParam().Folder));
}

INSTANTIATE_TEST_SUITE_P(
    Paths, PathParts,
    testing::Values(PathRow{"Usual", "/saws/head.bsw", "head.bsw", "/saws/"},
                    PathRow{"NoDotInTheName", "/saws/head", "", ""},
                    PathRow{"DotInTheFolderOnly", "/saws.old/head", "", ""},
                    PathRow{"DotInBoth", "/saws.old/head.bsw", "head.bsw", "/saws.old/"},
                    PathRow{"SeveralDots", "/saws/head.2.bsw", "head.2.bsw", "/saws/"},
                    PathRow{"NoFolder", "head.bsw", "", ""}, PathRow{"Empty", "", "", ""},
                    PathRow{"OnlyAFolder", "/saws/", "", ""},
                    PathRow{"BlanksStay", "/my saws/ head .bsw", " head .bsw", "/my saws/"},
                    PathRow{"AtTheRoot", "/head.bsw", "head.bsw", "/"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(FilePath, NamesTheFileInAnyScript) {
  for (const char* text : {"head.bsw", "Weiß 木工.bsw", "\xF0\x9F\xAA\x9A", ""}) {
    EXPECT_EQ(PathText(FilePath(text)), text);
  }
  EXPECT_EQ(FilePath("Weiß 木.bsw"), std::filesystem::path(u8"Weiß 木.bsw"));
}

struct FolderRow {
  const char* Name;
  const char* Path;
  const char* Want;
  friend void PrintTo(const FolderRow& row, std::ostream* out) { *out << row.Name; }
};
class AddBackslashTo : public testing::TestWithParam<FolderRow> {};

TEST_P(AddBackslashTo, EndsInASeparator) {
  EXPECT_EQ(AddBackslash(Native(GetParam().Path)), Native(GetParam().Want));
}

INSTANTIATE_TEST_SUITE_P(
    Folders, AddBackslashTo,
    testing::Values(FolderRow{"Without", "/saws", "/saws/"}, FolderRow{"One", "/saws/", "/saws/"},
                    FolderRow{"Two", "/saws//", "/saws/"}, FolderRow{"Three", "/saws///", "/saws/"},
                    FolderRow{"Four", "/saws////", "/saws/"},
                    FolderRow{"FiveLoseThree", "/saws/////", "/saws//"}, FolderRow{"Empty", "", "/"},
                    FolderRow{"Root", "/", "/"}, FolderRow{"OnlySeparators", "////", "/"}),
    [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace tarnwick
