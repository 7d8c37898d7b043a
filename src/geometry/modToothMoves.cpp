#include "geometry/modToothMoves.h"

namespace tarnwick {
namespace {

using LinePiece = ToothLine ToothProfile::*;
using ArcPiece = ToothArc ToothProfile::*;

constexpr LinePiece PlainLines[] = {&ToothProfile::FaceLine, &ToothProfile::SeatLine,
                                    &ToothProfile::DropLine, &ToothProfile::BottomLine,
                                    &ToothProfile::BackLine, &ToothProfile::TopLine};
constexpr ArcPiece PlainArcs[] = {&ToothProfile::GulletArc, &ToothProfile::FirstArc, &ToothProfile::SecondArc,
                                  &ToothProfile::ThirdArc, &ToothProfile::BackArc};
constexpr LinePiece NotchLines[] = {&ToothProfile::FrostFaceLine, &ToothProfile::FrostBottomLine};

void CarryTags(const ToothProfile& in, ToothProfile& out) {
  out.Style = in.Style;
  out.BothEdges = in.BothEdges;
}

void MovePoint(const Rounding& round, const Point& from, Point& to, double dx, double dy) {
  Place(to, round(Checked(from.X + dx)), round(Checked(from.Y + dy)));
}

void MoveLine(const Rounding& round, const ToothLine& from, ToothLine& to, double dx, double dy) {
  MovePoint(round, from.Start, to.Start, dx, dy);
  MovePoint(round, from.End, to.End, dx, dy);
}

/// A rounded copy of an arc whose centre and angles have been worked out; a number that failed keeps what
/// `out` held.
struct ArcMove {
  const Rounding& Round;

  void operator()(ToothArc& out, double centerX, double centerY, double radius, double start,
                  double end) const {
    Let(out.CenterX) = Round(Checked(centerX));
    Let(out.CenterY) = Round(Checked(centerY));
    Let(out.Radius) = Round(Checked(radius));
    Let(out.StartAngle) = Round(Checked(start));
    Let(out.EndAngle) = Round(Checked(end));
  }
};

/// Above 360 less 360 once, below 0 plus 360 once, then mirrored about `axis` by the difference to it.
double MirrorAbout(double angle, double axis) {
  return angle > axis ? axis - (angle - axis) : axis + (axis - angle);
}

}  // namespace

namespace {

/// Moves everything but the top line and the join point.
void MoveBody(const Rounding& round, const ToothProfile& in, ToothProfile& out, double dx, double dy) {
  CarryTags(in, out);
  for (const LinePiece piece : PlainLines) {
    if (piece != &ToothProfile::TopLine) MoveLine(round, in.*piece, out.*piece, dx, dy);
  }
  for (const LinePiece piece : NotchLines) MoveLine(round, in.*piece, out.*piece, dx, dy);
  const auto moveArc = [&, store = ArcMove{round}](ArcPiece piece) {
    const ToothArc& arc = in.*piece;
    store(out.*piece, arc.CenterX + dx, arc.CenterY + dy, arc.Radius, arc.StartAngle, arc.EndAngle);
  };
  for (const ArcPiece piece : PlainArcs) moveArc(piece);
  moveArc(&ToothProfile::FrostArc);
}

}  // namespace

void TranslateTooth(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out, double dx, double dy) {
  MoveBody(kit.RoundTo, in, out, dx, dy);
  MoveLine(kit.RoundTo, in.TopLine, out.TopLine, dx, dy);
  MovePoint(kit.RoundTo, in.JoinPoint, out.JoinPoint, dx, dy);
}

void TranslateToothParts(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out, double topDx,
                         double bodyDx) {
  MoveBody(kit.RoundTo, in, out, bodyDx, 0);
  MoveLine(kit.RoundTo, in.TopLine, out.TopLine, topDx, 0);
}

double MirrorAngleX(const PlaneKit& kit, double angle) {
  const double a = ReduceOnce(angle);
  if (a == 90 || a == 270) return kit.RoundTo(a);
  return kit.RoundTo(ReduceOnce(MirrorAbout(a, 270)));
}

double MirrorAngleY(const PlaneKit& kit, double angle) {
  const double a = ReduceOnce(angle);
  if (a == 0 || a == 180 || a == 360) return kit.RoundTo(a);
  return kit.RoundTo(MirrorAbout(a, 180));
}

namespace {

/// The common walk of both mirrors: signs of X and Y, and what a mirrored angle is.
template <class MirrorAngle>
void MirrorTooth(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out, double signX, double signY,
                 MirrorAngle mirrorAngle) {
  const Rounding& round = kit.RoundTo;
  const auto mirrorPoint = [&](const Point& from, Point& to) {
    Place(to, round(Checked(signX * from.X)), round(Checked(signY * from.Y)));
  };
  CarryTags(in, out);
  for (const LinePiece piece : PlainLines) {
    mirrorPoint((in.*piece).Start, (out.*piece).Start);
    mirrorPoint((in.*piece).End, (out.*piece).End);
  }
  for (const ArcPiece piece : PlainArcs) {
    const ToothArc arc = in.*piece;
    // Start and end change places: a mirror turns the sense of an arc.
    ArcMove{round}(out.*piece, signX * arc.CenterX, signY * arc.CenterY, arc.Radius,
                   mirrorAngle(kit, arc.EndAngle), mirrorAngle(kit, arc.StartAngle));
  }
  mirrorPoint(in.JoinPoint, out.JoinPoint);
}

}  // namespace

void MirrorToothX(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out) {
  MirrorTooth(kit, in, out, -1, 1, MirrorAngleX);
}

void MirrorToothY(const PlaneKit& kit, const ToothProfile& in, ToothProfile& out) {
  MirrorTooth(kit, in, out, 1, -1, MirrorAngleY);
}

void RoundTooth(const PlaneKit& kit, ToothProfile& tooth) {
  const Rounding& round = kit.RoundTo;
  const auto roundPoint = [&](Point& p) { Place(p, round(Checked(p.X)), round(Checked(p.Y))); };
  for (const LinePiece piece : PlainLines) {
    roundPoint((tooth.*piece).Start);
    roundPoint((tooth.*piece).End);
  }
  for (const ArcPiece piece : PlainArcs) {
    ToothArc& arc = tooth.*piece;
    ArcMove{round}(arc, arc.CenterX, arc.CenterY, arc.Radius, arc.StartAngle, arc.EndAngle);
  }
}

}  // namespace tarnwick
