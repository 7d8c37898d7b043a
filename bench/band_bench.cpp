#include <benchmark/benchmark.h>

#include <utility>

#include "bands.h"
#include "floor.h"
#include "model/modZoom.h"

// From the measures to the drawing, and the box around it.
namespace tarnwick::bench {
namespace {

void Calculate(benchmark::State& state, const BandSaw& design) {
  NobodyListens nobody;
  std::size_t bytes = 0;
  for (auto _ : state) {
    BandSaw saw = design;
    const EntityList list = CalculateSaw(saw, RoomySettings, nobody);
    benchmark::DoNotOptimize(list.Entities.data());
    bytes = BytesOf(list);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
  state.SetComplexityN(state.range(0));
}

void CalculateSquareBack(benchmark::State& state) {
  Calculate(state, ResawBand(SquareBack, static_cast<int>(state.range(0))));
}

void CalculateRoundBack(benchmark::State& state) {
  Calculate(state, ResawBand(RoundBack, static_cast<int>(state.range(0))));
}

void CalculateRoundBackOnBothEdges(benchmark::State& state) {
  BandSaw design = ResawBand(RoundBack, static_cast<int>(state.range(0)));
  design.BothEdges = True;
  Calculate(state, design);
}

/// Of every style; the number is the style's.
void CalculateStyle(benchmark::State& state) {
  Calculate(state,
            ResawBand(static_cast<ToothStyleNumber>(state.range(1)), static_cast<int>(state.range(0))));
}

/// As the window does it: the list of the last calculation serves again.
void CalculateDearestAgain(benchmark::State& state) {
  const BandSaw design = DearestBand(static_cast<int>(state.range(0)));
  NobodyListens nobody;
  EntityList list;
  for (auto _ : state) {
    BandSaw saw = design;
    list = CalculateSaw(saw, RoomySettings, nobody, std::move(list));
    benchmark::DoNotOptimize(list.Entities.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(BytesOf(list)) * state.iterations());
}

void CalculateVariable(benchmark::State& state) {
  Calculate(state, VariableBand(static_cast<ToothStyleNumber>(state.range(1)),
                                static_cast<int>(state.range(0)) / 5));
}

void CopyDrawing(benchmark::State& state) {
  const EntityList list = DrawingOf(ResawBand(RoundBack, static_cast<int>(state.range(0))));
  MeasureCopy(state, list.Entities.data(), BytesOf(list));
}

void MeasureExtents(benchmark::State& state) {
  const EntityList list = DrawingOf(ResawBand(RoundBack, static_cast<int>(state.range(0))));
  for (auto _ : state) {
    const Extents box = ComputeExtents(list);
    benchmark::DoNotOptimize(&box);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(BytesOf(list)) * state.iterations());
}

BENCHMARK(CalculateSquareBack)->Arg(UsualTeeth)->Arg(MostTeeth);
BENCHMARK(CalculateRoundBack)->Arg(UsualTeeth)->Arg(MostTeeth);
BENCHMARK(CalculateRoundBackOnBothEdges)->Arg(UsualTeeth)->Arg(MostTeeth);
BENCHMARK(CalculateStyle)
    ->ArgsProduct({{UsualTeeth, MostTeeth},
                   {SquareBack, RoundBack, DoubleRadius, TripleRadius, FlatBottom, NarrowStyle, OShape,
                    FrostTooth}})
    ->ArgNames({"teeth", "style"});
BENCHMARK(CalculateDearestAgain)->Arg(UsualTeeth)->Arg(MostTeeth);
BENCHMARK(CalculateVariable)
    ->ArgsProduct({{UsualTeeth, MostTeeth}, {RoundBack, TripleRadius, FrostTooth}})
    ->ArgNames({"teeth", "style"});
BENCHMARK(MeasureExtents)->Arg(UsualTeeth)->Arg(MostTeeth);
BENCHMARK(CopyDrawing)->Arg(UsualTeeth)->Arg(MostTeeth);

// How the cost grows: the fit's coefficient is the price of one more tooth.
BENCHMARK(CalculateRoundBack)
    ->Name("GrowthWithTeeth")
    ->RangeMultiplier(2)
    ->Range(MostTeeth / 32, MostTeeth)
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace tarnwick::bench
