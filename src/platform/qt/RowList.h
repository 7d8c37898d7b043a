#pragma once

#include <QFont>
#include <QWidget>

#include "window/modDisplay.h"

namespace tarnwick {

/// Rows of captions and values, as high as they all are together: whoever frames it moves it. One row at a
/// time is lifted out in inverse: the one under the mouse, or the one that the keys have reached. Blank rows
/// are passed over.
class RowList final : public QWidget {
  Q_OBJECT

 public:
  explicit RowList(QWidget* parent = nullptr);
  ~RowList() override;

  /// Shows other rows; none is lifted out. The boxes of the rows are made as wide as the list.
  /// @param toothStyle  settles which rows can be opened
  void ShowRows(SawInfo rows, int toothStyle);
  [[nodiscard]] const SawInfo& Rows() const { return rows_; }
  [[nodiscard]] int HeightOfRows() const;

  /// Where values begin. No less than the captions need.
  void SetValueColumn(int left);
  [[nodiscard]] int LeastValueColumn() const;

  [[nodiscard]] const InfoRow* Highlighted() const;
  /// Lifts out the row that has come under a resting mouse.
  void HighlightUnderMouse();

  /// Whether a press on the row opens a dialog.
  [[nodiscard]] bool Opens(const InfoRow& row) const;
  void Press(const InfoRow& row);

 signals:
  /// The left button pressed on a row, and let go since; or Enter or Space on the row that the keys reached.
  void RowPressed(const tarnwick::InfoRow& row);
  void RowHovered(const tarnwick::InfoRow* row);  // the row lifted out now; nullptr: none
  void RowReached(const tarnwick::InfoRow& row);  // by keys; it may be out of sight
  void FocusChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  static constexpr int None = -1;

  void PaintRow(QPainter& painter, const InfoRow& row, bool inverse) const;
  [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] int RowAt(QPointF place) const;
  [[nodiscard]] int NextRow(int from, int step) const;
  void Highlight(int row);
  void Reach(int row);
  void StepTo(int row, int step);
  void Walk(int steps);
  [[nodiscard]] int RowsOfPageNow() const;

  SawInfo rows_;
  int toothStyle_ = 0;
  QFont plain_, bold_;
  int valueColumn_ = 0;
  int highlighted_ = None;
  int reached_ = None;  // by the keys; kept while nothing is lifted out
  int held_ = None;     // the row that the left button was pressed on
};

}  // namespace tarnwick
