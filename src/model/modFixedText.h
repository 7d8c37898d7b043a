#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

/// A text of exactly N bytes, one character a byte, as it lies in a design file.
///
/// A text that was never assigned is N bytes of value 0; an assigned one is left-justified and padded with
/// blanks. The two are different texts on purpose: every byte counts when designs are compared and when they
/// are saved.
template <std::size_t N>
struct FixedText {
  std::array<char, N> Bytes{};

  /// Takes `text`, cut at N bytes and padded with blanks up to N.
  void Assign(std::string_view text) {
    Bytes.fill(' ');
    std::copy_n(text.begin(), std::min(text.size(), N), Bytes.begin());
  }

  /// All N bytes as they are.
  [[nodiscard]] std::string_view View() const { return {Bytes.data(), N}; }

  /// The words without the padding at both ends (blanks and never assigned bytes).
  [[nodiscard]] std::string Trimmed() const {
    constexpr std::string_view padding(" \0", 2);
    const std::string_view all = View();
    const auto first = all.find_first_not_of(padding);
    if (first == std::string_view::npos) return {};
    return std::string(all.substr(first, all.find_last_not_of(padding) - first + 1));
  }

  bool operator==(const FixedText&) const = default;
};

}  // namespace tarnwick
