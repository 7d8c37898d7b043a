#pragma once

#include "model/modBandSaw.h"
#include "power/modPower.h"

namespace tarnwick {

// The power figures of a design, one step each, every step from the record into the record. They depend on
// each other in the order in which they stand here; a screen that changed one measure takes the steps behind
// it.

/// DesignInfo.SawVelocity from the wheel and its speed. The wheel's diameter goes in as it is printed:
/// through its decimal text and back.
void UpdateSawVelocity(BandSaw& saw);

/// GeneralInfo.SideClear from plate and kerf.
void UpdateSideClear(BandSaw& saw, int places);

/// GulletInfo.Bite from feed rate, pitch and tooth speed.
void UpdateBite(BandSaw& saw, int places);

/// GulletInfo.Capacity, the required one, from bite and depth of cut.
void UpdateCapacity(BandSaw& saw, int places);

/// GeneralInfo.HorsePower from wood, kerf, feed rate and depth of cut. It does not depend on the speed.
void UpdateHorsePower(BandSaw& saw, int places);

/// DesignInfo.MaxFeedRate from depth of cut, gullet area, pitch and tooth speed.
void UpdateMaxFeedRate(BandSaw& saw, const PowerSettings& settings);

/// All six steps in their order: a whole power calculation.
void UpdatePower(BandSaw& saw, const PowerSettings& settings);

}  // namespace tarnwick
