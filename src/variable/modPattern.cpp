#include "variable/modPattern.h"

#include <array>
#include <cstddef>

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, Patterns> Names{"None", "Left to Right:", "Right to Left", "Mixed"};

constexpr int Presets = Patterns - 1;
constexpr int Counts = MostSegmentTeeth - LeastSegmentTeeth + 1;
using Shares = std::array<double, MostSegmentTeeth>;

/// A row for 3, 4, 5, 6 and 7 teeth; what a row has no tooth for is 0.
constexpr std::array<std::array<Shares, Counts>, Presets> Table{{
    {{
        {0.371, 0.332, 0.297},
        {0.295, 0.263, 0.236, 0.206},
        {0.245, 0.218, 0.197, 0.17, 0.17},
        {0.21, 0.191, 0.173, 0.156, 0.135, 0.135},
        {0.183, 0.175, 0.159, 0.143, 0.124, 0.108, 0.108},
    }},
    {{
        {0.297, 0.332, 0.371},
        {0.206, 0.236, 0.263, 0.295},
        {0.17, 0.17, 0.197, 0.218, 0.245},
        {0.135, 0.135, 0.156, 0.173, 0.191, 0.21},
        {0.108, 0.108, 0.124, 0.143, 0.159, 0.175, 0.183},
    }},
    {{
        {0.297, 0.371, 0.332},
        {0.206, 0.263, 0.295, 0.236},
        {0.17, 0.218, 0.245, 0.197, 0.17},
        {0.135, 0.173, 0.21, 0.156, 0.135, 0.191},
        {0.124, 0.159, 0.183, 0.143, 0.108, 0.175, 0.108},
    }},
}};

}  // namespace

std::string_view PatternName(int pattern) {
  return pattern >= 0 && pattern < Patterns ? Names[static_cast<std::size_t>(pattern)] : std::string_view();
}

std::span<const double> SharesOf(int pattern, int teeth) {
  if (pattern < LeftToRightPattern || pattern > MixedPattern) return {};
  if (teeth < LeastSegmentTeeth || teeth > MostSegmentTeeth) return {};
  const Shares& row = Table[static_cast<std::size_t>(pattern - LeftToRightPattern)]
                           [static_cast<std::size_t>(teeth - LeastSegmentTeeth)];
  return std::span(row).first(static_cast<std::size_t>(teeth));
}

std::vector<std::string> SegmentEntries(int numTeeth) {
  std::vector<std::string> entries{"None"};
  for (int teeth = LeastSegmentTeeth; numTeeth != 0 && teeth <= MostSegmentTeeth; ++teeth) {
    if (numTeeth % teeth == 0) entries.push_back(std::to_string(teeth) + " Teeth");
  }
  return entries;
}

}  // namespace tarnwick
