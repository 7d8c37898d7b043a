#include "shell/modWindowSize.h"

#include "model/modDecim.h"

namespace tarnwick {

LayoutShares SharesOf(int width, int leastWidth, int places) {
  constexpr double unitsPerPixel = 15;
  const double extra = (width - leastWidth) * unitsPerPixel;
  if (!(extra > 0)) return {};
  const auto share = [&](double part) { return RoundTo(extra / part, places) / unitsPerPixel; };
  return {share(2.5), share(5.0), share(4.0)};
}

}  // namespace tarnwick
