#include "window/modGulletRow.h"

#include <algorithm>

namespace tarnwick {
namespace {

using Gullet = BandSaw::Gullet;

constexpr double LeastLengthForArea = 1.0;  // ft
constexpr int LeastTeethForArea = 8;

constexpr GulletRow SingleRadius{RowCode::GulletRadius, "Gullet Radius:", &Gullet::Radius, Inches};
constexpr GulletRow Radius1{RowCode::Radius1, "1st Gullet Radius:", &Gullet::Radius1, Inches};
constexpr GulletRow Radius2{RowCode::Radius2, "2nd Gullet Radius:", &Gullet::Radius2, Inches};
constexpr GulletRow Radius3{RowCode::Radius3, "3rd Gullet Radius:", &Gullet::Radius3, Inches};
constexpr GulletRow BottomAngle{RowCode::BottomAngle, "Gullet Bottom Angle:", &Gullet::BottomAngle, Degrees};
constexpr GulletRow Width{RowCode::GulletWidth, "Gullet Width:", &Gullet::Width, Inches};
constexpr GulletRow BackAngle{RowCode::BackAngle, "Gullet Back Angle:", &Gullet::BackAngle, Degrees};

constexpr GulletRow SingleArcRows[] = {SingleRadius, BackAngle};
constexpr GulletRow DoubleRadiusRows[] = {Radius1, Radius2, Width, BackAngle};
constexpr GulletRow TripleRadiusRows[] = {Radius1, Radius2, Radius3, Width, BackAngle};
constexpr GulletRow FlatBottomRows[] = {Radius1, Radius2, BottomAngle, Width, BackAngle};
constexpr GulletRow NarrowRows[] = {SingleRadius};
constexpr GulletRow OShapeRows[] = {Radius1, Width};
constexpr GulletRow FrostRows[] = {
    {RowCode::FrostWidth, "Frost Notch Width:", &Gullet::FrostWidth, FineInches},
    {RowCode::FrostHeight, "Frost Notch Height:", &Gullet::FrostHeight, FineInches},
    {RowCode::FrostRadius, "Frost Notch Radius:", &Gullet::FrostRadius, FineInches},
    {RowCode::FrostAngle, "Frost Notch Angle:", &Gullet::FrostAngle, Degrees},
    Radius1,
    Radius2,
    Radius3,
    Width};

}  // namespace

std::span<const GulletRow> GulletRowsOfStyle(int style) {
  switch (style) {
    case DoubleRadius:
      return DoubleRadiusRows;
    case TripleRadius:
      return TripleRadiusRows;
    case FlatBottom:
      return FlatBottomRows;
    case NarrowStyle:
      return NarrowRows;
    case OShape:
      return OShapeRows;
    case FrostTooth:
      return FrostRows;
    default:
      return SingleArcRows;
  }
}

bool ShowsGulletArea(const BandSaw& saw) {
  const Gullet& g = saw.GulletInfo;
  const bool hasRadius = g.Radius > 0 || g.Radius2 > 0 || g.Radius1 > 0;
  return saw.Length >= LeastLengthForArea && saw.NumTeeth >= LeastTeethForArea && hasRadius;
}

int TeethOfSegmentShown(const BandSaw& saw) {
  return std::clamp<int>(saw.GeneralInfo.NumVariables, 0, UsedSegmentMeasures);
}

}  // namespace tarnwick
