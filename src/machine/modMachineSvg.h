#pragma once

#include <string>

#include "machine/modMachineView.h"

namespace tarnwick {

/// The whole text of an SVG picture of a mill: fitted to a sheet of 7 by 10 inches, dark lines on white
/// paper. Not in true size: in that of a mill nobody could read its text. Without wheels the sheet is empty.
[[nodiscard]] std::string MachineSvgText(const MachineView& view, const CalculationSettings& settings);

}  // namespace tarnwick
