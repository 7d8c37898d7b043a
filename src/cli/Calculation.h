#pragma once

#include "cli/Design.h"
#include "model/modEntity.h"
#include "model/modSettings.h"

namespace tarnwick::cli {

/// What of a design is drawn.
enum class Scope { WholeBand, Segment };

/// Calculates `design` in place: its record afterwards, its notes with the messages of the calculation behind
/// them. A design that failed already is left alone and gives an empty drawing.
[[nodiscard]] EntityList Calculate(Design& design, Scope scope, const CalculationSettings& settings);

}  // namespace tarnwick::cli
