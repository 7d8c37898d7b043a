#pragma once

#include "model/modEntity.h"
#include "window/modMapping.h"

namespace tarnwick {

/// What is worth a stroke. On a screen, pieces that share one column of pixels become one stroke of it; a
/// drawing that can be enlarged keeps every piece.
enum class Detail { Screen, EveryPiece };

/// The colours that a list is drawn in.
struct Inks {
  Colour Lines;  // outline, teeth, wheels
  Colour Texts;
};

/// Draws a list on a surface. The walker of every drawing: screen, picture of the machine, SVG file.
///
/// A piece is drawn when one of its ends lies within an inch of the surface; a line that crosses the surface
/// with both ends outside is not, which suits a band, whose lines are short. Lines of the band's long outline
/// are drawn always, with X clamped to that margin. Texts, circles and solids are not tested.
void DrawEntities(const EntityList& list, const Mapping& mapping, Canvas& canvas, Inks inks, Detail detail);

/// The whole picture of a band: cleared surface, dash-dotted lines through the design's origin, the list.
/// False when the surface has no size; nothing is drawn then.
bool DrawSaw(const EntityList& list, const Mapping& mapping, Canvas& canvas, const DisplaySettings& display);

}  // namespace tarnwick
