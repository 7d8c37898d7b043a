#include "machine/MachineCommands.h"

#include "machine/BandCalculator.h"
#include "window/modTransfer.h"

namespace tarnwick {

void OpenBandCalculator(const MachineDesk& desk) {
  OpenDesign& design = desk.Process.Design;
  design.SawEdit = design.Saw;
  Transfer transfer = BeginTransfer(design.Saw);
  BandCalculator calculator(desk.Process, desk.Dialogs, desk.Windows);
  calculator.GetBandCalcData(transfer.TransferSaw);
  Pause(desk.Process.Out.Time);
  desk.Windows.Run(calculator);
  if (calculator.IsAccepted()) {
    transfer.TransferSaw = calculator.Saw();
    TakeFromBandCalc(transfer, design.Saw);
  }
  design.Recalculate(desk.Process.Out.Say);
  desk.Panels.DrawSaw();
  desk.Panels.ShowSawInfo();
  desk.Panels.FillBoxes();
}

void OpenPlateGauges(const MachineDesk& desk) {
  Pause(desk.Process.Out.Time);
  desk.Windows.ShowPlateGauges(desk.Process.Design.Format());
}

}  // namespace tarnwick
