#include "cli/JsonFields.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>

#include "model/modFields.h"
#include "store/modCodePage.h"

namespace tarnwick::cli {
namespace {

template <std::size_t N>
Field FieldOf(FixedText<N>& text) {
  return std::span<char>(text.Bytes);
}
template <class Value>
Field FieldOf(Value& value) {
  return &value;
}

template <class Whole>
std::string StoreWholeIn(Whole& field, double value, std::string_view written) {
  using Limits = std::numeric_limits<Whole>;
  if (value != std::trunc(value)) return std::string(written) + " is not a whole number";
  if (value < Limits::min() || value > Limits::max()) {
    return std::string(written) + " is out of range (" + std::to_string(Limits::min()) + " to " +
           std::to_string(Limits::max()) + ")";
  }
  field = static_cast<Whole>(value);
  return {};
}

/// Takes as many hex digits as there are; false when one of them is none.
bool ReadHex(std::string_view digits, std::uint64_t& value) {
  const char* last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, value, 16);
  return error == std::errc() && end == last;
}

}  // namespace

FieldsByName::FieldsByName(BandSaw& saw) {
  ForEachField(saw, [this](std::string_view path, auto& field) {
    Fields.emplace(path, FieldOf(field));
    if (const std::size_t point = path.find('.'); point != path.npos) Groups.insert(path.substr(0, point));
  });
}

std::string StoreWhole(std::int16_t& field, double value, std::string_view written) {
  return StoreWholeIn(field, value, written);
}
std::string StoreWhole(std::int32_t& field, double value, std::string_view written) {
  return StoreWholeIn(field, value, written);
}
std::string StoreWhole(std::uint8_t& field, double value, std::string_view written) {
  return StoreWholeIn(field, value, written);
}

std::string StoreText(std::span<char> field, std::string_view utf8) {
  const std::optional<std::string> text = CodePageText(utf8);
  if (!text) return "the text holds a character that is not in Windows-1252";
  if (text->size() > field.size()) {
    return "the text is too long (" + std::to_string(text->size()) + " characters, room for " +
           std::to_string(field.size()) + ")";
  }
  std::fill(field.begin(), field.end(), text->empty() ? '\0' : ' ');
  std::copy(text->begin(), text->end(), field.begin());
  return {};
}

std::string StoreHex(std::span<char> field, std::string_view digits) {
  if (digits.size() != 2 * field.size()) {
    return "the text's bytes take " + std::to_string(2 * field.size()) + " hex digits, not " +
           std::to_string(digits.size());
  }
  for (char& byte : field) {
    std::uint64_t value = 0;
    if (!ReadHex(digits.substr(0, 2), value)) return "not a hex digit in the text's bytes";
    byte = static_cast<char>(value);
    digits.remove_prefix(2);
  }
  return {};
}

std::string StoreBits(double& field, std::string_view digits) {
  constexpr std::size_t digitsOfDouble = 16;
  std::uint64_t bits = 0;
  if (digits.size() != digitsOfDouble || !ReadHex(digits, bits))
    return "the bits of a number are 16 hex digits";
  field = std::bit_cast<double>(bits);
  return {};
}

}  // namespace tarnwick::cli
