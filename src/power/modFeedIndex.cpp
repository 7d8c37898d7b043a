#include "power/modFeedIndex.h"

#include <cstdint>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr int LeastPercent = 10, MostPercent = 100, PercentStep = 5;

}  // namespace

std::vector<std::string> FeedIndexEntries() {
  std::vector<std::string> entries;
  for (int percent = LeastPercent; percent <= MostPercent; percent += PercentStep) {
    entries.push_back(std::to_string(percent) + " Percent");
  }
  return entries;
}

double FeedIndexOf(std::string_view entry, int places) { return RoundTo(ReadNumber(entry) / 100, places); }

std::optional<std::size_t> FeedIndexEntryOf(double index) {
  const int percent = WholeNumber<std::int32_t>(index * 100).value_or(0);
  const bool listed =
      percent >= LeastPercent && percent <= MostPercent && (percent - LeastPercent) % PercentStep == 0;
  if (!listed) return std::nullopt;
  return static_cast<std::size_t>((percent - LeastPercent) / PercentStep);
}

}  // namespace tarnwick
