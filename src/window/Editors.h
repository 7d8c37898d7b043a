#pragma once

#include <string_view>

#include "entry/Questions.h"
#include "shell/Program.h"
#include "window/MainView.h"
#include "window/modDisplay.h"
#include "window/modPanelField.h"

namespace tarnwick {

/// What the panels of the main window do with the open design.
class Editors {
 public:
  Editors(Program& program, DialogHost& host, MainView& view) : program_(program), host_(host), view_(view) {}

  // Menu commands. A changed design is asked about first: keep the changes, or go back to the last OK.
  void OpenMain();
  void OpenGeneral();
  void OpenToothShape();

  void PressGeneralOk();
  void PressGeneralCancel();
  void PressToothOk();
  void PressToothCancel();

  /// A click on a box of a panel; a box that is a result does nothing.
  /// @return whether a value was accepted
  bool ClickBox(const PanelField& field);
  /// The text of a box that is typed into, as it stands now.
  void TypeInto(const PanelField& field, std::string_view text);
  void TickBothEdges(bool ticked);

  /// The quick click on a row of the information panel. What the last editor accepted stays as it was, so the
  /// next editor asks about the change.
  void PressRow(const InfoRow& row);

  /// The unit buttons below the panels: the design is shown in these units from now on, and keeps them.
  void SetUnits(std::int16_t impMetric);

 private:
  [[nodiscard]] Questions Asking() const;
  [[nodiscard]] bool MayLeave();
  void Restore();
  void Recalculate();
  void TakeAccepted();

  Program& program_;
  DialogHost& host_;
  MainView& view_;
};

}  // namespace tarnwick
