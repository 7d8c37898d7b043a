#include "geometry/modToothDepth.h"

namespace tarnwick {

void LowerGullet(ToothWork& work, double depth, double run, std::initializer_list<ToothArc*> arcs) {
  ToothProfile& tooth = work.Tooth;
  for (ToothArc* arc : arcs) {
    Let(arc->CenterX) = arc->CenterX - run;
    Let(arc->CenterY) = arc->CenterY - depth;
  }
  if (work.HasSeat()) {
    Shift(tooth.DropLine.End, -run, -depth);
  } else {
    Shift(tooth.FaceLine.End, -run, -depth);
    tooth.SeatLine = {tooth.FaceLine.End, tooth.FaceLine.End};
    tooth.DropLine = tooth.SeatLine;
  }
}

}  // namespace tarnwick
