#include "platform/FileLock.h"

#include <system_error>
#include <utility>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tarnwick {
namespace {

#ifdef _WIN32

HANDLE HandleOf(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

/// A file that is shared with nobody is the lock. The handle is not for programs that are started from here.
std::intptr_t OpenAlone(const std::filesystem::path& file) {
  return reinterpret_cast<std::intptr_t>(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                                     OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

void Close(std::intptr_t handle) { CloseHandle(HandleOf(handle)); }

#else

void Close(std::intptr_t handle) { close(static_cast<int>(handle)); }

/// Whether the open file is still the one at that place: it may have been removed before it was locked.
bool IsStillThere(int handle, const std::filesystem::path& file) {
  struct stat held = {}, there = {};
  return fstat(handle, &held) == 0 && lstat(file.c_str(), &there) == 0 && held.st_dev == there.st_dev &&
         held.st_ino == there.st_ino;
}

/// Nobody but the user opens the file, and no program that is started from here keeps it open.
std::intptr_t OpenAlone(const std::filesystem::path& file) {
  const int handle = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
  if (handle < 0) return handle;
  if (flock(handle, LOCK_EX | LOCK_NB) == 0 && IsStillThere(handle, file)) return handle;
  Close(handle);
  return -1;
}

#endif

}  // namespace

FileLock::FileLock(FileLock&& other) noexcept
    : handle_(std::exchange(other.handle_, None)), file_(std::move(other.file_)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  if (this == &other) return *this;
  Release();
  handle_ = std::exchange(other.handle_, None);
  file_ = std::move(other.file_);
  return *this;
}

bool FileLock::Take(const std::filesystem::path& file) {
  Release();
  handle_ = OpenAlone(file);
  file_ = file;
  return Held();
}

void FileLock::Release() {
  if (Held()) Close(std::exchange(handle_, None));
}

void FileLock::ReleaseAndRemove() {
  if (!Held()) return;
  std::error_code ignored;
#ifdef _WIN32
  Release();  // an open file cannot be removed; if somebody takes it in between, it is he who removes it
  std::filesystem::remove(file_, ignored);
#else
  std::filesystem::remove(file_, ignored);
  Release();
#endif
}

}  // namespace tarnwick
