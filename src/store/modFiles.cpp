#include "store/modFiles.h"

#include <cerrno>
#include <cstdio>

namespace tarnwick {
namespace {

std::FILE* CreateBinary(const std::filesystem::path& path) {
#ifdef _WIN32
  return _wfopen(path.c_str(), L"wb");
#else
  return std::fopen(path.c_str(), "wb");
#endif
}

/// What the platform said last; a platform that said nothing still failed.
std::error_code LastFailure() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

}  // namespace

bool FileExists(const std::filesystem::path& path) {
  std::error_code ignored;
  const auto kind = std::filesystem::status(path, ignored).type();
  return kind != std::filesystem::file_type::not_found && kind != std::filesystem::file_type::none &&
         kind != std::filesystem::file_type::directory;
}

std::error_code WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
  std::error_code failed;
  if (std::filesystem::is_regular_file(path, failed)) {
    if (std::filesystem::remove(path, failed); failed) return failed;
  }
  errno = 0;
  std::FILE* file = CreateBinary(path);
  if (file == nullptr) return LastFailure();
  failed.clear();
  if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fflush(file) != 0) {
    failed = LastFailure();
  }
  // A full disk may show only when the file is closed.
  if (std::fclose(file) != 0 && !failed) failed = LastFailure();
  return failed;
}

}  // namespace tarnwick
