#include "platform/qt/SeenLines.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

constexpr double MostChords = 65536;

QPointF PointAt(const Ellipse& ellipse, double angle) {
  const Spot spot = ellipse.At(angle);
  return {spot.X, spot.Y};
}

/// How many chords stand for an arc of `sweep` radians so that nobody sees them.
int ChordsFor(double radius, double sweep, double flatness) {
  const double chord = 2 * std::acos(1 - std::min(1.0, flatness / radius));
  return static_cast<int>(std::clamp(std::ceil(sweep / chord), 1.0, MostChords));
}

}  // namespace

// After Liang and Barsky.
std::optional<QLineF> SeenPart(const QLineF& line, const QRectF& box) {
  double from = 0, to = 1;
  const auto cut = [&](double towards, double room) {  // keeps what has towards * t <= room
    if (!(towards != 0)) return room >= 0;
    const double t = room / towards;
    if (towards < 0) from = std::max(from, t);
    if (towards > 0) to = std::min(to, t);
    return from <= to;
  };
  if (!std::isfinite(line.dx()) || !std::isfinite(line.dy())) return {};
  if (!cut(-line.dx(), line.x1() - box.left()) || !cut(line.dx(), box.right() - line.x1()) ||
      !cut(-line.dy(), line.y1() - box.top()) || !cut(line.dy(), box.bottom() - line.y1())) {
    return {};
  }
  return QLineF(line.pointAt(from), line.pointAt(to));
}

void DrawSeenChains(const Ellipse& ellipse, double from, double sweep, double flatness, const QRectF& box,
                    const ChainDrawing& draw) {
  if (!std::isfinite(from + sweep)) return;
  const int chords = ChordsFor(std::max(ellipse.RadiusX, ellipse.RadiusY), sweep, flatness);
  std::vector<QPointF> chain{PointAt(ellipse, from)};
  const auto end = [&] {
    if (chain.size() > 1) draw(chain);
  };
  for (int i = 1; i <= chords; ++i) {
    const QPointF next = PointAt(ellipse, from + (sweep * i / chords));
    if (SeenPart(QLineF(chain.back(), next), box)) {
      chain.push_back(next);
    } else {
      end();
      chain = {next};
    }
  }
  end();
}

}  // namespace tarnwick
