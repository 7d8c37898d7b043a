#pragma once

#include "entry/DialogHost.h"
#include "shell/Program.h"
#include "variable/VariableEditor.h"
#include "window/MainView.h"

namespace tarnwick {

/// The variable pitch editor as the commands of the main window: opening its panel, what its controls do,
/// and how one leaves it. After everything that may have changed the panel the view is told to fill its
/// boxes.
class VariableCommands {
 public:
  VariableCommands(Program& program, DialogHost& host, MainView& view);

  /// The menu command. A band without teeth, or one that cannot be variable, is told so; a changed design is
  /// asked about first: keep the changes, or go back to the last OK.
  void OpenVariable();

  void PressVariableOk();
  void PressVariableCancel();
  void PressVariableReset();

  // The controls of the panel, see VariableEditor.
  void ChooseEntry(int entry);
  void ClickPattern(int index);
  void TickVarDepth(bool ticked);
  void ClickPitch(int k);
  void ClickDepth(int k);

  /// The panel emptied, for a start and for another design.
  void ResetVariable();

  /// To be told of every other state of the design: without teeth, and with Narrow and O teeth, which are
  /// never variable, the panel is emptied as the record has been. A panel that shows while its band gets
  /// another length is filled anew: its averages, limits and counts would be those of the old one.
  void FollowDesign();

  /// What the panel shows.
  [[nodiscard]] const VariableValues& Values() const { return editor_; }

 private:
  [[nodiscard]] Questions Asking() const;
  [[nodiscard]] bool CanBeVariable();
  void Tell(std::string text);
  void Fill();
  void Restore();
  void Recalculate();

  Program& program_;
  DialogHost& host_;
  MainView& view_;
  VariableEditor editor_;
};

}  // namespace tarnwick
