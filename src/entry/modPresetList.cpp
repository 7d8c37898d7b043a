#include "entry/modPresetList.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>
#include <variant>

#include "entry/modFraction.h"
#include "entry/modParameter.h"
#include "model/modDecim.h"
#include "power/modWood.h"

namespace tarnwick {
namespace {

using Entries = std::vector<std::string>;

/// Whole numbers from `First` to `Last`.
struct Wholes {
  int First, Last, Step;
  std::string_view Word;
};

/// `Count` entries; the first is start + step.
struct Steps {
  int Count;
  std::string_view Start, Step;
  std::string_view Word;
};

struct FractionSteps : Steps {};
struct FeetInchesSteps : Steps {};

using Generator = std::variant<Wholes, Steps, FractionSteps, FeetInchesSteps>;

struct ListRow {
  int Number;
  Generator InMetric, InImperial;
};

constexpr Wholes Angles{0, 35, 1, " deg"};
constexpr Wholes WideAngles{0, 45, 1, " deg"};
constexpr Wholes Teeth{48, 120, 1, ""};
constexpr Wholes Rpms{450, 2400, 50, " rpms"};
constexpr Wholes Feeds{100, 500, 25, " Fpm"};
constexpr Steps SmallMm{25, "0", "0.125", " mm"}, SmallInches{25, "0", "0.005", " in"};
constexpr Steps PlateMm{46, ".75", "0.250", " mm"}, PlateInches{46, ".060", "0.005", " in"};
constexpr Steps NotchMm{31, "0", "0.25", " mm"}, NotchInches{31, "0", "0.01", " in"};
constexpr Wholes WidthsCm{10, 50, 1, " cm"}, WidthsInches{4, 20, 1, " in"};

constexpr ListRow Lists[] = {
    {1, Wholes{3, 15, 1, " m"}, Wholes{10, 50, 1, " ft"}},
    {2, Teeth, Teeth},
    {3, SmallMm, SmallInches},
    {4, Steps{51, "4.000", "0.125", " mm"}, Steps{51, ".175", "0.005", " in"}},
    {5, Angles, Angles},
    {7, Steps{41, "0", "0.1", " cm"}, FractionSteps{{32, "0", "0.03125", " in"}}},
    {8, Steps{41, ".4", "0.1", " cm"}, FractionSteps{{41, ".21875", "0.03125", " in"}}},
    {10, WidthsCm, WidthsInches},
    {11, Steps{46, ".500", "0.500", " cm"}, Steps{46, ".450", "0.050", " in"}},
    {12, WideAngles, WideAngles},
    {13, SmallMm, SmallInches},
    {14, Steps{41, ".15", "0.1", " cm"}, FractionSteps{{30, ".09375", "0.03125", " in"}}},
    {15, Steps{28, ".2", "0.1", " m"}, FeetInchesSteps{{31, ".75", ".25", ""}}},
    {16, Steps{38, ".2", "0.1", " m"}, FeetInchesSteps{{45, ".75", ".25", ""}}},
    {17, PlateMm, PlateInches},
    {19, Rpms, Rpms},
    {20, Feeds, Feeds},
    {21, WidthsCm, WidthsInches},
    {24, NotchMm, NotchInches},
    {25, NotchMm, NotchInches},
    {26, NotchMm, NotchInches},
    {27, Angles, Angles},
};

Entries Make(const Wholes& list, const DisplayFormat&) {
  Entries entries;
  for (int n = list.First; n <= list.Last; n += list.Step) {
    entries.push_back(DecimalText(n).append(list.Word));
  }
  return entries;
}

/// `Count` entries. The text of each value comes from that of the one before it, as `shown` leaves it.
template <class Shown, class EntryOf>
Entries StepByStep(const Steps& list, Shown shown, EntryOf entryOf) {
  Entries entries;
  std::string running(list.Start);
  for (int i = 0; i < list.Count; ++i) {
    running = shown(DecimalText(ReadNumber(running) + ReadNumber(list.Step)));
    entries.push_back(entryOf(running));
  }
  return entries;
}

auto AsShown(const DisplayFormat& format) {
  return [&format](std::string text) { return FormatValue(text, PlainNumber, format); };
}

Entries Make(const Steps& list, const DisplayFormat& format) {
  return StepByStep(list, AsShown(format),
                    [&list](const std::string& text) { return text + std::string(list.Word); });
}

Entries Make(const FractionSteps& list, const DisplayFormat&) {
  const auto asItIs = [](std::string text) { return text; };
  return StepByStep(list, asItIs,
                    [&list](const std::string& text) { return DecimalToFraction(text).append(list.Word); });
}

std::string FeetInchesText(double feet) {
  const double whole = std::trunc(feet);
  const double inches = (feet - whole) * InchesPerFoot;
  std::string text = DecimalText(whole) + " ft";
  if (inches != 0) text += ' ' + DecimalText(inches) + " in";
  return text;
}

Entries Make(const FeetInchesSteps& list, const DisplayFormat& format) {
  return StepByStep(list, AsShown(format),
                    [](const std::string& text) { return FeetInchesText(ReadNumber(text)); });
}

Entries NamesOf(StoreRule rule) {
  Entries entries;
  for (const ChoiceName& choice : ChoiceNames(rule)) entries.emplace_back(choice.Name);
  return entries;
}

/// The woods under their two headings, a line of space between them. "Oak (Southern Red)" is missing on
/// purpose: only saved designs still know it.
Entries WoodNames() {
  Entries entries;
  for (const Wood& wood : Woods()) {
    if (wood.Name == "Oak (Southern Red)") continue;
    if (wood.Name == "Hardwoods:") entries.emplace_back();
    entries.emplace_back(wood.Name);
  }
  return entries;
}

}  // namespace

Entries ShowListValues(int number, const DisplayFormat& format) {
  switch (number) {
    case 9:
      return NamesOf(StoreRule::StyleCode);
    case 18:
      return NamesOf(StoreRule::TipCode);
    case 22:
      return WoodNames();
    case 23:
      return NamesOf(StoreRule::JoinCode);
    default:
      break;
  }
  const auto* const row = std::find_if(std::begin(Lists), std::end(Lists),
                                       [number](const ListRow& r) { return r.Number == number; });
  if (row == std::end(Lists)) return {};
  return std::visit([&format](const auto& list) { return Make(list, format); },
                    format.IsMetric() ? row->InMetric : row->InImperial);
}

}  // namespace tarnwick
