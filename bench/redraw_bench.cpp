#include <benchmark/benchmark.h>

#include "bands.h"
#include "floor.h"
#include "model/modZoom.h"
#include "window/Viewport.h"
#include "window/modDraw.h"

// One redraw of the band, without the painting: which pieces, and where. A frame of the screen lasts 16 ms;
// "calls" is what is left for the canvas to paint in it.
namespace tarnwick::bench {
namespace {

constexpr SurfaceSize Screen{.Width = 1920 / PixelsPerInch, .Height = 1000 / PixelsPerInch};

/// A surface that paints nothing and counts what it was asked for.
class CountingCanvas final : public Canvas {
 public:
  [[nodiscard]] PixelSize Size() const override {
    return {Screen.Width * PixelsPerInch, Screen.Height * PixelsPerInch};
  }
  void Clear(Colour /*background*/) override { ++Calls; }
  void SetPen(Colour /*colour*/, PenStyle /*style*/) override { ++Calls; }
  void Polyline(std::span<const Spot, 2> points) override { Take(points[0], points[1]); }
  void Arc(Spot topLeft, Spot bottomRight, Spot /*start*/, Spot /*end*/) override {
    Take(topLeft, bottomRight);
  }
  void Polygon(std::span<const Spot> points) override { Take(points.front(), points.back()); }
  [[nodiscard]] PixelSize TextSize(std::string_view /*text*/) const override { return {}; }
  void Text(Spot topLeft, std::string_view /*text*/) override { Take(topLeft, topLeft); }

  int Calls = 0;

 private:
  void Take(Spot first, Spot last) {
    benchmark::DoNotOptimize(first);
    benchmark::DoNotOptimize(last);
    ++Calls;
  }
};

/// The middle of the band in the middle of the screen, wherever the bars end.
Mapping MiddleAt(const EntityList& list, double scale) {
  Mapping mapping;
  mapping.PixelsPerUnit = scale * PixelsPerInch;
  mapping.OriginX = Screen.Width / 2 * PixelsPerInch - list.Header.ViewCenterX * mapping.PixelsPerUnit;
  mapping.OriginY = Screen.Height / 2 * PixelsPerInch + list.Header.MaxY * mapping.PixelsPerUnit;
  return mapping;
}

double ScaleOfViewAll(const EntityList& list) {
  Viewport view;
  view.SetSurface(Screen);
  (void)view.ViewAll(ComputeExtents(list));
  return view.Scale();
}

void Redraw(benchmark::State& state, const EntityList& list, double scale) {
  const Mapping mapping = MiddleAt(list, scale);
  CountingCanvas canvas;
  for (auto _ : state) {
    canvas.Calls = 0;
    benchmark::DoNotOptimize(DrawSaw(list, mapping, canvas, DisplaySettings{}));
  }
  state.counters["calls"] = canvas.Calls;
  state.counters["pieces"] = static_cast<double>(list.Entities.size());
}

EntityList Band(const benchmark::State& state) {
  return DrawingOf(ResawBand(RoundBack, static_cast<int>(state.range(0))));
}

EntityList DearestDrawing(const benchmark::State& state) {
  return DrawingOf(DearestBand(static_cast<int>(state.range(0))));
}

void RedrawViewAll(benchmark::State& state) {
  const EntityList list = Band(state);
  Redraw(state, list, ScaleOfViewAll(list));
}

void RedrawTrueSize(benchmark::State& state) { Redraw(state, Band(state), 1); }
void RedrawTenfold(benchmark::State& state) { Redraw(state, Band(state), 10); }

void RedrawDearestViewAll(benchmark::State& state) {
  const EntityList list = DearestDrawing(state);
  Redraw(state, list, ScaleOfViewAll(list));
}

/// Every zoom between the whole band and its teeth; the argument is thousandths of the true size.
void RedrawBetween(benchmark::State& state) {
  const EntityList list = DearestDrawing(state);
  Redraw(state, list, static_cast<double>(state.range(1)) / 1000);
}

/// The floor: reading the whole list once.
void CopyList(benchmark::State& state) {
  const EntityList list = Band(state);
  MeasureCopy(state, list.Entities.data(), BytesOf(list));
}

BENCHMARK(RedrawViewAll)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMicrosecond);
BENCHMARK(RedrawTrueSize)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMicrosecond);
BENCHMARK(RedrawTenfold)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMicrosecond);
BENCHMARK(RedrawDearestViewAll)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMicrosecond);
BENCHMARK(RedrawBetween)
    ->ArgsProduct({{MostTeeth}, {1, 2, 5, 10, 20, 50, 100, 200, 500}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyList)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarnwick::bench
