// What the command line tool takes from the settings of the user, from outside.
#ifndef _WIN32  // where settings lie in the registry, and no test may change the user's own

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/TemporaryFolder.h"
#include "support/ToolRun.h"

namespace tarnwick::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::BytesOf;
using test::Environment;
using test::RunTool;
using test::TemporaryFolder;
using test::ToolRun;
using Arguments = std::vector<std::string>;

constexpr const char* Band =
    R"({"ToothStyle":1,"Length":20,"NumTeeth":7,"Width":6,"GulletInfo":{"Radius":0.4,"Depth":0.75}})";

class ToolSettings : public testing::Test {
 protected:
  ToolSettings() {
    fs::create_directory(home_ / "config");
    fs::create_directory(home_ / "Documents");
  }

  void Store(std::string_view lines) const {
    fs::create_directories(home_ / "config/Tarnwick");
    home_.File("config/Tarnwick/Settings", lines);
  }

  [[nodiscard]] Environment User() const {
    return {{"HOME", home_.Path().string()}, {"XDG_CONFIG_HOME", (home_ / "config").string()}};
  }

  [[nodiscard]] ToolRun Run(const Arguments& arguments) const {
    return RunTool(work_, arguments, Band, User());
  }

  /// Pitch of the band, which has as many places as calculated numbers have.
  [[nodiscard]] double Pitch(const Arguments& options = {}) const {
    Arguments arguments{"json", "-"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.Code, 0);
    EXPECT_EQ(run.Err, "");
    const json design = json::parse(run.Out, nullptr, false);
    return design.is_object() ? design["saw"]["Pitch"].get<double>() : 0;
  }

  /// The colours that a drawing's entities have.
  [[nodiscard]] bool DrawsInColour(int colour, const Arguments& options = {}) const {
    Arguments arguments{"dxf", "-", "-o", "-"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Run(arguments).Out.find(" 62 \r\n" + std::to_string(colour) + "\r\n") != std::string::npos;
  }

  const TemporaryFolder home_, work_;
};

constexpr double AtFour = 34.2857, AtFive = 34.28571, AtEight = 34.28571428;

TEST_F(ToolSettings, AreTheDefaultsForAUserWithoutAny) {
  EXPECT_EQ(Pitch(), AtFive);
  EXPECT_TRUE(DrawsInColour(5));
}

TEST_F(ToolSettings, ChangeTheFigures) {
  Store("DecimalPlaces= 4\n");
  EXPECT_EQ(Pitch(), AtFour);
  Store("DecimalPlaces= 8\n");
  EXPECT_EQ(Pitch(), AtEight);
  EXPECT_EQ(Run({"eval", "1 ft 1 in"}).Out, "1.08333333\n");
}

TEST_F(ToolSettings, ChangeTheDrawing) {
  Store("DxfSaveColor= 3\n");
  EXPECT_TRUE(DrawsInColour(3));
  EXPECT_FALSE(DrawsInColour(5));
  Store("DxfSaveColor= 0\n");
  EXPECT_TRUE(DrawsInColour(0));
}

TEST_F(ToolSettings, TurnTheTeethAround) {
  Store("TeethDirection= 1\nDxfSaveColor= 5\n");
  const std::string one = Run({"dxf", "-", "-o", "-"}).Out;
  Store("TeethDirection= 2\nDxfSaveColor= 5\n");
  const std::string other = Run({"dxf", "-", "-o", "-"}).Out;
  EXPECT_NE(one, other);
  EXPECT_EQ(other, Run({"dxf", "-", "-o", "-", "--defaults", "--teeth-direction", "2"}).Out);
}

TEST_F(ToolSettings, LimitTheDrawing) {
  Store("MemorySize= 8000\n");
  const ToolRun run =
      RunTool(work_, {"dxf", "-", "-o", "a.dxf"},
              R"({"ToothStyle":1,"Length":400,"Pitch":1,"GulletInfo":{"Radius":0.2}})", User());
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "tarnwick-cli: -: File is two large\n");
}

TEST_F(ToolSettings, AreIgnoredOnDemand) {
  Store("DecimalPlaces= 4\nDxfSaveColor= 3\n");
  EXPECT_EQ(Pitch({"--defaults"}), AtFive);
  EXPECT_TRUE(DrawsInColour(5, {"--defaults"}));
  EXPECT_EQ(Pitch({"--defaults", "--decimal-places", "8"}), AtEight);
}

TEST_F(ToolSettings, GiveWayToAnOption) {
  Store("DecimalPlaces= 4\nDxfSaveColor= 3\n");
  EXPECT_EQ(Pitch({"--decimal-places", "8"}), AtEight);
  EXPECT_EQ(Pitch({"--decimal-places", "5"}), AtFive);  // though it is the default
  EXPECT_TRUE(DrawsInColour(7, {"--dxf-color", "7"}));
  EXPECT_EQ(Pitch({"--dxf-color", "7"}), AtFour);  // the others stay
}

TEST_F(ToolSettings, AreMendedOutOfRange) {
  for (const char* places : {"3", "11", "0", "-1", "abc", ""}) {
    Store(std::string("DecimalPlaces=") + places + "\nDxfSaveColor= 3\n");
    EXPECT_EQ(Pitch(), AtFive) << places;
    EXPECT_TRUE(DrawsInColour(3)) << places;
  }
  Store("DxfSaveColor= 10\nMemorySize= 1\n");
  EXPECT_TRUE(DrawsInColour(5));
}

TEST_F(ToolSettings, DoNotStandInTheWayWhenTheyAreFew) {
  Store("# nothing yet\n");
  EXPECT_EQ(Pitch(), AtFive);
  EXPECT_TRUE(DrawsInColour(0));  // black is a colour that can be meant
}

TEST_F(ToolSettings, AreTheDefaultsWhenTheStoreIsBroken) {
  Store("DecimalPlaces= 4\nDxfSaveColor= 3\nPrintLineThick= 99999\n");
  EXPECT_EQ(Pitch(), AtFive);
  EXPECT_TRUE(DrawsInColour(5));
}

TEST_F(ToolSettings, AreTheDefaultsWhenTheStoreIsAFolder) {
  fs::create_directories(home_ / "config/Tarnwick/Settings");
  EXPECT_EQ(Pitch(), AtFive);
  EXPECT_TRUE(DrawsInColour(5));
}

TEST_F(ToolSettings, SurviveGarbage) {
  std::string bytes = "DecimalPlaces= 4\n";
  for (unsigned i = 0; i < 3000000; ++i) bytes += static_cast<char>(i * 7919 >> 3);
  Store(bytes);
  EXPECT_EQ(Run({"json", "-"}).Code, 0);
  EXPECT_TRUE(BytesOf(home_ / "config/Tarnwick/Settings") == bytes);
}

TEST_F(ToolSettings, AreFoundInTheHomeFolder) {
  fs::create_directories(home_ / ".config/Tarnwick");
  home_.File(".config/Tarnwick/Settings", "DecimalPlaces= 4\n");
  Environment user = User();
  user["XDG_CONFIG_HOME"] = std::nullopt;
  const ToolRun run = RunTool(work_, {"json", "-"}, Band, user);
  EXPECT_EQ(json::parse(run.Out)["saw"]["Pitch"], AtFour);
}

TEST_F(ToolSettings, AreTheDefaultsForAUserWithoutAHome) {
  const ToolRun run =
      RunTool(work_, {"json", "-"}, Band, {{"HOME", std::nullopt}, {"XDG_CONFIG_HOME", std::nullopt}});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(json::parse(run.Out)["saw"]["Pitch"], AtFive);
  EXPECT_TRUE(fs::is_empty(work_.Path()));
}

TEST_F(ToolSettings, AreNeitherMadeNorChanged) {
  EXPECT_EQ(Pitch(), AtFive);
  EXPECT_EQ(Run({"eval", "1"}).Out, "1\n");
  EXPECT_TRUE(fs::is_empty(home_ / "config"));
  EXPECT_TRUE(fs::is_empty(home_ / "Documents"));
  const std::string lines = "DecimalPlaces= 99\n# mine\n";
  Store(lines);
  const auto before = fs::last_write_time(home_ / "config/Tarnwick/Settings");
  EXPECT_EQ(Pitch(), AtFive);
  EXPECT_EQ(BytesOf(home_ / "config/Tarnwick/Settings"), lines);
  EXPECT_EQ(fs::last_write_time(home_ / "config/Tarnwick/Settings"), before);
  EXPECT_TRUE(fs::is_empty(home_ / "Documents"));
  EXPECT_TRUE(fs::is_empty(work_.Path()));
}

TEST_F(ToolSettings, AreNotAskedForHelpNorVersion) {
  Store("PrintLineThick= 99999\n");
  EXPECT_EQ(Run({"--help"}).Code, 0);
  EXPECT_EQ(Run({"--version"}).Code, 0);
}

}  // namespace
}  // namespace tarnwick::cli

#endif
