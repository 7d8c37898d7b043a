#include "machine/modMachineSvg.h"

#include "machine/modMachineDraw.h"
#include "platform/SvgCanvas.h"

namespace tarnwick {

std::string MachineSvgText(const MachineView& view, const CalculationSettings& settings) {
  constexpr PixelSize Sheet{7 * PixelsPerInch, 10 * PixelsPerInch};
  DisplaySettings paper;
  paper.BackGroundColor = White;
  paper.SawLineColor = paper.TextColor = Black;
  SvgCanvas canvas(Sheet);
  MachineZoom zoom;
  DrawMachine(view, zoom, canvas, paper, settings);
  return canvas.Document();
}

}  // namespace tarnwick
