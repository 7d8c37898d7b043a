#pragma once

#include <array>
#include <string>

#include "entry/DialogHost.h"
#include "entry/Questions.h"
#include "machine/MachineHost.h"
#include "machine/modBandLength.h"
#include "machine/modMachineBox.h"
#include "machine/modMachineView.h"
#include "platform/Canvas.h"
#include "shell/Program.h"

namespace tarnwick {

/// The length of a band from the machine that it runs on, on a copy of the design in hand. The user gives
/// wheels, their centres and the plate, and takes one of the lengths that come of them. frmBandCalc is its
/// window.
class BandCalculator {
 public:
  /// @param dialogs  for the questions that the boxes ask
  /// @param windows  that shows the hourglass while a file is written
  BandCalculator(Program& program, DialogHost& dialogs, MachineHost& windows)
      : program_(program), dialogs_(dialogs), windows_(windows) {}

  /// Takes the design and shows it: boxes, lengths, picture. The row of its own length is ticked, whichever
  /// was chosen before.
  void GetBandCalcData(const BandSaw& saw);

  /// The text of a box of MachineBoxes().
  [[nodiscard]] std::string Text(Parameter measure) const;

  /// The text of a row of lengths: what the design takes on OK, as it stands. Empty: the row has no length.
  [[nodiscard]] const std::string& LengthText(int row) const { return lengths_[At(row)]; }
  [[nodiscard]] bool IsTicked(int row) const { return saw_.MachineInfo.InCenterOut == row; }

  /// A click on a box or its label: asks for its measure and works everything out anew.
  void Click(Parameter measure);

  /// A click on the text of a row: that of the own length asks for it, the others do nothing.
  void ClickLength(int row);

  /// A click on the check box of a row. One row is ticked at any time; one without a length cannot be, but
  /// for the own length, with which the design stays as it is.
  void TickLength(int row);

  /// The machine on a surface, fitted to it.
  void DrawPicture(Canvas& canvas);
  /// Whether there is a machine to be seen.
  [[nodiscard]] bool HasPicture() const { return !view_.Wheels.Entities.empty(); }

  /// The picture as a drawing file, at a place that the user is asked for.
  void PressExportDxf();

  /// Takes the ticked length into the copy, and notes which sections it has now.
  void SetMachineVariables();

  void PressOk();
  void PressCancel() { open_ = false; }  // and the window's own button

  [[nodiscard]] bool IsOpen() const { return open_; }
  [[nodiscard]] bool IsAccepted() const { return accepted_; }

  /// The copy with all that was done to it.
  [[nodiscard]] const BandSaw& Saw() const { return saw_; }

 private:
  static std::size_t At(int row) { return static_cast<std::size_t>(row); }
  static bool IsRow(int row) { return row >= OwnLength && row < LengthRows; }
  [[nodiscard]] DisplayFormat Format() const { return program_.Design.Format(); }
  [[nodiscard]] const CalculationSettings& Settings() const { return program_.Design.Settings.Calculation; }
  [[nodiscard]] Questions Asking() const;
  void ShowOwnLength();
  void ShowLengths();
  void WorkOut();
  void ExportDrawing();

  Program& program_;
  DialogHost& dialogs_;
  MachineHost& windows_;

  BandSaw saw_;
  std::array<std::string, LengthRows> lengths_;
  MachineView view_;
  MachineZoom zoom_;
  bool open_ = true;
  bool accepted_ = false;
};

}  // namespace tarnwick
