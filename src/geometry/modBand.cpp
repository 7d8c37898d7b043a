#include "geometry/modBand.h"

#include <utility>

#include "geometry/modJoin.h"
#include "geometry/modToothMoves.h"

namespace tarnwick {

void LayOutBand(const PlaneKit& kit, const BandSaw& saw, Teeth& teeth, const CalculationSettings& settings) {
  const int last = saw.NumTeeth;
  const bool bothEdges = teeth.front().BothEdges != False;
  const std::size_t count = last < 0 ? 1 : static_cast<std::size_t>(last) + 1;
  teeth.reserve(bothEdges ? 2 * count : count);
  teeth.resize(count);

  ToothProfile& first = teeth.front();
  TranslateTooth(kit, first, first, JoinAllowance(kit, saw) - HalfPitchOf(first), 0);
  // The first tooth goes through the move by nothing too, in place, and the others start from what that made
  // of it.
  for (int i = 0; i <= last; ++i)
    TranslateTooth(kit, first, teeth[static_cast<std::size_t>(i)], saw.Pitch * i, 0);

  JoinBand(kit, saw, teeth, last);
  if (settings.TeethDirection == RightToLeft) MirrorBandX(kit, teeth, last);
  if (bothEdges) AddOtherEdge(kit, teeth, last);
}

void MirrorBandX(const PlaneKit& kit, Teeth& teeth, int last) {
  if (last < 0) return;
  const auto n = static_cast<std::size_t>(last);
  const double back = teeth[n].JoinPoint.X;
  Teeth turned(teeth.size());
  turned.reserve(teeth.capacity());
  for (std::size_t i = 0; i <= n; ++i) {
    ToothProfile& mirrored = turned[n - i];
    MirrorToothX(kit, teeth[i], mirrored);
    TranslateTooth(kit, mirrored, mirrored, back, 0);
  }
  teeth = std::move(turned);
}

void AddOtherEdge(const PlaneKit& kit, Teeth& teeth, int last) {
  const auto count = static_cast<std::size_t>(last) + 1;
  if (last < 0) return;
  teeth.resize(2 * count);
  for (std::size_t i = 0; i < count; ++i) {
    const ToothProfile& tooth = teeth[i];
    // A trimmed first tooth has lost its face; its top still ends on the height of the tips.
    const double tip = tooth.FaceLine.Start.Y > 0 ? tooth.FaceLine.Start.Y : tooth.TopLine.End.Y;
    ToothProfile lowered;
    TranslateTooth(kit, tooth, lowered, 0, -tip);
    MirrorToothY(kit, lowered, teeth[count + i]);
  }
}

}  // namespace tarnwick
