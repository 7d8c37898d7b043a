#include "store/modFiles.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
#include <unistd.h>
#endif

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

/// True also where there is no disk to reach: a device, a pipe, a file system that does not know the
/// question.
bool ReachesDisk(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
#ifdef _WIN32
  return _commit(_fileno(file)) == 0 || errno == EBADF;
#else
  return fsync(fileno(file)) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
#endif
}

/// Closing is part of writing: a full disk may show only there.
std::error_code WriteAndClose(OpenFile file, std::string_view bytes, Rest rest) {
  errno = 0;
  std::error_code failed;
  if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) failed = LastError();
  if (!failed && rest == Rest::OnDisk && !ReachesDisk(file.get())) failed = LastError();
  if (std::fclose(file.release()) != 0 && !failed) failed = LastError();
  return failed;
}

std::error_code WriteFile(const std::filesystem::path& path, std::string_view bytes, Rest rest) {
  if (const std::error_code failed = DeleteRegularFile(path)) return failed;
  errno = 0;
  OpenFile file = Open(path, Access::Write);
  if (!file) return LastError();
  const std::error_code failed = WriteAndClose(std::move(file), bytes, rest);
  if (failed) DeleteRegularFile(path);
  return failed;
}

std::string ProcessName() {
#ifdef _WIN32
  return std::to_string(_getpid());
#else
  return std::to_string(getpid());
#endif
}

/// Goes to the file that a chain of links leads to, whether it is there or not. Fails where the platform
/// cannot say what lies in the way: a link that is taken for a file would be replaced itself.
std::error_code FollowLinks(std::filesystem::path& path) {
  using std::filesystem::file_type;
  constexpr int longestChain = 40;
  std::error_code failed;
  for (int i = 0; i < longestChain; ++i) {
    const file_type type = std::filesystem::symlink_status(path, failed).type();
    if (type == file_type::none) return failed;
    if (type != file_type::symlink) break;
    const std::filesystem::path next = std::filesystem::read_symlink(path, failed);
    if (failed) return failed;
    path = path.parent_path() / next;
  }
  return {};
}

/// A file that comes in place of another is as open to others as that one was.
void KeepPermissions(const std::filesystem::path& from, const std::filesystem::path& to) {
  std::error_code ignored;
  const auto permissions = std::filesystem::status(from, ignored).permissions();
  if (!ignored && permissions != std::filesystem::perms::unknown) {
    std::filesystem::permissions(to, permissions, ignored);
  }
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

std::error_code WriteWholeFile(const std::filesystem::path& path, std::string_view bytes, Rest rest) {
  return WriteFile(path, bytes, rest);
}

std::error_code ReplaceWholeFile(const std::filesystem::path& path, std::string_view bytes) {
  using std::filesystem::file_type;
  std::filesystem::path target = path;
  std::error_code failed = FollowLinks(target);
  if (failed) return failed;
  const file_type type = std::filesystem::status(target, failed).type();
  if (type == file_type::none) return failed;
  if (type != file_type::regular && type != file_type::not_found) {
    return std::make_error_code(type == file_type::directory ? std::errc::is_a_directory
                                                             : std::errc::operation_not_supported);
  }
  std::filesystem::path beside = target;
  beside += "." + ProcessName() + ".new";  // two programs that save at once do not meet
  // On the disk before it takes the old file's name: a power cut finds the one or the other.
  failed = WriteFile(beside, bytes, Rest::OnDisk);
  if (failed) return failed;
  KeepPermissions(target, beside);
  std::filesystem::rename(beside, target, failed);
  if (failed) DeleteRegularFile(beside);
  return failed;
}

}  // namespace tarnwick
