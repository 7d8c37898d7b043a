#pragma once

#include "entry/DialogHost.h"
#include "machine/MachineHost.h"
#include "power/PowerHost.h"

namespace tarnwick {

/// What puts other windows above the main window.
struct WindowHosts {
  DialogHost& Dialogs;
  PowerHost& Power;
  MachineHost& Machine;
};

}  // namespace tarnwick
