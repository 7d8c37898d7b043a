#pragma once

#include <functional>

#include "platform/qt/FormWindow.h"
#include "power/PowerEstimateList.h"

class QHBoxLayout;
class QListWidget;
class QPushButton;

namespace tarnwick {

/// The window of a PowerEstimateList: its lines, read by eye, by keys or by ear.
class frmPowerEst final : public FormWindow {
 public:
  frmPowerEst(PowerEstimateList& estimates, HelpViewer& help, QWidget* parent = nullptr);

  /// Writes the lines, from the top.
  void DisplayPowerSets();

  /// Adds the button cmdPrint.
  void AddPrint(std::function<void()> print);

  void done(int result) override;

 private:
  QWidget* MakeLines();
  QHBoxLayout* MakeFoot();

  PowerEstimateList& estimates_;
  QListWidget* picPowerEst_ = nullptr;
  QPushButton* cmdOk_ = nullptr;
  QHBoxLayout* foot_ = nullptr;
};

}  // namespace tarnwick
