#pragma once

#include <string>
#include <string_view>

#include "entry/modFormat.h"
#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "platform/Messages.h"
#include "store/modCfg.h"
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

  std::string FileName{UntitledName};  // without folder; the folder is SawDir()

  EntityList Lines;  // the drawing of the whole band
  Viewport View;

  Config Settings;  // the program's own, the one copy there is

  /// The unit system now in force, a UnitSystem. It follows the design: a file brings its own, a new design
  /// takes the one of the settings.
  std::int16_t ImpMetric = Imperial;

  /// The design was saved on the way to something else: the caption says so until the next command writes it.
  bool Viewer = false;

  [[nodiscard]] std::string Caption() const { return FileName + " - Tarnwick" + (Viewer ? " Viewer" : ""); }

  /// Folder of the design, with its trailing separator. The settings keep it till the next day.
  [[nodiscard]] const std::string& SawDir() const { return Settings.CurrentSawDir; }

  [[nodiscard]] DisplayFormat Format() const {
    return {ImpMetric, Settings.Calculation.DisplayPlaces, Settings.Calculation.DecimalPlaces};
  }

  /// The unit system of a new design, for the design at hand.
  void ResetUnits();

  /// A blank design in place of the one at hand. File name and saved state stay; the view stays too.
  void ClearSaw();

  /// What is shown is what was saved and what the last editor accepted: nothing has changed.
  void KeepAsSaved();

  /// Brings the settings of the screen into force.
  void ApplySettings();

  /// Works the drawing out anew, and the scale that zooming is limited by. `Saw` comes back corrected.
  void Recalculate(Messages& messages);

  /// Reads the design that FileName and SawDir() name, in true size. What there is to be told has been shown.
  /// @return false for a file that is refused; `Saw` is blank then
  bool ReadFile(Messages& messages);

  // Commands of the view that look at the design. True: redraw.
  bool ViewAll();
  bool ViewOneToOne();
  bool ViewSegment();
};

}  // namespace tarnwick
