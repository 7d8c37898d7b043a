#pragma once

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "geometry/modGulletArea.h"
#include "geometry/modToothProfile.h"
#include "model/modEntity.h"

namespace tarnwick::test {

// The outline as a way to walk: each piece leads from one point to another.

struct Step {
  std::string Name;
  Point From, To;
};

inline double Length(Point from, Point to) { return std::hypot(to.X - from.X, to.Y - from.Y); }

/// The pieces of one tooth that exist, in the order in which the outline passes them from its tip to the next
/// one. The fillet is drawn from the top back to the back line, and so is walked against its sense.
inline std::vector<Step> WalkOf(const ToothProfile& tooth) {
  std::vector<Step> walk;
  const auto line = [&](const char* name, const ToothLine& piece) {
    if (piece.Start != piece.End) walk.push_back({name, piece.Start, piece.End});
  };
  const auto arc = [&](const char* name, const ToothArc& piece) {
    if (piece.Radius > 0) walk.push_back({name, StartOf(piece), EndOf(piece)});
  };
  line("FaceLine", tooth.FaceLine);
  line("SeatLine", tooth.SeatLine);
  line("FrostFaceLine", tooth.FrostFaceLine);
  arc("FrostArc", tooth.FrostArc);
  line("FrostBottomLine", tooth.FrostBottomLine);
  line("DropLine", tooth.DropLine);
  if (tooth.GulletArc.Radius > 0) {  // a Frost tooth has a copy of it in FirstArc
    arc("GulletArc", tooth.GulletArc);
  } else {
    arc("FirstArc", tooth.FirstArc);
    line("BottomLine", tooth.BottomLine);
    arc("SecondArc", tooth.SecondArc);
    arc("ThirdArc", tooth.ThirdArc);
  }
  line("BackLine", tooth.BackLine);
  if (tooth.BackArc.Radius > 0) walk.push_back({"BackArc", EndOf(tooth.BackArc), StartOf(tooth.BackArc)});
  line("TopLine", tooth.TopLine);
  return walk;
}

/// Where two pieces that follow each other lie furthest apart.
struct Gap {
  double Size = 0;
  std::string Where = "nowhere";
};

inline Gap WidestGap(const std::vector<Step>& walk) {
  Gap widest;
  for (std::size_t i = 1; i < walk.size(); ++i) {
    const double size = Length(walk[i - 1].To, walk[i].From);
    if (!(size <= widest.Size)) widest = {size, walk[i - 1].Name + " to " + walk[i].Name};
  }
  return widest;
}

/// The pieces of a drawing, each once: those that stand twice lie on top of each other. Pieces no longer than
/// `least` connect nothing and are left out, and so are the dotted ends of a lap, which no outline needs.
inline std::vector<Step> StepsOf(const EntityList& list, double least) {
  std::vector<Step> steps;
  const auto add = [&](const char* name, Point from, Point to) {
    if (Length(from, to) <= least) return;
    for (const Step& step : steps) {
      if (step.Name == name && step.From == from && step.To == to) return;
    }
    steps.push_back({name, from, to});
  };
  for (const Entity& entity : list.Entities) {
    if (const auto* line = std::get_if<LineEntity>(&entity)) {
      if (!line->IsDotted)
        add(line->IsOutline ? "outline" : "line", {line->Corner1X, line->Corner1Y},
            {line->Corner4X, line->Corner4Y});
    } else if (const auto* e = std::get_if<ArcEntity>(&entity)) {
      const ToothArc arc{e->CenterX, e->CenterY, e->Radius, e->StartAngle, e->EndAngle};
      add("arc", StartOf(arc), EndOf(arc));
    }
  }
  return steps;
}

/// The widest gap on a round trip over all pieces of a drawing, always on to the piece whose end lies
/// nearest.
inline Gap WidestGapAround(std::vector<Step> steps) {
  Gap widest;
  if (steps.empty()) return widest;
  const auto show = [](Point p) { return "(" + std::to_string(p.X) + ", " + std::to_string(p.Y) + ")"; };
  const auto note = [&](Point from, Point to) {
    const double size = Length(from, to);
    if (!(size <= widest.Size)) widest = {size, show(from) + " to " + show(to)};
  };
  const Point home = steps.front().From;
  Point at = steps.front().To;
  steps.erase(steps.begin());
  while (!steps.empty()) {
    auto nearest = steps.begin();
    double best = std::numeric_limits<double>::infinity();
    bool turned = false;
    for (auto step = steps.begin(); step != steps.end(); ++step) {
      for (const bool backward : {false, true}) {
        const double far = Length(at, backward ? step->To : step->From);
        if (far < best) {
          best = far;
          nearest = step;
          turned = backward;
        }
      }
    }
    note(at, turned ? nearest->To : nearest->From);
    at = turned ? nearest->From : nearest->To;
    steps.erase(nearest);
  }
  note(at, home);
  return widest;
}

}  // namespace tarnwick::test
