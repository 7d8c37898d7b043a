#pragma once

#include <cstdint>

namespace tarnwick {

/// A colour as the settings keep it: red in the low byte, green in the second, blue in the third.
struct Colour {
  std::uint32_t Packed{};

  [[nodiscard]] constexpr int Red() const { return static_cast<int>(Packed & 0xFF); }
  [[nodiscard]] constexpr int Green() const { return static_cast<int>(Packed >> 8 & 0xFF); }
  [[nodiscard]] constexpr int Blue() const { return static_cast<int>(Packed >> 16 & 0xFF); }
  bool operator==(const Colour&) const = default;
};

[[nodiscard]] constexpr Colour Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return {static_cast<std::uint32_t>(red) | static_cast<std::uint32_t>(green) << 8 |
          static_cast<std::uint32_t>(blue) << 16};
}

inline constexpr Colour Black = Rgb(0, 0, 0);
inline constexpr Colour White = Rgb(255, 255, 255);

/// How a design is shown on the screen.
struct DisplaySettings {
  Colour SawLineColor = Rgb(0, 255, 255);
  Colour CenterLineColor = Rgb(255, 255, 0);
  Colour TextColor = White;
  Colour BackGroundColor = Black;
  Colour ZoomWindowColor = Rgb(0, 0, 255);
  double DisplayScale =
      1.0;  // calibration of the screen, 0.5 to 1.5: what an inch of 96 pixels lacks of a true one
};

}  // namespace tarnwick
