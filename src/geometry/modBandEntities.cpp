#include <algorithm>
#include <cmath>
#include <vector>

#include "geometry/modBand.h"
#include "geometry/modPieceList.h"
#include "geometry/modToothStamp.h"

namespace tarnwick {
namespace {

constexpr double FarOff = 1e100;  // inches: with larger numbers sums may overflow, which changes more than X

/// How many entities a tooth makes. Asked of one in the middle of an edge, which no cut has trimmed: a list
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
Point JoinOf(const BandTeeth& teeth, int index) {
  return index < 0 ? Point{} : teeth.Tooth(static_cast<std::size_t>(index)).JoinPoint;
}

/// Where the four corners of the band's outline lie: the joins of its two ends, and what stands across from
/// them.
struct BandEnds {
  Point Left, LeftAcross;
  Point Right, RightAcross;
};

BandEnds EndsOf(const BandTeeth& teeth, int n, bool bothEdges) {
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

/// Adds the teeth one after the other, and notes what repeats.
class TeethInLine {
 public:
  TeethInLine(EntityList& list, PieceList& pieces, const BandTeeth& teeth)
      : list_(list), pieces_(pieces), teeth_(teeth) {}

  void AddAll() {
    for (std::size_t i = 0; i < teeth_.Size();) {
      if (teeth_.Place(i).Repeated) {
        i += AddRun(i, teeth_.RunFrom(i));
      } else {
        AddTooth(pieces_, teeth_.Tooth(i++));
      }
    }
  }

 private:
  std::size_t AddRun(std::size_t first, const ToothRun& run);

  EntityList& list_;
  PieceList& pieces_;
  const BandTeeth& teeth_;
};

/// Adds the teeth of a run; returns how many they are.
std::size_t TeethInLine::AddRun(std::size_t first, const ToothRun& run) {
  const std::size_t end = first + run.Teeth * run.Times;
  std::vector<ToothStamp> stamps;
  std::vector<unsigned> lines;  // those that the first group has
  const std::size_t begun = list_.Entities.size();
  double reach = std::max(std::abs(teeth_.Place(first).Offset), std::abs(teeth_.Place(end - 1).Offset));
  for (std::size_t i = first; i < first + run.Teeth; ++i) {
    const ToothStamp& stamp = stamps.emplace_back(teeth_.ShapeAt(teeth_.Place(i)), teeth_.Tooth(i));
    lines.push_back(stamp.Add(pieces_, teeth_, teeth_.Place(i)));
    reach = std::max(reach, stamp.Reach());
  }
  const std::size_t size = list_.Entities.size() - begun;

  bool alike = size > 0 && run.Times > 1 && reach < FarOff;
  for (std::size_t i = first + run.Teeth, k = 0; i < end; ++i, k = k + 1 < run.Teeth ? k + 1 : 0) {
    alike &= stamps[k].Add(pieces_, teeth_, teeth_.Place(i)) == lines[k];
  }
  if (alike) list_.Repetitions.push_back({begun, size, run.Times});
  return end - first;
}

}  // namespace

EntityList BuildBandEntities(const PlaneKit& kit, const BandSaw& saw, const BandTeeth& teeth,
                             EntityList list) {
  const int n = saw.NumTeeth;
  const bool bothEdges = teeth.Tooth(0).BothEdges != False;
  const int count = bothEdges ? (n + 1) * 2 : n + 1;

  constexpr std::size_t mostOutlineLines = 5;
  const std::size_t middle = static_cast<std::size_t>(std::max(n, 0)) / 2;
  list.Clear();
  list.Entities.reserve(PiecesOf(kit, teeth.Tooth(middle)) * teeth.Size() + mostOutlineLines);
  PieceList pieces(kit, list, RoomFor(count, PiecesPerTooth));
  if (n >= 0) TeethInLine(list, pieces, teeth).AddAll();
  AddBandOutline(pieces, saw, EndsOf(teeth, n, bothEdges), bothEdges);
  list.Header = HeaderOf(kit, saw.Width, JoinOf(teeth, count - 1).X);
  return list;
}

}  // namespace tarnwick
