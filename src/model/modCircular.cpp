#include "model/modCircular.h"

#ifdef TARNWICK_WIDE_CIRCULAR

#include <cstdint>

namespace tarnwick {
namespace {

/// An angle as quarter turns and the rest, which is an eighth of a turn at most.
struct Turned {
  std::int64_t Quarters{};
  long double Rest{};
};

/// The processor knows a quarter turn with 66 bits only, too few for the sine of an angle close to a half
/// turn. Here it has 128, in parts that are short enough for exact products.
Turned Split(double radians) {
  constexpr long double quarter[] = {0x1.921FB544p0L, 0x42D18469p-64L, 0x898CC51701B839A2p-128L};
  const long double quarters = std::nearbyint(radians / quarter[0]);
  long double rest = radians;
  for (const long double part : quarter) rest -= quarters * part;
  return {static_cast<std::int64_t>(quarters), rest};
}

/// Beyond that the products above are not exact. No saw has such angles.
bool IsHuge(double radians) { return !(std::abs(radians) < 2147483648.0); }

long double WideSine(Turned turned) {
  const long double size = turned.Quarters % 2 == 0 ? std::sin(turned.Rest) : std::cos(turned.Rest);
  return (turned.Quarters & 2) == 0 ? size : -size;
}

long double WideCosine(Turned turned) { return WideSine({turned.Quarters + 1, turned.Rest}); }

}  // namespace

double Sine(double radians) {
  return IsHuge(radians) ? std::sin(radians) : static_cast<double>(WideSine(Split(radians)));
}

double Cosine(double radians) {
  return IsHuge(radians) ? std::cos(radians) : static_cast<double>(WideCosine(Split(radians)));
}

double Tangent(double radians) {
  if (IsHuge(radians)) return std::tan(radians);
  const Turned turned = Split(radians);
  return static_cast<double>(WideSine(turned) / WideCosine(turned));
}

double Arctangent(double tangent) {
  return static_cast<double>(std::atan(static_cast<long double>(tangent)));
}

}  // namespace tarnwick

#endif
