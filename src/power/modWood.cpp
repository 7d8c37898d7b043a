#include "power/modWood.h"

#include <algorithm>
#include <array>

#include "model/modCharacters.h"

namespace tarnwick {
namespace {

// Names are keys in saved designs. "Cedar (Soutern Red)" and "Popular": spelt so on purpose.
constexpr auto Table = std::to_array<Wood>({
    {"Softwoods:", 0},
    {"Cedar (Eastern Red)", 0.44},
    {"Cedar (Northern White)", 0.29},
    {"Cedar (Soutern Red)", 0.42},
    {"Cedar (Western Red)", 0.31},
    {"Cypress", 0.42},
    {"Douglas Fir (Coast)", 0.45},
    {"Douglas Fir (Rocky Mt)", 0.4},
    {"Fir (Alpine)", 0.31},
    {"Fir (California Red)", 0.37},
    {"Fir (Silver)", 0.35},
    {"Fir (White)", 0.35},
    {"Hemlock (Eastern)", 0.38},
    {"Hemlock (Mountain)", 0.43},
    {"Hemlock (Western)", 0.38},
    {"Larch", 0.51},
    {"Pine (Eastern White)", 0.34},
    {"Pine (Jack)", 0.4},
    {"Pine (Lodgepole)", 0.38},
    {"Pine (Northern White)", 0.34},
    {"Pine (Ponderosa)", 0.38},
    {"Pine (Western White)", 0.36},
    {"Redwood", 0.38},
    {"Spruce (Engelmann)", 0.32},
    {"Spruce (Red)", 0.38},
    {"Spruce (White)", 0.37},
    {"Tamarack", 0.49},
    {"Hardwoods:", 0},
    {"Alder", 0.37},
    {"Ash (White)", 0.55},
    {"Aspen", 0.35},
    {"Beech", 0.56},
    {"Birch (Yellow)", 0.55},
    {"Cherry (Black)", 0.47},
    {"Chestnut", 0.4},
    {"Cottonwood (Eastern)", 0.37},
    {"Elm (American White)", 0.46},
    {"Hickory", 0.62},
    {"Maple (Black)", 0.52},
    {"Maple (Red)", 0.49},
    {"Maple (Silver)", 0.44},
    {"Oak (Black)", 0.56},
    {"Oak (Northern Red)", 0.56},
    {"Oak (Southern Red)", 0.52},  // no list offers it; saved designs may name it
    {"Oak (White)", 0.6},
    {"Popular", 0.4},
    {"Walnut", 0.51},
    {"Willow (Black)", 0.34},
});

}  // namespace

std::span<const Wood> Woods() { return Table; }

double SpecificEnergy(std::string_view name) {
  const std::string_view wanted = Trimmed(name);
  const auto found =
      std::find_if(Table.begin(), Table.end(), [&](const Wood& w) { return w.Name == wanted; });
  return found == Table.end() ? 0.0 : found->SpecificEnergy;
}

}  // namespace tarnwick
