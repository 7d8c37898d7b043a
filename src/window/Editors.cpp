#include "window/Editors.h"

#include "power/modPower.h"
#include "shell/ProgramQuestions.h"
#include "shell/modString.h"
#include "window/KeptChanges.h"
#include "window/modBoxRules.h"
#include "window/modSelect.h"

namespace tarnwick {
Questions Editors::Asking() const { return QuestionsOf(program_, host_); }

void Editors::Recalculate() {
  program_.Design.Recalculate(program_.Out.Say);
  view_.DrawSaw();
}

void Editors::Restore() { RestoreAccepted(program_.Design, view_); }

// ---- leaving an editor by the menu

bool Editors::MayLeave() { return KeepsOrRestores(program_, view_, ChangedQuestion(Button::Cancel)); }

void Editors::OpenMain() {
  if (!MayLeave() || view_.CurrentPanel() == Panel::Main) return;
  view_.ShowSawInfo();
  Pause(program_.Out.Time);
  view_.ShowPanel(Panel::Main);
  program_.Design.SawEdit = program_.Design.Saw;
}

void Editors::OpenGeneral() {
  if (!MayLeave() || view_.CurrentPanel() == Panel::General) return;
  Pause(program_.Out.Time);
  view_.ShowStatus("", "");
  program_.Design.SawEdit = program_.Design.Saw;
  view_.FillBoxes();
  view_.ShowPanel(Panel::General);
}

void Editors::OpenToothShape() {
  if (!MayLeave() || view_.CurrentPanel() == Panel::ToothShape) return;
  OpenDesign& design = program_.Design;
  design.SawEdit = design.Saw;
  view_.ShowStatus("", "");
  Pause(program_.Out.Time);
  if (design.View.Scale() != 1) design.ViewOneToOne();
  view_.DrawSaw();
  view_.FillBoxes();
  view_.ShowPanel(Panel::ToothShape);
}

// ---- OK and Cancel, in the order of each

void Editors::PressGeneralOk() {
  OpenDesign& design = program_.Design;
  Pause(program_.Out.Time);
  BandSaw::General& general = design.Saw.GeneralInfo;
  general.SideClear =
      CalcSideClear(general.PlateThick, general.Kerf, design.Settings.Calculation.DecimalPlaces);
  design.SawEdit = design.Saw;
  view_.ShowPanel(Panel::Main);
  Recalculate();
  view_.ShowSawInfo();
}

void Editors::PressGeneralCancel() {
  Pause(program_.Out.Time);
  Restore();
  view_.ShowPanel(Panel::Main);
  Recalculate();
  view_.ShowSawInfo();
}

void Editors::PressToothOk() {
  Pause(program_.Out.Time);
  view_.ShowPanel(Panel::Main);
  view_.ShowSawInfo();
  program_.Design.SawEdit = program_.Design.Saw;
  Recalculate();
}

void Editors::PressToothCancel() {
  Pause(program_.Out.Time);
  Restore();
  program_.Design.Recalculate(program_.Out.Say);  // twice, as the last digit of a measure may take it
  Recalculate();
  view_.ShowSawInfo();
  view_.ShowPanel(Panel::Main);
}

// ---- boxes

/// After an accepted value: the calculation may have corrected its neighbours, so all boxes show the record
/// anew.
void Editors::TakeAccepted() {
  Recalculate();
  view_.FillBoxes();
}

bool Editors::ClickBox(const PanelField& field) {
  BandSaw& saw = program_.Design.Saw;
  bool accepted = false;
  switch (field.Act) {
    case BoxAct::Ask:
      if (ToothBoxState(field, saw.ToothStyle, saw.SeatInfo.State != False) != BoxState::Clickable) break;
      accepted = Asking().Ask(field.Asked, saw);
      if (accepted) ApplyBoxRule(field.Asked, saw, program_.Design.Settings.Calculation.DecimalPlaces);
      break;
    case BoxAct::AskSeat:
      accepted = Asking().AskSeat(saw.SeatInfo.State);
      break;
    case BoxAct::MustUse:
      view_.ShowStatus(NumberedText(field.Text), "");
      break;
    case BoxAct::Type:
    case BoxAct::Tick:
    case BoxAct::ReadOnly:
      break;
  }
  if (accepted) TakeAccepted();
  return accepted;
}

void Editors::TypeInto(const PanelField& field, std::string_view text) {
  BandSaw& saw = program_.Design.Saw;
  const DisplayFormat format = program_.Design.Format();
  const std::string before = field.Shown(saw, format);
  if (before == text) return;
  field.Take(saw, text);
  if (field.Shown(saw, format) != before) saw.ContainsInfo.General = True;
}

void Editors::TickBothEdges(bool ticked) {
  BandSaw& saw = program_.Design.Saw;
  if ((saw.BothEdges != False) == ticked) return;
  saw.BothEdges = ticked ? True : False;
  saw.ContainsInfo.General = True;
  TakeAccepted();
}

// ---- quick click

void Editors::PressRow(const InfoRow& row) {
  BandSaw& saw = program_.Design.Saw;
  const RowAct act = ActOfRow(row.Code, saw.ToothStyle);
  bool accepted = false;
  switch (act.Act) {
    case BoxAct::Ask:
      accepted = Asking().Ask(act.Asked, saw);
      if (accepted) ApplyRowRule(act.Asked, saw, program_.Design.Settings.Calculation.DecimalPlaces);
      break;
    case BoxAct::AskSeat:
      accepted = Asking().AskSeat(saw.SeatInfo.State);
      break;
    case BoxAct::MustUse:
      view_.ShowStatus(NumberedText(act.MustUse), "");
      break;
    case BoxAct::Type:
    case BoxAct::Tick:
    case BoxAct::ReadOnly:
      break;
  }
  if (!accepted) return;
  Recalculate();
  view_.ShowSawInfo();
}

// ---- units

void Editors::SetUnits(std::int16_t impMetric) {
  program_.Design.ImpMetric = impMetric;
  program_.Design.Saw.ImpMetric = impMetric;
  view_.ShowSawInfo();
  view_.FillBoxes();
}

}  // namespace tarnwick
