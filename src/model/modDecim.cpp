#include "model/modDecim.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace tarnwick {
namespace {

constexpr int SignificantDigits = 15;
constexpr double LeastWithoutExponent = 1e-4;

constexpr double CmPerInch = 2.54;
constexpr double MmPerInch = 25.4;
constexpr double MetresPerFoot = 0.3048;

/// 10 raised to `exponent`. Exact up to 22, and the nearest double from -22 to -1, which not every platform's
/// own power function is.
double PowerOfTen(int exponent) {
  double power = 1;
  for (int i = std::abs(exponent); i > 0; --i) power *= 10;
  return exponent < 0 ? 1 / power : power;
}

std::string Convert(std::string_view text, double factor, int places) {
  const double converted = RoundTo(Checked(ReadNumber(text) * factor).OrZero(), places);
  const std::string shown = DecimalText(converted);
  return shown.front() == ' ' ? shown.substr(1) : shown;
}

}  // namespace

Rounding::Rounding(int places) : scale_(PowerOfTen(places)), lift_(0.05 / scale_) {}

double Rounding::OfHuge(double shifted) const noexcept {
  const double result = shifted / scale_;
  return std::isfinite(shifted) && std::isfinite(result) ? result : 0.0;
}

double RoundTo(double value, int places) { return Rounding(places)(value); }

double ReadNumber(std::string_view text) {
  std::string digits;  // what belongs to the number, blanks taken out
  bool point = false, exponent = false;
  for (const char c : text) {
    if (c == ' ') continue;
    const bool sign = c == '-' || c == '+';
    const char before = digits.empty() ? '\0' : digits.back();
    if (c >= '0' && c <= '9') {
      digits += c;
    } else if (sign && (digits.empty() || before == 'E')) {
      digits += c;
    } else if (c == '.' && !point && !exponent) {
      point = true;
      digits += c;
    } else if ((c == 'e' || c == 'E') && !exponent &&
               digits.find_first_of("0123456789") != std::string::npos) {
      exponent = true;
      digits += 'E';
    } else {
      break;
    }
  }
  const char* first = digits.data();
  const char* last = first + digits.size();
  if (first != last && *first == '+') ++first;
  double value = 0;
  const auto [end, error] = std::from_chars(first, last, value);
  return error == std::errc() ? value : 0.0;
}

void AppendGeneralText(std::string& out, double value) {
  const double shown = value + 0.0;  // turns -0 into 0: a drawing knows no negative zero
  char buffer[32];
  char* const last = buffer + sizeof buffer;
  // The digits that just tell a double from its neighbours are its general form as long as there are no more
  // than fifteen of them. They come faster, and nearly every number of a drawing is that short.
  std::to_chars_result made = std::to_chars(buffer, last, shown, std::chars_format::fixed);
  const bool isShort = made.ec == std::errc() && made.ptr - buffer <= SignificantDigits;
  if (!isShort || std::abs(shown) < LeastWithoutExponent) {
    made = std::to_chars(buffer, last, shown, std::chars_format::general, SignificantDigits);
    std::replace(buffer, made.ptr, 'e', 'E');
  }
  out.append(buffer, made.ptr);
}

std::string GeneralText(double value) {
  std::string text;
  AppendGeneralText(text, value);
  return text;
}

std::string DecimalText(double value) {
  std::string text = GeneralText(value);
  if (text.front() != '-') text.insert(0, 1, ' ');
  if (text.compare(1, 2, "0.") == 0) text.erase(1, 1);
  return text;
}

std::string PlainText(double value) {
  if (!std::isfinite(value)) return " 0";
  std::string text = DecimalText(value);
  const std::size_t mark = text.find('E');
  if (mark == std::string::npos) return text;
  const int exponent = static_cast<int>(ReadNumber(std::string_view(text).substr(mark + 1)));
  std::string digits = text.substr(1, mark - 1);
  std::erase(digits, '.');
  const int before = exponent + 1;  // digits ahead of the point
  if (before <= 0) {
    digits.insert(0, static_cast<std::size_t>(-before), '0');
    return text.front() + ('.' + digits);
  }
  const auto whole = static_cast<std::size_t>(before);
  if (digits.size() < whole) digits.append(whole - digits.size(), '0');
  if (digits.size() > whole) digits.insert(whole, 1, '.');
  return text.front() + digits;
}

std::string InToCm(std::string_view text, int places) { return Convert(text, CmPerInch, places); }
std::string InToMm(std::string_view text, int places) { return Convert(text, MmPerInch, places); }
std::string FtToM(std::string_view text, int places) { return Convert(text, MetresPerFoot, places); }
std::string In2ToCm2(std::string_view text, int places) {
  return Convert(text, CmPerInch * CmPerInch, places);
}

// The way back multiplies by the inverse, worked out first: dividing instead would differ in the last place.
std::string CmToIn(std::string_view text, int places) { return Convert(text, 1.0 / CmPerInch, places); }
std::string MToFt(std::string_view text, int places) { return Convert(text, 1.0 / MetresPerFoot, places); }
std::string MmToIn(std::string_view text, int places) { return Convert(text, 1.0 / MmPerInch, places); }

}  // namespace tarnwick
