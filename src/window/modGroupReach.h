#pragma once

#include "model/modEntity.h"
#include "window/modMapping.h"

namespace tarnwick {

/// Where the groups of a repetition lie across a surface. They come from left to right, so that those in
/// sight are found without looking at the others.
///
/// It goes by the pieces that reach furthest in the first group, arcs as whole circles. In another group the
/// roundings can bring a piece before them, by a few units of the last place, which no surface shows.
class GroupReach {
 public:
  /// `list` has to outlive it, and so has `part`. The mapping must not turn left into right.
  GroupReach(const EntityList& list, const Repetition& part, const Mapping& mapping);

  /// The first group from `from` on that has a pixel at or right of `x`; part.Times when none has.
  [[nodiscard]] std::size_t FirstReaching(double x, std::size_t from = 0) const;
  /// The first group from `from` on whose pixels all lie right of `x`.
  [[nodiscard]] std::size_t FirstBeyond(double x, std::size_t from = 0) const;

 private:
  [[nodiscard]] const Entity& PieceOf(std::size_t group, std::size_t piece) const {
    return list_.Entities[part_.Group(group) + piece];
  }

  const EntityList& list_;
  const Repetition& part_;
  const Mapping mapping_;
  std::size_t leftmost_ = 0, rightmost_ = 0;  // pieces of a group
};

}  // namespace tarnwick
