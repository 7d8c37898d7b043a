#pragma once

#include "geometry/modToothWork.h"

namespace tarnwick {

/// The largest back angle, in degrees, that clears the next tip: the tangent from there to the last gullet
/// arc, kept clear by one per cent of its angle.
[[nodiscard]] double BackAngleLimit(const ToothWork& work, const ToothArc& lastArc);

/// The back: tangent to the end of `arc`, drawn long on purpose, so that the top line can cut it.
/// `radiusField` is the measure that the arc was made from.
void PlaceBackLine(ToothWork& work, const ToothArc& arc, double radiusField);

/// The top: from the next tip back down the clearance angle, a full pitch long before it meets the back. Then
/// the gullet area. Nothing when the band has no teeth.
void PlaceTopLine(ToothWork& work);

/// The tip of the next tooth, a pitch further on.
[[nodiscard]] Point NextTip(const ToothWork& work);

/// For the styles whose top falls straight to the gullet: its direction is the clearance angle.
void TakeClearanceFromTop(ToothWork& work);

/// Makes back and top meet in a fillet of BackArc.Radius, or sharply with radius 0. A radius that the back
/// cannot hold is taken down, by 0.1 where the lines do not meet and by 0.025 where the fillet runs past the
/// start of the back, until it fits; what is left of it stays in BackArc.Radius. Changes BackArc,
/// BackLine.End and TopLine.Start alone.
void FitBackRadius(ToothProfile& tooth, const PlaneKit& kit);

}  // namespace tarnwick
