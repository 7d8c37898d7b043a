#pragma once

#include <array>
#include <vector>

#include "geometry/modTrig.h"
#include "model/modEntity.h"

namespace tarnwick {

/// A spoke between hub and rim: two straight sides, each led into the rim by an arc.
struct WheelSpoke {
  std::array<ToothLine, 2> Sides;  // from the hub outward
  std::array<ToothArc, 2> Ends;    // each tangent to its side and to the rim
};

/// One wheel of a band mill as a picture shows it, in inches, its centre at (0, 0).
struct WheelPicture {
  double Dia{};
  double Radius{};
  double RimInner{};   // inner radius of the rim
  double HubRadius{};  // of the bore
  double SpokeWidth{};
  int SpokeCount{};  // 5 to 12
  std::vector<WheelSpoke> Spokes;

  [[nodiscard]] double OuterHubRadius() const { return HubRadius * 1.75; }
};

/// Works out a wheel.
///
/// Hub and spokes do not grow in step with the wheel: a large wheel has a larger hub in proportion, and more
/// and finer spokes. Only the ends of the spokes are a matter of taste.
///
/// @param wheelDia  feet, 0.5 to 15
[[nodiscard]] WheelPicture PlaceWheel(double wheelDia, const PlaneKit& kit);

/// Appends a wheel with its centre at (0, `centerY`): four circles, then line, line, arc, arc of each spoke.
void AddWheel(const WheelPicture& wheel, double centerY, EntityList& list);

}  // namespace tarnwick
