// Power figures and power files by the command line tool, from outside.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/JsonReader.h"
#include "geometry/modTooth.h"
#include "power/modPowerChain.h"
#include "power/modPowerEstimate.h"
#include "store/modPowerFile.h"
#include "support/CollectedMessages.h"
#include "support/FolderAsFile.h"
#include "support/TemporaryFolder.h"
#include "support/ToolRun.h"

namespace tarnwick::cli {
namespace {

using nlohmann::json;
using test::FolderAsFileText;
using test::RunTool;
using test::TemporaryFolder;
using test::ToolRun;
using Arguments = std::vector<std::string>;
using Texts = std::vector<std::string>;

constexpr const char* Band =
    R"j({"ToothStyle":1,"Length":20,"Width":6,"Pitch":2,"HookAngle":25,"ClearAngle":12,
    "GulletInfo":{"Radius":0.4,"Depth":0.75,"BackAngle":18,"Area":0.5},
    "GeneralInfo":{"Kerf":0.15,"PlateThick":0.065,"ShaftSpeed":510,"DepthOfCut":10,"FeedRate":100,
    "WoodType":"Oak (White)"},"MachineInfo":{"WheelDia":5}})j";

json LinesOf(const ToolRun& run) {
  json lines = json::array();
  std::istringstream out(run.Out);
  for (std::string line; std::getline(out, line);) lines.push_back(json::parse(line));
  return lines;
}

Texts KeysOf(const json& object) {
  Texts keys;
  for (const auto& item : object.items()) keys.push_back(item.key());
  return keys;
}

BandSaw Calculated() {
  BandSaw saw = ReadDesignJson(Band).Saw;
  test::CollectedMessages messages;
  (void)CalculateSaw(saw, {}, messages);
  return saw;
}

// ---- power

TEST(ToolPower, PrintsTheFiguresOfTheCalculatedDesign) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"power", "-"}, Band);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Err, "");
  BandSaw saw = Calculated();
  UpdatePower(saw, {});
  ASSERT_GT(saw.DesignInfo.MaxFeedRate, 0);
  const json want = {{"SawVelocity", 8011},
                     {"SideClear", 0.0425},
                     {"Bite", 0.02496},
                     {"Capacity", 0.2496},
                     {"HorsePower", 62.5},
                     {"MaxFeedRate", saw.DesignInfo.MaxFeedRate},
                     {"AreaBelowTip", 0.7 * saw.GulletInfo.Area},
                     {"FeedIndex", 0.7}};
  EXPECT_EQ(LinesOf(run), json::array({{{"file", "-"}, {"power", want}, {"messages", json::array()}}}));
}

TEST(ToolPower, TakesTheGulletAsReadWithoutACalculation) {
  const TemporaryFolder folder;
  const json power = LinesOf(RunTool(folder, {"power", "--no-calculation", "-"}, Band))[0];
  EXPECT_EQ(power["power"]["AreaBelowTip"], 0.35);
  EXPECT_EQ(power["messages"], Texts{"Teeth are required to calculate power requirements."});
}

TEST(ToolPower, NamesWhatADesignLacksAndPrintsTheRest) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"power", "-"}, R"({"GeneralInfo":{"ShaftSpeed":510}})");
  EXPECT_EQ(run.Code, 0);  // messages are no failure
  const json line = LinesOf(run)[0];
  EXPECT_EQ(line["power"]["SawVelocity"], 0);
  EXPECT_EQ(line["messages"].back(), "Teeth are required to calculate power requirements.");
}

TEST(ToolPower, PrintsTheEstimatesInTheirOrder) {
  const TemporaryFolder folder;
  const json line = LinesOf(RunTool(folder, {"power", "-", "--estimate", "10"}, Band))[0];
  BandSaw saw = Calculated();
  UpdatePower(saw, {});
  const PowerEstimates rows = *BuildPowerEstimates(saw, 10, {});
  ASSERT_EQ(line["estimates"].size(), 4U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const json& row = line["estimates"][i];
    EXPECT_EQ(KeysOf(row),
              (Texts{"AreaBelowTip", "Bite",       "Capacity",   "CenterToCenter", "DepthOfCut", "FeedIndex",
                     "FeedRate",     "GulletArea", "HorsePower", "Kerf",           "Length",     "Marker",
                     "NumTeeth",     "Pitch",      "PlateThick", "SawVelocity",    "ShaftSpeed", "SideClear",
                     "WheelDia",     "Width",      "WoodType"}));
    EXPECT_EQ(row["FeedRate"], rows[i].FeedRate);
    EXPECT_EQ(row["Pitch"], rows[i].Pitch);
    EXPECT_EQ(row["ShaftSpeed"], rows[i].ShaftSpeed);
    EXPECT_EQ(row["Bite"], rows[i].Bite);
    EXPECT_EQ(row["HorsePower"], rows[i].HorsePower);
    EXPECT_EQ(row["WoodType"], "Oak (White)");
    EXPECT_EQ(row["Marker"], 4);
  }
}

TEST(ToolPower, TakesTheFeedIndexOfItsOption) {
  const TemporaryFolder folder;
  const auto index = [&](const char* percent) {
    const Arguments arguments{"power", "-", "--no-calculation", "--feed-index", percent};
    return LinesOf(RunTool(folder, arguments, Band))[0]["power"]["FeedIndex"].get<double>();
  };
  EXPECT_EQ(index("50"), 0.5);
  EXPECT_EQ(index("100"), 1);
  EXPECT_EQ(index("72.5"), 0.725);
  const Arguments four{"power", "-", "--decimal-places", "4", "--feed-index", "33.33333"};
  EXPECT_EQ(LinesOf(RunTool(folder, four, Band))[0]["power"]["FeedIndex"], 0.3333);
}

#ifndef _WIN32  // where settings lie in the registry, and no test may change the user's own

TEST(ToolPower, TakesTheFeedIndexOfTheUsersSettings) {
  const TemporaryFolder folder, home;
  std::filesystem::create_directories(home / "Tarnwick");
  home.File("Tarnwick/Settings", "GulletFeedIndex= .55\n");
  const test::Environment user{{"XDG_CONFIG_HOME", home.Path().string()}};
  const auto index = [&](const Arguments& more) {
    Arguments arguments{"power", "-"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return LinesOf(RunTool(folder, arguments, Band, user))[0]["power"]["FeedIndex"].get<double>();
  };
  EXPECT_EQ(index({}), 0.55);
  EXPECT_EQ(index({"--defaults"}), 0.7);
  EXPECT_EQ(index({"--feed-index", "20"}), 0.2);
}

#endif

// ---- power files

class ToolPowerFile : public testing::Test {
 protected:
  ToolPowerFile() {
    saws_[0] = ReadDesignJson(Band).Saw;
    saws_[1] = saws_[0];
    saws_[1].GeneralInfo.FeedRate = 200;
    folder_.File("two.bsp", PowerFileText(saws_));
  }

  PowerSaws saws_;
  TemporaryFolder folder_;
};

TEST_F(ToolPowerFile, PrintsALineForEachCalculation) {
  const ToolRun run = RunTool(folder_, {"json", "--no-calculation", "two.bsp"});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Err, "");
  const json lines = LinesOf(run);
  ASSERT_EQ(lines.size(), 2U);
  for (const std::size_t i : {0U, 1U}) {
    EXPECT_EQ(KeysOf(lines[i]), (Texts{"calculation", "file", "messages", "saw"}));
    EXPECT_EQ(lines[i]["file"], "two.bsp");
    EXPECT_EQ(lines[i]["calculation"], i + 1);
    EXPECT_EQ(lines[i]["saw"]["GeneralInfo"]["FeedRate"], saws_[i].GeneralInfo.FeedRate);
    EXPECT_EQ(lines[i]["saw"]["NumTeeth"], 0);
  }
}

TEST_F(ToolPowerFile, CalculatesBothDesignsWithTheirDrawings) {
  const json lines = LinesOf(RunTool(folder_, {"json", "--entities", "two.bsp"}));
  ASSERT_EQ(lines.size(), 2U);
  for (const json& line : lines) {
    EXPECT_EQ(line["saw"]["NumTeeth"], 120);
    EXPECT_EQ(line["entities"].size(), line["header"]["Count"]);
  }
}

TEST_F(ToolPowerFile, PrintsThePowerOfBothCalculations) {
  const json lines = LinesOf(RunTool(folder_, {"power", "two.bsp", "--estimate", "5"}));
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0]["power"]["HorsePower"], 62.5);
  EXPECT_EQ(lines[1]["power"]["HorsePower"], 125);
  EXPECT_EQ(lines[1]["calculation"], 2);
  EXPECT_EQ(lines[1]["estimates"][1]["FeedRate"], 210);
}

TEST_F(ToolPowerFile, KeepsEveryByteOnTheWayThroughJson) {
  std::string bytes = PowerFileText({});
  for (std::size_t i = 55; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7 + i / 256);
  folder_.File("odd.BSP", bytes);
  std::istringstream lines(RunTool(folder_, {"json", "--no-calculation", "odd.BSP"}).Out);
  PowerSaws again;
  for (BandSaw& saw : again) {
    std::string line;
    ASSERT_TRUE(std::getline(lines, line));
    const JsonDesign design = ReadDesignJson(line);
    EXPECT_EQ(design.Failed, std::nullopt);
    saw = design.Saw;
  }
  EXPECT_EQ(PowerFileText(again), bytes);
}

TEST_F(ToolPowerFile, NamesEachFileThatFailsAndDoesTheOthers) {
  const std::string whole = PowerFileText(saws_);
  folder_.File("short.bsp", whole.substr(0, 4000));
  folder_.File("other.bsp", "no power");
  folder_.File("old.bsp", std::string(whole).replace(30, 4, "1.0 "));
  const Arguments names{"missing.bsp", "short.bsp", "other.bsp", "old.bsp", "two.bsp"};
  for (const char* command : {"json", "power"}) {
    Arguments arguments{command};
    arguments.insert(arguments.end(), names.begin(), names.end());
    const ToolRun run = RunTool(folder_, arguments);
    EXPECT_EQ(run.Code, 1);
    EXPECT_EQ(run.Err,
              "tarnwick-cli: missing.bsp: cannot be read: No such file or directory\n"
              "tarnwick-cli: short.bsp: file is incomplete: 4000 of 6705 bytes\n"
              "tarnwick-cli: other.bsp: not a valid power file\n"
              "tarnwick-cli: old.bsp: a power file of another version\n");
    EXPECT_EQ(LinesOf(run).size(), 2U);
  }
}

TEST_F(ToolPowerFile, IsNoDesignForACommandThatWritesOneFileEach) {
  for (const char* command : {"dxf", "svg", "bsw"}) {
    const ToolRun run = RunTool(folder_, {command, "two.bsp", "--out-dir", "."});
    EXPECT_EQ(run.Code, 1) << command;
    EXPECT_EQ(run.Err,
              "tarnwick-cli: two.bsp: a power file holds two designs; only json and power take it\n");
  }
}

TEST_F(ToolPowerFile, IsNeverChanged) {
  (void)RunTool(folder_, {"json", "two.bsp"});
  (void)RunTool(folder_, {"bsw", "two.bsp", "-o", "two.bsp"});
  EXPECT_EQ(test::BytesOf(folder_ / "two.bsp"), PowerFileText(saws_));
}

// ---- usage

struct PowerUsageRow {
  const char* Name;
  Arguments Given;
  const char* Error;
  friend void PrintTo(const PowerUsageRow& row, std::ostream* out) { *out << row.Name; }
};

class WrongPowerUsage : public testing::TestWithParam<PowerUsageRow> {};

TEST_P(WrongPowerUsage, IsSaidAndDoesNothing) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, GetParam().Given, Band);
  EXPECT_EQ(run.Code, 2);
  EXPECT_EQ(run.Out, "");
  EXPECT_EQ(run.Err, "tarnwick-cli: " + std::string(GetParam().Error) +
                         "\nRun tarnwick-cli --help for more information.\n");
}

INSTANTIATE_TEST_SUITE_P(
    Options, WrongPowerUsage,
    testing::Values(
        PowerUsageRow{"NoDesign", {"power"}, "DESIGN is required"},
        PowerUsageRow{"NoRise", {"power", "-", "--estimate", "0"}, "--estimate: takes a number above 0"},
        PowerUsageRow{"Fall", {"power", "-", "--estimate=-5"}, "--estimate: takes a number above 0"},
        PowerUsageRow{
            "EndlessRise", {"power", "-", "--estimate", "inf"}, "--estimate: takes a number above 0"},
        PowerUsageRow{"NoNumber", {"power", "-", "--estimate", "nan"}, "--estimate: takes a number above 0"},
        PowerUsageRow{"NoPercent", {"power", "-", "--estimate"}, "--estimate: 1 required PERCENT missing"},
        PowerUsageRow{
            "NoIndex", {"power", "-", "--feed-index", "0"}, "--feed-index: takes a number from 1 to 100"},
        PowerUsageRow{"LargeIndex",
                      {"power", "-", "--feed-index", "101"},
                      "--feed-index: takes a number from 1 to 100"},
        PowerUsageRow{"OfAnotherCommand",
                      {"json", "-", "--estimate", "5"},
                      "The following argument was not expected: --estimate"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(ToolPowerHelp, TellsItsOptions) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"power", "--help"});
  EXPECT_EQ(run.Code, 0);
  for (const char* option : {"--estimate PERCENT", "--feed-index PERCENT", "--no-calculation", ".bsp"}) {
    EXPECT_NE(run.Out.find(option), std::string::npos) << option;
  }
  EXPECT_NE(RunTool(folder, {"--help"}).Out.find("  power "), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::cli
