#pragma once

#include "platform/qt/QtDialogHost.h"
#include "platform/qt/QtMachineHost.h"
#include "platform/qt/QtPdfFiles.h"
#include "platform/qt/QtPowerHost.h"
#include "platform/qt/QtPrintDevice.h"
#include "platform/qt/QtPrintHost.h"
#include "print/PrintCommands.h"
#include "window/WindowHosts.h"

namespace tarnwick {

/// The windows above the main window, as the toolkit shows them, and its printers.
class QtHosts {
 public:
  /// @param program  outlives this
  explicit QtHosts(Program& program)
      : dialogs_(program.Out.Help),
        machine_(program.Out.Help),
        printWindows_(program.Out.Help, printers_),
        printing_({program, printers_, printWindows_, pdfFiles_}),
        power_(program.Out.Help, printing_) {}

  [[nodiscard]] WindowHosts All() { return {dialogs_, power_, machine_, printing_}; }

 private:
  QtDialogHost dialogs_;
  QtMachineHost machine_;
  QtPrintDevice printers_;
  QtPrintHost printWindows_;
  QtPdfFiles pdfFiles_;
  PrintCommands printing_;
  QtPowerHost power_;
};

}  // namespace tarnwick
