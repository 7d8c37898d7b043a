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

/// The teeth of a segment, placed one by one, and what is worked out on the way.
class SegmentLayout {
 public:
  SegmentLayout(const PlaneKit& kit, BandSaw& saw, const ToothProfile& base, Messages& messages)
      : kit_(kit), saw_(saw), messages_(messages), teeth_(1, base) {}

  /// Places teeth[0], which is the last tooth of a segment seen from the start of the band, and teeth[1] to
  /// teeth[n], and writes the accepted depths and the areas back into the record.
  void PlaceSegment();
  /// Those that have been placed so far.
  [[nodiscard]] const Teeth& Placed() const { return teeth_; }

  /// Repeats the segment until the band is full.
  void RepeatSegment(BandTeeth& band) const;
  /// Adds the first tooth of the next segment.
  void StartNextSegment(BandTeeth& band) const;

 private:
  void PlaceVariableTooth(int index, int segmentIndex);
  void Repeat(BandTeeth& band, int index, int tooth, double offset) const;
  [[nodiscard]] std::size_t Slot(int index) const;

  const PlaneKit& kit_;
  BandSaw& saw_;
  Messages& messages_;
  Teeth teeth_;

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

/// The place at `index` of an array that was made for teeth on both edges and no larger.
std::size_t SegmentLayout::Slot(int index) const {
  const int lastIndex = (saw_.NumTeeth + 1) * 2;
  if (index > lastIndex) throw StatementFailed{Failure::Subscript};
  return static_cast<std::size_t>(index);
}

void SegmentLayout::PlaceSegment() {
  static_cast<void>(Slot(0));
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

  const std::size_t slot = Slot(index);
  if (slot >= teeth_.size()) teeth_.resize(slot + 1);
  ToothProfile& placed = teeth_[slot];
  TranslateToothParts(kit_, shaped, placed, top_, body_);
  FitBackRadius(placed, kit_);
  RoundTooth(kit_, placed);
}

void SegmentLayout::Repeat(BandTeeth& band, int index, int tooth, double offset) const {
  band.Repeat(Slot(index), static_cast<std::size_t>(tooth), offset);
}

void SegmentLayout::RepeatSegment(BandTeeth& band) const {
  const int segments = static_cast<int>(std::nearbyint(static_cast<double>(saw_.NumTeeth) / n_));
  double offset = 0;
  for (int segment = 1; segment < segments; ++segment) {
    offset = Need(offset + segmentLength_);
    for (int k = 1; k <= n_; ++k) Repeat(band, segment * n_ + k, k, offset);
  }
}

void SegmentLayout::StartNextSegment(BandTeeth& band) const { Repeat(band, n_ + 1, 1, segmentLength_); }

/// The handler of both layouts. True when `routine` came to its end.
template <class Routine>
bool LayOutOrReport(Messages& messages, Routine routine) {
  return HandleFailure(routine, [&messages](Failure why) {
    messages.Show({.Text = "Error in function CalculateVariableSaw  Error Number" +
                           std::to_string(static_cast<int>(why))});
  });
}

/// As many teeth as the drawing walks, whatever the layout came to.
void TrimToCount(BandTeeth& teeth, int count) { teeth.Resize(static_cast<std::size_t>(std::max(count, 1))); }

/// The first tooth tells the drawing that there is another edge; one without pieces does not know.
void MarkBothEdges(BandTeeth& teeth) {
  ToothProfile first = teeth.Tooth(0);
  first.BothEdges = True;
  teeth.SetTooth(0, first);
}

/// Lays out a segment, and by `finish(layout, band)` what comes of it. A failure ends it where it is.
template <class Finish>
BandTeeth LayOutFromSegment(const PlaneKit& kit, BandSaw& saw, const ToothProfile& base, Messages& messages,
                            Finish finish) {
  SegmentLayout layout(kit, saw, base, messages);
  const bool placed = LayOutOrReport(messages, [&] { layout.PlaceSegment(); });
  BandTeeth band(kit, layout.Placed());
  if (placed) LayOutOrReport(messages, [&] { finish(layout, band); });
  return band;
}

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

BandTeeth LayOutVariableBand(const PlaneKit& kit, BandSaw& saw, const ToothProfile& base,
                             const CalculationSettings& settings, Messages& messages) {
  const int last = saw.NumTeeth;
  const bool bothEdges = base.BothEdges != False;
  const auto finish = [&](const SegmentLayout& layout, BandTeeth& band) {
    band.Reserve(TeethOnAllEdges(last, bothEdges));
    layout.RepeatSegment(band);
    TrimToCount(band, last + 1);
    JoinBand(kit, saw, band, last);
    if (settings.TeethDirection == RightToLeft) MirrorBandX(band, last);
    if (bothEdges) {
      MarkBothEdges(band);
      AddOtherEdge(band, last);
    }
  };
  BandTeeth band = LayOutFromSegment(kit, saw, base, messages, finish);
  TrimToCount(band, bothEdges ? 2 * (last + 1) : last + 1);
  return band;
}

BandTeeth LayOutVariableSegment(const PlaneKit& kit, BandSaw& saw, const ToothProfile& base,
                                const CalculationSettings& settings, Messages& messages) {
  const int last = saw.GeneralInfo.NumVariables + 1;
  return LayOutFromSegment(kit, saw, base, messages, [&](const SegmentLayout& layout, BandTeeth& band) {
    layout.StartNextSegment(band);
    JoinBand(kit, saw, band, last);
    if (settings.TeethDirection == RightToLeft) MirrorBandX(band, last);
  });
}

EntityList BuildSegmentEntities(const PlaneKit& kit, const BandTeeth& teeth, int toothCount) {
  constexpr int piecesPerTooth = 12;
  EntityList list;
  PieceList pieces(kit, list, RoomFor(toothCount, piecesPerTooth));
  const std::size_t count = std::min(teeth.Size(), static_cast<std::size_t>(std::max(toothCount, 0)));
  for (std::size_t i = 0; i < count; ++i) {
    const ToothProfile tooth = teeth.Tooth(i);
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
