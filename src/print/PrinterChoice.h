#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/PrintDevice.h"
#include "print/modPrintPage.h"

namespace tarnwick {

/// A printer to choose, and for a saw which sheets. Its windows are frmPrinter, and frmPrinterPage with the
/// pages and the quality.
class PrinterChoice {
 public:
  /// Opens the platform's setup dialog of a printer.
  /// @param current  as it was set last; nullopt: the printer's own
  /// @return nullopt when the user cancels
  using SetupDialog = std::function<std::optional<PrinterSetup>(const std::string& printer,
                                                                const std::optional<PrinterSetup>& current)>;

  /// @param printers  at least one
  /// @param selected  one of them
  PrinterChoice(std::vector<std::string> printers, std::size_t selected, SetupDialog setupDialog)
      : printers_(std::move(printers)), selected_(selected), setupDialog_(std::move(setupDialog)) {}

  // cboPrinters
  [[nodiscard]] const std::vector<std::string>& Printers() const { return printers_; }
  [[nodiscard]] std::size_t Selected() const { return selected_; }
  /// Drops the setup of the printer selected before.
  void Select(std::size_t printer);

  // chkSavePrinter, "Save as default printer"
  [[nodiscard]] bool SavesPrinter() const { return savesPrinter_; }
  void TickSavePrinter(bool ticked) { savesPrinter_ = ticked; }

  // frmPrinterPage: optBoth, optSawDrawing, optSawInfo; chkPrintQuality, "Print Quality (High)"
  [[nodiscard]] SawPages Pages() const { return pages_; }
  void ChoosePages(SawPages pages) { pages_ = pages; }
  [[nodiscard]] PrintQuality Quality() const { return quality_; }
  void TickQuality(bool high) { quality_ = high ? PrintQuality::High : PrintQuality::Normal; }

  void PressSetup();  // cmdSetup, frmPrinter only
  void PressOk() { Close(true); }
  void PressCancel() { Close(false); }  // and the window's own button

  [[nodiscard]] bool IsOpen() const { return open_; }
  [[nodiscard]] bool IsAccepted() const { return accepted_; }

  [[nodiscard]] const std::string& Name() const { return printers_[selected_]; }
  /// What the setup dialog was left with; nullopt: nobody has opened it for the printer selected.
  [[nodiscard]] const std::optional<PrinterSetup>& Setup() const { return setup_; }

 private:
  void Close(bool accepted);

  std::vector<std::string> printers_;
  std::size_t selected_;
  SetupDialog setupDialog_;
  bool savesPrinter_ = false;
  SawPages pages_ = SawPages::Both;
  PrintQuality quality_ = PrintQuality::Normal;
  std::optional<PrinterSetup> setup_;
  bool open_ = true;
  bool accepted_ = false;
};

}  // namespace tarnwick
