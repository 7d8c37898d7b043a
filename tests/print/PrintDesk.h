#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "power/PowerEditor.h"
#include "power/PowerEstimateList.h"
#include "print/PrintCommands.h"
#include "store/modPath.h"
#include "support/FullDesign.h"
#include "support/MemoryStore.h"
#include "support/PowerDesign.h"
#include "support/RecordingHelpViewer.h"
#include "support/RecordingPrintDevice.h"
#include "support/RecordingTrash.h"
#include "support/ScriptedColorDialog.h"
#include "support/ScriptedDialogHost.h"
#include "support/ScriptedFileDialogs.h"
#include "support/ScriptedPowerHost.h"
#include "support/ScriptedPrintHost.h"
#include "support/StoppedClock.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::test {

inline constexpr const char* NoPrinters = "No Printers!: No windows printers available! [information]";

/// Boxes among all else that is done, "title: text", and what is answered.
class NotedMessages final : public Messages {
 public:
  explicit NotedMessages(Texts& log) : log_(log) {}
  Button Show(const Box& box) override {
    log_.push_back(box.Title + ": " + box.Text + (box.Offer == Buttons::YesNo ? " [yes no]" : "") +
                   (box.Shown == Icon::Information ? " [information]" : ""));
    return box.Offer == Buttons::Ok ? Button::Ok : Answer;
  }
  Button Answer = Button::Yes;

 private:
  Texts& log_;
};

inline void Ok(PrinterChoice& choice) { choice.PressOk(); }
inline void Cancel(PrinterChoice& choice) { choice.PressCancel(); }
inline auto OkFor(SawPages pages) {
  return [pages](PrinterChoice& choice) {
    choice.ChoosePages(pages);
    choice.PressOk();
  };
}

/// A program with a design, two printers, and somebody at its windows.
class PrintCommandsTest : public testing::Test {
 protected:
  PrintCommandsTest() {
    Process.Start(Documents.Path().string(), {});
    OpenDesign& design = Process.Design;
    design.FileName = "oak.bsw";
    design.Settings.CurrentSawDir = PathText(Documents.Path()) + PathSeparator;
    design.Settings.PrintLineThick = 7;
    design.Saw = FullDesign();
    design.Recalculate(Say);
    log_.clear();
  }

  /// A band of three pitches, its segment 20 inches long or as long as told.
  void MakeVariable(double average = 20.0 / 3) {
    BandSaw& saw = Process.Design.Saw;
    saw.NumTeeth = 36;
    saw.Length = 36 * average / 12;
    saw.Pitch = 0;
    saw.BothEdges = False;
    saw.GeneralInfo.VariablePitch = True;
    saw.GeneralInfo.NumVariables = 3;
    saw.GeneralInfo.VarPitch = {average * 1.1, average, average * 0.9};
    saw.DesignInfo.SegmentLength = 3 * average;
    Process.Design.Recalculate(Say);
    log_.clear();
  }

  /// The estimates for a tenth more.
  PowerEstimateList Estimates() {
    ScriptedDialogHost dialogs;
    ScriptedPowerHost power;
    PowerEditor editor(Process, dialogs, power);
    editor.GetSawPowerData(PowerDesign());
    editor.TypePercent("10");
    return *editor.Estimates();
  }

  [[nodiscard]] const PrintedJob& Job() const {
    EXPECT_EQ(Printer.Jobs.size(), 1U);
    return Printer.Jobs.at(0);
  }

 private:
  Texts log_;

 protected:
  [[nodiscard]] const Texts& Log() const { return log_; }
  void ClearLog() { log_.clear(); }

  NotedMessages Say{log_};
  StoppedClock Time;
  MemoryStore Store;
  ScriptedColorDialog Colors;
  RecordingHelpViewer Help;
  ScriptedFileDialogs Files;
  RecordingTrash Bin;
  TemporaryFolder Documents;
  Program Process{{Say, Time, Store, Colors, Help, Files, Bin}};

  RecordingPrintDevice Printer{log_};
  ScriptedPrintHost Windows{log_};
  RecordingPdfFiles Pdf{log_};
  PrintCommands Commands{{Process, Printer, Windows, Pdf}};
};

}  // namespace tarnwick::test
