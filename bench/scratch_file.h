#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

namespace tarnwick::bench {

/// A file name of this run's own, and nothing left under it afterwards.
class ScratchFile {
 public:
  ScratchFile() = default;
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  ~ScratchFile() {
    std::error_code ignored;
    std::filesystem::remove(name_, ignored);
  }
  [[nodiscard]] const std::filesystem::path& Name() const { return name_; }

 private:
  std::filesystem::path name_ =
      std::filesystem::temp_directory_path() / ("tarnwick-bench-" + std::to_string(getpid()) + ".dxf");
};

}  // namespace tarnwick::bench
