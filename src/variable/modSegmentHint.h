#pragma once

#include <string_view>

namespace tarnwick {

/// What the hint line says over a control of the variable pitch editor; empty for one that has no hint.
[[nodiscard]] std::string_view SegmentHint(std::string_view control);

/// What a press on a box says whose figure another editor owns; empty for any other control.
[[nodiscard]] std::string_view SegmentMustUse(std::string_view control);

/// The help topic of a box of it; 0 for a control without one of its own.
[[nodiscard]] int SegmentTopic(std::string_view control);

}  // namespace tarnwick
