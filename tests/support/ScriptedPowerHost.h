#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "power/PowerCalculator.h"
#include "power/PowerEditor.h"
#include "power/PowerEstimateList.h"
#include "power/PowerHost.h"

namespace tarnwick::test {

/// Somebody at the power windows, doing as planned: acts are taken in their order, one a window. A window
/// that nobody planned fails the test. One that an act leaves open is closed by its own button.
class ScriptedPowerHost final : public PowerHost {
 public:
  template <class Window>
  using Acts = std::deque<std::function<void(Window&)>>;

  void Run(PowerEditor& editor) override {
    Perform("frmPower", Editors, editor);
    if (editor.IsOpen()) editor.PressCancel();
  }
  void Run(PowerEstimateList& estimates) override {
    Perform("frmPowerEst", Estimates, estimates);
    if (estimates.IsOpen()) estimates.PressOk();
  }
  void Run(PowerCalculator& calculator) override {
    Perform("frmPowerCalc", Calculators, calculator);
    if (calculator.IsOpen()) calculator.PressExit();
  }

  Acts<PowerEditor> Editors;
  Acts<PowerEstimateList> Estimates;
  Acts<PowerCalculator> Calculators;

  std::vector<std::string> Shown;  // in order

 private:
  template <class Window>
  void Perform(const char* name, Acts<Window>& acts, Window& window) {
    Shown.emplace_back(name);
    if (acts.empty()) {
      ADD_FAILURE() << "nobody planned " << name;
      return;
    }
    const auto act = acts.front();
    acts.pop_front();
    act(window);
  }
};

}  // namespace tarnwick::test
