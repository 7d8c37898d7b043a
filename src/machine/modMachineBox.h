#pragma once

#include <span>
#include <string>
#include <string_view>

#include "entry/modFormat.h"
#include "entry/modParameter.h"
#include "machine/modBandLength.h"
#include "model/modBandSaw.h"

namespace tarnwick {

/// A measure of the band length calculator. Its box is named `Control`, and the label of it the same with
/// "lbl" for "txt"; both open the question for the measure.
struct MachineBox {
  Parameter Asked;
  std::string_view Control;
  std::string_view Caption;
};

/// In the order in which they stand.
[[nodiscard]] std::span<const MachineBox> MachineBoxes();

/// What a box shows of a design: the measure with its unit, nothing for 0 and below.
[[nodiscard]] std::string MachineBoxText(Parameter measure, const BandSaw& saw, const DisplayFormat& format);

/// What stands beside the check boxes of the length rows, by LengthRow.
inline constexpr std::string_view LengthCaptions[LengthRows] = {
    "Own Length:", "Inside Length:", "Middle Length:", "Outside Length:"};

/// The hint of a control of the calculator; empty for one without a hint.
[[nodiscard]] std::string_view BandCalcHint(std::string_view control);

}  // namespace tarnwick
