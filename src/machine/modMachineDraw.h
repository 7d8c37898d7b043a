#pragma once

#include "machine/modMachineView.h"
#include "model/modColour.h"
#include "platform/Canvas.h"

namespace tarnwick {

/// Draws the picture of a mill, fitted to the surface: wheels and dimension as the saw's lines, the text on a
/// patch of the background beside the band, so that no line runs through it. Without wheels the surface is
/// only cleared.
///
/// @param zoom  of the last drawing; comes back fitted to this one
void DrawMachine(const MachineView& view, MachineZoom& zoom, Canvas& canvas, const DisplaySettings& colours,
                 const CalculationSettings& settings);

}  // namespace tarnwick
