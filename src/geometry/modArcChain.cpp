#include "geometry/modArcChain.h"

#include <cmath>

#include "geometry/modGulletArea.h"
#include "geometry/modHandler.h"
#include "geometry/modToothDepth.h"

namespace tarnwick {
namespace {

constexpr double SmallestRadius = 0.03;

/// The first arc touches the face at the end of DropLine and turns a quarter into the foot of the large one.
void PlaceFirstArc(ToothWork& work) {
  const Point drop = work.Tooth.DropLine.End;
  const double h = work.Hook();
  ToothArc& arc = work.Tooth.FirstArc;
  arc.CenterX = Need(drop.X + Adjacent(arc.Radius, h));
  arc.CenterY = Need(drop.Y - Opposite(arc.Radius, h));
  arc.StartAngle = Need(180 - h);
  arc.EndAngle = Need(270 - h);
}

void PutCenter(ToothArc& arc, Point from, Checked dx, Checked dy) {
  arc.CenterX = Need(from.X + dx);
  arc.CenterY = Need(from.Y + dy);
}

// --- double radius

void BoundDoubleRadii(ToothWork& work) {
  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  const double most = gullet.Radius2 * 0.5;
  if (most < gullet.Radius1) {
    gullet.Radius1 = most;
  } else if (gullet.Radius1 < SmallestRadius) {
    gullet.Radius1 = SmallestRadius;
  }
  work.Tooth.FirstArc.Radius = gullet.Radius1;
  work.Tooth.SecondArc.Radius = gullet.Radius2;
}

void BoundDoubleWidth(BandSaw::Gullet& gullet) {
  const double r1 = gullet.Radius1, r2 = gullet.Radius2;
  const double least = Need(Quotient(r1 * r1, r2) + r2);
  if (gullet.Width > r2 * 2 * 0.9 || gullet.Width < least) gullet.Width = least;
  if (gullet.Width == 0) gullet.Width = Need(r1 + r2);
}

/// Turns the second arc about the first by what the width differs from the sum of the radii.
void TurnSecondArc(ToothWork& work, double centres) {
  const BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  ToothArc& first = work.Tooth.FirstArc;
  ToothArc& second = work.Tooth.SecondArc;
  const double miss = Need(gullet.Width - gullet.Radius2 - gullet.Radius1);
  if (miss == 0) return;
  const double e = std::abs(miss);
  const double l = Need(Leg(centres, e));
  const double turn = Need(90 - AngleFromLegs(l, e));
  const bool narrower = miss < 0;
  const double k = narrower ? work.Hook() - turn : turn + work.Hook();
  PutCenter(second, first.Center(), Opposite(centres, k), Adjacent(centres, k));
  second.StartAngle = Need(narrower ? second.StartAngle + turn : second.StartAngle - turn);
  first.EndAngle = second.StartAngle;
}

void LayDoubleRadius(ToothWork& work) {
  const double h = work.Hook();
  ToothArc& first = work.Tooth.FirstArc;
  ToothArc& second = work.Tooth.SecondArc;
  BoundDoubleRadii(work);
  PlaceFirstArc(work);
  // The second circle touches the first inside it, at the foot of the first arc.
  const double centres = Need(second.Radius - first.Radius);
  PutCenter(second, first.Center(), Adjacent(centres, 90 - h), Opposite(centres, 90 - h));
  second.StartAngle = Need(270 - h);
  second.EndAngle = Need(360 - h - work.Saw.GulletInfo.BackAngle);
  BoundDoubleWidth(work.Saw.GulletInfo);
  TurnSecondArc(work, centres);
  ReduceAngles(first);
  ReduceAngles(second);
}

// --- triple radius

void BoundTripleRadii(ToothWork& work) {
  constexpr double smallestSecond = 0.375;
  BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  if (gullet.Radius2 < smallestSecond) gullet.Radius2 = smallestSecond;
  const double quarter = gullet.Radius2 * 0.25;
  if (quarter < gullet.Radius1) {
    gullet.Radius1 = quarter;
  } else if (gullet.Radius1 < SmallestRadius) {
    gullet.Radius1 = SmallestRadius;
  }
  work.Tooth.FirstArc.Radius = gullet.Radius1;
  work.Tooth.SecondArc.Radius = gullet.Radius2;
  if (gullet.Radius2 * 0.75 < gullet.Radius3) {
    gullet.Radius3 = gullet.Radius2 * 0.75;
  } else if (quarter > gullet.Radius3) {
    gullet.Radius3 = quarter;
  }
  work.Tooth.ThirdArc.Radius = gullet.Radius3;
}

void BoundTripleWidth(BandSaw::Gullet& gullet) {
  const double low = Need(gullet.Radius1 + gullet.Radius3 + gullet.Radius2 * 0.25);
  const double high = Need((gullet.Radius2 + gullet.Radius2) * 0.625);
  if (gullet.Width < low) {
    gullet.Width = low;
  } else if (gullet.Width > high) {
    gullet.Width = high;
  }
}

void LayThirdArc(ToothWork& work) {
  const BandSaw::Gullet& gullet = work.Saw.GulletInfo;
  const double h = work.Hook();
  const ToothArc& first = work.Tooth.FirstArc;
  ToothArc& third = work.Tooth.ThirdArc;
  const double s = Need(gullet.Width - first.Radius - third.Radius);
  const double a = Need(Opposite(s, 90 - h));
  const double b = Need(Adjacent(s, 90 - h));
  const double t = Need(third.Radius - first.Radius);
  third.CenterX = Need(first.CenterX + Adjacent(t, 90 - h) + a);
  third.CenterY = Need(first.CenterY + Opposite(t, 90 - h) - b);
  third.StartAngle = Need(270 - h);
  third.EndAngle = Need(360 - h - gullet.BackAngle);
}

/// Direction of the second centre from the first: the angle of the triangle there, and the tilt of its base.
double DirectionOfSecond(const ToothArc& first, const ToothArc& third, double base, double atFirst) {
  if (first.CenterY < third.CenterY) {
    const double z = Need(third.CenterY - first.CenterY);
    return Need(AngleFromLegs(z, Leg(base, z)) + atFirst);
  }
  if (first.CenterY > third.CenterY) {
    const double z = Need(first.CenterY - third.CenterY);
    return Need(atFirst - AngleFromLegs(z, Leg(base, z)));
  }
  return atFirst;
}

void LaySecondArcBetween(ToothWork& work) {
  ToothArc& first = work.Tooth.FirstArc;
  ToothArc& second = work.Tooth.SecondArc;
  ToothArc& third = work.Tooth.ThirdArc;
  const double p = Need(second.Radius - third.Radius);
  const double u = Need(second.Radius - first.Radius);
  const double v = work.Kit.Distance(first.Center(), third.Center());
  const double atFirst = Need(AngleFromSides(p, v, u));
  const double atSecond = Need(AngleFromSides(v, p, u));
  const double direction = DirectionOfSecond(first, third, v, atFirst);
  PutCenter(second, first.Center(), Adjacent(u, direction), Opposite(u, direction));
  second.StartAngle = Need(first.EndAngle - std::abs((90 - work.Hook()) - direction));
  second.EndAngle = Need(atSecond + second.StartAngle);
  first.EndAngle = second.StartAngle;
  third.StartAngle = second.EndAngle;
}

void LayTripleRadius(ToothWork& work) {
  BoundTripleRadii(work);
  PlaceFirstArc(work);
  BoundTripleWidth(work.Saw.GulletInfo);
  LayThirdArc(work);
  LaySecondArcBetween(work);
  ReduceAngles(work.Tooth.FirstArc);
  ReduceAngles(work.Tooth.SecondArc);
  ReduceAngles(work.Tooth.ThirdArc);
}

void LowerChain(ToothWork& work, double depth, std::initializer_list<ToothArc*> arcs) {
  const double missing = Checked(work.Saw.GulletInfo.Depth - depth).OrZero();
  if (missing > 0) LowerGullet(work, missing, TanSide(missing, work.Hook()).OrZero(), arcs);
}

}  // namespace

void PlaceDoubleRadius(ToothWork& work) {
  PlaceOrReport(work.Say, [&work] { LayDoubleRadius(work); });
}

void PlaceTripleRadius(ToothWork& work) {
  PlaceOrReport(work.Say, [&work] { LayTripleRadius(work); });
}

double DepthOfArc(const ToothWork& work, const ToothArc& arc) {
  return Checked(work.TipHeight() - arc.CenterY + arc.Radius).OrZero();
}

double SecondArcDepth(const ToothWork& work) { return DepthOfArc(work, work.Tooth.SecondArc); }
double ThirdArcDepth(const ToothWork& work) { return DepthOfArc(work, work.Tooth.ThirdArc); }

void ApplyDoubleRadiusDepth(ToothWork& work) {
  LowerChain(work, SecondArcDepth(work), {&work.Tooth.FirstArc, &work.Tooth.SecondArc});
}

void ApplyTripleRadiusDepth(ToothWork& work) {
  LowerChain(work, ThirdArcDepth(work), {&work.Tooth.FirstArc, &work.Tooth.SecondArc, &work.Tooth.ThirdArc});
}

double AddDoubleRadiusFigures(const ToothWork& work, double area) {
  const ToothProfile& tooth = work.Tooth;
  const Point drop = tooth.DropLine.End, back = tooth.BackLine.Start, foot = EndOf(tooth.FirstArc);
  area += AreaAt(work, tooth.FirstArc, drop, foot);
  area += AreaAt(work, tooth.SecondArc, foot, back);
  return area + work.Kit.TriangleArea(drop, foot, back);
}

double AddTripleRadiusFigures(const ToothWork& work, double area) {
  const ToothProfile& tooth = work.Tooth;
  const Point drop = tooth.DropLine.End, back = tooth.BackLine.Start;
  const Point firstEnd = EndOf(tooth.FirstArc), secondEnd = EndOf(tooth.SecondArc);
  area += AreaAt(work, tooth.FirstArc, drop, firstEnd);
  area += AreaAt(work, tooth.SecondArc, firstEnd, secondEnd);
  area += AreaAt(work, tooth.ThirdArc, secondEnd, back);
  return area + work.Kit.QuadArea(drop, StartOf(tooth.SecondArc), secondEnd, back);
}

}  // namespace tarnwick
