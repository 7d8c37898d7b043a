#include "geometry/modBand.h"
#include "geometry/modJoin.h"
#include "geometry/modPieceList.h"

namespace tarnwick {
namespace {

constexpr int PiecesPerTooth = 16;  // as many as a list makes room for; no style has them all

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

/// How many entities a tooth makes. Asked of one in the middle of the band, which no cut has trimmed: a list
/// that has to grow on the way is copied whole.
std::size_t PiecesOf(const PlaneKit& kit, const ToothProfile& tooth) {
  EntityList pieces;
  PieceList list(kit, pieces, RoomFor(1, PiecesPerTooth));
  AddTooth(list, tooth);
  return pieces.Entities.size();
}

Point MovedAlong(Point p, double dx) { return {Checked(p.X + dx).OrZero(), p.Y}; }

Point DownToBackEdge(Point p) { return {p.X, 0}; }

/// The join point of the tooth at `index`; (0, 0) for a tooth that a band of fewer than no teeth does not
/// have.
Point JoinOf(const Teeth& teeth, int index) {
  return index < 0 ? Point{} : teeth[static_cast<std::size_t>(index)].JoinPoint;
}

/// Where the four corners of the band's outline lie: the joins of its two ends, and what stands across from
/// them.
struct BandEnds {
  Point Left, LeftAcross;
  Point Right, RightAcross;
};

BandEnds EndsOf(const Teeth& teeth, int n, bool bothEdges) {
  const Point left = JoinOf(teeth, 0), right = JoinOf(teeth, n);
  if (bothEdges) return {left, JoinOf(teeth, n + 1), right, JoinOf(teeth, 2 * n + 1)};
  return {left, DownToBackEdge(left), right, DownToBackEdge(right)};
}

/// The long outline. The two dotted lines of an overlapped band show its nominal length inside the longer
/// drawn band.
void AddBandOutline(PieceList& list, const BandSaw& saw, const BandEnds& ends, bool bothEdges) {
  list.AddLine(ends.Left, ends.LeftAcross, LineRole::Outline);
  list.AddLine(ends.Right, ends.RightAcross, LineRole::Outline);
  if (!bothEdges) list.AddLine({0, 0}, {ends.Right.X, 0}, LineRole::Outline);
  if (saw.DesignInfo.JoinStyle == OverlapJoin) {
    const double length = saw.Length * InchesPerFoot;
    list.AddLine(MovedAlong(ends.Left, length), MovedAlong(ends.LeftAcross, length), LineRole::LapEnd);
    list.AddLine(MovedAlong(ends.Right, -length), MovedAlong(ends.RightAcross, -length), LineRole::LapEnd);
  }
}

ListHeader HeaderOf(const PlaneKit& kit, double width, double right) {
  ListHeader header;
  header.MaxY = kit.RoundTo(width);
  header.MaxX = kit.RoundTo(right);
  header.ViewCenterX = kit.RoundTo(header.MaxX * 0.5);
  header.ViewCenterY = kit.RoundTo(header.MaxY * 0.5);
  return header;
}

}  // namespace

EntityList BuildBandEntities(const PlaneKit& kit, const BandSaw& saw, const Teeth& teeth) {
  const int n = saw.NumTeeth;
  const bool bothEdges = teeth.front().BothEdges != False;
  const int count = bothEdges ? (n + 1) * 2 : n + 1;

  constexpr std::size_t mostOutlineLines = 5;
  EntityList list;
  list.Entities.reserve(PiecesOf(kit, teeth[teeth.size() / 2]) * teeth.size() + mostOutlineLines);
  PieceList pieces(kit, list, RoomFor(count, PiecesPerTooth));
  if (n >= 0) {
    for (const ToothProfile& tooth : teeth) AddTooth(pieces, tooth);
  }
  AddBandOutline(pieces, saw, EndsOf(teeth, n, bothEdges), bothEdges);
  list.Header = HeaderOf(kit, saw.Width, JoinOf(teeth, count - 1).X);
  return list;
}

}  // namespace tarnwick
