#pragma once

namespace tarnwick {

class BandCalculator;
struct DisplayFormat;

/// Puts a window about the machine on the screen, above the window in use, and comes back when it is closed.
class MachineHost {
 public:
  virtual ~MachineHost() = default;
  virtual void Run(BandCalculator& calculator) = 0;               // frmBandCalc
  virtual void ShowPlateGauges(const DisplayFormat& format) = 0;  // frmGauge
  virtual void SetBusy(bool busy) = 0;                            // hourglass
};

}  // namespace tarnwick
