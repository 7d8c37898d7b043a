#include "window/KeptChanges.h"

namespace tarnwick {

Box ChangedQuestion(Button byDefault) {
  return {.Title = "Changed",
          .Text = "Bandsaw has been changed!\nDo you wish to keep the existing changes?\n",
          .Offer = Buttons::YesNoCancel,
          .Shown = Icon::Question,
          .Default = byDefault};
}

void RestoreAccepted(OpenDesign& design, MainView& view) {
  design.Saw = design.SawEdit;
  design.ImpMetric = design.Saw.ImpMetric;
  view.ShowUnits();
}

bool KeepsOrRestores(Program& program, MainView& view, const Box& question) {
  OpenDesign& design = program.Design;
  if (SameSaw(design.Saw, design.SawEdit)) return true;
  switch (program.Out.Say.Show(question)) {
    case Button::Yes:
      return true;
    case Button::No:
      RestoreAccepted(design, view);
      design.Recalculate(program.Out.Say);
      view.DrawSaw();
      view.FillBoxes();
      view.ShowSawInfo();
      return true;
    case Button::Ok:
    case Button::Cancel:
      break;
  }
  return false;
}

}  // namespace tarnwick
