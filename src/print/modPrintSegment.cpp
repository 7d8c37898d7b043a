#include "print/modPrintSegment.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "window/modPieceBox.h"

namespace tarnwick {
namespace {

constexpr double SeamMargin = 1440;  // above and below the seam

/// Where a piece ends at the right, in inches.
double RightEnd(const TextEntity& text) { return text.Corner1X; }
template <class Piece>
double RightEnd(const Piece& piece) {
  return BoxOf(piece).MaxX;
}

bool Fits(const Entity& entity, double right) {
  const double end = std::visit([](const auto& piece) { return RightEnd(piece); }, entity);
  return !(end > right);
}

}  // namespace

int SegmentSheets(const EntityList& segment, const PaperMapping& mapping, const PrintPage& page) {
  // Beyond this nobody prints; a segment of absurd measures would count for ever.
  constexpr int most = std::numeric_limits<std::int16_t>::max();
  const double firstRight = page.Frame.Right - mapping.OriginX;
  int sheets = 1;
  for (const Entity& entity : segment.Entities) {
    const auto right = [&] { return (firstRight + (sheets - 1) * page.Frame.Width()) / mapping.ScaleX; };
    while (sheets < most && !Fits(entity, right())) ++sheets;
  }
  return sheets;
}

void AppendSegmentPart(PrintSheet& sheet, const EntityList& segment, PaperMapping mapping,
                       const PrintPage& page, int number, int lineThick) {
  const double left = page.Frame.Left;
  if (number > 1) {
    sheet.push_back(SheetPen{{1, true}});
    sheet.push_back(SheetLine{{left, page.Top + SeamMargin}, {left, page.Top + page.Height - SeamMargin}});
    sheet.push_back(SheetPen{{1, false}});
  }
  mapping.OriginX -= (number - 1) * page.Frame.Width();
  AppendDrawing(sheet, segment, mapping, DrawingBox(page), lineThick);
}

}  // namespace tarnwick
