#pragma once

#include <QAbstractButton>

#include "model/modColour.h"

namespace tarnwick {

/// A sample of a colour that is pressed like a button. Its text, if any, stands on the colour; what the eye
/// sees it tells people who listen in figures.
class ColourSwatch final : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ColourSwatch(QWidget* parent = nullptr);

  void ShowColour(Colour colour);
  [[nodiscard]] Colour Shown() const { return colour_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Colour colour_;
};

}  // namespace tarnwick
