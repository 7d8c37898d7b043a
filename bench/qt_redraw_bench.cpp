#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "bands.h"
#include "platform/qt/QtCanvas.h"
#include "window/modDraw.h"

// One redraw of the largest band as the window does it, pixels and all. A frame of the screen lasts 16 ms.
namespace tarnwick::bench {
namespace {

constexpr QSize Screen(1920, 1000);  // device-independent pixels of a large window

const EntityList& RoundBackBand() {
  static const EntityList list = DrawingOf(ResawBand(RoundBack, MostTeeth));
  return list;
}

/// More than anybody's settings let be saved.
const EntityList& DearestDrawing() {
  static const EntityList list = DrawingOf(DearestBand(MostTeeth));
  return list;
}

Mapping MiddleAt(const EntityList& list, double scale) {
  Mapping mapping;
  mapping.PixelsPerUnit = scale * PixelsPerInch;
  mapping.OriginX = Screen.width() / 2.0 - list.Header.ViewCenterX * mapping.PixelsPerUnit;
  mapping.OriginY = Screen.height() / 2.0 + list.Header.MaxY * mapping.PixelsPerUnit;
  return mapping;
}

void Paint(benchmark::State& state, const EntityList& list, double scale, double ratio) {
  QImage picture(Screen * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  const Mapping mapping = MiddleAt(list, scale);
  for (auto _ : state) {
    QPainter painter(&picture);
    QtCanvas canvas(painter, Screen);
    benchmark::DoNotOptimize(DrawSaw(list, mapping, canvas, DisplaySettings{}));
  }
}

// The first argument is the device's pixels for one of ours, the second thousandths of the true size: every
// zoom from the whole band to a single tooth.
void PaintRoundBack(benchmark::State& state) {
  Paint(state, RoundBackBand(), static_cast<double>(state.range(1)) / 1000,
        static_cast<double>(state.range(0)));
}
void PaintDearest(benchmark::State& state) {
  Paint(state, DearestDrawing(), static_cast<double>(state.range(1)) / 1000,
        static_cast<double>(state.range(0)));
}

/// The floor: clearing the surface.
void ClearSurface(benchmark::State& state) {
  QImage picture(Screen * static_cast<int>(state.range(0)), QImage::Format_RGB32);
  for (auto _ : state) {
    picture.fill(Qt::black);
    benchmark::ClobberMemory();
  }
}

BENCHMARK(PaintRoundBack)
    ->ArgsProduct({{1, 2}, {1, 2, 5, 10, 20, 30, 50, 75, 100, 200, 500, 1000, 10000, 100000}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(PaintDearest)
    ->ArgsProduct({{1, 2}, {1, 2, 5, 10, 20, 30, 50, 75, 100, 200, 500, 1000, 10000, 100000}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ClearSurface)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick::bench
