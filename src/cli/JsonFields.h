#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "model/modBandSaw.h"

namespace tarnwick::cli {

/// A field of a record, to be filled: a whole number, a measure, an array of measures, the bytes of a text.
using Field =
    std::variant<std::int16_t*, std::int32_t*, std::uint8_t*, double*, SegmentMeasures*, std::span<char>>;

/// The fields of one record by the paths of their names, "GulletInfo.Radius", and the names of its groups,
/// "GulletInfo".
struct FieldsByName {
  explicit FieldsByName(BandSaw& saw);

  std::map<std::string_view, Field> Fields;
  std::set<std::string_view> Groups;
};

/// Stores a number in a whole-number field. `written` is what the user wrote, for the message.
/// @return what is wrong with the number; empty when it was stored
[[nodiscard]] std::string StoreWhole(std::int16_t& field, double value, std::string_view written);
[[nodiscard]] std::string StoreWhole(std::int32_t& field, double value, std::string_view written);
[[nodiscard]] std::string StoreWhole(std::uint8_t& field, double value, std::string_view written);

/// Stores a UTF-8 text, padded with blanks; "" is all zero bytes.
/// @return what is wrong with the text; empty when it was stored
[[nodiscard]] std::string StoreText(std::span<char> field, std::string_view utf8);

/// Stores bytes that are written as two hex digits each, exactly as many as the field has.
[[nodiscard]] std::string StoreHex(std::span<char> field, std::string_view digits);

/// Stores a number by its bits, 16 hex digits.
[[nodiscard]] std::string StoreBits(double& field, std::string_view digits);

}  // namespace tarnwick::cli
