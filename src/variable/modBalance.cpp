#include "variable/modBalance.h"

#include <algorithm>
#include <numeric>

#include "model/modChecked.h"

namespace tarnwick {

int BalanceSegment(std::span<double> pitches, double segmentSize, PitchLimits limits) {
  if (pitches.size() < 2) return 0;
  const auto others = pitches.first(pitches.size() - 1);
  double& last = pitches.back();
  int passes = 0;
  while (passes < BalancePasses) {
    ++passes;
    Let(last) = segmentSize - std::accumulate(others.begin(), others.end(), 0.0);
    if (last < limits.Least) {
      double& largest = *std::max_element(others.begin(), others.end());
      largest = std::max(largest - (limits.Least - last), limits.Least);
      last = limits.Least;
    } else if (last > limits.Most) {
      double& smallest = *std::min_element(others.begin(), others.end());
      smallest = std::min(smallest + (last - limits.Most), limits.Most);
      last = limits.Most;
    } else {
      break;
    }
  }
  return passes;
}

}  // namespace tarnwick
