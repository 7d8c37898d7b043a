#pragma once

#include "entry/ValueDialog.h"
#include "platform/HelpViewer.h"
#include "platform/qt/QuestionWindow.h"

class QLineEdit;

namespace tarnwick {

class PresetList;

/// The window of a ValueDialog: asks for one value, by an equation or from a list.
class frmCDialog final : public QuestionWindow {
  Q_OBJECT

 public:
  /// @param dialog  the question; holds the answer once the window is closed
  frmCDialog(ValueDialog& dialog, HelpViewer& help, QWidget* parent = nullptr);

  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeAnswer();
  void BindAnswer();
  [[nodiscard]] std::string ValueOf(const QString& text) const;
  void SelectEntry(int row);
  void PressOk();
  void PressEnter();
  void Answered();
  void ShowAnswer();

  ValueDialog& dialog_;
  PresetList* ListValues_ = nullptr;
  QLineEdit* txtValue_ = nullptr;
};

}  // namespace tarnwick
