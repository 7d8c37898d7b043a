#include "model/modZoom.h"

#include <cmath>
#include <type_traits>

#include "model/modChecked.h"
#include "model/modCircular.h"
#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr int ExtentPlaces = 6;

bool Within(double angle, double from, double to) { return angle >= from && angle <= to; }

void Lower(double& limit, Checked value) {
  if (value.Ok() && value.OrZero() < limit) limit = value.OrZero();
}

void Raise(double& limit, Checked value) {
  if (value.Ok() && value.OrZero() > limit) limit = value.OrZero();
}

/// A point that is below the lower limit is not tested against the upper one.
void Widen(double& least, double& most, double value) {
  if (value < least) {
    least = value;
  } else if (value > most) {
    most = value;
  }
}

/// Whether the arc passes the extreme point that `shift` turns to 0 degrees.
bool Crosses(const ArcEntity& arc, double shift) {
  const auto turned = [shift](double angle) {
    const double sum = angle + shift;
    return sum >= 360 ? sum - 360 : sum;
  };
  return turned(arc.StartAngle) > turned(arc.EndAngle);
}

void Measure(const LineEntity& line, Extents& box) {
  Widen(box.MinX, box.MaxX, line.Corner1X);
  Widen(box.MinX, box.MaxX, line.Corner4X);
  Widen(box.MinY, box.MaxY, line.Corner1Y);
  Widen(box.MinY, box.MaxY, line.Corner4Y);
}

void Measure(const CircleEntity& circle, Extents& box) {
  Lower(box.MinX, circle.CenterX - circle.Radius);
  Raise(box.MaxX, circle.CenterX + circle.Radius);
  Lower(box.MinY, circle.CenterY - circle.Radius);
  Raise(box.MaxY, circle.CenterY + circle.Radius);
}

void Measure(const ArcEntity& arc, Extents& box) {
  const double startX = arc.CenterX + PolarX(arc.Radius, arc.StartAngle);
  const double endX = arc.CenterX + PolarX(arc.Radius, arc.EndAngle);
  const double startY = arc.CenterY + PolarY(arc.Radius, arc.StartAngle);
  const double endY = arc.CenterY + PolarY(arc.Radius, arc.EndAngle);

  if (Crosses(arc, 0)) {
    Raise(box.MaxX, arc.CenterX + arc.Radius);
  } else {
    Raise(box.MaxX, startX);
    Raise(box.MaxX, endX);
  }
  if (Crosses(arc, 180)) {
    Lower(box.MinX, arc.CenterX - arc.Radius);
  } else {
    Lower(box.MinX, startX);
    Lower(box.MinX, endX);
  }
  if (Crosses(arc, 90)) {
    Lower(box.MinY, arc.CenterY - arc.Radius);
  } else {
    Lower(box.MinY, startY);
    Lower(box.MinY, endY);
  }
  if (Crosses(arc, 270)) {
    // The test looks at the foot of the circle, and its top is taken: unlike the three above, and meant.
    if (arc.CenterY - arc.Radius > box.MaxY) Let(box.MaxY) = arc.CenterY + arc.Radius;
  } else {
    Raise(box.MaxY, startY);
    Raise(box.MaxY, endY);
  }
}

}  // namespace

double PolarX(double radius, double angle) {
  if (angle == 0 || angle == 360) return radius;
  if (angle == 180) return -radius;
  if (Within(angle, 1, 89)) return radius * Cosine(Radians(angle));
  if (Within(angle, 91, 179)) return -radius * Cosine(Radians(std::abs(angle - 180)));
  if (Within(angle, 181, 269)) return -radius * Cosine(Radians(angle - 180));
  if (Within(angle, 271, 359)) return radius * Cosine(Radians(std::abs(angle - 360)));
  return 0;
}

double PolarY(double radius, double angle) {
  if (angle == 90) return radius;
  if (angle == 270) return -radius;
  if (Within(angle, 1, 89)) return radius * Sine(Radians(angle));
  if (Within(angle, 91, 179)) return radius * Sine(Radians(std::abs(angle - 180)));
  if (Within(angle, 181, 269)) return -radius * Sine(Radians(angle - 180));
  if (Within(angle, 271, 359)) return -radius * Sine(Radians(std::abs(angle - 360)));
  return 0;
}

Extents ComputeExtents(const EntityList& list) {
  Extents box{.MinY = -1, .MinX = 0, .MaxY = 1, .MaxX = 0, .CenterX = 0, .CenterY = 0};
  const auto measure = [&box](const auto& entity) {
    using Kind = std::decay_t<decltype(entity)>;
    if constexpr (!std::is_same_v<Kind, TextEntity> && !std::is_same_v<Kind, SolidEntity>)
      Measure(entity, box);
  };
  std::size_t next = 0;
  const auto measureUpTo = [&](std::size_t end) {
    for (; next < end; ++next) std::visit(measure, list.Entities[next]);
  };
  // The box of groups that are alike but for X is that of the outermost two.
  for (const Repetition& part : list.Repetitions) {
    measureUpTo(part.Group(1));
    next = part.Group(part.Times - 1);
  }
  measureUpTo(list.Entities.size());

  const Rounding round(ExtentPlaces);
  for (double* limit : {&box.MinY, &box.MinX, &box.MaxY, &box.MaxX}) *limit = round(*limit);
  Let(box.CenterX) = round(Checked((box.MinX + box.MaxX) * 0.5));
  Let(box.CenterY) = round(Checked((box.MinY + box.MaxY) * 0.5));
  return box;
}

}  // namespace tarnwick
