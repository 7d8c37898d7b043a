#pragma once

#include <QDialog>
#include <QString>

#include "platform/HelpViewer.h"

class QLayout;

namespace tarnwick {

/// What the windows of many boxes have in common: boxes above, buttons at the foot, F1. The window opens as
/// large as its boxes need; on a screen that is too small for that the boxes scroll, and the buttons stay.
class FormWindow : public QDialog {
 public:
  /// F1 opens this page while the focus is on `control`.
  static void SetTopic(QWidget* control, int topic);

  void setVisible(bool visible) override;

 protected:
  /// @param topic  page of the manual on the window as a whole
  FormWindow(const char* name, const QString& title, int topic, HelpViewer& help, QWidget* parent);

  /// Puts the parts in their places; `boxes` and `foot` have been filled.
  void Arrange(QLayout* boxes, QLayout* foot);

  static constexpr int Margin = 12;
  static constexpr int Gap = 8;  // between neighbours

 private:
  void ShowHelp();

  int topic_;
  HelpViewer& help_;
};

}  // namespace tarnwick
