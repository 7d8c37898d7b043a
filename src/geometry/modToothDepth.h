#pragma once

#include <initializer_list>

#include "geometry/modToothWork.h"

namespace tarnwick {

/// Moves the centres of arcs by `depth` down and `run` back.
void LowerArcs(double depth, double run, std::initializer_list<ToothArc*> arcs);

/// Moves the arcs of the gullet down the face by `depth` in Y and `run` back in X, the way that keeps the
/// face on the hook line.
///
/// With a seat the face below it, DropLine, gets longer. Without one the face itself does, and the seat and
/// drop lines collapse on its end.
void LowerGullet(ToothWork& work, double depth, double run, std::initializer_list<ToothArc*> arcs);

}  // namespace tarnwick
