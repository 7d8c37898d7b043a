#pragma once

#include <array>
#include <vector>

#include "machine/BandCalculator.h"
#include "platform/qt/FormWindow.h"

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QVBoxLayout;

namespace tarnwick {

class DrawingSurface;
class HintLine;
class MeasureBox;

/// The window of a BandCalculator.
class frmBandCalc final : public FormWindow {
  Q_OBJECT

 public:
  /// @param calculator  has its design; says once the window is closed whether it was accepted
  frmBandCalc(BandCalculator& calculator, HelpViewer& help, QWidget* parent = nullptr);

  void reject() override;

 private:
  QWidget* MakePicture();
  QGroupBox* MakeMachine();
  QGroupBox* MakeLengths();
  void AlignBoxes();
  QCheckBox* MakeCheck(int row);
  MeasureBox* MakeLength(int row);
  QVBoxLayout* MakeFoot();
  QHBoxLayout* MakeButtons();

  void ShowState();

  BandCalculator& calculator_;
  std::vector<QGridLayout*> grids_;  // of the frames
  DrawingSurface* picBand_ = nullptr;
  struct Box {
    Parameter Measure;
    MeasureBox* Shown;
  };
  std::vector<Box> boxes_;
  std::array<QCheckBox*, LengthRows> chkLength_{};
  std::array<MeasureBox*, LengthRows> txtLength_{};
  HintLine* lblStatus_ = nullptr;
};

}  // namespace tarnwick
