#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/PdfFiles.h"
#include "platform/qt/QtPrintPages.h"

namespace tarnwick {

/// A device whose jobs end as the bytes of a PDF file.
class QtPdfPages final : public QtPrintPages {
 public:
  using Deliver = std::function<std::error_code(std::string_view bytes)>;
  /// @param deliver  takes the file of a job, whole
  explicit QtPdfPages(Deliver deliver) : deliver_(std::move(deliver)) {}

  [[nodiscard]] std::vector<std::string> Printers() override { return {}; }
  [[nodiscard]] bool Choose(const std::string& /*printer*/) override { return false; }
  [[nodiscard]] PrinterSetup Setup() const override { return setup_; }
  [[nodiscard]] bool SetUp(const PrinterSetup& setup) override;
  void SetQuality(PrintQuality /*quality*/) override {}  // it is lines and letters, not dots

 protected:
  [[nodiscard]] std::error_code Send(const QString& title) override;

 private:
  Deliver deliver_;
  PrinterSetup setup_;
};

class QtPdfFiles final : public PdfFiles {
 public:
  [[nodiscard]] std::unique_ptr<PrintDevice> File(const std::string& path) override;
};

}  // namespace tarnwick
