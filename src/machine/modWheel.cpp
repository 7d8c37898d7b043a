#include "machine/modWheel.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

constexpr int LeastSpokes = 5, MostSpokes = 12;

/// A spoke that stands upright, above the centre.
WheelSpoke UprightSpoke(const WheelPicture& wheel, const PlaneKit& kit) {
  const double half = wheel.SpokeWidth / 2;
  const double round = kit.RoundTo(wheel.Dia / 24);
  const double foot = kit.RoundTo(Leg(wheel.OuterHubRadius(), half).OrZero());
  const Point right{half + round, kit.RoundTo(Leg(wheel.RimInner - round, half + round).OrZero())};
  const Point left{-right.X, right.Y};
  const double towardsRim = kit.Direction({}, right);  // two circles touch on the line through their centres
  return {.Sides = {ToothLine{{-half, foot}, {-half, left.Y}}, ToothLine{{half, foot}, {half, right.Y}}},
          .Ends = {ToothArc{left.X, left.Y, round, 0, 180 - towardsRim},
                   ToothArc{right.X, right.Y, round, towardsRim, 180}}};
}

WheelSpoke Turned(const WheelSpoke& spoke, double angle, const PlaneKit& kit) {
  return {.Sides = {kit.RotateLine(spoke.Sides[0], angle), kit.RotateLine(spoke.Sides[1], angle)},
          .Ends = {kit.RotateArc(spoke.Ends[0], angle), kit.RotateArc(spoke.Ends[1], angle)}};
}

/// As many as fit around the hub with half an inch between them, and one.
int CountSpokes(const WheelPicture& wheel) {
  constexpr double Gap = 0.5;
  const double perimeter = 2 * wheel.OuterHubRadius() * Pi;
  const double count = (Quotient(perimeter, wheel.SpokeWidth + Gap) + 1).OrZero();
  return static_cast<int>(std::clamp<double>(std::trunc(count), LeastSpokes, MostSpokes));
}

}  // namespace

WheelPicture PlaceWheel(double wheelDia, const PlaneKit& kit) {
  constexpr double HubAreaPerInch = 0.065449846949787;
  constexpr int FinePlaces = 15;
  WheelPicture wheel;
  const double d = wheel.Dia = wheelDia * InchesPerFoot;
  wheel.Radius = kit.RoundTo(d / 2);
  wheel.RimInner = kit.RoundTo(d / 2 - d / 48);

  const double size = kit.RoundTo(d / 12 * 0.1) - 0.1;
  const double hubFactor = kit.RoundTo(size * 4 + 1);
  const double spokeFactor = kit.RoundTo(size * 2 + 1);
  wheel.HubRadius = kit.RadiusFromArea(RoundTo(d * HubAreaPerInch, FinePlaces)) * hubFactor;
  wheel.SpokeWidth = kit.RoundTo(Quotient(kit.RoundTo(d / 16), spokeFactor)).OrZero();
  wheel.SpokeCount = CountSpokes(wheel);

  const WheelSpoke upright = UprightSpoke(wheel, kit);
  for (int i = 0; i < wheel.SpokeCount; ++i) {
    wheel.Spokes.push_back(i == 0 ? upright : Turned(upright, i * 360.0 / wheel.SpokeCount, kit));
  }
  return wheel;
}

void AddWheel(const WheelPicture& wheel, double centerY, EntityList& list) {
  for (const double radius : {wheel.Radius, wheel.RimInner, wheel.OuterHubRadius(), wheel.HubRadius}) {
    list.Entities.emplace_back(CircleEntity{.CenterY = centerY, .Radius = radius});
  }
  for (const WheelSpoke& spoke : wheel.Spokes) {
    for (const ToothLine& side : spoke.Sides) {
      list.Entities.emplace_back(LineEntity{.Corner1X = side.Start.X,
                                            .Corner1Y = side.Start.Y + centerY,
                                            .Corner4X = side.End.X,
                                            .Corner4Y = side.End.Y + centerY});
    }
    for (const ToothArc& end : spoke.Ends) {
      list.Entities.emplace_back(ArcEntity{.CenterX = end.CenterX,
                                           .CenterY = end.CenterY + centerY,
                                           .Radius = end.Radius,
                                           .StartAngle = end.StartAngle,
                                           .EndAngle = end.EndAngle});
    }
  }
}

}  // namespace tarnwick
