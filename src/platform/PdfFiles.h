#pragma once

#include <memory>
#include <string>

#include "platform/PrintDevice.h"

namespace tarnwick {

/// Port: files that are printed to.
class PdfFiles {
 public:
  virtual ~PdfFiles() = default;

  /// A device for one job, whose pages come to rest in the file `path` (UTF-8) when the job ends, in place of
  /// what stood there. It takes the three kinds of setup as they are, and knows no printers. A file that
  /// cannot be written is told of by Begin or End.
  [[nodiscard]] virtual std::unique_ptr<PrintDevice> File(const std::string& path) = 0;
};

}  // namespace tarnwick
