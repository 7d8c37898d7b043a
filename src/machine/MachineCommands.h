#pragma once

#include "entry/DialogHost.h"
#include "machine/MachineHost.h"
#include "shell/Program.h"
#include "window/MainView.h"

namespace tarnwick {

/// What the commands of the machine's windows work with.
struct MachineDesk {
  Program& Process;
  DialogHost& Dialogs;
  MachineHost& Windows;
  MainView& Panels;
};

/// mnuItemBandLength. On the window's OK the design has what the window made of it, on its Cancel it is as it
/// was; it is calculated and shown anew in either case. What the last editor accepted is the design as it was
/// before, so the next editor asks about the change.
void OpenBandCalculator(const MachineDesk& desk);

/// mnuItemPlateGauge.
void OpenPlateGauges(const MachineDesk& desk);

}  // namespace tarnwick
