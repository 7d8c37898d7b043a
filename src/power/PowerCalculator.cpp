#include "power/PowerCalculator.h"

#include <algorithm>
#include <string_view>

#include "machine/modBandLength.h"
#include "model/modChecked.h"
#include "model/modDecim.h"
#include "power/modFeedIndex.h"
#include "power/modPowerChain.h"
#include "shell/ProgramQuestions.h"
#include "shell/SavePath.h"
#include "shell/modFailure.h"
#include "store/modPath.h"

namespace tarnwick {
namespace {

constexpr std::string_view Title = "Power Calculator";
constexpr std::string_view UntitledPath = "untitled.bsp";
constexpr std::string_view Filter = "Bandsaw Power Files (*.bsp)|*.bsp";
constexpr std::string_view Extension = ".bsp";

std::string NameOf(std::string_view path) { return std::string(path.substr(path.rfind(PathSeparator) + 1)); }

/// In any case of its letters.
bool HasExtension(const std::string& path) {
  if (path.size() < Extension.size()) return false;
  return std::equal(
      Extension.begin(), Extension.end(), path.end() - static_cast<int>(Extension.size()),
      [](char want, char is) { return (is >= 'A' && is <= 'Z' ? is - 'A' + 'a' : is) == want; });
}

Checked LengthInInches(const BandSaw& saw) { return saw.Length * InchesPerFoot; }

/// Without teeth the pitch stays what it was.
void PitchFromTeeth(BandSaw& saw, int places) {
  Let(saw.Pitch) = Rounding(places)(Quotient(LengthInInches(saw), saw.NumTeeth));
}

void TeethFromPitch(BandSaw& saw, int places) {
  Let(saw.NumTeeth) = Rounding(places)(Quotient(LengthInInches(saw), saw.Pitch));
}

/// A wheel or a distance alone is no machine: the length stays what it was.
void LengthFromWheels(BandSaw& saw, int places) {
  const BandSaw::Machine& machine = saw.MachineInfo;
  if (!(machine.WheelDia > 0 && machine.CenterToCenter > 0)) return;
  saw.Length = BandLength(machine.WheelDia, machine.CenterToCenter, places);
}

bool HoldsData(const BandSaw& saw) {
  const auto boxes = PowerCalculatorBoxes();
  return std::any_of(boxes.begin(), boxes.end(),
                     [&saw](const PowerBoxRow& row) { return HasPowerFigure(row.Box, saw, 0); });
}

}  // namespace

PowerCalculator::PowerCalculator(Program& program, DialogHost& dialogs)
    : program_(program),
      dialogs_(dialogs),
      path_(UntitledPath),
      caption_(Title),
      feedIndex_(program.Design.Settings.GulletFeedIndex) {}

void PowerCalculator::GetSawPowerData(const BandSaw& saw) {
  saws_[0] = saw;
  UpdateTextBoxes(0);
}

// ---- one side

void PowerCalculator::UpdateTextBoxes(std::size_t side) {
  for (const PowerBoxRow& row : PowerCalculatorBoxes()) {
    texts_[side][Index(row.Box)] = PowerBoxText(row.Box, saws_[side], feedIndex_, program_.Design.Format());
  }
}

void PowerCalculator::Calculate(std::size_t side) {
  BandSaw& saw = saws_[side];
  UpdateSawVelocity(saw);
  UpdateBite(saw, Places());
  UpdateCapacity(saw, Places());
  UpdateHorsePower(saw, Places());
}

void PowerCalculator::CalculateAndShowBoth() {
  for (std::size_t side = 0; side < saws_.size(); ++side) {
    Calculate(side);
    UpdateTextBoxes(side);
  }
}

/// What an accepted measure sets beside itself.
void PowerCalculator::SetDependent(PowerBox box, BandSaw& saw) const {
  switch (box) {
    case PowerBox::HPPlateThick:
    case PowerBox::HPToothWidth:
      return UpdateSideClear(saw, Places());
    case PowerBox::HPSawOD:
    case PowerBox::Centers:
      return LengthFromWheels(saw, Places());
    case PowerBox::Length:
    case PowerBox::NumTeeth:
      return PitchFromTeeth(saw, Places());
    case PowerBox::ToothPitch:
      return TeethFromPitch(saw, Places());
    default:
      return;
  }
}

void PowerCalculator::Click(PowerBox box, std::size_t side) {
  const auto boxes = PowerCalculatorBoxes();
  const auto row = std::find_if(boxes.begin(), boxes.end(), [box](const auto& r) { return r.Box == box; });
  if (side >= saws_.size() || row == boxes.end() || !row->Asked) return;
  if (!QuestionsOf(program_, dialogs_).Ask(*row->Asked, saws_[side])) return;
  SetDependent(box, saws_[side]);
  Calculate(side);
  UpdateTextBoxes(side);
}

void PowerCalculator::SelectFeedIndex(std::size_t entry) {
  const std::vector<std::string> entries = FeedIndexEntries();
  if (entry >= entries.size()) return;
  feedIndex_ = FeedIndexOf(entries[entry], Places());
  CalculateAndShowBoth();
}

// ---- buttons

void PowerCalculator::PressClear(std::size_t side) {
  if (side >= saws_.size()) return;
  saws_[side] = {};
  UpdateTextBoxes(side);
}

void PowerCalculator::PressCopy() {
  saws_[1] = saws_[0];
  UpdateTextBoxes(1);
}

void PowerCalculator::PressNew() {
  saws_ = {};
  caption_ = Title;
  path_ = UntitledPath;
  CalculateAndShowBoth();
}

void PowerCalculator::TakePath(const std::string& path) {
  path_ = path;
  caption_ = NameOf(path) + " - " + std::string(Title);
}

void PowerCalculator::PressOpen() {
  const std::optional<std::string> path = program_.Out.Files.AskOpen(
      {.Filter = std::string(Filter), .Folder = program_.Design.SawDir(), .Name = NameOf(path_)});
  if (!path || !OpenPowerFile(saws_, FilePath(*path), program_.Out.Say)) return;
  TakePath(*path);
  CalculateAndShowBoth();
}

void PowerCalculator::PressSave() {
  const std::optional<std::string> path = AskSavePath(program_.Out.Files, program_.Out.Say,
                                                      {.Filter = std::string(Filter),
                                                       .Folder = program_.Design.SawDir(),
                                                       .Name = NameOf(path_),
                                                       .WarnBeforeReplacing = true},
                                                      Extension, HasExtension);
  if (!path) return;
  if (const std::error_code failure = SavePowerFile(saws_, FilePath(*path))) {
    program_.Out.Say.Show(FailureBox("Saving", failure, "cmdSave"));
    return;
  }
  TakePath(*path);
}

// ---- paper

bool PowerCalculator::MayPrint() const {
  if (std::any_of(saws_.begin(), saws_.end(), HoldsData)) return true;
  program_.Out.Say.Show({.Title = "Print Canceled", .Text = "No power information available to print!"});
  return false;
}

PowerLines PowerCalculator::PaperLines() const {
  PowerLines lines;
  int number = 0;
  for (const BandSaw& saw : saws_) {
    if (number > 0) lines.push_back({PowerLine::Role::Blank, ""});
    const PowerLines more =
        CalculationLines(CalculationRow(saw, feedIndex_), ++number, program_.Design.Format());
    lines.insert(lines.end(), more.begin(), more.end());
  }
  return lines;
}

}  // namespace tarnwick
