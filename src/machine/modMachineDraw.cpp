#include "machine/modMachineDraw.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/modDecim.h"
#include "platform/CollectedMessages.h"
#include "window/modDraw.h"

namespace tarnwick {
namespace {

/// A surface whose texts stand on a patch of the background, left of the machine.
class PatchedCanvas final : public Canvas {
 public:
  /// @param machine  where the machine begins, in pixels from the left
  PatchedCanvas(Canvas& canvas, Colour background, double machine)
      : canvas_(canvas), background_(background), machine_(machine) {}

  [[nodiscard]] PixelSize Size() const override { return canvas_.Size(); }
  void Clear(Colour background) override { canvas_.Clear(background); }
  void SetPen(Colour colour, PenStyle style) override {
    canvas_.SetPen(colour, style);
    colour_ = colour;
    style_ = style;
  }
  void Polyline(std::span<const Spot, 2> points) override { canvas_.Polyline(points); }
  void Arc(Spot topLeft, Spot bottomRight, Spot start, Spot end) override {
    canvas_.Arc(topLeft, bottomRight, start, end);
  }
  void Polygon(std::span<const Spot> points) override { canvas_.Polygon(points); }
  [[nodiscard]] PixelSize TextSize(std::string_view text) const override { return canvas_.TextSize(text); }
  /// On a slender machine the text would run through the band: it gives way, as far as the surface goes.
  void Text(Spot topLeft, std::string_view text) override {
    constexpr double Edge = 3;  // pixels at either side of the text, and of its patch
    const auto [width, height] = TextSize(text);
    topLeft.X = std::max(2 * Edge, std::min(topLeft.X, std::floor(machine_ - width - 2 * Edge)));
    const double left = topLeft.X - Edge, right = topLeft.X + width + Edge;
    canvas_.SetPen(background_, PenStyle::Solid);
    canvas_.Polygon(std::array<Spot, 4>{
        {{left, topLeft.Y}, {right, topLeft.Y}, {right, topLeft.Y + height}, {left, topLeft.Y + height}}});
    canvas_.SetPen(colour_, style_);
    canvas_.Text(topLeft, text);
  }

 private:
  Canvas& canvas_;
  Colour background_;
  double machine_;
  Colour colour_;
  PenStyle style_ = PenStyle::Solid;
};

}  // namespace

void DrawMachine(const MachineView& view, MachineZoom& zoom, Canvas& canvas, const DisplaySettings& colours,
                 const CalculationSettings& settings) {
  canvas.Clear(colours.BackGroundColor);
  if (view.Wheels.Entities.empty()) return;
  CollectedMessages nobody;  // in the midst of drawing nobody is spoken to
  ZoomAllMachine(MergedLists(view, settings.MemorySize, nobody), canvas.Size(), zoom);

  const double width = canvas.Size().Width / PixelsPerInch;
  const double height = canvas.Size().Height / PixelsPerInch;
  const Rounding roundTo(settings.DecimalPlaces);
  const double lowerRadius = view.WheelDia * InchesPerFoot / 2;
  const Mapping mapping{.PixelsPerUnit = zoom.Scale * PixelsPerInch,
                        .OriginX = roundTo(width / 2 - zoom.Box.CenterX * zoom.Scale) * PixelsPerInch,
                        .OriginY = roundTo(height * 0.97 - lowerRadius * zoom.Scale) * PixelsPerInch};
  const double machine = mapping.ToSurface(ComputeExtents(view.Wheels).MinX, 0).X;
  PatchedCanvas patched(canvas, colours.BackGroundColor, machine);
  const Inks inks{.Lines = colours.SawLineColor, .Texts = colours.TextColor};
  for (const EntityList* list : {&view.Wheels, &view.Dimension}) {
    DrawEntities(*list, mapping, patched, inks, Detail::EveryPiece);
  }
}

}  // namespace tarnwick
