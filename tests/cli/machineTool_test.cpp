// The machine command from outside.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/ToolRun.h"

namespace tarnwick::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::BytesOf;
using test::RunTool;
using test::TemporaryFolder;
using test::ToolRun;

constexpr const char* Mill =
    R"({"MachineInfo":{"WheelDia":5,"CenterToCenter":10},"GeneralInfo":{"PlateThick":0.05}})";
constexpr const char* NoMill = R"({"Length":20})";

TEST(ToolMachine, PrintsTheLengths) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"machine", "-"}, Mill);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Err, "");
  const json line = json::parse(run.Out);
  EXPECT_EQ(line["file"], "-");
  EXPECT_EQ(line["lengths"], (json{{"Inside", 35.86504}, {"Middle", 36.02212}, {"Outside", 36.1792}}));
  EXPECT_EQ(line["machine"],
            (json{{"WheelDia", 5}, {"CenterToCenter", 10}, {"Width", 0}, {"PlateThick", 0.05}}));
  EXPECT_EQ(line["messages"], json::array());
  EXPECT_FALSE(line.contains("entities"));
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(ToolMachine, PrintsTheInsideAloneWithoutAPlate) {
  const TemporaryFolder folder;
  const ToolRun run =
      RunTool(folder, {"machine", "-"}, R"({"MachineInfo":{"WheelDia":5,"CenterToCenter":10}})");
  EXPECT_EQ(json::parse(run.Out)["lengths"], (json{{"Inside", 35.70796}}));
}

TEST(ToolMachine, CorrectsTheWheels) {
  const TemporaryFolder folder;
  const ToolRun run =
      RunTool(folder, {"machine", "-"}, R"({"MachineInfo":{"WheelDia":20,"CenterToCenter":200}})");
  const json machine = json::parse(run.Out)["machine"];
  EXPECT_EQ(machine["WheelDia"], 15);
  EXPECT_EQ(machine["CenterToCenter"], 90);
}

TEST(ToolMachine, PrintsThePiecesWhenAsked) {
  const TemporaryFolder folder;
  const json line = json::parse(RunTool(folder, {"machine", "-", "--entities"}, Mill).Out);
  EXPECT_EQ(line["entities"].size(), 2U * (4 + 4 * 12) + 6 + 7);
  EXPECT_EQ(line["entities"][0]["Kind"], "CIRCLE");
  EXPECT_EQ(line["entities"].back()["Kind"], "SOLID");
}

TEST(ToolMachine, WritesTheDrawingAndPrintsTheLengths) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"machine", "-", "-o", "mill.dxf"}, Mill);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(json::parse(run.Out)["lengths"]["Inside"], 35.86504);
  const std::string drawing = BytesOf(folder / "mill.dxf");
  EXPECT_NE(drawing.find("CIRCLE"), std::string::npos);
  EXPECT_NE(drawing.find(" 1 \r\n 10.000 ft          \r\n"), std::string::npos);
  EXPECT_NE(drawing.find("$EXTMAX\r\n 10 \r\n0\r\n"), std::string::npos);
}

TEST(ToolMachine, WritesAPicture) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"machine", "-", "--svg", "mill.svg"}, Mill);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(json::parse(run.Out)["lengths"]["Inside"], 35.86504);
  const std::string picture = BytesOf(folder / "mill.svg");
  EXPECT_TRUE(picture.starts_with("<?xml"));
  EXPECT_TRUE(picture.ends_with("</svg>\n"));
  EXPECT_NE(picture.find("10.000 ft"), std::string::npos);
}

TEST(ToolMachine, WritesTheDrawingAloneToStandardOutput) {
  const TemporaryFolder folder;
  RunTool(folder, {"machine", "-", "-o", "mill.dxf"}, Mill);
  const ToolRun run = RunTool(folder, {"machine", "-", "-o", "-"}, Mill);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out, BytesOf(folder / "mill.dxf"));
  EXPECT_TRUE(RunTool(folder, {"machine", "-", "--svg", "-"}, Mill).Out.starts_with("<?xml"));
}

TEST(ToolMachine, FollowsUnitsAndPlaces) {
  const TemporaryFolder folder;
  const std::string metric = R"({"ImpMetric":1,"MachineInfo":{"WheelDia":5,"CenterToCenter":10}})";
  const ToolRun run =
      RunTool(folder, {"machine", "-", "-o", "-", "--display-places", "2", "--dxf-color", "3"}, metric);
  EXPECT_NE(run.Out.find("\r\n 3.05 m             \r\n"), std::string::npos);
  EXPECT_NE(run.Out.find(" 62 \r\n3\r\n"), std::string::npos);
  const json fine = json::parse(RunTool(folder, {"machine", "-", "--decimal-places", "8"}, metric).Out);
  EXPECT_EQ(fine["lengths"]["Inside"], 35.70796326);
}

TEST(ToolMachine, WorksThroughAllDesigns) {
  const TemporaryFolder folder;
  folder.File("oak.json", Mill);
  folder.File("fir.json", Mill);
  folder.File("bad.json", "no design");
  const ToolRun run = RunTool(folder, {"machine", "oak.json", "bad.json", "fir.json", "--out-dir", "."});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err.find("tarnwick-cli: bad.json: "), 0U);
  EXPECT_NE(run.Out.find("oak.json"), std::string::npos);
  EXPECT_NE(run.Out.find("fir.json"), std::string::npos);
  EXPECT_TRUE(fs::exists(folder / "oak.dxf"));
  EXPECT_TRUE(fs::exists(folder / "fir.dxf"));
}

TEST(ToolMachine, SaysThatADesignHasNone) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"machine", "-", "-o", "mill.dxf"}, NoMill);
  EXPECT_EQ(run.Code, 0);
  const json line = json::parse(run.Out);
  EXPECT_EQ(line["lengths"], json::object());
  EXPECT_EQ(line["messages"], json{"The design has no wheel diameter, or no center to center."});
  EXPECT_EQ(BytesOf(folder / "mill.dxf").find("CIRCLE"), std::string::npos);
  const ToolRun drawing = RunTool(folder, {"machine", "-", "-o", "-"}, NoMill);
  EXPECT_EQ(drawing.Err, "tarnwick-cli: -: The design has no wheel diameter, or no center to center.\n");
}

TEST(ToolMachine, RefusesWhatItCannotMean) {
  const TemporaryFolder folder;
  folder.File("a.json", Mill);
  folder.File("b.json", Mill);
  for (const std::vector<std::string>& wrong :
       std::vector<std::vector<std::string>>{{"machine"},
                                             {"machine", "a.json", "b.json", "-o", "x.dxf"},
                                             {"machine", "a.json", "b.json", "--svg", "x.svg"},
                                             {"machine", "a.json", "-o", "x.dxf", "--svg", "x.svg"},
                                             {"machine", "a.json", "--svg", "x.svg", "--out-dir", "."},
                                             {"machine", "a.json", "--segment"},
                                             {"machine", "a.json", "--decimal-places", "3"}}) {
    const ToolRun run = RunTool(folder, wrong);
    EXPECT_EQ(run.Code, 2) << testing::PrintToString(wrong);
    EXPECT_NE(run.Err, "");
    EXPECT_EQ(run.Out, "");
  }
}

TEST(ToolMachine, OverwritesNoDesign) {
  const TemporaryFolder folder;
  const fs::path design = folder.File("a.json", Mill);
  EXPECT_EQ(RunTool(folder, {"machine", "a.json", "--svg", "a.json"}).Code, 1);
  EXPECT_EQ(BytesOf(design), Mill);
}

TEST(ToolMachine, SaysWhyAFileCannotBeWritten) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"machine", "-", "-o", "no/a.dxf"}, Mill);
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Out, "");
  EXPECT_EQ(run.Err, "tarnwick-cli: -: no/a.dxf cannot be written: No such file or directory\n");
}

TEST(ToolMachine, HasHelp) {
  const TemporaryFolder folder;
  const ToolRun help = RunTool(folder, {"machine", "--help"});
  EXPECT_EQ(help.Code, 0);
  for (const char* word : {"-o FILE", "--svg FILE", "--out-dir DIR", "--entities", "DESIGN"})
    EXPECT_NE(help.Out.find(word), std::string::npos) << word;
  EXPECT_NE(RunTool(folder, {"--help"}).Out.find("machine"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::cli
