// The picture command from outside.

#include <gtest/gtest.h>

#include "support/ToolRun.h"

namespace tarnwick::cli {
namespace {

namespace fs = std::filesystem;
using test::BytesOf;
using test::RunTool;
using test::TemporaryFolder;
using test::ToolRun;

constexpr const char* Band =
    R"({"ToothStyle":1,"Length":2,"Width":6,"Pitch":2,"HookAngle":25,"ClearAngle":12,
    "GulletInfo":{"Radius":0.4,"Depth":0.75,"BackAngle":18}})";

constexpr const char* VariableBand =
    R"({"ToothStyle":1,"Length":20,"Width":6,"Pitch":2,"HookAngle":25,"ClearAngle":12,
    "GulletInfo":{"Radius":0.4,"Depth":0.75,"BackAngle":18},
    "GeneralInfo":{"VariablePitch":-1,"NumVariables":3,"VarPitch":[1.9,2,2.1,0,0,0,0,0,0,0]}})";

double WidthOf(const std::string& picture) {
  const auto at = picture.find("width=\"");
  return at == std::string::npos ? 0 : std::stod(picture.substr(at + 7));
}

TEST(ToolSvg, WritesThePicture) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"svg", "-", "-o", "band.svg"}, Band);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out + run.Err, "");
  const std::string picture = BytesOf(folder / "band.svg");
  EXPECT_TRUE(picture.starts_with("<?xml"));
  EXPECT_TRUE(picture.ends_with("</svg>\n"));
  EXPECT_NEAR(WidthOf(picture), 24.25, 0.02);  // two feet and the margins
  EXPECT_EQ(RunTool(folder, {"svg", "-", "-o", "-"}, Band).Out, picture);
}

TEST(ToolSvg, NamesFilesInAFolderForTheirDesigns) {
  const TemporaryFolder folder;
  folder.File("oak.json", Band);
  folder.File("fir.json", VariableBand);
  EXPECT_EQ(RunTool(folder, {"svg", "oak.json", "fir.json", "--out-dir", "."}).Code, 0);
  EXPECT_TRUE(fs::exists(folder / "oak.svg"));
  EXPECT_TRUE(fs::exists(folder / "fir.svg"));
}

TEST(ToolSvg, DrawsOneSegmentWhenAsked) {
  const TemporaryFolder folder;
  const ToolRun band = RunTool(folder, {"svg", "-", "-o", "-"}, VariableBand);
  const ToolRun segment = RunTool(folder, {"svg", "-", "-o", "-", "--segment"}, VariableBand);
  EXPECT_EQ(segment.Code, 0);
  EXPECT_GT(WidthOf(band.Out), 200);
  EXPECT_GT(WidthOf(segment.Out), 6);
  EXPECT_LT(WidthOf(segment.Out), 12);
}

TEST(ToolSvg, HasNoLimitOfPairs) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"svg", "-", "-o", "-", "--memory-size", "8000"},
                              R"({"ToothStyle":1,"Length":400,"Pitch":1,"GulletInfo":{"Radius":0.2}})");
  EXPECT_EQ(run.Code, 0);
}

TEST(ToolSvg, OverwritesNoDesign) {
  const TemporaryFolder folder;
  folder.File("a.svg", "no design");
  const ToolRun run = RunTool(folder, {"svg", "a.svg", "--out-dir", "."});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(BytesOf(folder / "a.svg"), "no design");
}

TEST(ToolSvg, SaysWhyAFileCannotBeWritten) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"svg", "-", "-o", "no/a.svg"}, Band);
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "tarnwick-cli: -: no/a.svg cannot be written: No such file or directory\n");
}

TEST(ToolSvg, NeedsAnOutput) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"svg", "-"}, Band);
  EXPECT_EQ(run.Code, 2);
  EXPECT_TRUE(run.Err.starts_with("tarnwick-cli: -o FILE or --out-dir DIR is required\n"));
}

}  // namespace
}  // namespace tarnwick::cli
