#pragma once

#include <QString>
#include <QWidget>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace tarnwick {

/// What the panels of editors have in common: a page of boxes that scrolls on a small screen, and below a
/// line the buttons, which are always there. The control that the mouse is over or that Tab has reached is
/// told of.
class PanelFrame : public QWidget {
  Q_OBJECT

 public:
  /// Width at the smallest.
  [[nodiscard]] int LeastWidth() const;

 protected:
  enum class Side { Left, Right };

  explicit PanelFrame(QWidget* parent);

  /// What the boxes stand on; it is as wide as they leave room for the scroll bar.
  [[nodiscard]] QWidget* Page() const { return page_; }
  void SetFrameWidth(int panel);

  /// A button of the foot. It has the numbered hint and is watched.
  QPushButton* AddButton(const char* name, const QString& caption, const QString& spoken, int hint,
                         Side side = Side::Right);

  /// The words above a group of boxes.
  [[nodiscard]] QLabel* MakeHeading(const QString& text);

  /// Has TellHover told of it.
  void Watch(QWidget* control);
  virtual void TellHover(const QObject* control, bool isOver) = 0;

  /// Before the parts of a panel go: one that loses the focus meanwhile has nobody left to tell.
  void EndWatching();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QScrollArea* area_ = nullptr;
  QWidget* page_ = nullptr;
  QHBoxLayout* foot_ = nullptr;
  int leftButtons_ = 0;
  std::vector<QWidget*> watched_;
};

}  // namespace tarnwick
