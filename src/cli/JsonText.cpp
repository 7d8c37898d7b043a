#include "cli/JsonText.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace tarnwick::cli {
namespace {

void AppendHexByte(std::string& out, unsigned byte) {
  constexpr char digits[] = "0123456789abcdef";
  out += digits[byte >> 4 & 0xF];
  out += digits[byte & 0xF];
}

void AppendBits(std::string& json, double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  json += R"({"bits":")";
  for (int shift = 56; shift >= 0; shift -= 8)
    AppendHexByte(json, static_cast<unsigned>(bits >> shift & 0xFF));
  json += R"("})";
}

void AppendHex(std::string& json, std::string_view bytes) {
  json += R"({"hex":")";
  for (const char byte : bytes) AppendHexByte(json, static_cast<unsigned char>(byte));
  json += R"("})";
}

bool IsPrintable(char c) { return c >= ' ' && c <= '~'; }

}  // namespace

void AppendNumber(std::string& json, double value) {
  if (!std::isfinite(value)) {
    AppendBits(json, value);
  } else if (value == 0 && std::signbit(value)) {
    json += "-0.0";  // readers take -0 for a whole number, and those have one zero only
  } else {
    char digits[32];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value);
    json.append(digits, end);
  }
}

void AppendString(std::string& json, std::string_view utf8) {
  json += nlohmann::json(utf8).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

void AppendFixedText(std::string& json, std::string_view bytes) {
  const std::string_view words = bytes.substr(0, bytes.find_last_not_of(' ') + 1);
  if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return c == '\0'; })) {
    json += R"("")";
  } else if (!words.empty() && std::all_of(words.begin(), words.end(), IsPrintable)) {
    AppendString(json, words);
  } else {
    AppendHex(json, bytes);
  }
}

}  // namespace tarnwick::cli
