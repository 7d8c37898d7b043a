#include "geometry/modTooth.h"

#include "geometry/modBand.h"
#include "geometry/modPitch.h"
#include "geometry/modToothFamily.h"
#include "geometry/modToothMoves.h"
#include "geometry/modToothRounds.h"

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

}  // namespace

EntityList CalculateSaw(BandSaw& saw, const CalculationSettings& settings, Messages& messages) {
  const PlaneKit kit(settings.DecimalPlaces);
  if (saw.NumTeeth < 0) return {};  // no room can be made for such teeth, and nothing is touched
  saw.GulletInfo.FaceLength = 0;
  const bool complete = IsComplete(saw);
  SettlePitch(saw, kit);
  if (!complete) return {};
  SettleWidth(saw);

  Teeth teeth(1);
  ToothWork work{saw, teeth.front(), kit, messages};
  CalculateTooth(work);
  LayOutBand(kit, saw, teeth, settings);
  RoundTooth(kit, teeth.front());
  return BuildBandEntities(kit, saw, teeth);
}

}  // namespace tarnwick
