#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "store/modFiles.h"

namespace tarnwick::fuzz {

/// A folder of this process alone, gone at its end. In memory where the platform has such a place: a target
/// writes thousands of files a second, and asks for each to be on the disk.
class ScratchFolder {
 public:
  explicit ScratchFolder(std::string_view name) {
    const char* inMemory = "/dev/shm";
    const auto parent = access(inMemory, W_OK) == 0 ? std::filesystem::path(inMemory)
                                                    : std::filesystem::temp_directory_path();
    path_ = parent / ("tarnwick-fuzz-" + std::string(name) + "-" + std::to_string(getpid()));
    std::filesystem::remove_all(path_);
    std::filesystem::create_directory(path_);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

  /// A file of that name with those bytes; its folder is made as needed.
  std::filesystem::path Keep(const std::filesystem::path& name, std::string_view bytes) const {
    std::filesystem::path path = path_ / name;
    std::filesystem::create_directories(path.parent_path());
    static_cast<void>(WriteWholeFile(path, bytes));
    return path;
  }

 private:
  std::filesystem::path path_;
};

/// All bytes of a file; none when there is no such file.
inline std::string BytesOf(const std::filesystem::path& path) {
  constexpr std::size_t most = std::size_t{1} << 24;
  return ReadFile(path, most).Bytes;
}

}  // namespace tarnwick::fuzz
