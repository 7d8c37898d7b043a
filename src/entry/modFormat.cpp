#include "entry/modFormat.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "entry/modCalculate.h"
#include "model/modCharacters.h"
#include "model/modDecim.h"

namespace tarnwick {
namespace {

using Conversion = std::string (*)(std::string_view text, int places);

struct Unit {
  std::string_view ImperialWord, MetricWord;
  Conversion ToMetric;  // nullptr: the same number in both systems
};

// By UnitKind. Revolutions come first in their own way, see FormatValue.
constexpr Unit Units[] = {
    {"", "", nullptr},           {" in", " cm", InToCm},     {" ft", " m", FtToM},
    {" deg", " deg", nullptr},   {" in²", " cm²", In2ToCm2}, {" in", " mm", InToMm},
    {" rpms", " rpms", nullptr}, {" fpm", " mpm", FtToM},
};

const Unit& UnitOf(int kind) {
  const bool known = kind >= 0 && kind < static_cast<int>(std::size(Units));
  return Units[known ? kind : PlainNumber];
}

/// Digits of a number, whole ones and decimals, without sign and point.
struct Digits {
  std::string Whole, Decimals;
};

/// Rounds half away from zero: adds one to the last digit kept when the first one dropped is 5 or more.
void RoundDigits(Digits& digits, std::size_t places) {
  const bool up = digits.Decimals.size() > places && digits.Decimals[places] >= '5';
  digits.Decimals.resize(places, '0');
  if (!up) return;
  std::string all = digits.Whole + digits.Decimals;
  std::size_t carry = all.size();
  while (carry > 0 && all[carry - 1] == '9') all[--carry] = '0';
  if (carry > 0) {
    ++all[carry - 1];
  } else {
    all.insert(0, 1, '1');
  }
  digits.Whole = all.substr(0, all.size() - places);
  digits.Decimals = all.substr(all.size() - places);
}

void GroupThousands(std::string& whole) {
  for (std::size_t from = whole.size(); from > 3; from -= 3) whole.insert(from - 3, 1, ',');
}

/// The mask "#,###,##0.0..." with `places` decimals: on the fifteen digits that a number is shown with.
std::string Masked(double value, std::size_t places) {
  const std::string plain = PlainText(value);
  const std::size_t point = std::min(plain.find('.'), plain.size());
  Digits digits{plain.substr(1, point - 1), plain.substr(std::min(point + 1, plain.size()))};
  RoundDigits(digits, places);
  if (digits.Whole.empty()) digits.Whole = "0";
  const bool isZero = (digits.Whole + digits.Decimals).find_first_not_of('0') == std::string::npos;
  GroupThousands(digits.Whole);
  std::string masked = plain.front() == '-' && !isZero ? "-" : "";
  masked += digits.Whole;
  masked += '.';
  masked += digits.Decimals;
  return masked;
}

}  // namespace

std::string FormatValue(std::string& text, int kind, const DisplayFormat& format) {
  const Unit& unit = UnitOf(kind);
  const std::string word(format.IsMetric() ? unit.MetricWord : unit.ImperialWord);
  if (format.IsMetric() && unit.ToMetric) {
    text = DecimalText(ReadNumber(unit.ToMetric(text, format.DecimalPlaces)));
  }

  if (kind == RevolutionsPerMinute) return ' ' + CommaToPoint(Trimmed(text)) + word;
  if (kind == FeetPerMinute) {
    // A speed too large for a whole number stays the 0 that was never overwritten.
    return ' ' + std::to_string(WholeNumber<std::int32_t>(ReadNumber(text)).value_or(0)) + word;
  }
  const bool masked = format.DisplayPlaces >= 1 && format.DisplayPlaces <= 10;
  const std::string shown =
      masked ? Masked(ReadNumber(text), static_cast<std::size_t>(format.DisplayPlaces)) : text;
  // Over the separators of thousands as well: 1,234.500 is shown as 1.234.500 on purpose.
  return ' ' + CommaToPoint(shown) + word;
}

std::string FormatNumber(double value, int kind, const DisplayFormat& format) {
  std::string text = DecimalText(value);
  return FormatValue(text, kind, format);
}

}  // namespace tarnwick
