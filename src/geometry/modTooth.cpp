#include "geometry/modTooth.h"

#include <optional>
#include <utility>

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

/// The way that band and segment have in common: settles pitch and width and calculates the one tooth. None
/// when the measures are not all there.
std::optional<ToothProfile> CalculateFirstTooth(BandSaw& saw, const PlaneKit& kit, bool complete,
                                                Messages& messages) {
  saw.GulletInfo.FaceLength = 0;
  DropVariablePitch(saw);
  SettlePitch(saw, kit);
  if (!complete) return {};
  SettleWidth(saw);
  ToothProfile tooth;
  ToothWork work{saw, tooth, kit, messages};
  CalculateTooth(work);
  return tooth;
}

/// Of the teeth that stand in a band, the first alone is rounded once more.
void RoundFirstTooth(const PlaneKit& kit, BandTeeth& teeth) {
  ToothProfile first = teeth.Tooth(0);
  RoundTooth(kit, first);
  teeth.SetTooth(0, first);
}

}  // namespace

EntityList CalculateSaw(BandSaw& saw, const CalculationSettings& settings, Messages& messages,
                        EntityList list) {
  list.Clear();
  if (saw.NumTeeth < 0) return list;  // no room can be made for such teeth, and nothing is touched
  const PlaneKit kit(settings.DecimalPlaces);
  const auto tooth = CalculateFirstTooth(saw, kit, IsComplete(saw), messages);
  if (!tooth) return list;
  BandTeeth teeth = saw.GeneralInfo.VariablePitch != False
                        ? LayOutVariableBand(kit, saw, *tooth, settings, messages)
                        : LayOutBand(kit, saw, *tooth, settings);
  RoundFirstTooth(kit, teeth);
  return BuildBandEntities(kit, saw, teeth, std::move(list));
}

EntityList CalculateSegment(BandSaw& saw, const CalculationSettings& settings, Messages& messages) {
  if (saw.NumTeeth < 0) return {};
  const PlaneKit kit(settings.DecimalPlaces);
  // A segment of Frost teeth asks for the plain radius, as styles without a row do: meant.
  const bool complete = saw.ToothStyle == FrostTooth ? saw.GulletInfo.Radius > 0 : IsComplete(saw);
  const auto tooth = CalculateFirstTooth(saw, kit, complete, messages);
  if (!tooth) return {};
  BandTeeth teeth = LayOutVariableSegment(kit, saw, *tooth, settings, messages);
  RoundFirstTooth(kit, teeth);
  return BuildSegmentEntities(kit, teeth, saw.GeneralInfo.NumVariables + 2);
}

}  // namespace tarnwick
