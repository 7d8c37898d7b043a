#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <vector>

#include "machine/BandCalculator.h"
#include "machine/MachineHost.h"

namespace tarnwick::test {

/// Somebody who works with the windows of the machine as planned, one act a window. A calculator that nobody
/// planned, or that an act leaves open, fails the test and is cancelled.
class ScriptedMachineHost final : public MachineHost {
 public:
  using Act = std::function<void(BandCalculator&)>;

  void Run(BandCalculator& calculator) override {
    if (Acts.empty()) {
      ADD_FAILURE() << "nobody expected the band length calculator";
    } else {
      const Act act = Acts.front();
      Acts.pop_front();
      act(calculator);
    }
    if (!calculator.IsOpen()) return;
    ADD_FAILURE() << "the band length calculator was left open";
    calculator.PressCancel();
  }
  void ShowPlateGauges(const DisplayFormat& format) override { Gauges.push_back(format); }
  void SetBusy(bool busy) override { Hourglass.push_back(busy); }

  std::deque<Act> Acts;
  std::vector<DisplayFormat> Gauges;  // of each time that the table was shown
  std::vector<bool> Hourglass;
};

}  // namespace tarnwick::test
