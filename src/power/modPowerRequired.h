#pragma once

#include <string>

#include "model/modBandSaw.h"
#include "platform/Messages.h"

namespace tarnwick {

/// What a design lacks for its power figures, the first thing only: "Plate thickness is required to calculate
/// power requirements." Empty when there is nothing missing.
[[nodiscard]] std::string MissingPowerData(const BandSaw& saw);

/// Tells the user what is missing.
/// @return whether the design has all that the power figures take
[[nodiscard]] bool PowerDataRequired(const BandSaw& saw, Messages& messages);

}  // namespace tarnwick
