#pragma once

#include <cmath>
#include <cstdint>
#include <string_view>

namespace tarnwick {

/// Why a statement of the calculation failed. The numbers are those that a user is shown.
enum class Failure : int {
  None = 0,
  InvalidCall = 5,  // root of a negative number
  Overflow = 6,
  Subscript = 9,
  DivisionByZero = 11,
};

/// "Division by zero" and so on; empty for None.
[[nodiscard]] constexpr std::string_view DescriptionOf(Failure why) {
  switch (why) {
    case Failure::InvalidCall:
      return "Invalid procedure call or argument";
    case Failure::Overflow:
      return "Overflow";
    case Failure::Subscript:
      return "Subscript out of range";
    case Failure::DivisionByZero:
      return "Division by zero";
    case Failure::None:
      break;
  }
  return {};
}

/// A number on its way through one statement of the calculation, with the first failure met on the way.
///
/// The calculation never stops on bad measures: a statement that cannot be worked out is skipped, and its
/// target keeps what it held. So a sum of measures is written as it stands, quotients and roots by `Quotient`
/// and `Root`, and the outcome is stored by `Let(target) = ...`, which leaves the target alone on failure.
/// NaN alone would not do: arctan(x / 0) and x / (something infinite) are finite in IEEE arithmetic and
/// failures here.
///
/// Plain doubles may be added, subtracted and multiplied before they meet a Checked: what overflows is
/// infinite (or NaN) from then on and is caught where it becomes a Checked. Plain division by a measure is
/// not safe in that way and is not used in the calculation.
class Checked {
 public:
  Checked(double value) noexcept  // a number is a statement's simplest expression, so it converts by itself
      : value_(value), failure_(std::isfinite(value) ? Failure::None : Failure::Overflow) {}

  [[nodiscard]] static Checked Failed(Failure why) noexcept { return Checked(0.0, why); }

  [[nodiscard]] bool Ok() const noexcept { return failure_ == Failure::None; }
  [[nodiscard]] Failure Why() const noexcept { return failure_; }
  /// The number; 0 when the statement failed, which is what a variable holds that was never assigned.
  [[nodiscard]] double OrZero() const noexcept { return Ok() ? value_ : 0.0; }

  friend Checked operator-(Checked a) noexcept { return a.Ok() ? Checked(-a.value_) : a; }
  friend Checked operator+(Checked a, Checked b) noexcept { return Settle(a, b, a.value_ + b.value_); }
  friend Checked operator-(Checked a, Checked b) noexcept { return Settle(a, b, a.value_ - b.value_); }
  friend Checked operator*(Checked a, Checked b) noexcept { return Settle(a, b, a.value_ * b.value_); }

  /// a / b; a zero divisor fails whatever is divided.
  friend Checked Quotient(Checked a, Checked b) noexcept {
    if (a.Ok() && b.Ok() && b.value_ == 0) return Failed(Failure::DivisionByZero);
    return Settle(a, b, a.value_ / b.value_);
  }
  friend Checked Root(Checked a) noexcept {
    if (!a.Ok()) return a;
    return a.value_ < 0 ? Failed(Failure::InvalidCall) : Checked(std::sqrt(a.value_));
  }
  friend Checked Magnitude(Checked a) noexcept { return a.Ok() ? Checked(std::abs(a.value_)) : a; }

 private:
  Checked(double value, Failure why) noexcept : value_(value), failure_(why) {}

  static Checked Settle(Checked a, Checked b, double result) noexcept {
    if (!a.Ok()) return a;
    if (!b.Ok()) return b;
    return Checked(result);
  }

  double value_;
  Failure failure_;
};

// Friends need a declaration outside the class to be found for plain doubles too.
Checked Quotient(Checked a, Checked b) noexcept;
Checked Root(Checked a) noexcept;
Checked Magnitude(Checked a) noexcept;

/// The left side of a statement: `Let(x) = expression;` stores the number, or leaves x alone when the
/// expression failed.
class LetTarget {
 public:
  explicit LetTarget(double& target) noexcept : target_(target) {}
  void operator=(Checked outcome) const noexcept {
    if (outcome.Ok()) target_ = outcome.OrZero();
  }

 private:
  double& target_;
};

[[nodiscard]] inline LetTarget Let(double& target) noexcept { return LetTarget(target); }

/// The same for a 16-bit field: the number is cut toward zero, and one out of the field's range is an
/// overflow.
class LetWhole {
 public:
  explicit LetWhole(std::int16_t& target) noexcept : target_(target) {}
  void operator=(Checked outcome) const noexcept {
    const double whole = std::trunc(outcome.OrZero());
    if (outcome.Ok() && whole >= INT16_MIN && whole <= INT16_MAX) target_ = static_cast<std::int16_t>(whole);
  }

 private:
  std::int16_t& target_;
};

[[nodiscard]] inline LetWhole Let(std::int16_t& target) noexcept { return LetWhole(target); }

}  // namespace tarnwick
