#include "dxf/modDxfPairs.h"

#include <algorithm>
#include <charconv>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr std::string_view LineEnd = "\r\n";

}  // namespace

/// The code's line: the blanks on either side belong to it, machines expect them.
void DxfPairs::OpenPair(int code) {
  ++count_;
  char line[16] = " ";
  char* end = std::to_chars(line + 1, line + sizeof line, code).ptr;
  *end++ = ' ';
  text_.append(line, std::copy(LineEnd.begin(), LineEnd.end(), end));
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
