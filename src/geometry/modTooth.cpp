#include "geometry/modTooth.h"

#include "geometry/modBand.h"
#include "geometry/modOneTooth.h"
#include "geometry/modPitch.h"
#include "geometry/modToothFamily.h"
#include "geometry/modToothMoves.h"
#include "variable/modVariable.h"

namespace tarnwick {
namespace {

/// Are the style's measures all there. A number without a style counts as complete with a gullet radius.
bool IsComplete(const BandSaw& saw) {
  const ToothFamily* family = FamilyOf(saw.ToothStyle);
  return family != nullptr ? family->IsComplete(saw.GulletInfo) : saw.GulletInfo.Radius > 0;
}

/// The band length always wins: a typed pitch becomes the nearest one that divides the band into whole teeth.
void SettlePitch(BandSaw& saw, const PlaneKit& kit) {
  if (saw.Pitch > 0) Let(saw.NumTeeth) = Quotient(saw.Length * InchesPerFoot, saw.Pitch) + 0.5;
  saw.Pitch = PitchFromLength(kit, saw.Length, saw.NumTeeth);
}

/// A width that was not given is estimated from the gullet; a given one is widened to hold it.
void SettleWidth(BandSaw& saw) {
  const BandSaw::Gullet& gullet = saw.GulletInfo;
  if (saw.Width > 0) {
    const Checked held = gullet.Depth * 1.1;
    if (held.OrZero() > saw.Width) Let(saw.Width) = held;
  } else if (gullet.Depth > 0) {
    Let(saw.Width) = gullet.Depth * 3;
  } else if (gullet.Radius > 0) {
    Let(saw.Width) = gullet.Radius * 6;
  } else if (gullet.Radius2 > 0) {
    Let(saw.Width) = gullet.Radius2 * 6;
  } else {
    saw.Width = 2;
  }
}

/// Narrow and O teeth cannot be variable.
void DropVariablePitch(BandSaw& saw) {
  const bool never = saw.ToothStyle == NarrowStyle || saw.ToothStyle == OShape;
  if (never && saw.GeneralInfo.VariablePitch != False) ResetVariablePitch(saw);
}

/// The way that band and segment have in common: settles pitch and width and calculates the one tooth, as the
/// first of `teeth`. False when the measures are not all there.
bool CalculateFirstTooth(BandSaw& saw, const PlaneKit& kit, bool complete, Teeth& teeth, Messages& messages) {
  saw.GulletInfo.FaceLength = 0;
  DropVariablePitch(saw);
  SettlePitch(saw, kit);
  if (!complete) return false;
  SettleWidth(saw);
  teeth.resize(1);
  ToothWork work{saw, teeth.front(), kit, messages};
  CalculateTooth(work);
  return true;
}

}  // namespace

EntityList CalculateSaw(BandSaw& saw, const CalculationSettings& settings, Messages& messages) {
  if (saw.NumTeeth < 0) return {};  // no room can be made for such teeth, and nothing is touched
  const PlaneKit kit(settings.DecimalPlaces);
  Teeth teeth;
  if (!CalculateFirstTooth(saw, kit, IsComplete(saw), teeth, messages)) return {};
  if (saw.GeneralInfo.VariablePitch != False) {
    LayOutVariableBand(kit, saw, teeth, settings, messages);
  } else {
    LayOutBand(kit, saw, teeth, settings);
  }
  RoundTooth(kit, teeth.front());
  return BuildBandEntities(kit, saw, teeth);
}

EntityList CalculateSegment(BandSaw& saw, const CalculationSettings& settings, Messages& messages) {
  if (saw.NumTeeth < 0) return {};
  const PlaneKit kit(settings.DecimalPlaces);
  Teeth teeth;
  // A segment of Frost teeth asks for the plain radius, as styles without a row do: meant.
  const bool complete = saw.ToothStyle == FrostTooth ? saw.GulletInfo.Radius > 0 : IsComplete(saw);
  if (!CalculateFirstTooth(saw, kit, complete, teeth, messages)) return {};
  LayOutVariableSegment(kit, saw, teeth, settings, messages);
  RoundTooth(kit, teeth.front());
  return BuildSegmentEntities(kit, teeth, saw.GeneralInfo.NumVariables + 2);
}

}  // namespace tarnwick
