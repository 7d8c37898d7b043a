#pragma once

#include <functional>

#include "platform/qt/FormWindow.h"
#include "platform/qt/PowerBoxes.h"
#include "power/PowerEditor.h"

class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QPushButton;

namespace tarnwick {

class FeedIndexList;

/// The window of a PowerEditor.
class frmPower final : public FormWindow {
  Q_OBJECT

 public:
  /// @param editor  has its design; says once the window is closed whether it was accepted
  /// @param print  what cmdPrint does
  frmPower(PowerEditor& editor, HelpViewer& help, std::function<void()> print, QWidget* parent = nullptr);

  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QGroupBox* MakeFigures();
  QGroupBox* MakeGulletCapacity();
  QGroupBox* MakeEstimates(std::function<void()> print);
  QPushButton* MakeEstimateButton(const char* name, const QString& caption, std::function<void()> command);
  QHBoxLayout* MakeFoot();

  void LeavePercent();
  void ShowState();

  PowerEditor& editor_;
  PowerBoxes boxes_;
  FeedIndexList* cboFeedIndex_ = nullptr;
  QComboBox* cboPercent_ = nullptr;
};

}  // namespace tarnwick
