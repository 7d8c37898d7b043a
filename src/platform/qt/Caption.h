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

/// A caption that leads into its box.
class BoxCaption final : public Caption {
  Q_OBJECT

 public:
  /// @param box  gets the focus; outlives the caption
  BoxCaption(const QString& text, QWidget* box, QWidget* parent = nullptr);
  /// One that is pressed like its box.
  BoxCaption(const QString& text, MeasureBox* box, QWidget* parent = nullptr);

 signals:
  void Pressed();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QWidget* box_;
  bool held_ = false;
};

}  // namespace tarnwick
