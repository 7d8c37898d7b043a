#pragma once

#include <QDialog>

#include "platform/HelpViewer.h"

namespace tarnwick {

/// The box about the program.
class frmAbout final : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(HelpViewer& help, QWidget* parent = nullptr);
};

}  // namespace tarnwick
