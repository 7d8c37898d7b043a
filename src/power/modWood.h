#pragma once

#include <span>
#include <string_view>

namespace tarnwick {

/// One entry of the list of woods: a species, or the heading ahead of a group of them.
struct Wood {
  std::string_view Name;  // at most 30 characters: as a design keeps it
  double SpecificEnergy;  // hundreds of horsepower for a cubic foot a minute; 0 = a heading

  [[nodiscard]] constexpr bool IsHeading() const { return SpecificEnergy == 0; }
};

/// All woods in the order of the lists: softwoods under their heading, then hardwoods under theirs.
[[nodiscard]] std::span<const Wood> Woods();

/// What a wood asks of the saw: see Wood. Blanks at both ends of the name do not count, its case does. 0 for
/// a heading and for a name that is not in the table.
[[nodiscard]] double SpecificEnergy(std::string_view name);

}  // namespace tarnwick
