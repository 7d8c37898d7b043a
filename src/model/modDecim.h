#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "model/modChecked.h"

namespace tarnwick {

/// The value of pi everywhere in the system: fifteen digits, not the nearest double. The last digit of a
/// coordinate hangs on it.
inline constexpr double Pi = 3.14159265358979;

[[nodiscard]] constexpr double Radians(double degrees) { return (degrees * Pi) / 180; }

inline constexpr double InchesPerFoot = 12;

/// The one rounding rule, at a fixed number of places.
///
///   shifted = (0.05 / 10^places + value) * 10^places,   cut toward zero,   divided by 10^places
///
/// A truncation with a small lift, no rounding to nearest: the twentieth of the last place keeps 1.2299999999
/// from falling to 1.22 and does nothing more. Below zero the lift works against the magnitude, so an already
/// rounded negative number loses one unit of the last place each time: Rounding(6)(-1) is -0.999999. Both are
/// meant; coordinates depend on it.
///
/// A number too large to be shifted gives 0. The result is never -0.
class Rounding {
 public:
  explicit Rounding(int places);

  [[nodiscard]] double operator()(double value) const noexcept {
    const double shifted = (lift_ + value) * scale_;
    if (!(std::abs(shifted) < WholeFrom)) return OfHuge(shifted);
    return static_cast<double>(static_cast<std::int64_t>(shifted)) / scale_;
  }

  /// `Let(target) = RoundTo(value)` in one step, for what is done to every number of a band: a value that
  /// failed to be a finite number leaves the target alone.
  void Store(double& target, double value) const noexcept {
    if (std::isfinite(value)) target = (*this)(value);
  }

  /// Within a statement: a failed expression stays failed, a number is rounded.
  [[nodiscard]] Checked operator()(Checked value) const noexcept {
    return value.Ok() ? Checked((*this)(value.OrZero())) : value;
  }

  /// (*this)(rounded) for a number that this rule has made already: k of the last place, a whole number. From
  /// 0 up it stays what it is, as k and the twentieth are k again when they are cut; which holds as long as
  /// the twentieth is more than the last bits of k, that is up to 2^46.
  [[nodiscard]] double Again(double rounded) const noexcept {
    constexpr double sureUpTo = 70368744177664.0;
    return rounded >= 0 && rounded * scale_ < sureUpTo ? rounded : (*this)(rounded);
  }

  /// One of the last place.
  [[nodiscard]] double Unit() const noexcept { return 1 / scale_; }

 private:
  static constexpr double WholeFrom =
      9007199254740992.0;  // 2^53: every double from here on is a whole number
  [[nodiscard]] double OfHuge(double shifted) const noexcept;

  double scale_;  // 10 raised to the places
  double lift_;   // a twentieth of the last place
};

/// `value` by the rounding rule at `places`; see Rounding.
[[nodiscard]] double RoundTo(double value, int places);

/// Text to number, the one way in the whole system: leading blanks, sign, digits, point and digits, exponent;
/// stops at the first character that does not fit. Blanks among the digits are passed over. A text without a
/// leading number gives 0, and so does one whose number is too large for a double.
[[nodiscard]] double ReadNumber(std::string_view text);

/// Shortest general form of a number as the files and texts of the system show it: up to 15 significant
/// digits, no trailing zeros, no point for a whole number, a zero before the point, exponent form ("1E-05")
/// below 0.0001 and from 1E+15 on.
[[nodiscard]] std::string GeneralText(double value);

/// The same, appended to `out`: what the writers of long files use.
void AppendGeneralText(std::string& out, double value);

/// A plain number to text as fields, boxes and settings show it: a blank (or the minus sign) ahead, no zero
/// before the point: " .125".
[[nodiscard]] std::string DecimalText(double value);

/// The same for a text that is read back as an equation, which knows no exponent: " .00001". An infinity or a
/// NaN is " 0".
[[nodiscard]] std::string PlainText(double value);

/// `value` as a whole number of the type `Whole`: to the nearest, ties to the even one. nullopt when it lies
/// beyond the type's range, or is no number.
template <std::signed_integral Whole>
[[nodiscard]] std::optional<Whole> WholeNumber(double value) {
  const double nearest = std::nearbyint(value);
  constexpr auto beyond = -static_cast<double>(std::numeric_limits<Whole>::min());  // exact: a power of two
  if (!(nearest >= -beyond && nearest < beyond)) return std::nullopt;
  return static_cast<Whole>(nearest);
}

/// Conversions between stored imperial measures and metric figures, text to text, at `places`
/// (DecimalPlaces). Each reads by ReadNumber, multiplies, rounds, and gives decimal text without the leading
/// blank. An overflow gives "0".
[[nodiscard]] std::string InToCm(std::string_view text, int places);
[[nodiscard]] std::string InToMm(std::string_view text, int places);
[[nodiscard]] std::string FtToM(std::string_view text, int places);
[[nodiscard]] std::string In2ToCm2(std::string_view text, int places);
[[nodiscard]] std::string CmToIn(std::string_view text, int places);
[[nodiscard]] std::string MToFt(std::string_view text, int places);
[[nodiscard]] std::string MmToIn(std::string_view text, int places);

}  // namespace tarnwick
