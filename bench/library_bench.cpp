#include <benchmark/benchmark.h>
#include <dxflib/dl_dxf.h>

#include <memory>
#include <string>
#include <variant>

#include "bands.h"
#include "scratch_file.h"

// The same drawing, written by the DXF library that programs of other trades use.
namespace tarnwick::bench {
namespace {

const DL_Attributes OnOurLayer("Default", 5, -1, "CONTINUOUS", 1.0);

class LibraryWriter {
 public:
  explicit LibraryWriter(DL_WriterA& out) : out_(out) {}

  void operator()(const LineEntity& line) {
    library_.writeLine(out_, {line.Corner1X, line.Corner1Y, 0, line.Corner4X, line.Corner4Y, 0}, OnOurLayer);
  }
  void operator()(const ArcEntity& arc) {
    library_.writeArc(out_, {arc.CenterX, arc.CenterY, 0, arc.Radius, arc.StartAngle, arc.EndAngle},
                      OnOurLayer);
  }
  void operator()(const CircleEntity& circle) {
    library_.writeCircle(out_, {circle.CenterX, circle.CenterY, 0, circle.Radius}, OnOurLayer);
  }
  template <class Other>
  void operator()(const Other& /*none in a band*/) {}

 private:
  DL_Dxf library_;
  DL_WriterA& out_;
};

void WriteByLibrary(benchmark::State& state) {
  const EntityList list = DrawingOf(ResawBand(RoundBack, static_cast<int>(state.range(0))));
  const ScratchFile file;
  for (auto _ : state) {
    DL_Dxf library;
    const std::unique_ptr<DL_WriterA> out(library.out(file.Name().c_str(), DL_Codes::AC1009));
    out->sectionEntities();
    LibraryWriter writer(*out);
    for (const Entity& entity : list.Entities) std::visit(writer, entity);
    out->sectionEnd();
    out->dxfEOF();
    out->close();
  }
  const auto bytes = static_cast<std::int64_t>(std::filesystem::file_size(file.Name()));
  state.SetBytesProcessed(bytes * state.iterations());
}

BENCHMARK(WriteByLibrary)->Arg(UsualTeeth)->Arg(ExportedTeeth)->UseRealTime();

}  // namespace
}  // namespace tarnwick::bench
