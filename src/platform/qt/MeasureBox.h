#pragma once

#include <QLineEdit>

namespace tarnwick {

/// A box that shows a measure and is pressed, not typed into: by a click, Enter or Space. A box that is no
/// input looks like plain text; it is pressed all the same, for what there is to say about it.
class MeasureBox final : public QLineEdit {
  Q_OBJECT

 public:
  explicit MeasureBox(QWidget* parent = nullptr);

  /// Whether it looks as if a press changes it.
  void SetOpens(bool opens);
  [[nodiscard]] bool Opens() const { return opens_; }

  /// Leaves Enter to the window, as any text does that is only read.
  void PassEnterOn() { passesEnterOn_ = true; }

 signals:
  void Pressed();

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void FitHeight();

  bool opens_ = true;
  bool passesEnterOn_ = false;
  bool held_ = false;
};

}  // namespace tarnwick
