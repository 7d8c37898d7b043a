#include "shell/OpenDesign.h"

#include "geometry/modTooth.h"
#include "model/modZoom.h"
#include "shell/modString.h"
#include "store/modSave.h"

namespace tarnwick {

void OpenDesign::ClearSaw() {
  Saw = {};
  Lines = {};
}

void OpenDesign::Recalculate(Messages& messages) {
  Lines = CalculateSaw(Saw, Settings, messages);
  View.FitScale(ComputeExtents(Lines));
}

bool OpenDesign::OpenNamedFile(const std::string& name, const std::string& folder, Messages& messages) {
  FileName = name;
  SawDir = AddBackslash(folder);
  ClearSaw();
  const bool opened = OpenBandSaw(Saw, SawDir + FileName, messages);
  if (opened) {
    Recalculate(messages);
    ViewOneToOne();
  } else {
    FileName = UntitledName;
  }
  SawEdit = Saw;
  SawSaved = Saw;
  return opened;
}

bool OpenDesign::OpenPath(const std::string& path, Messages& messages) {
  return OpenNamedFile(FileNameOf(path), FolderOf(path), messages);
}

bool OpenDesign::ViewAll() { return View.ViewAll(ComputeExtents(Lines)); }

bool OpenDesign::ViewOneToOne() { return View.ViewOneToOne(Lines.Entities.empty() ? nullptr : &Saw); }

bool OpenDesign::ViewSegment() { return View.ViewSegment(Saw); }

}  // namespace tarnwick
