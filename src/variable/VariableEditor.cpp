#include "variable/VariableEditor.h"

#include <algorithm>
#include <span>

#include "model/modDecim.h"
#include "variable/modBalance.h"

namespace tarnwick {
namespace {

constexpr double MostOfAverage = 1.3, LeastOfAverage = 0.7;  // pitch of a tooth
constexpr double DepthAllowance = 1.3;                       // beyond the depth in proportion to the pitch

double Limited(double value, double least, double most) {
  if (value < least) return least;
  return value > most ? most : value;
}

std::size_t At(int k) { return static_cast<std::size_t>(k); }

/// The teeth that an entry of the list stands for: 0 for "None", and for no entry at all.
std::int16_t TeethOf(const std::vector<std::string>& entries, int entry) {
  if (entry < 0 || At(entry) >= entries.size()) return 0;
  return static_cast<std::int16_t>(ReadNumber(entries[At(entry)]));
}

}  // namespace

// ---- filling

void VariableEditor::FillFromRecord() {
  FillMeasures();
  FillTeeth();
  Loading = true;
  FillControls();
  SegmentTeeth = TeethOf(Entries, Entry);
  RefreshCounts();
  Loading = false;
  IsFilled = true;
}

void VariableEditor::FillMeasures() {
  const BandSaw& saw = Saw();
  const Rounding round(DecimalPlaces());
  AveragePitch = saw.Pitch;
  MaxPitch = round(AveragePitch * MostOfAverage);
  MinPitch = round(AveragePitch * LeastOfAverage);
  SegmentTeeth = saw.GeneralInfo.NumVariables;
  DepthIsVariable = saw.GeneralInfo.VariableDepth != False;
  BaseDepth = saw.GulletInfo.Depth;
  MinToothDepth = saw.GulletInfo.MinDepth;
  Let(MaxToothDepth) = round(Quotient(MaxPitch, AveragePitch) * saw.GulletInfo.Depth * DepthAllowance);
}

void VariableEditor::FillTeeth() {
  const BandSaw::General& general = Saw().GeneralInfo;
  const bool isVariable = general.VariablePitch != False;
  for (std::size_t k = 0; k < Rows; ++k) {
    ToothPitch[k] = isVariable ? general.VarPitch[k] : AveragePitch;
    ToothDepth[k] = isVariable && general.VarDepth[k] > 0 ? general.VarDepth[k] : BaseDepth;
  }
}

void VariableEditor::FillControls() {
  const BandSaw& saw = Saw();
  // A file may hold a number that no option has: the one that is set stays.
  if (!PatternName(saw.DesignInfo.VarPattern).empty()) Pattern = saw.DesignInfo.VarPattern;
  NumTeeth = saw.NumTeeth;
  Entries = SegmentEntries(NumTeeth);
  if (saw.GeneralInfo.VariablePitch == False) {
    Entry = Entries.size() > 1 ? 1 : 0;  // not "None": the panel opens ready for the first count there is
    return;
  }
  Entry = NoEntry;  // stays so when the teeth of the band were changed since
  for (int entry = 0; At(entry) < Entries.size(); ++entry) {
    if (TeethOf(Entries, entry) == saw.GeneralInfo.NumVariables) Entry = entry;
  }
}

void VariableEditor::ResetVariable() { static_cast<VariableValues&>(*this) = {}; }

void VariableEditor::RefreshCounts() {
  const Checked segments = Quotient(Saw().NumTeeth, SegmentTeeth);
  if (segments.Ok()) NumSegments = WholeNumber<std::int16_t>(segments.OrZero()).value_or(NumSegments);
  SegmentSize = SegmentTeeth * AveragePitch;
  Saw().DesignInfo.SegmentLength = SegmentSize;
}

// ---- what the controls are made of

void VariableEditor::BalanceSegment() {
  const std::size_t teeth = std::min(At(std::max<int>(SegmentTeeth, 0)), ToothPitch.size());
  tarnwick::BalanceSegment(std::span(ToothPitch).first(teeth), SegmentSize, {MinPitch, MaxPitch});
}

double VariableEditor::DepthFromPitch(double pitch) const {
  const Checked depth = Rounding(DecimalPlaces())(Quotient(pitch, AveragePitch) * BaseDepth);
  return Limited(depth.OrZero(), MinToothDepth, MaxToothDepth);
}

void VariableEditor::RefreshDepth(int k) {
  if (k < 0) return;  // the last row of a segment without teeth
  ToothDepth[At(k)] = DepthIsVariable ? DepthFromPitch(ToothPitch[At(k)]) : BaseDepth;
}

void VariableEditor::ClearDepths() { std::fill_n(ToothDepth.begin(), Rows, BaseDepth); }

/// Balancing may move a third tooth. Its depth stays as it was: that is meant.
void VariableEditor::ApplyPitch(int k) {
  BalanceSegment();
  RefreshDepth(k);
  RefreshDepth(SegmentTeeth - 1);
  StoreVariable();
}

void VariableEditor::ApplyPreset() {
  const auto shares = SharesOf(Pattern, SegmentTeeth);
  for (std::size_t k = 0; k < shares.size(); ++k) {
    ToothPitch[k] = Saw().DesignInfo.SegmentLength * shares[k];
    RefreshDepth(static_cast<int>(k));
  }
}

void VariableEditor::StoreVariable() {
  BandSaw::General& general = Saw().GeneralInfo;
  if (SegmentTeeth > 0) {
    BalanceSegment();
    general.VariablePitch = True;
    general.VariableDepth = DepthIsVariable ? True : False;
    general.NumVariables = SegmentTeeth;
    std::copy_n(ToothPitch.begin(), UsedSegmentMeasures, general.VarPitch.begin());
    std::copy_n(ToothDepth.begin(), UsedSegmentMeasures, general.VarDepth.begin());
  } else {
    general.VariablePitch = False;
    general.VariableDepth = False;
    general.NumVariables = 0;
    std::fill_n(general.VarPitch.begin(), UsedSegmentMeasures, AveragePitch);
    std::fill_n(general.VarDepth.begin(), UsedSegmentMeasures - 1, BaseDepth);  // the seventh stays: meant
  }
}

/// The calculation raises a depth that the radii do not allow; what it accepted is what shows.
void VariableEditor::Recalculate() {
  recalculate_();
  const BandSaw::General& general = Saw().GeneralInfo;
  if (general.VariablePitch != False) std::copy_n(general.VarDepth.begin(), SegmentTeeth, ToothDepth.begin());
}

// ---- the controls

void VariableEditor::ChooseEntry(int entry) {
  if (Loading || entry < 0 || At(entry) >= Entries.size()) return;
  Entry = entry;
  const std::int16_t teeth = TeethOf(Entries, entry);
  if (teeth == 0) {
    ChooseNone();
  } else {
    ChooseTeeth(teeth);
  }
}

void VariableEditor::ChooseNone() {
  SelectPattern(NoPattern);
  ClearDepths();
  SegmentTeeth = 0;
  StoreVariable();
  Recalculate();
}

void VariableEditor::ChooseTeeth(std::int16_t teeth) {
  if (teeth != SegmentTeeth) {
    ClearDepths();
    SegmentTeeth = teeth;
    RefreshCounts();
    ApplyPitch(0);
  }
  if (Pattern == NoPattern) {
    SelectPattern(LeftToRightPattern);
  } else {
    ApplyPreset();
    ApplyPitch(0);
  }
  Recalculate();
}

/// An option that the program sets acts as if it were clicked, but one that is set already says nothing.
void VariableEditor::SelectPattern(int index) {
  if (index != Pattern) ClickPattern(index);
}

void VariableEditor::ClickPattern(int index) {
  if (Loading || PatternName(index).empty()) return;
  Pattern = index;
  Saw().DesignInfo.VarPattern = static_cast<std::int16_t>(index);
  if (index == NoPattern) {
    std::fill_n(ToothPitch.begin(), Rows, AveragePitch);
    ApplyPitch(0);
  } else {
    ApplyPreset();
  }
  StoreVariable();
  Recalculate();
}

void VariableEditor::TickVarDepth(bool ticked) {
  if (Loading) return;
  DepthIsVariable = ticked && SegmentTeeth > 0;  // without a segment the box unticks itself
  if (SegmentTeeth == 0) return;
  if (DepthIsVariable) {
    for (int k = 0; k < SegmentTeeth; ++k) RefreshDepth(k);
  } else {
    ClearDepths();
  }
  StoreVariable();
  Recalculate();
}

void VariableEditor::ClickPitch(int k, const Questions& ask) {
  if (Loading || !Row(k).PitchOpens) return;
  double pitch = ToothPitch[At(k)];
  if (!ask.Ask(Parameter::ToothSpace, Saw().ToothStyle, pitch)) return;
  ToothPitch[At(k)] = Limited(pitch, MinPitch, MaxPitch);
  ApplyPitch(k);
  Recalculate();
}

void VariableEditor::ClickDepth(int k, const Questions& ask) {
  if (Loading || !Row(k).DepthOpens) return;
  double depth = ToothDepth[At(k)];
  if (!ask.Ask(Parameter::GulletDepth, Saw().ToothStyle, depth)) return;
  ToothDepth[At(k)] = Limited(depth, MinToothDepth, MaxToothDepth);
  Saw().GeneralInfo.VarDepth[At(k)] = ToothDepth[At(k)];
  StoreVariable();
  Recalculate();
}

void VariableEditor::PressReset() {
  SelectPattern(NoPattern);
  if (DepthIsVariable) TickVarDepth(false);
  if (!Entries.empty() && Entry != 0) ChooseEntry(0);
}

}  // namespace tarnwick
