#pragma once

#include <array>
#include <functional>

#include "platform/qt/FormWindow.h"
#include "platform/qt/PowerBoxes.h"
#include "power/PowerCalculator.h"

class QBoxLayout;
class QGroupBox;
class QPushButton;

namespace tarnwick {

class FeedIndexList;

/// The window of a PowerCalculator.
class frmPowerCalc final : public FormWindow {
  Q_OBJECT

 public:
  /// @param print  what cmdPrint does
  frmPowerCalc(PowerCalculator& calculator, HelpViewer& help, std::function<void()> print,
               QWidget* parent = nullptr);

  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  static constexpr std::size_t Sides = 2;

  PowerBoxes MakeBoxes(std::size_t side, const QString& spoken);
  QGroupBox* MakeSide(std::size_t side, const QString& caption, const QString& clear);
  QGroupBox* MakeFeedIndex();
  QBoxLayout* MakeButtons(std::function<void()> print);
  QPushButton* AddCommand(const char* name, const QString& caption, std::function<void()> command);

  void ShowState();

  PowerCalculator& calculator_;
  std::array<PowerBoxes, Sides> boxes_;
  FeedIndexList* cboFeedIndex_ = nullptr;
};

}  // namespace tarnwick
