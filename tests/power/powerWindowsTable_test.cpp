// Holds the power windows against stories that were worked out apart from the program:
// data/power_windows.jsonl, made by reference/power_windows.py. Every text must agree to the last character,
// every field to the last digit.

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/JsonFields.h"
#include "support/ScriptedDialogHost.h"
#include "support/ScriptedPowerHost.h"
#include "support/TestProgram.h"

namespace tarnwick {
namespace {

using nlohmann::json;
using test::ScriptedDialogHost;
using test::ScriptedPowerHost;
using test::TestProgram;

// The shape of a step, see power_windows.py.
enum StepItem : std::size_t { What = 0, Side = 1, Entry = 1, Box = 2, Typed = 3, Accepted = 4 };

std::vector<json> RowsOf(const std::string& op) {
  std::ifstream file(TARNWICK_TEST_DATA_DIR "/power_windows.jsonl");
  std::vector<json> rows;
  for (std::string line; std::getline(file, line);) {
    json row = json::parse(line);
    if (row["op"] == op) rows.push_back(std::move(row));
  }
  return rows;
}

struct Store {
  const json& Value;
  void operator()(double* field) const { *field = Value; }
  void operator()(std::int16_t* field) const { *field = Value; }
  void operator()(std::int32_t* field) const { *field = Value; }
  void operator()(std::uint8_t* field) const { *field = Value; }
  void operator()(std::span<char> field) const { EXPECT_EQ(cli::StoreText(field, std::string(Value)), ""); }
  void operator()(SegmentMeasures*) const { ADD_FAILURE(); }
};

BandSaw SawOf(const json& fields) {
  BandSaw saw;
  const cli::FieldsByName byName(saw);
  for (const auto& [name, value] : fields.items()) std::visit(Store{value}, byName.Fields.at(name));
  return saw;
}

/// The fields of the record that the story knows, as it writes them.
struct Shown {
  json operator()(const double* field) const { return *field; }
  json operator()(const std::int16_t* field) const { return *field; }
  json operator()(const std::int32_t* field) const { return *field; }
  json operator()(const std::uint8_t* field) const { return *field; }
  json operator()(std::span<char> field) const {
    FixedText<30> text;
    text.Assign({field.data(), field.size()});
    return text.Trimmed();
  }
  json operator()(const SegmentMeasures*) const { return {}; }
};

json FieldsOf(BandSaw saw) {
  const cli::FieldsByName byName(saw);
  json fields = json::object();
  for (const char* name :
       {"DesignInfo.MaxFeedRate", "DesignInfo.SawVelocity", "GeneralInfo.DepthOfCut", "GeneralInfo.FeedRate",
        "GeneralInfo.HorsePower", "GeneralInfo.Kerf", "GeneralInfo.PlateThick", "GeneralInfo.ShaftSpeed",
        "GeneralInfo.SideClear", "GeneralInfo.WoodType", "GulletInfo.Area", "GulletInfo.Bite",
        "GulletInfo.Capacity", "Length", "MachineInfo.CenterToCenter", "MachineInfo.WheelDia", "NumTeeth",
        "Pitch", "Width"}) {
    json value = std::visit(Shown{}, byName.Fields.at(name));
    if (value != 0 && value != "") fields[name] = std::move(value);
  }
  return fields;
}

/// A program with the settings of a story, and somebody who answers its questions.
struct Stage {
  explicit Stage(const json& row) {
    Program.Start();
    OpenDesign& design = Program.Process.Design;
    design.ImpMetric = row["metric"];
    design.Settings.Calculation.DisplayPlaces = row["display"];
    design.Settings.Calculation.DecimalPlaces = row["places"];
    design.Settings.GulletFeedIndex = row["index"];
  }

  /// Types into the dialog that comes and presses OK; gives up when it stays open.
  void PlanAnswer(const json& step) {
    Dialogs.Values.push_back([step](ValueDialog& dialog) {
      if (!step[Typed].is_null()) {
        dialog.Type(step[Typed].get<std::string>());
        dialog.PressOk();
      }
      EXPECT_EQ(!dialog.IsOpen(), step[Accepted].get<bool>()) << step;
      if (dialog.IsOpen()) dialog.PressCancel();
    });
  }

  TestProgram Program;
  ScriptedDialogHost Dialogs;
  ScriptedPowerHost Windows;
};

const PowerBoxRow& RowOf(std::span<const PowerBoxRow> boxes, const std::string& control) {
  for (const PowerBoxRow& row : boxes)
    if (row.Control == control) return row;
  ADD_FAILURE() << control;
  return boxes.front();
}

json TextsOf(const PowerEditor& editor) {
  json texts = json::object();
  for (const PowerBoxRow& row : PowerEditorBoxes()) texts[std::string(row.Control)] = editor.Text(row.Box);
  return texts;
}

json TextsOf(const PowerCalculator& calculator) {
  json texts = json::object();
  for (const std::size_t side : {0U, 1U})
    for (const PowerBoxRow& row : PowerCalculatorBoxes())
      texts[std::to_string(side) + ' ' + std::string(row.Control)] = calculator.Text(row.Box, side);
  return texts;
}

json FilledOf(const json& texts) {
  json filled = json::object();
  for (const auto& [name, text] : texts.items())
    if (text != "") filled[name] = text;
  return filled;
}

json ChangesOf(const json& before, const json& after) {
  json changes = json::object();
  for (const auto& [name, text] : after.items())
    if (text != before[name]) changes[name] = text;
  return changes;
}

TEST(PowerWindowsTable, ShowsEveryBoxOfTheEditorAsWorkedOutApart) {
  const std::vector<json> rows = RowsOf("Editor");
  ASSERT_GE(rows.size(), 250U);
  for (const json& row : rows) {
    SCOPED_TRACE(row["saw"]);
    Stage stage(row);
    PowerEditor editor(stage.Program.Process, stage.Dialogs, stage.Windows);
    editor.GetSawPowerData(SawOf(row["saw"]));
    EXPECT_EQ(FilledOf(TextsOf(editor)), row["opened"]);
    for (const json& step : row["steps"]) {
      const json before = TextsOf(editor);
      if (step[What] == "index") {
        editor.SelectFeedIndex(step[Entry]);
      } else {
        stage.PlanAnswer(step);
        editor.Click(RowOf(PowerEditorBoxes(), step[Box]).Box);
      }
      EXPECT_EQ(ChangesOf(before, TextsOf(editor)), step.back()) << step;
    }
    EXPECT_EQ(FieldsOf(editor.Saw()), row["out"]);
  }
}

TEST(PowerWindowsTable, ShowsEveryBoxOfTheCalculatorAsWorkedOutApart) {
  const std::vector<json> rows = RowsOf("Calculator");
  ASSERT_GE(rows.size(), 200U);
  for (const json& row : rows) {
    SCOPED_TRACE(row["saw"]);
    Stage stage(row);
    PowerCalculator calculator(stage.Program.Process, stage.Dialogs);
    calculator.GetSawPowerData(SawOf(row["saw"]));
    EXPECT_EQ(FilledOf(TextsOf(calculator)), row["opened"]);
    for (const json& step : row["steps"]) {
      const json before = TextsOf(calculator);
      if (step[What] == "index") {
        calculator.SelectFeedIndex(step[Entry]);
      } else if (step[What] == "clear") {
        calculator.PressClear(step[Side]);
      } else if (step[What] == "copy") {
        calculator.PressCopy();
      } else if (step[What] == "new") {
        calculator.PressNew();
      } else {
        stage.PlanAnswer(step);
        calculator.Click(RowOf(PowerCalculatorBoxes(), step[Box]).Box, step[Side]);
      }
      EXPECT_EQ(ChangesOf(before, TextsOf(calculator)), step.back()) << step;
    }
    EXPECT_EQ(json({FieldsOf(calculator.Saws()[0]), FieldsOf(calculator.Saws()[1])}), row["out"]);
  }
}

json LinesOf(const PowerLines& lines) {
  json shown = json::array();
  for (const PowerLine& line : lines) shown.push_back({line.Label, line.MarkedText()});
  return shown;
}

TEST(PowerWindowsTable, WritesTheLinesOfTheEstimatesAsWorkedOutApart) {
  const std::vector<json> rows = RowsOf("Estimates");
  ASSERT_GE(rows.size(), 60U);
  for (const json& row : rows) {
    SCOPED_TRACE(row["saw"]);
    Stage stage(row);
    PowerEditor editor(stage.Program.Process, stage.Dialogs, stage.Windows);
    editor.GetSawPowerData(SawOf(row["saw"]));
    editor.TypePercent(row["percent"].get<std::string>());
    const std::optional<PowerEstimateList> list = editor.Estimates();
    EXPECT_EQ(editor.PercentText(), row["box"]);
    if (list) {
      EXPECT_EQ(json({list->Heading(), list->PaperHeading()}), row["heading"]);
      EXPECT_EQ(json({LinesOf(list->Lines()), LinesOf(list->PaperLines())}), row["lines"]);
    } else {
      EXPECT_TRUE(row["lines"].is_null()) << row["percent"];
    }
  }
}

TEST(PowerWindowsTable, WritesTheSheetOfTheCalculatorAsWorkedOutApart) {
  const std::vector<json> rows = RowsOf("Sheet");
  ASSERT_GE(rows.size(), 40U);
  for (const json& row : rows) {
    SCOPED_TRACE(row["saw"]);
    Stage stage(row);
    PowerCalculator calculator(stage.Program.Process, stage.Dialogs);
    calculator.GetSawPowerData(SawOf(row["saw"]));
    EXPECT_EQ(LinesOf(calculator.PaperLines()), row["lines"]);
  }
}

}  // namespace
}  // namespace tarnwick
