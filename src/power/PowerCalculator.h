#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "entry/Questions.h"
#include "power/modPowerBox.h"
#include "power/modPowerSheet.h"
#include "shell/Program.h"
#include "store/modPowerFile.h"

namespace tarnwick {

/// Two power calculations side by side, apart from the design in hand. Together they are a document of their
/// own, a power file. frmPowerCalc is its window.
///
/// Nothing asks about changes: Exit, New and Open drop them.
class PowerCalculator {
 public:
  /// @param dialogs  for the questions that the boxes ask
  PowerCalculator(Program& program, DialogHost& dialogs);

  /// Takes a design as the first calculation, and shows it as it stands. The second one is empty.
  void GetSawPowerData(const BandSaw& saw);

  /// "oak.bsp - Power Calculator"; without a file the last two words alone.
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  /// The document's path: "untitled.bsp" while it has none.
  [[nodiscard]] const std::string& Path() const { return path_; }

  [[nodiscard]] const PowerSaws& Saws() const { return saws_; }

  /// The text of a box of PowerCalculatorBoxes, on the side 0 or 1; empty for what is 0.
  [[nodiscard]] const std::string& Text(PowerBox box, std::size_t side) const {
    return texts_[side][Index(box)];
  }

  /// A click on a box of a side: asks for its measure and works out what depends on it. A result does
  /// nothing.
  void Click(PowerBox box, std::size_t side);

  // cboFeedIndex, of the entries FeedIndexEntries(): the window's own index, begun with the program's, which
  // it never changes.
  [[nodiscard]] double FeedIndex() const { return feedIndex_; }
  [[nodiscard]] std::optional<std::size_t> FeedIndexEntry() const { return FeedIndexEntryOf(feedIndex_); }
  void SelectFeedIndex(std::size_t entry);

  void PressClear(std::size_t side);
  void PressCopy();  // the first over the second
  void PressNew();
  void PressOpen();
  void PressSave();
  void PressExit() { open_ = false; }  // and the window's own button

  /// Whether a print-out has anything to show; when not, the user is told. For cmdPrint, before the printer
  /// is chosen.
  [[nodiscard]] bool MayPrint() const;
  /// The lines of both calculations on paper, a blank line between them.
  [[nodiscard]] PowerLines PaperLines() const;

  [[nodiscard]] bool IsOpen() const { return open_; }

 private:
  static constexpr std::size_t Index(PowerBox box) { return static_cast<std::size_t>(box); }
  void UpdateTextBoxes(std::size_t side);
  void Calculate(std::size_t side);
  void CalculateAndShowBoth();
  void SetDependent(PowerBox box, BandSaw& saw) const;
  void TakePath(const std::string& path);
  [[nodiscard]] std::int16_t Places() const { return program_.Design.Settings.Calculation.DecimalPlaces; }

  Program& program_;
  DialogHost& dialogs_;

  PowerSaws saws_;
  std::array<std::array<std::string, PowerBoxCount>, 2> texts_;
  std::string path_, caption_;
  double feedIndex_;
  bool open_ = true;
};

}  // namespace tarnwick
