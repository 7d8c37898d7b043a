#include "window/modDraw.h"

#include <array>
#include <cmath>
#include <utility>
#include <variant>

#include "geometry/modTrig.h"
#include "window/modGroupReach.h"
#include "window/modPieceBox.h"

namespace tarnwick {
namespace {

constexpr double Margin = PixelsPerInch;  // around the surface, where ends of pieces still count as inside

/// A rectangle in pixels of the surface.
struct PixelBox {
  double Left{}, Top{}, Right{}, Bottom{};

  [[nodiscard]] double Width() const { return Right - Left; }
  [[nodiscard]] double Height() const { return Bottom - Top; }
};

PixelBox WindowOf(PixelSize surface) {
  return {-Margin, -Margin, surface.Width + Margin, surface.Height + Margin};
}

bool PointInWindow(Spot point, const PixelBox& window) {
  return point.X >= window.Left && point.X <= window.Right && point.Y >= window.Top &&
         point.Y <= window.Bottom;
}

bool LineInWindow(Spot from, Spot to, const PixelBox& window) {
  return PointInWindow(from, window) || PointInWindow(to, window);
}

bool Meet(const PixelBox& a, const PixelBox& b) {
  return a.Right >= b.Left && a.Left <= b.Right && a.Bottom >= b.Top && a.Top <= b.Bottom;
}

PixelBox ToSurface(const PieceBox& box, const Mapping& mapping) {
  const Spot topLeft = mapping.ToSurface(box.MinX, box.MaxY);
  const Spot bottomRight = mapping.ToSurface(box.MaxX, box.MinY);
  return {topLeft.X, topLeft.Y, bottomRight.X, bottomRight.Y};
}

using Piece = std::variant<const LineEntity*, const ArcEntity*>;

/// Pieces in one column of pixels, not a pixel apart, that become one stroke. A band on the screen has dozens
/// of teeth in a column.
struct Bundle {
  double Column{};  // its left edge
  PixelBox Box;
  int Pieces{};
  Piece First;  // a lone piece is drawn as it is

  /// A piece of less than a pixel belongs to the column of its middle.
  [[nodiscard]] static bool IsDot(const PixelBox& box) { return box.Width() < 1 && box.Height() < 1; }
  [[nodiscard]] static double ColumnOf(const PixelBox& box) {
    return std::floor(IsDot(box) ? (box.Left + box.Right) / 2 : box.Left);
  }
  [[nodiscard]] bool Holds(const PixelBox& box) const {
    return ColumnOf(box) == Column && (IsDot(box) || box.Right < Column + 1);
  }
  [[nodiscard]] bool Takes(const PixelBox& box) const {
    return Pieces > 0 && Holds(box) && box.Top <= Box.Bottom + 1 && box.Bottom >= Box.Top - 1;
  }
  void Add(const PixelBox& box) {
    Box = {std::min(Box.Left, box.Left), std::min(Box.Top, box.Top), std::max(Box.Right, box.Right),
           std::max(Box.Bottom, box.Bottom)};
    ++Pieces;
  }
};

/// One walk over a list: where to draw it, and how.
class Drawing {
 public:
  Drawing(const Mapping& mapping, Canvas& canvas, Inks inks, Detail detail)
      : mapping_(mapping), canvas_(canvas), inks_(inks), detail_(detail), window_(WindowOf(canvas.Size())) {}

  void DrawEntities(const EntityList& list) {
    canvas_.SetPen(inks_.Lines, PenStyle::Solid);
    std::size_t next = 0;
    for (const Repetition& part : list.Repetitions) {
      DrawRange(list, next, part.First);
      DrawRepetition(list, part);
      next = part.End();
    }
    DrawRange(list, next, list.Entities.size());
    DrawBundle();
  }

 private:
  void DrawRange(const EntityList& list, std::size_t from, std::size_t end);
  void DrawRepetition(const EntityList& list, const Repetition& part);

  void Draw(const LineEntity& line) { line.IsOutline ? DrawOutline(line) : DrawLine(line); }
  void Draw(const ArcEntity& arc) { DrawArc(arc); }
  void Draw(const CircleEntity& circle) { DrawCircle(circle); }
  void Draw(const TextEntity& text) { DrawText(text); }
  void Draw(const SolidEntity& solid) { DrawSolid(solid); }

  void DrawOutline(const LineEntity& line);
  void DrawLine(const LineEntity& line);
  void DrawArc(const ArcEntity& arc);
  void DrawCircle(const CircleEntity& circle);
  void DrawSolid(const SolidEntity& solid);
  void DrawText(const TextEntity& text);

  [[nodiscard]] bool Bundled(const PixelBox& box, Piece piece);
  void DrawBundle();

  void Put(const LineEntity& line);
  void Put(const ArcEntity& arc);
  void PutLine(Spot from, Spot to);
  void PutRound(const PieceBox& box, Spot start, Spot end);
  [[nodiscard]] Spot EndOf(const ArcEntity& arc, double angle) const;

  const Mapping& mapping_;
  Canvas& canvas_;
  const Inks inks_;
  const Detail detail_;
  const PixelBox window_;
  Bundle bundle_;
};

void Drawing::DrawRange(const EntityList& list, std::size_t from, std::size_t end) {
  for (std::size_t i = from; i < end; ++i) {
    std::visit([this](const auto& kind) { Draw(kind); }, list.Entities[i]);
  }
}

/// Passes over the groups that lie off the surface, and over those that add nothing: where a whole group went
/// into the bundle of its column, the last group of the column completes it.
void Drawing::DrawRepetition(const EntityList& list, const Repetition& part) {
  const GroupReach reach(list, part, mapping_);
  const std::size_t end = reach.FirstBeyond(window_.Right);
  for (std::size_t group = reach.FirstReaching(window_.Left); group < end; ++group) {
    const int before = bundle_.Pieces;
    DrawRange(list, part.Group(group), part.Group(group + 1));
    if (bundle_.Pieces - before != static_cast<int>(part.Size)) continue;
    const std::size_t next = reach.FirstReaching(bundle_.Column + 1, group + 1);
    if (next > group + 2) group = next - 2;
  }
}

bool Finite(Spot spot) { return std::isfinite(spot.X) && std::isfinite(spot.Y); }

void Drawing::DrawOutline(const LineEntity& line) {
  Spot from = mapping_.ToSurface(line.Corner1X, line.Corner1Y);
  Spot to = mapping_.ToSurface(line.Corner4X, line.Corner4Y);
  for (Spot* end : {&from, &to}) end->X = std::clamp(end->X, window_.Left, window_.Right);
  if (line.IsDotted) canvas_.SetPen(inks_.Lines, PenStyle::Dots);
  PutLine(from, to);
  if (line.IsDotted) canvas_.SetPen(inks_.Lines, PenStyle::Solid);
}

void Drawing::DrawLine(const LineEntity& line) {
  const Spot from = mapping_.ToSurface(line.Corner1X, line.Corner1Y);
  const Spot to = mapping_.ToSurface(line.Corner4X, line.Corner4Y);
  if (!LineInWindow(from, to, window_)) return;
  const PixelBox box{std::min(from.X, to.X), std::min(from.Y, to.Y), std::max(from.X, to.X),
                     std::max(from.Y, to.Y)};
  if (!Bundled(box, &line)) PutLine(from, to);
}

void Drawing::DrawArc(const ArcEntity& arc) {
  const PixelBox circle = ToSurface(CircleBoxOf(arc), mapping_);
  if (!Meet(circle, window_)) return;  // neither end can be inside: spares the sines of most arcs
  // Within a pixel nobody can tell an arc from its circle: spares those of a band seen whole.
  if (circle.Height() < 1 && Bundled(circle, &arc)) return;

  if (!LineInWindow(EndOf(arc, arc.StartAngle), EndOf(arc, arc.EndAngle), window_)) return;
  if (!Bundled(ToSurface(BoxOf(arc), mapping_), &arc)) Put(arc);
}

void Drawing::DrawCircle(const CircleEntity& circle) {
  const Spot rightmost = mapping_.ToSurface(circle.CenterX + circle.Radius, circle.CenterY);
  PutRound(BoxOf(circle), rightmost, rightmost);
}

void Drawing::DrawSolid(const SolidEntity& solid) {
  const std::array corners{
      mapping_.ToSurface(solid.Corner1X, solid.Corner1Y), mapping_.ToSurface(solid.Corner2X, solid.Corner2Y),
      mapping_.ToSurface(solid.Corner3X, solid.Corner3Y), mapping_.ToSurface(solid.Corner4X, solid.Corner4Y),
      mapping_.ToSurface(solid.Corner1X, solid.Corner1Y)};
  if (std::all_of(corners.begin(), corners.end(), Finite)) canvas_.Polygon(corners);
}

void Drawing::DrawText(const TextEntity& text) {
  const std::string words = text.Text.Trimmed();
  const PixelSize size = canvas_.TextSize(words);
  const Spot anchor =
      mapping_.ToSurface(text.TextHeight / 1.5 + text.Corner1X, text.Corner1Y + text.TextHeight);
  const Spot topLeft{std::nearbyint(anchor.X - size.Width / 2), std::nearbyint(anchor.Y - size.Height / 2)};
  if (!Finite(topLeft)) return;
  canvas_.SetPen(inks_.Texts, PenStyle::Solid);
  canvas_.Text(topLeft, words);
  canvas_.SetPen(inks_.Lines, PenStyle::Solid);
}

/// Takes a piece that lies in one column of pixels into the bundle of that column.
bool Drawing::Bundled(const PixelBox& box, Piece piece) {
  if (detail_ == Detail::EveryPiece) return false;
  if (!bundle_.Takes(box)) {
    const Bundle next{Bundle::ColumnOf(box), box, 0, piece};
    if (!next.Holds(box)) return false;
    DrawBundle();
    bundle_ = next;
  }
  bundle_.Add(box);
  return true;
}

/// A stroke along the longer side of the bundle's box, through its middle.
void Drawing::DrawBundle() {
  const auto& [column, box, pieces, first] = std::exchange(bundle_, {});
  if (pieces == 1) std::visit([this](const auto* piece) { Put(*piece); }, first);
  if (pieces < 2) return;
  const double middleX = (box.Left + box.Right) / 2, middleY = (box.Top + box.Bottom) / 2;
  if (box.Height() > box.Width()) {
    PutLine({middleX, box.Top}, {middleX, box.Bottom});
  } else {
    PutLine({box.Left, middleY}, {box.Right, middleY});
  }
}

void Drawing::Put(const LineEntity& line) {
  PutLine(mapping_.ToSurface(line.Corner1X, line.Corner1Y), mapping_.ToSurface(line.Corner4X, line.Corner4Y));
}

void Drawing::Put(const ArcEntity& arc) {
  PutRound(CircleBoxOf(arc), EndOf(arc, arc.StartAngle), EndOf(arc, arc.EndAngle));
}

/// A design of absurd measures can lie beyond all numbers; no surface is asked to draw that.
void Drawing::PutLine(Spot from, Spot to) {
  if (Finite(from) && Finite(to)) canvas_.Polyline(std::array{from, to});
}

void Drawing::PutRound(const PieceBox& box, Spot start, Spot end) {
  const Spot topLeft = mapping_.ToSurface(box.MinX, box.MaxY);
  const Spot bottomRight = mapping_.ToSurface(box.MaxX, box.MinY);
  if (Finite(topLeft) && Finite(bottomRight)) canvas_.Arc(topLeft, bottomRight, start, end);
}

Spot Drawing::EndOf(const ArcEntity& arc, double angle) const {
  Point end;
  PolarPoint({arc.CenterX, arc.CenterY}, end, arc.Radius, angle);
  return mapping_.ToSurface(end.X, end.Y);
}

/// Through the design's origin, each where it comes near the surface.
void DrawCenterLines(const Mapping& mapping, Canvas& canvas, Colour colour) {
  const auto [width, height] = canvas.Size();
  const PixelBox window = WindowOf(canvas.Size());
  canvas.SetPen(colour, PenStyle::DashDot);
  for (const auto& line : {std::array{Spot{mapping.OriginX, 0}, Spot{mapping.OriginX, height}},
                           std::array{Spot{0, mapping.OriginY}, Spot{width, mapping.OriginY}}}) {
    if (LineInWindow(line[0], line[1], window)) canvas.Polyline(line);
  }
}

}  // namespace

void DrawEntities(const EntityList& list, const Mapping& mapping, Canvas& canvas, Inks inks, Detail detail) {
  Drawing(mapping, canvas, inks, detail).DrawEntities(list);
}

bool DrawSaw(const EntityList& list, const Mapping& mapping, Canvas& canvas, const DisplaySettings& display) {
  const auto [width, height] = canvas.Size();
  if (!(width > 0) || !(height > 0)) return false;
  canvas.Clear(display.BackGroundColor);
  DrawCenterLines(mapping, canvas, display.CenterLineColor);
  DrawEntities(list, mapping, canvas, {display.SawLineColor, display.TextColor}, Detail::Screen);
  return true;
}

}  // namespace tarnwick
