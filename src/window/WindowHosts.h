#pragma once

#include "entry/DialogHost.h"
#include "machine/MachineHost.h"
#include "power/PowerHost.h"
#include "print/PrintCommands.h"

namespace tarnwick {

/// What puts other windows above the main window, and its design on paper.
struct WindowHosts {
  DialogHost& Dialogs;
  PowerHost& Power;
  MachineHost& Machine;
  PrintCommands& Printing;
};

}  // namespace tarnwick
