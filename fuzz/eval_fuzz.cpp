// Any bytes as typed text: an equation or a refusal that leaves the value alone, and what the box then shows
// is read back as the same number.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "entry/modCalculate.h"
#include "model/modDecim.h"
#include "platform/CollectedMessages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int places = 5;
  constexpr double untouched = 4711;
  constexpr std::size_t charactersRead = 80;  // of a text
  tarnwick::CollectedMessages messages;
  std::string text(data, data + size);
  double value = untouched;
  if (!tarnwick::EvaluateEquation(text, value, places, messages)) {
    if (value != untouched || messages.Shown.size() != 1) std::abort();
    return 0;
  }
  if (!messages.Shown.empty()) std::abort();

  const std::string shown = tarnwick::PlainText(value);
  std::string again = shown;
  double readBack = untouched;
  if (!tarnwick::EvaluateEquation(again, readBack, places, messages)) std::abort();
  const bool isReadWhole = shown.size() <= charactersRead;  // not the largest and the smallest of numbers
  if (std::isfinite(value) && isReadWhole && tarnwick::PlainText(readBack) != shown) std::abort();
  return 0;
}
