#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <string_view>

class QSvgRenderer;

namespace tarnwick {

/// A line drawing from the program's resources, sharp at every size, on a light sheet of its own: the
/// drawings are dark lines, whatever the desktop's colours are. Without a drawing it is an empty place.
class PictureBox final : public QWidget {
 public:
  explicit PictureBox(QWidget* parent = nullptr);
  ~PictureBox() override;

  /// Shows :/pictures/KEY.svg; nothing for an empty key and for one that has no drawing.
  void ShowPicture(std::string_view key);

  [[nodiscard]] const std::string& Key() const { return key_; }  // as it was asked for
  [[nodiscard]] bool IsEmpty() const { return !drawing_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::string key_;
  std::unique_ptr<QSvgRenderer> drawing_;
};

}  // namespace tarnwick
