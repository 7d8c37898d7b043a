#include "window/modBoxRules.h"

#include <algorithm>

#include "model/modDecim.h"
#include "power/modPower.h"

namespace tarnwick {
namespace {

constexpr double LeastRadius1 = 0.03;
constexpr double LeastRadius3 = 0.03;
constexpr double LeastNotchBeyondRadius = 0.01;
constexpr double LeastLengthForTeeth = 1.0;  // ft
constexpr std::int16_t LeastTeeth = 12;

double LeastRadius2(int toothStyle) {
  switch (toothStyle) {
    case DoubleRadius:
      return 0.1;
    case TripleRadius:
      return 0.375;
    case FlatBottom:
      return 0.125;
    default:
      return -HUGE_VAL;  // none
  }
}

double LengthInInches(const BandSaw& saw) { return saw.Length * InchesPerFoot; }

/// Whole teeth on the band, and the pitch that spreads them evenly.
void SettleTeethByPitch(BandSaw& saw, int places) {
  if (saw.Pitch > 0 && saw.Length > LeastLengthForTeeth) {
    Let(saw.NumTeeth) = Quotient(LengthInInches(saw), saw.Pitch);
    Let(saw.Pitch) = Rounding(places)(Quotient(LengthInInches(saw), saw.NumTeeth));
  }
  saw.Pitch = std::max(saw.Pitch, 0.0);
}

void SettleFrostWidth(BandSaw::Gullet& g) {
  const double least = g.FrostRadius + LeastNotchBeyondRadius;
  if (g.Width > 0 && g.FrostWidth > g.Width) {
    g.FrostWidth = g.Width;
  } else if (least > g.FrostWidth) {
    g.FrostWidth = least;
  }
}

/// The side clearance follows plate and kerf, and what a box of the general information takes is kept.
void SettleGeneral(BandSaw& saw, int places) {
  saw.GeneralInfo.SideClear = CalcSideClear(saw.GeneralInfo.PlateThick, saw.GeneralInfo.Kerf, places);
}

bool IsGeneral(Parameter parameter) {
  return parameter == Parameter::PlateThickness || parameter == Parameter::TipKerf ||
         parameter == Parameter::TipType || parameter == Parameter::JoinStyle;
}

/// What holds for boxes and rows alike.
void ApplyCommonRule(Parameter parameter, BandSaw& saw, int places) {
  if (IsGeneral(parameter)) saw.ContainsInfo.General = True;
  switch (parameter) {
    case Parameter::ToothStyle:
      if (saw.ToothStyle == FrostTooth) FillFrostTooth(saw);
      break;
    case Parameter::Pitch:
      SettleTeethByPitch(saw, places);
      break;
    case Parameter::PlateThickness:
    case Parameter::TipKerf:
      SettleGeneral(saw, places);
      break;
    default:
      break;
  }
}

}  // namespace

void ApplyBoxRule(Parameter parameter, BandSaw& saw, int places) {
  BandSaw::Gullet& g = saw.GulletInfo;
  switch (parameter) {
    case Parameter::FirstGulletRadius:
      g.Radius1 = std::max(g.Radius1, LeastRadius1);
      break;
    case Parameter::SecondGulletRadius:
      g.Radius2 = std::max(g.Radius2, LeastRadius2(saw.ToothStyle));
      break;
    case Parameter::ThirdGulletRadius:
      g.Radius3 = std::max(g.Radius3, saw.ToothStyle == FrostTooth ? 0.0 : LeastRadius3);
      break;
    case Parameter::FrostNotchWidth:
      SettleFrostWidth(g);
      break;
    case Parameter::BandLength:
      saw.Pitch = 0;  // taken up again from the count
      saw.Length = std::max(saw.Length, 0.0);
      break;
    case Parameter::NumTeeth:
      saw.Pitch = 0;
      saw.NumTeeth = std::max(saw.NumTeeth, LeastTeeth);
      break;
    default:
      break;
  }
  ApplyCommonRule(parameter, saw, places);
}

void ApplyRowRule(Parameter parameter, BandSaw& saw, int places) {
  if (parameter == Parameter::BandLength) saw.Pitch = 0;
  if (parameter == Parameter::NumTeeth) {
    if (saw.NumTeeth == 0) {
      saw.Length = 0;
    } else {
      Let(saw.Pitch) = Rounding(places)(Quotient(LengthInInches(saw), saw.NumTeeth));
    }
  }
  ApplyCommonRule(parameter, saw, places);
}

void FillFrostTooth(BandSaw& saw) {
  constexpr double usualAngle = 25;
  constexpr double leastRadius = 0.03937;  // one millimetre
  BandSaw::Gullet& g = saw.GulletInfo;
  if (g.Radius1 <= 0) g.Radius1 = g.Radius;
  if (g.FrostAngle <= 0) g.FrostAngle = usualAngle;
  if (g.FrostRadius <= leastRadius) g.FrostRadius = leastRadius;
  const double across = 2 * g.FrostRadius;
  if (across > g.FrostHeight) g.FrostHeight = across;
  if (across > g.FrostWidth) g.FrostWidth = 2.2 * g.FrostRadius;
}

}  // namespace tarnwick
