#pragma once

#include "model/modBandSaw.h"

namespace tarnwick {

/// Whole designs that go to the windows of power and machine, and come back from them.
struct Transfer {
  BandSaw TransferSaw;  // what the window works on, and gives back on OK
  BandSaw TransferOld;  // as it went there
};

/// Ahead of opening such a window.
[[nodiscard]] Transfer BeginTransfer(const BandSaw& saw);

/// Back from the power editor: the design has a power section once it has a power.
void TakeFromPower(const Transfer& transfer, BandSaw& saw, BandSaw& sawEdit);

/// Back from the band length calculator. Another length takes the number of teeth up anew from the pitch;
/// wheels alone change nothing else. The caller calculates.
void TakeFromBandCalc(Transfer& transfer, BandSaw& saw);

}  // namespace tarnwick
