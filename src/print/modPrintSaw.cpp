#include "print/modPrintSaw.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "model/modDecim.h"
#include "window/modPieceBox.h"

namespace tarnwick {
namespace {

constexpr double LeftOfBand = -0.25;  // in, what the left border of the frame shows
constexpr double PointsPerInch = TwipsPerInch / TwipsPerPoint;

bool IsFinite(PaperSpot spot) { return std::isfinite(spot.X) && std::isfinite(spot.Y); }

/// One walk over a list.
class Drawing {
 public:
  Drawing(PrintSheet& sheet, const PaperMapping& mapping, const PaperBox& box, int lineThick)
      : sheet_(sheet), mapping_(mapping), box_(box), lineThick_(lineThick) {}

  void Append(const EntityList& list) {
    sheet_.push_back(SheetClip{box_});
    sheet_.push_back(SheetPen{{lineThick_}});
    for (const Entity& entity : list.Entities) std::visit([this](const auto& kind) { Put(kind); }, entity);
  }

 private:
  void Put(const LineEntity& line) {
    const PaperSpot from = ToPaper(line.Corner1X, line.Corner1Y), to = ToPaper(line.Corner4X, line.Corner4Y);
    if (line.IsOutline || !IsFinite(from) || !IsFinite(to) || !Shows(BoxOf(line))) return;
    if (line.IsDotted) sheet_.push_back(SheetPen{{lineThick_, true}});
    sheet_.push_back(SheetLine{from, to});
    if (line.IsDotted) sheet_.push_back(SheetPen{{lineThick_}});
  }
  void Put(const ArcEntity& arc) {
    if (!Shows(BoxOf(arc))) return;
    sheet_.push_back(
        SheetArc{ToPaper(arc.CenterX, arc.CenterY), OnPaper(arc.Radius), arc.StartAngle, arc.EndAngle});
  }
  void Put(const CircleEntity& circle) {
    if (!Shows(BoxOf(circle))) return;
    sheet_.push_back(SheetCircle{ToPaper(circle.CenterX, circle.CenterY), OnPaper(circle.Radius)});
  }
  /// The anchor is the lower left corner.
  void Put(const TextEntity& text) {
    const PaperSpot topLeft = ToPaper(text.Corner1X, text.Corner1Y + text.TextHeight);
    if (!IsFinite(topLeft)) return;
    sheet_.push_back(SheetText{topLeft, text.Text.Trimmed(), {text.TextHeight * PointsPerInch}});
  }
  void Put(const SolidEntity& solid) {
    const std::array corners{ToPaper(solid.Corner1X, solid.Corner1Y), ToPaper(solid.Corner2X, solid.Corner2Y),
                             ToPaper(solid.Corner3X, solid.Corner3Y),
                             ToPaper(solid.Corner4X, solid.Corner4Y)};
    // A box passes over what is no number.
    if (std::all_of(corners.begin(), corners.end(), IsFinite) && Shows(BoxOf(solid))) {
      sheet_.push_back(SheetSolid{corners});
    }
  }

  /// Whether a piece meets the box; what lies beyond all numbers does not.
  [[nodiscard]] bool Shows(const PieceBox& piece) const {
    const PaperSpot topLeft = ToPaper(piece.MinX, piece.MaxY), bottomRight = ToPaper(piece.MaxX, piece.MinY);
    return IsFinite(topLeft) && IsFinite(bottomRight) && bottomRight.X >= box_.Left &&
           topLeft.X <= box_.Right && bottomRight.Y >= box_.Top && topLeft.Y <= box_.Bottom;
  }

  [[nodiscard]] PaperSpot ToPaper(double x, double y) const { return mapping_.ToPaper(x, y); }
  [[nodiscard]] double OnPaper(double radius) const { return radius * mapping_.ScaleX; }

  PrintSheet& sheet_;
  const PaperMapping& mapping_;
  const PaperBox& box_;
  const int lineThick_;
};

}  // namespace

PaperMapping MappingOnPage(const BandSaw& saw, const PrintPage& page, int decimalPlaces) {
  constexpr double unitsPerInch = 1;  // the page is in inches, in both directions
  const double scale = RoundTo(TwipsPerInch / unitsPerInch, decimalPlaces);
  const double center = saw.Width - saw.GulletInfo.Depth / 2;
  const double topOfFrame = center + page.Frame.Height() / scale / 2;
  return {.OriginX = page.Frame.Left - LeftOfBand * scale,
          .OriginY = page.Frame.Top + topOfFrame * scale,
          .ScaleX = scale,
          .ScaleY = scale};
}

PaperBox DrawingBox(const PrintPage& page) {
  PaperBox box = page.Frame;
  box.Bottom = std::min(box.Bottom, page.Top + page.PaperHeight() - FootMargin);
  return box;
}

void AppendDrawing(PrintSheet& sheet, const EntityList& list, const PaperMapping& mapping,
                   const PaperBox& box, int lineThick) {
  Drawing(sheet, mapping, box, lineThick).Append(list);
}

}  // namespace tarnwick
