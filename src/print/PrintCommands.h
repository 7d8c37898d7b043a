#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/PdfFiles.h"
#include "platform/PrintDevice.h"
#include "print/PrintHost.h"
#include "print/PrinterChoice.h"
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

  /// mnuItemExportPdf: all print-outs of the open design in one file, the segment of a variable pitch band
  /// among them.
  void ExportPdf();

 private:
  Desk desk_;
};

}  // namespace tarnwick
