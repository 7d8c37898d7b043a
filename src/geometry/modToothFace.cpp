#include "geometry/modToothFace.h"

namespace tarnwick {
namespace {

constexpr double StubPerRadius = 12;
constexpr double StubWithoutRadius = 0.1;

void LayFace(ToothWork& work, double length) {
  const Point tip = work.Tip();
  Place(work.Tooth.FaceLine.End, tip.X - Opposite(length, work.Hook()),
        tip.Y - Adjacent(length, work.Hook()));
}

}  // namespace

void PlaceFace(ToothWork& work) {
  const BandSaw& saw = work.Saw;
  ToothProfile& tooth = work.Tooth;
  Place(tooth.FaceLine.Start, 0, saw.Width - saw.TipClear);

  if (work.HasSeat()) {
    LayFace(work, saw.SeatInfo.Height);
    const Point top = tooth.FaceLine.End;
    tooth.SeatLine.Start = top;
    Place(tooth.SeatLine.End, top.X + Adjacent(saw.SeatInfo.Width, work.Hook()),
          top.Y - Opposite(saw.SeatInfo.Width, work.Hook()));
  } else {
    const double radius = saw.GulletInfo.Radius;
    LayFace(work, radius > 0 ? Quotient(radius, StubPerRadius).OrZero() : StubWithoutRadius);
    tooth.SeatLine = {tooth.FaceLine.End, tooth.FaceLine.End};
  }
  tooth.DropLine = {tooth.SeatLine.End, tooth.SeatLine.End};
}

}  // namespace tarnwick
