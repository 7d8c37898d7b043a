#pragma once

#include <cstdint>
#include <vector>

#include "geometry/modToothProfile.h"
#include "geometry/modTrig.h"

namespace tarnwick {

/// How a tooth of a band comes of its shape: moved along, turned around with the band, turned over to the
/// other edge; in this order.
struct ToothPlace {
  double Offset{};        // inches along X, of a repeated tooth
  std::uint32_t Shape{};  // its number among the shapes of the band
  bool Repeated{};        // moved by the offset, be it 0; else the tooth stands where its shape does
  bool Turned{};
  bool OtherEdge{};
};

/// A part of a band that repeats: `Teeth` teeth side by side, and as many more of the same shapes behind
/// them, `Times` times in all.
struct ToothRun {
  std::size_t Teeth{}, Times{};
};

/// The teeth of a band: those along the first edge, then those along the other one.
///
/// There are thousands of them and a handful of shapes. So the band keeps the shapes and what is to be done
/// to them; a tooth is made when somebody asks for it, by the moves that its layout calls for, every one with
/// its roundings.
class BandTeeth {
 public:
  /// A band of teeth that were placed one by one. `kit` has to outlive it.
  BandTeeth(const PlaneKit& kit, Teeth placed);

  [[nodiscard]] std::size_t Size() const { return places_.size(); }
  [[nodiscard]] ToothProfile Tooth(std::size_t index) const;

  /// Puts in a tooth of its own shape, which is moved no more.
  void SetTooth(std::size_t index, const ToothProfile& tooth);
  /// Puts in the shape with the number `shape` once more, moved by `offset`. A band that is too short grows.
  void Repeat(std::size_t index, std::size_t shape, double offset);
  /// Makes room for so many teeth.
  void Reserve(std::size_t count) { places_.reserve(count); }
  /// Cuts the band off, or fills it up with teeth that have no pieces.
  void Resize(std::size_t count);

  /// Turns the band around: the teeth up to `last` mirrored in reversed order, and moved back by `back`.
  void TurnAround(std::size_t last, double back);
  /// Adds the other edge: all teeth once more, turned over in the same strip.
  void AddOtherEdge();

  // What tells a walker that it need not make every tooth.

  [[nodiscard]] const ToothPlace& Place(std::size_t index) const { return places_[index]; }
  /// What the tooth at a place comes of: the pieces that it can have, with their X as MovedX() takes it.
  [[nodiscard]] ToothProfile ShapeAt(const ToothPlace& place) const;

  /// What repeats from the tooth at `index` on; it must be a repeated one. From one group of teeth to the
  /// next nothing changes but X, and no X becomes smaller.
  [[nodiscard]] ToothRun RunFrom(std::size_t index) const;

  /// What Tooth() makes of an X of the shape at a repeated place: the same steps for this one number.
  [[nodiscard]] double MovedX(const ToothPlace& place, double x) const;

 private:
  const PlaneKit& kit_;
  Teeth shapes_;
  std::uint32_t empty_;  // the shape of a tooth without pieces
  std::vector<ToothPlace> places_;
  double back_ = 0;  // how far a band that was turned around moves
};

inline double BandTeeth::MovedX(const ToothPlace& place, double x) const {
  const Rounding& round = kit_.RoundTo;
  double moved = 0;
  round.Store(moved, x + place.Offset);
  if (place.Turned) {
    double turned = 0;
    round.Store(turned, -moved);
    round.Store(turned, turned + back_);
    moved = turned;
  }
  // Lowered, then mirrored: neither changes X, each rounds it.
  if (place.OtherEdge) moved = round.Again(round.Again(moved));
  return moved;
}

}  // namespace tarnwick
