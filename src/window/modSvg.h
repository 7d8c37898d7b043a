#pragma once

#include <string>

#include "model/modEntity.h"

namespace tarnwick {

/// The whole text of an SVG picture of `list`: true size, dark lines on white paper, a margin of an eighth of
/// an inch around the pieces. Every piece is in it. An empty list gives an empty sheet.
[[nodiscard]] std::string SvgText(const EntityList& list);

}  // namespace tarnwick
