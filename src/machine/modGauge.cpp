#include "machine/modGauge.h"

#include <iterator>

namespace tarnwick {
namespace {

struct Gauge {
  const char* Name;
  double Inches, Millimetres;
};

constexpr Gauge Gauges[] = {
    {"20 ga", 0.035, 0.889}, {"19 ga", 0.042, 1.067}, {"18 ga", 0.049, 1.245}, {"17 ga", 0.058, 1.473},
    {"16 ga", 0.065, 1.651}, {"15 ga", 0.072, 1.829}, {"14 ga", 0.083, 2.108}, {"13 ga", 0.095, 2.413},
    {"12 ga", 0.109, 2.769}, {"11 ga", 0.12, 3.048},  {"10 ga", 0.134, 3.404}, {" 9 ga", 0.148, 3.759},
    {" 8 ga", 0.165, 4.191},
};
static_assert(std::size(Gauges) == GaugeCount);

}  // namespace

std::array<GaugeRow, GaugeCount + 1> GaugeTable(const DisplayFormat& format) {
  std::array<GaugeRow, GaugeCount + 1> table;
  table[0] = {"GA", "Inches", "Millimeters"};
  for (std::size_t i = 0; i < GaugeCount; ++i) {
    const auto& [name, inches, millimetres] = Gauges[i];
    table[i + 1] = {name, FormatNumber(inches, PlainNumber, format) + " in",
                    FormatNumber(millimetres, PlainNumber, format) + " mm"};
  }
  return table;
}

}  // namespace tarnwick
