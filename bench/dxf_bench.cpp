#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "bands.h"
#include "dxf/modDXF.h"
#include "floor.h"
#include "scratch_file.h"

// From the drawing to its text, and to the file.
namespace tarnwick::bench {
namespace {

EntityList RoundBackDrawing(const benchmark::State& state) {
  return DrawingOf(ResawBand(RoundBack, static_cast<int>(state.range(0))));
}

void MakeText(benchmark::State& state) {
  const EntityList list = RoundBackDrawing(state);
  std::size_t bytes = 0;
  for (auto _ : state) {
    const std::optional<std::string> text = DxfText(list, RoomySettings);
    benchmark::DoNotOptimize(text->data());
    bytes = text->size();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
}

void CopyText(benchmark::State& state) {
  const std::string text = DxfText(RoundBackDrawing(state), RoomySettings).value();
  MeasureCopy(state, text.data(), text.size());
}

void WriteDrawing(benchmark::State& state) {
  const EntityList list = RoundBackDrawing(state);
  const ScratchFile file;
  NobodyListens nobody;
  for (auto _ : state) {
    if (!WriteDxf(list, file.Name(), RoomySettings, nobody)) state.SkipWithError("not written");
  }
  const auto bytes = static_cast<std::int64_t>(std::filesystem::file_size(file.Name()));
  state.SetBytesProcessed(bytes * state.iterations());
}

/// The floor under WriteDrawing: the same bytes, ready made, into a file of the same folder.
void WriteBytes(benchmark::State& state) {
  const std::string text = DxfText(RoundBackDrawing(state), RoomySettings).value();
  const ScratchFile file;
  for (auto _ : state) {
    std::remove(file.Name().c_str());
    std::FILE* out = std::fopen(file.Name().c_str(), "wb");
    if (out == nullptr) {
      state.SkipWithError("no file to write to");
      break;
    }
    const bool whole = std::fwrite(text.data(), 1, text.size(), out) == text.size();
    if (std::fclose(out) != 0 || !whole) state.SkipWithError("not written");
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

BENCHMARK(MakeText)->Arg(UsualTeeth)->Arg(MostTeeth);
BENCHMARK(CopyText)->Arg(UsualTeeth)->Arg(MostTeeth);
BENCHMARK(WriteDrawing)->Arg(UsualTeeth)->Arg(ExportedTeeth)->Arg(MostTeeth)->UseRealTime();
BENCHMARK(WriteBytes)->Arg(UsualTeeth)->Arg(ExportedTeeth)->Arg(MostTeeth)->UseRealTime();

}  // namespace
}  // namespace tarnwick::bench
