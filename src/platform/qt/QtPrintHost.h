#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/HelpViewer.h"
#include "platform/qt/QtPrintDevice.h"
#include "print/PrintHost.h"

namespace tarnwick {

class frmPrintMsg;

/// The windows of printing as dialogs above the window in use.
class QtPrintHost final : public PrintHost {
 public:
  /// @param device  whose printers are set up
  QtPrintHost(HelpViewer& help, QtPrintDevice& device);
  ~QtPrintHost() override;

  void RunPrinter(PrinterChoice& choice) override;
  void RunPrinterPage(PrinterChoice& choice) override;
  std::optional<PrinterSetup> RunSetup(const std::string& printer,
                                       const std::optional<PrinterSetup>& current) override;
  void ShowPrintMsg(int page, int pages) override;
  void HidePrintMsg() override;

 private:
  HelpViewer& help_;
  QtPrintDevice& device_;
  std::unique_ptr<frmPrintMsg> frmPrintMsg_;
};

}  // namespace tarnwick
