#include "platform/qt/QtPrintHost.h"

#include <QPrinter>
#include <utility>

#include "platform/qt/QtPrintSetup.h"
#include "platform/qt/WindowInUse.h"
#include "print/frmPrintMsg.h"
#include "print/frmPrinter.h"
#include "print/frmPrinterPage.h"

namespace tarnwick {
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
  if (!RunPrintSetup(*opened, WindowInUse())) return std::nullopt;
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
