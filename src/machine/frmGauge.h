#pragma once

#include "entry/modFormat.h"
#include "platform/qt/FormWindow.h"

namespace tarnwick {

class DrawingSurface;

/// The table of sheet gauges, to be looked at.
class frmGauge final : public FormWindow {
  Q_OBJECT

 public:
  frmGauge(const DisplayFormat& format, HelpViewer& help, QWidget* parent = nullptr);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void MakeTable();
  void FitFont();

  DisplayFormat format_;
  DrawingSurface* picGauge_ = nullptr;
  double unit_ = 0;  // pixels of one unit of the table
};

}  // namespace tarnwick
