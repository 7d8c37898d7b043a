#pragma once

#include <span>

#include "geometry/modToothWork.h"

namespace tarnwick {

/// The pieces of a tooth that a band's end cut can meet, with their numbers. 8 was never given.
enum class JoinElement {
  None = 0,
  GulletArc = 1,
  FirstArc = 2,
  SecondArc = 3,
  ThirdArc = 4,
  BackLine = 5,
  BackArc = 6,
  TopLine = 7,
  BottomLine = 9,
};

/// The back of a tooth, for the styles that have one.
struct ToothBack {
  /// The arc that leads into the back.
  const ToothArc& (*LastArc)(const ToothProfile& tooth);
  /// The back line, tangent to that arc.
  void (*Place)(ToothWork& work);
  /// Whether GulletInfo.BackRadius rounds the corner of back and top.
  bool TakesRadius;
};

/// What sets one tooth style apart from the skeleton that all share: one row a style.
struct ToothFamily {
  /// Are the measures there that the style cannot do without.
  bool (*IsComplete)(const BandSaw::Gullet& gullet);
  /// Hangs the gullet's arcs on the end of DropLine.
  void (*PlaceGullet)(ToothWork& work);
  /// The smallest depth that the arcs allow as they lie.
  double (*MinimumDepth)(const ToothWork& work);
  /// Brings the gullet from there to GulletInfo.Depth.
  void (*ApplyDepth)(ToothWork& work);
  /// Reshapes a finished tooth to a depth of its own, for a segment of different depths.
  void (*SetDepth)(ToothWork& work, double depth);
  /// How the tooth rises to its top; nullptr for the styles that have no back.
  const ToothBack* Back;
  /// Without a back: lays the top from the next tip to the gullet, and takes the clearance angle from it.
  /// Else nullptr.
  void (*CloseWithoutBack)(ToothWork& work);
  /// Adds the figures of the gullet, in their order, to the area of the figure between face and back.
  double (*AddFigures)(const ToothWork& work, double area);
  /// What the end cut of the band is tried on, in this order; the first hit wins.
  std::span<const JoinElement> JoinOrder;
};

/// The row of a style; nullptr for a number without one (0, the hole at 3, anything else).
[[nodiscard]] const ToothFamily* FamilyOf(int toothStyle);

}  // namespace tarnwick
