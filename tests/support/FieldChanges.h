#pragma once

#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "model/modFields.h"

namespace tarnwick::test {

/// A record in which every field holds something, so that a field that is wiped shows.
inline BandSaw DesignOfEveryField() {
  BandSaw saw;
  int number = 0;
  ForEachField(saw, [&number](const char*, auto& field) {
    using Field = std::remove_reference_t<decltype(field)>;
    ++number;
    if constexpr (std::is_same_v<Field, SegmentMeasures>) {
      field.fill(number + 0.25);
    } else if constexpr (std::is_floating_point_v<Field>) {
      field = number + 0.5;
    } else if constexpr (std::is_integral_v<Field>) {
      field = static_cast<Field>(number);
    } else {
      field.Assign("text " + std::to_string(number));
    }
  });
  return saw;
}

/// Names of the fields in which two records differ, bit for bit.
inline std::set<std::string> ChangedFields(const BandSaw& before, const BandSaw& after) {
  std::vector<std::string> images;
  ForEachField(before, [&images](const char*, const auto& field) {
    images.emplace_back(reinterpret_cast<const char*>(&field), sizeof field);
  });
  std::set<std::string> changed;
  std::size_t at = 0;
  ForEachField(after, [&](const char* name, const auto& field) {
    if (images[at++] != std::string(reinterpret_cast<const char*>(&field), sizeof field))
      changed.insert(name);
  });
  return changed;
}

}  // namespace tarnwick::test
