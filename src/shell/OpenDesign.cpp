#include "shell/OpenDesign.h"

#include <utility>

#include "geometry/modTooth.h"
#include "model/modZoom.h"
#include "store/modPath.h"
#include "store/modSave.h"

namespace tarnwick {

void OpenDesign::ResetUnits() {
  ImpMetric = Settings.MainImpMetric;
  Saw.ImpMetric = ImpMetric;
}

void OpenDesign::ClearSaw() {
  Saw = {};
  ResetUnits();
  Lines = {};
}

void OpenDesign::KeepAsSaved() {
  SawEdit = Saw;
  SawSaved = Saw;
}

void OpenDesign::ApplySettings() {
  View.SetCalibration(Settings.Display.DisplayScale, Settings.Calculation.DecimalPlaces);
}

void OpenDesign::Recalculate(Messages& messages) {
  Lines = CalculateSaw(Saw, Settings.Calculation, messages, std::move(Lines));
  View.FitScale(ComputeExtents(Lines));
}

bool OpenDesign::ReadFile(Messages& messages) {
  ClearSaw();
  if (!OpenBandSaw(Saw, FilePath(SawDir() + FileName), messages)) return false;
  ImpMetric = Saw.ImpMetric;
  Recalculate(messages);
  ViewOneToOne();
  KeepAsSaved();
  return true;
}

bool OpenDesign::ViewAll() { return View.ViewAll(ComputeExtents(Lines)); }

bool OpenDesign::ViewOneToOne() { return View.ViewOneToOne(Lines.Entities.empty() ? nullptr : &Saw); }

bool OpenDesign::ViewSegment() { return View.ViewSegment(Saw); }

}  // namespace tarnwick
