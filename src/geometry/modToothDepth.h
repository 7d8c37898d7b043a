#pragma once

#include <initializer_list>

#include "geometry/modToothWork.h"

namespace tarnwick {

/// Moves the centres of arcs by `depth` down and `run` back.
void LowerArcs(double depth, double run, std::initializer_list<ToothArc*> arcs);

/// What raising an arc came to, in inches: `point` stands Height above the raised centre and Reach beside it,
/// and the centre slid by Slide along X.
struct RaisedArc {
  double Height{}, Reach{}, Slide{};
};

/// Raises `arc` by `rise` and slides it so that its circle goes through `point`; its angles stay.
RaisedArc RaiseArcThrough(ToothArc& arc, Point point, double rise);

/// Moves the arcs of the gullet down the face by `depth` in Y and `run` back in X, the way that keeps the
/// face on the hook line.
///
/// With a seat the face below it, DropLine, gets longer. Without one the face itself does, and the seat and
/// drop lines collapse on its end.
void LowerGullet(ToothWork& work, double depth, double run, std::initializer_list<ToothArc*> arcs);

}  // namespace tarnwick
