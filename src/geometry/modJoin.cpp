#include "geometry/modJoin.h"

#include "geometry/modCrossing.h"

namespace tarnwick {
namespace {

constexpr ToothLine NoLine{};
constexpr ToothArc NoArc{};

bool Meets(const PlaneKit& kit, ToothLine& cut, const ToothProfile& tooth, JoinElement element) {
  switch (element) {
    case JoinElement::GulletArc:
      return LineMeetsArc(kit, cut, tooth.GulletArc, cut.Start);
    case JoinElement::FirstArc:
      return LineMeetsArc(kit, cut, tooth.FirstArc, cut.Start);
    case JoinElement::SecondArc:
      return LineMeetsArc(kit, cut, tooth.SecondArc, cut.Start);
    case JoinElement::ThirdArc:
      return LineMeetsArc(kit, cut, tooth.ThirdArc, cut.Start);
    case JoinElement::BackLine:
      return LineMeetsSegment(kit, cut, tooth.BackLine, cut.Start);
    case JoinElement::BackArc:
      return LineMeetsArc(kit, cut, tooth.BackArc, cut.Start);
    case JoinElement::TopLine:
      return LineMeetsSegment(kit, cut, tooth.TopLine, cut.Start);
    case JoinElement::BottomLine:
      return LineMeetsSegment(kit, cut, tooth.BottomLine, cut.Start);
    case JoinElement::None:
      break;
  }
  return false;
}

/// A line square to the band from the middle of `tooth`, `shift` further on, down to the back edge.
ToothLine CutThrough(const ToothProfile& tooth, double half, double shift) {
  const Point tip = tooth.FaceLine.Start;
  ToothLine cut;
  Place(cut.Start, half + tip.X + shift, tip.Y);
  Place(cut.End, cut.Start.X, 0);
  return cut;
}

/// Where a cut meets a tooth, and which element of it.
struct JoinCut {
  Point Where;
  JoinElement Element;
};

JoinCut FindCut(const PlaneKit& kit, const ToothProfile& tooth, double half, double shift) {
  ToothLine cut = CutThrough(tooth, half, shift);
  const JoinElement element = FindJoinElement(kit, cut, tooth);
  return {cut.Start, element};
}

/// Notes the join point of a tooth and trims it.
template <class Trim>
void CutTooth(const PlaneKit& kit, BandTeeth& teeth, std::size_t index, const JoinCut& cut, Trim trim) {
  ToothProfile tooth = teeth.Tooth(index);
  // The trim takes the crossing as it is; the join point alone is rounded.
  Place(tooth.JoinPoint, kit.RoundTo(Checked(cut.Where.X)), kit.RoundTo(Checked(cut.Where.Y)));
  trim(kit, tooth, cut.Where, cut.Element);
  teeth.SetTooth(index, tooth);
}

}  // namespace

double JoinAllowance(const PlaneKit& kit, const BandSaw& saw) {
  if (saw.DesignInfo.JoinStyle != OverlapJoin) return 0;
  return kit.RoundTo(Checked((saw.GeneralInfo.PlateThick * 10 + 0.125) * 0.5)).OrZero();
}

double HalfPitchOf(const ToothProfile& tooth) {
  return Checked((tooth.TopLine.End.X - tooth.FaceLine.Start.X) * 0.5).OrZero();
}

void JoinBand(const PlaneKit& kit, const BandSaw& saw, BandTeeth& teeth, int last) {
  const double half = HalfPitchOf(teeth.Tooth(0));
  const double allow = JoinAllowance(kit, saw);
  const JoinCut left = FindCut(kit, teeth.Tooth(0), half, -allow);
  if (last < 0) {  // a band that runs backward has no last tooth to cut
    CutTooth(kit, teeth, 0, left, TrimToothStart);
    return;
  }
  const auto n = static_cast<std::size_t>(last);
  const JoinCut right = FindCut(kit, teeth.Tooth(n), half, allow);
  CutTooth(kit, teeth, 0, left, TrimToothStart);
  CutTooth(kit, teeth, n, right, TrimToothEnd);
}

JoinElement FindJoinElement(const PlaneKit& kit, ToothLine& cut, const ToothProfile& tooth) {
  const ToothFamily* family = FamilyOf(tooth.Style);
  if (family == nullptr) return JoinElement::None;
  for (const JoinElement element : family->JoinOrder) {
    if (Meets(kit, cut, tooth, element)) return element;
  }
  return JoinElement::None;
}

void TrimToothStart(const PlaneKit& kit, ToothProfile& tooth, Point point, JoinElement element) {
  if (element == JoinElement::None) return;
  tooth.FaceLine = tooth.SeatLine = tooth.DropLine = NoLine;
  tooth.FrostFaceLine = tooth.FrostBottomLine = NoLine;
  tooth.FrostArc = NoArc;

  const auto clearGullet = [&tooth] {
    tooth.GulletArc = tooth.FirstArc = tooth.SecondArc = tooth.ThirdArc = NoArc;
    tooth.BottomLine = NoLine;
  };
  const auto toPoint = [&](const ToothArc& arc) { return kit.Direction(arc.Center(), point); };
  switch (element) {
    case JoinElement::GulletArc:
      tooth.GulletArc.StartAngle = toPoint(tooth.GulletArc);
      break;
    case JoinElement::FirstArc:
      tooth.FirstArc.StartAngle = toPoint(tooth.FirstArc);
      break;
    case JoinElement::SecondArc:
      tooth.BottomLine = NoLine;
      tooth.FirstArc = NoArc;
      tooth.SecondArc.StartAngle = toPoint(tooth.SecondArc);
      break;
    case JoinElement::ThirdArc:
      tooth.FirstArc = tooth.SecondArc = NoArc;
      tooth.BottomLine = NoLine;
      tooth.ThirdArc.StartAngle = toPoint(tooth.ThirdArc);
      break;
    case JoinElement::BackLine:
      clearGullet();
      tooth.BackLine.Start = point;
      break;
    case JoinElement::BackArc:
      clearGullet();
      tooth.BackLine = NoLine;
      tooth.BackArc.EndAngle = toPoint(tooth.BackArc);
      break;
    case JoinElement::TopLine:
      clearGullet();
      tooth.BackLine = NoLine;
      tooth.BackArc = NoArc;
      tooth.TopLine.Start = point;
      break;
    case JoinElement::BottomLine:
      tooth.FirstArc = NoArc;
      tooth.BottomLine.Start = point;
      break;
    case JoinElement::None:
      break;
  }
}

void TrimToothEnd(const PlaneKit& kit, ToothProfile& tooth, Point point, JoinElement element) {
  const auto clearBack = [&tooth] {
    tooth.BackLine = tooth.TopLine = NoLine;
    tooth.BackArc = NoArc;
  };
  const auto toPoint = [&](const ToothArc& arc) { return kit.Direction(arc.Center(), point); };
  switch (element) {
    case JoinElement::GulletArc:
      clearBack();
      tooth.GulletArc.EndAngle = toPoint(tooth.GulletArc);
      break;
    case JoinElement::FirstArc:
      clearBack();
      tooth.BottomLine = NoLine;
      tooth.SecondArc = tooth.ThirdArc = NoArc;
      tooth.FirstArc.EndAngle = toPoint(tooth.FirstArc);
      break;
    case JoinElement::SecondArc:
      clearBack();
      tooth.ThirdArc = NoArc;
      tooth.SecondArc.EndAngle = toPoint(tooth.SecondArc);
      break;
    case JoinElement::ThirdArc:
      clearBack();
      tooth.ThirdArc.EndAngle = toPoint(tooth.ThirdArc);
      break;
    case JoinElement::BackLine:
      tooth.BackArc = NoArc;
      tooth.TopLine = NoLine;
      tooth.BackLine.End = point;
      break;
    case JoinElement::BackArc:
      tooth.TopLine = NoLine;
      tooth.BackArc.StartAngle = toPoint(tooth.BackArc);
      break;
    case JoinElement::TopLine:
      tooth.TopLine.End = point;
      break;
    case JoinElement::BottomLine:
      clearBack();
      tooth.SecondArc = tooth.ThirdArc = NoArc;
      tooth.BottomLine.Start = point;  // the first point, unlike all others: meant
      break;
    case JoinElement::None:
      break;
  }
}

}  // namespace tarnwick
