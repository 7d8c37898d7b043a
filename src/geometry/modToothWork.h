#pragma once

#include "geometry/modToothProfile.h"
#include "geometry/modTrig.h"
#include "model/modBandSaw.h"

namespace tarnwick {

class Messages;

/// One tooth under calculation: what every step of it works on.
///
/// The steps read the measures of `Saw` and correct them there, and place the pieces of `Tooth`. A step that
/// fails in one statement goes on with the next; see Checked.
struct ToothWork {
  BandSaw& Saw;
  ToothProfile& Tooth;
  const PlaneKit& Kit;
  Messages& Say;

  [[nodiscard]] double Hook() const { return Saw.HookAngle; }
  [[nodiscard]] Point Tip() const { return Tooth.FaceLine.Start; }
  [[nodiscard]] bool HasSeat() const { return Saw.SeatInfo.State != False; }
  /// Height of the tip above the back edge of the band.
  [[nodiscard]] double TipHeight() const { return Checked(Saw.Width - Saw.TipClear).OrZero(); }
};

}  // namespace tarnwick
