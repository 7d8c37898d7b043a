#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "platform/HelpViewer.h"

class QBoxLayout;
class QLayout;
class QScrollArea;

namespace tarnwick {

/// What the windows of many boxes have in common: boxes above, buttons at the foot, F1. The window opens as
/// large as its boxes need. On a screen that is too small for that (or for its large letters) what stands
/// side by side is laid one below the other, and the boxes scroll; the buttons stay.
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

  /// A row whose parts may be laid one below the other.
  void MayStack(QBoxLayout* row) { rows_.push_back(row); }

 private:
  void ShowHelp();
  void StackRows(int room);
  void FitScreen();

  int topic_;
  HelpViewer& help_;
  QScrollArea* area_ = nullptr;
  std::vector<QBoxLayout*> rows_;
};

}  // namespace tarnwick
