#pragma once

#include <optional>
#include <string>

#include "platform/PrintDevice.h"

namespace tarnwick {

class PrinterChoice;

/// Puts the windows of printing on the screen, above the window in use.
class PrintHost {
 public:
  virtual ~PrintHost() = default;

  // These come back when the window is closed.
  virtual void RunPrinter(PrinterChoice& choice) = 0;      // frmPrinter
  virtual void RunPrinterPage(PrinterChoice& choice) = 0;  // frmPrinterPage
  /// The platform's own dialog; see PrinterChoice::SetupDialog.
  virtual std::optional<PrinterSetup> RunSetup(const std::string& printer,
                                               const std::optional<PrinterSetup>& current) = 0;

  /// frmPrintMsg, the notice that a job runs, in the middle of the screen. It has no button; it shows the
  /// page, and is seen before this comes back. Shown again it shows the next page.
  virtual void ShowPrintMsg(int page, int pages) = 0;
  virtual void HidePrintMsg() = 0;
};

}  // namespace tarnwick
