#include "window/modSvg.h"

#include <cmath>
#include <optional>
#include <type_traits>

#include "platform/SvgCanvas.h"
#include "window/modDraw.h"
#include "window/modPieceBox.h"

namespace tarnwick {
namespace {

constexpr double Margin = 0.125;  // inches

/// The box around all pieces. Texts do not count: they are as large as their font.
PieceBox BoxOf(const EntityList& list) {
  std::optional<PieceBox> all;
  const auto measure = [&all](const auto& piece) {
    if constexpr (!std::is_same_v<std::decay_t<decltype(piece)>, TextEntity>) {
      const PieceBox box = BoxOf(piece);
      if (!all) all = box;
      all->Include(box);
    }
  };
  for (const Entity& entity : list.Entities) std::visit(measure, entity);
  return all.value_or(PieceBox{});
}

/// Side of a sheet that holds so much drawing, in full hundredths of an inch.
double SheetFor(double size) {
  constexpr double lastBits = 1e-6;  // of a sum, that must not cost another hundredth
  return std::ceil((size + 2 * Margin) * 100 - lastBits) / 100;
}

}  // namespace

std::string SvgText(const EntityList& list) {
  const PieceBox box = BoxOf(list);
  SvgCanvas canvas({.Width = SheetFor(box.MaxX - box.MinX) * PixelsPerInch,
                    .Height = SheetFor(box.MaxY - box.MinY) * PixelsPerInch});
  const Mapping trueSize{.PixelsPerUnit = PixelsPerInch,
                         .OriginX = (Margin - box.MinX) * PixelsPerInch,
                         .OriginY = (Margin + box.MaxY) * PixelsPerInch};
  canvas.Clear(White);
  DrawEntities(list, trueSize, canvas, {.Lines = Black, .Texts = Black}, Detail::EveryPiece);
  return canvas.Document();
}

}  // namespace tarnwick
