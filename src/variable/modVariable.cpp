#include "variable/modVariable.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "geometry/modBand.h"
#include "geometry/modGulletArea.h"
#include "geometry/modHandler.h"
#include "geometry/modJoin.h"
#include "geometry/modPieceList.h"
#include "geometry/modSetDepth.h"
#include "geometry/modToothBack.h"
#include "geometry/modToothMoves.h"

namespace tarnwick {
namespace {

/// Element `index`, counted from 0, of the measures of a segment.
double& At(SegmentMeasures& measures, int index) {
  if (index < 0 || index >= static_cast<int>(measures.size())) throw StatementFailed{Failure::Subscript};
  return measures[static_cast<std::size_t>(index)];
}

/// One layout of a segment's teeth, with what it works out on the way.
class SegmentLayout {
 public:
  SegmentLayout(const PlaneKit& kit, BandSaw& saw, Teeth& teeth, Messages& messages)
      : kit_(kit), saw_(saw), teeth_(teeth), messages_(messages) {}

  /// Places teeth[0], which is the last tooth of a segment seen from the start of the band, and teeth[1] to
  /// teeth[n], and writes the accepted depths and the areas back into the record.
  void PlaceSegment();

  /// Repeats the segment until the band is full.
  void RepeatSegment();
  /// Adds the first tooth of the next segment.
  void StartNextSegment();

  /// The place at `index` of an array that was made for teeth on both edges and no larger.
  ToothProfile& Slot(int index);

 private:
  void PlaceVariableTooth(int index, int segmentIndex);

  const PlaneKit& kit_;
  BandSaw& saw_;
  Teeth& teeth_;
  Messages& messages_;

  const int n_ = saw_.GeneralInfo.NumVariables;
  SegmentMeasures pitch_ = saw_.GeneralInfo.VarPitch;
  SegmentMeasures depth_ = saw_.GeneralInfo.VarDepth;
  SegmentMeasures area_ = saw_.DesignInfo.VarArea;
  ToothProfile base_;
  double averagePitch_ = 0;
  double segmentLength_ = 0;
  double top_ = 0;   // how far the top of the next tooth moves
  double body_ = 0;  // how far all else of it moves
};

ToothProfile& SegmentLayout::Slot(int index) {
  const int lastIndex = (saw_.NumTeeth + 1) * 2;
  if (index > lastIndex) throw StatementFailed{Failure::Subscript};
  const auto place = static_cast<std::size_t>(index);
  if (place >= teeth_.size()) teeth_.resize(place + 1);
  return teeth_[place];
}

void SegmentLayout::PlaceSegment() {
  Slot(0);
  averagePitch_ = Need(Quotient(saw_.Length * InchesPerFoot, saw_.NumTeeth));
  const double lastPitch = At(pitch_, n_ - 1);
  const double shift = Need(-(lastPitch * 0.5 - JoinAllowance(kit_, saw_)));
  TranslateTooth(kit_, teeth_.front(), teeth_.front(), shift, 0);
  segmentLength_ = Need(kit_.RoundTo(Checked(n_ * averagePitch_)));

  base_ = teeth_.front();
  top_ = Need(lastPitch - averagePitch_);
  PlaceVariableTooth(0, n_ - 1);
  body_ = Need(averagePitch_ + top_);
  top_ = Need(top_ + At(pitch_, 0));
  for (int k = 0; k < n_; ++k) {
    PlaceVariableTooth(k + 1, k);
    body_ = Need(averagePitch_ + top_);
    // Behind the last tooth this reads the pitch past the segment, which no longer matters, but has to be
    // there.
    top_ = Need(top_ + At(pitch_, k + 1));
  }
  saw_.GeneralInfo.VarDepth = depth_;
  saw_.DesignInfo.VarArea = area_;
}

void SegmentLayout::PlaceVariableTooth(int index, int segmentIndex) {
  ToothProfile shaped = base_;
  double area = base_.Area;
  if (saw_.GeneralInfo.VariableDepth != False) {
    double& depth = At(depth_, segmentIndex);
    const double accepted = std::max(depth, saw_.GulletInfo.MinDepth);
    ToothWork work{saw_, shaped, kit_, messages_};
    SetToothDepth(work, accepted);
    depth = accepted;
    ToothProfile fitted = shaped;
    FitBackRadius(fitted, kit_);
    area = OutlineArea({saw_, fitted, kit_, messages_});
  }
  At(area_, segmentIndex) = area;

  ToothProfile& placed = Slot(index);
  TranslateToothParts(kit_, shaped, placed, top_, body_);
  FitBackRadius(placed, kit_);
  RoundTooth(kit_, placed);
}

void SegmentLayout::RepeatSegment() {
  const int segments = static_cast<int>(std::nearbyint(static_cast<double>(saw_.NumTeeth) / n_));
  double offset = 0;
  for (int segment = 1; segment < segments; ++segment) {
    offset = Need(offset + segmentLength_);
    for (int k = 1; k <= n_; ++k) {
      ToothProfile& target = Slot(segment * n_ + k);
      TranslateTooth(kit_, teeth_[static_cast<std::size_t>(k)], target, offset, 0);
    }
  }
}

void SegmentLayout::StartNextSegment() {
  ToothProfile& target = Slot(n_ + 1);
  TranslateTooth(kit_, teeth_[1], target, segmentLength_, 0);
}

/// The handler of both layouts.
template <class Routine>
void LayOutOrReport(Messages& messages, Routine routine) {
  HandleFailure(routine, [&messages](Failure why) {
    messages.Show({.Text = "Error in function CalculateVariableSaw  Error Number" +
                           std::to_string(static_cast<int>(why))});
  });
}

/// As many teeth as the drawing walks, whatever the layout came to.
void TrimToCount(Teeth& teeth, int count) { teeth.resize(static_cast<std::size_t>(std::max(count, 1))); }

}  // namespace

VariablePitchAnswer CanUseVariablePitch(int toothStyle, int numTeeth) {
  if (toothStyle == NoStyle || toothStyle == NarrowStyle || toothStyle == OShape) {
    return VariablePitchAnswer::StyleNotAllowed;
  }
  constexpr std::array divisors = {3, 4, 5, 6, 7};
  const bool divides =
      std::any_of(divisors.begin(), divisors.end(), [=](int d) { return numTeeth % d == 0; });
  return divides ? VariablePitchAnswer::Allowed : VariablePitchAnswer::TeethNotDivisible;
}

void LayOutVariableBand(const PlaneKit& kit, BandSaw& saw, Teeth& teeth, const CalculationSettings& settings,
                        Messages& messages) {
  const int last = saw.NumTeeth;
  const bool bothEdges = teeth.front().BothEdges != False;
  if (last > 0) teeth.reserve((bothEdges ? 2U : 1U) * (static_cast<std::size_t>(last) + 1));
  LayOutOrReport(messages, [&] {
    SegmentLayout layout(kit, saw, teeth, messages);
    layout.PlaceSegment();
    layout.RepeatSegment();
    TrimToCount(teeth, last + 1);
    JoinBand(kit, saw, teeth, last);
    if (settings.TeethDirection == RightToLeft) MirrorBandX(kit, teeth, last);
    if (bothEdges) {
      teeth.front().BothEdges = True;
      AddOtherEdge(kit, teeth, last);
    }
  });
  TrimToCount(teeth, bothEdges ? 2 * (last + 1) : last + 1);
}

void LayOutVariableSegment(const PlaneKit& kit, BandSaw& saw, Teeth& teeth,
                           const CalculationSettings& settings, Messages& messages) {
  const int last = saw.GeneralInfo.NumVariables + 1;
  LayOutOrReport(messages, [&] {
    SegmentLayout layout(kit, saw, teeth, messages);
    layout.PlaceSegment();
    layout.StartNextSegment();
    JoinBand(kit, saw, teeth, last);
    if (settings.TeethDirection == RightToLeft) MirrorBandX(kit, teeth, last);
  });
}

EntityList BuildSegmentEntities(const PlaneKit& kit, const Teeth& teeth, int toothCount) {
  constexpr int piecesPerTooth = 12;
  EntityList list;
  PieceList pieces(kit, list, RoomFor(toothCount, piecesPerTooth));
  const std::size_t count = std::min(teeth.size(), static_cast<std::size_t>(std::max(toothCount, 0)));
  for (std::size_t i = 0; i < count; ++i) {
    const ToothProfile& tooth = teeth[i];
    pieces.Add(tooth.FaceLine);
    pieces.Add(tooth.SeatLine);
    pieces.Add(tooth.DropLine);
    pieces.Add(tooth.FirstArc);
    pieces.Add(tooth.BottomLine);
    pieces.Add(tooth.SecondArc);
    pieces.Add(tooth.ThirdArc);
    pieces.Add(tooth.GulletArc);
    pieces.Add(tooth.BackLine);
    pieces.Add(tooth.BackArc);
    pieces.Add(tooth.TopLine);
  }
  return list;
}

}  // namespace tarnwick
