#pragma once

#include <QGridLayout>
#include <QString>

namespace tarnwick {

class MeasureBox;

/// Captions and the boxes that they name, one pair below the other: captions end, and boxes begin, in one
/// line, and all boxes are of one width.
class MeasureGrid final : public QGridLayout {
 public:
  /// How a box is pressed.
  enum class Press {
    Box,            // opens something
    BoxAndCaption,  // the caption does the same
    Result,         // shows a result; Enter is the window's, as on any text that is only read
  };

  explicit MeasureGrid(QWidget* frame = nullptr);

  /// Adds a box "txtLength" and its caption "lblLength".
  /// @param spoken  the caption for those who listen; it names no other control of the window
  MeasureBox* AddBox(const QString& name, const QString& caption, const QString& spoken, Press press);

  /// Sets what comes next apart.
  void AddGap();
};

}  // namespace tarnwick
