// Holds the variable pitch editor against data/variable.jsonl, which reference/variable_editor.py has worked
// out apart from the program: every control and every field after each step, doubles bit for bit.

#include <gtest/gtest.h>

#include <bit>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/JsonReader.h"
#include "model/modFields.h"
#include "platform/CollectedMessages.h"
#include "support/ScriptedDialogHost.h"
#include "variable/VariableEditor.h"

namespace tarnwick {
namespace {

using nlohmann::json;

const std::vector<json>& Table() {
  static const std::vector<json> rows = [] {
    std::ifstream file(TARNWICK_TEST_DATA_DIR "/variable.jsonl");
    std::vector<json> read;
    for (std::string line; std::getline(file, line);) read.push_back(json::parse(line));
    return read;
  }();
  return rows;
}

/// "GulletInfo.Depth": 1 as {"GulletInfo": {"Depth": 1}}.
json Nested(const json& dotted) {
  json nested = json::object();
  for (const auto& [name, value] : dotted.items()) {
    std::string path = "/" + name;
    std::replace(path.begin(), path.end(), '.', '/');
    nested[json::json_pointer(path)] = value;
  }
  return nested;
}

std::string BoxOf(bool shown, bool opens, const std::string& text) {
  return shown ? (opens ? "+" : "=") + text : "-";
}

/// A band with its panel, played by the steps of a row.
class Play {
 public:
  explicit Play(const json& row) {
    design_.Settings.Calculation.DecimalPlaces = row["DecimalPlaces"].get<std::int16_t>();
    design_.Settings.Calculation.DisplayPlaces = row["DisplayPlaces"].get<std::int16_t>();
    design_.ImpMetric = row["ImpMetric"].get<std::int16_t>();
    const cli::JsonDesign read = cli::ReadDesignJson(Nested(row["saw"]).dump());
    EXPECT_FALSE(read.Failed) << read.Failed.value_or("");
    design_.Saw = read.Saw;
    design_.Recalculate(say_);
  }

  void Do(const json& step) {
    const std::string what = step[0].get<std::string>();
    recalculations_ = 0;
    if (what == "open") editor_.FillFromRecord();
    if (what == "entry") editor_.ChooseEntry(step[1].get<int>());
    if (what == "pattern") editor_.ClickPattern(step[1].get<int>());
    if (what == "tick") editor_.TickVarDepth(step[1].get<bool>());
    if (what == "reset") editor_.PressReset();
    if (what == "units") design_.ImpMetric = step[1].get<std::int16_t>();
    if (what == "pitch") Ask(step, &VariableEditor::ClickPitch, editor_.Row(step[1].get<int>()).PitchOpens);
    if (what == "gullet") Ask(step, &VariableEditor::ClickDepth, editor_.Row(step[1].get<int>()).DepthOpens);
  }

  int Recalculations() const { return recalculations_; }

  json Seen() const {
    const DisplayFormat format = design_.Format();
    std::string entries;
    for (const std::string& entry : editor_.Entries) entries += (entries.empty() ? "" : ", ") + entry;
    json seen{
        {"cboPattern", editor_.Entry < 0 ? "" : editor_.Entries[static_cast<std::size_t>(editor_.Entry)]},
        {"entries", entries},
        {"optPattern", editor_.Pattern},
        {"chkVarDepth", editor_.DepthIsVariable},
        {"txtAverageSpace", editor_.AveragePitchText(format)},
        {"txtAverageDepth", editor_.AverageDepthText(format)},
        {"txtVariableNumTeeth", editor_.NumTeethText()},
        {"txtNumberOfSegments", editor_.NumSegmentsText()},
        {"txtSegmentSize", editor_.SegmentSizeText(format)}};
    for (int k = 0; k < VariableValues::Rows; ++k) {
      const SegmentRow row = editor_.Row(k);
      const std::string index = '(' + std::to_string(k) + ')';
      seen["txtToothSpace" + index] = BoxOf(row.Shown, row.PitchOpens, editor_.PitchText(k, format));
      seen["txtToothDepth" + index] = BoxOf(row.Shown, row.DepthOpens, editor_.DepthText(k, format));
    }
    return seen;
  }

  /// The names of the fields that differ from what is wanted.
  std::string Differing(const json& wanted) const {
    std::string differing;
    ForEachField(design_.Saw, [&](const std::string& name, const auto& field) {
      if (wanted.contains(name) && !Same(field, wanted[name])) differing += name + ' ';
    });
    return differing;
  }

 private:
  static bool Same(double field, const json& wanted) {
    const double number = std::strtod(wanted.get<std::string>().c_str(), nullptr);
    return std::bit_cast<std::uint64_t>(field) == std::bit_cast<std::uint64_t>(number);
  }
  static bool Same(std::int16_t field, const json& wanted) { return field == wanted.get<int>(); }
  static bool Same(const SegmentMeasures& field, const json& wanted) {
    for (std::size_t k = 0; k < field.size(); ++k) {
      if (!Same(field[k], wanted[k])) return false;
    }
    return wanted.size() == field.size();
  }
  template <class Other>
  static bool Same(const Other&, const json&) {
    ADD_FAILURE() << "no field of this kind stands in the table";
    return false;
  }

  void Ask(const json& step, void (VariableEditor::*click)(int, const Questions&), bool opens) {
    if (opens) {
      host_.Values.push_back(step[2].is_null() ? test::Cancels() : test::Enters(step[2].get<std::string>()));
    }
    (editor_.*click)(step[1].get<int>(), {host_, say_, design_.Format(), [] {}});
    EXPECT_TRUE(host_.Values.empty());
  }

  CollectedMessages say_;
  test::ScriptedDialogHost host_;
  OpenDesign design_;
  int recalculations_ = 0;
  VariableEditor editor_{design_, [this] {
                           ++recalculations_;
                           design_.Recalculate(say_);
                         }};
};

TEST(VariableTable, HoldsEveryControlAndFieldAfterEachStep) {
  ASSERT_GE(Table().size(), 140U);
  std::size_t steps = 0;
  for (const json& row : Table()) {
    SCOPED_TRACE(row["name"]);
    Play play(row);
    json seen, stored;
    for (const json& step : row["steps"]) {
      SCOPED_TRACE(step["do"].dump());
      seen.update(step["seen"]);
      stored.update(step["stored"]);
      play.Do(step["do"]);
      ++steps;
      EXPECT_EQ(play.Recalculations(), step["recalculations"].get<int>());
      EXPECT_EQ(play.Seen(), seen) << json::diff(seen, play.Seen());
      EXPECT_EQ(play.Differing(stored), "");
      if (HasFailure()) return;  // what follows would differ too
    }
  }
  EXPECT_GE(steps, 900U);
}

}  // namespace
}  // namespace tarnwick
