#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/PdfFiles.h"
#include "platform/PrintDevice.h"
#include "print/PrintHost.h"
#include "print/PrinterChoice.h"
#include "print/modPrint.h"
#include "shell/Program.h"

namespace tarnwick {

class PowerCalculator;
class PowerEditor;
class PowerEstimateList;

/// What goes to paper: each command has a printer chosen, asks what there is to ask, and prints. A notice
/// shows as long as a job runs. A job that fails, or is stopped, is cancelled whole; a failure is told.
///
/// One of these lives as long as the main window: what is set for a printer stays until another is chosen.
class PrintCommands {
 public:
  struct Desk {
    Program& Process;
    PrintDevice& Printer;
    PrintHost& Windows;
    PdfFiles& Files;
  };
  explicit PrintCommands(const Desk& desk) : desk_(desk) {}

  void PrintSaw();              // mnuItemPrint: the sheets chosen
  void PrintInfoOnly();         // mnuItemPrintInfo
  void PrintShapeOnly();        // mnuItemPrintShape
  void PrintVariableSegment();  // mnuItemPrintVariable, cmdVariablePrint

  void PrintEstimates(PowerEditor& editor);                   // cmdPrint of frmPower
  void PrintEstimates(const PowerEstimateList& estimates);    // cmdPrint of frmPowerEst
  void PrintCalculations(const PowerCalculator& calculator);  // cmdPrint of frmPowerCalc

  /// mnuItemExportPdf: all print-outs of the open design in one file, on letter paper upright; of a variable
  /// pitch band the segment is among them.
  void ExportPdf();

 private:
  struct Work;
  struct Sheets;
  using RunChoice = void (PrintHost::*)(PrinterChoice&);
  using MakeJob = std::function<std::optional<PrintJob>(const Stationery&)>;

  [[nodiscard]] OpenDesign& Design() const { return desk_.Process.Design; }
  [[nodiscard]] Messages& Say() const { return desk_.Process.Out.Say; }
  [[nodiscard]] std::vector<std::string> FindPrinters() const;
  std::optional<PrinterChoice> ChoosePrinter(RunChoice run, std::string_view procedure);
  [[nodiscard]] bool TakePrinter(const PrinterChoice& choice);
  [[nodiscard]] Work OnPrinter(std::string title, std::string_view procedure) const;
  void Print(const Work& work, const MakeJob& make);
  void TellFailure(std::error_code failure, std::string_view activity, std::string_view procedure) const;
  void PrintPages(RunChoice run, std::optional<SawPages> pages, std::string_view procedure);
  void PrintPower(const PowerSheetText& text, std::string title, std::string_view procedure);

  Desk desk_;
  std::string printer_;  // the current one; empty: none was chosen
};

}  // namespace tarnwick
