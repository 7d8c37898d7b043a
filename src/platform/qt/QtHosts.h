#pragma once

#include "platform/qt/QtDialogHost.h"
#include "platform/qt/QtMachineHost.h"
#include "platform/qt/QtPowerHost.h"
#include "window/WindowHosts.h"

namespace tarnwick {

/// The windows above the main window, as the toolkit shows them.
class QtHosts {
 public:
  explicit QtHosts(HelpViewer& help) : dialogs_(help), power_(help), machine_(help) {}

  [[nodiscard]] WindowHosts All() { return {dialogs_, power_, machine_}; }

 private:
  QtDialogHost dialogs_;
  QtPowerHost power_;
  QtMachineHost machine_;
};

}  // namespace tarnwick
