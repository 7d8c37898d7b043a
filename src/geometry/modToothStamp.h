#pragma once

#include <variant>
#include <vector>

#include "geometry/modBandTeeth.h"
#include "geometry/modPieceList.h"

namespace tarnwick {

/// Adds the pieces of a tooth that exist, in the order of the cutting.
void AddTooth(PieceList& list, const ToothProfile& tooth);

/// Adds the repeated teeth of one shape along one edge of a band.
///
/// They differ in nothing but X. So one of them is made whole, and of all others X alone is worked out: what
/// AddTooth makes of teeth.Tooth(index), in a fraction of the time.
class ToothStamp {
 public:
  /// `tooth`: one of them as it stands in the band; `shape`: what they all come of.
  ToothStamp(const ToothProfile& shape, const ToothProfile& tooth);

  /// Adds the tooth at `place`. Returns a bit for each line, whether it exists: where its ends lie close
  /// together that goes by how they were rounded, and so by the place.
  unsigned Add(PieceList& list, const BandTeeth& teeth, const ToothPlace& place) const;

  /// The largest X of the shape, without its sign.
  [[nodiscard]] double Reach() const;

 private:
  struct Line {
    std::size_t FromX, ToX;  // which of the X
    double FromY, ToY;
  };
  struct Arc {
    std::size_t CenterX;
    ToothArc Made;
  };

  void Take(const ToothLine& shape, const ToothLine& made);
  void Take(const ToothArc& shape, const ToothArc& made);
  std::size_t Note(double x);

  std::vector<double> shapeX_;  // every X of the shape once: pieces that meet have it in common
  std::vector<std::variant<Line, Arc>> pieces_;
};

}  // namespace tarnwick
