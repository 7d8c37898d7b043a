#pragma once

#include "entry/YesNoDialog.h"
#include "platform/HelpViewer.h"
#include "platform/qt/QuestionWindow.h"

class QRadioButton;

namespace tarnwick {

/// The window of a YesNoDialog.
class frmBDialog final : public QuestionWindow {
  Q_OBJECT

 public:
  /// @param dialog  the question; holds the answer once the window is closed
  frmBDialog(YesNoDialog& dialog, HelpViewer& help, QWidget* parent = nullptr);

  void reject() override;

 private:
  void MakeAnswer();
  void Choose();
  void PressOk();

  YesNoDialog& dialog_;
  QRadioButton* optYes_ = nullptr;
  QRadioButton* optNo_ = nullptr;
};

}  // namespace tarnwick
