#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace tarnwick {

/// The pairs of group code and value of a drawing file, in file order, as its text.
class DxfPairs {
 public:
  /// `lastIndex`: the pairs are counted from 0, and none goes past this one.
  explicit DxfPairs(std::int32_t lastIndex) : most_(static_cast<std::int64_t>(lastIndex) + 1) {}

  void Add(int code, std::string_view value);
  /// A number in the shortest form of up to 15 significant digits.
  void Add(int code, double value);

  void Reserve(std::size_t bytes) { text_.reserve(bytes); }
  [[nodiscard]] bool Fits() const { return count_ <= most_; }
  [[nodiscard]] std::string TakeText() { return std::move(text_); }

 private:
  void OpenPair(int code);

  std::int64_t most_;
  std::int64_t count_ = 0;
  std::string text_;
};

}  // namespace tarnwick
