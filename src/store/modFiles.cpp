#include "store/modFiles.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

namespace tarnwick {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

enum class Access { Read, Write };

OpenFile Open(const std::filesystem::path& path, Access access) {
#ifdef _WIN32
  return OpenFile(_wfopen(path.c_str(), access == Access::Read ? L"rb" : L"wb"));
#else
  return OpenFile(std::fopen(path.c_str(), access == Access::Read ? "rb" : "wb"));
#endif
}

/// The failure of the library call just made. Never "success", even if the library gave no reason.
std::error_code LastError() {
  const int number = errno;
  return number != 0 ? std::error_code(number, std::generic_category())
                     : std::make_error_code(std::errc::io_error);
}

/// A link counts as a link, whatever it leads to.
bool IsRegularFile(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::symlink_status(path, ignored).type() == std::filesystem::file_type::regular;
}

std::error_code DeleteRegularFile(const std::filesystem::path& path) {
  std::error_code failed;
  if (IsRegularFile(path)) std::filesystem::remove(path, failed);
  return failed;
}

/// Closing is part of writing: a full disk may show only there.
std::error_code WriteAndClose(OpenFile file, std::string_view bytes) {
  errno = 0;
  std::error_code failed;
  if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) failed = LastError();
  if (std::fclose(file.release()) != 0 && !failed) failed = LastError();
  return failed;
}

}  // namespace

bool FileExists(const std::filesystem::path& path) noexcept {
  using std::filesystem::file_type;
  std::error_code ignored;
  const file_type type = std::filesystem::status(path, ignored).type();
  return type != file_type::directory && type != file_type::fifo && Open(path, Access::Read) != nullptr;
}

FileBytes ReadFile(const std::filesystem::path& path, std::size_t most) {
  errno = 0;
  const OpenFile file = Open(path, Access::Read);
  if (!file) return {LastError(), {}};
  return ReadStream(file.get(), most);
}

FileBytes ReadStream(std::FILE* stream, std::size_t most) {
  constexpr std::size_t chunk = 65536;
  errno = 0;
  std::string bytes;
  while (bytes.size() < most) {
    const std::size_t have = bytes.size();
    const std::size_t wanted = std::min(chunk, most - have);
    bytes.resize(have + wanted);
    const std::size_t got = std::fread(bytes.data() + have, 1, wanted, stream);
    bytes.resize(have + got);
    if (got < wanted) break;
  }
  if (std::ferror(stream) != 0) return {LastError(), {}};
  return {{}, std::move(bytes)};
}

std::error_code WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
  if (const std::error_code failed = DeleteRegularFile(path)) return failed;
  errno = 0;
  OpenFile file = Open(path, Access::Write);
  if (!file) return LastError();
  const std::error_code failed = WriteAndClose(std::move(file), bytes);
  if (failed) DeleteRegularFile(path);
  return failed;
}

}  // namespace tarnwick
