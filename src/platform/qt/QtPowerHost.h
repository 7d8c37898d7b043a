#pragma once

#include "platform/HelpViewer.h"
#include "power/PowerHost.h"

namespace tarnwick {

/// The power windows as dialogs above the window in use.
class QtPowerHost final : public PowerHost {
 public:
  explicit QtPowerHost(HelpViewer& help) : help_(help) {}

  void Run(PowerEditor& editor) override;
  void Run(PowerEstimateList& estimates) override;
  void Run(PowerCalculator& calculator) override;

 private:
  HelpViewer& help_;
};

}  // namespace tarnwick
