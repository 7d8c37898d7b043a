#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/Questions.h"
#include "power/PowerEstimateList.h"
#include "power/PowerHost.h"
#include "power/modPowerBox.h"
#include "power/modPowerChain.h"
#include "shell/Program.h"

namespace tarnwick {

/// The power that the design in hand needs, on a copy of it. Its measures are shown; shaft speed, depth of
/// cut, feed rate and wood are asked for by a click on their boxes, and what depends on them is worked out.
/// frmPower is its window.
class PowerEditor {
 public:
  /// @param dialogs  for the questions that the boxes ask
  /// @param windows  for the estimates
  PowerEditor(Program& program, DialogHost& dialogs, PowerHost& windows)
      : program_(program), dialogs_(dialogs), windows_(windows) {}

  /// Takes the design and fills the boxes. All figures are worked out but the bite, which stays as it is
  /// stored until speed, depth or feed change.
  void GetSawPowerData(const BandSaw& saw);

  /// Shows every box that has something to show, and works out capacity, horsepower and highest feed rate.
  void UpdatePowerData();

  /// The text of a box of PowerEditorBoxes. A measure that is not set leaves its box alone; a figure that
  /// comes out as 0 empties it.
  [[nodiscard]] const std::string& Text(PowerBox box) const { return texts_[Index(box)]; }

  /// A click on a box, or on a label that asks as its box does. Only the four boxes with a question do
  /// anything. After a click the window clears the selection in the box, whatever came of it.
  void Click(PowerBox box);

  // cboFeedIndex, of the entries FeedIndexEntries(). An index that is none of them chooses none and stays in
  // force.
  [[nodiscard]] std::optional<std::size_t> FeedIndexEntry() const { return feedIndexEntry_; }
  /// The user's choice: the whole program's index from now on, whatever becomes of the window.
  void SelectFeedIndex(std::size_t entry);

  // cboPercent: a text that is typed or chosen from PercentEntries().
  [[nodiscard]] static std::vector<std::string> PercentEntries();  // "5 Percent" ... "50 Percent"
  [[nodiscard]] const std::string& PercentText() const { return percentText_; }
  void TypePercent(std::string_view text) { percentText_ = text; }
  /// Enter in the box, or the focus gone: "12.5" becomes "12 Percent". An empty text stays empty.
  void LeavePercent();

  /// The estimates for the percent of the box; without one the user is told so. For cmdView and cmdPrint.
  [[nodiscard]] std::optional<PowerEstimateList> Estimates();
  void PressView();  // cmdView: shows them

  void PressOk() { Close(true); }
  /// And the window's own button. The edits are lost; the settings are written, with the feed index as it is.
  void PressCancel();

  [[nodiscard]] bool IsOpen() const { return open_; }
  [[nodiscard]] bool IsAccepted() const { return accepted_; }

  /// The copy with all that was done to it.
  [[nodiscard]] const BandSaw& Saw() const { return saw_; }

 private:
  static constexpr std::size_t Index(PowerBox box) { return static_cast<std::size_t>(box); }
  [[nodiscard]] double FeedIndex() const { return program_.Design.Settings.GulletFeedIndex; }
  [[nodiscard]] PowerSettings Settings() const;
  [[nodiscard]] bool IsSet(PowerBox box) const;
  void ShowIfSet(PowerBox box);
  void ShowOrEmpty(PowerBox box);
  void ShowMeasures();
  void WorkOutVelocity();
  void WorkOutSideClear();
  void WorkOutBite();
  void WorkOutCapacity();
  void WorkOutHorsePower();
  void WorkOutMaxFeedRate();
  void Close(bool accepted);

  Program& program_;
  DialogHost& dialogs_;
  PowerHost& windows_;

  BandSaw saw_;
  std::array<std::string, PowerBoxCount> texts_;
  std::optional<std::size_t> feedIndexEntry_;
  std::string percentText_;
  bool open_ = true;
  bool accepted_ = false;
};

}  // namespace tarnwick
