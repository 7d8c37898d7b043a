// Holds the variable pitch editor against data/variable.jsonl, which reference/variable_editor.py has worked
// out apart from the program: every control and every field after each step, doubles bit for bit.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "platform/CollectedMessages.h"
#include "support/ScriptedDialogHost.h"
#include "support/VariableRows.h"
#include "variable/VariableEditor.h"

namespace tarnwick {
namespace {

using nlohmann::json;

/// A band with its panel, played by the steps of a row.
class Play {
 public:
  explicit Play(const json& row) {
    design_.Settings.Calculation.DecimalPlaces = row["DecimalPlaces"].get<std::int16_t>();
    design_.Settings.Calculation.DisplayPlaces = row["DisplayPlaces"].get<std::int16_t>();
    design_.ImpMetric = row["ImpMetric"].get<std::int16_t>();
    design_.Saw = test::DesignOf(row);
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
      seen["txtToothSpace" + index] = test::BoxMark(row.Shown, row.PitchOpens, editor_.PitchText(k, format));
      seen["txtToothDepth" + index] = test::BoxMark(row.Shown, row.DepthOpens, editor_.DepthText(k, format));
    }
    return seen;
  }

  const BandSaw& Saw() const { return design_.Saw; }

 private:
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
  ASSERT_GE(test::VariableRows().size(), 140U);
  std::size_t steps = 0;
  for (const json& row : test::VariableRows()) {
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
      EXPECT_EQ(test::DifferingFields(play.Saw(), stored), "");
      if (HasFailure()) return;  // what follows would differ too
    }
  }
  EXPECT_GE(steps, 900U);
}

}  // namespace
}  // namespace tarnwick
