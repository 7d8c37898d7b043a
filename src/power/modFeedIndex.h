#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// GulletFeedIndex: the part of the gullet that really carries sawdust, as a fraction above 0 and up to 1. One
// value for the whole program, kept with the settings; the windows choose it from a list of percentages.

inline constexpr double DefaultGulletFeedIndex = 0.7;

/// The index as it was stored, or the default in place of one that is not above 0 or is above 1.
[[nodiscard]] constexpr double CheckedFeedIndex(double stored) {
  return stored > 0 && stored <= 1 ? stored : DefaultGulletFeedIndex;
}

/// "10 Percent", "15 Percent" ... "100 Percent".
[[nodiscard]] std::vector<std::string> FeedIndexEntries();

/// The fraction that an entry stands for: its leading number / 100, by the rounding rule at `places`.
[[nodiscard]] double FeedIndexOf(std::string_view entry, int places);

/// Which of the entries shows `index`, counted from 0: the one whose number is the nearest whole percentage.
/// nullopt when there is none: 0.72 stays in force without being in the list.
[[nodiscard]] std::optional<std::size_t> FeedIndexEntryOf(double index);

}  // namespace tarnwick
