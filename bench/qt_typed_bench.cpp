#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "bands.h"
#include "platform/qt/QtCanvas.h"
#include "shell/OpenDesign.h"
#include "window/modBoxRules.h"
#include "window/modDisplay.h"
#include "window/modDraw.h"
#include "window/modPanelField.h"

// What the main window does between a typed value and its picture: the rule of the box, the calculation of
// the whole band, the rows, the boxes, one painting. An answer within 100 ms feels immediate.
namespace tarnwick::bench {
namespace {

constexpr QSize Screen(1920, 1000);  // device-independent pixels of a large window
constexpr SurfaceSize Surface{1920 / PixelsPerInch, 1000 / PixelsPerInch};

BandSaw DearestBand(int teeth) {
  BandSaw saw = ResawBand(TripleRadius, teeth);
  saw.GulletInfo.Radius1 = 0.25;
  saw.GulletInfo.Radius2 = 0.5;
  saw.GulletInfo.Radius3 = 0.375;
  saw.BothEdges = True;
  return saw;
}

std::size_t TextsOf(const OpenDesign& design) {
  std::size_t length = BuildSawInfo(design.Saw, design.Format(), 400).size();
  for (const auto fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) length += field.Shown(design.Saw, design.Format()).size();
  }
  return length;
}

/// @param viewAll  whether the whole band shows, or a few teeth in true size
void Type(benchmark::State& state, const BandSaw& saw, bool viewAll) {
  NobodyListens nobody;
  OpenDesign design;
  design.Settings.Calculation = RoomySettings;
  design.View.SetSurface(Surface);
  design.Saw = saw;
  design.Recalculate(nobody);
  (void)(viewAll ? design.ViewAll() : design.ViewOneToOne());
  QImage picture(Screen, QImage::Format_RGB32);
  double hook = 20;
  for (auto _ : state) {
    hook = hook == 20 ? 21 : 20;
    design.Saw.HookAngle = hook;
    ApplyBoxRule(Parameter::HookAngle, design.Saw, design.Settings.Calculation.DecimalPlaces);
    design.Recalculate(nobody);
    benchmark::DoNotOptimize(TextsOf(design));
    QPainter painter(&picture);
    QtCanvas canvas(painter, Screen);
    benchmark::DoNotOptimize(DrawSaw(design.Lines, design.View.CurrentMapping(), canvas, DisplaySettings{}));
  }
  state.counters["pieces"] = static_cast<double>(design.Lines.Entities.size());
}

int TeethOf(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

void TypeTrueSize(benchmark::State& state) { Type(state, ResawBand(RoundBack, TeethOf(state)), false); }
void TypeViewAll(benchmark::State& state) { Type(state, ResawBand(RoundBack, TeethOf(state)), true); }
void TypeDearestViewAll(benchmark::State& state) { Type(state, DearestBand(TeethOf(state)), true); }

/// Rows and boxes alone: these do not know how long the band is.
void TypeTexts(benchmark::State& state) {
  NobodyListens nobody;
  OpenDesign design;
  design.Saw = ResawBand(RoundBack, UsualTeeth);
  design.Recalculate(nobody);
  for (auto _ : state) benchmark::DoNotOptimize(TextsOf(design));
}

BENCHMARK(TypeTrueSize)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeViewAll)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeDearestViewAll)->Arg(UsualTeeth)->Arg(MostTeeth)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeTexts)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick::bench
