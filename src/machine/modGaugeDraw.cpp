#include "machine/modGaugeDraw.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr double Rows = GaugeCount + 1;  // with the heading
constexpr double Bottom = GaugeTop + Rows * GaugeRowHeight;
constexpr double Indent = 80;  // of a text in its column
constexpr double PixelOfLines = 1.0 / 15;

void DrawHead(Canvas& canvas, double unit, Colour colour) {
  const double left = GaugeLines[0] * unit, right = GaugeLines[GaugeColumns] * unit;
  const double top = GaugeTop * unit, bottom = (GaugeTop + GaugeRowHeight) * unit;
  canvas.SetPen(colour, PenStyle::Solid);
  canvas.Polygon(std::array<Spot, 4>{{{left, top}, {right, top}, {right, bottom}, {left, bottom}}});
}

void DrawGrid(Canvas& canvas, double unit, Colour colour) {
  canvas.SetPen(colour, PenStyle::Solid);
  for (const double x : GaugeLines) {
    canvas.Polyline(std::array<Spot, 2>{{{x * unit, GaugeTop * unit}, {x * unit, Bottom * unit}}});
  }
  for (int row = 0; row <= Rows; ++row) {
    const double y = (GaugeTop + row * GaugeRowHeight) * unit;
    canvas.Polyline(std::array<Spot, 2>{{{GaugeLines[0] * unit, y}, {GaugeLines[GaugeColumns] * unit, y}}});
  }
}

}  // namespace

double GaugeUnit(const DisplayFormat& format, const TextMeasure& measure) {
  constexpr double Leading = 1.2;  // of a row's height to its text's
  double unit = PixelOfLines;
  for (const GaugeRow& row : GaugeTable(format)) {
    for (std::size_t column = 0; column < GaugeColumns; ++column) {
      const auto [width, height] = measure(row[column]);
      const double room = GaugeLines[column + 1] - GaugeLines[column] - 2 * Indent;
      unit = std::max({unit, width / room, height * Leading / GaugeRowHeight});
    }
  }
  return unit;
}

PixelSize GaugeSize(double unit) {
  return {(GaugeLines[GaugeColumns] + GaugeLines[0]) * unit, (Bottom + GaugeTop) * unit};
}

void DrawGauges(Canvas& canvas, double unit, const GaugeColours& colours, const DisplayFormat& format) {
  canvas.Clear(colours.Ground);
  DrawHead(canvas, unit, colours.Head);
  DrawGrid(canvas, unit, colours.Lines);
  canvas.SetPen(colours.Texts, PenStyle::Solid);
  double middle = (GaugeTop + GaugeRowHeight / 2) * unit;
  for (const GaugeRow& row : GaugeTable(format)) {
    for (std::size_t column = 0; column < GaugeColumns; ++column) {
      const double top = middle - canvas.TextSize(row[column]).Height / 2;
      canvas.Text({(GaugeLines[column] + Indent) * unit, top}, row[column]);
    }
    middle += GaugeRowHeight * unit;
  }
}

}  // namespace tarnwick
