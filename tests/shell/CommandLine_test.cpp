#include "shell/CommandLine.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using test::TemporaryFolder;

std::string CommandFileOf(const std::vector<std::string>& arguments) {
  std::vector<const char*> argv{"tarnwick"};
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  return CommandFile(static_cast<int>(argv.size()), argv.data());
}

TEST(CommandLine, NamesAFile) {
  const TemporaryFolder folder;
  const std::string path = folder.File("head.bsw", "x").string();
  EXPECT_EQ(CommandFileOf({path}), path);
}

TEST(CommandLine, IsOnePathHoweverManyArgumentsItHas) {
  const TemporaryFolder folder;
  const std::string path = folder.File("two words.bsw", "x").string();
  const std::size_t blank = path.rfind(' ');
  EXPECT_EQ(CommandFileOf({path.substr(0, blank), path.substr(blank + 1)}), path);
}

TEST(CommandLine, IsTakenWholeSoThatASecondFileSpoilsTheFirst) {
  const TemporaryFolder folder;
  const std::string path = folder.File("head.bsw", "x").string();
  EXPECT_EQ(CommandFileOf({path, path}), "");
}

TEST(CommandLine, KeepsQuotesThatReachTheProgram) {
  const TemporaryFolder folder;
  EXPECT_EQ(CommandFileOf({'"' + folder.File("head.bsw", "x").string() + '"'}), "");
}

TEST(CommandLine, DropsWhatCannotBeRead) {
  const TemporaryFolder folder;
  EXPECT_EQ(CommandFileOf({(folder / "nobody.bsw").string()}), "");
  EXPECT_EQ(CommandFileOf({folder.Path().string()}), "");
  EXPECT_EQ(CommandFileOf({"--help"}), "");
  EXPECT_EQ(CommandFileOf({""}), "");
}

TEST(CommandLine, NamesAFileInAnyScript) {
  const TemporaryFolder folder;
  const std::string path = PathText(folder.File("Weiß 木工.bsw", "x"));
  EXPECT_EQ(CommandFileOf({path}), path);
}

TEST(CommandLine, IsEmptyWithoutArguments) { EXPECT_EQ(CommandFileOf({}), ""); }

TEST(CommandLine, MakesARelativePathAbsolute) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder.File("head.bsw", "x");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  const std::string found = CommandFileOf({"head.bsw"});
  std::filesystem::current_path(before);
  EXPECT_TRUE(std::filesystem::path(found).is_absolute()) << found;
  EXPECT_TRUE(std::filesystem::equivalent(found, path)) << found;
}

}  // namespace
}  // namespace tarnwick
