#pragma once

#include <QWidget>

#include "shell/OpenDesign.h"

class QScrollBar;

namespace tarnwick {

class DrawingSurface;

/// The drawing of the band with the bars that move it.
class fraDisplay final : public QWidget {
  Q_OBJECT

 public:
  explicit fraDisplay(OpenDesign& design, QWidget* parent = nullptr);

  /// Fits the view's surface to the size that the layout gave.
  void TakeSize();

  /// Brings the bars to what the view is now, and the drawing if it has changed.
  void ShowView(bool changed);

  /// What is drawn on.
  [[nodiscard]] QWidget& Surface() const;

  /// The colours of the settings, from the next drawing on.
  void ShowColours();

 signals:
  void ViewChanged();  // by the bars, the mouse or the size: scale and bars may be others
  void Painted();
  void Hovered();  // the mouse is over the drawing

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeControls();
  void BindBars();
  void BindSurface();
  void Show(bool changed);

  OpenDesign& design_;
  DrawingSurface* PicEditor_ = nullptr;
  QScrollBar* hscDisplay_ = nullptr;
  QScrollBar* vscDisplay_ = nullptr;
};

}  // namespace tarnwick
