#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "store/modPath.h"

namespace tarnwick::test {

/// A folder of its own for one test, gone with all in it at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("tarnwick-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
    return path_ / FilePath(name);
  }
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

  /// A file of that name with those bytes.
  std::filesystem::path File(std::string_view name, std::string_view bytes) const {
    const std::filesystem::path path = path_ / FilePath(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

 private:
  std::filesystem::path path_;
};

/// All bytes of a file; none when there is no such file.
inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace tarnwick::test
