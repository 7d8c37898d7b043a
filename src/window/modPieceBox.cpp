#include "window/modPieceBox.h"

#include <cmath>

#include "model/modDecim.h"

namespace tarnwick {
namespace {

PieceBox AroundCircle(double x, double y, double radius) {
  return {.MinX = x - radius, .MinY = y - radius, .MaxX = x + radius, .MaxY = y + radius};
}

/// How far it is, turning anticlockwise, from one direction to another: above 0, up to 360.
double Turn(double from, double to) {
  const double turn = std::fmod(to - from, 360);
  return turn > 0 ? turn : turn + 360;
}

}  // namespace

PieceBox BoxOf(const LineEntity& line) {
  PieceBox box{line.Corner1X, line.Corner1Y, line.Corner1X, line.Corner1Y};
  box.Include(line.Corner4X, line.Corner4Y);
  return box;
}

PieceBox BoxOf(const ArcEntity& arc) {
  const auto xAt = [&](double angle) { return arc.CenterX + arc.Radius * std::cos(angle * Pi / 180); };
  const auto yAt = [&](double angle) { return arc.CenterY + arc.Radius * std::sin(angle * Pi / 180); };
  const double startX = xAt(arc.StartAngle), startY = yAt(arc.StartAngle);
  PieceBox box{startX, startY, startX, startY};
  box.Include(xAt(arc.EndAngle), yAt(arc.EndAngle));

  const double sweep = Turn(arc.StartAngle, arc.EndAngle);
  const auto passes = [&](double angle) { return Turn(arc.StartAngle, angle) <= sweep; };
  if (passes(0)) box.Include(arc.CenterX + arc.Radius, arc.CenterY);
  if (passes(90)) box.Include(arc.CenterX, arc.CenterY + arc.Radius);
  if (passes(180)) box.Include(arc.CenterX - arc.Radius, arc.CenterY);
  if (passes(270)) box.Include(arc.CenterX, arc.CenterY - arc.Radius);
  return box;
}

PieceBox BoxOf(const CircleEntity& circle) {
  return AroundCircle(circle.CenterX, circle.CenterY, circle.Radius);
}

PieceBox BoxOf(const SolidEntity& solid) {
  PieceBox box{solid.Corner1X, solid.Corner1Y, solid.Corner1X, solid.Corner1Y};
  box.Include(solid.Corner2X, solid.Corner2Y);
  box.Include(solid.Corner3X, solid.Corner3Y);
  box.Include(solid.Corner4X, solid.Corner4Y);
  return box;
}

PieceBox CircleBoxOf(const ArcEntity& arc) { return AroundCircle(arc.CenterX, arc.CenterY, arc.Radius); }

}  // namespace tarnwick
