#pragma once

#include <cstdint>
#include <vector>

#include "model/modBandSaw.h"

namespace tarnwick {

// The worked-out outline of teeth. Inches in the plane of the band: X along the band, Y across it and upward,
// the back edge on Y = 0. Alive only during a calculation.

struct Point {
  double X{}, Y{};
  bool operator==(const Point&) const = default;
};

struct ToothLine {
  Point Start, End;
};

/// Counter-clockwise from StartAngle to EndAngle, degrees. Radius 0: there is no such arc.
struct ToothArc {
  double CenterX{}, CenterY{};
  double Radius{};
  double StartAngle{}, EndAngle{};

  [[nodiscard]] Point Center() const { return {CenterX, CenterY}; }
};

/// One tooth, from its tip along the face, through the gullet, up the back and along the top to the next tip.
/// A piece that a style does not use stays all zero.
struct ToothProfile {
  std::int16_t Style{};
  ToothLine FaceLine;         // tip to the top of the seat, or the piece of face under the tip
  ToothLine SeatLine;         // square to the face; of zero length without a seat
  ToothLine DropLine;         // face from the seat down to the first gullet arc
  ToothArc GulletArc;         // styles 1, 2, 7; the base arc of 9
  double ArcDepth{};          // of GulletArc below the tip
  ToothArc FirstArc;          // styles 4, 5, 6, 8, 9
  ToothArc SecondArc;         // styles 4, 5, 6, 9
  ToothArc ThirdArc;          // styles 5, 9
  ToothLine BottomLine;       // the floor of 6, 7 and 8
  ToothLine BackLine;         // end of the last gullet arc up to the top line
  ToothArc BackArc;           // fillet between back and top
  ToothLine TopLine;          // back to the tip of the next tooth
  double Area{};              // in², gullet area of this tooth
  Point JoinPoint;            // first and last tooth of a band: where the join line meets the outline
  Flag BothEdges{};           // copy of the design's, so that the layout needs only the teeth
  ToothArc FrostArc;          // the notch of 9
  ToothLine FrostFaceLine;    // face above the notch arc
  ToothLine FrostBottomLine;  // floor of the notch
};

using Teeth = std::vector<ToothProfile>;

}  // namespace tarnwick
