#pragma once

#include <QLabel>
#include <QString>
#include <functional>

namespace tarnwick {

/// A line that says what the control under the mouse is for, and is empty over the window itself. A control
/// that is reached by Tab is explained as well, until the mouse moves.
class HintLine final : public QLabel {
  Q_OBJECT

 public:
  using HintOf = std::function<QString(const QString& control)>;  // empty for a control without a hint

  explicit HintLine(HintOf hintOf, QWidget* parent = nullptr);

  /// Watches every control that `window` has by now, and tells people who listen what each is for.
  void Watch(QWidget& window);

  /// Room for the longest of the hints, whichever shows: no hint moves the window.
  [[nodiscard]] QSize sizeHint() const override { return room_; }
  [[nodiscard]] QSize minimumSizeHint() const override { return room_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Say(const QString& hint);
  [[nodiscard]] QString HintFor(const QWidget* control) const;

  HintOf hintOf_;
  QSize room_;
};

}  // namespace tarnwick
