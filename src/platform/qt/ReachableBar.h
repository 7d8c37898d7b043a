#pragma once

#include <QScrollBar>

namespace tarnwick {

/// A level scroll bar that sets a number: unlike one that moves a page it is reached by Tab, and shows that
/// it has the focus.
class ReachableBar final : public QScrollBar {
 public:
  explicit ReachableBar(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace tarnwick
