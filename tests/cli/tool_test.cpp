// The command line tool from outside: exit code, standard output, standard error and files, exactly.

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "cli/JsonReader.h"
#include "store/modSave.h"
#include "support/FolderAsFile.h"
#include "support/TemporaryFolder.h"
#include "support/ToolRun.h"

namespace tarnwick::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::BytesOf;
using test::FolderAsFileText;
using test::RunTool;
using test::TemporaryFolder;
using test::ToolRun;
using Arguments = std::vector<std::string>;

constexpr const char* Band =
    R"({"ToothStyle":1,"Length":20,"Width":6,"Pitch":2,"HookAngle":25,"ClearAngle":12,
    "GulletInfo":{"Radius":0.4,"Depth":0.75,"BackAngle":18},"GeneralInfo":{"WoodType":"Oak","SavedAs":7}})";

/// The band saw file of a design that is written as JSON.
std::string FileOf(const char* text) { return BandSawText(ReadDesignJson(text).Saw); }

std::vector<std::string> FilesIn(const TemporaryFolder& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder.Path()))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> KeysOf(const json& object) {
  std::vector<std::string> keys;
  for (const auto& item : object.items()) keys.push_back(item.key());
  return keys;
}

// ---- json

TEST(ToolJson, PrintsOneLineForEachDesignInOrder) {
  const TemporaryFolder folder;
  folder.File("b.json", Band);
  folder.File("a.bsw", FileOf(Band));
  const ToolRun run = RunTool(folder, {"json", "b.json", "a.bsw", "-"}, Band);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Err, "");
  std::vector<std::string> files;
  std::istringstream lines(run.Out);
  for (std::string line; std::getline(lines, line);) {
    const json design = json::parse(line);
    EXPECT_EQ(KeysOf(design), (Arguments{"extents", "file", "header", "messages", "saw"}));
    EXPECT_EQ(design["saw"]["NumTeeth"], 120);
    files.push_back(design["file"]);
  }
  EXPECT_EQ(files, (Arguments{"b.json", "a.bsw", "-"}));
}

TEST(ToolJson, ShowsWhatTheCalculationMadeOfTheDesign) {
  const TemporaryFolder folder;
  const json design = json::parse(RunTool(folder, {"json", "-"}, Band).Out);
  EXPECT_EQ(design["saw"]["ContainsInfo"]["Teeth"], -1);
  EXPECT_EQ(design["saw"]["GulletInfo"]["Sharpangle"], 53);
  EXPECT_EQ(design["saw"]["GeneralInfo"]["WoodType"], "Oak");
  EXPECT_EQ(KeysOf(design["header"]), (Arguments{"Count", "MaxX", "MaxY", "ViewCenterX", "ViewCenterY"}));
  EXPECT_EQ(design["header"]["MaxY"], 6);
  EXPECT_EQ(KeysOf(design["extents"]), (Arguments{"CenterX", "CenterY", "MaxX", "MaxY", "MinX", "MinY"}));
  EXPECT_EQ(design["messages"], json::array());
}

TEST(ToolJson, ListsEntitiesWhenAsked) {
  const TemporaryFolder folder;
  const json design = json::parse(RunTool(folder, {"json", "--entities", "-"}, Band).Out);
  EXPECT_EQ(design["entities"].size(), design["header"]["Count"]);
  std::set<std::string> kinds;
  for (const json& entity : design["entities"]) {
    kinds.insert(entity["Kind"]);
    EXPECT_EQ(
        KeysOf(entity),
        entity["Kind"] == "LINE"
            ? (Arguments{"Corner1X", "Corner1Y", "Corner4X", "Corner4Y", "IsDotted", "IsOutline", "Kind"})
            : (Arguments{"CenterX", "CenterY", "EndAngle", "Kind", "Radius", "StartAngle"}));
  }
  EXPECT_EQ(kinds, (std::set<std::string>{"ARC", "LINE"}));
  EXPECT_EQ(design["entities"].back()["IsOutline"], -1);
  EXPECT_EQ(design["entities"].front()["IsOutline"], 0);
}

TEST(ToolJson, PrintsTheRecordAsReadWithoutACalculation) {
  const TemporaryFolder folder;
  const json design = json::parse(RunTool(folder, {"json", "--no-calculation", "-"}, Band).Out);
  EXPECT_EQ(KeysOf(design), (Arguments{"file", "messages", "saw"}));
  EXPECT_EQ(design["saw"]["NumTeeth"], 0);
  EXPECT_EQ(design["saw"]["GeneralInfo"]["SavedAs"], 7);
}

TEST(ToolJson, PassesOnTheMessageOfANewerFile) {
  const TemporaryFolder folder;
  std::string newer = FileOf(Band);
  newer[28] = '2';  // version 1.02
  folder.File("a.bsw", newer);
  const ToolRun run = RunTool(folder, {"json", "a.bsw"});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(json::parse(run.Out)["messages"].size(), 1u);
}

TEST(ToolJson, ReadsItsOwnOutput) {
  const TemporaryFolder folder;
  const std::string out = RunTool(folder, {"json", "--entities", "-"}, Band).Out;
  const ToolRun again = RunTool(folder, {"json", "--no-calculation", "-"}, out);
  EXPECT_EQ(again.Err, "");
  EXPECT_EQ(json::parse(again.Out)["saw"], json::parse(out)["saw"]);
}

TEST(ToolJson, TakesTheSettingsFromItsOptions) {
  const TemporaryFolder folder;
  folder.File("a.json", R"({"ToothStyle":1,"Length":20,"NumTeeth":7,"GulletInfo":{"Radius":0.4}})");
  const auto pitch = [&](const Arguments& options) {
    Arguments arguments{"json", "a.json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return json::parse(RunTool(folder, arguments).Out)["saw"]["Pitch"].get<double>();
  };
  EXPECT_EQ(pitch({}), 34.28571);
  EXPECT_EQ(pitch({"--decimal-places", "8"}), 34.28571428);
  EXPECT_EQ(pitch({"--defaults", "--display-places", "5", "--teeth-direction", "2", "--memory-size", "8000",
                   "--dxf-color", "0"}),
            34.28571);
}

// ---- dxf and bsw

TEST(ToolDxf, WritesTheDrawing) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"dxf", "-", "-o", "band.dxf", "--dxf-color", "3"}, Band);
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out + run.Err, "");
  const std::string drawing = BytesOf(folder / "band.dxf");
  EXPECT_TRUE(drawing.starts_with(" 0 \r\nSECTION\r\n 2 \r\nHEADER\r\n"));
  EXPECT_TRUE(drawing.ends_with(" 0 \r\nEOF\r\n"));
  EXPECT_NE(drawing.find(" 62 \r\n3\r\n"), std::string::npos);
  EXPECT_EQ(RunTool(folder, {"dxf", "-", "-o", "-", "--dxf-color", "3"}, Band).Out, drawing);
}

TEST(ToolDxf, NamesFilesInAFolderForTheirDesigns) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "out");
  fs::create_directory(folder / "in");
  folder.File("in/oak.old.json", Band);
  folder.File("in/fir.bsw", FileOf(Band));
  EXPECT_EQ(RunTool(folder, {"dxf", "in/oak.old.json", "in/fir.bsw", "--out-dir", "out"}).Code, 0);
  EXPECT_TRUE(fs::exists(folder / "out" / "oak.old.dxf"));
  EXPECT_EQ(BytesOf(folder / "out" / "fir.dxf"), BytesOf(folder / "out" / "oak.old.dxf"));
}

TEST(ToolDxf, RefusesASecondDesignOfOneName) {
  const TemporaryFolder folder;
  folder.File("a.json", Band);
  folder.File("a.bsw", FileOf(R"({"Width":3})"));
  const ToolRun run = RunTool(folder, {"dxf", "a.json", "a.bsw", "--out-dir", "."});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err,
            "tarnwick-cli: a.bsw: " + (fs::path(".") / "a.dxf").string() + " belongs to an earlier design\n");
  EXPECT_EQ(BytesOf(folder / "a.dxf"), RunTool(folder, {"dxf", "a.json", "-o", "-"}).Out);
}

TEST(ToolDxf, FailsWhenTheDrawingIsTooLarge) {
  const TemporaryFolder folder;
  const ToolRun run = RunTool(folder, {"dxf", "-", "-o", "a.dxf", "--memory-size", "8000"},
                              R"({"ToothStyle":1,"Length":400,"Pitch":1,"GulletInfo":{"Radius":0.2}})");
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "tarnwick-cli: -: File is two large\n");
  EXPECT_EQ(FilesIn(folder), Arguments{});
}

TEST(ToolDxf, SaysWhyAFileCannotBeWritten) {
  const TemporaryFolder folder;
  folder.File("a.json", Band);
  const auto error = [&](const Arguments& where) {
    Arguments arguments{"dxf", "a.json"};
    arguments.insert(arguments.end(), where.begin(), where.end());
    const ToolRun run = RunTool(folder, arguments);
    EXPECT_EQ(run.Code, 1);
    return run.Err;
  };
  EXPECT_EQ(error({"-o", "no/a.dxf"}),
            "tarnwick-cli: a.json: no/a.dxf cannot be written: No such file or directory\n");
  EXPECT_EQ(error({"-o", "."}), "tarnwick-cli: a.json: . cannot be written: " + FolderAsFileText() + "\n");
#ifndef _WIN32  // where there is a disk that is always full
  EXPECT_EQ(error({"-o", "/dev/full"}),
            "tarnwick-cli: a.json: /dev/full cannot be written: No space left on device\n");
#endif
  EXPECT_EQ(FilesIn(folder), Arguments{"a.json"});
}

TEST(ToolBsw, WritesTheRecordAsGiven) {
  const TemporaryFolder folder;
  EXPECT_EQ(RunTool(folder, {"bsw", "-", "-o", "a.bsw"}, Band).Code, 0);
  EXPECT_EQ(BytesOf(folder / "a.bsw"), FileOf(Band));
  EXPECT_EQ(RunTool(folder, {"bsw", "-", "-o", "-"}, Band).Out, FileOf(Band));
}

TEST(ToolBsw, SavesTheCalculatedDesign) {
  const TemporaryFolder folder;
  EXPECT_EQ(RunTool(folder, {"bsw", "-", "-o", "a.bsw", "--calculate"}, Band).Code, 0);
  const BandSawBytes read = ReadBandSaw(BytesOf(folder / "a.bsw"));
  EXPECT_EQ(read.State, ReadState::Complete);
  EXPECT_EQ(read.Saw.NumTeeth, 120);
  EXPECT_EQ(read.Saw.GeneralInfo.SavedAs, 2);
}

TEST(ToolBsw, KeepsEveryByteOnTheWayThroughJson) {
  const TemporaryFolder folder;
  std::string bytes = BandSawText({});
  for (std::size_t i = 50; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7 + i / 256);
  folder.File("a.bsw", bytes);
  folder.File("b.json", RunTool(folder, {"json", "--no-calculation", "a.bsw"}).Out);
  EXPECT_EQ(RunTool(folder, {"bsw", "b.json", "-o", "-"}).Out, bytes);
}

TEST(Tool, OverwritesNoDesign) {
  const TemporaryFolder folder;
  const std::string bytes = FileOf(Band);
  folder.File("a.bsw", bytes);
  folder.File("a.json", R"({"Width":1})");
  EXPECT_EQ(RunTool(folder, {"dxf", "a.bsw", "-o", "./a.bsw"}).Err,
            "tarnwick-cli: a.bsw: ./a.bsw is a design itself and is not overwritten\n");
  EXPECT_EQ(RunTool(folder, {"bsw", "a.json", "a.bsw", "--out-dir", "."}).Code, 1);
  EXPECT_EQ(BytesOf(folder / "a.bsw"), bytes);
}

// ---- designs that fail

TEST(Tool, NamesEachDesignThatFailsAndDoesTheOthers) {
  const TemporaryFolder folder;
  folder.File("good.json", Band);
  folder.File("short.bsw", FileOf(Band).substr(0, 2000));
  folder.File("other.bsw", "no band saw");
  folder.File("old.bsw", FileOf(Band).replace(25, 4, "0.99"));
  folder.File("wrong.JSON", R"({"NumTeeth":40000})");
  const ToolRun run = RunTool(
      folder, {"json", "missing.bsw", "short.bsw", ".", "other.bsw", "old.bsw", "wrong.JSON", "good.json"});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err,
            "tarnwick-cli: missing.bsw: cannot be read: No such file or directory\n"
            "tarnwick-cli: short.bsw: file is incomplete: 2000 of 3375 bytes\n"
            "tarnwick-cli: .: cannot be read: " +
                FolderAsFileText() +
                "\n"
                "tarnwick-cli: other.bsw: not a valid band saw file\n"
                "tarnwick-cli: old.bsw: a band saw file of an unknown version\n"
                "tarnwick-cli: wrong.JSON: NumTeeth: 40000 is out of range (-32768 to 32767)\n");
  EXPECT_EQ(std::count(run.Out.begin(), run.Out.end(), '\n'), 1);
  EXPECT_EQ(json::parse(run.Out)["file"], "good.json");
}

TEST(Tool, WritesNothingForADesignThatFailsAndKeepsIt) {
  const TemporaryFolder folder;
  folder.File("short.bsw", FileOf(Band).substr(0, 2000));
  folder.File("other.bsw", "no band saw");
  folder.File("wrong.json", R"({"Bogus":1})");
  const Arguments before = FilesIn(folder);
  for (const char* command : {"dxf", "bsw"}) {
    EXPECT_EQ(RunTool(folder, {command, "short.bsw", "other.bsw", "wrong.json", "--out-dir", "."}).Code, 1);
    EXPECT_EQ(RunTool(folder, {command, "wrong.json", "-o", "-"}).Out, "");
  }
  EXPECT_EQ(FilesIn(folder), before);
}

#ifndef _WIN32  // where devices have a place among the files

TEST(Tool, DoesNotReadMoreThanADesignOfAnEndlessDevice) {
  const TemporaryFolder folder;
  EXPECT_EQ(RunTool(folder, {"json", "/dev/zero", "/dev/null"}).Err,
            "tarnwick-cli: /dev/zero: not a valid band saw file\n"
            "tarnwick-cli: /dev/null: not a valid band saw file\n");
}

#endif

TEST(Tool, TakesNamesInAnyScript) {
  const TemporaryFolder folder;
  folder.File("Weiß 木工.json", Band);
  const ToolRun run = RunTool(folder, {"json", "Weiß 木工.json"});
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(json::parse(run.Out, nullptr, false)["file"], "Weiß 木工.json");
  EXPECT_EQ(RunTool(folder, {"dxf", "Weiß 木工.json", "--out-dir", "."}).Code, 0);
  EXPECT_TRUE(fs::exists(folder / "Weiß 木工.dxf"));
  EXPECT_EQ(RunTool(folder, {"json", "不.json"}).Err,
            "tarnwick-cli: 不.json: cannot be read: No such file or directory\n");
}

TEST(Tool, CalculatesDegenerateDesignsWithoutFailing) {
  const TemporaryFolder folder;
  std::vector<std::string> numbers{"0",
                                   "-1",
                                   "1e-300",
                                   "1e300",
                                   R"({"bits":"7ff8000000000000"})",
                                   R"({"bits":"7ff0000000000000"})",
                                   R"({"bits":"fff0000000000000"})"};
  Arguments arguments{"json"};
  for (const std::string& number : numbers) {
    for (const char* style : {"0", "1", "2", "3", "-5"}) {
      const std::string name = "d" + std::to_string(arguments.size()) + ".json";
      folder.File(name, R"({"NumTeeth":9,"ToothStyle":)" + std::string(style) + R"(,"Length":)" + number +
                            R"(,"Width":)" + number + R"(,"HookAngle":)" + number +
                            R"(,"GulletInfo":{"Depth":)" + number + R"(,"Radius":)" + number + "}}");
      arguments.push_back(name);
    }
  }
  const ToolRun run = RunTool(folder, arguments);
  EXPECT_EQ(run.Code, 0) << run.Err;
  EXPECT_EQ(static_cast<std::size_t>(std::count(run.Out.begin(), run.Out.end(), '\n')), arguments.size() - 1);
}

// ---- usage

struct UsageRow {
  const char* Name;
  Arguments Given;
  std::string Error;
  friend void PrintTo(const UsageRow& row, std::ostream* out) { *out << row.Name; }
};

class WrongUsage : public testing::TestWithParam<UsageRow> {};

TEST_P(WrongUsage, IsSaidAndDoesNothing) {
  const TemporaryFolder folder;
  folder.File("a.json", Band);
  folder.File("b.json", Band);
  const ToolRun run = RunTool(folder, GetParam().Given, Band);
  EXPECT_EQ(run.Code, 2);
  EXPECT_EQ(run.Out, "");
  EXPECT_EQ(run.Err,
            "tarnwick-cli: " + GetParam().Error + "\nRun tarnwick-cli --help for more information.\n");
  EXPECT_EQ(FilesIn(folder), (Arguments{"a.json", "b.json"}));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, WrongUsage,
    testing::Values(
        UsageRow{"NoCommand", {}, "A subcommand is required"},
        UsageRow{"UnknownCommand", {"draw", "a.json"}, "A subcommand is required"},
        UsageRow{"NoDesign", {"json"}, "DESIGN is required"},
        UsageRow{"UnknownOption",
                 {"json", "a.json", "--bogus"},
                 "The following argument was not expected: --bogus"},
        UsageRow{"OptionOfAnotherCommand",
                 {"json", "a.json", "--calculate"},
                 "The following argument was not expected: --calculate"},
        UsageRow{"NoOutput", {"dxf", "a.json"}, "-o FILE or --out-dir DIR is required"},
        UsageRow{"TwoOutputs", {"dxf", "a.json", "-o", "x", "--out-dir", "."}, "-o excludes --out-dir"},
        UsageRow{"OneFileForTwo",
                 {"bsw", "a.json", "b.json", "-o", "x"},
                 "-o: takes one design only; use --out-dir for several"},
        UsageRow{"OutputWithoutName", {"dxf", "a.json", "-o"}, "-o: 1 required FILE missing"},
        UsageRow{"FewPlaces",
                 {"json", "a.json", "--decimal-places", "3"},
                 "--decimal-places: Value 3 not in range 4 to 10"},
        UsageRow{"ManyPlaces",
                 {"json", "a.json", "--decimal-places", "11"},
                 "--decimal-places: Value 11 not in range 4 to 10"},
        UsageRow{"DisplayPlaces",
                 {"json", "a.json", "--display-places", "6"},
                 "--display-places: Value 6 not in range 2 to 5"},
        UsageRow{"Direction",
                 {"json", "a.json", "--teeth-direction", "0"},
                 "--teeth-direction: Value 0 not in range 1 to 2"},
        UsageRow{"Memory",
                 {"json", "a.json", "--memory-size", "7999"},
                 "--memory-size: Value 7999 not in range 8000 to 512000"},
        UsageRow{
            "Color", {"json", "a.json", "--dxf-color", "-1"}, "--dxf-color: Value -1 not in range 0 to 9"},
        UsageRow{"NoNumber",
                 {"json", "a.json", "--dxf-color", "red"},
                 "--dxf-color: Value red not in range 0 to 9"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(ToolHelp, IsNoFailure) {
  const TemporaryFolder folder;
  for (const Arguments& arguments :
       {Arguments{"--help"}, {"json", "--help"}, {"dxf", "-h"}, {"bsw", "--help"}}) {
    const ToolRun run = RunTool(folder, arguments);
    EXPECT_EQ(run.Code, 0);
    EXPECT_EQ(run.Err, "");
    EXPECT_NE(run.Out.find("Usage: tarnwick-cli"), std::string::npos);
    EXPECT_NE(run.Out.find("Exit code: 0 all done"), std::string::npos);
  }
}

TEST(ToolVersion, IsTheReleaseWithTheName) {
  const TemporaryFolder folder;
  for (const Arguments& arguments : {Arguments{"--version"}, {"json", "--version"}}) {
    const ToolRun run = RunTool(folder, arguments);
    EXPECT_EQ(run.Code, 0);
    EXPECT_EQ(run.Out + run.Err, "tarnwick-cli 2.1.0\n");
  }
}

}  // namespace
}  // namespace tarnwick::cli
