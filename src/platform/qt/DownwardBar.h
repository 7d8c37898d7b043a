#pragma once

#include <QScrollBar>

namespace tarnwick {

/// A standing scroll bar whose values go down: its maximum is at the top, its minimum at the bottom. What
/// leads downward on any scroll bar does so here: the arrow and the area below, the keys, the wheel.
class DownwardBar final : public QScrollBar {
 public:
  explicit DownwardBar(QWidget* parent = nullptr);

  /// A turn of the wheel, also of one that was turned beside the bar.
  void Turn(const QWheelEvent& wheel);

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Mirror(int action);

  int turned_ = 0;  // what is left of the wheel's way, which may come in small bits
};

}  // namespace tarnwick
