#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>
#include <QTemporaryFile>

#include "bands.h"
#include "entry/DialogHost.h"
#include "platform/qt/DrawingSurface.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtHosts.h"
#include "platform/qt/QtSurroundings.h"
#include "shell/Program.h"
#include "window/fraMain.h"
#include "window/frmMain.h"

// The main window itself, drawn into memory: from an accepted value to rows and picture, and from a turn of a
// scroll bar to the picture. A frame of the screen lasts 16 ms.
namespace tarnwick::bench {
namespace {

/// A large screen that nobody sees.
constexpr const char* Screen =
    R"({"screens": [{"name": "large", "x": 0, "y": 0, "width": 1920, "height": 1080,
                                                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

/// The toolkit, once for all benchmarks and to the end of the process.
void HaveToolkit() {
  if (qApp != nullptr) return;
  QTemporaryFile screen;
  if (screen.open() && screen.write(Screen) > 0 && screen.flush())
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
  static int count = 1;
  static char name[] = "tarnwick";
  static char* names[] = {name, nullptr};
  SetUpApplication(*new QApplication(count, names));
}

/// Answers each question with the other one of two values.
class TwoMinds final : public DialogHost {
 public:
  void Run(ValueDialog& dialog) override {
    second_ = !second_;
    dialog.Type(second_ ? "21" : "20");
    dialog.PressOk();
  }
  void Run(YesNoDialog& dialog) override { dialog.PressCancel(); }

 private:
  bool second_ = false;
};

/// Takes no settings to any disk.
class NoStore final : public SettingsStore {
 public:
  bool KeyExists(std::string_view, std::string_view) override { return true; }
  std::error_code CreateKey(std::string_view, std::string_view) override { return {}; }
  std::string GetValue(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::error_code SetValue(std::string_view, std::string_view, std::string_view, std::string_view) override {
    return {};
  }
  std::error_code Finish(std::string_view, std::string_view) override { return {}; }
};

/// The window on a band, on a large screen.
class OpenWindow {
 public:
  explicit OpenWindow(const BandSaw& saw) {
    OpenDesign& design = program_.Design;
    design.Settings.Calculation = RoomySettings;
    design.Saw = saw;
    design.Recalculate(say_);
    window_.show();  // over all the screen, as always when it opens
    QObject::connect(window_.findChild<DrawingSurface*>("PicEditor"), &DrawingSurface::Painted, &window_,
                     [this] { painted_ = true; });
    Settle();
  }

  [[nodiscard]] OpenDesign& Design() { return program_.Design; }
  [[nodiscard]] int DrawingWidth() const { return window_.findChild<DrawingSurface*>("PicEditor")->width(); }

  /// Presses the row of the hook angle, when events come next; the question is answered at once.
  void TypeHook() {
    QMetaObject::invokeMethod(
        panel_, [this] { PressHook(); }, Qt::QueuedConnection);
  }
  void Scroll(int steps) {
    auto* bar = window_.findChild<QScrollBar*>("hscDisplay");
    QMetaObject::invokeMethod(
        bar, [=] { bar->setValue(bar->value() + steps); }, Qt::QueuedConnection);
  }

  /// Goes on until the drawing has been painted.
  void Paint() {
    painted_ = false;
    while (!painted_) QApplication::processEvents();
  }
  void Settle() {
    for (int i = 0; i < 20; ++i) QApplication::processEvents();
  }

 private:
  void PressHook() {
    for (const InfoRow& row : panel_->Rows()) {
      if (row.Caption != "Hook Angle:") continue;
      const InfoRow pressed = row;  // the rows are made anew meanwhile
      emit panel_->RowPressed(pressed);
      return;
    }
  }

  NobodyListens say_;
  NoStore store_;
  QtSurroundings surroundings_;
  Program program_{{say_, surroundings_.Time, store_, surroundings_.Colors, surroundings_.Help,
                    surroundings_.Files, surroundings_.Bin}};
  TwoMinds dialogs_;
  QtHosts hosts_{program_};
  frmMain window_{program_, {dialogs_, hosts_.All().Power, hosts_.All().Machine, hosts_.All().Printing}};
  fraMain* panel_ = window_.findChild<fraMain*>();
  bool painted_ = false;
};

void Change(benchmark::State& state, const BandSaw& saw, bool viewAll) {
  HaveToolkit();
  OpenWindow window(saw);
  (void)(viewAll ? window.Design().ViewAll() : window.Design().ViewOneToOne());
  for (auto _ : state) {
    const double before = window.Design().Saw.HookAngle;
    window.TypeHook();
    window.Paint();
    if (window.Design().Saw.HookAngle == before) state.SkipWithError("nothing was changed");
  }
  state.counters["pieces"] = static_cast<double>(window.Design().Lines.Entities.size());
  state.counters["pixels"] = window.DrawingWidth();
}

void Move(benchmark::State& state, const BandSaw& saw, bool viewAll) {
  HaveToolkit();
  OpenWindow window(saw);
  (void)(viewAll ? window.Design().ViewAll() : window.Design().ViewOneToOne());
  int steps = 25;
  for (auto _ : state) {
    window.Scroll(steps);
    window.Paint();
    steps = -steps;
  }
}

int TeethOf(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

void ChangeTrueSize(benchmark::State& state) { Change(state, ResawBand(RoundBack, TeethOf(state)), false); }
void ChangeViewAll(benchmark::State& state) { Change(state, ResawBand(RoundBack, TeethOf(state)), true); }
void ChangeVariable(benchmark::State& state) {
  Change(state, VariableBand(FrostTooth, TeethOf(state) / 5), true);
}
void ChangeDearest(benchmark::State& state) { Change(state, DearestBand(TeethOf(state)), true); }
void ScrollTrueSize(benchmark::State& state) { Move(state, ResawBand(RoundBack, TeethOf(state)), false); }
void ScrollDearest(benchmark::State& state) { Move(state, DearestBand(TeethOf(state)), true); }

void OfAllSizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(UsualTeeth)->Arg(ManyTeeth)->Arg(MostTeeth)->Unit(benchmark::kMillisecond);
}
BENCHMARK(ChangeTrueSize)->Apply(OfAllSizes);
BENCHMARK(ChangeViewAll)->Apply(OfAllSizes);
BENCHMARK(ChangeVariable)->Apply(OfAllSizes);
BENCHMARK(ChangeDearest)->Apply(OfAllSizes);
BENCHMARK(ScrollTrueSize)->Apply(OfAllSizes);
BENCHMARK(ScrollDearest)->Apply(OfAllSizes);

}  // namespace
}  // namespace tarnwick::bench
