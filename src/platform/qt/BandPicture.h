#pragma once

#include <QColor>
#include <QWidget>
#include <memory>

class QSvgRenderer;

namespace tarnwick {

/// The dark ground that the program's own picture stands on, on light desktops and dark ones, and the colours
/// of what is written there.
inline constexpr QColor PictureGround(0x1f, 0x29, 0x33);
inline constexpr QColor PictureInk(0xf5, 0xf7, 0xfa);
inline constexpr QColor PictureQuietInk(0xb8, 0xc2, 0xcc);

/// The program's own picture: a piece of a band, from one side of its place to the other.
class BandPicture final : public QWidget {
  Q_OBJECT

 public:
  explicit BandPicture(QWidget* parent = nullptr);
  ~BandPicture() override;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::unique_ptr<QSvgRenderer> drawing_;
};

}  // namespace tarnwick
