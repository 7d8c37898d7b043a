#include "geometry/modBandTeeth.h"

#include <algorithm>
#include <utility>

#include "geometry/modToothMoves.h"

namespace tarnwick {
namespace {

ToothProfile MovedAlong(const PlaneKit& kit, const ToothProfile& tooth, double offset) {
  ToothProfile moved;
  TranslateTooth(kit, tooth, moved, offset, 0);
  return moved;
}

ToothProfile TurnedAround(const PlaneKit& kit, const ToothProfile& tooth, double back) {
  ToothProfile turned;
  MirrorToothX(kit, tooth, turned);
  TranslateTooth(kit, turned, turned, back, 0);
  return turned;
}

ToothProfile TurnedOver(const PlaneKit& kit, const ToothProfile& tooth) {
  // A trimmed first tooth has lost its face; its top still ends on the height of the tips.
  const double tip = tooth.FaceLine.Start.Y > 0 ? tooth.FaceLine.Start.Y : tooth.TopLine.End.Y;
  ToothProfile lowered, turned;
  TranslateTooth(kit, tooth, lowered, 0, -tip);
  MirrorToothY(kit, lowered, turned);
  return turned;
}

bool IsAlike(const ToothPlace& a, const ToothPlace& b) {
  return a.Shape == b.Shape && a.Repeated == b.Repeated && a.Turned == b.Turned && a.OtherEdge == b.OtherEdge;
}

/// Whether `next` is the same tooth as `place` and stands no further left.
bool Follows(const ToothPlace& place, const ToothPlace& next) {
  const double step = next.Offset - place.Offset;
  return IsAlike(place, next) && (place.Turned ? step <= 0 : step >= 0);
}

}  // namespace

BandTeeth::BandTeeth(const PlaneKit& kit, Teeth placed)
    : kit_(kit), shapes_(std::move(placed)), empty_(static_cast<std::uint32_t>(shapes_.size())) {
  places_.reserve(shapes_.size());
  for (std::uint32_t shape = 0; shape < empty_; ++shape) places_.push_back({.Shape = shape});
  shapes_.emplace_back();
}

ToothProfile BandTeeth::Tooth(std::size_t index) const {
  const ToothPlace& place = places_[index];
  ToothProfile tooth = shapes_[place.Shape];
  if (place.Repeated) tooth = MovedAlong(kit_, tooth, place.Offset);
  if (place.Turned) tooth = TurnedAround(kit_, tooth, back_);
  if (place.OtherEdge) tooth = TurnedOver(kit_, tooth);
  return tooth;
}

ToothProfile BandTeeth::ShapeAt(const ToothPlace& place) const {
  ToothProfile shape = shapes_[place.Shape];
  if (place.Turned || place.OtherEdge) {  // a mirror leaves the notch out
    shape.FrostFaceLine = shape.FrostBottomLine = {};
    shape.FrostArc = {};
  }
  return shape;
}

void BandTeeth::SetTooth(std::size_t index, const ToothProfile& tooth) {
  places_[index] = {.Shape = static_cast<std::uint32_t>(shapes_.size())};
  shapes_.push_back(tooth);
}

void BandTeeth::Repeat(std::size_t index, std::size_t shape, double offset) {
  if (index >= places_.size()) Resize(index + 1);
  places_[index] = {.Offset = offset, .Shape = static_cast<std::uint32_t>(shape), .Repeated = true};
}

void BandTeeth::Resize(std::size_t count) { places_.resize(count, {.Shape = empty_}); }

void BandTeeth::TurnAround(std::size_t last, double back) {
  back_ = back;
  const auto end = places_.begin() + static_cast<std::ptrdiff_t>(last) + 1;
  std::reverse(places_.begin(), end);
  std::for_each(places_.begin(), end, [](ToothPlace& place) { place.Turned = true; });
}

void BandTeeth::AddOtherEdge() {
  const std::size_t count = places_.size();
  places_.resize(2 * count);
  std::transform(places_.begin(), places_.begin() + static_cast<std::ptrdiff_t>(count),
                 places_.begin() + static_cast<std::ptrdiff_t>(count), [](ToothPlace place) {
                   place.OtherEdge = true;
                   return place;
                 });
}

ToothRun BandTeeth::RunFrom(std::size_t index) const {
  const auto repeated = [this](std::size_t i) { return i < Size() && places_[i].Repeated; };
  std::size_t teeth = 1;
  while (repeated(index + teeth) && !IsAlike(places_[index], places_[index + teeth])) ++teeth;
  std::size_t end = index + teeth;
  while (end < Size() && Follows(places_[end - teeth], places_[end])) ++end;
  return {teeth, (end - index) / teeth};
}

}  // namespace tarnwick
