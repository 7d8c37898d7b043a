#pragma once

#include <QDialog>

#include "platform/HelpViewer.h"
#include "shell/OptionsDialog.h"

class QButtonGroup;
class QGridLayout;
class QLabel;

namespace tarnwick {

/// The window of a DxfColorChoice: ten samples with their numbers, of which one is marked.
class frmColor final : public QDialog {
  Q_OBJECT

 public:
  /// @param choice  holds the answer once the window is closed
  frmColor(DxfColorChoice& choice, HelpViewer& help, QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;

 private:
  QLayout* MakeSamples();
  QLayout* MakeButtons();
  void ShowMark();

  DxfColorChoice& choice_;
  QButtonGroup* samples_ = nullptr;
  QLabel* lblSendColor_ = nullptr;
};

/// Asks for the colour number of drawing files.
/// @param colour  the present number; the chosen one after it
/// @return whether another one was chosen
[[nodiscard]] bool GetDxfColor(int& colour, HelpViewer& help, QWidget* parent);

}  // namespace tarnwick
