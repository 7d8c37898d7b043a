#include "window/modRowScroll.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

constexpr double UnitsPerPixel = 15;
constexpr double UnitsPerStep = 250;  // the height of a row
constexpr double AirAbove = 12;       // units
constexpr double RowPixels = UnitsPerStep / UnitsPerPixel;

/// Steps that move `pixels` out of sight. A hair is no step.
int StepsOver(double pixels) { return static_cast<int>(std::ceil(pixels / RowPixels - 1e-6)); }

}  // namespace

double TopOfRows(int bar) { return (bar * UnitsPerStep + AirAbove) / UnitsPerPixel; }

int LowestBar(double heightOfRows, double shown) {
  return -std::max(0, StepsOver(TopOfRows(0) + heightOfRows - shown));
}

int BarToSee(const RowBox& row, int bar, double shown) {
  const int last =
      -std::max(0, StepsOver(TopOfRows(0) + row.Bottom - shown));  // the bar that just shows its foot
  const int first =
      -static_cast<int>(std::floor(row.Top / RowPixels + 1e-6));  // and that just shows its head
  return std::max(first, std::min(bar, last));
}

int RowsOfPage(double shown) { return std::max(1, static_cast<int>(shown / RowPixels) - 1); }

}  // namespace tarnwick
