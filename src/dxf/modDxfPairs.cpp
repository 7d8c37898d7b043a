#include "dxf/modDxfPairs.h"

#include <charconv>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr std::string_view LineEnd = "\r\n";

}  // namespace

/// The code's line: the blanks on either side belong to it, machines expect them.
void DxfPairs::OpenPair(int code) {
  ++count_;
  char digits[8];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, code);
  text_ += ' ';
  text_.append(digits, end);
  text_ += ' ';
  text_ += LineEnd;
}

void DxfPairs::Add(int code, std::string_view value) {
  OpenPair(code);
  text_ += value;
  text_ += LineEnd;
}

void DxfPairs::Add(int code, double value) {
  OpenPair(code);
  AppendGeneralText(text_, value);
  text_ += LineEnd;
}

}  // namespace tarnwick
