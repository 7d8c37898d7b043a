#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "support/Designs.h"
#include "support/RecordingMainView.h"
#include "support/ScriptedDialogHost.h"
#include "support/TestProgram.h"
#include "window/Editors.h"

namespace tarnwick::test {

using Told = std::vector<std::string>;

/// The panels over a band of 120 teeth, 20 ft long, that was just opened.
class EditorsTest : public testing::Test {
 protected:
  EditorsTest() {
    program_.Start();
    design_.View.SetSurface({10, 7});
    Open(PlainDesign());
  }

  void Open(const BandSaw& saw) {
    design_.Saw = saw;
    design_.Recalculate(program_.Say);
    design_.KeepAsSaved();
  }

  /// What somebody changed since the last OK.
  void Change() {
    design_.Saw.Width = 6;
    design_.Recalculate(program_.Say);
  }

  void Answer(Button button) { program_.Say.Answers.push_back(button); }

  /// What the window was told, the same thing at once only once, without what only brings controls up to
  /// date.
  Told Steps() {
    Told steps = view_.Log();
    steps.erase(
        std::remove_if(steps.begin(), steps.end(), [](const std::string& s) { return s == "ShowUnits"; }),
        steps.end());
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
    return steps;
  }

  Told StepsButBoxes() {
    Told steps = Steps();
    steps.erase(std::remove(steps.begin(), steps.end(), "FillBoxes"), steps.end());
    return steps;
  }

  static const PanelField& Box(std::string_view control) {
    for (const auto fields : {ToothFields(), GeneralFields()})
      for (const PanelField& field : fields)
        if (field.Control == control) return field;
    ADD_FAILURE() << "no box " << control;
    return ToothFields().front();
  }

  InfoRow Row(std::string_view caption) const {
    for (const InfoRow& row : BuildSawInfo(design_.Saw, design_.Format(), 300))
      if (row.Caption == caption) return row;
    ADD_FAILURE() << "no row " << caption;
    return {};
  }

  std::size_t SettingsWritten() { return program_.Store.Saved().size(); }

  /// Everything that was planned was asked.
  void TearDown() override {
    EXPECT_TRUE(host_.Values.empty());
    EXPECT_TRUE(host_.YesNos.empty());
    EXPECT_TRUE(program_.Say.Answers.empty());
  }

  TestProgram program_;
  OpenDesign& design_ = program_.Process.Design;
  ScriptedDialogHost host_;
  RecordingMainView view_{program_};
  Editors editors_{program_.Process, host_, view_};
};

}  // namespace tarnwick::test
