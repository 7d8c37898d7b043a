#pragma once

namespace tarnwick {

class PowerCalculator;
class PowerEditor;
class PowerEstimateList;

/// Puts a power window on the screen, above the window in use, and comes back when it is closed.
class PowerHost {
 public:
  virtual ~PowerHost() = default;
  virtual void Run(PowerEditor& editor) = 0;           // frmPower
  virtual void Run(PowerEstimateList& estimates) = 0;  // frmPowerEst
  virtual void Run(PowerCalculator& calculator) = 0;   // frmPowerCalc
};

}  // namespace tarnwick
