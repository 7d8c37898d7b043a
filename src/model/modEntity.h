#pragma once

#include <cstddef>
#include <string_view>
#include <variant>
#include <vector>

#include "model/modFixedText.h"

namespace tarnwick {

class Messages;

// Drawing entities. Units: inch in the plane of the band, X along the band, Y across it and upward; degrees,
// counter-clockwise from +X. Each kind holds just the fields that it uses.

/// A line from its first to its fourth corner: the slots that a solid's outline uses for its two ends too.
struct LineEntity {
  static constexpr std::string_view Kind = "LINE";
  double Corner1X{}, Corner1Y{};
  double Corner4X{}, Corner4Y{};
  bool IsOutline{};  // of the band's long outline: the screen clamps it to the view, paper drops it
  bool IsDotted{};
};

/// An arc, counter-clockwise from StartAngle to EndAngle.
struct ArcEntity {
  static constexpr std::string_view Kind = "ARC";
  double CenterX{}, CenterY{};
  double Radius{};
  double StartAngle{}, EndAngle{};
};

struct CircleEntity {
  static constexpr std::string_view Kind = "CIRCLE";
  double CenterX{}, CenterY{};
  double Radius{};
};

struct TextEntity {
  static constexpr std::string_view Kind = "TEXT";
  double Corner1X{}, Corner1Y{};  // anchor
  double TextHeight{};
  double TextAngle{};  // always 0
  FixedText<20> Text;
};

/// A filled figure, corners in the order drawn.
struct SolidEntity {
  static constexpr std::string_view Kind = "SOLID";
  double Corner1X{}, Corner1Y{};
  double Corner2X{}, Corner2Y{};
  double Corner3X{}, Corner3Y{};
  double Corner4X{}, Corner4Y{};
};

using Entity = std::variant<LineEntity, ArcEntity, CircleEntity, TextEntity, SolidEntity>;

/// Numbers of a whole list: those that a drawing file's head shows.
struct ListHeader {
  double MaxX{};         // X of the band's last join point
  double MaxY{};         // Width of the band
  double ViewCenterX{};  // half of MaxX
  double ViewCenterY{};  // half of MaxY
};

/// A part of a list that stands there many times, side by side: `Times` groups of `Size` entities each, lines
/// and arcs, the first of them from `First` on. From one group to the next nothing changes but X, and no X
/// becomes smaller; so a walker need not look at every group to know where they all are.
struct Repetition {
  std::size_t First{}, Size{}, Times{};

  [[nodiscard]] std::size_t Group(std::size_t number) const { return First + Size * number; }
  [[nodiscard]] std::size_t End() const { return Group(Times); }
};

/// The one drawing list that screen, paper, extents and DXF all walk. Built whole, never patched.
struct EntityList {
  ListHeader Header;
  std::vector<Entity> Entities;
  std::vector<Repetition> Repetitions;  // in the order of the entities; what is not listed may repeat too
  std::size_t Lost{};  // entities that found no room in a list sized for a negative count of teeth: counted,
                       // never drawn

  /// What a builder's running index came to.
  [[nodiscard]] std::size_t Count() const { return Entities.size() + Lost; }

  /// Makes it a fresh list that keeps its memory: fresh memory is what a list of many teeth costs most.
  void Clear();
};

/// Appends `source` to `target`. Refused with the message "Increase dxf memory!", `target` untouched, when
/// the merged list would hold more than MemorySize / 8 entities (eight lines of a DXF file an entity). The
/// target keeps its header, but an empty target takes over the source's, which travels with its first entity.
/// What the source says about its repetitions stays behind.
void AppendEntities(EntityList& target, const EntityList& source, int memorySize, Messages& messages);

}  // namespace tarnwick
