#pragma once

#include <algorithm>
#include <span>
#include <string_view>

namespace tarnwick {

/// What a hint line says while the mouse is over a control.
struct ControlHint {
  std::string_view Control;  // its name
  std::string_view Text;
};

/// The hint of a control; empty for one that has none.
[[nodiscard]] constexpr std::string_view HintOf(std::span<const ControlHint> hints,
                                                std::string_view control) {
  const auto found = std::find_if(hints.begin(), hints.end(),
                                  [control](const ControlHint& h) { return h.Control == control; });
  return found == hints.end() ? std::string_view() : found->Text;
}

}  // namespace tarnwick
