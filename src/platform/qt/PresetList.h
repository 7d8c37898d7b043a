#pragma once

#include <QListWidget>
#include <string>

namespace tarnwick {

/// A list of values to choose from. Nothing is chosen until the user does so by mouse or keys: having the
/// focus chooses nothing, and the first arrow key chooses the entry that has it.
class PresetList final : public QListWidget {
 public:
  explicit PresetList(QWidget* parent = nullptr);

  void AddEntry(const std::string& text);
  /// An entry that only names those below it, and that keys and mouse pass over.
  void AddHeading(const std::string& text);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tarnwick
