#pragma once

#include "print/frmPrinter.h"

class QGroupBox;

namespace tarnwick {

/// The window of a PrinterChoice with the sheets of a saw to choose from.
class frmPrinterPage final : public PrinterForm {
  Q_OBJECT

 public:
  frmPrinterPage(PrinterChoice& choice, HelpViewer& help, QWidget* parent = nullptr);

 private:
  QGroupBox* MakePages();
};

}  // namespace tarnwick
