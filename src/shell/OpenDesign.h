#pragma once

#include <string>
#include <string_view>

#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "model/modSettings.h"
#include "platform/Messages.h"
#include "window/Viewport.h"

namespace tarnwick {

inline constexpr std::string_view UntitledName = "untitled.bsw";

/// The one design that is open, its drawing, and how it is looked at. A program without a design does not
/// exist: the blank one is a design too.
///
/// Whether it has changed is never stored; it is the answer of SameSaw at the moment of asking.
struct OpenDesign {
  BandSaw Saw;       // the working copy: everything reads and changes this one
  BandSaw SawEdit;   // as the last editor left it; its Cancel goes back to it
  BandSaw SawSaved;  // as last read from a file or written to one

  std::string FileName{UntitledName};  // without folder
  std::string SawDir;                  // folder of it, with its trailing separator; empty before any

  EntityList Lines;  // the drawing of the whole band
  Viewport View;
  CalculationSettings Settings;

  [[nodiscard]] std::string Caption() const { return FileName + " - Tarnwick"; }

  /// A blank design in place of the one at hand. File name and saved state stay; the view stays too.
  void ClearSaw();

  /// Works the drawing out anew, and the scale that zooming is limited by. `Saw` comes back corrected.
  void Recalculate(Messages& messages);

  /// Opens the design `name` in the folder `folder` without any question, in true size.
  /// A file that is refused has shown its message, and leaves a blank, unnamed design.
  /// @return whether there is a design now
  bool OpenNamedFile(const std::string& name, const std::string& folder, Messages& messages);

  /// The same for a path. One that does not split into folder and name (a name without a dot) is refused.
  bool OpenPath(const std::string& path, Messages& messages);

  // Commands of the view that look at the design. True: redraw.
  bool ViewAll();
  bool ViewOneToOne();
  bool ViewSegment();
};

}  // namespace tarnwick
