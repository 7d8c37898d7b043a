#include "platform/qt/QtPrintHost.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <utility>

#include "platform/qt/WindowInUse.h"
#include "print/frmPrintMsg.h"
#include "print/frmPrinter.h"
#include "print/frmPrinterPage.h"

namespace tarnwick {
namespace {

/// Where the platform has no dialog of its own, the toolkit's is one for printing at once: here it settles
/// how, and the printer is chosen already.
void MakeSetupOf(QPrintDialog& dialog) {
  dialog.setWindowTitle(QPrintDialog::tr("Print Setup"));
  for (const auto option : {QPrintDialog::PrintToFile, QPrintDialog::PrintSelection,
                            QPrintDialog::PrintPageRange, QPrintDialog::PrintCurrentPage}) {
    dialog.setOption(option, false);
  }
  if (auto* printers = dialog.findChild<QComboBox*>("printers")) printers->setEnabled(false);
  if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
    if (QPushButton* ok = buttons->button(QDialogButtonBox::Ok)) ok->setText(QPrintDialog::tr("&OK"));
  }
}

}  // namespace

QtPrintHost::QtPrintHost(HelpViewer& help, QtPrintDevice& device) : help_(help), device_(device) {}
QtPrintHost::~QtPrintHost() = default;

void QtPrintHost::RunPrinter(PrinterChoice& choice) { frmPrinter(choice, help_, WindowInUse()).exec(); }

void QtPrintHost::RunPrinterPage(PrinterChoice& choice) {
  frmPrinterPage(choice, help_, WindowInUse()).exec();
}

std::optional<PrinterSetup> QtPrintHost::RunSetup(const std::string& printer,
                                                  const std::optional<PrinterSetup>& current) {
  std::unique_ptr<QPrinter> opened = OpenPrinter(printer);
  if (!opened) return std::nullopt;
  if (current) (void)Apply(*current, *opened);  // what it cannot take any more, it has not
  QPrintDialog dialog(opened.get(), WindowInUse());
  MakeSetupOf(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const PrinterSetup setup = SetupOf(*opened);
  device_.KeepForSetUp(std::move(opened));
  return setup;
}

void QtPrintHost::ShowPrintMsg(int page, int pages) {
  if (!frmPrintMsg_) frmPrintMsg_ = std::make_unique<frmPrintMsg>(WindowInUse());
  frmPrintMsg_->ShowPage(page, pages);
}

void QtPrintHost::HidePrintMsg() { frmPrintMsg_.reset(); }

}  // namespace tarnwick
