#pragma once

#include <string>

#include "model/modBandSaw.h"

namespace tarnwick {

// Words that rows and boxes show for the choices of a design, one blank ahead. The join's are not those of
// its dialog, on purpose.

[[nodiscard]] std::string ToothStyleText(const BandSaw& saw);  // empty for a style without a name
[[nodiscard]] std::string TipText(const BandSaw& saw);
[[nodiscard]] std::string JoinText(const BandSaw& saw);
[[nodiscard]] std::string SeatText(const BandSaw& saw);
[[nodiscard]] std::string WoodText(const BandSaw& saw);  // UTF-8; empty for none

}  // namespace tarnwick
