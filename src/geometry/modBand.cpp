#include "geometry/modBand.h"

#include "geometry/modJoin.h"
#include "geometry/modToothMoves.h"

namespace tarnwick {

std::size_t TeethOnAllEdges(int last, bool bothEdges) {
  return last < 0 ? 1 : (bothEdges ? 2U : 1U) * (static_cast<std::size_t>(last) + 1);
}

BandTeeth LayOutBand(const PlaneKit& kit, const BandSaw& saw, ToothProfile first,
                     const CalculationSettings& settings) {
  const int last = saw.NumTeeth;
  const bool bothEdges = first.BothEdges != False;
  TranslateTooth(kit, first, first, JoinAllowance(kit, saw) - HalfPitchOf(first), 0);
  // The first tooth goes through the move by nothing too, and the others start from what that made of it.
  if (last >= 0) TranslateTooth(kit, first, first, 0, 0);

  BandTeeth teeth(kit, Teeth(1, first));
  teeth.Reserve(TeethOnAllEdges(last, bothEdges));
  for (int i = 1; i <= last; ++i) teeth.Repeat(static_cast<std::size_t>(i), 0, saw.Pitch * i);

  JoinBand(kit, saw, teeth, last);
  if (settings.TeethDirection == RightToLeft) MirrorBandX(teeth, last);
  if (bothEdges) AddOtherEdge(teeth, last);
  return teeth;
}

void MirrorBandX(BandTeeth& teeth, int last) {
  if (last < 0) return;
  const auto n = static_cast<std::size_t>(last);
  teeth.TurnAround(n, teeth.Tooth(n).JoinPoint.X);
}

void AddOtherEdge(BandTeeth& teeth, int last) {
  if (last >= 0) teeth.AddOtherEdge();
}

}  // namespace tarnwick
