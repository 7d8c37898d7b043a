#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "platform/PrintDevice.h"

class QPagedPaintDevice;
class QPainter;

namespace tarnwick {

inline constexpr int DotsPerInch = 600;  // of a sheet on its way to a printer; the printer may have more

/// The pages of a job for a device of the toolkit. They are kept until the job ends, and go out in one go
/// then: of a job that is cancelled the toolkit's printers would print what is there already.
class QtPrintPages : public PrintDevice {
 public:
  [[nodiscard]] PaperSize TextSize(std::string_view text, const PrintFont& font) const final;

  [[nodiscard]] std::error_code Begin(const std::string& title) final;
  [[nodiscard]] std::error_code NewPage() final;
  [[nodiscard]] std::error_code End() final;
  void Cancel() noexcept final;

  void SetPen(const PrintPen& pen) final;
  void SetClip(const PaperBox& box) final;
  void EndClip() final;
  void Text(PaperSpot topLeft, std::string_view text, const PrintFont& font) final;
  void Line(PaperSpot from, PaperSpot to) final;
  void Arc(PaperSpot center, double radius, double start, double end) final;
  void Circle(PaperSpot center, double radius) final;
  void Polygon(std::span<const PaperSpot> corners) final;

 protected:
  /// What speaks against a job, ahead of its first page.
  [[nodiscard]] virtual std::error_code Ready() { return {}; }

  /// The whole job goes out: makes its device ready and has SendPages send the pages there.
  [[nodiscard]] virtual std::error_code Send(const QString& title) = 0;

  /// @param stop  keeps the pages that have gone out from being printed when another one fails
  [[nodiscard]] std::error_code SendPages(QPagedPaintDevice& paper, const std::function<void()>& stop) const;

 private:
  using Stroke = std::function<void(QPainter&)>;
  using Page = std::vector<Stroke>;

  void Draw(Stroke stroke);

  QString title_;
  std::vector<Page> pages_;
};

}  // namespace tarnwick
