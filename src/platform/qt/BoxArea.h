#pragma once

#include <QDialog>
#include <QScrollArea>

namespace tarnwick {

/// Scrolls the boxes of a window that has less room than they ask for. It asks for the whole of what it
/// shows.
class BoxArea final : public QScrollArea {
 public:
  /// @param boxes  belongs to the area from here on
  explicit BoxArea(QWidget* boxes);
  [[nodiscard]] QSize sizeHint() const override;
};

/// Lays out a dialog that is not seen yet, whose parts learn only now what room they need.
/// @return the most that it can be on its screen, the title bar left out
QSize LayOutForScreen(QDialog& dialog);

/// Gives a dialog the size it asks for, or as much of that as there is room.
void ResizeWithin(QDialog& dialog, QSize room);

}  // namespace tarnwick
