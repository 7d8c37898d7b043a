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

void StorePoint(const Rounding& round, Point& out, double x, double y) {
  round.Store(out.X, x);
  round.Store(out.Y, y);
}

void MovePoint(const Rounding& round, const Point& from, Point& to, double dx, double dy) {
  StorePoint(round, to, from.X + dx, from.Y + dy);
}

void MoveLine(const Rounding& round, const ToothLine& from, ToothLine& to, double dx, double dy) {
  MovePoint(round, from.Start, to.Start, dx, dy);
  MovePoint(round, from.End, to.End, dx, dy);
}

/// An arc whose numbers have been worked out; each is a statement of its own.
void StoreArc(const Rounding& round, ToothArc& out, const ToothArc& moved) {
  round.Store(out.CenterX, moved.CenterX);
  round.Store(out.CenterY, moved.CenterY);
  round.Store(out.Radius, moved.Radius);
  round.Store(out.StartAngle, moved.StartAngle);
  round.Store(out.EndAngle, moved.EndAngle);
}

void MoveArc(const Rounding& round, const ToothArc& arc, ToothArc& out, double dx, double dy) {
  StoreArc(round, out, {arc.CenterX + dx, arc.CenterY + dy, arc.Radius, arc.StartAngle, arc.EndAngle});
}

/// The angle on the other side of `axis`, as far from it.
double MirrorAbout(double angle, double axis) {
  return angle > axis ? axis - (angle - axis) : axis + (axis - angle);
}

/// Moves everything but the top line and the join point.
void MoveBody(const Rounding& round, const ToothProfile& in, ToothProfile& out, double dx, double dy) {
  CarryTags(in, out);
  for (const LinePiece piece : PlainLines) {
    if (piece != &ToothProfile::TopLine) MoveLine(round, in.*piece, out.*piece, dx, dy);
  }
  for (const LinePiece piece : NotchLines) MoveLine(round, in.*piece, out.*piece, dx, dy);
  for (const ArcPiece piece : PlainArcs) MoveArc(round, in.*piece, out.*piece, dx, dy);
  MoveArc(round, in.FrostArc, out.FrostArc, dx, dy);
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
    StorePoint(round, to, signX * from.X, signY * from.Y);
  };
  CarryTags(in, out);
  for (const LinePiece piece : PlainLines) {
    mirrorPoint((in.*piece).Start, (out.*piece).Start);
    mirrorPoint((in.*piece).End, (out.*piece).End);
  }
  for (const ArcPiece piece : PlainArcs) {
    const ToothArc& arc = in.*piece;
    ToothArc& mirrored = out.*piece;
    round.Store(mirrored.CenterX, signX * arc.CenterX);
    round.Store(mirrored.CenterY, signY * arc.CenterY);
    mirrored.Radius = arc.Radius;
    // Start and end change places: a mirror turns the sense of an arc.
    mirrored.StartAngle = mirrorAngle(kit, arc.EndAngle);
    mirrored.EndAngle = mirrorAngle(kit, arc.StartAngle);
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
  const auto roundPoint = [&](Point& p) { StorePoint(round, p, p.X, p.Y); };
  for (const LinePiece piece : PlainLines) {
    roundPoint((tooth.*piece).Start);
    roundPoint((tooth.*piece).End);
  }
  for (const ArcPiece piece : PlainArcs) StoreArc(round, tooth.*piece, tooth.*piece);
}

}  // namespace tarnwick
