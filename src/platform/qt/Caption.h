#pragma once

#include <QLabel>
#include <QString>

namespace tarnwick {

class MeasureBox;

/// A caption that ends at its right edge; a blank at its end stands beyond that.
class Caption : public QLabel {
 public:
  explicit Caption(const QString& text, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A caption that is pressed like its box.
class BoxCaption final : public Caption {
 public:
  /// @param box  outlives the caption
  BoxCaption(const QString& text, MeasureBox* box, QWidget* parent = nullptr);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  MeasureBox* box_;
  bool held_ = false;
};

}  // namespace tarnwick
