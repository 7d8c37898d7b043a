#pragma once

#include <QString>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include "power/modPowerBox.h"

namespace tarnwick {

class MeasureBox;
class MeasureGrid;

/// The boxes of a power window, or of one side of it. F1 in a box opens the page of its measure.
class PowerBoxes final {
 public:
  using Press = std::function<void(PowerBox)>;
  using TextOf = std::function<const std::string&(PowerBox)>;

  /// How these boxes are told from those of another side.
  struct Side {
    QString Suffix{};                       // behind a control's name: "(0)"
    QString Spoken = QStringLiteral("%1");  // about what is said of it: "%1 of the first one"
  };

  /// @param rows   of all boxes that will be made
  /// @param press  what a click on a box does; the texts are shown anew by the window
  PowerBoxes(std::span<const PowerBoxRow> rows, Side side, Press press);

  /// Makes these boxes, one below the other.
  void AddTo(MeasureGrid& grid, std::initializer_list<PowerBox> boxes);

  void ShowTexts(const TextOf& textOf);

 private:
  struct Made {
    PowerBox Box;
    MeasureBox* Shown;
  };

  void Add(MeasureGrid& grid, const PowerBoxRow& row);
  [[nodiscard]] QString SpokenOf(const PowerBoxRow& row) const;

  std::span<const PowerBoxRow> rows_;
  Side side_;
  Press press_;
  std::vector<Made> made_;
};

}  // namespace tarnwick
