#pragma once

#include <array>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/ColorDialog.h"
#include "platform/Messages.h"
#include "store/modCfg.h"

namespace tarnwick {

/// The options of the program: a copy of the settings that the user changes, and that Apply and OK bring into
/// force. frmCfg is its window.
class OptionsDialog {
 public:
  /// A box for a number takes whatever may stand in a box for a measure, and is read when it is left.
  enum class NumberBox { DecimalPlaces, DisplayPlaces, DisplayScale };
  static constexpr NumberBox AllNumbers[] = {NumberBox::DecimalPlaces, NumberBox::DisplayPlaces,
                                             NumberBox::DisplayScale};
  static constexpr std::size_t NumberBoxes = std::size(AllNumbers);

  /// @param inForce        the settings of the program; changed by Apply and OK alone
  /// @param applySettings  shows new settings at once: called after each Apply
  OptionsDialog(Config& inForce, std::function<void()> applySettings, Messages& messages);

  [[nodiscard]] const Config& Shown() const { return copy_; }
  [[nodiscard]] bool ApplyEnabled() const { return applyEnabled_; }
  [[nodiscard]] bool IsOpen() const { return open_; }

  void PickColour(Colour DisplaySettings::*which, ColorDialog& colours);
  void SetDxfSaveColor(int number);  // 0 to 9
  void SetMetric(bool metric);
  void SetPrintPowerReq(bool print);
  void SetCustomerLine(std::string CustomerLines::*which, const std::string& text);

  void SetPrintLineThick(int thickness);  // LeastLineThick to MostLineThick; so high is the sample, in pixels

  // The box turns the quick click display off while it is on, and on while it is off: a tick means "do what
  // the caption says".
  [[nodiscard]] std::string_view QuickClickCaption() const;
  [[nodiscard]] std::string_view QuickClickHint() const;
  [[nodiscard]] bool QuickClickTicked() const { return quickClickTicked_; }
  void TickQuickClick(bool ticked);

  // The bar of the drawing file's size: 7 positions, each twice the one before it.
  static constexpr int LeastDxfPosition = 1;
  static constexpr int MostDxfPosition = 7;
  [[nodiscard]] int DxfPosition() const;
  void SetDxfPosition(int position);
  [[nodiscard]] std::string DxfNumberText() const;  // of lblDxfNumber

  [[nodiscard]] const std::string& NumberText(NumberBox box) const { return texts_[Index(box)]; }
  void TypeNumber(NumberBox box, const std::string& text);
  /// Reads a box that was typed into and brings it into its range. A text that is no equation shows its
  /// message, and the box goes back to the number before it.
  /// @return false when the text was refused
  bool LeaveNumber(NumberBox box);

  void PressApply();
  void PressOk();      // Apply, if there is something to apply
  void PressCancel();  // and the window's own button

 private:
  static std::size_t Index(NumberBox box) { return static_cast<std::size_t>(box); }
  void ShowNumber(NumberBox box);
  void StoreNumber(NumberBox box, double number);
  bool LeaveNumbers();
  template <class Value>
  void Change(Value& value, const Value& to);

  Config& inForce_;
  std::function<void()> applySettings_;
  Messages& messages_;
  Config copy_;
  std::array<std::string, NumberBoxes> texts_;
  std::array<bool, NumberBoxes> typed_{};  // and not read yet
  bool quickClickTicked_ = false;
  bool applyEnabled_ = false;
  bool open_ = true;
};

/// The choice of a colour number for drawing files; frmColor is its window.
class DxfColorChoice {
 public:
  explicit DxfColorChoice(int present) : chosen_(present), marked_(present) {}

  [[nodiscard]] int Marked() const { return marked_; }
  void Mark(int number) { marked_ = number; }
  void PressOk() { chosen_ = marked_; }

  [[nodiscard]] int Chosen() const { return chosen_; }  // the present one until OK

 private:
  int chosen_, marked_;
};

inline constexpr int DxfColours = 10;  // their numbers begin at 0

/// The colour that stands for a number of a drawing file, 0 to 9.
[[nodiscard]] Colour DxfPaletteColour(int number);

}  // namespace tarnwick
