#pragma once

#include "platform/HelpViewer.h"
#include "power/PowerHost.h"

namespace tarnwick {

class PrintCommands;

/// The power windows as dialogs above the window in use.
class QtPowerHost final : public PowerHost {
 public:
  /// @param printing  what their print buttons run
  QtPowerHost(HelpViewer& help, PrintCommands& printing) : help_(help), printing_(printing) {}

  void Run(PowerEditor& editor) override;
  void Run(PowerEstimateList& estimates) override;
  void Run(PowerCalculator& calculator) override;

 private:
  HelpViewer& help_;
  PrintCommands& printing_;
};

}  // namespace tarnwick
