#pragma once

#include <functional>

#include "entry/Questions.h"
#include "shell/OpenDesign.h"
#include "variable/VariableValues.h"

namespace tarnwick {

/// What the controls of the variable pitch editor do with the open design. A change goes into the record at
/// once and is drawn at once; Cancel of the panel is the way back.
class VariableEditor : public VariableValues {
 public:
  /// @param recalculate  the drawing anew; it may change the record
  VariableEditor(OpenDesign& design, std::function<void()> recalculate)
      : design_(design), recalculate_(std::move(recalculate)) {}

  /// The panel from the record. The length of the segment goes into the record here already: a constant band
  /// opens with the first count that divides its teeth.
  void FillFromRecord();

  /// The panel as it is before there is a band: everything empty. Touches no design and draws nothing.
  void ResetVariable();

  // The controls.
  void ChooseEntry(int entry);                   // cboPattern, the same entry again included
  void ClickPattern(int index);                  // optPattern, the one that is set included
  void TickVarDepth(bool ticked);                // chkVarDepth
  void ClickPitch(int k, const Questions& ask);  // txtToothSpace
  void ClickDepth(int k, const Questions& ask);  // txtToothDepth
  void PressReset();                             // cmdVariableReset

  // What they are made of.

  /// The last tooth takes up what the others leave; see modBalance.
  void BalanceSegment();
  /// After a change of the pitch at row `k`.
  void ApplyPitch(int k);
  /// The pitches of the pattern that is set.
  void ApplyPreset();
  /// Gullet depth of a tooth of this pitch: in proportion to it, within the limits of a depth.
  [[nodiscard]] double DepthFromPitch(double pitch) const;
  /// The working values into the record.
  void StoreVariable();

 private:
  [[nodiscard]] BandSaw& Saw() { return design_.Saw; }
  [[nodiscard]] int DecimalPlaces() const { return design_.Settings.Calculation.DecimalPlaces; }

  void FillMeasures();
  void FillTeeth();
  void FillControls();
  void RefreshCounts();
  void RefreshDepth(int k);
  void ClearDepths();
  void ChooseNone();
  void ChooseTeeth(std::int16_t teeth);
  void SelectPattern(int index);
  void Recalculate();

  OpenDesign& design_;
  std::function<void()> recalculate_;
};

}  // namespace tarnwick
