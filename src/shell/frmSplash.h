#pragma once

#include <QDialog>

namespace tarnwick {

/// The program's own picture with its name and version, to be looked at until a click or a key.
class frmSplash final : public QDialog {
  Q_OBJECT

 public:
  explicit frmSplash(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void AddLine(const char* name, const QString& text, double size, const QColor& ink);
};

}  // namespace tarnwick
