#pragma once

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <functional>
#include <optional>
#include <vector>

#include "platform/Ellipse.h"

namespace tarnwick {

// Lines and arcs cut down to what is seen of them. Neither a screen nor a printer is true with places that
// are very far outside.

/// The part of `line` inside of `box`; nothing when it passes by, or is no number.
[[nodiscard]] std::optional<QLineF> SeenPart(const QLineF& line, const QRectF& box);

/// Draws points that follow one another, two at least.
using ChainDrawing = std::function<void(const std::vector<QPointF>& chain)>;

/// An arc as chords, true at any radius: a chain for each stretch that is seen in `box`. The ellipse is one
/// that can be drawn.
/// @param from, sweep  radians, anticlockwise as the eye sees it; `sweep` above 0
/// @param flatness     how far a chord may lie beside its arc
void DrawSeenChains(const Ellipse& ellipse, double from, double sweep, double flatness, const QRectF& box,
                    const ChainDrawing& draw);

}  // namespace tarnwick
