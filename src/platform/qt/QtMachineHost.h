#pragma once

#include <QPointer>
#include <QWidget>

#include "machine/MachineHost.h"
#include "platform/HelpViewer.h"

namespace tarnwick {

/// The windows of the machine as dialogs above the window in use.
class QtMachineHost final : public MachineHost {
 public:
  explicit QtMachineHost(HelpViewer& help) : help_(help) {}

  void Run(BandCalculator& calculator) override;
  void ShowPlateGauges(const DisplayFormat& format) override;
  /// On the window in use alone: a message above it is answered with the usual pointer.
  void SetBusy(bool busy) override;

 private:
  HelpViewer& help_;
  QPointer<QWidget> busy_;  // the window with the hourglass
};

}  // namespace tarnwick
