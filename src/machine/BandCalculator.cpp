#include "machine/BandCalculator.h"

#include <optional>
#include <string_view>

#include "dxf/modDXF.h"
#include "machine/modMachineDraw.h"
#include "shell/ProgramQuestions.h"
#include "shell/SavePath.h"
#include "shell/TellFailures.h"
#include "store/modPath.h"

namespace tarnwick {
namespace {

constexpr std::string_view DxfFilter = "DXF Files (*.dxf)|*.dxf|All Files (*.*)|*.*";

/// The hourglass, gone in every way out.
class Busy {
 public:
  explicit Busy(MachineHost& windows) : windows_(windows) { windows_.SetBusy(true); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { windows_.SetBusy(false); }

 private:
  MachineHost& windows_;
};

}  // namespace

Questions BandCalculator::Asking() const { return QuestionsOf(program_, dialogs_); }

// ---- showing

void BandCalculator::GetBandCalcData(const BandSaw& saw) {
  saw_ = saw;
  WorkOut();
  ShowOwnLength();
  TickLength(OwnLength);
}

std::string BandCalculator::Text(Parameter measure) const { return MachineBoxText(measure, saw_, Format()); }

void BandCalculator::ShowOwnLength() {
  lengths_[OwnLength] = saw_.Length != 0 ? FormatNumber(saw_.Length, Feet, Format()) : std::string();
}

/// Without wheels or centres the rows stay as they were. A plate that is taken away takes its rows along, and
/// the tick with them.
void BandCalculator::ShowLengths() {
  const std::optional<RowLengths> lengths = CalcLengths(saw_, Settings().DecimalPlaces);
  if (!lengths) return;
  for (int row = InsideLength; row < LengthRows; ++row) {
    const std::optional<double>& length = (*lengths)[At(row)];
    lengths_[At(row)] = length ? FormatNumber(*length, Feet, Format()) : std::string();
    if (!length && IsTicked(row)) TickLength(OwnLength);
  }
}

void BandCalculator::WorkOut() {
  BuildMachineLists(saw_, view_, {Settings(), Format().ImpMetric}, program_.Out.Say);
  ShowLengths();
}

void BandCalculator::DrawPicture(Canvas& canvas) {
  DrawMachine(view_, zoom_, canvas, program_.Design.Settings.Display, Settings());
}

// ---- what the user does

void BandCalculator::Click(Parameter measure) {
  if (Asking().Ask(measure, saw_)) WorkOut();
}

void BandCalculator::ClickLength(int row) {
  if (row == OwnLength && Asking().Ask(Parameter::BandLength, saw_)) ShowOwnLength();
}

void BandCalculator::TickLength(int row) {
  if (!IsRow(row) || (row != OwnLength && LengthText(row).empty())) return;
  saw_.MachineInfo.InCenterOut = static_cast<std::int16_t>(row);
}

void BandCalculator::PressExportDxf() {
  // In the words of the main window's export, its name included.
  TellFailures(program_.Out.Say, "Saving", "mnuItemExport", [this] { ExportDrawing(); });
}

void BandCalculator::ExportDrawing() {
  const std::optional<std::string> path = AskExportPath(program_.Out.Files, program_.Out.Say,
                                                        {.Filter = std::string(DxfFilter),
                                                         .Folder = program_.Design.SawDir(),
                                                         .Name = "untitled.dxf",
                                                         .WarnBeforeReplacing = true},
                                                        DxfExtension);
  if (!path) return;
  const Busy busy(windows_);
  const EntityList merged = MergedLists(view_, Settings().MemorySize, program_.Out.Say);
  WriteDxf(merged, FilePath(*path), Settings(), program_.Out.Say);
}

void BandCalculator::SetMachineVariables() {
  BandSaw::Contains& contains = saw_.ContainsInfo;
  const BandSaw::Machine& machine = saw_.MachineInfo;
  if (machine.WheelDia > 0 || machine.CenterToCenter > 0 || machine.Width > 0) contains.Machine = True;
  if (saw_.Width > 0) contains.Teeth = True;
  if (saw_.GeneralInfo.PlateThick > 0) contains.General = True;

  // The text is what the user chose: the length goes on with the decimals that are shown, no more.
  const int row = machine.InCenterOut;
  if (row != OwnLength) saw_.Length = StoredNumber(StoreRule::MetresToFeet, LengthText(row), Format());
  if (row != OwnLength || saw_.Length != 0) contains.Teeth = True;
}

void BandCalculator::PressOk() {
  SetMachineVariables();
  accepted_ = true;
  open_ = false;
}

}  // namespace tarnwick
