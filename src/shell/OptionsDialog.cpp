#include "shell/OptionsDialog.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "entry/modCalculate.h"
#include "model/modCharacters.h"
#include "model/modDecim.h"
#include "shell/modString.h"

namespace tarnwick {
namespace {

constexpr std::int32_t PairsOfAnEntity = 8;  // a line, arc or circle takes about as many in a drawing file

std::int16_t PlacesWithin(double number, const SettingRange& range) {
  const double nearest = WholeNumber<std::int32_t>(number).value_or(number < 0 ? range.Least : range.Most);
  return static_cast<std::int16_t>(std::clamp<double>(nearest, range.Least, range.Most));
}

}  // namespace

OptionsDialog::OptionsDialog(Config& inForce, std::function<void()> applySettings, Messages& messages)
    : inForce_(inForce), applySettings_(std::move(applySettings)), messages_(messages), copy_(inForce) {
  for (const NumberBox box : AllNumbers) ShowNumber(box);
}

template <class Value>
void OptionsDialog::Change(Value& value, const Value& to) {
  if (value == to) return;
  value = to;
  applyEnabled_ = true;
}

void OptionsDialog::PickColour(Colour DisplaySettings::*which, ColorDialog& colours) {
  const std::optional<Colour> chosen = colours.Choose(copy_.Display.*which);
  if (chosen) Change(copy_.Display.*which, *chosen);
}

void OptionsDialog::SetDxfSaveColor(int number) {
  Change(copy_.Calculation.DxfSaveColor, static_cast<std::int16_t>(number));
}

void OptionsDialog::SetMetric(bool metric) {
  Change(copy_.MainImpMetric, static_cast<std::int16_t>(metric ? 1 : 0));
}

void OptionsDialog::SetPrintPowerReq(bool print) { Change(copy_.PrintPowerReq, print); }

void OptionsDialog::SetCustomerLine(std::string CustomerLines::*which, const std::string& text) {
  Change(copy_.Customer.*which, text);
}

void OptionsDialog::SetPrintLineThick(int thickness) {
  Change(copy_.PrintLineThick, static_cast<std::int16_t>(thickness));
}

// ---- quick click

std::string_view OptionsDialog::QuickClickCaption() const {
  return NumberedText(inForce_.QuickClick ? QuickOffText : QuickOnText);
}

std::string_view OptionsDialog::QuickClickHint() const {
  return NumberedText(inForce_.QuickClick ? QuickOffHint : QuickOnHint);
}

void OptionsDialog::TickQuickClick(bool ticked) {
  quickClickTicked_ = ticked;
  Change(copy_.QuickClick, ticked != inForce_.QuickClick);
}

// ---- the size of drawing files

int OptionsDialog::DxfPosition() const {
  int position = LeastDxfPosition;
  while (position < MostDxfPosition && (MemorySizeRange.Least << position) <= copy_.Calculation.MemorySize)
    ++position;
  return position;
}

void OptionsDialog::SetDxfPosition(int position) {
  Change(copy_.Calculation.MemorySize, MemorySizeRange.Least << (position - LeastDxfPosition));
}

std::string OptionsDialog::DxfNumberText() const {
  return "Number of lines, arcs and circles\n" +
         std::to_string(copy_.Calculation.MemorySize / PairsOfAnEntity);
}

// ---- numbers

void OptionsDialog::ShowNumber(NumberBox box) {
  const auto numberOf = [this](NumberBox b) -> double {
    switch (b) {
      case NumberBox::DecimalPlaces:
        return copy_.Calculation.DecimalPlaces;
      case NumberBox::DisplayPlaces:
        return copy_.Calculation.DisplayPlaces;
      case NumberBox::DisplayScale:
        return copy_.Display.DisplayScale;
    }
    return 0;
  };
  texts_[Index(box)] = GeneralText(numberOf(box));
}

void OptionsDialog::StoreNumber(NumberBox box, double number) {
  switch (box) {
    case NumberBox::DecimalPlaces:
      Change(copy_.Calculation.DecimalPlaces, PlacesWithin(number, DecimalPlacesRange));
      break;
    case NumberBox::DisplayPlaces:
      Change(copy_.Calculation.DisplayPlaces, PlacesWithin(number, DisplayPlacesRange));
      break;
    case NumberBox::DisplayScale: {
      const bool inRange = number >= LeastDisplayScale && number <= MostDisplayScale;
      Change(copy_.Display.DisplayScale, inRange ? number : TrueDisplayScale);
      break;
    }
  }
}

void OptionsDialog::TypeNumber(NumberBox box, const std::string& text) {
  if (text == texts_[Index(box)]) return;
  Change(texts_[Index(box)], text);
  typed_[Index(box)] = true;
}

bool OptionsDialog::LeaveNumber(NumberBox box) {
  // What is shown need not be the whole number, so a box is read only after it was typed into; and once, as
  // its own message may make the window leave it again.
  if (!std::exchange(typed_[Index(box)], false)) return true;
  std::string text = texts_[Index(box)];
  double number = 0;
  const bool isEquation = EvaluateEquation(text, number, copy_.Calculation.DecimalPlaces, messages_);
  if (isEquation) StoreNumber(box, number);
  ShowNumber(box);
  return isEquation;
}

/// Enter may press a button while the box that was typed into is not left yet.
bool OptionsDialog::LeaveNumbers() {
  bool all = true;
  for (const NumberBox box : AllNumbers) all = LeaveNumber(box) && all;
  return all;
}

// ---- buttons

void OptionsDialog::PressApply() {
  if (!LeaveNumbers()) return;
  inForce_ = copy_;
  quickClickTicked_ = false;
  applyEnabled_ = false;
  applySettings_();
}

void OptionsDialog::PressOk() {
  if (!LeaveNumbers()) return;
  if (applyEnabled_) PressApply();
  open_ = false;
}

void OptionsDialog::PressCancel() { open_ = false; }

// ---- colours of drawing files

Colour DxfPaletteColour(int number) {
  static constexpr Colour palette[DxfColours] = {Black,
                                                 Rgb(255, 0, 0),
                                                 Rgb(255, 255, 0),
                                                 Rgb(0, 255, 0),
                                                 Rgb(0, 255, 255),
                                                 Rgb(0, 0, 255),
                                                 Rgb(255, 0, 255),
                                                 White,
                                                 Rgb(128, 128, 128),
                                                 Rgb(192, 192, 192)};
  return palette[std::clamp(number, 0, DxfColours - 1)];
}

}  // namespace tarnwick
