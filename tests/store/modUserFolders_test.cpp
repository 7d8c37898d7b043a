#include "store/modUserFolders.h"

#include <gtest/gtest.h>

#include "support/Environment.h"

namespace tarnwick {
namespace {

using test::EnvironmentVariable;

#ifndef _WIN32

struct FolderRow {
  const char* Name;
  std::filesystem::path (*Folder)();
  const char* Variable;
  const char* AtHome;
  friend void PrintTo(const FolderRow& row, std::ostream* out) { *out << row.Name; }
};

class UserFolder : public testing::TestWithParam<FolderRow> {};

TEST_P(UserFolder, IsWhatTheDesktopSays) {
  const EnvironmentVariable named(GetParam().Variable, "/somewhere/else");
  const EnvironmentVariable home("HOME", "/home/sawyer");
  EXPECT_EQ(GetParam().Folder(), "/somewhere/else");
}

TEST_P(UserFolder, IsInTheHomeFolderOtherwise) {
  const EnvironmentVariable home("HOME", "/home/sawyer");
  for (const auto& none : {std::optional<std::string>(), std::optional<std::string>(""),
                           std::optional<std::string>("not/from/the/root")}) {
    const EnvironmentVariable named(GetParam().Variable, none);
    EXPECT_EQ(GetParam().Folder(), std::filesystem::path("/home/sawyer") / GetParam().AtHome);
  }
}

TEST_P(UserFolder, IsEmptyWithoutAHome) {
  const EnvironmentVariable named(GetParam().Variable, std::nullopt);
  for (const auto& none : {std::optional<std::string>(), std::optional<std::string>("")}) {
    const EnvironmentVariable home("HOME", none);
    EXPECT_EQ(GetParam().Folder(), "");
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, UserFolder,
    testing::Values(FolderRow{"Settings", UserSettingsFolder, "XDG_CONFIG_HOME", ".config"},
                    FolderRow{"State", UserStateFolder, "XDG_STATE_HOME", ".local/state"}),
    [](const auto& row) { return std::string(row.param.Name); });

#else

TEST(UserStateFolder, IsTheLocalApplicationData) {
  const EnvironmentVariable local("LOCALAPPDATA", "C:\\Users\\sawyer\\AppData\\Local");
  EXPECT_EQ(UserStateFolder(), "C:\\Users\\sawyer\\AppData\\Local");
}

TEST(UserStateFolder, IsEmptyWhereThereIsNone) {
  const EnvironmentVariable local("LOCALAPPDATA", std::nullopt);
  EXPECT_EQ(UserStateFolder(), "");
}

#endif

}  // namespace
}  // namespace tarnwick
