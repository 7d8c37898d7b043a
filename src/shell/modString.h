#pragma once

#include <string_view>

namespace tarnwick {

// The texts that the windows show below the drawing, by number: 1 to 84 hint at the control under the mouse,
// 100 to 104 name the editor that owns a figure, 200 and 201 turn the quick click display on and off.
// Spellings are the system's own.

inline constexpr int QuickOnHint = 35;
inline constexpr int QuickOffHint = 36;
inline constexpr int QuickOnText = 200;
inline constexpr int QuickOffText = 201;

/// The text of a number; empty for a number without one.
[[nodiscard]] std::string_view NumberedText(int number);

}  // namespace tarnwick
