#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/TestProgram.h"
#include "window/Editors.h"

namespace tarnwick::test {

/// A main window that notes what it is told to do, with the designs as they were at that moment. The moments
/// in which a button comes up stand among the calls.
class RecordingMainView final : public MainView {
 public:
  explicit RecordingMainView(TestProgram& program) : program_(program) {}

  struct Call {
    std::string Name;
    BandSaw Saw, SawEdit;
  };

  void ShowPanel(Panel panel) override {
    Current = panel;
    Note("ShowPanel " + std::to_string(static_cast<int>(panel)));
  }
  [[nodiscard]] Panel CurrentPanel() const override { return Current; }
  void ShowSawInfo() override { Note("ShowSawInfo"); }
  void FillBoxes() override { Note("FillBoxes"); }
  void ShowUnits() override { Note("ShowUnits"); }
  void DrawSaw() override { Note("DrawSaw"); }
  void ShowStatus(std::string_view status, std::string_view hint) override {
    Note("ShowStatus " + std::string(status) + '|' + std::string(hint));
  }

  /// What was done since the last time of asking.
  [[nodiscard]] std::vector<std::string> Log() {
    NotePauses();
    return std::exchange(log_, {});
  }

  [[nodiscard]] bool WasTold(std::string_view name) const {
    return std::find(log_.begin(), log_.end(), name) != log_.end();
  }

  /// The last call of that name; empty designs when there was none.
  [[nodiscard]] Call At(std::string_view name) const {
    for (auto call = calls_.rbegin(); call != calls_.rend(); ++call)
      if (call->Name == name) return *call;
    ADD_FAILURE() << "the window was not told to " << name;
    return {};
  }

  Panel Current = Panel::Main;

 private:
  void Note(const std::string& name) {
    NotePauses();
    log_.push_back(name);
    calls_.push_back({name, program_.Process.Design.Saw, program_.Process.Design.SawEdit});
  }

  void NotePauses() {
    for (; pauses_ < program_.Time.Waited.size(); ++pauses_) log_.emplace_back("Pause");
  }

  TestProgram& program_;
  std::size_t pauses_ = 0;
  std::vector<std::string> log_;
  std::vector<Call> calls_;
};

}  // namespace tarnwick::test
