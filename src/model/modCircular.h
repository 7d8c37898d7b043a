#pragma once

#include <cmath>

#if defined(_WIN32) && defined(__LDBL_MANT_DIG__) && __LDBL_MANT_DIG__ == 64
#define TARNWICK_WIDE_CIRCULAR 1
#endif

namespace tarnwick {

// Sine and its kin as the calculation takes them, of radians.
//
// They are off the true value by little more than the half of the last digit, on every platform: coordinates
// hang on it. Most platforms' own functions do that. Those of Windows do not: every twentieth arctangent has
// another last digit, and each release of the system may bring others. So there they are worked out in the
// wider numbers of the processor.

#ifdef TARNWICK_WIDE_CIRCULAR
[[nodiscard]] double Sine(double radians);
[[nodiscard]] double Cosine(double radians);
[[nodiscard]] double Tangent(double radians);
[[nodiscard]] double Arctangent(double tangent);
#else
[[nodiscard]] inline double Sine(double radians) { return std::sin(radians); }
[[nodiscard]] inline double Cosine(double radians) { return std::cos(radians); }
[[nodiscard]] inline double Tangent(double radians) { return std::tan(radians); }
[[nodiscard]] inline double Arctangent(double tangent) { return std::atan(tangent); }
#endif

}  // namespace tarnwick
