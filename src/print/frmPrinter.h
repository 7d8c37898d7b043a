#pragma once

#include "platform/qt/FormWindow.h"
#include "print/PrinterChoice.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QPushButton;

namespace tarnwick {

/// What the two windows of a PrinterChoice have in common: the printer, whether it is to be the default one,
/// OK and Cancel.
class PrinterForm : public FormWindow {
  Q_OBJECT

 public:
  void reject() override;

 protected:
  PrinterForm(const char* name, const QString& title, PrinterChoice& choice, HelpViewer& help,
              QWidget* parent);

  /// Puts the parts in their places.
  /// @param between  what stands between printer and ticks; nullptr: nothing
  /// @param quality  a tick above the one for the default; nullptr: none
  /// @param setup    a button at the left of the foot; nullptr: none
  void Arrange(QWidget* between, QCheckBox* quality, QPushButton* setup);

  [[nodiscard]] static QCheckBox* MakeTick(const char* name, const QString& caption);

  [[nodiscard]] PrinterChoice& Choice() { return choice_; }

 private:
  QBoxLayout* MakePrinters();
  QBoxLayout* MakeFoot(QPushButton* setup);

  PrinterChoice& choice_;
  QComboBox* cboPrinters_ = nullptr;
  QCheckBox* chkSavePrinter_ = nullptr;
};

/// The window of a PrinterChoice where there are no pages to choose.
class frmPrinter final : public PrinterForm {
  Q_OBJECT

 public:
  frmPrinter(PrinterChoice& choice, HelpViewer& help, QWidget* parent = nullptr);
};

}  // namespace tarnwick
