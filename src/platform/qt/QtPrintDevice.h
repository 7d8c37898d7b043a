#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/qt/QtPrintPages.h"

class QPrinter;

namespace tarnwick {

/// A printer of the toolkit by its name, with the paper that lies in it; nullptr when there is none.
[[nodiscard]] std::unique_ptr<QPrinter> OpenPrinter(const std::string& name);

[[nodiscard]] PrinterSetup SetupOf(const QPrinter& printer);
/// @return false when the printer cannot take that kind of paper
[[nodiscard]] bool Apply(const PrinterSetup& setup, QPrinter& printer);

/// The printers of the desktop.
class QtPrintDevice final : public QtPrintPages {
 public:
  QtPrintDevice();
  ~QtPrintDevice() override;

  [[nodiscard]] std::vector<std::string> Printers() override;
  [[nodiscard]] bool Choose(const std::string& printer) override;
  [[nodiscard]] PrinterSetup Setup() const override { return setup_; }
  [[nodiscard]] bool SetUp(const PrinterSetup& setup) override;
  void SetQuality(PrintQuality quality) override { quality_ = quality; }

  /// A printer as the setup dialog has left it. When its setup is the one that SetUp asks for, it takes the
  /// current one's place, with what else was set there: the tray, both sides of the paper.
  void KeepForSetUp(std::unique_ptr<QPrinter> printer);

 protected:
  [[nodiscard]] std::error_code Ready() override;
  [[nodiscard]] std::error_code Send(const QString& title) override;

 private:
  std::unique_ptr<QPrinter> printer_;   // the current one; none before the first is chosen
  std::unique_ptr<QPrinter> prepared_;  // by the dialog
  PrinterSetup setup_;                  // of the current one
  PrintQuality quality_ = PrintQuality::Normal;
};

}  // namespace tarnwick
