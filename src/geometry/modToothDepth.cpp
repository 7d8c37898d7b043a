#include "geometry/modToothDepth.h"

namespace tarnwick {

void LowerArcs(double depth, double run, std::initializer_list<ToothArc*> arcs) {
  for (ToothArc* arc : arcs) {
    Let(arc->CenterX) = arc->CenterX - run;
    Let(arc->CenterY) = arc->CenterY - depth;
  }
}

RaisedArc RaiseArcThrough(ToothArc& arc, Point point, double rise) {
  const double height = Checked(point.Y - arc.CenterY - rise).OrZero();
  const double reach = Root(arc.Radius * arc.Radius - height * height).OrZero();
  const double slide = Checked(reach - (arc.CenterX - point.X)).OrZero();
  Let(arc.CenterX) = arc.CenterX + slide;
  Let(arc.CenterY) = arc.CenterY + rise;
  return {height, reach, slide};
}

void LowerGullet(ToothWork& work, double depth, double run, std::initializer_list<ToothArc*> arcs) {
  ToothProfile& tooth = work.Tooth;
  LowerArcs(depth, run, arcs);
  if (work.HasSeat()) {
    Shift(tooth.DropLine.End, -run, -depth);
  } else {
    Shift(tooth.FaceLine.End, -run, -depth);
    tooth.SeatLine = {tooth.FaceLine.End, tooth.FaceLine.End};
    tooth.DropLine = tooth.SeatLine;
  }
}

}  // namespace tarnwick
