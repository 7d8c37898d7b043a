#include "power/PowerEditor.h"

#include <algorithm>
#include <cmath>

#include "model/modCharacters.h"
#include "model/modDecim.h"
#include "shell/ProgramQuestions.h"

namespace tarnwick {
namespace {

constexpr int PercentStep = 5, MostPercent = 50;

/// What the user has typed or chosen as a whole percentage: "12 Percent".
std::string WholePercent(double number) {
  const double whole = std::trunc(number) + 0.0;  // no minus before a zero
  return std::string(Trimmed(DecimalText(whole))) + " Percent";
}

Box SelectPercent() {
  return {.Title = "Select Percent",
          .Text = "You must first select a percent from the above list.",
          .Shown = Icon::Information};
}

}  // namespace

PowerSettings PowerEditor::Settings() const {
  return {.DecimalPlaces = program_.Design.Settings.Calculation.DecimalPlaces,
          .GulletFeedIndex = FeedIndex()};
}

// ---- what the boxes show

/// The pitch is shown at 0 too, and the actual capacity goes with the area.
bool PowerEditor::IsSet(PowerBox box) const {
  switch (box) {
    case PowerBox::ToothPitch:
      return true;
    case PowerBox::RPMs:
      return saw_.GeneralInfo.ShaftSpeed > 0;
    case PowerBox::FeedRate:
      return saw_.GeneralInfo.FeedRate > 0;
    case PowerBox::AreaBelowTip:
      return HasPowerFigure(PowerBox::HPGulletArea, saw_, FeedIndex());
    default:
      return HasPowerFigure(box, saw_, FeedIndex());
  }
}

void PowerEditor::ShowIfSet(PowerBox box) {
  if (IsSet(box)) texts_[Index(box)] = PowerFigureText(box, saw_, FeedIndex(), program_.Design.Format());
}

void PowerEditor::ShowOrEmpty(PowerBox box) {
  texts_[Index(box)] = PowerBoxText(box, saw_, FeedIndex(), program_.Design.Format());
}

void PowerEditor::ShowMeasures() {
  for (const PowerBox box :
       {PowerBox::HPSawOD, PowerBox::HPToothWidth, PowerBox::HPPlateThick, PowerBox::HPGulletArea,
        PowerBox::AreaBelowTip, PowerBox::Bite, PowerBox::RPMs, PowerBox::MaxDepth, PowerBox::FeedRate,
        PowerBox::SpecificEnergy, PowerBox::ToothPitch}) {
    ShowIfSet(box);
  }
}

// ---- what is worked out, each figure with its box

void PowerEditor::WorkOutVelocity() {
  UpdateSawVelocity(saw_);
  ShowOrEmpty(PowerBox::SawVelocity);
}

void PowerEditor::WorkOutSideClear() {
  UpdateSideClear(saw_, Settings().DecimalPlaces);
  ShowOrEmpty(PowerBox::SideClearance);
}

void PowerEditor::WorkOutBite() {
  UpdateBite(saw_, Settings().DecimalPlaces);
  ShowOrEmpty(PowerBox::Bite);
}

void PowerEditor::WorkOutCapacity() {
  UpdateCapacity(saw_, Settings().DecimalPlaces);
  ShowOrEmpty(PowerBox::Capacity);
}

void PowerEditor::WorkOutHorsePower() {
  UpdateHorsePower(saw_, Settings().DecimalPlaces);
  ShowOrEmpty(PowerBox::HorsePower);
}

void PowerEditor::WorkOutMaxFeedRate() {
  UpdateMaxFeedRate(saw_, Settings());
  ShowOrEmpty(PowerBox::MaxFeedRate);
}

void PowerEditor::GetSawPowerData(const BandSaw& saw) {
  saw_ = saw;
  feedIndexEntry_ = FeedIndexEntryOf(FeedIndex());
  ShowMeasures();
  WorkOutVelocity();
  WorkOutSideClear();
  WorkOutCapacity();
  WorkOutHorsePower();
  WorkOutMaxFeedRate();
}

void PowerEditor::UpdatePowerData() {
  ShowMeasures();
  ShowIfSet(PowerBox::SawVelocity);
  ShowIfSet(PowerBox::SideClearance);
  WorkOutCapacity();
  WorkOutHorsePower();
  WorkOutMaxFeedRate();
}

// ---- clicks

void PowerEditor::Click(PowerBox box) {
  const auto boxes = PowerEditorBoxes();
  const auto row = std::find_if(boxes.begin(), boxes.end(), [box](const auto& r) { return r.Box == box; });
  if (row == boxes.end() || !row->Asked) return;
  if (!QuestionsOf(program_, dialogs_).Ask(*row->Asked, saw_)) return;
  ShowOrEmpty(box);
  if (box == PowerBox::RPMs) WorkOutVelocity();
  if (box != PowerBox::SpecificEnergy) {
    WorkOutBite();
    WorkOutCapacity();
  }
  WorkOutHorsePower();
  WorkOutMaxFeedRate();
}

void PowerEditor::SelectFeedIndex(std::size_t entry) {
  const std::vector<std::string> entries = FeedIndexEntries();
  if (entry >= entries.size()) return;
  feedIndexEntry_ = entry;
  program_.Design.Settings.GulletFeedIndex = FeedIndexOf(entries[entry], Settings().DecimalPlaces);
  UpdatePowerData();
}

// ---- estimates

std::vector<std::string> PowerEditor::PercentEntries() {
  std::vector<std::string> entries;
  for (int percent = PercentStep; percent <= MostPercent; percent += PercentStep) {
    entries.push_back(WholePercent(percent));
  }
  return entries;
}

void PowerEditor::LeavePercent() {
  if (!percentText_.empty()) percentText_ = WholePercent(ReadNumber(percentText_));
}

std::optional<PowerEstimateList> PowerEditor::Estimates() {
  LeavePercent();  // a button may be pressed by its key while the focus is still in the box
  const double percent = ReadNumber(percentText_);
  const std::optional<PowerEstimates> rows = BuildPowerEstimates(saw_, percent, Settings());
  if (!rows) {
    program_.Out.Say.Show(SelectPercent());
    return std::nullopt;
  }
  PowerEstimateList estimates(FeedIndex(), program_.Design.Format());
  estimates.GetPowerReq(*rows, percent);
  return estimates;
}

void PowerEditor::PressView() {
  if (std::optional<PowerEstimateList> estimates = Estimates()) windows_.Run(*estimates);
}

// ---- the end

void PowerEditor::Close(bool accepted) {
  accepted_ = accepted;
  open_ = false;
}

void PowerEditor::PressCancel() {
  program_.SaveSettings();
  Close(false);
}

}  // namespace tarnwick
