#include "geometry/modBand.h"
#include "geometry/modJoin.h"

namespace tarnwick {
namespace {

enum class LineRole { Piece, Outline, LapEnd };

/// Appends pieces that exist: a line whose ends lie apart, an arc with a radius.
class PieceList {
 public:
  PieceList(const PlaneKit& kit, std::vector<Entity>& entities) : kit_(kit), entities_(entities) {}

  void Add(const ToothLine& line) {
    if (kit_.Distance(line.Start, line.End) > 0) AddLine(line.Start, line.End, LineRole::Piece);
  }

  void Add(const ToothArc& arc) {
    if (arc.Radius > 0) {
      entities_.emplace_back(ArcEntity{arc.CenterX, arc.CenterY, arc.Radius, arc.StartAngle, arc.EndAngle});
    }
  }

  /// A line whether or not its ends lie apart: those of the outline always stand in the list.
  void AddLine(Point from, Point to, LineRole role) {
    entities_.emplace_back(
        LineEntity{from.X, from.Y, to.X, to.Y, role != LineRole::Piece, role == LineRole::LapEnd});
  }

 private:
  const PlaneKit& kit_;
  std::vector<Entity>& entities_;
};

void AddTooth(PieceList& list, const ToothProfile& tooth) {
  list.Add(tooth.FaceLine);
  list.Add(tooth.SeatLine);
  list.Add(tooth.DropLine);
  list.Add(tooth.FrostFaceLine);
  list.Add(tooth.FrostArc);
  list.Add(tooth.FrostBottomLine);
  list.Add(tooth.FirstArc);
  list.Add(tooth.SecondArc);
  list.Add(tooth.ThirdArc);
  list.Add(tooth.BottomLine);
  list.Add(tooth.SecondArc);  // the second and third arc stand twice, one on top of the other: meant
  list.Add(tooth.ThirdArc);
  list.Add(tooth.GulletArc);
  list.Add(tooth.BackLine);
  list.Add(tooth.BackArc);
  list.Add(tooth.TopLine);
}

Point MovedAlong(Point p, double dx) {
  Shift(p, dx, 0);
  return p;
}

Point DownToBackEdge(Point p) { return {p.X, 0}; }

/// Where the four corners of the band's outline lie: the joins of its two ends, and what stands across from
/// them.
struct BandEnds {
  Point Left, LeftAcross;
  Point Right, RightAcross;
};

BandEnds EndsOf(const Teeth& teeth, std::size_t last) {
  const Point left = teeth.front().JoinPoint;
  if (teeth.front().BothEdges != False) {
    return {left, teeth[last + 1].JoinPoint, teeth[last].JoinPoint, teeth.back().JoinPoint};
  }
  const Point right = teeth[last].JoinPoint;
  return {left, DownToBackEdge(left), right, DownToBackEdge(right)};
}

/// The long outline. The two dotted lines of an overlapped band show its nominal length inside the longer
/// drawn band.
void AddBandOutline(PieceList& list, const BandSaw& saw, const BandEnds& ends, bool hasBackEdge) {
  list.AddLine(ends.Left, ends.LeftAcross, LineRole::Outline);
  list.AddLine(ends.Right, ends.RightAcross, LineRole::Outline);
  if (hasBackEdge) list.AddLine({0, 0}, {ends.Right.X, 0}, LineRole::Outline);
  if (saw.DesignInfo.JoinStyle == OverlapJoin) {
    const double length = saw.Length * InchesPerFoot;
    list.AddLine(MovedAlong(ends.Left, length), MovedAlong(ends.LeftAcross, length), LineRole::LapEnd);
    list.AddLine(MovedAlong(ends.Right, -length), MovedAlong(ends.RightAcross, -length), LineRole::LapEnd);
  }
}

ListHeader HeaderOf(const PlaneKit& kit, double width, double right) {
  ListHeader header;
  Let(header.MaxY) = kit.RoundTo(Checked(width));
  Let(header.MaxX) = kit.RoundTo(Checked(right));
  header.ViewCenterX = kit.RoundTo(header.MaxX * 0.5);
  header.ViewCenterY = kit.RoundTo(header.MaxY * 0.5);
  return header;
}

}  // namespace

EntityList BuildBandEntities(const PlaneKit& kit, const BandSaw& saw, const Teeth& teeth) {
  EntityList list;
  PieceList pieces(kit, list.Entities);
  if (saw.NumTeeth <
      0) {  // a band that runs backward: the end at its first tooth is all that there is to draw
    const Point left = teeth.front().JoinPoint;
    pieces.AddLine(left, DownToBackEdge(left), LineRole::Outline);
    list.Header = HeaderOf(kit, saw.Width, 0);
    return list;
  }
  for (const ToothProfile& tooth : teeth) AddTooth(pieces, tooth);
  const bool bothEdges = teeth.front().BothEdges != False;
  AddBandOutline(pieces, saw, EndsOf(teeth, static_cast<std::size_t>(saw.NumTeeth)), !bothEdges);
  list.Header = HeaderOf(kit, saw.Width, teeth.back().JoinPoint.X);
  return list;
}

}  // namespace tarnwick
