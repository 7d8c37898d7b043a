#pragma once

#include <functional>
#include <string_view>

#include "machine/modGauge.h"
#include "model/modColour.h"
#include "platform/Canvas.h"

namespace tarnwick {

/// The lines of the table, in twentieths of a point; a pixel has fifteen.
inline constexpr double GaugeLines[GaugeColumns + 1] = {50, 1200, 2600, 4200};
inline constexpr double GaugeRowHeight = 350;
inline constexpr double GaugeTop = 50;

struct GaugeColours {
  Colour Ground, Head;  // below the rows, below the heading
  Colour Lines, Texts;
};

/// How large a text is in the font of the table.
using TextMeasure = std::function<PixelSize(std::string_view)>;

/// Pixels of one unit of the table's lines: a fifteenth, or more where the font would not fit.
[[nodiscard]] double GaugeUnit(const DisplayFormat& format, const TextMeasure& measure);

/// Room that the table takes.
[[nodiscard]] PixelSize GaugeSize(double unit);

/// Draws grid and texts by hand.
void DrawGauges(Canvas& canvas, double unit, const GaugeColours& colours, const DisplayFormat& format);

}  // namespace tarnwick
