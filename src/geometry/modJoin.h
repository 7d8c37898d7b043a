#pragma once

#include "geometry/modBandTeeth.h"
#include "geometry/modToothFamily.h"

namespace tarnwick {

/// What each end of the band laps over, in inches: half of (ten plate thicknesses + 1/8) for an overlap join,
/// else 0.
[[nodiscard]] double JoinAllowance(const PlaneKit& kit, const BandSaw& saw);

/// Half the way from a tooth's tip to the next one, in inches; 0 on failure.
[[nodiscard]] double HalfPitchOf(const ToothProfile& tooth);

/// Cuts the ends of the band: finds where a line square to the band, through the middle of the tooth, meets
/// the first tooth and the one at `last`, notes the join points, and trims the two teeth. A cut that meets
/// nothing leaves its tooth whole.
void JoinBand(const PlaneKit& kit, const BandSaw& saw, BandTeeth& teeth, int last);

/// The element of `tooth` that `cut` meets first, in the order of the style; the crossing goes into
/// cut.Start. None: the cut stays.
[[nodiscard]] JoinElement FindJoinElement(const PlaneKit& kit, ToothLine& cut, const ToothProfile& tooth);

/// Takes away what lies before the join on the first tooth: `point` is where the cut met `element`.
void TrimToothStart(const PlaneKit& kit, ToothProfile& tooth, Point point, JoinElement element);
/// Takes away what lies behind the join on the last tooth.
void TrimToothEnd(const PlaneKit& kit, ToothProfile& tooth, Point point, JoinElement element);

}  // namespace tarnwick
