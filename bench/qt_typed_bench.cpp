#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <string>

#include "bands.h"
#include "platform/qt/QtCanvas.h"
#include "shell/OpenDesign.h"
#include "window/modBoxRules.h"
#include "window/modDisplay.h"
#include "window/modDraw.h"
#include "window/modPanelField.h"

// What the main window does between a typed value and its picture, without the window: the rule of the box,
// the calculation of the whole band, the rows, the boxes, one painting. A frame of the screen lasts 16 ms.
namespace tarnwick::bench {
namespace {

constexpr QSize Screen(1920, 1000);  // device-independent pixels of a large window
constexpr SurfaceSize Surface{1920 / PixelsPerInch, 1000 / PixelsPerInch};

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

/// What is typed of, with all its teeth.
struct Kind {
  const char* Name;
  BandSaw (*Make)(int teeth);
};

BandSaw Plain(int teeth) { return ResawBand(RoundBack, teeth); }
BandSaw Variable(int teeth) { return VariableBand(RoundBack, teeth / 5); }
BandSaw OnBothEdges(int teeth) {
  BandSaw saw = Plain(teeth);
  saw.BothEdges = True;
  return saw;
}

constexpr Kind Kinds[] = {
    {"Plain", Plain}, {"Variable", Variable}, {"BothEdges", OnBothEdges}, {"Dearest", DearestBand}};

void RegisterTyping() {
  for (const Kind& kind : Kinds) {
    for (const bool viewAll : {false, true}) {
      const std::string name = std::string("Type") + kind.Name + (viewAll ? "ViewAll" : "TrueSize");
      benchmark::RegisterBenchmark(name.c_str(),
                                   [kind, viewAll](benchmark::State& state) {
                                     Type(state, kind.Make(static_cast<int>(state.range(0))), viewAll);
                                   })
          ->Arg(UsualTeeth)
          ->Arg(ManyTeeth)
          ->Arg(MostTeeth)
          ->Unit(benchmark::kMillisecond);
    }
  }
}

/// Rows and boxes alone: these do not know how long the band is.
void TypeTexts(benchmark::State& state) {
  NobodyListens nobody;
  OpenDesign design;
  design.Saw = ResawBand(RoundBack, UsualTeeth);
  design.Recalculate(nobody);
  for (auto _ : state) benchmark::DoNotOptimize(TextsOf(design));
}

BENCHMARK(TypeTexts)->Unit(benchmark::kMillisecond);

[[maybe_unused]] const bool Registered = (RegisterTyping(), true);

}  // namespace
}  // namespace tarnwick::bench
