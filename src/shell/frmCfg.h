#pragma once

#include <QDialog>
#include <array>
#include <vector>

#include "platform/ColorDialog.h"
#include "platform/HelpViewer.h"
#include "shell/OptionsDialog.h"

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTabWidget;

namespace tarnwick {

class ColourSwatch;

/// The window of an OptionsDialog.
class frmCfg final : public QDialog {
  Q_OBJECT

 public:
  frmCfg(OptionsDialog& dialog, ColorDialog& colours, HelpViewer& help, QWidget* parent = nullptr);
  ~frmCfg() override;

  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* MakeGeneralPage();
  QGroupBox* MakeUnits();
  QGroupBox* MakeNumber(OptionsDialog::NumberBox box, QGroupBox* frame, const char* name,
                        const QString& caption);
  QGroupBox* MakeQuickClick();
  QWidget* MakeColourPage();
  ColourSwatch* AddColour(QGridLayout* grid, const char* captionName, const QString& caption,
                          const char* swatchName);
  QWidget* MakeOutputPage();
  QGroupBox* MakeLineThickness();
  QGroupBox* MakePowerRequirements();
  QGroupBox* MakeDxfSize();
  QWidget* MakeUserPage();
  QLayout* MakeButtons();

  void PickDxfColour();
  void LeaveBoxes();
  void FitScreen();
  void ShowFocus();
  void NameScrollBars();
  void PressOk();
  void ShowState();
  void ShowGeneral();
  void ShowColours();
  void ShowOutput();

  OptionsDialog& dialog_;
  ColorDialog& colours_;
  HelpViewer& help_;

  bool fitted_ = false;
  QTabWidget* SSTab1_ = nullptr;
  QRadioButton* optImperial_ = nullptr;
  QRadioButton* optMetric_ = nullptr;
  std::array<QLineEdit*, OptionsDialog::NumberBoxes> numbers_{};
  QCheckBox* chkQuickClick_ = nullptr;
  struct ColourSample {
    ColourSwatch* Swatch;
    Colour DisplaySettings::*Which;
  };
  std::vector<ColourSample> samples_;
  ColourSwatch* lblDxfColor_ = nullptr;
  QScrollBar* hscPrintThick_ = nullptr;
  QLabel* lblPrintThick_ = nullptr;
  QLabel* lblLineThickness_ = nullptr;
  QCheckBox* chkPrintPowerReq_ = nullptr;
  QScrollBar* hscDxfMemory_ = nullptr;
  QLabel* lblDxfNumber_ = nullptr;
  QPushButton* cmdOk_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
  QPushButton* cmdApply_ = nullptr;
};

}  // namespace tarnwick
