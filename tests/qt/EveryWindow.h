#pragma once

#include <functional>

#include "entry/frmBDialog.h"
#include "entry/frmCDialog.h"
#include "machine/BandCalculator.h"
#include "machine/frmBandCalc.h"
#include "machine/frmGauge.h"
#include "platform/qt/QtHelpViewer.h"
#include "power/PowerCalculator.h"
#include "power/frmPowerCalc.h"
#include "power/frmPowerEst.h"
#include "power/modPowerEstimate.h"
#include "print/frmPrintMsg.h"
#include "print/frmPrinter.h"
#include "print/frmPrinterPage.h"
#include "qt/PowerWindow.h"
#include "shell/frmAbout.h"
#include "shell/frmAnime.h"
#include "shell/frmCfg.h"
#include "shell/frmColor.h"
#include "shell/frmSplash.h"

namespace tarnwick::test {

using Visit = std::function<void(QWidget&)>;

/// Brings a window up, looks at it, and lets it go.
inline void LookAt(QWidget& window, const Visit& visit) {
  window.show();
  QApplication::processEvents();
  visit(window);
  window.hide();
}

/// The main window with each of its panels, on a design of each tooth style.
inline void VisitMainWindow(const Visit& visit) {
  for (int style = SquareBack; style <= FrostTooth; ++style) {
    MainWindow main;
    main.Open(style == DoubleRadius ? VariableDesign() : FullDesign(style));
    for (const char* panel : {"mnuItemMain", "mnuItemToothShape", "mnuItemGeneral", "mnuItemVariable"}) {
      main.Do(panel);
      visit(*main.Window);
    }
  }
}

/// The windows that commands of the main window open.
inline void VisitWindowsOfCommands(const Visit& visit) {
  MainWindow main;
  main.Open(FullDesign());
  for (const char* command : {"mnuItemPower", "mnuItemBandLength", "mnuItemPowerCalc", "mnuItemPlateGauge",
                              "mnuItemOptions", "mnuItemSplash", "mnuItemAbout"}) {
    int seen = 0;
    main.User.Acts.push_back([&](QDialog& window) {
      ++seen;
      visit(window);
      window.reject();
    });
    main.Do(command);
    if (seen != 1) qFatal("%s opens no window", command);
  }
}

inline void VisitQuestions(const Visit& visit) {
  RecordingHelpViewer help;
  CollectedMessages ignored;
  for (int number = 0; number <= static_cast<int>(Parameter::CenterToCenter); ++number) {
    for (const std::int16_t units : {Imperial, Metric}) {
      ValueDialog dialog = PrepareDialog(Parameter(number), TripleRadius, {units, 3, 5}, ignored);
      frmCDialog window(dialog, help);
      LookAt(window, visit);
    }
  }
  YesNoDialog seat(SeatPrompt, SeatKey, SeatTitle, true);
  frmBDialog window(seat, help);
  LookAt(window, visit);
}

inline void VisitPrintWindows(const Visit& visit) {
  RecordingHelpViewer help;
  PrinterChoice choice({"Alpha", "Beta"}, 0, [](const auto&, const auto&) { return std::nullopt; });
  frmPrinter printers(choice, help);
  LookAt(printers, visit);
  frmPrinterPage pages(choice, help);
  LookAt(pages, visit);
  frmPrintMsg notice;
  notice.ShowPage(2, 3);
  visit(notice);
}

inline void VisitOtherWindows(const Visit& visit) {
  RecordingHelpViewer help;
  DxfColorChoice colour(3);
  frmColor colours(colour, help);
  LookAt(colours, visit);

  PowerEstimateList list(0.7, DisplayFormat{});
  list.GetPowerReq(BuildPowerEstimates(PowerDesign(), 10, {5, 0.7}).value(), 10);
  frmPowerEst estimates(list, help, [] {});
  LookAt(estimates, visit);

  QWidget place;
  StoppedClock clock;
  frmAnime animation(place, clock);
  visit(animation);
}

inline void VisitManual(const Visit& visit) {
  TemporaryFolder folder;
  QtHelpViewer manual({.CacheFolder = QString::fromStdString(folder.Path().string())});
  manual.ShowContents();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == "frmHelp") visit(*window);
  }
}

/// Every window of the program, one after another, as it comes up.
inline void VisitEveryWindow(const Visit& visit) {
  VisitMainWindow(visit);
  VisitWindowsOfCommands(visit);
  VisitQuestions(visit);
  VisitPrintWindows(visit);
  VisitOtherWindows(visit);
  VisitManual(visit);
}

}  // namespace tarnwick::test
