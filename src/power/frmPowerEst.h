#pragma once

#include <functional>

#include "platform/qt/FormWindow.h"
#include "power/PowerEstimateList.h"

class QHBoxLayout;
class QListWidget;

namespace tarnwick {

/// The window of a PowerEstimateList: its lines, read by eye, by keys or by ear.
class frmPowerEst final : public FormWindow {
  Q_OBJECT

 public:
  /// @param print  what cmdPrint does
  frmPowerEst(PowerEstimateList& estimates, HelpViewer& help, std::function<void()> print,
              QWidget* parent = nullptr);

  /// Writes the lines, from the top.
  void DisplayPowerSets();

  void done(int result) override;

 private:
  QWidget* MakeLines();
  QHBoxLayout* MakeFoot(std::function<void()> print);

  PowerEstimateList& estimates_;
  QListWidget* picPowerEst_ = nullptr;
};

}  // namespace tarnwick
