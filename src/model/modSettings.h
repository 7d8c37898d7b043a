#pragma once

#include <cstdint>

namespace tarnwick {

/// What calculations and writers need of the user's settings. Handed in as a value: no routine reads a
/// global.
struct CalculationSettings {
  std::int16_t DecimalPlaces = 5;    // 4 to 10: places of every calculated number
  std::int16_t DisplayPlaces = 3;    // 2 to 5: places shown in text
  std::int16_t TeethDirection = 1;   // 1 left to right, 2 the other way
  std::int32_t MemorySize = 128000;  // 8000 to 512000: upper bound of the pairs of a DXF file
  std::int16_t DxfSaveColor = 5;     // 0 to 9: colour index of drawn entities in a DXF file
};

inline constexpr std::int16_t LeftToRight = 1, RightToLeft = 2;  // of TeethDirection

/// Inclusive limits of a setting.
struct SettingRange {
  const char* Name;
  std::int32_t Least, Most;
  [[nodiscard]] constexpr bool Holds(std::int64_t value) const { return value >= Least && value <= Most; }
};

inline constexpr SettingRange DecimalPlacesRange{"DecimalPlaces", 4, 10};
inline constexpr SettingRange DisplayPlacesRange{"DisplayPlaces", 2, 5};
inline constexpr SettingRange TeethDirectionRange{"TeethDirection", 1, 2};
inline constexpr SettingRange MemorySizeRange{"MemorySize", 8000, 512000};
inline constexpr SettingRange DxfSaveColorRange{"DxfSaveColor", 0, 9};

}  // namespace tarnwick
