#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>

#include "platform/Clock.h"

namespace tarnwick {

/// A band running over its wheels, in the middle of another widget, while a file is read or written.
class frmAnime final : public QWidget {
  Q_OBJECT

 public:
  /// @param place  where it plays: a widget in a window; it does not repaint meanwhile, unless its
  ///               size changes
  frmAnime(QWidget& place, Clock& clock);
  ~frmAnime() override;

  /// Plays once and comes back; the last picture stays until Hide. A key or a click ends it at once, and on a
  /// desktop without motion it does not begin. Nothing else is done with what the user does meanwhile, but
  /// that a window's closing is asked for again by Hide.
  void Play();
  void Hide();

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Appear();
  void MoveToTheMiddle();
  void DrawSheet(qreal ratio);

  QPointer<QWidget> place_;
  Clock& clock_;
  QImage sheet_;  // all pictures, in the screen's own pixels
  int frame_ = 0;
  bool shown_ = false;
  bool playing_ = false;
  bool ended_ = false;         // before its time
  QPointer<QObject> toClose_;  // a window, or what the desktop has of it
};

}  // namespace tarnwick
