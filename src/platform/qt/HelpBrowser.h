#pragma once

#include <QTextBrowser>
#include <QTextDocument>

class QHelpEngineCore;

namespace tarnwick {

/// Shows the manual's pages. Text and pictures are enlarged together, and pictures are drawn as finely as the
/// screen can show them.
class HelpBrowser final : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpBrowser(QWidget* parent = nullptr);

  /// Where pages come from; it must outlive the browser.
  void SetEngine(const QHelpEngineCore* engine) { engine_ = engine; }

  /// Percent of the desktop's own size of text.
  [[nodiscard]] int Zoom() const { return zoom_; }
  void SetZoom(int percent);
  void ZoomBy(int steps) { SetZoom(zoom_ + steps * ZoomStep); }

  static constexpr int ZoomStep = 10;
  static constexpr int SmallestZoom = 50;
  static constexpr int LargestZoom = 300;

 signals:
  void Zoomed(int percent);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void ShowAnew();
  void EnlargePictures();
  [[nodiscard]] QVariant Picture(const QByteArray& svg) const;

  const QHelpEngineCore* engine_ = nullptr;
  double size_ = 0;  // of the text at 100 percent, in points
  int zoom_ = 100;
};

}  // namespace tarnwick
