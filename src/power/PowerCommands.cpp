#include "power/PowerCommands.h"

#include "power/PowerCalculator.h"
#include "power/PowerEditor.h"
#include "power/modPowerRequired.h"
#include "window/KeptChanges.h"
#include "window/modTransfer.h"

namespace tarnwick {
namespace {

/// Unlike its kin this question ends without a line break.
Box ChangedQuestionOfPower() {
  Box question = ChangedQuestion(Button::Cancel);
  question.Text.pop_back();
  return question;
}

}  // namespace

void OpenPowerEditor(const PowerDesk& desk) {
  OpenDesign& design = desk.Process.Design;
  if (!PowerDataRequired(design.Saw, desk.Process.Out.Say)) return;
  if (!KeepsOrRestores(desk.Process, desk.Panels, ChangedQuestionOfPower())) return;
  desk.Process.SaveSettings();
  design.SawEdit = design.Saw;

  Transfer transfer = BeginTransfer(design.Saw);
  PowerEditor editor(desk.Process, desk.Dialogs, desk.Windows);
  editor.GetSawPowerData(transfer.TransferSaw);
  desk.Windows.Run(editor);
  if (!editor.IsAccepted()) return;
  transfer.TransferSaw = editor.Saw();
  TakeFromPower(transfer, design.Saw, design.SawEdit);
  desk.Panels.ShowPanel(Panel::Main);
  desk.Panels.ShowSawInfo();
}

void OpenPowerCalculator(const PowerDesk& desk) {
  const Transfer transfer = BeginTransfer(desk.Process.Design.Saw);
  PowerCalculator calculator(desk.Process, desk.Dialogs);
  calculator.GetSawPowerData(transfer.TransferSaw);
  desk.Windows.Run(calculator);
}

}  // namespace tarnwick
