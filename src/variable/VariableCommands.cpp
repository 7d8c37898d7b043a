#include "variable/VariableCommands.h"

#include <utility>

#include "platform/Clock.h"
#include "shell/ProgramQuestions.h"
#include "variable/modVariable.h"
#include "window/KeptChanges.h"

namespace tarnwick {
namespace {

std::string StyleRefusal(int toothStyle) {
  switch (toothStyle) {
    case NarrowStyle:
      return "Variable pitch not available with the Narrow style tooth shape.";
    case OShape:
      return "Variable pitch not available with the O shape tooth shape.";
    default:
      return "Variable pitch not available with this tooth shape.";
  }
}

}  // namespace

VariableCommands::VariableCommands(Program& program, DialogHost& host, MainView& view)
    : program_(program), host_(host), view_(view), editor_(program.Design, [this] { Recalculate(); }) {}

Questions VariableCommands::Asking() const { return QuestionsOf(program_, host_); }

void VariableCommands::Recalculate() {
  program_.Design.Recalculate(program_.Out.Say);
  view_.DrawSaw();
}

/// The state that the last editor accepted, with its units.
void VariableCommands::Restore() {
  RestoreAccepted(program_.Design, view_);
  Recalculate();
}

// ---- opening

void VariableCommands::Tell(std::string text) { program_.Out.Say.Show({.Text = std::move(text)}); }

bool VariableCommands::CanBeVariable() {
  const BandSaw& saw = program_.Design.Saw;
  switch (CanUseVariablePitch(saw.ToothStyle, saw.NumTeeth)) {
    case VariablePitchAnswer::Allowed:
      return true;
    case VariablePitchAnswer::StyleNotAllowed:
      Tell(StyleRefusal(saw.ToothStyle));
      break;
    case VariablePitchAnswer::TeethNotDivisible:
      Tell("Number of teeth must be divisible by 3, 4, or 5.");  // 6 and 7 will do too: the words are its own
      break;
  }
  return false;
}

void VariableCommands::OpenVariable() {
  OpenDesign& design = program_.Design;
  if (design.Saw.ContainsInfo.Teeth == False) {
    program_.Out.Say.Show(
        {.Title = "Variable Pitch", .Text = "Bandsaw must have teeth before adjusting pitch!"});
    return;
  }
  const BandSaw shown = design.Saw;
  if (!KeepsOrRestores(program_, view_, ChangedQuestion(Button::No))) return;
  if (view_.CurrentPanel() == Panel::Variable) {
    if (!SameSaw(shown, design.Saw)) Fill();  // back at the last OK, and so is the panel
    return;
  }
  if (!CanBeVariable()) return;
  design.SawEdit = design.Saw;
  Fill();
  view_.ShowPanel(Panel::Variable);
}

void VariableCommands::Fill() {
  editor_.FillFromRecord();
  view_.FillBoxes();
}

// ---- leaving

void VariableCommands::PressVariableOk() {
  OpenDesign& design = program_.Design;
  Pause(program_.Out.Time);
  view_.ShowPanel(Panel::Main);
  design.SawEdit = design.Saw;
  view_.ShowSawInfo();
  if (design.View.Scale() == 1) design.ViewAll();
  view_.DrawSaw();
}

void VariableCommands::PressVariableCancel() {
  Pause(program_.Out.Time);
  view_.ShowPanel(Panel::Main);
  Restore();
  view_.ShowSawInfo();
}

// ---- the controls

void VariableCommands::PressVariableReset() {
  Pause(program_.Out.Time);
  editor_.PressReset();
  view_.FillBoxes();
}

void VariableCommands::ChooseEntry(int entry) {
  editor_.ChooseEntry(entry);
  view_.FillBoxes();
}

void VariableCommands::ClickPattern(int index) {
  editor_.ClickPattern(index);
  view_.FillBoxes();
}

void VariableCommands::TickVarDepth(bool ticked) {
  editor_.TickVarDepth(ticked);
  view_.FillBoxes();
}

void VariableCommands::ClickPitch(int k) {
  editor_.ClickPitch(k, Asking());
  view_.FillBoxes();
}

void VariableCommands::ClickDepth(int k) {
  editor_.ClickDepth(k, Asking());
  view_.FillBoxes();
}

// ---- following the design

void VariableCommands::ResetVariable() {
  editor_.ResetVariable();
  view_.FillBoxes();
}

void VariableCommands::FollowDesign() {
  if (!editor_.IsFilled) return;
  const BandSaw& saw = program_.Design.Saw;
  const bool never = saw.ToothStyle == NarrowStyle || saw.ToothStyle == OShape;
  if (never || saw.ContainsInfo.Teeth == False) return ResetVariable();
  const bool isOtherBand = editor_.NumTeeth != saw.NumTeeth || editor_.AveragePitch != saw.Pitch;
  if (isOtherBand && view_.CurrentPanel() == Panel::Variable) editor_.FillFromRecord();
}

}  // namespace tarnwick
