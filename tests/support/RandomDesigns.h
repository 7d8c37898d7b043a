#pragma once

#include <cstdint>
#include <random>

#include "model/modBandSaw.h"
#include "model/modSettings.h"

namespace tarnwick::test {

/// The same numbers from the same seed, whatever library they are drawn with.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine_(seed) {}

  double Between(double low, double high) {
    return low + (high - low) * (static_cast<double>(engine_() >> 11) * 0x1p-53);
  }
  int Whole(int low, int high) {
    return low + static_cast<int>(engine_() % static_cast<std::uint64_t>(high - low + 1));
  }
  bool Chance(double share) { return Between(0, 1) < share; }
  template <class Value, std::size_t count>
  Value Choice(const Value (&values)[count]) {
    return values[Whole(0, static_cast<int>(count) - 1)];
  }

 private:
  std::mt19937_64 engine_;
};

inline constexpr std::int16_t AllStyles[] = {SquareBack, RoundBack,   DoubleRadius, TripleRadius,
                                             FlatBottom, NarrowStyle, OShape,       FrostTooth};

/// A band of 4 to 12 teeth that somebody could order: measures in the proportions that such teeth have.
inline BandSaw PlausibleDesign(Dice& dice, std::int16_t style) {
  BandSaw saw;
  saw.ToothStyle = style;
  const double pitch = dice.Between(1.5, 2.5);
  saw.NumTeeth = static_cast<std::int16_t>(dice.Whole(4, 12));
  saw.Length = saw.NumTeeth * pitch / 12;
  saw.Width = dice.Between(4, 12);
  if (dice.Chance(0.3)) saw.TipClear = dice.Between(0.01, 0.06);
  saw.HookAngle = dice.Between(10, 30);
  saw.ClearAngle = dice.Between(8, 16);
  if (dice.Chance(0.4)) saw.SeatInfo = {True, dice.Between(0.02, 0.06), dice.Between(0.08, 0.16)};
  BandSaw::Gullet& gullet = saw.GulletInfo;
  gullet.Depth = pitch * dice.Between(0.3, 0.45);
  gullet.BackAngle = dice.Between(5, 20);
  if (dice.Chance(0.4)) gullet.BackRadius = pitch * dice.Between(0.05, 0.2);
  const double wide = pitch * dice.Between(0.4, 0.6);
  if (dice.Chance(0.4)) gullet.Width = style == OShape ? wide * 0.75 : wide;
  switch (style) {
    case DoubleRadius:
      gullet.Radius2 = pitch * dice.Between(0.2, 0.35);
      gullet.Radius1 = gullet.Radius2 * dice.Between(0.3, 0.5);
      break;
    case TripleRadius:
      gullet.Radius2 = pitch * dice.Between(0.3, 0.5);
      gullet.Radius1 = gullet.Radius2 * dice.Between(0.15, 0.25);
      gullet.Radius3 = gullet.Radius2 * dice.Between(0.3, 0.7);
      break;
    case FlatBottom:
      gullet.Radius2 = pitch * dice.Between(0.15, 0.22);
      gullet.Radius1 = gullet.Radius2 * dice.Between(0.6, 1);
      gullet.BottomAngle = dice.Chance(0.5) ? 0 : dice.Between(1, 10);
      break;
    case OShape:
      gullet.Radius1 = pitch * dice.Between(0.12, 0.2);
      break;
    case FrostTooth:
      gullet.Radius = gullet.Radius1 = pitch * dice.Between(0.1, 0.16);
      if (dice.Chance(0.6)) gullet.Radius2 = pitch * dice.Between(0.22, 0.3);
      if (gullet.Radius2 > 0 && dice.Chance(0.5)) {
        gullet.Radius2 = pitch * dice.Between(0.3, 0.4);
        gullet.Radius1 = gullet.Radius2 * 0.25;
        gullet.Radius3 = gullet.Radius2 * dice.Between(0.3, 0.6);
      }
      gullet.FrostRadius = dice.Between(0.03937, 0.06);
      gullet.FrostAngle = dice.Between(20, 30);
      gullet.FrostHeight = gullet.FrostRadius * dice.Between(2, 3) + saw.SeatInfo.Height;
      gullet.FrostWidth = gullet.FrostRadius * dice.Between(2.2, 3);
      break;
    default:
      gullet.Radius = pitch * dice.Between(0.15, 0.22);
      break;
  }
  return saw;
}

/// Makes a band of segments of `n` teeth out of `saw`: pitches up to a tenth either way, which together are
/// as long as n average ones, and depths likewise when asked for. The back is held clear of a tip that comes
/// nearer.
inline void MakeVariable(Dice& dice, BandSaw& saw, int n, Flag depths) {
  const double pitch = saw.Length * 12 / saw.NumTeeth;
  saw.NumTeeth = static_cast<std::int16_t>(n * dice.Whole(1, 3));
  saw.Length = saw.NumTeeth * pitch / 12;
  saw.GulletInfo.BackAngle *= 0.5;
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = static_cast<std::int16_t>(n);
  saw.GeneralInfo.VariableDepth = depths;
  double shares[7], sum = 0;
  for (int k = 0; k < n; ++k) sum += shares[k] = dice.Between(0.93, 1.07);
  for (int k = 0; k < n; ++k) {
    const auto i = static_cast<std::size_t>(k);
    saw.GeneralInfo.VarPitch[i] = n * pitch * shares[k] / sum;
    if (depths != False) saw.GeneralInfo.VarDepth[i] = saw.GulletInfo.Depth * dice.Between(0.9, 1.15);
  }
}

}  // namespace tarnwick::test
