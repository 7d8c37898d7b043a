#pragma once

#include "entry/DialogHost.h"
#include "power/PowerHost.h"
#include "shell/Program.h"
#include "window/MainView.h"

namespace tarnwick {

/// What the commands of the power windows work with.
struct PowerDesk {
  Program& Process;
  DialogHost& Dialogs;
  PowerHost& Windows;
  MainView& Panels;
};

/// mnuItemPower. A design that lacks something for the power figures is told of it; changes since the last
/// OK of an editor are asked about. On the window's OK the design has its power, on its Cancel it is as it
/// was.
void OpenPowerEditor(const PowerDesk& desk);

/// mnuItemPowerCalc. The design in hand is the first calculation; nothing comes back to it.
void OpenPowerCalculator(const PowerDesk& desk);

}  // namespace tarnwick
